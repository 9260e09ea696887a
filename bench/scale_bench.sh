#!/usr/bin/env bash
# Whole runs of big descriptions, side by side with the Tcl floor of the same script.
#
#   bench/scale_bench.sh [brixgen binary]
#
# Without a binary, a release build is made in build/bench. BRIX_BENCH_SIZES picks the
# register counts (default 25000 100000 400000 1000000), BRIX_BENCH_SHAPES the shapes
# (default "flat chip"). Each description is written here, as a small Tcl script:
#   flat  one block of N inline registers of 4 fields each, made by a `for` loop calling a
#         procedure;
#   chip  a system of 16 blocks, each with a register array, an array of regfiles, a memory
#         and registers made by a procedure, all with hdl paths;
#   literal  one block holding N registers of 4 fields written out as they stand;
#   fields   one block of N registers of 50 one-bit fields each, written out (400 make
#            the 20,000-field shape).
# Each runs without and with `-c baf`; the coverage models add about 8 KB of output per
# register, so the runs with them stop at BRIX_BENCH_COVER_MAX registers (default 100000).
# Wall times are the best of BRIX_BENCH_RUNS runs (default 1).
# Two floors evaluate the same script: plain tclsh with every description command a
# procedure that appends its words to a list and evaluates its body ("proc"), and
# bench/tcl_floor.c, built here, where they are C object commands that evaluate their
# bodies as objects ("obj"), so bodies run as compiled bytecode. Not a test: the figures
# depend on the machine.
set -eu
. "$(dirname "$0")/setup.sh" "${1:-}"

write_flat() { # registers
    cat <<EOF
proc mkreg {i} {
    register r\$i (r\${i}_q) {
        bytes 4
        field a { bits 8; access rw; hard_reset 0 }
        field b { bits 8; access ro }
        field c { bits 8; access rw; hard_reset 0x5 }
        field d { bits 8; access wo }
    }
}
block top {
    bytes 4
    for {set i 0} {\$i < $1} {incr i} {
        mkreg \$i
    }
}
EOF
}

write_chip() { # registers
    # 16 blocks; in each: 8 array elements, a quarter in a regfile array of 4, the rest
    # made by the procedure.
    local per_block=$(($1 / 16))
    local in_regfile=$((per_block / 16))
    local flat=$((per_block - 8 - 4 * in_regfile))
    cat <<EOF
proc mkregs {prefix n} {
    for {set i 0} {\$i < \$n} {incr i} {
        register \${prefix}_r\$i (\${prefix}_r\${i}_q) {
            bytes 4
            field f (f_q) { bits 16; access rw; hard_reset 0 }
            field g (g_q) { bits 16; access ro }
        }
    }
}
for {set b 0} {\$b < 16} {incr b} {
    block blk\$b {
        bytes 4
        register ctrl[8] (ctrl_q[%d]) {
            bytes 4
            field en (en_q) { bits 1; access rw }
            field mode (mode_q) @4 { bits 3 }
        }
        regfile ch[4] (u_ch%d) {
            for {set i 0} {\$i < $in_regfile} {incr i} {
                register c\$i (c\${i}_q) { bytes 4; field v (v_q) { bits 32 } }
            }
        }
        memory buf (buf_mem) { size 1024; bits 32; access rw }
        mkregs b\$b $flat
    }
}
system top {
    bytes 4
    for {set b 0} {\$b < 16} {incr b} {
        block blk\$b = u\$b (u_blk\$b)
    }
}
EOF
}

write_literal() { # registers
    # One block whose body holds every register as it stands, as descriptions written out
    # by other tools do.
    echo "block top {"
    echo "    bytes 4"
    awk -v n="$1" 'BEGIN {
        for (i = 0; i < n; i++)
            printf "    register r%d (r%d_q) { bytes 4; field a { bits 8; access rw; hard_reset 0 }; field b { bits 8; access ro }; field c { bits 8 }; field d { bits 8; access wo } }\n", i, i
    }'
    echo "}"
}

