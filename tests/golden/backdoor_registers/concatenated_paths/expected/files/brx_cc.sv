`ifndef BRX_CC
`define BRX_CC

`include "qvt_brx.sv"

class brx_reg_cc_b_cat_bkdr extends qvt_brx_reg_backdoor;
	int b;

	function new(int b);
		this.b = b;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (b)
			0: data = {
				`CC_TOP_PATH.u_b0.hi_q,
				`CC_TOP_PATH.u_b0.lo_q
			};
			1: data = {
				`CC_TOP_PATH.u_b1.hi_q,
				`CC_TOP_PATH.u_b1.lo_q
			};
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (b)
			0: {
			`CC_TOP_PATH.u_b0.hi_q,
			`CC_TOP_PATH.u_b0.lo_q
			} = data;
			1: {
			`CC_TOP_PATH.u_b1.hi_q,
			`CC_TOP_PATH.u_b1.lo_q
			} = data;
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_cc_b_catarr_bkdr extends qvt_brx_reg_backdoor;
	int b;
	int catarr;

	function new(int b, int catarr);
		this.b = b;
		this.catarr = catarr;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (b)
			0: case (catarr)
			0:	 data = {
					`CC_TOP_PATH.u_b0.hi0_q,
					`CC_TOP_PATH.u_b0.lo0_q
				};
			1:	 data = {
					`CC_TOP_PATH.u_b0.hi1_q,
					`CC_TOP_PATH.u_b0.lo1_q
				};
			endcase
			1: case (catarr)
			0:	 data = {
					`CC_TOP_PATH.u_b1.hi0_q,
					`CC_TOP_PATH.u_b1.lo0_q
				};
			1:	 data = {
					`CC_TOP_PATH.u_b1.hi1_q,
					`CC_TOP_PATH.u_b1.lo1_q
				};
			endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (b)
			0: case (catarr)
			0:	 {
				`CC_TOP_PATH.u_b0.hi0_q,
				`CC_TOP_PATH.u_b0.lo0_q
				} = data;
			1:	 {
				`CC_TOP_PATH.u_b0.hi1_q,
				`CC_TOP_PATH.u_b0.lo1_q
				} = data;
			endcase
			1: case (catarr)
			0:	 {
				`CC_TOP_PATH.u_b1.hi0_q,
				`CC_TOP_PATH.u_b1.lo0_q
				} = data;
			1:	 {
				`CC_TOP_PATH.u_b1.hi1_q,
				`CC_TOP_PATH.u_b1.lo1_q
				} = data;
			endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_wide extends qvt_brx_reg;
	rand qvt_brx_field hi;
	rand qvt_brx_field lo;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.hi = new(this, "hi", 16, qvt_brx::RW, 16'h0, 16'hx, 0, 0, cvr);
		this.lo = new(this, "lo", 16, qvt_brx::RW, 16'h0, 16'hx, 16, 0, cvr);
	endfunction: new
endclass : brx_reg_wide


class brx_block_cb extends qvt_brx_block;
	rand brx_reg_wide cat;
	rand brx_reg_wide catarr[2];
	rand qvt_brx_field cat_hi;
	rand qvt_brx_field cat_lo;
	rand qvt_brx_field catarr_hi[2];
	rand qvt_brx_field catarr_lo[2];

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "cb", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "cb", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.cat = new(this, "cat", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.cat_hi = this.cat.hi;
		this.cat_lo = this.cat.lo;
		foreach (this.catarr[i]) begin
			int J = i;
			this.catarr[J] = new(this, $psprintf("catarr[%0d]",J), `QVT_BRX_ADDR_WIDTH'h4+J*`QVT_BRX_ADDR_WIDTH'h1, "", cover_on, 2'b11, 0);
			this.catarr_hi[J] = this.catarr[J].hi;
			this.catarr_lo[J] = this.catarr[J].lo;
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_cb


class brx_sys_cc extends qvt_brx_sys;
	rand brx_block_cb b[2];


	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "cc", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "cc", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.b[i]) begin
			int J = i;
			this.b[J] = new(cover_on, $psprintf("b[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h10);
			this.register_block(this.b[J], "", "", `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h10);
		end

		//
		// Setting up backdoor access...
		//
		foreach (this.b[i0]) begin
			brx_reg_cc_b_cat_bkdr bkdr = new(i0);
			this.b[i0].cat.set_backdoor(bkdr);
		end
		foreach (this.b[i0]) begin
			foreach (this.b[i0].catarr[i1]) begin
				brx_reg_cc_b_catarr_bkdr bkdr = new(i0, i1);
				this.b[i0].catarr[i1].set_backdoor(bkdr);
			end
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_cc


`endif
