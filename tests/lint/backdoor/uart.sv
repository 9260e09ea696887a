// The design behind examples/uart, as far as its hdl paths reach.
module uart_channel;
    logic [3:0] mode_q;
    logic [3:0] rate_q;
    logic [31:0] count_q;
endmodule

module uart_dut;
    logic [31:0] ctrl_q;
    logic [31:0] status_q;
    logic [31:0] scratch0_q, scratch1_q, scratch2_q, scratch3_q;
    logic [31:0] rx_q0, rx_q1, rx_q2, rx_q3, rx_q4, rx_q5, rx_q6, rx_q7;
    logic [31:0] fifo_mem[64];
    uart_channel ch0 ();
    uart_channel ch1 ();
endmodule
