`ifndef BRX_ACC_BLK
`define BRX_ACC_BLK

`include "qvt_brx.sv"

typedef class brx_cvr_reg_acc;
class brx_reg_acc extends qvt_brx_reg;
	rand qvt_brx_field cmd;
	qvt_brx_field flag;
	rand qvt_brx_field level;
	rand qvt_brx_field quiet;

	local brx_cvr_reg_acc reg_bits[*];
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::REG_BITS);
		this.cmd = new(this, "cmd", 2, qvt_brx::WO, 2'h0, 2'hx, 0, 0, cvr);
		this.flag = new(this, "flag", 1, qvt_brx::RO, 1'h0, 1'hx, 2, 0, cvr);
		this.level = new(this, "level", 2, qvt_brx::RW, 2'h0, 2'hx, 4, 0, cvr);
		this.quiet = new(this, "quiet", 1, qvt_brx::RW, 1'h0, 1'hx, 6, 0, cvr);
	endfunction: new

	local virtual function void domain_coverage(string domain,
	                                            bit    rights,
	                                            int    idx);
	    if (this.can_cover(qvt_brx::REG_BITS)) begin
	        brx_cvr_reg_acc cg;
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
endclass : brx_reg_acc

class brx_cvr_reg_acc;
	local bit [`QVT_BRX_DATA_WIDTH-1:0] data;
	local bit                           is_read;
	covergroup reg_bits (input string name);
	   option.name = name;
	   option.per_instance = 1;
	   cmd: coverpoint {data[1:0], is_read} {
	      wildcard bins bit_0_wr_as_0 = {3'b?00};
	      wildcard bins bit_0_wr_as_1 = {3'b?10};
	      wildcard bins bit_1_wr_as_0 = {3'b0?0};
	      wildcard bins bit_1_wr_as_1 = {3'b1?0};
	      option.weight = 4;
	   }
	   flag: coverpoint {data[2:2], is_read} {
	      wildcard bins bit_0_wr_as_0 = {2'b00};
	      wildcard bins bit_0_wr_as_1 = {2'b10};
	      wildcard bins bit_0_rd = {2'b?1};
	      option.weight = 3;
	   }
	   level: coverpoint {data[5:4], is_read} {
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



class brx_block_acc_blk extends qvt_brx_block;
	rand brx_reg_acc acc;
	rand qvt_brx_field acc_cmd;
	rand qvt_brx_field cmd;
	qvt_brx_field acc_flag;
	qvt_brx_field flag;
	rand qvt_brx_field acc_level;
	rand qvt_brx_field level;
	rand qvt_brx_field acc_quiet;
	rand qvt_brx_field quiet;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "acc_blk", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "acc_blk", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::REG_BITS);
		this.acc = new(this, "acc", `QVT_BRX_ADDR_WIDTH'h8, "", cover_on, 2'b11, 0);
		this.acc_cmd = this.acc.cmd;
		this.cmd = this.acc.cmd;
		this.acc_flag = this.acc.flag;
		this.flag = this.acc.flag;
		this.acc_level = this.acc.level;
		this.level = this.acc.level;
		this.acc_quiet = this.acc.quiet;
		this.quiet = this.acc.quiet;
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_acc_blk


`endif
