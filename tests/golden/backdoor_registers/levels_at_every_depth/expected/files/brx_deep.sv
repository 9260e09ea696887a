`ifndef BRX_DEEP
`define BRX_DEEP

`include "qvt_brx.sv"

class brx_reg_deep_c_e_bk_r_bkdr extends qvt_brx_reg_backdoor;
	int c;
	int e;
	int bk;
	int r;

	function new(int c, int e, int bk, int r);
		this.c = c;
		this.e = e;
		this.bk = bk;
		this.r = r;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (e)
			0: case (r)
			0:	 data = `DEEP_TOP_PATH.u_c[c].u_e0.bk[bk].r_q0;
			1:	 data = `DEEP_TOP_PATH.u_c[c].u_e0.bk[bk].r_q1;
			endcase
			1: case (r)
			0:	 data = `DEEP_TOP_PATH.u_c[c].u_e1.bk[bk].r_q0;
			1:	 data = `DEEP_TOP_PATH.u_c[c].u_e1.bk[bk].r_q1;
			endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (e)
			0: case (r)
			0:	 `DEEP_TOP_PATH.u_c[c].u_e0.bk[bk].r_q0 = data;
			1:	 `DEEP_TOP_PATH.u_c[c].u_e0.bk[bk].r_q1 = data;
			endcase
			1: case (r)
			0:	 `DEEP_TOP_PATH.u_c[c].u_e1.bk[bk].r_q0 = data;
			1:	 `DEEP_TOP_PATH.u_c[c].u_e1.bk[bk].r_q1 = data;
			endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_deep_c_e_bk_mb_bkdr extends qvt_brx_reg_backdoor;
	int c;
	int e;

	function new(int c, int e);
		this.c = c;
		this.e = e;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (e)
			0: data = `DEEP_TOP_PATH.u_c[c].u_e0.mbox_q;
			1: data = `DEEP_TOP_PATH.u_c[c].u_e1.mbox_q;
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (e)
			0: `DEEP_TOP_PATH.u_c[c].u_e0.mbox_q = data;
			1: `DEEP_TOP_PATH.u_c[c].u_e1.mbox_q = data;
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_deep_c_e_t_bkdr extends qvt_brx_reg_backdoor;
	int c;
	int e;
	int t;

	function new(int c, int e, int t);
		this.c = c;
		this.e = e;
		this.t = t;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (e)
			0: case (t)
			0:	 begin
					data = `QVT_BRX_DATA_WIDTH'h0;
					data[7:0] = {
						`DEEP_TOP_PATH.u_c[c].u_e0.lo_a0,
						`DEEP_TOP_PATH.u_c[c].u_e0.lo_b0
					};
					data[15:8] = `DEEP_TOP_PATH.u_c[c].u_e0.hi_q;
				end
			1:	 begin
					data = `QVT_BRX_DATA_WIDTH'h0;
					data[7:0] = {
						`DEEP_TOP_PATH.u_c[c].u_e0.lo_a1,
						`DEEP_TOP_PATH.u_c[c].u_e0.lo_b1
					};
					data[15:8] = `DEEP_TOP_PATH.u_c[c].u_e0.hi_q;
				end
			endcase
			1: case (t)
			0:	 begin
					data = `QVT_BRX_DATA_WIDTH'h0;
					data[7:0] = {
						`DEEP_TOP_PATH.u_c[c].u_e1.lo_a0,
						`DEEP_TOP_PATH.u_c[c].u_e1.lo_b0
					};
					data[15:8] = `DEEP_TOP_PATH.u_c[c].u_e1.hi_q;
				end
			1:	 begin
					data = `QVT_BRX_DATA_WIDTH'h0;
					data[7:0] = {
						`DEEP_TOP_PATH.u_c[c].u_e1.lo_a1,
						`DEEP_TOP_PATH.u_c[c].u_e1.lo_b1
					};
					data[15:8] = `DEEP_TOP_PATH.u_c[c].u_e1.hi_q;
				end
			endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (e)
			0: case (t)
			0:	 begin
					{
						`DEEP_TOP_PATH.u_c[c].u_e0.lo_a0,
						`DEEP_TOP_PATH.u_c[c].u_e0.lo_b0
					} = data[7:0];
				end
			1:	 begin
					{
						`DEEP_TOP_PATH.u_c[c].u_e0.lo_a1,
						`DEEP_TOP_PATH.u_c[c].u_e0.lo_b1
					} = data[7:0];
				end
			endcase
			1: case (t)
			0:	 begin
					{
						`DEEP_TOP_PATH.u_c[c].u_e1.lo_a0,
						`DEEP_TOP_PATH.u_c[c].u_e1.lo_b0
					} = data[7:0];
				end
			1:	 begin
					{
						`DEEP_TOP_PATH.u_c[c].u_e1.lo_a1,
						`DEEP_TOP_PATH.u_c[c].u_e1.lo_b1
					} = data[7:0];
				end
			endcase
		endcase
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




class brx_reg_two extends qvt_brx_reg;
	rand qvt_brx_field lo;
	qvt_brx_field hi;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 16, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.lo = new(this, "lo", 8, qvt_brx::RW, 8'h0, 8'hx, 0, 0, cvr);
		this.hi = new(this, "hi", 8, qvt_brx::RO, 8'h0, 8'hx, 8, 0, cvr);
	endfunction: new
endclass : brx_reg_two


class brx_block_eng extends qvt_brx_block;
	rand brx_regfile_bank bk[2];
	rand brx_reg_two t[2];
	rand brx_reg_word w;
	rand qvt_brx_field t_lo[2];
	rand qvt_brx_field lo[2];
	qvt_brx_field t_hi[2];
	qvt_brx_field hi[2];
	rand qvt_brx_field w_v;
	rand qvt_brx_field v;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "eng", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "eng", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.bk[i]) begin
			int J = i;
			this.bk[J] = new(this, $psprintf("bk[%0d]",J), `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h10, "", cover_on);
		end
		foreach (this.t[i]) begin
			int J = i;
			this.t[J] = new(this, $psprintf("t[%0d]",J), `QVT_BRX_ADDR_WIDTH'h40+J*`QVT_BRX_ADDR_WIDTH'h1, "", cover_on, 2'b11, 0);
			this.t_lo[J] = this.t[J].lo;
			this.lo[J] = this.t[J].lo;
			this.t_hi[J] = this.t[J].hi;
			this.hi[J] = this.t[J].hi;
		end
		this.w = new(this, "w", `QVT_BRX_ADDR_WIDTH'h50, "", cover_on, 2'b11, 0);
		this.w_v = this.w.v;
		this.v = this.w.v;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_eng


class brx_sys_core extends qvt_brx_sys;
	rand brx_block_eng e[2];


	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "core", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "core", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.e[i]) begin
			int J = i;
			this.e[J] = new(cover_on, $psprintf("e[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h100);
			this.register_block(this.e[J], "", "", `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h100);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_core


