`ifndef BRX_MSYS
`define BRX_MSYS

`include "qvt_brx.sv"

class brx_mem_msys_one_m_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `MSYS_TOP_PATH.u_one.mem_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`MSYS_TOP_PATH.u_one.mem_q[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_mem_buf extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h10, 32, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_buf


class brx_block_leaf extends qvt_brx_block;
	rand brx_mem_buf m;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "leaf", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "leaf", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.m = new(this, "m", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_leaf


class brx_mem_msys_nb_t_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `MSYS_TOP_PATH.tbl_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		status = qvt_rw::ERROR;
	endtask
endclass


class brx_mem_tbl extends qvt_brx_mem;
	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, qvt_brx::RO, `QVT_BRX_ADDR_WIDTH'h4, 8, base_address, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
	endfunction: new
endclass : brx_mem_tbl


class brx_block_bare extends qvt_brx_block;
	rand brx_mem_tbl t;

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "bare", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "bare", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.t = new(this, "t", `QVT_BRX_ADDR_WIDTH'h0, "", cover_on, 2'b11, 0);
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_bare


class brx_mem_msys_arr_m_bkdr extends qvt_brx_mem_backdoor;
	int arr;

	function new(int arr);
		this.arr = arr;
	endfunction

	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `MSYS_TOP_PATH.u_arr[arr].mem_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`MSYS_TOP_PATH.u_arr[arr].mem_q[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_mem_msys_s_blk_m_bkdr extends qvt_brx_mem_backdoor;
	int s;
	int blk;

	function new(int s, int blk);
		this.s = s;
		this.blk = blk;
	endfunction

	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		case (s)
			0: case (blk)
				0: data = `MSYS_TOP_PATH.u_s0.u_blk0.mem_q[offset];
				1: data = `MSYS_TOP_PATH.u_s0.u_blk1.mem_q[offset];
			   endcase
			1: case (blk)
				0: data = `MSYS_TOP_PATH.u_s1.u_blk0.mem_q[offset];
				1: data = `MSYS_TOP_PATH.u_s1.u_blk1.mem_q[offset];
			   endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		case (s)
			0: case (blk)
				0: `MSYS_TOP_PATH.u_s0.u_blk0.mem_q[offset] = data;
				1: `MSYS_TOP_PATH.u_s0.u_blk1.mem_q[offset] = data;
			   endcase
			1: case (blk)
				0: `MSYS_TOP_PATH.u_s1.u_blk0.mem_q[offset] = data;
				1: `MSYS_TOP_PATH.u_s1.u_blk1.mem_q[offset] = data;
			   endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_sys_sub extends qvt_brx_sys;
	rand brx_block_leaf blk[2];


	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "sub", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "sub", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.blk[i]) begin
			int J = i;
			this.blk[J] = new(cover_on, $psprintf("blk[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h40);
			this.register_block(this.blk[J], "", "", `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h40);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_sub


class brx_sys_msys extends qvt_brx_sys;
	rand brx_block_leaf one;
	rand brx_block_bare nb;
	rand brx_block_leaf arr[2];
	rand brx_sys_sub s[2];


	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "msys", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "msys", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		this.one = new(cover_on, "one", this, `QVT_BRX_ADDR_WIDTH'h0);
		this.register_block(this.one, "", "", `QVT_BRX_ADDR_WIDTH'h0);
		this.nb = new(cover_on, "nb", this, `QVT_BRX_ADDR_WIDTH'h100);
		this.register_block(this.nb, "", "", `QVT_BRX_ADDR_WIDTH'h100);
		foreach (this.arr[i]) begin
			int J = i;
			this.arr[J] = new(cover_on, $psprintf("arr[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h200+J*`QVT_BRX_ADDR_WIDTH'h40);
			this.register_block(this.arr[J], "", "", `QVT_BRX_ADDR_WIDTH'h200+J*`QVT_BRX_ADDR_WIDTH'h40);
		end
		foreach (this.s[i]) begin
			int J = i;
			this.s[J] = new(cover_on, $psprintf("s[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h1000+J*`QVT_BRX_ADDR_WIDTH'h100);
			this.register_subsys(this.s[J], "", "", `QVT_BRX_ADDR_WIDTH'h1000+J*`QVT_BRX_ADDR_WIDTH'h100);
		end

		//
		// Setting up backdoor access...
		//
		begin
			brx_mem_msys_one_m_bkdr bkdr = new;
			this.one.m.set_backdoor(bkdr);
		end
		begin
			brx_mem_msys_nb_t_bkdr bkdr = new;
			this.nb.t.set_backdoor(bkdr);
		end
		foreach (this.arr[i0]) begin
			brx_mem_msys_arr_m_bkdr bkdr = new(i0);
			this.arr[i0].m.set_backdoor(bkdr);
		end
		foreach (this.s[i0]) begin
			foreach (this.s[i0].blk[i1]) begin
				brx_mem_msys_s_blk_m_bkdr bkdr = new(i0, i1);
				this.s[i0].blk[i1].m.set_backdoor(bkdr);
			end
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_msys


`endif
