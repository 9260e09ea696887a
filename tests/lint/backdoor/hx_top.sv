// The design behind tests/golden/hx_backdoor/worked_system_block_array.
module hx_top_b;
    logic [31:0] r_q;
    logic [31:0] mem_q[16];
endmodule

module hx_top_dut;
    hx_top_b u_b0 ();
    hx_top_b u_b1 ();
endmodule