class brx_sys_deep extends qvt_brx_sys;
	rand brx_sys_core c[2];


	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "deep", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "deep", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.c[i]) begin
			int J = i;
			this.c[J] = new(cover_on, $psprintf("c[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h1000);
			this.register_subsys(this.c[J], "", "", `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h1000);
		end

		//
		// Setting up backdoor access...
		//
		foreach (this.c[i0]) begin
			foreach (this.c[i0].e[i1]) begin
				foreach (this.c[i0].e[i1].bk[i2]) begin
					foreach (this.c[i0].e[i1].bk[i2].r[i3]) begin
						brx_reg_deep_c_e_bk_r_bkdr bkdr = new(i0, i1, i2, i3);
						this.c[i0].e[i1].bk[i2].r[i3].set_backdoor(bkdr);
					end
				end
			end
		end
		foreach (this.c[i0]) begin
			foreach (this.c[i0].e[i1]) begin
				foreach (this.c[i0].e[i1].bk[i2]) begin
					brx_reg_deep_c_e_bk_mb_bkdr bkdr = new(i0, i1);
					this.c[i0].e[i1].bk[i2].mb.set_backdoor(bkdr);
				end
			end
		end
		foreach (this.c[i0]) begin
			foreach (this.c[i0].e[i1]) begin
				foreach (this.c[i0].e[i1].t[i2]) begin
					brx_reg_deep_c_e_t_bkdr bkdr = new(i0, i1, i2);
					this.c[i0].e[i1].t[i2].set_backdoor(bkdr);
				end
			end
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_deep


`endif
