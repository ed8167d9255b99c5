#!/usr/bin/env bash
# A display for windows, and pictures of the launcher's dialog on it: to be sourced. Run, it gives a command a display
# of its own:
#   scripts/display.sh COMMAND...

# Makes sure that there is a display: Xvfb with a window manager, WIDTH x HEIGHT, where DISPLAY names none. Their process
# ids are added to `started`, for the caller to end.
start_display() { # WIDTH HEIGHT
  [[ -z ${DISPLAY:-} ]] || return 0
  local pipe number
  pipe=$(mktemp -u)
  mkfifo "$pipe"
  Xvfb -displayfd 3 -screen 0 "$1x$2x24" -noreset -nolisten tcp 3>"$pipe" 2>/dev/null &
  started+=($!)
  read -r -t 20 number <"$pipe" || { echo "Xvfb did not start" >&2; return 1; }
  rm "$pipe"
  export DISPLAY=:$number
  openbox >/dev/null 2>&1 &
  started+=($!)
  picture_of=root
}

# Waits for the dialog, and writes a picture of it, or of the whole display where that is ours.
picture_dialog() { # FILE
  local deadline=$((SECONDS + 20)) window=
  until window=$(xdotool search --onlyvisible --name '^Lumivo Drive$' 2>/dev/null | head -n 1) && [[ -n $window ]]; do
    ((SECONDS < deadline)) || { echo "the dialog did not appear" >&2; return 1; }
    sleep 0.05
  done
  sleep 0.3 # it is mapped before it is painted
  import -window "${picture_of:-$window}" "$1"
}

if [[ ${BASH_SOURCE[0]} == "$0" ]]; then
  started=()
  trap 'kill "${started[@]}" 2>/dev/null || true' EXIT
  DISPLAY=
  start_display 800 600 || exit 1
  "$@"
fi
