module brx_top_vhdl_bkdr_connector;
	reg[7:0] __q__ip[0:1];
	reg[7:0] __q__ip[0:1];
	reg[7:0] __q__op[0:1];
	reg[7:0] __q__op[0:1];

	initial begin
		$hdl_xmr("tb.dut.q[0]", "__q__ip[0]");
		$hdl_xmr("tb.dut.q[1]", "__q__ip[1]");
		$hdl_xmr("tb.dut.q[0]", "__q__ip[0]");
		$hdl_xmr("tb.dut.q[1]", "__q__ip[1]");
		$hdl_xmr("__q__op[0]", "tb.dut.q[0]");
		$hdl_xmr("__q__op[1]", "tb.dut.q[1]");
		$hdl_xmr("__q__op[0]", "tb.dut.q[0]");
		$hdl_xmr("__q__op[1]", "tb.dut.q[1]");
	end
endmodule
