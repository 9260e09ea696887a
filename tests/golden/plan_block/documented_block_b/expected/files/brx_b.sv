`ifndef BRX_B
`define BRX_B

`include "qvt_brx.sv"

typedef class brx_cvr_reg_r_t;
class brx_reg_r_t extends qvt_brx_reg;
	rand qvt_brx_field f0;
	rand qvt_brx_field f1;

	local brx_cvr_reg_r_t reg_bits[*];
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, (qvt_brx::ADDR_MAP | qvt_brx::REG_BITS));
		this.f0 = new(this, "f0", 1, qvt_brx::RW, 1'h0, 1'hx, 0, 0, cvr);
		this.f1 = new(this, "f1", 1, qvt_brx::RW, 1'h0, 1'hx, 1, 0, cvr);
	endfunction: new

	local virtual function void domain_coverage(string domain,
	                                            bit    rights,
	                                            int    idx);
	    if (this.can_cover(qvt_brx::REG_BITS)) begin
	        brx_cvr_reg_r_t cg;
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
endclass : brx_reg_r_t

class brx_cvr_reg_r_t;
	local bit [`QVT_BRX_DATA_WIDTH-1:0] data;
	local bit                           is_read;
	covergroup reg_bits (input string name);
	   option.name = name;
	   option.per_instance = 1;
	   f0: coverpoint {data[0:0], is_read} {
	      wildcard bins bit_0_wr_as_0 = {2'b00};
	      wildcard bins bit_0_wr_as_1 = {2'b10};
	      wildcard bins bit_0_rd_as_0 = {2'b01};
	      wildcard bins bit_0_rd_as_1 = {2'b11};
	      option.weight = 4;
	   }
	   f1: coverpoint {data[1:1], is_read} {
	      wildcard bins bit_0_wr_as_0 = {2'b00};
	      wildcard bins bit_0_wr_as_1 = {2'b10};
	      wildcard bins bit_0_rd_as_0 = {2'b01};
	      wildcard bins bit_0_rd_as_1 = {2'b11};
	      option.weight = 4;
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



class brx_cvr_block_b;
	local bit [`QVT_BRX_ADDR_WIDTH-1:0] addr;

	covergroup addr_map (input string name);
		option.name = name;
		option.per_instance = 1;

		r : coverpoint addr {
			bins accessed = { `QVT_BRX_ADDR_WIDTH'h0 };
			option.weight = 1;
		}
	endgroup

	function new (string name);
		this.addr_map = new($psprintf("%s", name));
	endfunction

	function void sample(bit [`QVT_BRX_ADDR_WIDTH-1:0] addr);
		this.addr = addr;
		this.addr_map.sample();
	endfunction
endclass : brx_cvr_block_b


class brx_block_b extends qvt_brx_block;
	rand brx_reg_r_t r;
	rand qvt_brx_field r_f0;
	rand qvt_brx_field f0;
	rand qvt_brx_field r_f1;
	rand qvt_brx_field f1;

	local brx_cvr_block_b __addr_map[*];

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "b", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "b", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, (qvt_brx::ADDR_MAP | qvt_brx::REG_BITS));
		this.r = new(this, "r", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.r_f0 = this.r.f0;
		this.f0 = this.r.f0;
		this.r_f1 = this.r.f1;
		this.f1 = this.r.f1;
		this.Xlock_modelX();
	endfunction : new

	virtual function void domain_coverage(string domain, int idx);
		if (this.can_cover(qvt_brx::ADDR_MAP)) begin
			brx_cvr_block_b cg;
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
endclass : brx_block_b


`endif
