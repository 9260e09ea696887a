#!/usr/bin/env bash
# Builds a simulation of the UART example's design with the backdoor classes of its
# generated model (against the stand-in library) and runs the testbench beside it. Only
# the backdoor classes are taken: the front end's simulator cannot yet pass a derived
# class where its base is expected, which the rest of a model does throughout.
#
#   backdoor_sim.sh <source root> <brixgen>
#
# Exits 77 (skipped) when verilator is missing.
set -eu
root=$(readlink -f "$1")
bin=$(readlink -f "$2")
here="$root/tests/lint"
if ! command -v verilator >/dev/null; then
    echo "SKIPPED: verilator is not installed, the backdoor simulation did not run"
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$root/examples/uart" "$work/uart"
(cd "$work/uart" && "$bin" -q -b -l sv -t uart -o model uart.brix) >"$work/gen.log" 2>&1 || {
    cat "$work/gen.log"
    exit 1
}
{
    echo '`include "qvt_brx.sv"'
    awk '/^class brx_(reg|mem)_.*_bkdr extends/ { keep = 1 } keep; /^endclass/ { keep = 0 }' \
        "$work/uart/model.sv"
} >"$work/model.sv"
grep -q '^class brx_reg_uart_ctrl_bkdr' "$work/model.sv" || {
    echo "no backdoor classes in the generated model"
    exit 1
}
cd "$work"
verilator --binary -Wno-WIDTH -Wno-fatal --top-module tb -I"$here" +define+UART_TOP_PATH=tb.dut \
    model.sv "$here/backdoor/uart.sv" "$here/backdoor/tb_uart.sv" -o tb >build.log 2>&1 || {
    cat build.log
    exit 1
}
./obj_dir/tb
