#!/usr/bin/env bash
# Builds the Debian package with cpack, checks its control data and contents, and installs
# it with dpkg into a throw-away root whose package database holds this machine's
# packages that it depends on, so that dpkg checks those dependencies for real.
#
#   package_test.sh <build folder> <brixgen binary>
set -u
build=$(readlink -f "$1")
bin=$(readlink -f "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for tool in cpack dpkg dpkg-deb dpkg-shlibdeps file; do
    if ! command -v $tool >/dev/null; then
        echo "$tool is not installed (scripts/install_deps.sh installs it): package not checked"
        exit 77
    fi
done

if ! (cd "$work" && cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work/out") \
    >"$work/cpack.log" 2>&1; then
    cat "$work/cpack.log"
    exit 1
fi
debs=("$work"/out/*.deb)
[ ${#debs[@]} -eq 1 ] && [ -f "${debs[0]}" ] || { echo "--- cpack made no single .deb"; exit 1; }
deb=${debs[0]}
fail=0

version=$("$bin" -v | sed -n 's/^brixgen version \([0-9.]*\) .*/\1/p')
[ "$(dpkg-deb -f "$deb" Package)" = brixgen ] || { echo "--- package name"; fail=1; }
[ "$(dpkg-deb -f "$deb" Version)" = "$version" ] ||
    { echo "--- package version $(dpkg-deb -f "$deb" Version), brixgen -v says $version"; fail=1; }
depends=$(dpkg-deb -f "$deb" Depends)
grep -Eq '(^|, )libtcl8\.6( |,|$)' <<<"$depends" ||
    { echo "--- no dependency on the Tcl 8.6 library: $depends"; fail=1; }

dpkg-deb -c "$deb" | awk '{ print $6 }' >"$work/contents"
for f in ./usr/bin/brixgen ./usr/share/man/man1/brixgen.1.gz ./usr/share/doc/brixgen/guide.md \
    ./usr/bin/brixmap ./usr/share/man/man1/brixmap.1.gz ./usr/share/doc/brixgen/copyright \
    ./usr/share/doc/brixgen/examples/uart/uart.brix; do
    grep -qx "$f" "$work/contents" || { echo "--- not in the package: $f"; fail=1; }
done

# Debian's own checks of a package: every error and warning counts.
if command -v lintian >/dev/null; then
    lintian --tag-display-limit 0 "$deb" 2>&1 | grep -v 'root privileges' >"$work/lintian"
    if grep -q '^[EW]:' "$work/lintian"; then
        echo "--- lintian:"
        cat "$work/lintian"
        fail=1
    fi
fi

# A package database with only the dependencies, copied from this machine's.
root="$work/root"
mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
: >"$root/var/lib/dpkg/available"
for dep in $(tr ',|' '\n\n' <<<"$depends" | sed 's/(.*)//; s/ //g' | sort -u); do
    dpkg-query -s "$dep" >>"$root/var/lib/dpkg/status" 2>/dev/null &&
        echo >>"$root/var/lib/dpkg/status"
    : >"$root/var/lib/dpkg/info/$dep.list"
done
if ! dpkg --root="$root" --log=/dev/null --force-not-root -i "$deb" >"$work/dpkg.log" 2>&1; then
    echo "--- dpkg -i into a throw-away root failed:"
    cat "$work/dpkg.log"
    exit 1
fi
cp -r "$root/usr/share/doc/brixgen/examples/uart" "$work/run"
eval "set -- $(cat "$work/run/brixgen.args")"
(cd "$work/run" && "$root/usr/bin/brixgen" "$@" >"$work/run.out" 2>"$work/run.err")
status=$?
if [ $status -ne 0 ] || [ -s "$work/run.err" ] || [ ! -s "$work/run/brx_uart.sv" ]; then
    echo "--- the packaged brixgen on the uart example: status $status"
    cat "$work/run.err"
    fail=1
fi
exit $fail
