`ifndef BRX_TOP
`define BRX_TOP

`include "qvt_brx.sv"

class brx_reg_csr extends qvt_brx_reg;
	rand qvt_brx_field go;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.go = new(this, "go", 1, qvt_brx::RW, 1'h0, 1'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_csr


class brx_block_bridge extends qvt_brx_block;
	rand brx_reg_csr csr;
	rand brx_reg_csr dcsr;
	rand qvt_brx_field csr_go;
	rand qvt_brx_field dcsr_go;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "bridge", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "bridge", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "host", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(2, qvt_brx::LITTLE_ENDIAN, "dbg");
		this.csr = new(this, "csr", `QVT_BRX_ADDR_WIDTH'h0, "host", cover_on, 2'b11, 0);
		this.csr_go = this.csr.go;
		this.dcsr = new(this, "dcsr", `QVT_BRX_ADDR_WIDTH'h8, "dbg", cover_on, 2'b11, 0);
		this.dcsr_go = this.dcsr.go;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_bridge


class brx_sys_top extends qvt_brx_sys;
	rand brx_block_bridge br;



	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "top", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "top", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "d0", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(2, qvt_brx::LITTLE_ENDIAN, "d1");
		this.br = new(cover_on, "br", this, `QVT_BRX_ADDR_WIDTH'h100);
		this.register_block(this.br, "host", "d0", `QVT_BRX_ADDR_WIDTH'h100);
		this.register_block(this.br, "dbg", "d1", `QVT_BRX_ADDR_WIDTH'h0);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_top


`endif
