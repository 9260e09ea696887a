// The design behind tests/golden/hx_backdoor/field_paths.
module fp_mixed;
    logic [2:0] w_q;
    logic [4:0] r_q;
endmodule

module fp_arr;
    logic [7:0] f0_q, f1_q;
endmodule

module fp_dut;
    fp_mixed mixed_q ();
    logic [3:0] lo_q, hi_q;
    fp_arr arr0_q ();
    fp_arr arr1_q ();
endmodule
