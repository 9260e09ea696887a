`ifndef BRX_KNOBS_BLK
`define BRX_KNOBS_BLK

`include "qvt_brx.sv"

class brx_fld_knobs_mode;
	typedef enum bit[1:0] { 
		idle, 
		run = 2, 
		halt
	} mode_values;
endclass : brx_fld_knobs_mode


class brx_fld_knobs_state;
	typedef enum bit[1:0] { 
		idle, 
		busy = 3
	} state_values;
endclass : brx_fld_knobs_state


class brx_reg_knobs extends qvt_brx_reg;
	rand qvt_brx_field nib;
	rand qvt_brx_field wide;
	rand qvt_brx_field two;
	rand qvt_brx_field three;
	rand qvt_brx_field mode;
	rand qvt_brx_field pick;
	rand qvt_brx_field state;

	covergroup field_values (input string name);
		option.name = name;
		option.per_instance = 1;
		nib_value : coverpoint nib.value[3:0] {
			option.weight = 16;
		}
		wide_value : coverpoint wide.value {
			bins min = { 5'h0 };
			bins max = { 5'h1F };
			bins others = { [5'h1:5'h1E] };
			option.weight = 3;
		}
		two_value : coverpoint two.value[1:0] {
			option.weight = 4;
		}
		three_value : coverpoint three.value[2:0] {
			option.weight = 0;
		}
		mode_value : coverpoint mode.value {
			bins idle = { 0 };
			bins run = { 2 };
			bins halt = { 3 };
			option.weight = 3;
		}
		pick_value : coverpoint pick.value {
			bins lo[] = { 1, [3:5], 4 };
			bins some[4] = { [0:15] };
			bins one = { 2 };
			bins rest = default;
			option.weight = 10;
		}
		state_value : coverpoint state.value {
			bins lo = { brx_fld_knobs_state::idle };
			bins any[] = { [brx_fld_knobs_state::idle:brx_fld_knobs_state::busy] };
			option.weight = 5;
		}
		tt : cross two_value, three_value {
			option.weight = 32;
		}
		cross tt, nib_value {
			option.weight = 512;
		}
	endgroup : field_values

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::FIELD_VALS);
		if (cvr & qvt_brx::FIELD_VALS) this.field_values = new(this.get_fullname());
		this.nib = new(this, "nib", 4, qvt_brx::RW, 4'h0, 4'hx, 0, 0, cvr);
		this.wide = new(this, "wide", 5, qvt_brx::RW, 5'h0, 5'hx, 4, 0, cvr);
		this.two = new(this, "two", 2, qvt_brx::RW, 2'h0, 2'hx, 9, 0, cvr);
		this.three = new(this, "three", 3, qvt_brx::RW, 3'h0, 3'hx, 11, 0, cvr);
		this.mode = new(this, "mode", 2, qvt_brx::RW, 2'h0, 2'hx, 14, 0, cvr);
		this.pick = new(this, "pick", 8, qvt_brx::RW, 8'h0, 8'hx, 16, 0, cvr);
		this.state = new(this, "state", 2, qvt_brx::RW, 2'h0, 2'hx, 24, 0, cvr);
	endfunction: new
endclass : brx_reg_knobs


class brx_block_knobs_blk extends qvt_brx_block;
	rand brx_reg_knobs knobs;
	rand qvt_brx_field knobs_nib;
	rand qvt_brx_field nib;
	rand qvt_brx_field knobs_wide;
	rand qvt_brx_field wide;
	rand qvt_brx_field knobs_two;
	rand qvt_brx_field two;
	rand qvt_brx_field knobs_three;
	rand qvt_brx_field three;
	rand qvt_brx_field knobs_mode;
	rand qvt_brx_field mode;
	rand qvt_brx_field knobs_pick;
	rand qvt_brx_field pick;
	rand qvt_brx_field knobs_state;
	rand qvt_brx_field state;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "knobs_blk", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "knobs_blk", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::FIELD_VALS);
		this.knobs = new(this, "knobs", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.knobs_nib = this.knobs.nib;
		this.nib = this.knobs.nib;
		this.knobs_wide = this.knobs.wide;
		this.wide = this.knobs.wide;
		this.knobs_two = this.knobs.two;
		this.two = this.knobs.two;
		this.knobs_three = this.knobs.three;
		this.three = this.knobs.three;
		this.knobs_mode = this.knobs.mode;
		this.mode = this.knobs.mode;
		this.knobs_pick = this.knobs.pick;
		this.pick = this.knobs.pick;
		this.knobs_state = this.knobs.state;
		this.state = this.knobs.state;
		this.Xlock_modelX();
	endfunction : new

	function void sample_field_values();
		if (this.can_cover(qvt_brx::FIELD_VALS)) begin
			if (knobs.field_values != null) knobs.field_values.sample();
		end
	endfunction
endclass : brx_block_knobs_blk


`endif
