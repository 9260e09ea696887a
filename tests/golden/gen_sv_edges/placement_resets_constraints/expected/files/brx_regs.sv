`ifndef BRX_REGS
`define BRX_REGS

`include "qvt_brx.sv"

class brx_reg_lr extends qvt_brx_reg;
	rand qvt_brx_field hi;
	rand qvt_brx_field lo;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 16, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.hi = new(this, "hi", 8, qvt_brx::RW, 8'h0, 8'hx, 8, 0, cvr);
		this.lo = new(this, "lo", 8, qvt_brx::RW, 'h5, 8'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_lr


class brx_reg_cfg extends qvt_brx_reg;
	rand qvt_brx_field value;
	rand qvt_brx_field foo;

	constraint pick {
		foo_bar == 1;
	}

	constraint value_small {
		value.value < 10;
	}

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.value = new(this, "value", 8, qvt_brx::RW, 8'h0, 8'hx, 0, 1, cvr);
		this.foo = new(this, "foo", 4, qvt_brx::RW, 4'h0, 4'hx, 16, 0, cvr);
		Xadd_constraintsX("pick");
		Xadd_constraintsX("value_small");
	endfunction: new
endclass : brx_reg_cfg


class brx_block_regs extends qvt_brx_block;
	rand brx_reg_lr lr;
	rand brx_reg_cfg cfg;
	rand qvt_brx_field lr_hi;
	rand qvt_brx_field hi;
	rand qvt_brx_field lr_lo;
	rand qvt_brx_field lo;
	rand qvt_brx_field cfg_value;
	rand qvt_brx_field value;
	rand qvt_brx_field cfg_foo;
	rand qvt_brx_field foo;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "regs", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "regs", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.lr = new(this, "lr", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.lr_hi = this.lr.hi;
		this.hi = this.lr.hi;
		this.lr_lo = this.lr.lo;
		this.lo = this.lr.lo;
		this.cfg = new(this, "cfg", `QVT_BRX_ADDR_WIDTH'h1, "", cover_on, 2'b11, 0);
		this.cfg_value = this.cfg.value;
		this.value = this.cfg.value;
		this.cfg_foo = this.cfg.foo;
		this.foo = this.cfg.foo;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_regs


`endif
