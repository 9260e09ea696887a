#!/usr/bin/env bash
# Times whole runs over a system of block arrays whose register arrays all have hdl paths,
# with and without backdoor classes (-b), at 25k and 100k registers, and prints how the
# time grows from the one size to the other in both.
#
#   bench/run_backdoor_bench.sh [brixgen binary]
#
# Without a binary, a release build is made in build/bench. A register counts once per
# element of its array inside its block type; each block type is placed as an array of
# two in the system, whose index is settled by a `case` in every backdoor class. Each run
# is repeated BRIX_BENCH_REPEAT times (default 3) and the fastest counts.
set -eu
. "$(dirname "$0")/setup.sh" "${1:-}"
repeat=${BRIX_BENCH_REPEAT:-3}

# A description of $1 registers: block types of 25 register arrays of 4.
generate() {
    cat <<EOT
register word {
    bytes 4
    field v { bits 32 }
}
for {set k 0} {\$k < $(($1 / 100))} {incr k} {
    block blk\$k {
        bytes 4
        for {set i 0} {\$i < 25} {incr i} {
            register word = r\$i[4] (r\${i}_q%d) @[expr {\$i * 16}]
        }
    }
}
system bsys {
    bytes 4
    for {set k 0} {\$k < $(($1 / 100))} {incr k} {
        block blk\$k = b\$k[2] (u_b\${k}_%d) @[expr {\$k * 0x1000}] +0x400
    }
}
EOT
}

fastest() { # description file, extra options...
    local file=$1 best=
    shift
    for _ in $(seq "$repeat"); do
        rm -f "$work"/brx_bsys.sv
        local start end
        start=$(date +%s.%N)
        (cd "$work" && "$bin" -q "$@" -l sv -t bsys "$file" >/dev/null)
        end=$(date +%s.%N)
        best=$(awk -v s="$start" -v e="$end" -v b="$best" \
            'BEGIN { t = e - s; if (b == "" || t < b) b = t; printf "%.3f", b }')
    done
    echo "$best $(stat -c %s "$work/brx_bsys.sv")"
}

printf "%10s %8s %10s %12s\n" registers backdoor seconds "model bytes"
declare -A secs
for n in 25000 100000; do
    file="$work/bench_$n.brix"
    generate "$n" >"$file"
    for b in off on; do
        opts=()
        [ $b = on ] && opts=(-b)
        read -r t size < <(fastest "$file" "${opts[@]}")
        secs[$n-$b]=$t
        printf "%10d %8s %10s %12d\n" "$n" "$b" "$t" "$size"
    done
done
awk -v a="${secs[25000-off]}" -v b="${secs[100000-off]}" -v c="${secs[25000-on]}" \
    -v d="${secs[100000-on]}" 'BEGIN {
        r0 = b / a; r1 = d / c
        printf "time of 100k over 25k: %.2f without -b, %.2f with -b (%+.1f%%)\n", r0, r1, (r1 / r0 - 1) * 100
    }'
