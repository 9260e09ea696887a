module brx_top_vhdl_bkdr_connector;
	reg[7:0] __u0__ip;
	reg[7:0] __u1__ip;
	reg[7:0] __u0__op;
	reg[7:0] __u1__op;

	initial begin
		$hdl_xmr("tb.dut.u0", "__u0__ip");
		$hdl_xmr("tb.dut.u1", "__u1__ip");
		$hdl_xmr("__u0__op", "tb.dut.u0");
		$hdl_xmr("__u1__op", "tb.dut.u1");
	end
endmodule
