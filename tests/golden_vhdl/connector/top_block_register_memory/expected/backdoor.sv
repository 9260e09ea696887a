class brx_reg_top_r_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		data = `TOP_VHDL_BKDR_CONNECTOR.__u_regs__r_q__ip;
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		`TOP_VHDL_BKDR_CONNECTOR.__u_regs__r_q__op = data;
		status = qvt_rw::IS_OK;
	endtask
endclass
class brx_mem_top_m_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `TOP_VHDL_BKDR_CONNECTOR.__u_mem__ram__ip[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`TOP_VHDL_BKDR_CONNECTOR.__u_mem__ram__op[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass
		begin
			brx_reg_top_r_bkdr bkdr = new;
			this.r.set_backdoor(bkdr);
		end
		begin
			brx_mem_top_m_bkdr bkdr = new;
			this.m.set_backdoor(bkdr);
		end
