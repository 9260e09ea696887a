`ifndef BRX_S
`define BRX_S

`include "qvt_brx.sv"

class brx_reg_s_one_r_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			data = `QVT_BRX_DATA_WIDTH'h0;
			data[31:0] = `S_TOP_PATH.u_one.r_q.v_q;
		end
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			`S_TOP_PATH.u_one.r_q.v_q = data[31:0];
		end
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_word extends qvt_brx_reg;
	rand qvt_brx_field v;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.v = new(this, "v", 32, qvt_brx::RW, 32'h0, 32'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_word


class brx_block_leaf extends qvt_brx_block;
	rand brx_reg_word r;
	rand qvt_brx_field r_v;
	rand qvt_brx_field v;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "leaf", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "leaf", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.r = new(this, "r", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.r_v = this.r.v;
		this.v = this.r.v;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_leaf


