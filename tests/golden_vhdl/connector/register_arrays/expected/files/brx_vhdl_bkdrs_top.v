module brx_top_vhdl_bkdr_connector;
	reg[7:0] __q__ip[0:1];
	reg[7:0] __q__ip[0:1];
	reg[7:0] __q__op[0:1];
	reg[7:0] __q__op[0:1];
	reg[7:0] __u0__ip;
	reg[7:0] __u1__ip;
	reg[7:0] __u0__op;
	reg[7:0] __u1__op;

	initial begin
		$hdl_xmr("tb.dut.q[0]", "__q__ip[0]");
		$hdl_xmr("tb.dut.q[1]", "__q__ip[1]");
		$hdl_xmr("tb.dut.q[0]", "__q__ip[0]");
		$hdl_xmr("tb.dut.q[1]", "__q__ip[1]");
		$hdl_xmr("__q__op[0]", "tb.dut.q[0]");
		$hdl_xmr("__q__op[1]", "tb.dut.q[1]");
		$hdl_xmr("__q__op[0]", "tb.dut.q[0]");
		$hdl_xmr("__q__op[1]", "tb.dut.q[1]");
		$hdl_xmr("tb.dut.u0", "__u0__ip");
		$hdl_xmr("tb.dut.u1", "__u1__ip");
		$hdl_xmr("__u0__op", "tb.dut.u0");
		$hdl_xmr("__u1__op", "tb.dut.u1");
	end
endmodule
