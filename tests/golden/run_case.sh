#!/usr/bin/env bash
# Runs one golden case and compares everything it leaves byte for byte.
#
#   run_case.sh <program> <case folder>
#
# A case folder holds `cmd` (the arguments after the program name, as shell words), the
# input files, and `expected/` with `stdout`, `stderr`, `status` and, under `files/`,
# every file the run must leave in its working folder. An `expected/keeps_tmp` marker
# says that the run leaves its temporary pure description behind.
#
# With BRIX_UPDATE_GOLDEN=1 in the environment the case's `expected/` is rewritten from
# what the run gave instead (for an intended change of output; read every change against
# what the output must be before committing it).
set -u
bin=$(readlink -f "$1")
case_dir=$(readlink -f "$2")
exp="$case_dir/expected"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir "$work/run"
(cd "$case_dir" && find . -mindepth 1 -maxdepth 1 ! -name cmd ! -name expected \
    -exec cp -r {} "$work/run/" \;)
(cd "$work/run" && find . -type f | sort) >"$work/inputs"

eval "set -- $(cat "$case_dir/cmd")"
# Files of an earlier process with the same id may lie in /tmp: only newer ones count.
touch "$work/started"
# argv[0] is the bare program name so that getopt's own lines are stable.
(cd "$work/run" && exec -a "$(basename "$bin")" "$bin" "$@" </dev/null >"$work/stdout" 2>"$work/stderr") &
pid=$!
wait $pid
status=$?

if [ "${BRIX_UPDATE_GOLDEN:-0}" = 1 ]; then
    rm -rf "$exp"
    mkdir -p "$exp/files"
    cp "$work/stdout" "$work/stderr" "$exp/"
    echo "$status" >"$exp/status"
    (cd "$work/run" && find . -type f | sort) | comm -13 "$work/inputs" - |
        (cd "$work/run" && xargs -r -d '\n' cp --parents -t "$exp/files")
    rmdir "$exp/files" 2>/dev/null
    find /tmp -maxdepth 1 -newer "$work/started" \( -name "qvt_*_${pid}_pure_brix" \
        -o -name "qvt_${pid}_pure_brix" \) | grep -q . && touch "$exp/keeps_tmp"
fi

fail=0
compare() { # expected actual label
    if ! cmp -s "$1" "$2"; then
        echo "--- $3 differs:"
        diff -u --label expected --label actual "$1" "$2" | head -60
        fail=1
    fi
}
compare "$exp/stdout" "$work/stdout" stdout
compare "$exp/stderr" "$work/stderr" stderr
echo "$status" >"$work/status"
compare "$exp/status" "$work/status" status

# Generated files: exactly the expected ones, with the expected contents.
(cd "$work/run" && find . -type f | sort) | comm -13 "$work/inputs" - >"$work/made"
if [ -d "$exp/files" ]; then
    (cd "$exp/files" && find . -type f | sort) >"$work/want"
else
    : >"$work/want"
fi
compare "$work/want" "$work/made" "list of generated files"
while read -r f; do
    [ -f "$work/run/$f" ] && compare "$exp/files/$f" "$work/run/$f" "$f"
done <"$work/want"

left=()
while read -r f; do
    left+=("$f")
done < <(find /tmp -maxdepth 1 -newer "$work/started" \( -name "qvt_*_${pid}_pure_brix" \
    -o -name "qvt_${pid}_pure_brix" \))
if [ -e "$exp/keeps_tmp" ]; then
    [ ${#left[@]} -eq 1 ] || { echo "--- temporary file was expected to stay"; fail=1; }
else
    [ ${#left[@]} -eq 0 ] || { echo "--- temporary file left behind: ${left[*]}"; fail=1; }
fi
rm -f "${left[@]}"
exit $fail
