class brx_reg_top_b_bkdr extends qvt_brx_reg_backdoor;
	int b;

	function new(int b);
		this.b = b;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (b)
		0:	 data = `TOP_VHDL_BKDR_CONNECTOR.__u0__ip;
		1:	 data = `TOP_VHDL_BKDR_CONNECTOR.__u1__ip;
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (b)
		0:	 `TOP_VHDL_BKDR_CONNECTOR.__u0__op = data;
		1:	 `TOP_VHDL_BKDR_CONNECTOR.__u1__op = data;
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass
		foreach (this.b[i0]) begin
			brx_reg_top_b_bkdr bkdr = new(i0);
			this.b[i0].set_backdoor(bkdr);
		end
