#!/bin/bash
# The public headers compile alone and in any order, as C11 and C++20, with every compiler there is.
# Usage: headers.sh INCLUDE-FOLDER COMPILER...
set -euo pipefail
include=$1
shift
cd "$include"
mapfile -t headers < <(find . -name '*.h' -printf '%P\n' | sort)
[[ ${#headers[@]} -ge 4 ]]

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
forwards=("${headers[@]}")
mapfile -t backwards < <(printf '%s\n' "${headers[@]}" | tac)
n=0
unit() { printf '#include <%s>\n' "$@" >"$work/$((n++)).c"; }
for header in "${headers[@]}"; do unit "$header"; done
unit "${forwards[@]}"
unit "${backwards[@]}"
unit "${forwards[@]}" "${forwards[@]}"

compile() { # COMPILER LANGUAGE STANDARD
  echo "$1 -std=$3"
  "$1" -x "$2" -std="$3" -Wall -Wextra -Wpedantic -Wconversion -Werror -fsyntax-only -I "$include" "$work"/*.c
}
for compiler in "$@" gcc g++ clang clang++; do
  command -v "$compiler" >/dev/null || continue
  case $(basename "$compiler") in
    *++*) compile "$compiler" c++ c++20 ;;
    *) compile "$compiler" c c11 ;;
  esac
done
