`ifndef BRX_VS
`define BRX_VS

`include "qvt_brx.sv"

class brx_mem_vs_b_m_bkdr extends qvt_brx_mem_backdoor;
	virtual task read(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, 
					output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
					input int scenario_id, input int stream_id);
		data = `VS_TOP_PATH.u_b.m_q[offset];
		status = qvt_rw::IS_OK;
	endtask

	virtual task write(output qvt_rw::status_e status, input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
					input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id, 
					input int scenario_id, input int stream_id);
		`VS_TOP_PATH.u_b.m_q[offset] = data;
		status = qvt_rw::IS_OK;
	endtask
endclass


