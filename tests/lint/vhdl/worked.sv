// The design behind tests/golden_vhdl/connector/worked_block_array.
module worked_blk;
    logic [31:0] r_q;
endmodule

module worked_dut;
    worked_blk u_blk[0:1] ();
endmodule

module tb;
    worked_dut dut ();
    brx_top_vhdl_bkdr_connector conn ();
endmodule
