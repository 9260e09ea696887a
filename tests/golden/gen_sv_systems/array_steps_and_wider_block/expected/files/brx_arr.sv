`ifndef BRX_ARR
`define BRX_ARR

`include "qvt_brx.sv"

class brx_reg_ctrl extends qvt_brx_reg;
	rand qvt_brx_field en;
	qvt_brx_field mode;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.en = new(this, "en", 1, qvt_brx::RW, 1, 1'hx, 0, 0, cvr);
		this.mode = new(this, "mode", 3, qvt_brx::RO, 3'h0, 3'hx, 4, 0, cvr);
	endfunction: new
endclass : brx_reg_ctrl


class brx_mem_fifo extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h100, 32, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_fifo


class brx_block_dma extends qvt_brx_block;
	rand brx_reg_ctrl ctrl;
	rand brx_mem_fifo fifo;
	rand qvt_brx_field ctrl_en;
	rand qvt_brx_field en;
	qvt_brx_field ctrl_mode;
	qvt_brx_field mode;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "dma", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "dma", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.ctrl = new(this, "ctrl", `QVT_BRX_ADDR_WIDTH'h10, "", cover_on, 2'b11, 0);
		this.ctrl_en = this.ctrl.en;
		this.en = this.ctrl.en;
		this.ctrl_mode = this.ctrl.mode;
		this.mode = this.ctrl.mode;
		this.fifo = new(this, "fifo", `QVT_BRX_ADDR_WIDTH'h100, "", cover_on, 2'b11, 0);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_dma


class brx_sys_arr extends qvt_brx_sys;
	rand brx_block_dma a[4];
	rand brx_block_dma after;
	rand brx_block_dma n;
	rand brx_block_dma m;



	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "arr", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "arr", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "wide", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(2, qvt_brx::LITTLE_ENDIAN, "narrow");
		foreach (this.a[i]) begin
			int J = i;
			this.a[J] = new(cover_on, $psprintf("a[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h200);
			this.register_block(this.a[J], "", "wide", `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h200);
		end
		this.after = new(cover_on, "after", this, `QVT_BRX_ADDR_WIDTH'h800);
		this.register_block(this.after, "", "wide", `QVT_BRX_ADDR_WIDTH'h800);
		this.n = new(cover_on, "n", this, `QVT_BRX_ADDR_WIDTH'h0);
		this.register_block(this.n, "", "narrow", `QVT_BRX_ADDR_WIDTH'h0);
		this.m = new(cover_on, "m", this, `QVT_BRX_ADDR_WIDTH'h400);
		this.register_block(this.m, "", "narrow", `QVT_BRX_ADDR_WIDTH'h400);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_arr


`endif
