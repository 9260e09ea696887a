class brx_reg_top_a_bkdr extends qvt_brx_reg_backdoor;
	int a;

	function new(int a);
		this.a = a;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (a)
		0:	 data = `TOP_VHDL_BKDR_CONNECTOR.__q__ip[a];
		1:	 data = `TOP_VHDL_BKDR_CONNECTOR.__q__ip[a];
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (a)
		0:	 `TOP_VHDL_BKDR_CONNECTOR.__q__op[a] = data;
		1:	 `TOP_VHDL_BKDR_CONNECTOR.__q__op[a] = data;
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass
		foreach (this.a[i0]) begin
			brx_reg_top_a_bkdr bkdr = new(i0);
			this.a[i0].set_backdoor(bkdr);
		end
