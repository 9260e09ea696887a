`ifndef BRX_B
`define BRX_B

`include "qvt_brx.sv"

class brx_reg_st extends qvt_brx_reg;
	rand qvt_brx_field f;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.f = new(this, "f", 1, qvt_brx::RW, 1'h0, 1'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_st


class brx_block_b extends qvt_brx_block;
	rand brx_reg_st s;
	rand qvt_brx_field s_f;
	rand qvt_brx_field f;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "b", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "b", 4, qvt_brx::BIG_ENDIAN, base_addr, "a", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(8, qvt_brx::LITTLE_ENDIAN, "c");
		this.s = new(this, "st", `QVT_BRX_ADDR_WIDTH'h0, "a", cover_on, 2'b11, 0);
		this.s_f = this.s.f;
		this.f = this.s.f;
		this.s.add_domain(`QVT_BRX_ADDR_WIDTH'h0, "c", 2'b11, 0);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_b


`endif
