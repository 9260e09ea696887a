// The design behind tests/golden_vhdl/connector/nested_arrays.
module nested_rf;
    logic [7:0] r_q;
endmodule

module nested_blk;
    nested_rf rf[0:1] ();
    logic [15:0] ram_q[0:3];
endmodule

module nested_sub;
    nested_blk u_blk[0:1] ();
endmodule

module nested_dut;
    nested_sub u_sub[0:1] ();
endmodule

module tb;
    nested_dut dut ();
    brx_top_vhdl_bkdr_connector conn ();
endmodule
