// The design behind tests/golden/hx_backdoor/output_name_option.
module gpio_dut;
    logic [31:0] dir_q;
endmodule
