// The design behind examples/soc, as far as its hdl paths reach: each register is a scope
// holding one signal per field. The shared mailbox's path is its type's, below the bridge
// block's own path.
module soc_ex_mailbox_q;
    logic [31:0] data_q;
endmodule

module soc_ex_mailbox;
    soc_ex_mailbox_q mbox_q ();
endmodule

module soc_ex_bridge_ctrl;
    logic enable_q;
    logic [7:0] timeout_q;
endmodule

module soc_ex_dbg_status;
    logic busy_q;
    logic [3:0] errors_q;
endmodule

module soc_ex_bridge;
    soc_ex_bridge_ctrl ctrl_q ();
    soc_ex_dbg_status dbg_status_q ();
    soc_ex_mailbox bridge ();
endmodule

module soc_ex_tmr_ctrl;
    logic run_q, oneshot_q;
    logic [7:0] prescale_q;
endmodule

module soc_ex_tmr_count;
    logic [31:0] count_q;
endmodule

module soc_ex_compare;
    logic [31:0] match_q;
endmodule

module soc_ex_timer;
    soc_ex_tmr_ctrl ctrl_q ();
    soc_ex_tmr_count count_q ();
    soc_ex_compare cmp0_q (), cmp1_q (), cmp2_q ();
endmodule

module soc_ex_dut;
    soc_ex_bridge u_bridge ();
    soc_ex_timer u_tmr0 (), u_tmr1 ();
    soc_ex_timer u_tarr0 (), u_tarr1 (), u_tarr2 (), u_tarr3 ();
endmodule
