`ifndef BRX_FLD
`define BRX_FLD

`include "qvt_brx.sv"

class brx_reg_fld_ro_only_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			data = `QVT_BRX_DATA_WIDTH'h0;
			data[7:4] = `FLD_TOP_PATH.b_q;
		end
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		status = qvt_rw::ERROR;
	endtask
endclass


class brx_reg_fld_ro_only extends qvt_brx_reg;
	rand qvt_brx_field a;
	qvt_brx_field b;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 8, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.a = new(this, "a", 4, qvt_brx::RW, 4'h0, 4'hx, 0, 0, cvr);
		this.b = new(this, "b", 4, qvt_brx::RO, 4'h0, 4'hx, 4, 0, cvr);
	endfunction: new
endclass : brx_reg_fld_ro_only


class brx_reg_fld_whole_ro_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		data = `FLD_TOP_PATH.whole_q;
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		status = qvt_rw::ERROR;
	endtask
endclass


class brx_reg_fld_whole_ro extends qvt_brx_reg;
	rand qvt_brx_field x;
	qvt_brx_field y;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 16, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.x = new(this, "x", 8, qvt_brx::RW, 8'h0, 8'hx, 0, 0, cvr);
		this.y = new(this, "y", 8, qvt_brx::RO, 8'h0, 8'hx, 8, 0, cvr);
	endfunction: new
endclass : brx_reg_fld_whole_ro


class brx_reg_fld_mixed_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			data = `QVT_BRX_DATA_WIDTH'h0;
			data[2:0] = `FLD_TOP_PATH.mixed_q.w_q;
			data[12:8] = `FLD_TOP_PATH.mixed_q.r_q;
		end
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			`FLD_TOP_PATH.mixed_q.w_q = data[2:0];
		end
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_fld_mixed extends qvt_brx_reg;
	rand qvt_brx_field w;
	qvt_brx_field r;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 16, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.w = new(this, "w", 3, qvt_brx::WO, 3'h0, 3'hx, 0, 0, cvr);
		this.r = new(this, "r", 5, qvt_brx::RO, 5'h0, 5'hx, 8, 0, cvr);
	endfunction: new
endclass : brx_reg_fld_mixed


class brx_reg_fld_ltr_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			data = `QVT_BRX_DATA_WIDTH'h0;
			data[7:6] = `FLD_TOP_PATH.p_q;
			data[3:0] = `FLD_TOP_PATH.q_q;
		end
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			`FLD_TOP_PATH.p_q = data[7:6];
			`FLD_TOP_PATH.q_q = data[3:0];
		end
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_fld_ltr extends qvt_brx_reg;
	rand qvt_brx_field p;
	rand qvt_brx_field gap;
	rand qvt_brx_field q;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 8, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.p = new(this, "p", 2, qvt_brx::RW, 2'h0, 2'hx, 6, 0, cvr);
		this.gap = new(this, "gap", 2, qvt_brx::RW, 2'h0, 2'hx, 4, 0, cvr);
		this.q = new(this, "q", 4, qvt_brx::RW, 4'h0, 4'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_fld_ltr


class brx_reg_fld_arr_bkdr extends qvt_brx_reg_backdoor;
	int arr;

	function new(int arr);
		this.arr = arr;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (arr)
		0:	 begin
				data = `QVT_BRX_DATA_WIDTH'h0;
				data[7:0] = `FLD_TOP_PATH.arr0_q.f0_q;
			end
		1:	 begin
				data = `QVT_BRX_DATA_WIDTH'h0;
				data[7:0] = `FLD_TOP_PATH.arr1_q.f1_q;
			end
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (arr)
		0:	 begin
				`FLD_TOP_PATH.arr0_q.f0_q = data[7:0];
			end
		1:	 begin
				`FLD_TOP_PATH.arr1_q.f1_q = data[7:0];
			end
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_fld_arr extends qvt_brx_reg;
	rand qvt_brx_field f;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 8, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.f = new(this, "f", 8, qvt_brx::RW, 8'h0, 8'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_fld_arr


class brx_block_fld extends qvt_brx_block;
	rand brx_reg_fld_ro_only ro_only;
	rand brx_reg_fld_whole_ro whole_ro;
	rand brx_reg_fld_mixed mixed;
	rand brx_reg_fld_ltr ltr;
	rand brx_reg_fld_arr arr[2];
	rand qvt_brx_field ro_only_a;
	rand qvt_brx_field a;
	qvt_brx_field ro_only_b;
	qvt_brx_field b;
	rand qvt_brx_field whole_ro_x;
	rand qvt_brx_field x;
	qvt_brx_field whole_ro_y;
	qvt_brx_field y;
	rand qvt_brx_field mixed_w;
	rand qvt_brx_field w;
	qvt_brx_field mixed_r;
	qvt_brx_field r;
	rand qvt_brx_field ltr_p;
	rand qvt_brx_field p;
	rand qvt_brx_field ltr_gap;
	rand qvt_brx_field gap;
	rand qvt_brx_field ltr_q;
	rand qvt_brx_field q;
	rand qvt_brx_field arr_f[2];
	rand qvt_brx_field f[2];

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "fld", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "fld", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.ro_only = new(this, "ro_only", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.ro_only_a = this.ro_only.a;
		this.a = this.ro_only.a;
		this.ro_only_b = this.ro_only.b;
		this.b = this.ro_only.b;
		this.whole_ro = new(this, "whole_ro", `QVT_BRX_ADDR_WIDTH'h1, "", cover_on, 2'b11, 0);
		this.whole_ro_x = this.whole_ro.x;
		this.x = this.whole_ro.x;
		this.whole_ro_y = this.whole_ro.y;
		this.y = this.whole_ro.y;
		this.mixed = new(this, "mixed", `QVT_BRX_ADDR_WIDTH'h2, "", cover_on, 2'b11, 0);
		this.mixed_w = this.mixed.w;
		this.w = this.mixed.w;
		this.mixed_r = this.mixed.r;
		this.r = this.mixed.r;
		this.ltr = new(this, "ltr", `QVT_BRX_ADDR_WIDTH'h3, "", cover_on, 2'b11, 0);
		this.ltr_p = this.ltr.p;
		this.p = this.ltr.p;
		this.ltr_gap = this.ltr.gap;
		this.gap = this.ltr.gap;
		this.ltr_q = this.ltr.q;
		this.q = this.ltr.q;
		foreach (this.arr[i]) begin
			int J = i;
			this.arr[J] = new(this, $psprintf("arr[%0d]",J), `QVT_BRX_ADDR_WIDTH'h4+J*`QVT_BRX_ADDR_WIDTH'h1, "", cover_on, 2'b11, 0);
			this.arr_f[J] = this.arr[J].f;
			this.f[J] = this.arr[J].f;
		end

		//
		// Setting up backdoor access...
		//
		begin
			brx_reg_fld_ro_only_bkdr bkdr = new;
			this.ro_only.set_backdoor(bkdr);
		end
		begin
			brx_reg_fld_whole_ro_bkdr bkdr = new;
			this.whole_ro.set_backdoor(bkdr);
		end
		begin
			brx_reg_fld_mixed_bkdr bkdr = new;
			this.mixed.set_backdoor(bkdr);
		end
		begin
			brx_reg_fld_ltr_bkdr bkdr = new;
			this.ltr.set_backdoor(bkdr);
		end
		foreach (this.arr[i0]) begin
			brx_reg_fld_arr_bkdr bkdr = new(i0);
			this.arr[i0].set_backdoor(bkdr);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_fld


`endif
