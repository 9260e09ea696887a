// The design behind examples/soc, as far as its hdl paths reach. The shared mailbox's
// path is its type's, below the bridge block's own path.
module soc_ex_mailbox;
    logic [31:0] mbox_q;
endmodule

module soc_ex_bridge;
    logic [31:0] ctrl_q;
    logic [15:0] dbg_status_q;
    soc_ex_mailbox bridge ();
endmodule

module soc_ex_timer;
    logic [31:0] ctrl_q, count_q;
    logic [31:0] cmp0_q, cmp1_q, cmp2_q;
endmodule

module soc_ex_dut;
    soc_ex_bridge u_bridge ();
    soc_ex_timer u_tmr0 (), u_tmr1 ();
    soc_ex_timer u_tarr0 (), u_tarr1 (), u_tarr2 (), u_tarr3 ();
endmodule
