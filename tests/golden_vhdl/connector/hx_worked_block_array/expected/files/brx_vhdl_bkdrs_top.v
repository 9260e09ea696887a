module brx_top_vhdl_bkdr_connector;
	reg[31:0] __u_blk__r_q__ip[0:1];
	reg[31:0] __u_blk__r_q__op[0:1];

	initial begin
		$hdl_xmr("tb.dut.u_blk[0].r_q", "__u_blk__r_q__ip[0]");
		$hdl_xmr("tb.dut.u_blk[1].r_q", "__u_blk__r_q__ip[1]");
		$hdl_xmr("__u_blk__r_q__op[0]", "tb.dut.u_blk[0].r_q");
		$hdl_xmr("__u_blk__r_q__op[1]", "tb.dut.u_blk[1].r_q");
	end
endmodule
