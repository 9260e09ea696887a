#!/usr/bin/env bash
# Where the instructions of one run go, stage by stage, under callgrind: the flat shape of
# bench/scale_bench.sh at N registers (default 5000), with any extra brixgen options.
#
#   bench/stage_shares.sh [brixgen binary] [registers] [options...]
#
# Instruction counts do not depend on the machine's load, unlike wall times. Needs valgrind.
set -eu
. "$(dirname "$0")/setup.sh" "${1:-}"
n=${2:-5000}
shift $(($# < 2 ? $# : 2))
eval "$(sed -n '/^write_flat()/,/^EOF$/p' bench/scale_bench.sh; echo '}')"
write_flat "$n" >"$work/flat.brix"
(cd "$work" && valgrind --tool=callgrind --callgrind-out-file="$work/cg.out" \
    "$bin" -q -l sv -t top "$@" flat.brix >/dev/null 2>"$work/err") ||
    { cat "$work/err" >&2; exit 1; }
callgrind_annotate --inclusive=yes --threshold=100 "$work/cg.out" 2>/dev/null | awk -v n="$n" '
    function count(s) { gsub(",", "", s); return s + 0 }
    /PROGRAM TOTALS/ { total = count($1) }
    / \?\?\?:expand_tcl_constructs\(/ { stage["expansion (Tcl stage)"] = count($1) }
    / \?\?\?:yyparse\(\)/ { stage["parse"] = count($1) }
    / \?\?\?:yylex\(\)/ { stage["  of which the scanner"] = count($1) }
    / \?\?\?:check_semantics\(/ { stage["semantic checks"] = count($1) }
    / \?\?\?:emit_sv_brx_model\(/ { stage["SystemVerilog model"] = count($1) }
    / \?\?\?:emit_kpl_qvtp_model\(/ { stage["verification plan"] = count($1) }
    END {
        printf "%d registers: %.0f M instructions\n", n, total / 1e6
        split("expansion (Tcl stage)|parse|  of which the scanner|semantic checks|SystemVerilog model|verification plan", order, "|")
        for (i = 1; i <= 6; i++)
            if (order[i] in stage)
                printf "  %-24s %8.0f M %5.1f %%\n", order[i], stage[order[i]] / 1e6, 100 * stage[order[i]] / total
    }'
