#!/usr/bin/env bash
# Compiles the connector modules of the VHDL backdoor golden cases with the backdoor classes
# of their models, against the designs listed in vhdl/designs. The classes reach the
# connector's registers through <TOP>_VHDL_BKDR_CONNECTOR; the connector's `$hdl_xmr` becomes
# the stand-in task of vhdl/hdl_xmr.sv, which is the only change made to it.
#
#   vhdl_connectors.sh <source root>
set -u
root=$(readlink -f "$1")
here="$root/tests/lint"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

failed=0
count=0
while read -r name design; do
    case_dir="$root/tests/golden_vhdl/$name"
    for conn in "$case_dir"/expected/files/brx_vhdl_bkdrs_*.v; do
        top=$(sed -n '1s/^module brx_\(.*\)_vhdl_bkdr_connector;$/\1/p' "$conn")
        uc=${top^^}
        sed 's/\$hdl_xmr(/hdl_xmr(/' "$conn" >"$work/connector.sv"
        {
            echo '`include "qvt_brx.sv"'
            awk '/^class brx_(reg|mem)_.*_bkdr extends/ { keep = 1 } keep; /^endclass/ { keep = 0 }' \
                "$case_dir/expected/backdoor.sv"
        } >"$work/classes.sv"
        count=$((count + 1))
        if ! (cd "$work" && verilator --lint-only -Wno-WIDTH +define+QVT_BRX_DATA_WIDTH=256 \
            -I"$here" --top-module tb "+define+${uc}_TOP_PATH=tb.dut" \
            "+define+${uc}_VHDL_BKDR_CONNECTOR=tb.conn" "$here/vhdl/hdl_xmr.sv" classes.sv \
            connector.sv "$here/vhdl/$design") >"$work/log" 2>&1; then
            echo "--- $name"
            cat "$work/log"
            failed=$((failed + 1))
        fi
    done
done < <(grep -v '^#' "$here/vhdl/designs")
echo "linted $count connectors"
[ $count -gt 0 ] && [ $failed -eq 0 ]
