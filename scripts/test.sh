#!/usr/bin/env bash
# Builds and runs the whole suite twice: a release build, and a build under
# AddressSanitizer and UndefinedBehaviorSanitizer; then the golden cases and unit tests of a
# release build without Tcl's private headers; then fuzzes each target for a minute.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install_deps.sh
jobs=$(nproc)
status=0
for cfg in release asan; do
    dir=build/test-$cfg
    flags=(-DCMAKE_BUILD_TYPE=Release)
    [ "$cfg" = asan ] && flags=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DBRIX_SANITIZE=ON)
    cmake -S . -B "$dir" "${flags[@]}" >/dev/null
    cmake --build "$dir" -j "$jobs"
    echo "== $cfg tests"
    ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
        ctest --test-dir "$dir" -j "$jobs" --output-on-failure || status=1
    # The unit tests also pass one after another in a single process.
    echo "== $cfg unit tests in one process"
    ASAN_OPTIONS=detect_leaks=0 "$dir/tests/brix_unit_tests" --gtest_brief=1 || status=1
done
# A release build without Tcl's private headers, which takes the public paths: its golden
# cases and unit tests.
dir=build/test-tcl-public
cmake -S . -B "$dir" -DCMAKE_BUILD_TYPE=Release -DBRIX_TCL_PRIVATE=OFF >/dev/null
cmake --build "$dir" -j "$jobs"
echo "== release tests without Tcl's private headers"
ctest --test-dir "$dir" -j "$jobs" --output-on-failure -R '^golden\.|^[A-Z][A-Za-z]*\.' || status=1
# A bounded fuzzing run of each target on the fixed seed corpora; any crash or hang fails.
echo "== fuzz smoke"
for target in whole parse gen; do
    bash fuzz/run.sh "$target" 60 || status=1
done
exit $status
