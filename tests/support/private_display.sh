# shellcheck shell=bash
# Sourced by the scripts that need an X display of their own.
#
# start_private_display SIZE LOG
#   Starts Xvfb with one screen of SIZE (WIDTHxHEIGHT, 24 bits) on a display
#   number the server picks itself, so that two servers started at the same
#   moment never clash, and returns once it listens. Sets private_display
#   (":N") and private_display_pid. Fails, with the server's words in LOG,
#   when it does not start within 30 seconds.
start_private_display() {
  local size=$1 log=$2 number_file number=""
  number_file=$(mktemp "${TMPDIR:-/tmp}/brenko-display.XXXXXX")
  # -noreset: the server must not restart, refusing connections for a
  # moment, when the first program's connection closes.
  Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset \
    3>"$number_file" >"$log" 2>&1 &
  private_display_pid=$!
  private_display=""
  # The server writes its number once it listens.
  for _ in $(seq 1 300); do
    number=$(tr -d '\n' <"$number_file")
    [ -n "$number" ] && break
    kill -0 "$private_display_pid" 2>/dev/null || break
    sleep 0.1
  done
  rm -f "$number_file"
  [ -n "$number" ] || return 1
  # shellcheck disable=SC2034  # read by the caller
  private_display=":$number"
}
