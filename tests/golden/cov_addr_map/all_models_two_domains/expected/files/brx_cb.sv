`ifndef BRX_CB
`define BRX_CB

`include "qvt_brx.sv"

typedef class brx_cvr_reg_st;
class brx_reg_st extends qvt_brx_reg;
	rand qvt_brx_field s;

	local brx_cvr_reg_st reg_bits[*];
	covergroup field_values (input string name);
		option.name = name;
		option.per_instance = 1;
		s_value : coverpoint s.value[1:0] {
			option.weight = 4;
		}
	endgroup : field_values

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::ALL_COVERAGE);
		if (cvr & qvt_brx::FIELD_VALS) this.field_values = new(this.get_fullname());
		this.s = new(this, "s", 2, qvt_brx::RW, 2'h0, 2'hx, 0, 0, cvr);
	endfunction: new

	local virtual function void domain_coverage(string domain,
	                                            bit    rights,
	                                            int    idx);
	    if (this.can_cover(qvt_brx::REG_BITS)) begin
	        brx_cvr_reg_st cg;
	        cg = new(this.get_fullname(), domain);
	        this.reg_bits[idx] = cg;
	    end
	endfunction

	virtual local function void sample(bit [`QVT_BRX_DATA_WIDTH-1:0] data,
	                                   bit                           is_read,
	                                   int                           domain);
	   if (!this.is_cover_on(qvt_brx::REG_BITS)) return;
	   if (!this.reg_bits.exists(domain)) begin
	      $write("Internal BRX model error: invalid domain for %s.\n", this.get_fullname());
	      $write("Please contact brix-support@marsdale.com.\n");
	      $finish();
	   end
	   this.reg_bits[domain].sample(data, is_read);
	endfunction
endclass : brx_reg_st

class brx_cvr_reg_st;
	local bit [`QVT_BRX_DATA_WIDTH-1:0] data;
	local bit                           is_read;
	covergroup reg_bits (input string name);
	   option.name = name;
	   option.per_instance = 1;
	   s: coverpoint {data[1:0], is_read} {
	      wildcard bins bit_0_wr_as_0 = {3'b?00};
	      wildcard bins bit_0_wr_as_1 = {3'b?10};
	      wildcard bins bit_0_rd_as_0 = {3'b?01};
	      wildcard bins bit_0_rd_as_1 = {3'b?11};
	      wildcard bins bit_1_wr_as_0 = {3'b0?0};
	      wildcard bins bit_1_wr_as_1 = {3'b1?0};
	      wildcard bins bit_1_rd_as_0 = {3'b0?1};
	      wildcard bins bit_1_rd_as_1 = {3'b1?1};
	      option.weight = 8;
	   }
	endgroup

	function new(string name, string domain);
	   if (domain == "") this.reg_bits = new(name);
	   else this.reg_bits = new($psprintf("%s(%s)", name, domain));
	endfunction

	function void sample(bit [`QVT_BRX_DATA_WIDTH-1:0] data,
	                     bit                           is_read);
	   this.data = data;
	   this.is_read = is_read;
	   this.reg_bits.sample();
	endfunction
endclass



