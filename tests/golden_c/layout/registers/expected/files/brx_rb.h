#ifndef __BRX_RB_H__
#define __BRX_RB_H__


#ifndef QVT_BRX_PURE_C_MODEL
#define QVT_BRX_C_INTF_FOR_SV_MODEL
#endif


#include "qvt_brx.h"



/***
 * Top Level Domain/Physical Interface width ...
 */
#define brx_top_domain_width	0x2



/***
 * Size of Register 'r8' in Block 'rb' ...
 */
#define brx_size_of_r8_in_rb		0x8



/***
 * Size of Register 'arr' in Block 'rb' ...
 */
#define brx_size_of_arr_in_rb		0x2



/***
 * Size of Register 'plain' in Block 'rb' ...
 */
#define brx_size_of_plain_in_rb		0x2



/***
 * Size of Register 'gone' in Block 'rb' ...
 */
#define brx_size_of_gone_in_rb		0x2



/***
 * Size of Register 'back' in Block 'rb' ...
 */
#define brx_size_of_back_in_rb		0x2



/***
 * Size of Register 'after' in Block 'rb' ...
 */
#define brx_size_of_after_in_rb		0x2




#ifdef QVT_BRX_PURE_C_MODEL

/***
 * Macros to access Register 'r8' in Block 'rb' ...
 */
#define brx_addr_of_r8_in_rb(blk)	((size_t) blk + 0x10)

#define brx_read_r8_in_rb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_r8_in_rb(blk), 0x4, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_r8_in_rb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_r8_in_rb(blk), 0x4, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'r8' in Block 'rb' ...
 */
#define brx_read_lo_in_rb_r8(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x20, fld)

#define brx_read_lo_in_rb(blk, fld) \
	brx_read_lo_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_write_lo_in_rb_r8(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x20, fld)

#define brx_write_lo_in_rb(blk, fld) \
	brx_write_lo_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_get_lo_in_rb_r8(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x20, fld)

#define brx_read_lo_in_rb(blk, fld) \
	brx_read_lo_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_set_lo_in_rb_r8(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x20, fld)

#define brx_write_lo_in_rb(blk, fld) \
	brx_write_lo_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_read_hi_in_rb_r8(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x20, 0x20, fld)

#define brx_read_hi_in_rb(blk, fld) \
	brx_read_hi_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_write_hi_in_rb_r8(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x20, 0x20, fld)

#define brx_write_hi_in_rb(blk, fld) \
	brx_write_hi_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_get_hi_in_rb_r8(reg, fld) \
	qvt_brx_field__read(reg, 0x20, 0x20, fld)

#define brx_read_hi_in_rb(blk, fld) \
	brx_read_hi_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_set_hi_in_rb_r8(reg, fld) \
	qvt_brx_field__write(reg, 0x20, 0x20, fld)

#define brx_write_hi_in_rb(blk, fld) \
	brx_write_hi_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)



/***
 * Macros to access Register Array 'arr' in Block 'rb' ...
 */
#define brx_addr_of_arr_in_rb(blk, idx)	((size_t) blk + 0x20 + (idx * 0x6))

