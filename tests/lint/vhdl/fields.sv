// The design behind tests/golden_vhdl/connector/field_paths. The fields below a register's
// own path hang below the block's path and the register's, joined without a dot.
module fields_sub;
    logic [0:0] en_q;
    logic [2:0] mode_q;
    logic [3:0] st_q;
endmodule

module fields_cfg;
    logic [3:0] a_q, b_q;
endmodule

module fields_dut;
    fields_sub u_sub ();
    fields_cfg u_subu_cfg ();
endmodule

module tb;
    fields_dut dut ();
    brx_top_vhdl_bkdr_connector conn ();
endmodule
