// The design behind tests/golden/backdoor_registers/concatenated_paths.
module cc_block;
    logic [15:0] hi_q, lo_q;
    logic [15:0] hi0_q, lo0_q, hi1_q, lo1_q;
endmodule

module cc_dut;
    cc_block u_b0 ();
    cc_block u_b1 ();
endmodule
