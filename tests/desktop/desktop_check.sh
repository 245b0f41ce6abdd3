#!/usr/bin/env bash
# The program on a real window manager: a private Xvfb with openbox, the
# program started with prepared settings, and xdotool, xwininfo and xprop
# looking at its windows as a user's desktop has them. Checks that every
# window comes up reachable after a start with places from a bigger screen
# (1024x768 and 800x600) and with the calculator at the top edge; that
# minimising the calculator takes the tape and the converter with it and
# restoring brings them back; that the tape follows the calculator and has
# its own entry in the task list; that the calculator cannot be maximised
# nor the converter made a banner (not even while the machine is busy) and
# the memory frame comes back to its size after maximise and restore; that
# typing in the tape window and in the memory frame reaches the readout; that
# a huge volume is shown whole or visibly cut with the whole value in its
# tooltip; that at a scale of 1.5 the frame of twelve memories shows every
# one of them whole, borders included.
#
# Usage: desktop_check.sh PROGRAM PROBE_PLUGIN_DIR [SHOTS_DIR]
# With SHOTS_DIR, screenshots of the desktop are saved there.
# Exits 77 (skipped) when Xvfb, openbox or the X tools are missing.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/../support/private_display.sh"

program=$1
plugins=$2
shots=${3:-}

for tool in Xvfb openbox xdotool xwininfo xprop timeout; do
  if ! command -v "$tool" >/dev/null 2>&1; then
    echo "desktop check: $tool is missing (scripts/setup installs it); skipped"
    exit 77
  fi
done

work=$(mktemp -d "${TMPDIR:-/tmp}/brenko-desktop.XXXXXX")
load_pids=()
xvfb_pid=""
wm_pid=""
app_pid=""
display=""
stop_program() {
  if [ -n "$app_pid" ]; then
    kill "$app_pid" 2>/dev/null || true
    for _ in $(seq 1 50); do
      kill -0 "$app_pid" 2>/dev/null || break
      sleep 0.1
    done
    kill -9 "$app_pid" 2>/dev/null || true
    wait "$app_pid" 2>/dev/null || true
    app_pid=""
  fi
}
stop_desktop() {
  stop_program
  for pid in "$wm_pid" "$xvfb_pid"; do
    [ -n "$pid" ] || continue
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
  done
  wm_pid=""
  xvfb_pid=""
}
# Keeps both processors busy (a loaded machine places windows late), until
# stop_load.
start_load() {
  for _ in 1 2; do
    (while :; do :; done) &
    load_pids+=($!)
  done
}
stop_load() {
  local pid
  for pid in "${load_pids[@]}"; do
    kill "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
  done
  load_pids=()
}
cleanup() {
  stop_load
  stop_desktop
  rm -rf "$work"
}
trap cleanup EXIT
trap 'echo "desktop check: failed at line $LINENO: $BASH_COMMAND" >&2' ERR

checks=0
fail() {
  echo "desktop check: $*" >&2
  if [ -f "$work/probe.txt" ]; then
    echo "the windows showed:" >&2
    cat "$work/probe.txt" >&2
  fi
  exit 1
}
ok() { checks=$((checks + 1)); }
x() { DISPLAY=":$display" timeout 10 "$@"; }

# Polls CONDITION (a command) for up to 15 seconds.
wait_until() {
  for _ in $(seq 1 150); do
    if "$@"; then return 0; fi
    sleep 0.1
  done
  return 1
}

