#!/usr/bin/env bash
# Generates every example as SystemVerilog and as HX, without coverage and with all three
# coverage models, and checks that each HX model is a non-empty file whose classes are
# those of the SystemVerilog model, one for one and in order: the two template tables
# must lead the one walk to the same classes.
#
#   hx_classes.sh <source root> <brixgen>
set -u
root=$(readlink -f "$1")
bin=$(readlink -f "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The class names of a model, one a line, in the order of the file.
classes() {
    sed -n -E 's/^[[:space:]]*class[[:space:]]+([A-Za-z0-9_]+).*/\1/p' "$1"
}

failed=0
count=0
for ex in "$root"/examples/*/; do
    # An example of mistakes has no model worth comparing.
    [ -f "$ex/brixgen.args" ] || continue
    name=$(basename "$ex")
    for cover in none baf; do
        for lang in sv hx; do
            run="$work/$name-$cover-$lang"
            cp -r "$ex" "$run"
            eval "set -- $(cat "$ex/brixgen.args")"
            args=()
            while [ $# -gt 0 ]; do
                if [ "$1" = -l ]; then
                    args+=(-l "$lang")
                    shift 2
                    continue
                fi
                args+=("$1")
                shift
            done
            [ $cover = none ] || args=(-c $cover "${args[@]}")
            if ! (cd "$run" && "$bin" "${args[@]}") >"$work/gen.log" 2>&1; then
                echo "--- $name -c $cover -l $lang: generation failed"
                cat "$work/gen.log"
                failed=$((failed + 1))
            fi
        done
        sv=("$work/$name-$cover-sv"/*.sv)
        hx=("$work/$name-$cover-hx"/*.hxs)
        count=$((count + 1))
        if [ ${#hx[@]} -ne 1 ] || [ ! -s "${hx[0]}" ]; then
            echo "--- $name -c $cover: no single non-empty .hxs model"
            failed=$((failed + 1))
            continue
        fi
        classes "${sv[0]}" >"$work/sv.classes"
        classes "${hx[0]}" >"$work/hx.classes"
        if [ ! -s "$work/sv.classes" ] || ! cmp -s "$work/sv.classes" "$work/hx.classes"; then
            echo "--- $name -c $cover: the classes of the two models differ"
            diff "$work/sv.classes" "$work/hx.classes"
            failed=$((failed + 1))
        fi
    done
done
echo "compared $count pairs of models"
[ $count -gt 0 ] && [ $failed -eq 0 ]
