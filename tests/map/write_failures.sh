#!/usr/bin/env bash
# A write that fails is an error with one message, and leaves no partial file behind.
#
#   write_failures.sh <brixmap>
set -uo pipefail
brixmap=$(readlink -f "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"
cat >big.brix <<'BRIX'
block big {
    bytes 4
    for {set i 0} {$i < 1000} {incr i} {
        register r$i { bytes 4; field f { bits 32; access rw } }
    }
}
BRIX
fail=0
expect() { # label, expected stderr, command...
    local label=$1 want=$2
    shift 2
    local got status
    got=$("$@" 2>&1 >/dev/null)
    status=$?
    if [ "$status" -ne 1 ] || [ "$got" != "$want" ]; then
        printf '%s: status %s, stderr:\n%s\nwanted status 1, stderr:\n%s\n' \
            "$label" "$status" "$got" "$want"
        fail=1
    fi
}
expect "full device" "Error: Failed to write file '/dev/full' (No space left on device)." \
    "$brixmap" json -t big -o /dev/full big.brix
expect "full standard output" "Error: Failed to write standard output (No space left on device)." \
    sh -c '"$0" md -t big -o - big.brix >/dev/full' "$brixmap"
expect "missing folder" "Error: Failed to write file 'no/big.md' (No such file or directory)." \
    "$brixmap" md -t big -o no/big.md big.brix
# A file limit of 500 KB (above the pure description) stops the JSON part way; with SIGXFSZ ignored the write fails.
expect "file too large" "Error: Failed to write file 'big.json' (File too large)." \
    sh -c 'trap "" XFSZ; ulimit -f 500; exec "$0" json -t big big.brix' "$brixmap"
if [ -e big.json ] || [ -e no ]; then
    echo "a partial output was left behind:" big.json no
    fail=1
fi
[ -c /dev/full ] || { echo "/dev/full was removed"; fail=1; }
exit $fail
