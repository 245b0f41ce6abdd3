#!/usr/bin/env bash
# Installs the build into a staging prefix (DESTDIR) and checks it as a
# desktop would see it: the exact list of installed files, each one through
# its validator (desktop-file-validate, appstreamcli, update-mime-database,
# xmllint, man), the command line with no display, and, on a private Xvfb,
# the program opening a memory file the way a file manager starts it.
#
# Usage: install_check.sh BUILD_DIR SOURCE_DIR PROBE_PLUGIN_DIR
# Environment (set by CTest): BRENKO_APP_ID, BRENKO_VERSION,
# BRENKO_MIME_TYPE, BRENKO_PNG_SIZES (blank-separated, may be empty).
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/private_display.sh"

build=$1
source=$2
plugins=$3
id=${BRENKO_APP_ID:?}
version=${BRENKO_VERSION:?}
mime=${BRENKO_MIME_TYPE:?}
read -r -a png_sizes <<<"${BRENKO_PNG_SIZES:-}"
no_display_line="brenko: cannot open a display; start it from a desktop session, or under xvfb-run for a test"

work=$(mktemp -d "${TMPDIR:-/tmp}/brenko-install.XXXXXX")
xvfb_pid=""
app_pids=()
cleanup() {
  for pid in "${app_pids[@]}"; do kill "$pid" 2>/dev/null || true; done
  if [ -n "$xvfb_pid" ]; then kill "$xvfb_pid" 2>/dev/null || true; fi
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

# A step that fails unexpectedly says where, rather than ending in silence.
trap 'echo "install check: failed at line $LINENO: $BASH_COMMAND" >&2' ERR

checks=0
fail() {
  echo "install check: $*" >&2
  exit 1
}
ok() { checks=$((checks + 1)); }

missing=()
for tool in desktop-file-validate appstreamcli xmllint update-mime-database \
  update-desktop-database man Xvfb xdotool xprop gio; do
  command -v "$tool" >/dev/null 2>&1 || missing+=("$tool")
done
[ ${#missing[@]} -eq 0 ] || fail "missing tools (scripts/setup installs them): ${missing[*]}"

# --- the installed files -------------------------------------------------
stage=$work/stage
DESTDIR=$stage cmake --install "$build" --prefix /usr >"$work/install.log" 2>&1 ||
  { cat "$work/install.log" >&2; fail "cmake --install failed"; }
root=$stage/usr

expected=(
  "usr/bin/brenko"
  "usr/share/applications/$id.desktop"
  "usr/share/doc/brenko/manual.html"
  "usr/share/icons/hicolor/scalable/apps/$id.svg"
  "usr/share/man/man1/brenko.1"
  "usr/share/metainfo/$id.metainfo.xml"
  "usr/share/mime/packages/$id.xml"
)
for size in "${png_sizes[@]}"; do
  expected+=("usr/share/icons/hicolor/${size}x${size}/apps/$id.png")
done
want=$(printf '%s\n' "${expected[@]}" | LC_ALL=C sort)
have=$(cd "$stage" && find . -mindepth 1 ! -type d | sed 's|^\./||' | LC_ALL=C sort)
[ "$have" = "$want" ] ||
  fail "installed files differ from the expected list:
$(diff <(echo "$want") <(echo "$have") || true)"
ok

# Desktop entry.
desktop=$root/share/applications/$id.desktop
out=$(desktop-file-validate "$desktop" 2>&1) || fail "desktop-file-validate: $out"
[ -z "$out" ] || fail "desktop-file-validate: $out"
entry() { sed -n "s/^$1=//p" "$desktop"; }
[ "$(entry Exec)" = "brenko %f" ] || fail "Exec is '$(entry Exec)'"
[ "$(entry Icon)" = "$id" ] || fail "Icon is '$(entry Icon)'"
[ "$(entry MimeType)" = "$mime;" ] || fail "MimeType is '$(entry MimeType)'"
[ "$(entry Categories)" = "Utility;Calculator;Qt;" ] ||
  fail "Categories are '$(entry Categories)'"
[ -x "$root/bin/$(entry TryExec)" ] || fail "TryExec names no installed program"
wm_class=$(entry StartupWMClass)
[ -n "$wm_class" ] || fail "no StartupWMClass"
ok

# AppStream metainfo: clean even to the pedantic checks, and the whole tree
# (metainfo, desktop entry, icons) as a software centre reads it.
metainfo=$root/share/metainfo/$id.metainfo.xml
out=$(appstreamcli validate --pedantic --no-net --no-color "$metainfo" 2>&1) ||
  fail "appstreamcli validate: $out"
if grep -qE '^[EWIP]:' <<<"$out"; then fail "appstreamcli validate: $out"; fi
out=$(appstreamcli validate-tree --pedantic --no-net --no-color "$stage/usr" 2>&1) ||
  fail "appstreamcli validate-tree: $out"
if grep -qE '^[EWIP]:' <<<"$out"; then fail "appstreamcli validate-tree: $out"; fi
grep -qF "<id>$id</id>" "$metainfo" || fail "metainfo id is not $id"
grep -qF "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$metainfo" ||
  fail "metainfo does not launch $id.desktop"
grep -qF "<mediatype>$mime</mediatype>" "$metainfo" || fail "metainfo lacks $mime"
newest=$(grep -o '<release version="[^"]*"' "$metainfo" | sed -n '1s/.*"\(.*\)"/\1/p')
[ "$newest" = "$version" ] || fail "newest metainfo release is $newest, not $version"
ok

# Memory file type: well-formed, and a mime database built from it maps
# *.mem to the type with its name.
mimexml=$root/share/mime/packages/$id.xml
xmllint --noout "$mimexml" || fail "xmllint: $mimexml"
mkdir -p "$work/mimeonly/mime/packages"
cp "$mimexml" "$work/mimeonly/mime/packages/"
out=$(XDG_DATA_HOME="$work/mimeonly" XDG_DATA_DIRS="$work/mimeonly" \
  update-mime-database "$work/mimeonly/mime" 2>&1) || fail "update-mime-database: $out"
[ -z "$out" ] || fail "update-mime-database: $out"
grep -qxF "50:$mime:*.mem" "$work/mimeonly/mime/globs2" || fail "*.mem is not $mime"
grep -qF "<comment>Brenko memory file</comment>" "$work/mimeonly/mime/${mime}.xml" ||
  fail "the type is not named Brenko memory file"
ok

# Icon: the drawing is well-formed SVG, each bitmap a PNG of its size.
xmllint --noout "$root/share/icons/hicolor/scalable/apps/$id.svg" || fail "icon SVG"
for size in "${png_sizes[@]}"; do
  png=$root/share/icons/hicolor/${size}x${size}/apps/$id.png
  [ "$(od -An -tx1 -N8 "$png" | tr -d ' \n')" = "89504e470d0a1a0a" ] ||
    fail "$png is no PNG"
  dims=$(od -An -tu1 -j16 -N8 "$png" | awk '{print $3*256+$4 "x" $7*256+$8}')
  [ "$dims" = "${size}x${size}" ] || fail "$png is $dims"
done
ok

# Manual page: man renders it without a warning; its version is the program's.
out=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z \
  "$root/share/man/man1/brenko.1" 2>&1 >/dev/null) || fail "man: $out"
[ -z "$out" ] || fail "man warnings: $out"
grep -q "^\.TH BRENKO 1 .*\"Brenko Calculator $version\"" \
  "$root/share/man/man1/brenko.1" || fail "man page version is not $version"
ok

# The manual for reading outside the program is the one compiled in.
cmp -s "$source/docs/manual.html" "$root/share/doc/brenko/manual.html" ||
  fail "installed manual differs from docs/manual.html"
# One version number: the package's is the program's.
if [ -f "$source/debian/changelog" ]; then
  package_version=$(head -1 "$source/debian/changelog" | sed -n 's/^[^ ]* (\([^)]*\)).*/\1/p')
  [ "$package_version" = "$version" ] ||
    fail "debian/changelog is at $package_version, the program at $version"
fi
ok

# --- the command line without a display ----------------------------------
brenko=$root/bin/brenko
headless() { env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$@"; }
run() { # run NAME COMMAND...: status, stdout and stderr in $work/NAME.*
  local name=$1
  shift
  set +e
  "$@" >"$work/$name.out" 2>"$work/$name.err"
  echo $? >"$work/$name.status"
  set -e
}
expect_run() { # NAME STATUS
  local got
  got=$(cat "$work/$1.status")
  [ "$got" = "$2" ] || fail "$1: exit $got, expected $2; stderr: $(cat "$work/$1.err")"
}

for option in --version -v; do
  run version headless "$brenko" "$option"
  expect_run version 0
  [ "$(cat "$work/version.out")" = "brenko $version" ] ||
    fail "$option printed '$(cat "$work/version.out")'"
  [ ! -s "$work/version.err" ] || fail "$option wrote to stderr: $(cat "$work/version.err")"
done
for option in --help -h; do
  run help headless "$brenko" "$option"
  expect_run help 0
  [ "$(head -1 "$work/help.out")" = "Usage: brenko [FILE.mem]" ] ||
    fail "$option printed '$(head -1 "$work/help.out")'"
  [ ! -s "$work/help.err" ] || fail "$option wrote to stderr"
done
run bad headless "$brenko" --bogus
expect_run bad 2
[ ! -s "$work/bad.out" ] || fail "--bogus wrote to stdout"
[ "$(head -1 "$work/bad.err")" = "brenko: Unknown option 'bogus'." ] ||
  fail "--bogus said '$(head -1 "$work/bad.err")'"
grep -qxF "Usage: brenko [FILE.mem]" "$work/bad.err" || fail "--bogus gave no usage"
run nodisplay headless "$brenko" "$work/none.mem"
expect_run nodisplay 1
[ "$(cat "$work/nodisplay.err")" = "$no_display_line" ] ||
  fail "no display said '$(cat "$work/nodisplay.err")'"
[ ! -s "$work/nodisplay.out" ] || fail "no display wrote to stdout"
# A display that is named but served by nothing is no display either.
run deaddisplay headless env DISPLAY=:64999 "$brenko"
expect_run deaddisplay 1
[ "$(cat "$work/deaddisplay.err")" = "$no_display_line" ] ||
  fail "a dead display said '$(cat "$work/deaddisplay.err")'"
ok

# --- the installed program on a display -----------------------------------
# The staged files stand in for the system's: a mime and desktop database
# built from them, as the package's triggers build them.
share=$work/share
mkdir -p "$share" "$work/home" "$work/config" "$work/runtime" "$work/jobs"
chmod 700 "$work/runtime"
cp -r "$root/share/." "$share/"
update-mime-database "$share/mime" >/dev/null 2>&1 || fail "update-mime-database (system)"
update-desktop-database "$share/applications" >/dev/null 2>&1 ||
  fail "update-desktop-database"
grep -qF "$mime=$id.desktop;" "$share/applications/mimeinfo.cache" ||
  fail "the desktop database does not give $mime to $id.desktop"

start_private_display 1280x900 "$work/xvfb.log" ||
  fail "Xvfb did not start: $(cat "$work/xvfb.log")"
xvfb_pid=$private_display_pid
display=${private_display#:}

desktop_env=(
  env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u XDG_DATA_HOME
  DISPLAY=":$display" HOME="$work/home" XDG_CONFIG_HOME="$work/config"
  XDG_RUNTIME_DIR="$work/runtime" XDG_DATA_DIRS="$share:/usr/share"
  PATH="$root/bin:$PATH" QT_PLUGIN_PATH="$plugins"
)

# Waits, up to 30 seconds, until the probe's report holds LINE.
wait_for_line() {
  local report=$1 line=$2
  for _ in $(seq 1 300); do
    if [ -f "$report" ] && grep -qxF -- "$line" "$report"; then return 0; fi
    sleep 0.1
  done
  fail "the windows never showed '$line'; they showed:
$(cat "$report" 2>/dev/null)"
}
# The program's process behind a window, to end it when done.
window_pid() { "${desktop_env[@]}" xdotool getwindowpid "$1"; }
# Waits, up to 30 seconds, for a window titled exactly TITLE and prints its
# id. A window that goes away while xdotool walks the windows (the program
# remakes a window when it changes its stay-on-top state) stops that walk
# with an X error; the walk is then tried again.
wait_for_window() {
  local found status
  for _ in 1 2 3 4 5; do
    status=0
    found=$("${desktop_env[@]}" timeout 30 xdotool search --sync --name "^$1\$" 2>/dev/null) ||
      status=$?
    if [ "$status" -eq 0 ]; then
      echo "${found%%$'\n'*}"
      return 0
    fi
    [ "$status" -ne 124 ] || return 1  # waited the whole time: no such window
  done
  return 1
}
# Ends a program and waits until it is gone, windows and all.
end_program() {
  kill "$1" 2>/dev/null || true
  # A child of this script is reaped here; one the desktop started is not
  # ours to wait for, so its end is watched.
  wait "$1" 2>/dev/null || true
  for _ in $(seq 1 100); do
    kill -0 "$1" 2>/dev/null || return 0
    sleep 0.1
  done
  fail "program $1 did not end"
}

printf ' 300 \r\n 450 \r\n 7000 \r\n 4200 \r\n 2\r\n 2400\r\nKitchen floor\r\n 12'"'"'- 7 3/16" \r\nHall\r\n 3'"'"'- 0" sq. \r\n' \
  >"$work/jobs/kitchen.mem"

# The file manager's way: the file's type, its default program, gio open.
type=$("${desktop_env[@]}" gio info -a standard::content-type "$work/jobs/kitchen.mem" |
  sed -n 's/^ *standard::content-type: //p')
[ "$type" = "$mime" ] || fail "kitchen.mem is seen as '$type'"
default=$("${desktop_env[@]}" gio mime "$mime" | sed -n 's/^Default application for .*: //p')
[ "$default" = "$id.desktop" ] || fail "the default program for $mime is '$default'"
"${desktop_env[@]}" QT_QPA_GENERIC_PLUGINS="brenkoprobe:$work/opened.txt" \
  gio open "$work/jobs/kitchen.mem" >"$work/gio.log" 2>&1 ||
  fail "gio open: $(cat "$work/gio.log")"
frame=$(wait_for_window kitchen) || fail "no window titled kitchen appeared"
app_pids+=("$(window_pid "$frame")")
wait_for_line "$work/opened.txt" "memory [Kitchen floor] [ 12'- 7 3/16\" ]"
wait_for_line "$work/opened.txt" "memory [Hall] [ 3'- 0\" sq. ]"
wait_for_line "$work/opened.txt" "window [Brenko Calculator]"
frame=$(wait_for_window kitchen) || fail "the window titled kitchen went away"
class=$("${desktop_env[@]}" xprop -id "$frame" WM_CLASS | sed -n 's/.*= "[^"]*", "\([^"]*\)"$/\1/p')
[ "$class" = "$wm_class" ] || fail "window class is '$class', the desktop entry says '$wm_class'"
# Whole outputs are taken before they are searched: a reader that stops
# early would break the writer's pipe, and pipefail would count that.
icon=$("${desktop_env[@]}" xprop -id "$frame" _NET_WM_ICON 2>&1)
grep -q 'Icon (' <<<"$icon" || fail "the window has no icon: ${icon:0:200}"
end_program "${app_pids[-1]}"
ok

# A file that is not there: the message, then a normal start.
"${desktop_env[@]}" QT_QPA_GENERIC_PLUGINS="brenkoprobe:$work/missing.txt" \
  brenko "$work/jobs/gone.mem" >"$work/missing.log" 2>&1 &
app_pids+=("$!")
wait_for_window Error >/dev/null || fail "no Error box appeared for a missing file"
wait_for_line "$work/missing.txt" "message [Could not open gone.mem: the file does not exist.]"
wait_for_line "$work/missing.txt" "window [Brenko Calculator]"
if grep -q '^memory ' "$work/missing.txt"; then fail "memories appeared from nowhere"; fi
end_program "${app_pids[-1]}"
ok

echo "install check: $checks passed, 0 failed"
