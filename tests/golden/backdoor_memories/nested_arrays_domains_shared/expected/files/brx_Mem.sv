`ifndef BRX_MEM
`define BRX_MEM

`include "qvt_brx.sv"

class brx_mem_Mem_g_l_m_bkdr extends qvt_brx_mem_backdoor;
	int g;
	int l;

	function new(int g, int l);
		this.g = g;
		this.l = l;
	endfunction

	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		case (g)
			0: data = `MEM_TOP_PATH.u_g0.u_l[l].mem_q[offset];
			1: data = `MEM_TOP_PATH.u_g1.u_l[l].mem_q[offset];
			2: data = `MEM_TOP_PATH.u_g2.u_l[l].mem_q[offset];
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		case (g)
			0: `MEM_TOP_PATH.u_g0.u_l[l].mem_q[offset] = data;
			1: `MEM_TOP_PATH.u_g1.u_l[l].mem_q[offset] = data;
			2: `MEM_TOP_PATH.u_g2.u_l[l].mem_q[offset] = data;
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_mem_Mem_g_l_s_bkdr extends qvt_brx_mem_backdoor;
	int g;
	int l;

	function new(int g, int l);
		this.g = g;
		this.l = l;
	endfunction

	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		case (g)
			0: data = `MEM_TOP_PATH.u_g0.u_l[l].sh_q[offset];
			1: data = `MEM_TOP_PATH.u_g1.u_l[l].sh_q[offset];
			2: data = `MEM_TOP_PATH.u_g2.u_l[l].sh_q[offset];
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		status = qvt_rw::ERROR;
	endtask
endclass


class brx_mem_buf extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h10, 32, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_buf


class brx_mem_sh extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RO, `QVT_BRX_ADDR_WIDTH'h4, 8, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_sh


class brx_block_leaf extends qvt_brx_block;
	rand brx_mem_buf m;
	rand brx_mem_sh s;
	rand brx_mem_buf mb;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "leaf", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "leaf", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "a", cover_on, qvt_brx::NO_COVERAGE);
		this.add_domain(4, qvt_brx::LITTLE_ENDIAN, "b");
		this.m = new(this, "m", `QVT_BRX_ADDR_WIDTH'h0, "a", cover_on, 2'b11, 0);
		this.s = new(this, "sh", `QVT_BRX_ADDR_WIDTH'h100, "a", cover_on, 2'b11, 0);
		this.mb = new(this, "mb", `QVT_BRX_ADDR_WIDTH'h0, "b", cover_on, 2'b11, 0);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_leaf


class brx_sys_grp extends qvt_brx_sys;
	rand brx_block_leaf l[2];


	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "grp", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "grp", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.l[i]) begin
			int J = i;
			this.l[J] = new(cover_on, $psprintf("l[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h200);
			this.register_block(this.l[J], "a", "", `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h200);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_grp


class brx_mem_Mem_x_mb_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `MEM_TOP_PATH.u_x.mb_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`MEM_TOP_PATH.u_x.mb_q[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_mem_Mem_y_m_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `MEM_TOP_PATH.mem_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`MEM_TOP_PATH.mem_q[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_mem_Mem_y_s_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `MEM_TOP_PATH.sh_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		status = qvt_rw::ERROR;
	endtask
endclass


class brx_sys_Mem extends qvt_brx_sys;
	rand brx_sys_grp g[3];
	rand brx_block_leaf x;
	rand brx_block_leaf y;


	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "Mem", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "Mem", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.g[i]) begin
			int J = i;
			this.g[J] = new(cover_on, $psprintf("g[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h1000);
			this.register_subsys(this.g[J], "", "", `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h1000);
		end
		this.x = new(cover_on, "x", this, `QVT_BRX_ADDR_WIDTH'h8000);
		this.register_block(this.x, "b", "", `QVT_BRX_ADDR_WIDTH'h8000);
		this.y = new(cover_on, "y", this, `QVT_BRX_ADDR_WIDTH'h9000);
		this.register_block(this.y, "a", "", `QVT_BRX_ADDR_WIDTH'h9000);

		//
		// Setting up backdoor access...
		//
		foreach (this.g[i0]) begin
			foreach (this.g[i0].l[i1]) begin
				brx_mem_Mem_g_l_m_bkdr bkdr = new(i0, i1);
				this.g[i0].l[i1].m.set_backdoor(bkdr);
			end
		end
		foreach (this.g[i0]) begin
			foreach (this.g[i0].l[i1]) begin
				brx_mem_Mem_g_l_s_bkdr bkdr = new(i0, i1);
				this.g[i0].l[i1].s.set_backdoor(bkdr);
			end
		end
		begin
			brx_mem_Mem_x_mb_bkdr bkdr = new;
			this.x.mb.set_backdoor(bkdr);
		end
		begin
			brx_mem_Mem_y_m_bkdr bkdr = new;
			this.y.m.set_backdoor(bkdr);
		end
		begin
			brx_mem_Mem_y_s_bkdr bkdr = new;
			this.y.s.set_backdoor(bkdr);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_Mem


`endif
