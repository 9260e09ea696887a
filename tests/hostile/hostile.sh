#!/usr/bin/env bash
# Hostile inputs, each with its exact outcome: status, standard error, and what the working
# folder and /tmp hold afterwards.
#
#   hostile.sh <brixgen binary> <golden folder>
set -u
bin=$(readlink -f "$1")
banner=$(readlink -f "$2")/gen_sv_blocks/documented_dma/expected/stdout
fails=0

# A block `top` with one register, spread over lines as descriptions are.
valid='register r {
    bytes 1
    field f { bits 8 }
}
block top {
    bytes 1
    register r @0
}
'

work=""
new_case() { # name
    case_name=$1
    work=$(mktemp -d)
    cd "$work" || exit 1
}

fail() {
    echo "FAIL $case_name: $*"
    fails=$((fails + 1))
}

# Runs brixgen as `brixgen` in the case's folder, noting its process id for the temporary
# name; `pre` (optional) runs first in the same process, before the program replaces it.
run() {
    : >"$work/.pid"
    touch "$work/.started"
    (
        echo "$BASHPID" >"$work/.pid"
        [ -n "${pre:-}" ] && eval "$pre"
        exec -a brixgen "$bin" "$@" </dev/null >"$work/.stdout" 2>"$work/.stderr"
    )
    status=$?
    pid=$(cat "$work/.pid")
}

expect_status() {
    [ "$status" = "$1" ] || fail "status $status, expected $1"
}

expect_stderr() { # exact text
    [ "$(cat "$work/.stderr"; echo x)" = "$1"x ] ||
        fail "stderr differs: $(head -c 300 "$work/.stderr")"
}

expect_stderr_lines() { # first line, last line (of a trace too long to spell out)
    local first last
    first=$(sed -n 2p "$work/.stderr")
    last=$(tail -n 1 "$work/.stderr")
    [ "$(head -c 1 "$work/.stderr" | od -An -tx1)" = " 0a" ] || fail "stderr does not start with a newline"
    [ "$first" = "$1" ] || fail "first line of stderr: '$first', expected '$1'"
    [ "$last" = "$2" ] || fail "last line of stderr: '$last', expected '$2'"
}

expect_banner_only() {
    cmp -s "$work/.stdout" "$banner" || fail "stdout is not the banner alone"
}

expect_files() { # the folder's files after the run, besides the bookkeeping ones
    local got
    got=$(cd "$work" && find . -mindepth 1 ! -name '.stdout' ! -name '.stderr' ! -name '.pid' \
        ! -name '.started' | sed 's|^\./||' | sort | tr '\n' ' ')
    [ "$got" = "$*" ] || fail "folder holds '$got', expected '$*'"
}

expect_tmp() { # number of temporary files the run leaves
    local left
    left=$(find /tmp -maxdepth 1 -newer "$work/.started" \( -name "qvt_*_${pid}_pure_brix" \
        -o -name "qvt_${pid}_pure_brix" \) | wc -l)
    [ "$left" = "$1" ] || fail "$left temporary files left, expected $1"
    find /tmp -maxdepth 1 -newer "$work/.started" \( -name "qvt_*_${pid}_pure_brix" \
        -o -name "qvt_${pid}_pure_brix" \) -delete
}

end_case() {
    cd /
    rm -rf "$work"
}

new_case directory_as_description
mkdir d.brix
run -l sv -t top d.brix
expect_status 1
expect_stderr "Error: Failed to read entire file d.brix ... Only -1 bytes read.
"
expect_files "d.brix "
expect_tmp 0
end_case

# Bytes above 127 in a comment are Tcl's business; the script ends at the NUL, so what
# follows it is never read.
new_case binary_file
printf '# \xff\xfe\xc3\x80 above 127\n%s\0garbage { [ "\n\xff' "$valid" >b.brix
run -q -l sv -t top b.brix
expect_status 0
expect_stderr ""
expect_banner_only
expect_files "b.brix brx_top.sv "
expect_tmp 0
end_case

new_case ten_megabyte_line
{
    printf '# '
    head -c 10485760 /dev/zero | tr '\0' x
    printf '\n%s' "$valid"
} >long.brix
run -q -l sv -t top long.brix
expect_status 0
expect_stderr ""
expect_files "brx_top.sv long.brix "
expect_tmp 0
end_case

# Tcl's own limit on nested evaluations ends the script with its trace.
new_case bodies_nested_100000_deep
{
    printf '%s' "$valid"
    for ((i = 0; i < 100000; i++)); do printf 'if 1 {'; done
    printf 'set y 1'
    for ((i = 0; i < 100000; i++)); do printf '}'; done
    printf '\n'
} >n.brix
run -q -l sv -t top n.brix
expect_status 1
expect_stderr_lines "too many nested compilations (infinite loop?)" \
    "\"if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {if 1 {...\" (file \"n.brix\" line 9)"
expect_files "n.brix "
expect_tmp 0
end_case

# The scanner reads a documentation body nested this deep as one token.
new_case doc_braces_nested_100000_deep
{
    printf '%s' "${valid%\}*}"
    printf '    doc {'
    for ((i = 0; i < 100000; i++)); do printf '{'; done
    printf 'x'
    for ((i = 0; i < 100000; i++)); do printf '}'; done
    printf '}\n}\n'
} >d.brix
run -q -l sv -t top d.brix
expect_status 0
expect_stderr ""
expect_files "brx_top.sv d.brix "
expect_tmp 0
end_case

