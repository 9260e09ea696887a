`ifndef BRX_B
`define BRX_B

`include "qvt_brx.sv"

class brx_reg_r extends qvt_brx_reg;
	rand qvt_brx_field f;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 8, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.f = new(this, "f", 8, qvt_brx::RW, 8'h0, 8'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_r


class brx_block_b extends qvt_brx_block;
	rand brx_reg_r r;
	rand qvt_brx_field r_f;
	rand qvt_brx_field f;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "b", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "b", 1, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.r = new(this, "r", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.r_f = this.r.f;
		this.f = this.r.f;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_b


`endif
