// The design behind tests/golden_vhdl/connector/register_array_names.
module names_dut;
    logic [7:0] u0, u1;
endmodule

module tb;
    names_dut dut ();
    brx_top_vhdl_bkdr_connector conn ();
endmodule
