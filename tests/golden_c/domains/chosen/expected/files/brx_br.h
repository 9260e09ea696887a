#ifndef __BRX_BR_H__
#define __BRX_BR_H__


#ifndef QVT_BRX_PURE_C_MODEL
#define QVT_BRX_C_INTF_FOR_SV_MODEL
#endif


#include "qvt_brx.h"



/***
 * Top Level Domain/Physical Interface width ...
 */
#define brx_top_domain_width	0x2



/***
 * Size of Register 'stat' in Block 'br' ...
 */
#define brx_size_of_stat_in_br		0x2



/***
 * Size of Register 'dcsr' in Block 'br' ...
 */
#define brx_size_of_dcsr_in_br		0x4




#ifdef QVT_BRX_PURE_C_MODEL

/***
 * Macros to access Register 'stat' in Block 'br' ...
 */
#define brx_addr_of_stat_in_br(blk)	((size_t) blk + 0x8)

#define brx_read_stat_in_br(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_stat_in_br(blk), 0x1, QVT_BRX_BIG_ENDIAN, reg)

#define brx_write_stat_in_br(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_stat_in_br(blk), 0x1, QVT_BRX_BIG_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'stat' in Block 'br' ...
 */
#define brx_read_st_in_br_stat(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x10, fld)

#define brx_read_st_in_br(blk, fld) \
	brx_read_st_in_br_stat( \
	brx_addr_of_stat_in_br(blk), fld)

#define brx_write_st_in_br_stat(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x10, fld)

#define brx_write_st_in_br(blk, fld) \
	brx_write_st_in_br_stat( \
	brx_addr_of_stat_in_br(blk), fld)

#define brx_get_st_in_br_stat(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x10, fld)

#define brx_read_st_in_br(blk, fld) \
	brx_read_st_in_br_stat( \
	brx_addr_of_stat_in_br(blk), fld)

#define brx_set_st_in_br_stat(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x10, fld)

#define brx_write_st_in_br(blk, fld) \
	brx_write_st_in_br_stat( \
	brx_addr_of_stat_in_br(blk), fld)



/***
 * Macros to access Register 'dcsr' in Block 'br' ...
 */
#define brx_addr_of_dcsr_in_br(blk)	((size_t) blk + 0x9)

#define brx_read_dcsr_in_br(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_dcsr_in_br(blk), 0x2, QVT_BRX_BIG_ENDIAN, reg)

#define brx_write_dcsr_in_br(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_dcsr_in_br(blk), 0x2, QVT_BRX_BIG_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'dcsr' in Block 'br' ...
 */
#define brx_read_go_in_br_dcsr(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x1, fld)

#define brx_read_go_in_br(blk, fld) \
	brx_read_go_in_br_dcsr( \
	brx_addr_of_dcsr_in_br(blk), fld)

#define brx_write_go_in_br_dcsr(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x1, fld)

#define brx_write_go_in_br(blk, fld) \
	brx_write_go_in_br_dcsr( \
	brx_addr_of_dcsr_in_br(blk), fld)

#define brx_get_go_in_br_dcsr(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x1, fld)

#define brx_read_go_in_br(blk, fld) \
	brx_read_go_in_br_dcsr( \
	brx_addr_of_dcsr_in_br(blk), fld)

#define brx_set_go_in_br_dcsr(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x1, fld)

#define brx_write_go_in_br(blk, fld) \
	brx_write_go_in_br_dcsr( \
	brx_addr_of_dcsr_in_br(blk), fld)



#else



/***
 * Macros to access Register 'stat' in Block 'br' ...
 */
#define brx_addr_of_stat_in_br(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "stat", -1))

#define brx_read_stat_in_br(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_stat_in_br(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_stat_in_br(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_stat_in_br(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'stat' in Block 'br' ...
 */
#define brx_read_st_in_br_stat(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'st', failed to read register 'stat' in block 'br'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x10, fld);\
	}

#define brx_read_st_in_br(blk, fld) \
	brx_read_st_in_br_stat( \
	brx_addr_of_stat_in_br(blk), fld)

#define brx_write_st_in_br_stat(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'st', failed to read register 'stat' in block 'br'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x10, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'st' of register 'stat' in block 'br'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_st_in_br(blk, fld) \
	brx_write_st_in_br_stat( \
	brx_addr_of_stat_in_br(blk), fld)

#define brx_get_st_in_br_stat(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x10, fld)

#define brx_read_st_in_br(blk, fld) \
	brx_read_st_in_br_stat( \
	brx_addr_of_stat_in_br(blk), fld)

#define brx_set_st_in_br_stat(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x10, fld)

#define brx_write_st_in_br(blk, fld) \
	brx_write_st_in_br_stat( \
	brx_addr_of_stat_in_br(blk), fld)



/***
 * Macros to access Register 'dcsr' in Block 'br' ...
 */
#define brx_addr_of_dcsr_in_br(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "dcsr", -1))

#define brx_read_dcsr_in_br(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_dcsr_in_br(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_dcsr_in_br(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_dcsr_in_br(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'dcsr' in Block 'br' ...
 */
#define brx_read_go_in_br_dcsr(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'go', failed to read register 'dcsr' in block 'br'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x1, fld);\
	}

#define brx_read_go_in_br(blk, fld) \
	brx_read_go_in_br_dcsr( \
	brx_addr_of_dcsr_in_br(blk), fld)

#define brx_write_go_in_br_dcsr(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'go', failed to read register 'dcsr' in block 'br'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x1, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'go' of register 'dcsr' in block 'br'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_go_in_br(blk, fld) \
	brx_write_go_in_br_dcsr( \
	brx_addr_of_dcsr_in_br(blk), fld)

#define brx_get_go_in_br_dcsr(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x1, fld)

#define brx_read_go_in_br(blk, fld) \
	brx_read_go_in_br_dcsr( \
	brx_addr_of_dcsr_in_br(blk), fld)

#define brx_set_go_in_br_dcsr(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x1, fld)

#define brx_write_go_in_br(blk, fld) \
	brx_write_go_in_br_dcsr( \
	brx_addr_of_dcsr_in_br(blk), fld)


#endif
#endif
