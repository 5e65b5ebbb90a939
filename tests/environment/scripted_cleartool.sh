#!/bin/sh
# The query session tests' cleartool stand-in: see ScriptedCleartool in WFClearCaseQuerySessionTest.cpp.
here=$(dirname "$0")
mode=$(cat "$here/mode" 2>/dev/null)
emit() {
  rest=$FAKE_OUT
  while :; do
    printf "${rest%%|*}"
    case "$rest" in *"|"*) rest=${rest#*|}; sleep 0.05 ;; *) break ;; esac
  done
}
if [ "$1" = "-status" ] && [ "$mode" = "plain" ]; then
  echo "Usage: cleartool subcommand" >&2
  exit 1
fi
if [ "$1" = "-status" ]; then
  echo session >> "$here/starts"
  n=0
  printf 'cleartool> '
  while IFS= read -r line; do
    mode=$(cat "$here/mode" 2>/dev/null)
    [ "$mode" = "mute" ] && continue
    n=$((n + 1))
    status=0
    case "$line" in
      cd*) dir=${line#cd }; dir=${dir#\"}; dir=${dir%\"}; [ -d "$dir" ] || status=1 ;;
      *) case "$mode" in
           hang) sleep 60 ;; die) exit 3 ;;
           trickle) while :; do echo t; sleep 0.1; done ;;
           flood) head -c 3000000 /dev/zero | tr '\0' x ;;
         esac
         emit; status=${FAKE_STATUS:-0} ;;
    esac
    printf 'Command %d returned status %d\n' "$n" "$status"
    printf 'cleartool> '
  done
  exit 0
fi
echo "$*" >> "$here/alone"
emit
exit ${FAKE_STATUS:-0}
