// The design behind tests/golden/backdoor_registers/top_regfile_array_field_order.
module tb_bank;
    logic [15:0] r_a[2], r_b[2];
endmodule

module tb_dut;
    tb_bank bk0 ();
    tb_bank bk1 ();
    logic [31:0] mbox_q;
    logic [31:0] m_q[16];
    logic busy_q;
    logic [3:0] clr_q;
endmodule
