// The design behind tests/golden/backdoor_registers/worked_field_paths_nested_case.
module soc_ctrl;
    logic en_q;
    logic [1:0] mode_q;
endmodule

module soc_chan;
    soc_ctrl ctrl_q ();
endmodule

module soc_dma;
    soc_chan ch0 ();
    soc_chan ch1 ();
endmodule

module soc_dut;
    soc_dma u_dma0 ();
    soc_dma u_dma1 ();
endmodule
