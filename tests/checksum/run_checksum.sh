#!/usr/bin/env bash
# Runs a big description and compares one checksum over everything the run leaves (exit
# status, standard output and error, every generated file with its name) with the one
# recorded next to it, which the program gave before its speed-ups.
#
#   run_checksum.sh <brixgen binary> [--print]
set -u
bin=$(readlink -f "$1")
here=$(dirname "$(readlink -f "$0")")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/run"
cp "$here/big_soc.brix" "$work/run/"
(cd "$work/run" && exec -a brixgen "$bin" -l sv -t soc -c baf big_soc.brix \
    </dev/null >"$work/stdout" 2>"$work/stderr")
echo $? >"$work/status"
sum=$(cd "$work" && {
    cat status stdout stderr
    for f in $(cd run && ls | grep -v '^big_soc.brix$' | sort); do
        echo "== $f"
        cat "run/$f"
    done
} | sha256sum | cut -d' ' -f1)
if [ "${2:-}" = --print ]; then
    echo "$sum"
    exit 0
fi
want=$(cat "$here/big_soc.sha256")
[ "$sum" = "$want" ] && exit 0
echo "checksum $sum, expected $want"
exit 1
