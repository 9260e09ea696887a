`ifndef BRX_MY_BLK
`define BRX_MY_BLK

`include "qvt_brx.sv"

class brx_reg_dbl extends qvt_brx_reg;
	rand qvt_brx_field d;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 64, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.d = new(this, "d", 64, qvt_brx::RW, 64'h0, 64'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_dbl


class brx_reg_ctl_t extends qvt_brx_reg;
	rand qvt_brx_field mode;
	qvt_brx_field en;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.mode = new(this, "mode", 8, qvt_brx::RW, 8'h0, 8'hx, 0, 0, cvr);
		this.en = new(this, "en", 1, qvt_brx::RO, 1'h0, 1'hx, 12, 0, cvr);
	endfunction: new
endclass : brx_reg_ctl_t


class brx_reg_m_t extends qvt_brx_reg;
	rand qvt_brx_field go;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.go = new(this, "go", 1, qvt_brx::WO, 1, 0, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_m_t


class brx_mem_mem_t extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h4, 32, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_mem_t


class brx_vreg_vt extends qvt_brx_vreg;
	rand qvt_brx_vfield a;
	rand qvt_brx_vfield b;

	function new(qvt_brx_block parent, string name, int unsigned n_bits,
			 bit[`QVT_BRX_ADDR_WIDTH-1:0] offset = `QVT_BRX_ADDR_WIDTH'h0, qvt_brx_mem mem = null, longint unsigned size = 0, int unsigned incr = 0);
		super.new(parent, name, n_bits, offset, mem, size, incr);
		this.a = new(this, "a", 16, 0);
		this.b = new(this, "b", 8, 32);
	endfunction: new
endclass : brx_vreg_vt


class brx_block_my_blk extends qvt_brx_block;
	rand brx_reg_dbl w8;
	rand brx_reg_dbl wa[2];
	rand brx_reg_dbl wb[2];
	rand brx_reg_ctl_t ctl;
	rand brx_reg_m_t mode;
	rand brx_mem_mem_t store;
	rand brx_vreg_vt vv;
	rand qvt_brx_field w8_d;
	rand qvt_brx_field wa_d[2];
	rand qvt_brx_field wb_d[2];
	rand qvt_brx_field ctl_mode;
	qvt_brx_field ctl_en;
	qvt_brx_field en;
	rand qvt_brx_field mode_go;
	rand qvt_brx_field go;
	rand qvt_brx_vfield vv_a;
	rand qvt_brx_vfield a;
	rand qvt_brx_vfield vv_b;
	rand qvt_brx_vfield b;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "my_blk", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "my_blk", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.w8 = new(this, "w8", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.w8_d = this.w8.d;
		foreach (this.wa[i]) begin
			int J = i;
			this.wa[J] = new(this, $psprintf("wa[%0d]",J), `QVT_BRX_ADDR_WIDTH'h2+J*`QVT_BRX_ADDR_WIDTH'h2, "", cover_on, 2'b11, 0);
			this.wa_d[J] = this.wa[J].d;
		end
		foreach (this.wb[i]) begin
			int J = i;
			this.wb[J] = new(this, $psprintf("wb[%0d]",J), `QVT_BRX_ADDR_WIDTH'h6+J*`QVT_BRX_ADDR_WIDTH'h1, "", cover_on, 2'b11, 0);
			this.wb_d[J] = this.wb[J].d;
		end
		this.ctl = new(this, "ctl", `QVT_BRX_ADDR_WIDTH'h8, "", cover_on, 2'b11, 1);
		this.ctl_mode = this.ctl.mode;
		this.ctl_en = this.ctl.en;
		this.en = this.ctl.en;
		this.mode = new(this, "mode", `QVT_BRX_ADDR_WIDTH'h8, "", cover_on, 2'b11, 0);
		this.mode_go = this.mode.go;
		this.go = this.mode.go;
		this.store = new(this, "store", `QVT_BRX_ADDR_WIDTH'h10, "", cover_on, 2'b11, 0);
		this.vv = new(this, "vv", 64, `QVT_BRX_ADDR_WIDTH'h0, this.store, 4, 2);
		this.vv_a = this.vv.a;
		this.a = this.vv.a;
		this.vv_b = this.vv.b;
		this.b = this.vv.b;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_my_blk


`endif
