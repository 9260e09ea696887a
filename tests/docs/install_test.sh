#!/usr/bin/env bash
# Installs the build into a temporary prefix, runs the installed program on an installed
# example and checks that the installed manual pages render without warnings.
#
#   install_test.sh <build folder>
set -u
build=$(readlink -f "$1")
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT

if ! cmake --install "$build" --prefix "$prefix" >"$prefix/install.log" 2>&1; then
    cat "$prefix/install.log"
    exit 1
fi
fail=0
for f in bin/brixgen bin/brixmap share/man/man1/brixgen.1.gz share/man/man1/brixmap.1.gz \
    share/doc/brixgen/guide.md share/doc/brixgen/README.md \
    share/doc/brixgen/brixmap.schema.json share/doc/brixgen/examples/uart/uart.brix \
    share/doc/brixgen/examples/soc/soc.brix share/doc/brixgen/examples/checks/checks.brix; do
    [ -f "$prefix/$f" ] || { echo "--- not installed: $f"; fail=1; }
done
[ -x "$prefix/bin/brixgen" ] || { echo "--- bin/brixgen is not executable"; fail=1; }

# The installed program on a copy of the installed example, as a user would run it.
cp -r "$prefix/share/doc/brixgen/examples/uart" "$prefix/run"
eval "set -- $(cat "$prefix/run/brixgen.args")"
(cd "$prefix/run" && "$prefix/bin/brixgen" "$@" >"$prefix/out" 2>"$prefix/err")
status=$?
if [ $status -ne 0 ] || [ -s "$prefix/err" ] || [ ! -s "$prefix/run/brx_uart.sv" ]; then
    echo "--- installed brixgen on the uart example: status $status"
    cat "$prefix/err"
    fail=1
fi

# The manual pages: groff's warnings, then man's own rendering at two widths.
if ! command -v groff >/dev/null || ! command -v man >/dev/null; then
    echo "groff or man is not installed (scripts/install_deps.sh installs them): manual pages not checked"
    [ $fail -eq 0 ] && exit 77
    exit 1
fi
for name in brixgen brixmap; do
    page="$prefix/share/man/man1/$name.1.gz"
    warnings=$(gzip -dc "$page" | groff -man -wall -z 2>&1)
    [ -z "$warnings" ] || { echo "--- $name.1, groff -wall:"; echo "$warnings"; fail=1; }
    for width in 80 60; do
        text=$(MANWIDTH=$width MANPAGER=cat man --warnings=all -l "$page" 2>"$prefix/man.err")
        if [ -s "$prefix/man.err" ]; then
            echo "--- $name.1, man -l at width $width:"
            cat "$prefix/man.err"
            fail=1
        fi
        for section in NAME SYNOPSIS OPTIONS FILES "EXIT STATUS" EXAMPLES; do
            grep -q "^$section" <<<"$text" || {
                echo "--- $name.1: no section $section at width $width"
                fail=1
            }
        done
    done
done
exit $fail