write_fields() { # registers
    # Registers of 50 one-bit fields each, as they stand: 400 of them make 20,000 fields.
    echo "block top {"
    echo "    bytes 8"
    awk -v n="$1" 'BEGIN {
        for (i = 0; i < n; i++) {
            printf "    register r%d {\n        bytes 8\n", i
            for (f = 0; f < 50; f++)
                printf "        field f%d { bits 1 }\n", f
            print "    }"
        }
    }'
    echo "}"
}

# The floor: the same script under plain tclsh, its array subscripts protected the way
# brixgen protects them.
write_floor() {
    cat <<'EOF'
set brix_words {}
foreach cmd {system block register virtual field bits attributes doc constraint bytes size
             endian left_to_right access reset hard_reset soft_reset initial noise shared
             memory regfile domain cover cross label enum coverpoint bins} {
    set evaluates [expr {$cmd ni {doc constraint enum attributes bins}}]
    proc $cmd args [string map [list @CMD@ $cmd @EVAL@ $evaluates] {
        lappend ::brix_words [linsert $args 0 @CMD@]
        set last [lindex $args end]
        if {@EVAL@ && [llength $args] > 1 && ($last eq "" || [regexp {[ \t\n]} $last])} {
            uplevel 1 $last
        }
    }]
}
set f [open [lindex $argv 0]]
set text [read $f]
close $f
regsub -all {\[([0-9:%d]*)\]} $text {\\[\1\\]} text
eval $text
EOF
}

# Runs a command under /usr/bin/time; prints "<seconds> <peak MB>".
# The wall time is the best of BRIX_BENCH_RUNS runs (default 1), to the millisecond; the
# peak is that run's.
measure() {
    local best="" run start end
    for ((run = 0; run < ${BRIX_BENCH_RUNS:-1}; run++)); do
        start=$(date +%s%N)
        /usr/bin/time -f "%M" -o "$work/time" "$@" >/dev/null 2>"$work/err" ||
            { cat "$work/err" >&2; exit 1; }
        end=$(date +%s%N)
        read -r peak <"$work/time"
        if [ -z "$best" ] || [ $((end - start)) -lt "${best% *}" ]; then
            best="$((end - start)) $peak"
        fi
    done
    awk -v b="$best" 'BEGIN { split(b, f, " "); printf "%.3f %.0f\n", f[1] / 1e9, f[2] / 1024 }'
}

write_floor >"$work/floor.tcl"
tcl_inc=$(. /usr/lib/tclConfig.sh 2>/dev/null && echo "$TCL_INCLUDE_SPEC")
gcc -O2 -o "$work/tcl_floor" bench/tcl_floor.c ${tcl_inc:--I/usr/include/tcl8.6} -ltcl8.6
printf "%-7s %9s %-6s %9s %9s %9s %7s %9s %7s %9s\n" shape registers cover "wall s" \
    "peak MB" "proc s" ratio "obj s" ratio "output MB"
for shape in ${BRIX_BENCH_SHAPES:-flat chip}; do
    for n in ${BRIX_BENCH_SIZES:-25000 100000 400000 1000000}; do
        file="$work/${shape}_$n.brix"
        "write_$shape" "$n" >"$file"
        read -r floor _ < <(measure tclsh "$work/floor.tcl" "$file")
        read -r ofloor _ < <(measure "$work/tcl_floor" "$file")
        for cover in "" baf; do
            [ -n "$cover" ] && [ "$n" -gt "${BRIX_BENCH_COVER_MAX:-100000}" ] && continue
            rm -rf "$work/out" && mkdir "$work/out"
            args=(-q -l sv -t top)
            [ -n "$cover" ] && args+=(-c "$cover")
            read -r wall peak < <(cd "$work/out" && measure "$bin" "${args[@]}" "$file")
            size=$(du -cb "$work/out"/* | awk 'END { printf "%.0f", $1 / 1e6 }')
            awk -v s="$shape" -v n="$n" -v c="${cover:--}" -v w="$wall" -v p="$peak" \
                -v f="$floor" -v g="$ofloor" -v o="$size" 'BEGIN {
                    printf "%-7s %9d %-6s %9.3f %9d %9.3f %7.1f %9.3f %7.1f %9d\n",
                        s, n, c, w, p, f, (f > 0 ? w / f : 0), g, (g > 0 ? w / g : 0), o }'
        done
    done
done