# A private X server of the given size and openbox managing it.
# With DPI, the desktop's font setting (Xft.dpi) asks the program for
# that many dots per inch: 144 is a scale of 1.5.
start_desktop() {
  local size=$1 dpi=${2:-}
  start_private_display "$size" "$work/xvfb.log" ||
    fail "Xvfb did not start: $(cat "$work/xvfb.log")"
  xvfb_pid=$private_display_pid
  display=${private_display#:}
  DISPLAY=":$display" openbox --sm-disable >"$work/openbox.log" 2>&1 &
  wm_pid=$!
  wm_running() { x xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }
  wait_until wm_running || fail "openbox did not start"
  if [ -n "$dpi" ]; then
    x xprop -root -f RESOURCE_MANAGER 8s \
      -set RESOURCE_MANAGER "Xft.dpi:	$dpi"
  fi
}

# Settings as a run on another screen left them (places in twips, 15 to a
# pixel at 96 dots per inch).
write_settings() {
  mkdir -p "$work/config/Brenko"
  {
    echo "[Settings]"
    for line in "$@"; do echo "$line"; done
  } >"$work/config/Brenko/Brenko.ini"
}

start_program() {
  rm -f "$work/probe.txt"
  env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM DISPLAY=":$display" \
    HOME="$work/home" XDG_CONFIG_HOME="$work/config" \
    XDG_RUNTIME_DIR="$work/runtime" QT_PLUGIN_PATH="$plugins" \
    QT_QPA_GENERIC_PLUGINS="brenkoprobe:$work/probe.txt" \
    "$program" "$@" >"$work/program.log" 2>&1 &
  app_pid=$!
}

# The id of the shown window titled exactly TITLE (waits for it).
window() {
  local found
  for _ in $(seq 1 150); do
    found=$(x xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1) || true
    if [ -n "$found" ]; then
      echo "$found"
      return 0
    fi
    sleep 0.1
  done
  fail "no window titled '$1' appeared"
}

# "left top right bottom" of a window's outer rectangle, its frame included.
outer() {
  local info ex x0 y0 w h l r t b
  info=$(x xwininfo -id "$1")
  x0=$(sed -n 's/.*Absolute upper-left X: *//p' <<<"$info")
  y0=$(sed -n 's/.*Absolute upper-left Y: *//p' <<<"$info")
  w=$(sed -n 's/.*Width: *//p' <<<"$info")
  h=$(sed -n 's/.*Height: *//p' <<<"$info")
  ex=$(x xprop -id "$1" _NET_FRAME_EXTENTS)
  if [[ $ex =~ =\ ([0-9]+),\ ([0-9]+),\ ([0-9]+),\ ([0-9]+) ]]; then
    l=${BASH_REMATCH[1]} r=${BASH_REMATCH[2]} t=${BASH_REMATCH[3]} b=${BASH_REMATCH[4]}
  else
    l=0 r=0 t=0 b=0
  fi
  echo "$((x0 - l)) $((y0 - t)) $((x0 + w + r)) $((y0 + h + b))"
}
client_size() {
  x xwininfo -id "$1" | sed -n 's/.*Width: *//p; s/.*Height: *//p' | paste -sd x
}
mapped() { x xwininfo -id "$1" | grep -q 'Map State: IsViewable'; }
# Waits until the windows stay where they are for half a second (the window
# manager and the program may still be placing them after they are mapped).
settled() {
  local before now
  before=$(for id in "$@"; do outer "$id"; done)
  for _ in $(seq 1 5); do
    sleep 0.1
    now=$(for id in "$@"; do outer "$id"; done)
    [ "$now" = "$before" ] || return 1
  done
}
unmapped() { ! mapped "$1"; }

# Every one of the windows lies whole inside the screen of WIDTHxHEIGHT.
check_on_screen() {
  local width=$1 height=$2 title id l t r b
  shift 2
  for title in "$@"; do
    id=$(window "$title")
    placed() {
      read -r l t r b < <(outer "$id")
      [ "$l" -ge 0 ] && [ "$t" -ge 0 ] && [ "$r" -le "$width" ] && [ "$b" -le "$height" ]
    }
    wait_until placed ||
      fail "'$title' is not whole on the ${width}x${height} screen: $(outer "$id")"
  done
}

probe_has() { [ -f "$work/probe.txt" ] && grep -qE -- "$1" "$work/probe.txt"; }
wait_probe() {
  wait_until probe_has "$1" || fail "the windows never showed /$1/"
}

shot() {
  [ -n "$shots" ] || return 0
  command -v import >/dev/null 2>&1 || return 0
  mkdir -p "$shots"
  x import -window root "$shots/$1.png" || true
}

printf ' 300 \r\n 450 \r\n 7000 \r\n 4200 \r\n 2\r\n 2400\r\nKitchen floor\r\n 12'"'"'- 7 3/16" \r\nHall\r\n 3'"'"'- 0" sq. \r\n' \
  >"$work/kitchen.mem"
mkdir -p "$work/home" "$work/runtime"
chmod 700 "$work/runtime"

# Places from a 1920x1080 screen: the calculator and the converter at its
# right edge, the memory frame low on it.
big_screen_places=(CalcTop=4500 CalcLeft=28470 ConvTop=6000 ConvLeft=28000
  Converter=1 ShowTape=1 MDITop=13500 MDILeft=25500)

# --- 1024x768 -----------------------------------------------------------
start_desktop 1024x768
write_settings "${big_screen_places[@]}"
start_program "$work/kitchen.mem"
calc=$(window "Brenko Calculator")
tape=$(window "Tape")
conv=$(window "Converter")
frame=$(window "kitchen")
check_on_screen 1024 768 "Brenko Calculator" "Tape" "Converter" "kitchen"
ok
wait_probe '^readout '
shot small-screen-1024x768

# Minimising the calculator takes its companions along; restoring brings
# them back.
x xdotool windowminimize "$calc"
wait_until unmapped "$tape" || fail "the tape stayed on screen with the calculator minimised"
wait_until unmapped "$conv" || fail "the converter stayed on screen with the calculator minimised"
x xdotool windowactivate "$calc" || true
wait_until mapped "$calc" || fail "the calculator did not come back"
wait_until mapped "$tape" || fail "the tape did not come back with the calculator"
wait_until mapped "$conv" || fail "the converter did not come back with the calculator"
ok

# The tape follows the calculator, keeping its offset.
wait_until settled "$calc" "$tape" || fail "the calculator and the tape never stood still"
read -r cl ct _ _ < <(outer "$calc")
read -r tl tt _ _ < <(outer "$tape")
x xdotool windowmove "$calc" $((cl - 60)) $((ct + 50))
calc_moved() {
  local nl nt
  read -r nl nt _ _ < <(outer "$calc")
  [ "$nl" -ne "$cl" ] && [ "$nt" -ne "$ct" ]
}
wait_until calc_moved || fail "the calculator could not be moved"
wait_until settled "$calc" "$tape" || fail "the calculator and the tape never stood still"
moved_with() {
  local nl nt ml mt
  read -r ml mt _ _ < <(outer "$calc")
  read -r nl nt _ _ < <(outer "$tape")
  [ $((nl - tl)) -eq $((ml - cl)) ] && [ $((nt - tt)) -eq $((mt - ct)) ]
}
wait_until moved_with ||
  fail "the tape did not follow the calculator: calculator from $cl,$ct to $(outer "$calc"), tape from $tl,$tt to $(outer "$tape")"
ok

# The tape has its own entry in the task list: the window manager lists it,
# and it is a normal window of the program's class, neither marked to be
# skipped by the task bar nor transient for the calculator (panels leave
# those out); like the calculator it is kept above other windows.
clients=$(x xprop -root _NET_CLIENT_LIST)
grep -qi "$(printf '0x%x' "$tape")\b" <<<"$clients" ||
  fail "the window manager does not list the tape: $clients"
tape_state=$(x xprop -id "$tape" _NET_WM_STATE)
if grep -q SKIP_TASKBAR <<<"$tape_state"; then
  fail "the tape is kept out of the task bar: $tape_state"
fi
grep -q _NET_WM_STATE_ABOVE <<<"$tape_state" ||
  fail "the tape is not kept on top with the calculator: $tape_state"
# (Qt names a window without a frame also with KDE's own type for it.)
tape_type=$(x xprop -id "$tape" _NET_WM_WINDOW_TYPE)
if ! grep -q _NET_WM_WINDOW_TYPE_NORMAL <<<"$tape_type" ||
  grep -qE '_NET_WM_WINDOW_TYPE_(UTILITY|TOOLBAR|DOCK|MENU|SPLASH|DIALOG)' <<<"$tape_type"; then
  fail "the tape is not a normal window: $tape_type"
fi
transient=$(x xprop -id "$tape" WM_TRANSIENT_FOR)
if [[ $transient == *"window id"* ]]; then
  fail "the tape is a transient window: $transient"
fi
tape_class=$(x xprop -id "$tape" WM_CLASS)
[[ $tape_class == *'"Brenko"'* ]] &&
  [ "$tape_class" = "$(x xprop -id "$calc" WM_CLASS)" ] ||
  fail "the tape's class is not the program's: $tape_class"
ok

# No maximise for the fixed-size calculator: the window manager offers
# none. The converter, asked by a double click on its title bar while both
# processors are busy, never becomes a banner across the screen: not even
# for a moment is it higher than it was or wider than half the 1024-pixel
# screen (its own area; the frame the window manager draws comes on top).
actions=$(x xprop -id "$calc" _NET_WM_ALLOWED_ACTIONS)
if grep -q MAXIMIZE <<<"$actions"; then
  fail "the calculator can be maximised: $actions"
fi
before=$(client_size "$conv")
read -r l t r _ < <(outer "$conv")
start_load
x xdotool mousemove $(((l + r) / 2)) $((t + 5)) click --repeat 2 --delay 80 1
kept() {
  local size
  size=$(client_size "$conv")
  [ "${size%%x*}" -le 512 ] && [ "${size##*x}" = "${before##*x}" ]
}
for _ in $(seq 1 20); do
  kept || {
    stop_load
    fail "the converter became $(client_size "$conv") (was $before): $(x xprop -id "$conv" _NET_WM_STATE)"
  }
  sleep 0.1
done
stop_load
ok

# Typing in the tape window and in the memory frame reaches the readout.
x xdotool windowactivate --sync "$calc" || true
x xdotool key Escape Escape
x xdotool windowactivate --sync "$tape" || true
x xdotool type 7
wait_probe '^readout \[ *7'
x xdotool windowactivate --sync "$frame" || true
x xdotool type 5
wait_probe '^readout \[ *75'
ok

# A huge volume: whole, or cut with "…" and the whole value in its tooltip.
x xdotool windowactivate --sync "$calc" || true
x xdotool key Escape Escape
x xdotool type "10'1/16\""
x xdotool key Return
x xdotool type "x10'3/4\""
x xdotool key Return
x xdotool type "x12'4\""
x xdotool key Return
wait_probe "^readout \\[[^]]*1241'-[^]]*cu\\.[^]]*\\]"
line=$(grep '^readout ' "$work/probe.txt")
if [[ $line == *" fits" ]]; then
  :
elif [[ $line =~ ^readout\ \[\ *([^]]*[^ ])\ *\]\ \[([^]]*)\]\ cut$ ]]; then
  [ "${BASH_REMATCH[1]}" = "${BASH_REMATCH[2]}" ] ||
    fail "the cut readout's tooltip is not its value: $line"
