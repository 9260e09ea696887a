// The design behind tests/golden/hx_backdoor/block_read_only_field.
module rof_dut;
    logic [15:0] stat_q;
endmodule
