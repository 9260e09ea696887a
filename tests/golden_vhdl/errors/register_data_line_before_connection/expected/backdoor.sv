class brx_reg_top_blk_rf_m_bkdr extends qvt_brx_reg_backdoor;
	int blk;

	function new(int blk);
		this.blk = blk;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		data = `TOP_VHDL_BKDR_CONNECTOR.__u_blk__mbox_q__ip[blk][rf];
