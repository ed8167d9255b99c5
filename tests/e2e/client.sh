#!/bin/sh
# The client that the end-to-end tests install. It writes its pid file and runs for two minutes, or
# until it is asked to end. HOME/client-mode says how it takes that: "ignore", "linger" (it ends two
# seconds later), or anything else, or nothing, for at once.
pid_file=$HOME/.Lumivo/ui.pid
mode=$(cat "$HOME/client-mode" 2>/dev/null)
case $mode in
  ignore) trap '' TERM ;;
  linger) trap 'sleep 2; rm -f "$pid_file"; exit' TERM ;;
  *) trap 'rm -f "$pid_file"; exit' TERM ;;
esac
(echo "pid=$$" >"$pid_file") # in a process of its own: a test looks at what this one has open
tenths=0
while [ "$tenths" -lt 1200 ]; do
  sleep 0.1
  tenths=$((tenths + 1))
done
exit
