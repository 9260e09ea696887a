# Sourced by the benchmarks: from the repository's root, sets `bin` to the brixgen binary
# given as $1 or, without one, to a release build made in build/bench; and `work` to a
# scratch folder removed on exit.
cd "$(dirname "${BASH_SOURCE[0]}")/.."
bin=${1:-}
if [ -z "$bin" ]; then
    cmake -S . -B build/bench -DCMAKE_BUILD_TYPE=Release -DBRIX_TESTS=OFF >/dev/null
    cmake --build build/bench -j2 --target brixgen >/dev/null
    bin=build/bench/brixgen
fi
bin=$(readlink -f "$bin")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
