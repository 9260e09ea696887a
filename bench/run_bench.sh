#!/usr/bin/env bash
# Times whole runs (expansion, parse, checks, SystemVerilog model) over generated
# descriptions of 25k, 50k and 100k description commands.
#
#   bench/run_bench.sh [brixgen binary]
#
# Without a binary, a release build is made in build/bench. Each description is one block
# of literal registers with fields and constraints, registers made in `foreach` loops, and
# registers made by a procedure called from inside the block.
set -eu
. "$(dirname "$0")/setup.sh" "${1:-}"

# Writes a description of at least $1 description commands; prints the exact count on fd 3.
generate() {
    awk -v want="$1" 'BEGIN {
        print "proc mkreg {name} {"
        print "  register $name (${name}_q) {"
        print "    bytes 4"
        print "    field f {"
        print "      bits 8"
        print "      doc {made by mkreg}"
        print "    }"
        print "  }"
        print "}"
        print "block top {"
        print "  bytes 4"
        n = 2
        for (k = 0; n < want; k++) {
            if (k % 5 == 3) {
                # 4 iterations of 2 commands
                printf "  foreach i {0 1 2 3} {\n    register l%d_$i {\n      field v {\n        bits 32\n      }\n    }\n  }\n", k
                n += 12
            } else if (k % 5 == 4) {
                print "  mkreg p" k
                n += 5
            } else {
                printf "  register r%d {\n    bytes 4\n", k
                printf "    field f (f_q[7:0]) {\n      bits 8\n      reset 0\n    }\n"
                printf "    field g {\n      bits 8\n    }\n"
                printf "    constraint c { f[3:0] < 3; }\n  }\n"
                n += 8
            }
        }
        print "}"
        print n > "/dev/fd/3"
    }'
}

printf "%10s %10s %12s\n" commands seconds "us/command"
for n in ${BRIX_BENCH_SIZES:-25000 50000 100000}; do
    file="$work/bench_$n.brix"
    count=$(generate "$n" 3>&1 >"$file")
    start=$(date +%s.%N)
    (cd "$work" && "$bin" -q -l sv -t top "$file" >/dev/null)
    end=$(date +%s.%N)
    awk -v c="$count" -v s="$start" -v e="$end" \
        'BEGIN { t = e - s; printf "%10d %10.2f %12.2f\n", c, t, t * 1e6 / c }'
done
