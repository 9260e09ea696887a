// The design behind tests/golden_vhdl/connector/top_block_register_memory.
module top_block_regs;
    logic [15:0] r_q;
endmodule

module top_block_mem;
    logic [7:0] ram[0:15];
endmodule

module top_block_dut;
    top_block_regs u_regs ();
    top_block_mem u_mem ();
endmodule

module tb;
    top_block_dut dut ();
    brx_top_vhdl_bkdr_connector conn ();
endmodule
