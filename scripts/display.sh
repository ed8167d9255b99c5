#!/usr/bin/env bash
# A display for windows, and pictures of the launcher's dialog on it: to be sourced. Run, it gives a
# command a display of its own:
#   scripts/display.sh COMMAND...

# Makes sure that there is a display: Xvfb with a window manager, WIDTH x HEIGHT, where DISPLAY
# names none. Their process ids are added to `started`, for the caller to end.
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

# The window of the dialog that is on the screen.
dialog_window() { xdotool search --onlyvisible --name '^Lumivo Drive$' 2>/dev/null | head -n 1; }

wait_for_dialog() {
  local deadline=$((SECONDS + 20))
  until [[ -n $(dialog_window) ]]; do
    ((SECONDS < deadline)) || { echo "the dialog did not appear" >&2; return 1; }
    sleep 0.05
  done
}

# Waits for the dialog, and writes a picture of it, or of the whole display where that is ours.
picture_dialog() { # FILE
  wait_for_dialog || return 1
  sleep 0.3 # it is mapped before it is painted
  import -window "${picture_of:-$(dialog_window)}" "$1"
}

# Takes such pictures until the dialog has gone, and keeps the one in the middle of those that
# differ.
film_dialog() { # FILE
  local frames=("") last=
  wait_for_dialog || return 1
  while import -window "${picture_of:-$(dialog_window)}" "$1.ppm" 2>/dev/null && [[ -n $(dialog_window) ]]; do
    cmp -s "$1.ppm" "$last" && continue
    last=$1.${#frames[@]}
    mv "$1.ppm" "$last"
    frames+=("$last")
  done
  convert "ppm:${frames[$((${#frames[@]} / 2))]}" "$1" || return 1
  rm -f "$1.ppm" "${frames[@]:1}"
}

if [[ ${BASH_SOURCE[0]} == "$0" ]]; then
  started=()
  trap 'kill "${started[@]}" 2>/dev/null || true' EXIT
  DISPLAY=
  start_display 800 600 || exit 1
  "$@"
fi
