class brx_reg_top_sub_blk_rf_r_bkdr extends qvt_brx_reg_backdoor;
	int sub;
	int blk;
	int rf;

	function new(int sub, int blk, int rf);
		this.sub = sub;
		this.blk = blk;
		this.rf = rf;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		data = `TOP_VHDL_BKDR_CONNECTOR.__u_sub__u_blk__rf__r_q__ip[sub][blk][rf];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		`TOP_VHDL_BKDR_CONNECTOR.__u_sub__u_blk__rf__r_q__op[sub][blk][rf] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass
class brx_mem_top_subX0X_blkX0X_m_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `TOP_VHDL_BKDR_CONNECTOR.__u_subX0X__u_blkX0X__ram_q__ip[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`TOP_VHDL_BKDR_CONNECTOR.__u_subX0X__u_blkX0X__ram_q__op[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass
class brx_mem_top_subX0X_blkX1X_m_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `TOP_VHDL_BKDR_CONNECTOR.__u_subX0X__u_blkX1X__ram_q__ip[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`TOP_VHDL_BKDR_CONNECTOR.__u_subX0X__u_blkX1X__ram_q__op[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass
class brx_mem_top_subX1X_blkX0X_m_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `TOP_VHDL_BKDR_CONNECTOR.__u_subX1X__u_blkX0X__ram_q__ip[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`TOP_VHDL_BKDR_CONNECTOR.__u_subX1X__u_blkX0X__ram_q__op[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass
class brx_mem_top_subX1X_blkX1X_m_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `TOP_VHDL_BKDR_CONNECTOR.__u_subX1X__u_blkX1X__ram_q__ip[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`TOP_VHDL_BKDR_CONNECTOR.__u_subX1X__u_blkX1X__ram_q__op[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass
		foreach (this.sub[i0]) begin
			foreach (this.sub[i0].blk[i1]) begin
				foreach (this.sub[i0].blk[i1].rf[i2]) begin
					brx_reg_top_sub_blk_rf_r_bkdr bkdr = new(i0, i1, i2);
					this.sub[i0].blk[i1].rf[i2].r.set_backdoor(bkdr);
				end
			end
		end
		begin
			brx_mem_top_subX0X_blkX0X_m_bkdr bkdr = new;
			this.sub[0].blk[0].m.set_backdoor(bkdr);
		end
		begin
			brx_mem_top_subX0X_blkX1X_m_bkdr bkdr = new;
			this.sub[0].blk[1].m.set_backdoor(bkdr);
		end
		begin
			brx_mem_top_subX1X_blkX0X_m_bkdr bkdr = new;
			this.sub[1].blk[0].m.set_backdoor(bkdr);
		end
		begin
			brx_mem_top_subX1X_blkX1X_m_bkdr bkdr = new;
			this.sub[1].blk[1].m.set_backdoor(bkdr);
		end
