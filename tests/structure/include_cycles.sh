#!/bin/bash
# Lists the include graph between the units of a source tree (a file's folder and base
# name: a .cpp, its .hpp and a grammar's generated header are one unit) and fails on any
# cycle, printing one path around each.
# usage: include_cycles.sh SRC_DIR
set -euo pipefail
cd "${1:?usage: include_cycles.sh SRC_DIR}"

find . -type f \( -name '*.cpp' -o -name '*.hpp' -o -name '*.y' -o -name '*.l' \) | sort |
    while read -r file; do
        unit=${file#./}
        unit=${unit%.*}
        sed -n 's/^[[:space:]]*#[[:space:]]*include[[:space:]]*"\([^"]*\)".*/\1/p' "$file" |
            while read -r inc; do
                # An include without a folder is the includer's neighbour.
                [[ $inc == */* ]] || inc=$(dirname "$unit")/$inc
                if [[ ${inc%.*} != "$unit" ]]; then echo "$unit ${inc%.*}"; fi
            done
    done | sort -u | awk '
    { out[$1] = out[$1] " " $2; units[$1]; units[$2]; print $1 " -> " $2 }
    function visit(u,    n, i, next_units, v, j, path) {
        state[u] = 1; stack[++depth] = u
        n = split(out[u], next_units, " ")
        for (i = 1; i <= n; i++) {
            v = next_units[i]
            if (state[v] == 1) {
                path = v
                for (j = depth; stack[j] != v; j--) path = stack[j] " -> " path
                print "cycle: " v " -> " path
                cycles++
            } else if (state[v] == 0) {
                visit(v)
            }
        }
        depth--; state[u] = 2
    }
    END {
        for (u in units) if (state[u] == 0) visit(u)
        if (cycles) { print cycles " include cycle(s) between units"; exit 1 }
        print "no include cycle between units"
    }'