else
  fail "the readout hides part of its value: $line"
fi
shot huge-volume
ok

# The memory frame, maximised and restored, comes back to its arranged
# size, whole on the screen, and to the same size every time.
maximise_and_restore() {
  local before maximised l t r
  before=$(client_size "$frame")
  read -r l t r _ < <(outer "$frame")
  x xdotool mousemove $(((l + r) / 2)) $((t + 5)) click --repeat 2 --delay 80 1
  grown() { [ "$(client_size "$frame")" != "$before" ]; }
  wait_until grown || fail "the memory frame could not be maximised"
  maximised=$(client_size "$frame")
  read -r l t r _ < <(outer "$frame")
  x xdotool mousemove $(((l + r) / 2)) $((t + 5)) click --repeat 2 --delay 80 1
  restored() { [ "$(client_size "$frame")" != "$maximised" ]; }
  wait_until restored || fail "the memory frame stayed maximised"
  check_on_screen 1024 768 "kitchen"
}
maximise_and_restore
arranged=$(client_size "$frame")
shot frame-restored
maximise_and_restore
same() { [ "$(client_size "$frame")" = "$arranged" ]; }
wait_until same ||
  fail "the memory frame came back as $(client_size "$frame"), then as $arranged"
ok

# The calculator at the top edge: the tape goes below it.
stop_program
write_settings CalcTop=0 CalcLeft=6000 ShowTape=1
start_program
calc=$(window "Brenko Calculator")
tape=$(window "Tape")
check_on_screen 1024 768 "Brenko Calculator" "Tape"
below() {
  local cb tt
  read -r _ _ _ cb < <(outer "$calc")
  read -r _ tt _ _ < <(outer "$tape")
  [ "$tt" -ge "$cb" ]
}
wait_until below || fail "the tape is not below the calculator at the top edge"
shot calculator-at-top
ok
stop_desktop

