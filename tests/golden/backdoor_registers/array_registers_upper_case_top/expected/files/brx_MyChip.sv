`ifndef BRX_MYCHIP
`define BRX_MYCHIP

`include "qvt_brx.sv"

class brx_reg_MyChip_sc_bkdr extends qvt_brx_reg_backdoor;
	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		data = `MYCHIP_TOP_PATH.sc_q;
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		`MYCHIP_TOP_PATH.sc_q = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_word extends qvt_brx_reg;
	rand qvt_brx_field v;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.v = new(this, "v", 32, qvt_brx::RW, 32'h0, 32'hx, 0, 0, cvr);
	endfunction: new
endclass : brx_reg_word


class brx_reg_MyChip_pct_bkdr extends qvt_brx_reg_backdoor;
	int pct;

	function new(int pct);
		this.pct = pct;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (pct)
		0:	 data = `MYCHIP_TOP_PATH.pct_q0;
		1:	 data = `MYCHIP_TOP_PATH.pct_q1;
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (pct)
		0:	 `MYCHIP_TOP_PATH.pct_q0 = data;
		1:	 `MYCHIP_TOP_PATH.pct_q1 = data;
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_MyChip_brk_bkdr extends qvt_brx_reg_backdoor;
	int brk;

	function new(int brk);
		this.brk = brk;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (brk)
		0:	 data = `MYCHIP_TOP_PATH.brk_q[brk];
		1:	 data = `MYCHIP_TOP_PATH.brk_q[brk];
		2:	 data = `MYCHIP_TOP_PATH.brk_q[brk];
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (brk)
		0:	 `MYCHIP_TOP_PATH.brk_q[brk] = data;
		1:	 `MYCHIP_TOP_PATH.brk_q[brk] = data;
		2:	 `MYCHIP_TOP_PATH.brk_q[brk] = data;
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_mem_MyChip_mem_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `MYCHIP_TOP_PATH.mem_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`MYCHIP_TOP_PATH.mem_q[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_mem_ram extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h10, 32, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_ram


class brx_mem_MyChip_boot_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `MYCHIP_TOP_PATH.rom_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		status = qvt_rw::ERROR;
	endtask
endclass


class brx_mem_rom extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RO, `QVT_BRX_ADDR_WIDTH'h8, 16, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_rom


class brx_block_MyChip extends qvt_brx_block;
	rand brx_reg_word sc;
	rand brx_reg_word pct[2];
	rand brx_reg_word brk[3];
	rand brx_reg_word nopath;
	rand brx_mem_ram mem;
	rand brx_mem_rom boot;
	rand qvt_brx_field sc_v;
	rand qvt_brx_field pct_v[2];
	rand qvt_brx_field brk_v[3];
	rand qvt_brx_field nopath_v;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "MyChip", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "MyChip", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.sc = new(this, "sc", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.sc_v = this.sc.v;
		foreach (this.pct[i]) begin
			int J = i;
			this.pct[J] = new(this, $psprintf("pct[%0d]",J), `QVT_BRX_ADDR_WIDTH'h4+J*`QVT_BRX_ADDR_WIDTH'h1, "", cover_on, 2'b11, 0);
			this.pct_v[J] = this.pct[J].v;
		end
		foreach (this.brk[i]) begin
			int J = i;
			this.brk[J] = new(this, $psprintf("brk[%0d]",J), `QVT_BRX_ADDR_WIDTH'h10+J*`QVT_BRX_ADDR_WIDTH'h1, "", cover_on, 2'b11, 0);
			this.brk_v[J] = this.brk[J].v;
		end
		this.nopath = new(this, "nopath", `QVT_BRX_ADDR_WIDTH'h20, "", cover_on, 2'b11, 0);
		this.nopath_v = this.nopath.v;
		this.mem = new(this, "mem", `QVT_BRX_ADDR_WIDTH'h100, "", cover_on, 2'b11, 0);
		this.boot = new(this, "boot", `QVT_BRX_ADDR_WIDTH'h200, "", cover_on, 2'b11, 0);

		//
		// Setting up backdoor access...
		//
		begin
			brx_reg_MyChip_sc_bkdr bkdr = new;
			this.sc.set_backdoor(bkdr);
		end
		foreach (this.pct[i0]) begin
			brx_reg_MyChip_pct_bkdr bkdr = new(i0);
			this.pct[i0].set_backdoor(bkdr);
		end
		foreach (this.brk[i0]) begin
			brx_reg_MyChip_brk_bkdr bkdr = new(i0);
			this.brk[i0].set_backdoor(bkdr);
		end
		begin
			brx_mem_MyChip_mem_bkdr bkdr = new;
			this.mem.set_backdoor(bkdr);
		end
		begin
			brx_mem_MyChip_boot_bkdr bkdr = new;
			this.boot.set_backdoor(bkdr);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_MyChip


`endif
