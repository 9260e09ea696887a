`ifndef BRX_DMA
`define BRX_DMA

`include "qvt_brx.sv"

class brx_reg_ctrl extends qvt_brx_reg;
	rand qvt_brx_field en;
	qvt_brx_field mode;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::ADDR_MAP);
		this.en = new(this, "en", 1, qvt_brx::RW, 1, 1'hx, 0, 0, cvr);
		this.mode = new(this, "mode", 3, qvt_brx::RO, 3'h0, 3'hx, 4, 0, cvr);
	endfunction: new
endclass : brx_reg_ctrl


class brx_mem_buf extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h100, 32, base_address, domain, cvr, rights, unmapped, qvt_brx::ADDR_MAP);
	endfunction: new
endclass : brx_mem_buf


class brx_cvr_block_dma;
	local bit [`QVT_BRX_ADDR_WIDTH-1:0] addr;

	covergroup addr_map (input string name);
		option.name = name;
		option.per_instance = 1;

		ctrl : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h10 };
			option.weight = 1;
		}

		buf : coverpoint addr {
			bins first_location_accessed = { `QVT_BRX_ADDR_WIDTH'h100 };
			bins last_location_accessed = { `QVT_BRX_ADDR_WIDTH'h1FF };
			bins other_locations_accessed = { [`QVT_BRX_ADDR_WIDTH'h101:`QVT_BRX_ADDR_WIDTH'h1FE] };
			option.weight = 3;
		}
	endgroup

	function new (string name);
		this.addr_map = new($psprintf("%s", name));
	endfunction

	function void sample(bit [`QVT_BRX_ADDR_WIDTH-1:0] addr);
		this.addr = addr;
		this.addr_map.sample();
	endfunction
endclass : brx_cvr_block_dma


class brx_block_dma extends qvt_brx_block;
	rand brx_reg_ctrl ctrl;
	rand brx_mem_buf buf;
	rand qvt_brx_field ctrl_en;
	rand qvt_brx_field en;
	qvt_brx_field ctrl_mode;
	qvt_brx_field mode;

	local brx_cvr_block_dma __addr_map[*];

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "dma", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "dma", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::ADDR_MAP);
		this.ctrl = new(this, "ctrl", `QVT_BRX_ADDR_WIDTH'h10, "", cover_on, 2'b11, 0);
		this.ctrl_en = this.ctrl.en;
		this.en = this.ctrl.en;
		this.ctrl_mode = this.ctrl.mode;
		this.mode = this.ctrl.mode;
		this.buf = new(this, "buf", `QVT_BRX_ADDR_WIDTH'h100, "", cover_on, 2'b11, 0);
		this.Xlock_modelX();
	endfunction : new

	virtual function void domain_coverage(string domain, int idx);
		if (this.can_cover(qvt_brx::ADDR_MAP)) begin
			brx_cvr_block_dma cg;
			cg = new(this.get_fullname());
			this.__addr_map[idx] = cg;
		end
	endfunction

	protected virtual function void sample(bit [`QVT_BRX_ADDR_WIDTH-1:0] addr, int domain);
		if (!this.is_cover_on(qvt_brx::ADDR_MAP)) return;
		if (!this.__addr_map.exists(domain)) begin
			$write("Internal BRX model error: Invalid domain found for Block %s.\n", this.get_fullname());
			$write("Please contact brix-support@marsdale.com.\n");
			$finish();
		end
		this.__addr_map[domain].sample(addr);
	endfunction
endclass : brx_block_dma


`endif
