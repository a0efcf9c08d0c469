#!/usr/bin/env bash
# The names that a shared library exports, sorted. Inline functions, templates and vtables are weak symbols: each
# compiler and each level of optimisation leaves others of them, so they are no part of the list.
#   exported_symbols.sh LIBRARY             prints it
#   exported_symbols.sh LIBRARY RECORDED    compares it with the one recorded; fails when they differ
set -euo pipefail
export LC_ALL=C

exported() {
    nm --dynamic --defined-only --demangle "$1" |
        sed -nE 's/^[0-9a-f]+ [TBDR] //p' | grep -vxE '__bss_start|_edata|_end' | sort -u
}

if [ $# -eq 1 ]; then
    exported "$1"
elif ! changes=$(diff -U0 --label recorded "$2" --label built <(exported "$1")); then
    cat >&2 <<TEXT
$changes

The library exports other names than ${2##*/} records. A name that is gone or has another signature breaks
programs that were built before: take the change back, or raise the minor version and tell it in CHANGELOG.md.
A name that is new is a promise. Where the change is meant, './dev symbols' records it.
TEXT
    exit 1
fi
