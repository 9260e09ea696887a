#!/usr/bin/env bash
# Compiles the expected header of each golden C case through the case's use.c, once in the
# by-name form and once in the plain form, against the stand-in qvt_brx.h beside this script.
# The plain form is asked for with an empty definition, the same text that a pure C header
# writes itself, so that the two definitions agree.
set -u
here=$(dirname "$(readlink -f "$0")")
count=0
failed=0
for use in "$here"/*/*/use.c; do
    case_dir=$(dirname "$use")
    for form in -UQVT_BRX_PURE_C_MODEL -DQVT_BRX_PURE_C_MODEL=; do
        count=$((count + 1))
        if ! gcc -std=c99 -Wall -Werror -fsyntax-only "$form" -I"$here" \
            -I"$case_dir/expected/files" "$use"; then
            echo "--- ${case_dir#"$here"/} ($form)"
            failed=$((failed + 1))
        fi
    done
done
echo "$count compilations, $failed failed"
[ "$count" -gt 0 ] && [ "$failed" -eq 0 ]
