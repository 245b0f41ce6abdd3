#!/usr/bin/env bash
# The program ended by SIGTERM, SIGINT or SIGHUP saves its settings as Exit
# does: every key in its order, the user's own lines kept. Runs the built
# program offscreen with a settings folder of its own; the window probe
# says when the calculator is up.
# Usage: ending_signals.sh PROGRAM PLUGIN_DIR
set -euo pipefail
program=$1
plugins=$2
work=$(mktemp -d)
pid=""
cleanup() {
  if [ -n "$pid" ]; then kill -KILL "$pid" 2>/dev/null || true; fi
  rm -rf "$work"
}
trap cleanup EXIT
fail() { echo "ending_signals: $*" >&2; exit 1; }

expected='; my own line

[Settings]
Zoom=True
Mine=kept
ShowTape=False
CalcTop=*
CalcLeft=*
ConvTop=*
ConvLeft=*
MDITop=*
MDILeft=*
Accuracy=False
Converter=False
ShowKeys=True

[Colors]
CalcBackground= 8421376
ReadoutBackground= 8454143
MemoryBackground= 8421376
MemoryReadout= 8454143
Converter= 8421376
ConvReadout= 8454143
ConvResult= 8454143'

for signal in TERM INT HUP; do
  config="$work/$signal/config"
  mkdir -p "$config/Brenko"
  printf '; my own line\n[Settings]\nZoom=True\nMine=kept\nShowTape=False\n' \
    >"$config/Brenko/Brenko.ini"
  report="$work/$signal/report.txt"
  env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=offscreen \
    XDG_CONFIG_HOME="$config" XDG_RUNTIME_DIR="$work" \
    QT_PLUGIN_PATH="$plugins" QT_QPA_GENERIC_PLUGINS="brenkoprobe:$report" \
    "$program" >"$work/$signal/out.log" 2>&1 &
  pid=$!
  for _ in $(seq 1 300); do
    if [ -f "$report" ] && grep -qxF "window [Brenko Calculator]" "$report"; then
      break
    fi
    kill -0 "$pid" 2>/dev/null || fail "the program ended by itself: $(cat "$work/$signal/out.log")"
    sleep 0.1
  done
  grep -qxF "window [Brenko Calculator]" "$report" || fail "the calculator never showed"
  kill -"$signal" "$pid"
  # A program that does not end within about 10 s would hold wait forever.
  for _ in $(seq 1 100); do
    kill -0 "$pid" 2>/dev/null || break
    sleep 0.1
  done
  if kill -0 "$pid" 2>/dev/null; then
    kill -KILL "$pid" 2>/dev/null || true
    wait "$pid" 2>/dev/null || true
    pid=""
    fail "SIG$signal: still running"
  fi
  status=0
  wait "$pid" || status=$?
  pid=""
  [ "$status" -eq 0 ] || fail "SIG$signal: the program ended with status $status"
  text=$(cat "$config/Brenko/Brenko.ini")
  # shellcheck disable=SC2053
  if [[ $text != $(printf '%s' "$expected" | sed 's/[][]/\\&/g') ]]; then
    fail "SIG$signal: the settings read
$text"
  fi
  grep -q '^CalcTop=-\?[0-9][0-9]*$' "$config/Brenko/Brenko.ini" ||
    fail "SIG$signal: no calculator position"
done
echo "ending_signals: TERM, INT and HUP each saved the settings"
