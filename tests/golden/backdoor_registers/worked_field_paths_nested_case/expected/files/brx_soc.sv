`ifndef BRX_SOC
`define BRX_SOC

`include "qvt_brx.sv"

class brx_reg_soc_dma_chan_ctrl_bkdr extends qvt_brx_reg_backdoor;
	int dma;
	int chan;

	function new(int dma, int chan);
		this.dma = dma;
		this.chan = chan;
	endfunction

	virtual task read(output qvt_rw::status_e status, output bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (dma)
			0: case (chan)
				0: begin
					data = `QVT_BRX_DATA_WIDTH'h0;
					data[0:0] = `SOC_TOP_PATH.u_dma0.ch0.ctrl_q.en_q;
					data[2:1] = `SOC_TOP_PATH.u_dma0.ch0.ctrl_q.mode_q;
				end
				1: begin
					data = `QVT_BRX_DATA_WIDTH'h0;
					data[0:0] = `SOC_TOP_PATH.u_dma0.ch1.ctrl_q.en_q;
					data[2:1] = `SOC_TOP_PATH.u_dma0.ch1.ctrl_q.mode_q;
				end
			   endcase
			1: case (chan)
				0: begin
					data = `QVT_BRX_DATA_WIDTH'h0;
					data[0:0] = `SOC_TOP_PATH.u_dma1.ch0.ctrl_q.en_q;
					data[2:1] = `SOC_TOP_PATH.u_dma1.ch0.ctrl_q.mode_q;
				end
				1: begin
					data = `QVT_BRX_DATA_WIDTH'h0;
					data[0:0] = `SOC_TOP_PATH.u_dma1.ch1.ctrl_q.en_q;
					data[2:1] = `SOC_TOP_PATH.u_dma1.ch1.ctrl_q.mode_q;
				end
			   endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_DATA_WIDTH-1:0] data, 
					input int data_id, input int scenario_id, input int stream_id);
		case (dma)
			0: case (chan)
				0: begin
					`SOC_TOP_PATH.u_dma0.ch0.ctrl_q.en_q = data[0:0];
					`SOC_TOP_PATH.u_dma0.ch0.ctrl_q.mode_q = data[2:1];
				end
				1: begin
					`SOC_TOP_PATH.u_dma0.ch1.ctrl_q.en_q = data[0:0];
					`SOC_TOP_PATH.u_dma0.ch1.ctrl_q.mode_q = data[2:1];
				end
			   endcase
			1: case (chan)
				0: begin
					`SOC_TOP_PATH.u_dma1.ch0.ctrl_q.en_q = data[0:0];
					`SOC_TOP_PATH.u_dma1.ch0.ctrl_q.mode_q = data[2:1];
				end
				1: begin
					`SOC_TOP_PATH.u_dma1.ch1.ctrl_q.en_q = data[0:0];
					`SOC_TOP_PATH.u_dma1.ch1.ctrl_q.mode_q = data[2:1];
				end
			   endcase
		endcase
		status = qvt_rw::IS_OK;
	endtask
endclass


class brx_reg_ctrl extends qvt_brx_reg;
	rand qvt_brx_field en;
	rand qvt_brx_field mode;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr, 
				bit[1:0] rights = 2'b11, bit unmapped = 0);
		super.new(parent, name, 32, offset, domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);
		this.en = new(this, "en", 1, qvt_brx::RW, 1'h0, 1'hx, 0, 0, cvr);
		this.mode = new(this, "mode", 2, qvt_brx::RW, 2'h0, 2'hx, 1, 0, cvr);
	endfunction: new
endclass : brx_reg_ctrl


class brx_regfile_chan;
	rand brx_reg_ctrl ctrl;
	rand qvt_brx_field ctrl_en;
	rand qvt_brx_field en;
	rand qvt_brx_field ctrl_mode;
	rand qvt_brx_field mode;

	function new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr);
		this.ctrl = new(parent, $psprintf("%s.ctrl",name), offset+`QVT_BRX_ADDR_WIDTH'h0, domain, cvr, 2'b11, 0);
		this.ctrl_en = this.ctrl.en;
		this.en = this.ctrl.en;
		this.ctrl_mode = this.ctrl.mode;
		this.mode = this.ctrl.mode;
	endfunction : new
endclass : brx_regfile_chan




class brx_block_dma extends qvt_brx_block;
	rand brx_regfile_chan chan[2];

	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "dma", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "dma", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.chan[i]) begin
			int J = i;
			this.chan[J] = new(this, $psprintf("chan[%0d]",J), `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h4, "", cover_on);
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_block_dma


class brx_sys_soc extends qvt_brx_sys;
	rand brx_block_dma dma[2];


	function new(int cover_on = qvt_brx::NO_COVERAGE, string name = "soc", qvt_brx_sys parent = null, integer base_addr = 0);
		super.new(parent, name, "soc", 4, qvt_brx::LITTLE_ENDIAN, base_addr, "", cover_on, qvt_brx::NO_COVERAGE);
		foreach (this.dma[i]) begin
			int J = i;
			this.dma[J] = new(cover_on, $psprintf("dma[%0d]",J), this, `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h10);
			this.register_block(this.dma[J], "", "", `QVT_BRX_ADDR_WIDTH'h0+J*`QVT_BRX_ADDR_WIDTH'h10);
		end

		//
		// Setting up backdoor access...
		//
		foreach (this.dma[i0]) begin
			foreach (this.dma[i0].chan[i1]) begin
				brx_reg_soc_dma_chan_ctrl_bkdr bkdr = new(i0, i1);
				this.dma[i0].chan[i1].ctrl.set_backdoor(bkdr);
			end
		end
		this.Xlock_modelX();
	endfunction : new
endclass : brx_sys_soc


`endif