typedef class brx_cvr_reg_t3;
class brx_reg_t3 extends qvt_brx_reg;
	rand qvt_brx_field w;
	qvt_brx_field r;
	rand qvt_brx_field x;

	local brx_cvr_reg_t3 reg_bits[*];
	covergroup field_values (input string name);
		option.name = name;
		option.per_instance = 1;
		w_value : coverpoint w.value[2:0] {
			option.weight = 8;
		}
		r_value : coverpoint r.value[0:0] {
			option.weight = 2;
		}
		unused_value : coverpoint unused.value[3:0] {
			option.weight = 16;
		}
		x_value : coverpoint x.value[0:0] {
			option.weight = 2;
		}
	endgroup : field_values

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::ALL_COVERAGE);
		if (cvr & qvt_brx::FIELD_VALS) this.field_values = new(this.get_fullname());
		this.w = new(this, "w", 3, qvt_brx::WO, 3'h0, 3'hx, 0, 0, cvr);
		this.r = new(this, "r", 1, qvt_brx::RO, 1'h0, 1'hx, 3, 0, cvr);
		this.x = new(this, "x", 1, qvt_brx::RW, 1'h0, 1'hx, 8, 0, cvr);
	endfunction: new

	local virtual function void domain_coverage(string domain,
	                                            bit    rights,
	                                            int    idx);
	    if (this.can_cover(qvt_brx::REG_BITS)) begin
	        brx_cvr_reg_t3 cg;
	        cg = new(this.get_fullname(), domain);
	        this.reg_bits[idx] = cg;
	    end
	endfunction

	virtual local function void sample(bit [`QVT_BRX_DATA_WIDTH-1:0] data,
	                                   bit                           is_read,
	                                   int                           domain);
	   if (!this.is_cover_on(qvt_brx::REG_BITS)) return;
	   if (!this.reg_bits.exists(domain)) begin
	      $write("Internal BRX model error: invalid domain for %s.\n", this.get_fullname());
	      $write("Please contact brix-support@marsdale.com.\n");
	      $finish();
	   end
	   this.reg_bits[domain].sample(data, is_read);
	endfunction
endclass : brx_reg_t3

class brx_cvr_reg_t3;
	local bit [`QVT_BRX_DATA_WIDTH-1:0] data;
	local bit                           is_read;
	covergroup reg_bits (input string name);
	   option.name = name;
	   option.per_instance = 1;
	   w: coverpoint {data[2:0], is_read} {
	      wildcard bins bit_0_wr_as_0 = {4'b??00};
	      wildcard bins bit_0_wr_as_1 = {4'b??10};
	      wildcard bins bit_1_wr_as_0 = {4'b?0?0};
	      wildcard bins bit_1_wr_as_1 = {4'b?1?0};
	      wildcard bins bit_2_wr_as_0 = {4'b0??0};
	      wildcard bins bit_2_wr_as_1 = {4'b1??0};
	      option.weight = 6;
	   }
	   r: coverpoint {data[3:3], is_read} {
	      wildcard bins bit_0_wr_as_0 = {2'b00};
	      wildcard bins bit_0_wr_as_1 = {2'b10};
	      wildcard bins bit_0_rd = {2'b?1};
	      option.weight = 3;
	   }
	endgroup

	function new(string name, string domain);
	   if (domain == "") this.reg_bits = new(name);
	   else this.reg_bits = new($psprintf("%s(%s)", name, domain));
	endfunction

	function void sample(bit [`QVT_BRX_DATA_WIDTH-1:0] data,
	                     bit                           is_read);
	   this.data = data;
	   this.is_read = is_read;
	   this.reg_bits.sample();
	endfunction
endclass



class brx_regfile_rf_t;
	rand brx_reg_t3 x;
	rand qvt_brx_field x_w;
	rand qvt_brx_field w;
	qvt_brx_field x_r;
	qvt_brx_field r;
	rand qvt_brx_field x_x;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr);
		this.x = new(parent, $psprintf("%s.x",name), offset+`QVT_BRX_ADDR_WIDTH'h0, domain, cvr, 2'b11, 0);
		this.x_w = this.x.w;
		this.w = this.x.w;
		this.x_r = this.x.r;
		this.r = this.x.r;
		this.x_x = this.x.x;
	endfunction : new
endclass : brx_regfile_rf_t




class brx_cvr_block_cb;
	local bit [`QVT_BRX_ADDR_WIDTH-1:0] addr;

	covergroup a_addr_map (input string name);
		option.name = name;
		option.per_instance = 1;

		s0 : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h0 };
			option.weight = 1;
		}

		arr_0 : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h4 };
			option.weight = 1;
		}

		arr_1 : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h5 };
			option.weight = 1;
		}
	endgroup

	covergroup b_addr_map (input string name);
		option.name = name;
		option.per_instance = 1;

		s0 : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h8 };
			option.weight = 1;
		}

		rf_x : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h9 };
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
endclass : brx_cvr_block_cb


class brx_block_cb extends qvt_brx_block;
	rand brx_reg_st s0;
	rand brx_reg_t3 arr[2];
	rand brx_regfile_rf_t rf;
	rand qvt_brx_field s0_s;
	rand qvt_brx_field s;
	rand qvt_brx_field arr_w[2];
	rand qvt_brx_field w[2];
	qvt_brx_field arr_r[2];
	qvt_brx_field r[2];
	rand qvt_brx_field arr_x[2];
	rand qvt_brx_field x[2];

	local brx_cvr_block_cb __addr_map[*];

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "cb", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "cb", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "a", cover_on, qvt_brx::ALL_COVERAGE);
		this.add_domain(4, qvt_brx::LITTLE_ENDIAN, "b");
		this.s0 = new(this, "st", `QVT_BRX_ADDR_WIDTH'h0, "a", cover_on, 2'b11, 0);
		this.s0_s = this.s0.s;
		this.s = this.s0.s;
		foreach (this.arr[i]) begin
			int J = i;
			this.arr[J] = new(this, $psprintf("arr[%0d]",J), `QVT_BRX_ADDR_WIDTH'h4+J*`QVT_BRX_ADDR_WIDTH'h1, "a", cover_on, 2'b11, 0);
			this.arr_w[J] = this.arr[J].w;
			this.w[J] = this.arr[J].w;
			this.arr_r[J] = this.arr[J].r;
			this.r[J] = this.arr[J].r;
			this.arr_x[J] = this.arr[J].x;
			this.x[J] = this.arr[J].x;
		end
		this.s0.add_domain(`QVT_BRX_ADDR_WIDTH'h8, "b", 2'b11, 0);
		this.rf = new(this, "rf", `QVT_BRX_ADDR_WIDTH'h9, "b", cover_on);
		this.Xlock_modelX();
	endfunction : new

	virtual function void domain_coverage(string domain, int idx);
		if (this.can_cover(qvt_brx::ADDR_MAP)) begin
			brx_cvr_block_cb cg;
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

	function void sample_field_values();
		if (this.can_cover(qvt_brx::FIELD_VALS)) begin
			if (s0.field_values != null) s0.field_values.sample();
			if (arr.field_values != null) arr.field_values.sample();
			if (rf.x.field_values != null) rf.x.field_values.sample();
		end
	endfunction
endclass : brx_block_cb


`endif
