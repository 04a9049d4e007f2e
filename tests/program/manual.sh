#!/bin/bash
# The manual page has all that the help has, and groff has nothing to say about it.
# Usage: manual.sh GROFF RNXIMG PAGE
set -euo pipefail
warnings=$("$1" -man -Tascii -ww "$3" 2>&1 >/dev/null)
[[ -z $warnings ]] || { echo "$warnings"; exit 1; }
text=$("$1" -man -Tascii -P-cbou "$3")
count=0
while read -r word; do
  grep -qE "^ +${word}( |$)" <<<"$text" || { echo "not in the manual: $word"; exit 1; }
  count=$((count + 1))
done < <("$2" --help | sed -n '/^Example/,$s/^  \([a-z][a-z]*\).*/\1/p; s/^  \(--*[a-z]*\) .*/\1/p')
[[ $count -gt 20 ]]
