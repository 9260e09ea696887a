// The design behind examples/uart, as far as its hdl paths reach: each register is a scope
// holding one signal per field.
module uart_ctrl;
    logic en_q;
    logic [1:0] parity_q;
    logic stop_bits_q;
    logic [15:0] baud_div_q;
endmodule

module uart_status;
    logic tx_empty_q, tx_full_q, rx_empty_q, rx_full_q, overrun_q, frame_err_q;
endmodule

module uart_scratch;
    logic [31:0] value_q;
endmodule

module uart_rxdata;
    logic [7:0] data_q;
endmodule

module uart_chmode;
    logic [3:0] mode_q;
    logic [3:0] rate_q;
endmodule

module uart_chcount;
    logic [15:0] count_q;
endmodule

module uart_channel;
    uart_chmode chmode_q ();
    uart_chcount count_q ();
endmodule

module uart_dut;
    uart_ctrl ctrl_q ();
    uart_status status_q ();
    uart_scratch scratch0_q (), scratch1_q (), scratch2_q (), scratch3_q ();
    uart_rxdata rx_q0 (), rx_q1 (), rx_q2 (), rx_q3 (), rx_q4 (), rx_q5 (), rx_q6 (), rx_q7 ();
    logic [31:0] fifo_mem[64];
    uart_channel ch0 ();
    uart_channel ch1 ();
endmodule
