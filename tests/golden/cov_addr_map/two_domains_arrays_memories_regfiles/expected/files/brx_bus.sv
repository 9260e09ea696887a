`ifndef BRX_BUS
`define BRX_BUS

`include "qvt_brx.sv"

class brx_reg_two extends qvt_brx_reg;
	rand qvt_brx_field v;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 64, offset, domain, cvr, rights, unmapped, qvt_brx::ADDR_MAP);
		this.v = new(this, "v", 64, qvt_brx::RW, 64'h0, 64'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_two


class brx_reg_one extends qvt_brx_reg;
	rand qvt_brx_field v;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::ADDR_MAP);
		this.v = new(this, "v", 32, qvt_brx::RW, 32'h0, 32'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_one


class brx_reg_hidden extends qvt_brx_reg;
	rand qvt_brx_field v;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.v = new(this, "v", 32, qvt_brx::RW, 32'h0, 32'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_hidden


class brx_mem_wide extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h10, 64, base_address, domain, cvr, rights, unmapped, qvt_brx::ADDR_MAP);
	endfunction: new
endclass : brx_mem_wide


class brx_mem_narrow extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h10, 32, base_address, domain, cvr, rights, unmapped, qvt_brx::ADDR_MAP);
	endfunction: new
endclass : brx_mem_narrow


class brx_regfile_pair;
	rand brx_reg_one r;
	rand brx_reg_one s;
	rand qvt_brx_field r_v;
	rand qvt_brx_field s_v;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr);
		this.r = new(parent, $psprintf("%s.r",name), offset+`QVT_BRX_ADDR_WIDTH'h0, domain, cvr, 2'b11, 0);
		this.r_v = this.r.v;
		this.s = new(parent, $psprintf("%s.s",name), offset+`QVT_BRX_ADDR_WIDTH'h7, domain, cvr, 2'b11, 0);
		this.s_v = this.s.v;
	endfunction : new
endclass : brx_regfile_pair




class brx_cvr_block_bus;
	local bit [`QVT_BRX_ADDR_WIDTH-1:0] addr;

	covergroup a_addr_map (input string name);
		option.name = name;
		option.per_instance = 1;

		w : coverpoint addr {
			bins accessed = { [`QVT_BRX_ADDR_WIDTH'h4:`QVT_BRX_ADDR_WIDTH'h5] };
			option.weight = 1;
		}

		arr_0 : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h10 };
			option.weight = 1;
		}

		arr_1 : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h14 };
			option.weight = 1;
		}

		arr_2 : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h18 };
			option.weight = 1;
		}

		after : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h1D };
			option.weight = 1;
		}

		big : coverpoint addr {
			bins first_location_accessed = { [`QVT_BRX_ADDR_WIDTH'h40:`QVT_BRX_ADDR_WIDTH'h41] };
			bins last_location_accessed = { [`QVT_BRX_ADDR_WIDTH'h5E:`QVT_BRX_ADDR_WIDTH'h5F] };
			bins other_locations_accessed = { [`QVT_BRX_ADDR_WIDTH'h42:`QVT_BRX_ADDR_WIDTH'h5D] };
			option.weight = 3;
		}

		lut : coverpoint addr {
			bins first_location_accessed = { `QVT_BRX_ADDR_WIDTH'h100 };
			bins last_location_accessed = { `QVT_BRX_ADDR_WIDTH'h10F };
			bins other_locations_accessed = { [`QVT_BRX_ADDR_WIDTH'h101:`QVT_BRX_ADDR_WIDTH'h10E] };
			option.weight = 3;
		}
	endgroup

	covergroup b_addr_map (input string name);
		option.name = name;
		option.per_instance = 1;

		f_0_r : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h0 };
			option.weight = 1;
		}

		f_0_s : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h7 };
			option.weight = 1;
		}

		f_1_r : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h8 };
			option.weight = 1;
		}

		f_1_s : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h7 };
			option.weight = 1;
		}
	endgroup

	function new (string name, string domain);
		if (domain == "a") begin
			this.a_addr_map = new($psprintf("%s(a)", name));
		end
		else if (domain == "b") begin
			this.b_addr_map = new($psprintf("%s(b)", name));
		end
	endfunction

	function void sample(bit [`QVT_BRX_ADDR_WIDTH-1:0] addr, string domain);
		this.addr = addr;
		if (domain == "a") begin
			this.a_addr_map.sample();
		end
		else if (domain == "b") begin
			this.b_addr_map.sample();
		end
	endfunction
endclass : brx_cvr_block_bus


class brx_block_bus extends qvt_brx_block;
	rand brx_reg_two w;
	rand brx_reg_one arr[3];
	rand brx_reg_hidden gap;
	rand brx_reg_one after;
	rand brx_reg_one off_map;
	rand brx_mem_wide big;
	rand brx_mem_narrow lut;
	rand brx_regfile_pair f[2];
	rand qvt_brx_field w_v;
	rand qvt_brx_field arr_v[3];
	rand qvt_brx_field gap_v;
	rand qvt_brx_field after_v;
	rand qvt_brx_field off_map_v;

	local brx_cvr_block_bus __addr_map[*];

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "bus", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "bus", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "a", cover_on, qvt_brx::ADDR_MAP);
		this.add_domain(4, qvt_brx::LITTLE_ENDIAN, "b");
		this.w = new(this, "w", `QVT_BRX_ADDR_WIDTH'h4, "a", cover_on, 2'b11, 0);
		this.w_v = this.w.v;
		foreach (this.arr[i]) begin
			int J = i;
			this.arr[J] = new(this, $psprintf("arr[%0d]",J), `QVT_BRX_ADDR_WIDTH'h10+J*`QVT_BRX_ADDR_WIDTH'h4, "a", cover_on, 2'b11, 0);
			this.arr_v[J] = this.arr[J].v;
		end
		this.gap = new(this, "gap", `QVT_BRX_ADDR_WIDTH'h1C, "a", cover_on, 2'b11, 0);
		this.gap_v = this.gap.v;
		this.after = new(this, "after", `QVT_BRX_ADDR_WIDTH'h1D, "a", cover_on, 2'b11, 0);
		this.after_v = this.after.v;
		this.off_map = new(this, "off_map", `QVT_BRX_ADDR_WIDTH'h1E, "a", cover_on, 2'b11, 1);
		this.off_map_v = this.off_map.v;
		this.big = new(this, "big", `QVT_BRX_ADDR_WIDTH'h40, "a", cover_on, 2'b11, 0);
		this.lut = new(this, "lut", `QVT_BRX_ADDR_WIDTH'h100, "a", cover_on, 2'b11, 0);
		foreach (this.f[i]) begin
			int J = i;
			this.f[J] = new(this, $psprintf("f[%0d]",J), `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h8, "b", cover_on);
		end
		this.Xlock_modelX();
	endfunction : new

	virtual function void domain_coverage(string domain, int idx);
		if (this.can_cover(qvt_brx::ADDR_MAP)) begin
			brx_cvr_block_bus cg;
			if (domain == "a") begin
				cg = new(this.get_fullname(), "a");
			end
			else if (domain == "b") begin
				cg = new(this.get_fullname(), "b");
			end
			else begin
				$write("Internal BRX model error: Invalid domain '%s' found for Block '%s'.\n", domain, this.get_fullname());
				$write("Please contact brix-support@marsdale.com.\n");
				$finish();
			end
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
		this.__addr_map[domain].sample(addr, this.domains[domain]);
	endfunction
endclass : brx_block_bus


`endif
