#!/usr/bin/env bash
# Compiles generated SystemVerilog models with a real front end, against the stand-in of
# the run-time library beside this script.
#
#   lint_models.sh golden <source root>             the expected models of the golden cases
#   lint_models.sh examples <source root> <brixgen> models generated from examples/
#   lint_models.sh backdoor <source root> <brixgen> backdoor models against the designs
#                                                   listed in backdoor/designs
#   lint_models.sh hx_backdoor <source root> <brixgen>
#                                                   the Verilog task modules of HX backdoors
#                                                   against the designs in backdoor/hx_designs
#
# Three changes are made to a model, for what the front end lacks: $psprintf becomes
# $sformatf; a `foreach` over an array inside an element of an outer array becomes a `for`
# over the same array's $size; and each covergroup becomes a member of the stand-in's
# covergroup class, so that the coverage classes and methods around the groups are still
# checked.
# WIDTH is off: models pass sized constants narrower than the library's wide arguments.
set -u
mode=$1
root=$(readlink -f "$2")
here="$root/tests/lint"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

failed=0
count=0
lint() { # model file, label, further front end arguments
    local model=$1 label=$2
    shift 2
    sed -e 's/\$psprintf/$sformatf/g' \
        -e 's/foreach (\(this\..*\[i[0-9]*\]\..*\)\[\(i[0-9]*\)\]) begin/for (int \2 = 0; \2 < $size(\1); \2++) begin/' \
        "$model" | awk '
        /^[ \t]*covergroup[ \t]/ { name = $2; sub(/\(.*/, "", name); print "qvt_brx_covergroup " name ";"; skip = 1; next }
        skip && /^[ \t]*endgroup/ { skip = 0; next }
        !skip' >"$work/model.sv"
    count=$((count + 1))
    if ! (cd "$work" && verilator --lint-only -Wno-WIDTH +define+QVT_BRX_DATA_WIDTH=256 \
        -I"$here" model.sv "$@") >"$work/log" 2>&1; then
        echo "--- $label"
        cat "$work/log"
        failed=$((failed + 1))
    fi
}

case $mode in
golden)
    # Cases whose documented names are SystemVerilog keywords, listed with the reason.
    skip=$(grep -v '^#' "$here/keyword_cases" | cut -d' ' -f1)
    while read -r f; do
        case_dir=${f%/expected/files/*}
        rel=${case_dir#"$root"/}
        if grep -qx "$rel" <<<"$skip"; then
            continue
        fi
        lint "$f" "$rel"
    done < <(find "$root"/tests/golden*/gen_sv_* "$root"/tests/golden*/cov_* \
        "$root"/tests/golden*/plan_* -path '*/expected/files/*.sv' | sort)
    ;;
examples)
    # Each example without coverage and with the coverage models together and one by one.
    bin=$(readlink -f "$3")
    for ex in "$root"/examples/*/; do
        # An example of mistakes has no model worth compiling.
        [ -f "$ex/brixgen.args" ] || continue
        name=$(basename "$ex")
        for cover in none baf b a f; do
            run="$work/$name-$cover"
            cp -r "$ex" "$run"
            eval "set -- $(cat "$ex/brixgen.args")"
            [ $cover = none ] || set -- -c $cover "$@"
            if ! (cd "$run" && "$bin" "$@") >"$work/gen.log" 2>&1; then
                echo "--- $name -c $cover: generation failed"
                cat "$work/gen.log"
                failed=$((failed + 1))
                continue
            fi
            for m in "$run"/*.sv; do
                lint "$m" "$name/$(basename "$m") ($cover)"
            done
        done
    done
    ;;
backdoor | hx_backdoor)
    # Each model's backdoor reaches into its design below a top module `bd_top`, through
    # the model's <TOP>_TOP_PATH: in SystemVerilog its classes, in HX the module of
    # Verilog tasks, which `bd_top` holds so that it is elaborated.
    bin=$(readlink -f "$3")
    if [ "$mode" = backdoor ]; then
        lang=sv list=designs pattern='*.sv'
    else
        lang=hx list=hx_designs pattern='brx_bkdrs_*.v'
    fi
    while read -r source design module; do
        case $source in
        example:*)
            name=${source#example:}
            dir="$work/$name-$lang-backdoor"
            cp -r "$root/examples/$name" "$dir"
            eval "set -- $(sed "s/-l sv/-l $lang/" "$dir/brixgen.args")"
            if ! (cd "$dir" && "$bin" -q -b "$@") >"$work/gen.log" 2>&1; then
                echo "--- $name -l $lang -b: generation failed"
                cat "$work/gen.log"
                failed=$((failed + 1))
                continue
            fi
            ;;
        *) dir="$root/tests/golden/$source/expected/files" ;;
        esac
        for m in "$dir"/$pattern; do
            if [ $lang = sv ]; then
                top=$(sed -n '1s/^`ifndef BRX_//p' "$m")
                printf 'module bd_top;\n    %s dut ();\nendmodule\n' "$module" >"$work/bd_top.sv"
            else
                tasks=$(sed -n 's/^module \(qvt_brx_bkdrs_[A-Za-z0-9_]*\);$/\1/p' "$m")
                top=${tasks#qvt_brx_bkdrs_}
                top=${top^^}
                printf 'module bd_top;\n    %s dut ();\n    %s tasks ();\nendmodule\n' \
                    "$module" "$tasks" >"$work/bd_top.sv"
            fi
            lint "$m" "$source ($(basename "$m"))" "$here/backdoor/$design" bd_top.sv \
                --top-module bd_top "+define+${top}_TOP_PATH=bd_top.dut"
        done
    done < <(grep -v '^#' "$here/backdoor/$list")
    ;;
esac
echo "linted $count models"
[ $count -gt 0 ] && [ $failed -eq 0 ]
