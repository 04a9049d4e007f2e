#!/bin/sh
# Fails when an object defines a weak symbol. Usage: no_weak_symbols.sh NM OBJECT...
nm=$1
shift
weak=$("$nm" -C --defined-only "$@" | grep -E ' [VvWwu] ' | grep -v -e ' DW.ref.')
[ -z "$weak" ] && exit 0
echo "Weak symbols in objects of the wide kernels:"
echo "$weak"
exit 1
