#!/usr/bin/env bash
# The shipped examples as brixmap sees them. An example with `brixgen.args` is a sound
# description: `check -b` finds nothing in it (with -q, since the warnings of reading are
# brixgen's own), and the UART example (the README's first run) gives its backdoor classes
# without a warning. An example with only `brixmap.args` shows
# mistakes: its check fails and trips every check there is. A folder with neither is an error.
#
#   examples.sh <brixgen> <brixmap> <source folder>
set -uo pipefail
brixgen=$(readlink -f "$1")
brixmap=$(readlink -f "$2")
src=$(readlink -f "$3")
ids="block-array-path class-collision coverage-array field-overlap hdl-path keyword overlap
reset-width unused"
fail=0
for ex in "$src"/examples/*/; do
    name=$(basename "$ex")
    cd "$ex" || exit 1
    if [ -f brixgen.args ]; then
        eval "set -- $(cat brixgen.args)"
        top=$(sed -n 's/.*-t \([A-Za-z0-9_]*\).*/\1/p' brixgen.args)
        out=$("$brixmap" check -b -q -t "$top" "${@: -1}" 2>&1)
        status=$?
        if [ $status -ne 0 ] || [ "$out" != "brixmap: 0 errors, 0 warnings, 0 notes" ]; then
            printf '%s: brixmap check -b -q gave status %s:\n%s\n' "$name" $status "$out"
            fail=1
        fi
    elif [ -f brixmap.args ]; then
        eval "set -- $(cat brixmap.args)"
        found=$("$brixmap" "$@" 2>/dev/null)
        status=$?
        [ $status -eq 1 ] || { echo "$name: brixmap $* gave status $status"; fail=1; }
        for id in $ids; do
            grep -q "\[$id\]\$" <<<"$found" || { echo "$name: no finding [$id]"; fail=1; }
        done
    else
        echo "$name: neither brixgen.args nor brixmap.args"
        fail=1
    fi
done
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$src/examples/uart" "$work/uart"
eval "set -- $(cat "$work/uart/brixgen.args")"
if ! (cd "$work/uart" && "$brixgen" -b "$@" >/dev/null 2>"$work/err") || [ -s "$work/err" ]; then
    echo "uart: brixgen -b is not silent:"
    cat "$work/err"
    fail=1
fi
exit $fail
