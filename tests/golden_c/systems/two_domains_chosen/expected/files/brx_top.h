#ifndef __BRX_TOP_H__
#define __BRX_TOP_H__


#ifndef QVT_BRX_PURE_C_MODEL
#define QVT_BRX_C_INTF_FOR_SV_MODEL
#endif


#include "qvt_brx.h"



/***
 * Top Level Domain/Physical Interface width ...
 */
#define brx_top_domain_width	0x2



/***
 * Size of Register 'dcsr' in Block 'bridge' ...
 */
#define brx_size_of_dcsr_in_bridge		0x4




#ifdef QVT_BRX_PURE_C_MODEL

/***
 * Macros to access Register 'dcsr' in Block 'bridge' ...
 */
#define brx_addr_of_dcsr_in_bridge(blk)	((size_t) blk + 0x8)

#define brx_read_dcsr_in_bridge(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_dcsr_in_bridge(blk), 0x2, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_dcsr_in_bridge(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_dcsr_in_bridge(blk), 0x2, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'dcsr' in Block 'bridge' ...
 */
#define brx_read_go_in_bridge_dcsr(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x1, fld)

#define brx_read_go_in_bridge(blk, fld) \
	brx_read_go_in_bridge_dcsr( \
	brx_addr_of_dcsr_in_bridge(blk), fld)

#define brx_write_go_in_bridge_dcsr(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x1, fld)

#define brx_write_go_in_bridge(blk, fld) \
	brx_write_go_in_bridge_dcsr( \
	brx_addr_of_dcsr_in_bridge(blk), fld)

#define brx_get_go_in_bridge_dcsr(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x1, fld)

#define brx_read_go_in_bridge(blk, fld) \
	brx_read_go_in_bridge_dcsr( \
	brx_addr_of_dcsr_in_bridge(blk), fld)

#define brx_set_go_in_bridge_dcsr(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x1, fld)

#define brx_write_go_in_bridge(blk, fld) \
	brx_write_go_in_bridge_dcsr( \
	brx_addr_of_dcsr_in_bridge(blk), fld)



/***
 * Macros to access Block 'br' in System 'top' ...
 */
#define brx_addr_of_br_in_top(sys)	((size_t) sys + 0x0)



/***
 * Macros to access Block 'hb' in System 'top' ...
 */
#define brx_addr_of_hb_in_top(sys)	((size_t) sys + 0x10)



#else



/***
 * Macros to access Register 'dcsr' in Block 'bridge' ...
 */
#define brx_addr_of_dcsr_in_bridge(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "dcsr", -1))

#define brx_read_dcsr_in_bridge(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_dcsr_in_bridge(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_dcsr_in_bridge(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_dcsr_in_bridge(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'dcsr' in Block 'bridge' ...
 */
#define brx_read_go_in_bridge_dcsr(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'go', failed to read register 'dcsr' in block 'bridge'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x1, fld);\
	}

#define brx_read_go_in_bridge(blk, fld) \
	brx_read_go_in_bridge_dcsr( \
	brx_addr_of_dcsr_in_bridge(blk), fld)

#define brx_write_go_in_bridge_dcsr(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'go', failed to read register 'dcsr' in block 'bridge'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x1, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'go' of register 'dcsr' in block 'bridge'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_go_in_bridge(blk, fld) \
	brx_write_go_in_bridge_dcsr( \
	brx_addr_of_dcsr_in_bridge(blk), fld)

#define brx_get_go_in_bridge_dcsr(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x1, fld)

#define brx_read_go_in_bridge(blk, fld) \
	brx_read_go_in_bridge_dcsr( \
	brx_addr_of_dcsr_in_bridge(blk), fld)

#define brx_set_go_in_bridge_dcsr(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x1, fld)

#define brx_write_go_in_bridge(blk, fld) \
	brx_write_go_in_bridge_dcsr( \
	brx_addr_of_dcsr_in_bridge(blk), fld)



/***
 * Macros to access Block 'br' in System 'top' ...
 */
#define brx_addr_of_br_in_top(sys)	((size_t) qvt_brx_sys__get_block_by_name(sys, "br", -1))



/***
 * Macros to access Block 'hb' in System 'top' ...
 */
#define brx_addr_of_hb_in_top(sys)	((size_t) qvt_brx_sys__get_block_by_name(sys, "hb", -1))


#endif
#endif