# --- 800x600 ------------------------------------------------------------
start_desktop 800x600
write_settings "${big_screen_places[@]}"
start_program "$work/kitchen.mem"
check_on_screen 800 600 "Brenko Calculator" "Tape" "Converter" "kitchen"
shot small-screen-800x600
ok
stop_desktop

# --- a scale of 1.5: twelve memories ------------------------------------
# The frame is as big as its arrangement, in device pixels too: every
# memory window lies whole in the frame's area, and the frame's window on
# the screen holds the area whole (a window manager keeping to size steps
# counted from nothing cut its last row of device pixels, the bottom row's
# lower border).
{
  printf ' 300 \r\n 450 \r\n 7000 \r\n 4200 \r\n 12\r\n 1935\r\n'
  for k in $(seq 1 12); do printf "M%d\r\n %d'- 0\" \r\n" "$k" "$k"; done
} >"$work/twelve.mem"
start_desktop 1280x1024 144
rm -f "$work/config/Brenko/Brenko.ini"
start_program "$work/twelve.mem"
frame=$(window "twelve")
twelve_shown() { [ "$(grep -c '^memoryat ' "$work/probe.txt" 2>/dev/null)" -eq 12 ]; }
wait_until twelve_shown || fail "the twelve memories never showed"
wait_until settled "$frame" || fail "the frame never stood still"
read -r _ area_w area_h < <(grep '^area ' "$work/probe.txt")
right=0
bottom=0
while read -r title l t r b; do
  [ "$l" -ge 0 ] && [ "$t" -ge 0 ] && [ "$r" -le "$area_w" ] && [ "$b" -le "$area_h" ] ||
    fail "memory $title at $l,$t to $r,$b is not whole in the ${area_w}x${area_h} area"
  [ "$r" -gt "$right" ] && right=$r
  [ "$b" -gt "$bottom" ] && bottom=$b
done < <(sed -n 's/^memoryat \[\([^]]*\)\] /\1 /p' "$work/probe.txt")
[ "$bottom" -gt 0 ] || fail "no memory window was read"
# In device pixels at 1.5 (the memory windows' places are in the program's
# own pixels), rounded up.
need_w=$(((right * 3 + 1) / 2))
need_h=$(((bottom * 3 + 1) / 2))
whole() {
  local size
  size=$(client_size "$frame")
  [ "${size%%x*}" -ge "$need_w" ] && [ "${size##*x}" -ge "$need_h" ]
}
wait_until whole ||
  fail "the frame shows $(client_size "$frame") device pixels of the ${need_w}x${need_h} its memories take"
shot twelve-memories-at-1.5
ok
stop_desktop

echo "desktop check: $checks passed, 0 failed"
