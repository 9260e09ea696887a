`ifndef BRX_OVF
`define BRX_OVF

`include "qvt_brx.sv"

class brx_fld_ovf_r_e;
	typedef enum bit[7:0] { 
		x = 99999999999999999999999, 
		y
	} e_values;
endclass : brx_fld_ovf_r_e


class brx_reg_ovf_r extends qvt_brx_reg;
	rand qvt_brx_field p;
	rand qvt_brx_field e;

	covergroup field_values (input string name);
		option.name = name;
		option.per_instance = 1;
		p_value : coverpoint p.value {
			bins all[] = { [0:4000000000] };
			option.weight = -294967295;
		}
		e_value : coverpoint e.value {
			bins x = { -1 };
			bins y = { 0 };
			option.weight = 2;
		}
		cross p_value, e_value {
			option.weight = -589934590;
		}
	endgroup : field_values

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::FIELD_VALS);
		if (cvr & qvt_brx::FIELD_VALS) this.field_values = new(this.get_fullname());
		this.p = new(this, "p", 8, qvt_brx::RW, 8'h0, 8'hx, 0, 0, cvr);
		this.e = new(this, "e", 8, qvt_brx::RW, 8'h0, 8'hx, 8, 0, cvr);
	endfunction: new
endclass : brx_reg_ovf_r


class brx_block_ovf extends qvt_brx_block;
	rand brx_reg_ovf_r r;
	rand qvt_brx_field r_p;
	rand qvt_brx_field p;
	rand qvt_brx_field r_e;
	rand qvt_brx_field e;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "ovf", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "ovf", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::FIELD_VALS);
		this.r = new(this, "r", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.r_p = this.r.p;
		this.p = this.r.p;
		this.r_e = this.r.e;
		this.e = this.r.e;
		this.Xlock_modelX();
	endfunction : new

	function void sample_field_values();
		if (this.can_cover(qvt_brx::FIELD_VALS)) begin
			if (r.field_values != null) r.field_values.sample();
		end
	endfunction
endclass : brx_block_ovf


`endif