#define brx_read_arr_in_rb(blk, idx, reg) \
	qvt_brx_reg__read(brx_addr_of_arr_in_rb(blk, idx), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_arr_in_rb(blk, idx, reg) \
	qvt_brx_reg__write(brx_addr_of_arr_in_rb(blk, idx), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'arr' in Block 'rb' ...
 */
#define brx_read_v_in_rb_arr(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x10, fld)

#define brx_read_v_in_rb(blk, fld) \
	brx_read_v_in_rb_arr( \
	brx_addr_of_arr_in_rb(blk), fld)

#define brx_write_v_in_rb_arr(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x10, fld)

#define brx_write_v_in_rb(blk, fld) \
	brx_write_v_in_rb_arr( \
	brx_addr_of_arr_in_rb(blk), fld)

#define brx_get_v_in_rb_arr(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x10, fld)

#define brx_read_v_in_rb(blk, fld) \
	brx_read_v_in_rb_arr( \
	brx_addr_of_arr_in_rb(blk), fld)

#define brx_set_v_in_rb_arr(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x10, fld)

#define brx_write_v_in_rb(blk, fld) \
	brx_write_v_in_rb_arr( \
	brx_addr_of_arr_in_rb(blk), fld)



/***
 * Macros to access Register Array 'plain' in Block 'rb' ...
 */
#define brx_addr_of_plain_in_rb(blk, idx)	((size_t) blk + 0x38 + (idx * brx_size_of_plain_in_rb))

#define brx_read_plain_in_rb(blk, idx, reg) \
	qvt_brx_reg__read(brx_addr_of_plain_in_rb(blk, idx), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_plain_in_rb(blk, idx, reg) \
	qvt_brx_reg__write(brx_addr_of_plain_in_rb(blk, idx), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'plain' in Block 'rb' ...
 */
#define brx_read_w_in_rb_plain(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x10, fld)

#define brx_read_w_in_rb(blk, fld) \
	brx_read_w_in_rb_plain( \
	brx_addr_of_plain_in_rb(blk), fld)

#define brx_write_w_in_rb_plain(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x10, fld)

#define brx_write_w_in_rb(blk, fld) \
	brx_write_w_in_rb_plain( \
	brx_addr_of_plain_in_rb(blk), fld)

#define brx_get_w_in_rb_plain(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x10, fld)

#define brx_read_w_in_rb(blk, fld) \
	brx_read_w_in_rb_plain( \
	brx_addr_of_plain_in_rb(blk), fld)

#define brx_set_w_in_rb_plain(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x10, fld)

#define brx_write_w_in_rb(blk, fld) \
	brx_write_w_in_rb_plain( \
	brx_addr_of_plain_in_rb(blk), fld)



/***
 * Macros to access Register 'gone' in Block 'rb' ...
 */
#define brx_addr_of_gone_in_rb(blk)	((size_t) blk + 0x3b)

#define brx_read_gone_in_rb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_gone_in_rb(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_gone_in_rb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_gone_in_rb(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'gone' in Block 'rb' ...
 */
#define brx_read_x_in_rb_gone(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x8, fld)

#define brx_write_x_in_rb_gone(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x8, fld)

#define brx_get_x_in_rb_gone(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x8, fld)

#define brx_set_x_in_rb_gone(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x8, fld)



/***
 * Macros to access Register 'back' in Block 'rb' ...
 */
#define brx_addr_of_back_in_rb(blk)	((size_t) blk + 0x4)

#define brx_read_back_in_rb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_back_in_rb(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_back_in_rb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_back_in_rb(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'back' in Block 'rb' ...
 */
#define brx_read_x_in_rb_back(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x8, fld)

#define brx_write_x_in_rb_back(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x8, fld)

#define brx_get_x_in_rb_back(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x8, fld)

#define brx_set_x_in_rb_back(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x8, fld)



/***
 * Macros to access Register 'after' in Block 'rb' ...
 */
#define brx_addr_of_after_in_rb(blk)	((size_t) blk + 0x3b)

#define brx_read_after_in_rb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_after_in_rb(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_after_in_rb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_after_in_rb(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'after' in Block 'rb' ...
 */
#define brx_read_x_in_rb_after(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x8, fld)

#define brx_write_x_in_rb_after(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x8, fld)

#define brx_get_x_in_rb_after(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x8, fld)

#define brx_set_x_in_rb_after(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x8, fld)



#else



/***
 * Macros to access Register 'r8' in Block 'rb' ...
 */
#define brx_addr_of_r8_in_rb(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "r8", -1))

#define brx_read_r8_in_rb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_r8_in_rb(blk), &qvt_brx_status, reg, 0x0, 0x1)

#define brx_write_r8_in_rb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_r8_in_rb(blk), &qvt_brx_status, reg, 0x0, 0x1)



/***
 * Macros to access Fields of Register 'r8' in Block 'rb' ...
 */
#define brx_read_lo_in_rb_r8(reg, fld) \
	{\
		unsigned int __qvt_r[0x2];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x1);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'lo', failed to read register 'r8' in block 'rb'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x20, fld);\
	}

#define brx_read_lo_in_rb(blk, fld) \
	brx_read_lo_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_write_lo_in_rb_r8(reg, fld) \
	{\
		unsigned int __qvt_r[0x2];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x1);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'lo', failed to read register 'r8' in block 'rb'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x20, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'lo' of register 'r8' in block 'rb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x1);\
	}

#define brx_write_lo_in_rb(blk, fld) \
	brx_write_lo_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_get_lo_in_rb_r8(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x20, fld)

#define brx_read_lo_in_rb(blk, fld) \
	brx_read_lo_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_set_lo_in_rb_r8(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x20, fld)

#define brx_write_lo_in_rb(blk, fld) \
	brx_write_lo_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_read_hi_in_rb_r8(reg, fld) \
	{\
		unsigned int __qvt_r[0x2];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x1);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'hi', failed to read register 'r8' in block 'rb'");\
		qvt_brx_field__read(__qvt_r, 0x20, 0x20, fld);\
	}

#define brx_read_hi_in_rb(blk, fld) \
	brx_read_hi_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_write_hi_in_rb_r8(reg, fld) \
	{\
		unsigned int __qvt_r[0x2];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x1);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'hi', failed to read register 'r8' in block 'rb'");\
		qvt_brx_field__write(__qvt_r, 0x20, 0x20, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'hi' of register 'r8' in block 'rb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x1);\
	}

#define brx_write_hi_in_rb(blk, fld) \
	brx_write_hi_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_get_hi_in_rb_r8(reg, fld) \
	qvt_brx_field__read(reg, 0x20, 0x20, fld)

#define brx_read_hi_in_rb(blk, fld) \
	brx_read_hi_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)

#define brx_set_hi_in_rb_r8(reg, fld) \
	qvt_brx_field__write(reg, 0x20, 0x20, fld)

#define brx_write_hi_in_rb(blk, fld) \
	brx_write_hi_in_rb_r8( \
	brx_addr_of_r8_in_rb(blk), fld)



/***
 * Macros to access Register Array 'arr' in Block 'rb' ...
 */
#define brx_addr_of_arr_in_rb(blk, idx)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "arr", idx))

#define brx_read_arr_in_rb(blk, idx, reg) \
	qvt_brx_reg__read(brx_addr_of_arr_in_rb(blk, idx), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_arr_in_rb(blk, idx, reg) \
	qvt_brx_reg__write(brx_addr_of_arr_in_rb(blk, idx), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'arr' in Block 'rb' ...
 */
#define brx_read_v_in_rb_arr(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'v', failed to read register 'arr' in block 'rb'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x10, fld);\
	}

#define brx_read_v_in_rb(blk, fld) \
	brx_read_v_in_rb_arr( \
	brx_addr_of_arr_in_rb(blk), fld)

#define brx_write_v_in_rb_arr(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'v', failed to read register 'arr' in block 'rb'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x10, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'v' of register 'arr' in block 'rb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_v_in_rb(blk, fld) \
	brx_write_v_in_rb_arr( \
	brx_addr_of_arr_in_rb(blk), fld)

#define brx_get_v_in_rb_arr(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x10, fld)

#define brx_read_v_in_rb(blk, fld) \
	brx_read_v_in_rb_arr( \
	brx_addr_of_arr_in_rb(blk), fld)

#define brx_set_v_in_rb_arr(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x10, fld)

#define brx_write_v_in_rb(blk, fld) \
	brx_write_v_in_rb_arr( \
	brx_addr_of_arr_in_rb(blk), fld)



/***
 * Macros to access Register Array 'plain' in Block 'rb' ...
 */
#define brx_addr_of_plain_in_rb(blk, idx)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "plain", idx))

#define brx_read_plain_in_rb(blk, idx, reg) \
	qvt_brx_reg__read(brx_addr_of_plain_in_rb(blk, idx), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_plain_in_rb(blk, idx, reg) \
	qvt_brx_reg__write(brx_addr_of_plain_in_rb(blk, idx), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'plain' in Block 'rb' ...
 */
#define brx_read_w_in_rb_plain(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'w', failed to read register 'plain' in block 'rb'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x10, fld);\
	}

#define brx_read_w_in_rb(blk, fld) \
	brx_read_w_in_rb_plain( \
	brx_addr_of_plain_in_rb(blk), fld)

#define brx_write_w_in_rb_plain(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'w', failed to read register 'plain' in block 'rb'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x10, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'w' of register 'plain' in block 'rb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_w_in_rb(blk, fld) \
	brx_write_w_in_rb_plain( \
	brx_addr_of_plain_in_rb(blk), fld)

#define brx_get_w_in_rb_plain(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x10, fld)

#define brx_read_w_in_rb(blk, fld) \
	brx_read_w_in_rb_plain( \
	brx_addr_of_plain_in_rb(blk), fld)

#define brx_set_w_in_rb_plain(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x10, fld)

#define brx_write_w_in_rb(blk, fld) \
	brx_write_w_in_rb_plain( \
	brx_addr_of_plain_in_rb(blk), fld)



/***
 * Macros to access Register 'gone' in Block 'rb' ...
 */
#define brx_addr_of_gone_in_rb(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "gone", -1))

#define brx_read_gone_in_rb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_gone_in_rb(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_gone_in_rb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_gone_in_rb(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'gone' in Block 'rb' ...
 */
#define brx_read_x_in_rb_gone(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'x', failed to read register 'gone' in block 'rb'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x8, fld);\
	}

#define brx_write_x_in_rb_gone(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'x', failed to read register 'gone' in block 'rb'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x8, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'x' of register 'gone' in block 'rb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_get_x_in_rb_gone(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x8, fld)

#define brx_set_x_in_rb_gone(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x8, fld)



/***
 * Macros to access Register 'back' in Block 'rb' ...
 */
#define brx_addr_of_back_in_rb(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "back", -1))

#define brx_read_back_in_rb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_back_in_rb(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_back_in_rb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_back_in_rb(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'back' in Block 'rb' ...
 */
#define brx_read_x_in_rb_back(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'x', failed to read register 'back' in block 'rb'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x8, fld);\
	}

#define brx_write_x_in_rb_back(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'x', failed to read register 'back' in block 'rb'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x8, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'x' of register 'back' in block 'rb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_get_x_in_rb_back(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x8, fld)

#define brx_set_x_in_rb_back(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x8, fld)



/***
 * Macros to access Register 'after' in Block 'rb' ...
 */
#define brx_addr_of_after_in_rb(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "after", -1))

#define brx_read_after_in_rb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_after_in_rb(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_after_in_rb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_after_in_rb(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'after' in Block 'rb' ...
 */
#define brx_read_x_in_rb_after(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'x', failed to read register 'after' in block 'rb'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x8, fld);\
	}

#define brx_write_x_in_rb_after(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'x', failed to read register 'after' in block 'rb'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x8, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'x' of register 'after' in block 'rb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_get_x_in_rb_after(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x8, fld)

#define brx_set_x_in_rb_after(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x8, fld)


#endif
#endif
