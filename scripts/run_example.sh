#!/usr/bin/env bash
# Installs what is missing, builds brixgen and runs it on the UART example, with backdoor
# classes.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install_deps.sh
cmake -S . -B build/release -DCMAKE_BUILD_TYPE=Release -DBRIX_TESTS=OFF >/dev/null
cmake --build build/release -j "$(nproc)"
cd examples/uart
../../build/release/brixgen -l sv -t uart -b uart.brix
