// The design behind tests/golden/backdoor_registers/field_paths_read_only.
module fld_mixed;
    logic [2:0] w_q;
    logic [4:0] r_q;
endmodule

module fld_arr;
    logic [7:0] f0_q, f1_q;
endmodule

module fld_dut;
    logic [3:0] b_q;
    logic [15:0] whole_q;
    fld_mixed mixed_q ();
    logic [1:0] p_q;
    logic [3:0] q_q;
    fld_arr arr0_q ();
    fld_arr arr1_q ();
endmodule
