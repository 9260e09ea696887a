`ifndef BRX_TOP
`define BRX_TOP

`include "qvt_brx.sv"

class brx_reg_r extends qvt_brx_reg;
	rand qvt_brx_field v;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.v = new(this, "v", 32, qvt_brx::RW, 32'h0, 32'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_r


class brx_regfile_rf;
	rand brx_reg_r a;
	rand brx_reg_r b;
	rand brx_reg_r c;
	rand brx_reg_r d;
	rand qvt_brx_field a_v;
	rand qvt_brx_field b_v;
	rand qvt_brx_field c_v;
	rand qvt_brx_field d_v;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr);
		this.a = new(parent, $psprintf("%s.a",name), offset+`QVT_BRX_ADDR_WIDTH'h10, domain, cvr, 2'b11, 0);
		this.a_v = this.a.v;
		this.b = new(parent, $psprintf("%s.b",name), offset+`QVT_BRX_ADDR_WIDTH'h11, domain, cvr, 2'b11, 1);
		this.b_v = this.b.v;
		this.c = new(parent, $psprintf("%s.c",name), offset+`QVT_BRX_ADDR_WIDTH'h0, domain, cvr, 2'b11, 0);
		this.c_v = this.c.v;
		this.d = new(parent, $psprintf("%s.d",name), offset+`QVT_BRX_ADDR_WIDTH'h11, domain, cvr, 2'b11, 0);
		this.d_v = this.d.v;
	endfunction : new
endclass : brx_regfile_rf




class brx_block_top extends qvt_brx_block;
	rand brx_regfile_rf f;
	rand brx_reg_r after;
	rand qvt_brx_field after_v;
	rand qvt_brx_field v;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "top", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "top", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.f = new(this, "f", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on);
		this.after = new(this, "after", `QVT_BRX_ADDR_WIDTH'h12, "", cover_on, 2'b11, 0);
		this.after_v = this.after.v;
		this.v = this.after.v;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_top


`endif
