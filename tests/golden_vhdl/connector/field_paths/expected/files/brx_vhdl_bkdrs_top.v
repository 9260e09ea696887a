module brx_top_vhdl_bkdr_connector;
	reg[0:0] __u_sub__en_q__ip;
	reg[2:0] __u_sub__mode_q__ip;
	reg[3:0] __u_sub__st_q__ip;
	reg[0:0] __u_sub__en_q__op;
	reg[2:0] __u_sub__mode_q__op;
	reg[3:0] __u_subu_cfg__a_q__ip;
	reg[3:0] __u_subu_cfg__b_q__ip;
	reg[3:0] __u_subu_cfg__a_q__op;
	reg[3:0] __u_subu_cfg__b_q__op;

	initial begin
		$hdl_xmr("tb.dut.u_sub.en_q", "tb.conn.__u_sub__en_q__ip");
		$hdl_xmr("tb.dut.u_sub.mode_q", "tb.conn.__u_sub__mode_q__ip");
		$hdl_xmr("tb.dut.u_sub.st_q", "tb.conn.__u_sub__st_q__ip");
		$hdl_xmr("tb.conn.__u_sub__en_q__op", "tb.dut.u_sub.en_q");
		$hdl_xmr("tb.conn.__u_sub__mode_q__op", "tb.dut.u_sub.mode_q");
		$hdl_xmr("tb.dut.u_subu_cfg.a_q", "tb.conn.__u_subu_cfg__a_q__ip");
		$hdl_xmr("tb.dut.u_subu_cfg.b_q", "tb.conn.__u_subu_cfg__b_q__ip");
		$hdl_xmr("tb.conn.__u_subu_cfg__a_q__op", "tb.dut.u_subu_cfg.a_q");
		$hdl_xmr("tb.conn.__u_subu_cfg__b_q__op", "tb.dut.u_subu_cfg.b_q");
	end
endmodule
