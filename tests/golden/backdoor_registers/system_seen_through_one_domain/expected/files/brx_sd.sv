`ifndef BRX_SD
`define BRX_SD

`include "qvt_brx.sv"

class brx_reg_sd_m_b_r_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		data = `SD_TOP_PATH.u_m.u_b.r_q;
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		`SD_TOP_PATH.u_m.u_b.r_q = data;
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


class brx_sys_mid extends qvt_brx_sys;
	rand brx_block_leaf a;
	rand brx_block_leaf b;



	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "mid", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "mid", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "p", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(4, qvt_brx::LITTLE_ENDIAN, "q");
		this.a = new(cover_on, "a", this, `QVT_BRX_ADDR_WIDTH'h0);
		this.register_block(this.a, "", "p", `QVT_BRX_ADDR_WIDTH'h0);
		this.b = new(cover_on, "b", this, `QVT_BRX_ADDR_WIDTH'h0);
		this.register_block(this.b, "", "q", `QVT_BRX_ADDR_WIDTH'h0);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_mid


class brx_sys_sd extends qvt_brx_sys;
	rand brx_sys_mid m;


	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "sd", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "sd", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.m = new(cover_on, "m", this, `QVT_BRX_ADDR_WIDTH'h0);
		this.register_subsys(this.m, "q", "", `QVT_BRX_ADDR_WIDTH'h0);

		//
		// Setting up backdoor access...
		//
		begin
			brx_reg_sd_m_b_r_bkdr bkdr = new;
			this.m.b.r.set_backdoor(bkdr);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_sd


`endif
