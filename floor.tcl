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
write_floor >"$work/floor.tcl"
printf "%-5s %9s %-6s %9s %9s %9s %7s %9s\n" shape registers cover "wall s" "peak MB" \
    "floor s" ratio "output MB"
for shape in ${BRIX_BENCH_SHAPES:-flat chip}; do
    for n in ${BRIX_BENCH_SIZES:-25000 100000 400000 1000000}; do
        file="$work/${shape}_$n.brix"
        "write_$shape" "$n" >"$file"
        read -r floor _ < <(measure tclsh "$work/floor.tcl" "$file")
        for cover in "" baf; do
            [ -n "$cover" ] && [ "$n" -gt "${BRIX_BENCH_COVER_MAX:-100000}" ] && continue
            rm -rf "$work/out" && mkdir "$work/out"
            args=(-q -l sv -t top)
            [ -n "$cover" ] && args+=(-c "$cover")
            read -r wall peak < <(cd "$work/out" && measure "$bin" "${args[@]}" "$file")
            size=$(du -cb "$work/out"/* | awk 'END { printf "%.0f", $1 / 1e6 }')
            awk -v s="$shape" -v n="$n" -v c="${cover:--}" -v w="$wall" -v p="$peak" \
                -v f="$floor" -v o="$size" 'BEGIN {
                    printf "%-5s %9d %-6s %9.2f %9d %9.2f %7.1f %9d\n",
                        s, n, c, w, p, f, (f > 0 ? w / f : 0), o }'
        done
    done
