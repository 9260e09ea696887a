`ifndef BRX_DMA
`define BRX_DMA

`include "qvt_brx.sv"

typedef class brx_cvr_reg_ctrl;
class brx_reg_ctrl extends qvt_brx_reg;
	rand qvt_brx_field en;
	qvt_brx_field mode;

	local brx_cvr_reg_ctrl reg_bits[*];
	covergroup field_values (input string name);
		option.name = name;
		option.per_instance = 1;
		en_value : coverpoint en.value[0:0] {
			option.weight = 2;
		}
		mode_value : coverpoint mode.value[2:0] {
			option.weight = 8;
		}
	endgroup : field_values

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, (qvt_brx::REG_BITS | qvt_brx::FIELD_VALS));
		if (cvr & qvt_brx::FIELD_VALS) this.field_values = new(this.get_fullname());
		this.en = new(this, "en", 1, qvt_brx::RW, 1'h0, 1'hx, 0, 0, cvr);
		this.mode = new(this, "mode", 3, qvt_brx::RO, 3'h0, 3'hx, 4, 0, cvr);
	endfunction: new

	local virtual function void domain_coverage(string domain,
	                                            bit    rights,
	                                            int    idx);
	    if (this.can_cover(qvt_brx::REG_BITS)) begin
	        brx_cvr_reg_ctrl cg;
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
endclass : brx_reg_ctrl

class brx_cvr_reg_ctrl;
	local bit [`QVT_BRX_DATA_WIDTH-1:0] data;
	local bit                           is_read;
	covergroup reg_bits (input string name);
	   option.name = name;
	   option.per_instance = 1;
	   en: coverpoint {data[0:0], is_read} {
	      wildcard bins bit_0_wr_as_0 = {2'b00};
	      wildcard bins bit_0_wr_as_1 = {2'b10};
	      wildcard bins bit_0_rd_as_0 = {2'b01};
	      wildcard bins bit_0_rd_as_1 = {2'b11};
	      option.weight = 4;
	   }
	   mode: coverpoint {data[6:4], is_read} {
	      wildcard bins bit_0_wr_as_0 = {4'b??00};
	      wildcard bins bit_0_wr_as_1 = {4'b??10};
	      wildcard bins bit_0_rd = {4'b???1};
	      wildcard bins bit_1_wr_as_0 = {4'b?0?0};
	      wildcard bins bit_1_wr_as_1 = {4'b?1?0};
	      wildcard bins bit_1_rd = {4'b???1};
	      wildcard bins bit_2_wr_as_0 = {4'b0??0};
	      wildcard bins bit_2_wr_as_1 = {4'b1??0};
	      wildcard bins bit_2_rd = {4'b???1};
	      option.weight = 9;
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



class brx_block_dma extends qvt_brx_block;
	rand brx_reg_ctrl ctrl;
	rand qvt_brx_field ctrl_en;
	rand qvt_brx_field en;
	qvt_brx_field ctrl_mode;
	qvt_brx_field mode;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "dma", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "dma", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, (qvt_brx::REG_BITS | qvt_brx::FIELD_VALS));
		this.ctrl = new(this, "ctrl", `QVT_BRX_ADDR_WIDTH'h10, "", cover_on, 2'b11, 0);
		this.ctrl_en = this.ctrl.en;
		this.en = this.ctrl.en;
		this.ctrl_mode = this.ctrl.mode;
		this.mode = this.ctrl.mode;
		this.Xlock_modelX();
	endfunction : new

	function void sample_field_values();
		if (this.can_cover(qvt_brx::FIELD_VALS)) begin
			if (ctrl.field_values != null) ctrl.field_values.sample();
		end
	endfunction
endclass : brx_block_dma


`endif
