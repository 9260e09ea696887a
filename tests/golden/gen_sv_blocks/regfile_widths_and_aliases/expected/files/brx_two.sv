`ifndef BRX_TWO
`define BRX_TWO

`include "qvt_brx.sv"

class brx_reg_r4 extends qvt_brx_reg;
	rand qvt_brx_field f;
	qvt_brx_field g;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.f = new(this, "f", 8, qvt_brx::RW, 8'h0, 8'hx, 0, 0, cvr);
		this.g = new(this, "g", 8, qvt_brx::RO, 8'h0, 8'hx, 8, 0, cvr);
	endfunction: new
endclass : brx_reg_r4


class brx_reg_r8 extends qvt_brx_reg;
	rand qvt_brx_field f;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 64, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.f = new(this, "f", 16, qvt_brx::RW, 16'h0, 16'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_r8


class brx_reg_q extends qvt_brx_reg;
	rand qvt_brx_field h;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.h = new(this, "h", 4, qvt_brx::RW, 4'h0, 4'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_q


class brx_regfile_rf;
	rand brx_reg_r4 a;
	rand brx_reg_r8 b;
	rand brx_reg_q c[2];
	rand qvt_brx_field a_f;
	qvt_brx_field a_g;
	qvt_brx_field g;
	rand qvt_brx_field b_f;
	rand qvt_brx_field c_h[2];
	rand qvt_brx_field h[2];

	constraint keep {
		a.f != 0;
		b.f < 3;
	}

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr);
		this.a = new(parent, $psprintf("%s.a",name), offset+`QVT_BRX_ADDR_WIDTH'h0, domain, cvr, 2'b11, 0);
		this.a_f = this.a.f;
		this.a_g = this.a.g;
		this.g = this.a.g;
		this.b = new(parent, $psprintf("%s.b",name), offset+`QVT_BRX_ADDR_WIDTH'h1, domain, cvr, 2'b11, 0);
		this.b_f = this.b.f;
		foreach (this.c[i]) begin
			int J = i;
			this.c[J] = new(parent, $psprintf("%s.c[%0d]",name,J), offset+`QVT_BRX_ADDR_WIDTH'h3+J*`QVT_BRX_ADDR_WIDTH'h1, domain, cvr, 2'b11, 0);
			this.c_h[J] = this.c[J].h;
			this.h[J] = this.c[J].h;
		end
	endfunction : new
endclass : brx_regfile_rf




class brx_block_two extends qvt_brx_block;
	rand brx_regfile_rf x;
	rand brx_regfile_rf y[2];

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "two", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "two", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "n", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(8, qvt_brx::LITTLE_ENDIAN, "w");
		this.x = new(this, "x", `QVT_BRX_ADDR_WIDTH'h20, "n", cover_on);
		foreach (this.y[i]) begin
			int J = i;
			this.y[J] = new(this, $psprintf("y[%0d]",J), `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h10, "w", cover_on);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_two


`endif
