`ifndef BRX_TOP2
`define BRX_TOP2

`include "qvt_brx.sv"

class brx_mem_top2_br_mb_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `TOP2_TOP_PATH.u_br.mbox_mem_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`TOP2_TOP_PATH.u_br.mbox_mem_q[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_mem_mbox_mem extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h8, 32, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_mbox_mem


class brx_block_bridge extends qvt_brx_block;
	rand brx_mem_mbox_mem mb;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "bridge", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "bridge", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "host", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(4, qvt_brx::LITTLE_ENDIAN, "dbg");
		this.mb = new(this, "mbox_mem", `QVT_BRX_ADDR_WIDTH'h0, "host", cover_on, 2'b11, 0);
		this.mb.add_domain(`QVT_BRX_ADDR_WIDTH'h0, "dbg", 2'b11, 0);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_bridge


class brx_sys_top2 extends qvt_brx_sys;
	rand brx_block_bridge br;



	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "top2", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "top2", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "cpu", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(4, qvt_brx::LITTLE_ENDIAN, "dbg");
		this.br = new(cover_on, "br", this, `QVT_BRX_ADDR_WIDTH'h0);
		this.register_block(this.br, "host", "cpu", `QVT_BRX_ADDR_WIDTH'h0);
		this.register_block(this.br, "dbg", "dbg", `QVT_BRX_ADDR_WIDTH'h0);

		//
		// Setting up backdoor access...
		//
		begin
			brx_mem_top2_br_mb_bkdr bkdr = new;
			this.br.mb.set_backdoor(bkdr);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_top2


`endif
