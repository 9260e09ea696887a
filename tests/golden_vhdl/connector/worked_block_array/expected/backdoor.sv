class brx_reg_top_blk_r_bkdr extends qvt_brx_reg_backdoor;
	int blk;

	function new(int blk);
		this.blk = blk;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		data = `TOP_VHDL_BKDR_CONNECTOR.__u_blk__r_q__ip[blk];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		`TOP_VHDL_BKDR_CONNECTOR.__u_blk__r_q__op[blk] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass
		foreach (this.blk[i0]) begin
			brx_reg_top_blk_r_bkdr bkdr = new(i0);
			this.blk[i0].r.set_backdoor(bkdr);
		end
