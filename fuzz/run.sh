#!/usr/bin/env bash
# Fuzzes one target for a bounded time with AFL++, on a build with AddressSanitizer and
# UndefinedBehaviorSanitizer.
#
#   fuzz/run.sh TARGET SECONDS [OUTDIR]
#
# TARGET is `whole` (the program on a description file, -b -c baf, sv or hx), `parse` (the
# scanner and grammar on a pure description) or `gen` (pure descriptions that parse,
# through the checks and generators). Crashes and hangs (runs over 10 s) are kept under
# OUTDIR/default/crashes and OUTDIR/default/hangs (OUTDIR defaults to build/fuzz-out/TARGET).
# Exits 1 when it found any, 0 otherwise.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(dirname "$here")
target=${1:?target: whole, parse or gen}
seconds=${2:?seconds}
out=$(readlink -m "${3:-$root/build/fuzz-out/$target}")

case "$target" in
whole) corpus=$here/corpus/whole dict=$here/dict/brix.dict ;;
parse | gen) corpus=$here/corpus/pure dict=$here/dict/pure.dict ;;
*) echo "fuzz/run.sh: unknown target '$target' (whole, parse or gen)" >&2; exit 2 ;;
esac

command -v afl-fuzz >/dev/null || { echo "fuzz/run.sh: afl-fuzz is missing (Debian package afl++)" >&2; exit 2; }

build=$root/build/fuzz-afl
if [ ! -x "$build/fuzz/brix_fuzz" ] || [ -n "$(find "$root/src" "$here" -newer "$build/fuzz/brix_fuzz" -name '*.[chly]*' -print -quit)" ]; then
    CC=afl-clang-fast CXX=afl-clang-fast++ cmake -S "$root" -B "$build" \
        -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBRIX_SANITIZE=ON -DBRIX_TESTS=OFF -DBRIX_FUZZ=ON \
        >/dev/null
    AFL_QUIET=1 cmake --build "$build" -j "$(nproc)" --target brix_fuzz >/dev/null
fi

rm -rf "$out"
mkdir -p "$out/work"
started=$(mktemp)
export AFL_SKIP_CPUFREQ=1 AFL_I_DONT_CARE_ABOUT_MISSING_CRASHES=1 AFL_NO_UI=1 AFL_NO_AFFINITY=1
export AFL_SKIP_CRASHES=0 AFL_NO_STARTUP_CALIBRATION=1
export ASAN_OPTIONS=abort_on_error=1:symbolize=0:detect_leaks=0:allocator_may_return_null=1:max_allocation_size_mb=1024
export UBSAN_OPTIONS=halt_on_error=1:abort_on_error=1:print_stacktrace=1
(cd "$out/work" && afl-fuzz -i "$corpus" -o "$out" -x "$dict" -t 10000 -m none -s 1 \
    -V "$seconds" -- "$build/fuzz/brix_fuzz" "$target" @@ >"$out/afl.log" 2>&1) || {
    echo "fuzz/run.sh: afl-fuzz failed, see $out/afl.log" >&2
    tail -20 "$out/afl.log" >&2
    exit 2
}
# Temporary pure descriptions of runs that the fuzzer stopped.
find /tmp -maxdepth 1 -name 'qvt_*_pure_brix' -newer "$started" -delete 2>/dev/null || true
rm -f "$started"

stats=$out/default/fuzzer_stats
value() { sed -n "s/^$1 *: *//p" "$stats"; }
crashes=$(find "$out/default/crashes" -type f ! -name README.txt | wc -l)
# A hang counts on inputs under 64 KiB; bigger inputs may take their time.
hangs=$(find "$out/default/hangs" -type f ! -name README.txt -size -64k | wc -l)
echo "fuzz $target: ${seconds}s, execs $(value execs_done), corpus $(value corpus_count)," \
    "edges $(value edges_found)/$(value total_edges), crashes $crashes, hangs $hangs"
if [ "$crashes" -ne 0 ] || [ "$hangs" -ne 0 ]; then
    echo "fuzz $target: findings under $out/default/crashes and $out/default/hangs" >&2
    exit 1
fi
