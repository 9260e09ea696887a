`ifndef BRX_OUTER
`define BRX_OUTER

`include "qvt_brx.sv"

class brx_reg_cr extends qvt_brx_reg;
	rand qvt_brx_field v;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.v = new(this, "v", 32, qvt_brx::RW, 32'h0, 32'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_cr


class brx_block_small extends qvt_brx_block;
	rand brx_reg_cr a;
	rand qvt_brx_field a_v;
	rand qvt_brx_field v;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "small", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "small", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.a = new(this, "a", `QVT_BRX_ADDR_WIDTH'hFF, "", cover_on, 2'b11, 0);
		this.a_v = this.a.v;
		this.v = this.a.v;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_small


class brx_block_big extends qvt_brx_block;
	rand brx_reg_cr r0;
	rand brx_reg_cr r1;
	rand brx_reg_cr r2;
	rand qvt_brx_field r0_v;
	rand qvt_brx_field r1_v;
	rand qvt_brx_field r2_v;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "big", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "big", 16, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.r0 = new(this, "r0", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.r0_v = this.r0.v;
		this.r1 = new(this, "r1", `QVT_BRX_ADDR_WIDTH'h1, "", cover_on, 2'b11, 0);
		this.r1_v = this.r1.v;
		this.r2 = new(this, "r2", `QVT_BRX_ADDR_WIDTH'h2, "", cover_on, 2'b11, 0);
		this.r2_v = this.r2.v;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_big


class brx_sys_inner extends qvt_brx_sys;
	rand brx_block_small s4[4];
	rand brx_block_big g;
	rand brx_block_small t;


	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "inner", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "inner", 8, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.s4[i]) begin
			int J = i;
			this.s4[J] = new(cover_on, $psprintf("s4[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h100);
			this.register_block(this.s4[J], "", "", `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h100);
		end
		this.g = new(cover_on, "g", this, `QVT_BRX_ADDR_WIDTH'h1000);
		this.register_block(this.g, "", "", `QVT_BRX_ADDR_WIDTH'h1000);
		this.t = new(cover_on, "t", this, `QVT_BRX_ADDR_WIDTH'h1006);
		this.register_block(this.t, "", "", `QVT_BRX_ADDR_WIDTH'h1006);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_inner


class brx_sys_outer extends qvt_brx_sys;
	rand brx_sys_inner in0;
	rand brx_block_small sm;
	rand brx_block_small sq;



	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "outer", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "outer", 8, qvt_brx::LITTLE_ENDIAN, base_addr, "p", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(4, qvt_brx::LITTLE_ENDIAN, "q");
		this.in0 = new(cover_on, "in0", this, `QVT_BRX_ADDR_WIDTH'h10);
		this.register_subsys(this.in0, "", "p", `QVT_BRX_ADDR_WIDTH'h10);
		this.sm = new(cover_on, "sm", this, `QVT_BRX_ADDR_WIDTH'h1116);
		this.register_block(this.sm, "", "p", `QVT_BRX_ADDR_WIDTH'h1116);
		this.sq = new(cover_on, "sq", this, `QVT_BRX_ADDR_WIDTH'h0);
		this.register_block(this.sq, "", "q", `QVT_BRX_ADDR_WIDTH'h0);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_outer


`endif
