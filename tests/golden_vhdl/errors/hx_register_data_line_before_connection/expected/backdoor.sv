class brx_reg_top_blk_rf_m_bkdr extends qvt_brx_reg_backdoor {
	integer blk;

	task new(integer blk) {
		this.blk = blk;
	}

	virtual function qvt_rw::status_e read_t(var bit [QVT_BRX_DATA_WIDTH-1:0] data, 
                    integer data_id, integer scenario_id, integer stream_id) {
		bit status = 0;
		brx_reg_top_blk_rf_m_bkdr_rd(status, data, blk);
		if (status == 0)
			read_t = qvt_rw::IS_OK;
		else
			read_t = qvt_rw::ERROR;
	}