# Brackets nested 100,000 deep, built at run time and parsed by Tcl, which recurses once
# per level: the run has the stack for it.
new_case brackets_built_100000_deep
printf '%sset s "[string repeat {[list } 100000]x[string repeat {]} 100000]"\nset c [info complete $s]\n' \
    "$valid" >top.brix
run -q -l sv -t top top.brix
expect_status 0
expect_stderr ""
expect_files "brx_top.sv top.brix "
expect_tmp 0
end_case

new_case ten_thousand_nested_sources
printf 'incr n\nif {$n < 10000} {\n    source self.brix\n}\n' >self.brix
printf 'set n 0\nsource self.brix\n' >top.brix
run -q -l sv -t top top.brix
expect_status 1
expect_stderr_lines "too many nested evaluations (infinite loop?)" \
    "\"source self.brix\" (file \"top.brix\" line 2)"
expect_files "self.brix top.brix "
expect_tmp 0
end_case

new_case source_cycle
printf 'source b.brix\n' >a.brix
printf 'source a.brix\n' >b.brix
run -q -l sv -t top a.brix
expect_status 1
expect_stderr_lines "too many nested evaluations (infinite loop?)" \
    "\"source b.brix\" (file \"a.brix\" line 1)"
expect_files "a.brix b.brix "
expect_tmp 0
end_case

# A search folder that does not exist is passed over; the file is found in the next one.
new_case include_folder_missing
mkdir inc
printf '%s' "$valid" >inc/part.brix
printf 'source part.brix\n' >top.brix
run -q -l sv -t top -I "$work/missing" -I "$work/inc" top.brix
expect_status 0
expect_stderr ""
expect_files "brx_top.sv inc inc/part.brix top.brix "
expect_tmp 0
end_case

# A file or link planted under the temporary name is neither followed, truncated nor
# removed: the run refuses to start.
for planted in file link; do
    new_case "planted_temporary_$planted"
    printf '%s' "$valid" >top.brix
    echo "the user's own" >victim
    # The name holds the UTC second: plant it for this second and the next few.
    pre='for s in 0 1 2 3 4; do
        p=/tmp/qvt_$(date -u -d "@$(($(date +%s) + s))" +%Y%m%d%H%M%S)_${BASHPID}_pure_brix
        if [ '"$planted"' = file ]; then echo planted >"$p"; else ln -s "$work/victim" "$p"; fi
        echo "$p" >>"$work/.planted"
    done'
    run -q -l sv -t top top.brix
    pre=""
    expect_status 1
    name=$(sed -n "s/^Error: Failed to open temporary -1 file '\(.*\)' for writing\.\.\.$/\1/p" .stderr)
    grep -qxF "$name" .planted || fail "message names '$name', not a planted name"
    expect_stderr "Error: Failed to open temporary -1 file '$name' for writing...

"
    while read -r p; do
        if [ "$planted" = file ]; then
            [ "$(cat "$p")" = planted ] || fail "$p was changed or removed"
        else
            [ -L "$p" ] || fail "link $p was removed"
        fi
        rm -f "$p"
    done <.planted
    [ "$(cat victim)" = "the user's own" ] || fail "the link's target was written"
    rm -f .planted
    expect_files "top.brix victim "
    end_case
done

# A write that fails ends the run at once with the file's name and the system's reason, and
# the temporary file goes as on every error. Each output kind on a full device:
for target in "brx_top.sv:-l sv" "brx_top.hxs:-l hx" "qvtp_top.kpl:-c b -l sv" \
    "brx_bkdrs_top.hxh:-b -l hx" "brx_bkdrs_top.v:-b -l hx"; do
    file=${target%%:*}
    new_case "full_device_$file"
    printf '%s' "$valid" >top.brix
    ln -s /dev/full "$file"
    # shellcheck disable=SC2086
    run -q ${target#*:} -t top top.brix
    expect_status 1
    expect_stderr "Error: Failed to write file '$file' (No space left on device).
"
    expect_tmp 0
    end_case
done

# Cut short by the file size limit (16 KB): the model of 30 registers, and the pure
# description of 3000, which is written first.
for registers in 30 3000; do
    new_case "file_size_limit_$registers"
    {
        printf 'block top {\n    bytes 1\n'
        for ((i = 0; i < registers; i++)); do
            printf '    register r%d { bytes 1; field f { bits 8 } }\n' "$i"
        done
        printf '}\n'
    } >top.brix
    pre='ulimit -f 16'
    run -q -l sv -t top top.brix
    pre=""
    expect_status 1
    file=brx_top.sv
    # The temporary name holds the time; the process id must be in it.
    [ "$registers" = 3000 ] && file=$(sed -n "s/^Error: Failed to write file '\(\/tmp\/qvt_[0-9]*_${pid}_pure_brix\)'.*/\1/p" .stderr)
    expect_stderr "Error: Failed to write file '${file:-?}' (File too large).
"
    expect_tmp 0
    end_case
done

if [ "$fails" -ne 0 ]; then
    echo "$fails hostile-input checks failed"
    exit 1
fi
echo "all hostile-input cases passed"
