#!/usr/bin/env bash
# Runs the descriptions of a Markdown document through brixgen and brixmap, so that the
# document cannot drift from the programs.
#
#   run_snippets.sh <brixgen binary> <document.md> [<brixmap binary>]
#
# Three kinds of fenced block take part; all others are prose:
#   ```tcl file=NAME           a description file. Every run block after it sees it, under
#                              NAME, until a later block of the same NAME replaces it.
#   ```console run [status=N] [writes=A,B] [in=DIR]
#   $ brixgen ARGS             one run in a fresh folder holding the files so far. The
#   LINES                      lines after the command are the whole standard error
#                              (trailing empty lines aside), where a line "..." stands for
#                              any number of lines; N is the exit status (0 if not given);
#                              A,B are exactly the files that the run leaves. With in=DIR
#                              the run takes place in a copy of DIR (from the document's
#                              folder) instead, e.g. a shipped example.
#   $ brixmap ARGS             the same with brixmap; LINES are its standard output, then
#                              its standard error.
#   ```LANG from=NAME          lines that stand, one after the other, in the file NAME
#                              that the last run wrote.
# A file block that no run reads before it is replaced, or before the end, is an error.
set -u
here=$(dirname "$(readlink -f "$0")")
bin=$(readlink -f "$1")
doc=$(readlink -f "$2")
map_bin=$(readlink -f "${3:-/nonexistent}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/blocks" "$work/files"

# Split the document into numbered blocks: <n>.head holds the info string, <n>.body the
# text, <n>.line the line of the opening fence.
awk -v out="$work/blocks" '
    !inside && /^```[a-z]+ .*(file=|from=|run)/ {
        inside = 1; n++; name = sprintf("%s/%03d", out, n)
        head = substr($0, 4); print head > (name ".head"); close(name ".head")
        print NR > (name ".line"); close(name ".line")
        printf "" > (name ".body"); next
    }
    inside && /^```$/ { inside = 0; close(name ".body"); next }
    inside { print >> (name ".body") }
' "$doc"

fail=0
runs=0
declare -A pending=()
last_run=""
attr() { # info string, key: the value of key=value, or empty
    local w
    for w in $1; do
        [[ $w == "$2="* ]] && { echo "${w#*=}"; return; }
    done
}
strip_trailing_empty() { sed -e :a -e '/^\n*$/{$d;N;ba' -e '}' "$1"; }

for head_file in "$work"/blocks/*.head; do
    [ -e "$head_file" ] || break
    b=${head_file%.head}
    head=$(cat "$head_file")
    where="$(basename "$doc"):$(cat "$b.line")"
    file=$(attr "$head" file)
    from=$(attr "$head" from)
    if [ -n "$file" ]; then
        if [ -n "${pending[$file]:-}" ]; then
            echo "--- $where: $file replaced before any run read the block at ${pending[$file]}"
            fail=1
        fi
        mkdir -p "$(dirname "$work/files/$file")"
        cp "$b.body" "$work/files/$file"
        pending[$file]=$where
    elif [[ " $head " == *" run "* ]]; then
        runs=$((runs + 1))
        pending=()
        cmdline=$(head -n 1 "$b.body")
        program=${cmdline#'$ '}
        program=${program%% *}
        if [[ $program != brixgen && $program != brixmap ]]; then
            echo "--- $where: a run block must start with '\$ brixgen' or '\$ brixmap'"
            fail=1
            continue
        fi
        run="$work/run$runs"
        in=$(attr "$head" in)
        if [ -n "$in" ]; then
            cp -r "$(dirname "$doc")/$in" "$run"
        else
            cp -r "$work/files" "$run"
        fi
        (cd "$run" && find . -type f | sort) >"$work/inputs"
        tail -n +2 "$b.body" >"$work/want_err"
        eval "set -- ${cmdline#"\$ $program "}"
        exe=$bin
        [ $program = brixmap ] && exe=$map_bin
        (cd "$run" && exec -a $program "$exe" "$@" </dev/null >"$work/out" 2>"$work/err")
        status=$?
        # brixmap's findings stand on the standard output, its summary on the error stream.
        [ $program = brixmap ] && cat "$work/out" "$work/err" >"$work/both" &&
            mv "$work/both" "$work/err"
        want_status=$(attr "$head" status)
        if [ "$status" != "${want_status:-0}" ]; then
            echo "--- $where: status $status, expected ${want_status:-0}"
            fail=1
        fi
        strip_trailing_empty "$work/want_err" >"$work/want_err2"
        strip_trailing_empty "$work/err" >"$work/err2"
        if ! awk -f "$here/match_lines.awk" "$work/want_err2" "$work/err2"; then
            echo "--- $where: standard error differs"
            diff -u --label expected --label actual "$work/want_err2" "$work/err2"
            fail=1
        fi
        (cd "$run" && find . -type f | sort) | comm -13 "$work/inputs" - | sed 's|^\./||' \
            >"$work/made"
        attr "$head" writes | tr ',' '\n' | sed '/^$/d' | sort >"$work/want_made"
        if ! cmp -s "$work/want_made" "$work/made"; then
            echo "--- $where: files written differ"
            diff -u --label expected --label actual "$work/want_made" "$work/made"
            fail=1
        fi
        last_run=$run
    elif [ -n "$from" ]; then
        if [ -z "$last_run" ] || [ ! -f "$last_run/$from" ]; then
            echo "--- $where: no file $from from an earlier run"
            fail=1
            continue
        fi
        # The excerpt must stand as consecutive lines of the file.
        if ! awk 'FILENAME == ARGV[1] { want[++n] = $0; next }
                  { have[++m] = $0 }
                  END {
                      for (s = 1; s + n - 1 <= m; s++) {
                          for (i = 1; i <= n && have[s + i - 1] == want[i]; i++) {}
                          if (i > n) exit 0
                      }
                      exit 1
                  }' "$b.body" "$last_run/$from"; then
            echo "--- $where: excerpt not found in $from"
            fail=1
        fi
    fi
done
for f in "${!pending[@]}"; do
    echo "--- ${pending[$f]}: file $f is not read by any run"
    fail=1
done
echo "ran $runs descriptions of $(basename "$doc")"
[ $runs -gt 0 ] && exit $fail
exit 1
