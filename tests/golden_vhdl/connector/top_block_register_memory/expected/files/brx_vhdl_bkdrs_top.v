module brx_top_vhdl_bkdr_connector;
	reg[15:0] __u_regs__r_q__ip;
	reg[15:0] __u_regs__r_q__op;
	reg[7:0] __u_mem__ram__ip[0:15];
	reg[7:0] __u_mem__ram__op[0:15];

	initial begin
		$hdl_xmr("tb.dut.u_regs.r_q", "tb.conn.__u_regs__r_q__ip");
		$hdl_xmr("tb.conn.__u_regs__r_q__op", "tb.dut.u_regs.r_q");
		$hdl_xmr("tb.dut.u_mem.ram", "tb.conn.__u_mem__ram__ip");
		$hdl_xmr("tb.conn.__u_mem__ram__op", "tb.dut.u_mem.ram");
	end
endmodule
