// The design behind tests/golden/backdoor_registers/array_registers_upper_case_top.
module mychip_dut;
    logic [31:0] sc_q;
    logic [31:0] pct_q0, pct_q1;
    logic [31:0] brk_q[3];
    logic [31:0] mem_q[16];
    logic [15:0] rom_q[8];
endmodule
