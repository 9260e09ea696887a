#!/usr/bin/env bash
# Rebuilds the seed corpora from the golden cases' and examples' descriptions:
#   corpus/whole  the description files as they are (for the whole program)
#   corpus/pure   their pure descriptions (for the parser and the generators)
#
#   make_corpus.sh BRIX_FUZZ_BINARY
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(dirname "$here")
bin=$(readlink -f "$1")
rm -rf "$here/corpus"
mkdir -p "$here/corpus/whole" "$here/corpus/pure"
n=0
while IFS= read -r -d '' f; do
    # Seeds stay small so that the fuzzer spends its time on mutations.
    [ "$(stat -c %s "$f")" -le 4096 ] || continue
    n=$((n + 1))
    name=$(printf '%03d_%s' "$n" "$(basename "$f")")
    cp "$f" "$here/corpus/whole/$name"
    (cd "$(dirname "$f")" && "$bin" expand "$f" "$here/corpus/pure/$name.pure" \
        >/dev/null 2>&1) || rm -f "$here/corpus/pure/$name.pure"
    [ -s "$here/corpus/pure/$name.pure" ] || rm -f "$here/corpus/pure/$name.pure"
done < <(find "$root/tests/golden" "$root/examples" -name '*.brix' -print0 | sort -z)
echo "whole: $(ls "$here/corpus/whole" | wc -l) seeds, pure: $(ls "$here/corpus/pure" | wc -l) seeds"
