`ifndef BRX_WIDE
`define BRX_WIDE

`include "qvt_brx.sv"

class brx_reg_w8 extends qvt_brx_reg;
	rand qvt_brx_field lo;
	rand qvt_brx_field hi;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 64, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.lo = new(this, "lo", 32, qvt_brx::RW, 32'h0, 32'hx, 0, 0, cvr);
		this.hi = new(this, "hi", 32, qvt_brx::RW, 32'h0, 32'hx, 32, 0, cvr);
	endfunction: new
endclass : brx_reg_w8


class brx_reg_w16 extends qvt_brx_reg;
	rand qvt_brx_field all;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 128, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.all = new(this, "all", 128, qvt_brx::RW, 128'h0, 128'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_w16


class brx_block_wide extends qvt_brx_block;
	rand brx_reg_w8 one;
	rand brx_reg_w8 many[2];
	rand brx_reg_w16 big;
	rand qvt_brx_field one_lo;
	rand qvt_brx_field one_hi;
	rand qvt_brx_field many_lo[2];
	rand qvt_brx_field many_hi[2];
	rand qvt_brx_field big_all;
	rand qvt_brx_field all;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "wide", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "wide", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.one = new(this, "one", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.one_lo = this.one.lo;
		this.one_hi = this.one.hi;
		foreach (this.many[i]) begin
			int J = i;
			this.many[J] = new(this, $psprintf("many[%0d]",J), `QVT_BRX_ADDR_WIDTH'h2+J*`QVT_BRX_ADDR_WIDTH'h2, "", cover_on, 2'b11, 0);
			this.many_lo[J] = this.many[J].lo;
			this.many_hi[J] = this.many[J].hi;
		end
		this.big = new(this, "big", `QVT_BRX_ADDR_WIDTH'h6, "", cover_on, 2'b11, 0);
		this.big_all = this.big.all;
		this.all = this.big.all;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_wide


`endif
