#!/usr/bin/env bash
# The Markdown reference of each example renders as GitHub-flavoured Markdown, and every
# link inside it leads to an anchor of the same page.
#
#   markdown_links.sh <brixmap> <source folder>
set -euo pipefail
brixmap=$(readlink -f "$1")
src=$(readlink -f "$2")
command -v pandoc >/dev/null || { echo "pandoc is missing"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail=0
# Every example, the one of mistakes (brixmap.args only) too: its map is still a map.
for args in "$src"/examples/*/brixgen.args "$src"/examples/*/brixmap.args; do
    dir=$(dirname "$args")
    top=$(sed -n 's/.*-t \([A-Za-z0-9_]*\).*/\1/p' "$args")
    file=$(awk '{print $NF}' "$args")
    (cd "$dir" && "$brixmap" md -t "$top" -o "$work/$top.md" "$file")
    pandoc -f gfm -t html "$work/$top.md" -o "$work/$top.html"
    grep -o 'id="[^"]*"' "$work/$top.html" | sed 's/^id="//; s/"$//' | sort -u >"$work/ids"
    grep -o 'href="#[^"]*"' "$work/$top.html" | sed 's/^href="#//; s/"$//' | sort -u >"$work/links"
    [ -s "$work/links" ] || { echo "$top: no internal links"; fail=1; }
    missing=$(comm -23 "$work/links" "$work/ids")
    if [ -n "$missing" ]; then
        echo "$top: links without an anchor:" $missing
        fail=1
    fi
    echo "$top: $(wc -l <"$work/links") links, all resolve"
done
exit $fail
