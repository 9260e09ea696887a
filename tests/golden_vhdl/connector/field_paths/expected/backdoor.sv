class brx_reg_top_sub_ctl_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			data = `QVT_BRX_DATA_WIDTH'h0;
			data[0:0] = `TOP_VHDL_BKDR_CONNECTOR.__u_sub__en_q__ip;
			data[3:1] = `TOP_VHDL_BKDR_CONNECTOR.__u_sub__mode_q__ip;
			data[7:4] = `TOP_VHDL_BKDR_CONNECTOR.__u_sub__st_q__ip;
		end
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			`TOP_VHDL_BKDR_CONNECTOR.__u_sub__en_q__op = data[0:0];
			`TOP_VHDL_BKDR_CONNECTOR.__u_sub__mode_q__op = data[3:1];
		end
		status = qvt_rw::IS_OK;
	endtask
endclass
class brx_reg_top_sub_cfg_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			data = `QVT_BRX_DATA_WIDTH'h0;
			data[3:0] = `TOP_VHDL_BKDR_CONNECTOR.__u_subu_cfg__a_q__ip;
			data[7:4] = `TOP_VHDL_BKDR_CONNECTOR.__u_subu_cfg__b_q__ip;
		end
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			`TOP_VHDL_BKDR_CONNECTOR.__u_subu_cfg__a_q__op = data[3:0];
			`TOP_VHDL_BKDR_CONNECTOR.__u_subu_cfg__b_q__op = data[7:4];
		end
		status = qvt_rw::IS_OK;
	endtask
endclass
		begin
			brx_reg_top_sub_ctl_bkdr bkdr = new;
			this.sub.ctl.set_backdoor(bkdr);
		end
		begin
			brx_reg_top_sub_cfg_bkdr bkdr = new;
			this.sub.cfg.set_backdoor(bkdr);
		end
