#!/bin/sh
# The client that the end-to-end tests install. It writes its pid file and runs for two minutes, or
# until it is asked to end. HOME/client-mode may say how it takes that: "ignore", or "linger" (it
# ends two seconds later). With "report" it says in HOME/client-signals how it was started.
pid_file=$HOME/.Lumivo/ui.pid
read -r mode 2>/dev/null <"$HOME/client-mode"
trap 'rm -f "$pid_file"; exit' TERM
case $mode in
  ignore) trap '' TERM ;;
  linger) trap 'sleep 2; rm -f "$pid_file"; exit' TERM ;;
  report)
    # A shell that has started a process has other signals blocked than before.
    while read -r line; do echo "$line"; done <"/proc/$$/status" >"$HOME/client-signals"
    ;;
esac
(echo "pid=$$" >"$pid_file") # in a process of its own: a test looks at what this one has open
tenths=0
while [ "$tenths" -lt 1200 ]; do
  sleep 0.1
  tenths=$((tenths + 1))
done
exit
