#!/usr/bin/env bash
# The screen-reader check: starts the program on a private X display and a
# private D-Bus session with accessibility on, and reads its tree over
# AT-SPI. Usage: check_names.sh PROGRAM
set -euo pipefail
program=$1
work=$(mktemp -d)
cleanup() {
  [ -n "${app_pid:-}" ] && kill "$app_pid" 2>/dev/null || true
  [ -n "${x_pid:-}" ] && kill "$x_pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

# A memory file with one named memory, opened from the command line.
printf ' 0 \r\n 0 \r\n 6000 \r\n 3000 \r\n 1\r\n 1935\r\nKitchen wall\r\n 12'"'"'- 6" \r\n' \
  >"$work/kitchen.mem"

# A display of our own, used once it answers: a busy machine takes a while
# to start it.
source "$(dirname "${BASH_SOURCE[0]}")/../support/private_display.sh"
start_private_display 1280x1024 "$work/xvfb.log" ||
  { echo "no X display could be started: $(cat "$work/xvfb.log")"; exit 1; }
x_pid=$private_display_pid
display=$private_display
answers=""
for _ in $(seq 100); do
  xdpyinfo -display "$display" >/dev/null 2>&1 && { answers=yes; break; }
  sleep 0.1
done
[ -n "$answers" ] || { echo "X display $display does not answer"; exit 1; }

export DISPLAY=$display
export XDG_CONFIG_HOME=$work/config XDG_RUNTIME_DIR=$work/run
mkdir -p "$XDG_CONFIG_HOME" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1
export NO_AT_BRIDGE=0 GTK_MODULES=
# Debian's own Python has the AT-SPI client, whatever python3 is first on
# the path.
python=/usr/bin/python3
here=$(cd "$(dirname "$0")" && pwd)

timeout 55 dbus-run-session -- bash -c '
  set -e
  "$1" "$2" &
  app_pid=$!
  status=0
  timeout 40 "$3" "$4" Brenko 30 || status=$?
  kill "$app_pid" 2>/dev/null || true
  wait "$app_pid" 2>/dev/null || true
  exit $status
' check "$program" "$work/kitchen.mem" "$python" "$here/check_names.py"
