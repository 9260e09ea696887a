`ifndef BRX_TB
`define BRX_TB

`include "qvt_brx.sv"

class brx_reg_tb_bk_r_bkdr extends qvt_brx_reg_backdoor;
	int bk;
	int r;

	function new(int bk, int r);
		this.bk = bk;
		this.r = r;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (bk)
			0: case (r)
			0:	 data = {
					`TB_TOP_PATH.bk0.r_a[r],
					`TB_TOP_PATH.bk0.r_b[r]
				};
			1:	 data = {
					`TB_TOP_PATH.bk0.r_a[r],
					`TB_TOP_PATH.bk0.r_b[r]
				};
			endcase
			1: case (r)
			0:	 data = {
					`TB_TOP_PATH.bk1.r_a[r],
					`TB_TOP_PATH.bk1.r_b[r]
				};
			1:	 data = {
					`TB_TOP_PATH.bk1.r_a[r],
					`TB_TOP_PATH.bk1.r_b[r]
				};
			endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (bk)
			0: case (r)
			0:	 {
				`TB_TOP_PATH.bk0.r_a[r],
				`TB_TOP_PATH.bk0.r_b[r]
				} = data;
			1:	 {
				`TB_TOP_PATH.bk0.r_a[r],
				`TB_TOP_PATH.bk0.r_b[r]
				} = data;
			endcase
			1: case (r)
			0:	 {
				`TB_TOP_PATH.bk1.r_a[r],
				`TB_TOP_PATH.bk1.r_b[r]
				} = data;
			1:	 {
				`TB_TOP_PATH.bk1.r_a[r],
				`TB_TOP_PATH.bk1.r_b[r]
				} = data;
			endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_tb_bk_mb_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		data = `TB_TOP_PATH.mbox_q;
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		`TB_TOP_PATH.mbox_q = data;
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


class brx_reg_mailbox extends qvt_brx_reg;
	rand qvt_brx_field data;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.data = new(this, "data", 32, qvt_brx::RW, 32'h0, 32'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_mailbox


class brx_regfile_bank;
	rand brx_reg_word r[2];
	rand brx_reg_mailbox mb;
	rand qvt_brx_field r_v[2];
	rand qvt_brx_field v[2];
	rand qvt_brx_field mb_data;
	rand qvt_brx_field data;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr);
		foreach (this.r[i]) begin
			int J = i;
			this.r[J] = new(parent, $psprintf("%s.r[%0d]",name,J), offset+`QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h1, domain, cvr, 2'b11, 0);
			this.r_v[J] = this.r[J].v;
			this.v[J] = this.r[J].v;
		end
		this.mb = new(parent, $psprintf("%s.mb",name), offset+`QVT_BRX_ADDR_WIDTH'h8, domain, cvr, 2'b11, 0);
		this.mb_data = this.mb.data;
		this.data = this.mb.data;
	endfunction : new
endclass : brx_regfile_bank




class brx_mem_tb_m_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `TB_TOP_PATH.m_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`TB_TOP_PATH.m_q[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_mem_buf extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h10, 32, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_buf


class brx_vreg_desc extends qvt_brx_vreg;
	rand qvt_brx_vfield addr;

	function new(qvt_brx_block parent, string name, int unsigned n_bits,
			 bit[`QVT_BRX_ADDR_WIDTH-1:0] offset = `QVT_BRX_ADDR_WIDTH'h0, qvt_brx_mem mem = null, longint unsigned size = 0, int unsigned incr = 0);
		super.new(parent, name, n_bits, offset, mem, size, incr);
		this.addr = new(this, "addr", 32, 0);
	endfunction: new
endclass : brx_vreg_desc


class brx_reg_tb_st_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			data = `QVT_BRX_DATA_WIDTH'h0;
			data[14:14] = `TB_TOP_PATH.busy_q;
			data[6:3] = `TB_TOP_PATH.clr_q;
		end
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		begin
			`TB_TOP_PATH.clr_q = data[6:3];
		end
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_stat extends qvt_brx_reg;
	qvt_brx_field busy;
	rand qvt_brx_field clr;
	rand qvt_brx_field spare;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 16, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.busy = new(this, "busy", 1, qvt_brx::RO, 1'h0, 1'hx, 14, 0, cvr);
		this.clr = new(this, "clr", 4, qvt_brx::W1C, 4'h0, 4'hx, 3, 0, cvr);
		this.spare = new(this, "spare", 3, qvt_brx::RW, 3'h0, 3'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_stat


class brx_block_tb extends qvt_brx_block;
	rand brx_regfile_bank bk[2];
	rand brx_mem_buf m;
	rand brx_mem_buf nomem;
	rand brx_vreg_desc d;
	rand brx_reg_stat st;
	rand qvt_brx_vfield d_addr;
	rand qvt_brx_vfield addr;
	qvt_brx_field st_busy;
	qvt_brx_field busy;
	rand qvt_brx_field st_clr;
	rand qvt_brx_field clr;
	rand qvt_brx_field st_spare;
	rand qvt_brx_field spare;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "tb", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "tb", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.bk[i]) begin
			int J = i;
			this.bk[J] = new(this, $psprintf("bk[%0d]",J), `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h10, "", cover_on);
		end
		this.m = new(this, "m", `QVT_BRX_ADDR_WIDTH'h100, "", cover_on, 2'b11, 0);
		this.nomem = new(this, "nomem", `QVT_BRX_ADDR_WIDTH'h200, "", cover_on, 2'b11, 0);
		this.d = new(this, "d", 32, `QVT_BRX_ADDR_WIDTH'h0, this.m, 4, 1);
		this.d_addr = this.d.addr;
		this.addr = this.d.addr;
		this.st = new(this, "st", `QVT_BRX_ADDR_WIDTH'h60, "", cover_on, 2'b11, 0);
		this.st_busy = this.st.busy;
		this.busy = this.st.busy;
		this.st_clr = this.st.clr;
		this.clr = this.st.clr;
		this.st_spare = this.st.spare;
		this.spare = this.st.spare;

		//
		// Setting up backdoor access...
		//
		foreach (this.bk[i0]) begin
			foreach (this.bk[i0].r[i1]) begin
				brx_reg_tb_bk_r_bkdr bkdr = new(i0, i1);
				this.bk[i0].r[i1].set_backdoor(bkdr);
			end
		end
		foreach (this.bk[i0]) begin
			brx_reg_tb_bk_mb_bkdr bkdr = new;
			this.bk[i0].mb.set_backdoor(bkdr);
		end
		begin
			brx_mem_tb_m_bkdr bkdr = new;
			this.m.set_backdoor(bkdr);
		end
		begin
			brx_reg_tb_st_bkdr bkdr = new;
			this.st.set_backdoor(bkdr);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_tb


`endif
