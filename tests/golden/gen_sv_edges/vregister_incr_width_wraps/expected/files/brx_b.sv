`ifndef BRX_B
`define BRX_B

`include "qvt_brx.sv"

class brx_mem_mm extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h100, 32, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_mm


class brx_vreg_v extends qvt_brx_vreg;
	rand qvt_brx_vfield f;

	function new(qvt_brx_block parent, string name, int unsigned n_bits,
			 bit[`QVT_BRX_ADDR_WIDTH-1:0] offset = `QVT_BRX_ADDR_WIDTH'h0, qvt_brx_mem mem = null, longint unsigned size = 0, int unsigned incr = 0);
		super.new(parent, name, n_bits, offset, mem, size, incr);
		this.f = new(this, "f", 32, 0);
	endfunction: new
endclass : brx_vreg_v


class brx_block_b extends qvt_brx_block;
	rand brx_mem_mm mm;
	rand brx_vreg_v vt;
	rand qvt_brx_vfield vt_f;
	rand qvt_brx_vfield f;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "b", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "b", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.mm = new(this, "mm", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.vt = new(this, "vt", 32, `QVT_BRX_ADDR_WIDTH'h0, this.mm, 2, 536870912);
		this.vt_f = this.vt.f;
		this.f = this.vt.f;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_b


`endif
