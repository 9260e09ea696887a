`ifndef BRX_HUB
`define BRX_HUB

`include "qvt_brx.sv"

class brx_reg_hub_mbox_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		data = `HUB_TOP_PATH.mbox_q;
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		`HUB_TOP_PATH.mbox_q = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_mailbox extends qvt_brx_reg;
	rand qvt_brx_field data;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.data = new(this, "data", 32, qvt_brx::RW, 32'h0, 32'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_mailbox


class brx_reg_hub_rf_mbox_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		data = `HUB_TOP_PATH.mbox_q;
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		`HUB_TOP_PATH.mbox_q = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_regfile_pair;
	rand brx_reg_mailbox mbox;
	rand qvt_brx_field mbox_data;
	rand qvt_brx_field data;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr);
		this.mbox = new(parent, $psprintf("%s.mbox",name), offset+`QVT_BRX_ADDR_WIDTH'h0, domain, cvr, 2'b11, 0);
		this.mbox_data = this.mbox.data;
		this.data = this.mbox.data;
	endfunction : new
endclass : brx_regfile_pair




class brx_block_hub extends qvt_brx_block;
	rand brx_reg_mailbox mbox;
	rand brx_regfile_pair rf[2];
	rand qvt_brx_field mbox_data;
	rand qvt_brx_field data;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "hub", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "hub", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "host", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(4, qvt_brx::LITTLE_ENDIAN, "dbg");
		this.mbox = new(this, "mailbox", `QVT_BRX_ADDR_WIDTH'h0, "host", cover_on, 2'b11, 0);
		this.mbox_data = this.mbox.data;
		this.data = this.mbox.data;
		foreach (this.rf[i]) begin
			int J = i;
			this.rf[J] = new(this, $psprintf("rf[%0d]",J), `QVT_BRX_ADDR_WIDTH'h10+J*`QVT_BRX_ADDR_WIDTH'h4, "host", cover_on);
		end
		this.mbox.add_domain(`QVT_BRX_ADDR_WIDTH'h0, "dbg", 2'b10, 0);

		//
		// Setting up backdoor access...
		//
		begin
			brx_reg_hub_mbox_bkdr bkdr = new;
			this.mbox.set_backdoor(bkdr);
		end
		foreach (this.rf[i0]) begin
			brx_reg_hub_rf_mbox_bkdr bkdr = new;
			this.rf[i0].mbox.set_backdoor(bkdr);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_hub


`endif
