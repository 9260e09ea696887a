#ifndef __BRX_FB_H__
#define __BRX_FB_H__


#ifndef QVT_BRX_PURE_C_MODEL
#define QVT_BRX_C_INTF_FOR_SV_MODEL
#endif


#include "qvt_brx.h"



/***
 * Top Level Domain/Physical Interface width ...
 */
#define brx_top_domain_width	0x4



/***
 * Size of Register 'ctl' in Block 'fb' ...
 */
#define brx_size_of_ctl_in_fb		0x4



/***
 * Size of Register 'cfg' in Block 'fb' ...
 */
#define brx_size_of_cfg_in_fb		0x4




#ifdef QVT_BRX_PURE_C_MODEL

/***
 * Macros to access Register 'ctl' in Block 'fb' ...
 */
#define brx_addr_of_ctl_in_fb(blk)	((size_t) blk + 0x0)

#define brx_read_ctl_in_fb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_ctl_in_fb(blk), 0x1, QVT_BRX_BIG_ENDIAN, reg)

#define brx_write_ctl_in_fb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_ctl_in_fb(blk), 0x1, QVT_BRX_BIG_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'ctl' in Block 'fb' ...
 */
#define brx_read_en_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x1, fld)

#define brx_write_en_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x1, fld)

#define brx_get_en_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x1, fld)

#define brx_set_en_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x1, fld)

#define brx_read_mode_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x8, 0x4, fld)

#define brx_read_mode_in_fb(blk, fld) \
	brx_read_mode_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_write_mode_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x8, 0x4, fld)

#define brx_write_mode_in_fb(blk, fld) \
	brx_write_mode_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_get_mode_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0x8, 0x4, fld)

#define brx_read_mode_in_fb(blk, fld) \
	brx_read_mode_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_set_mode_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0x8, 0x4, fld)

#define brx_write_mode_in_fb(blk, fld) \
	brx_write_mode_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_read_low_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x2, 0x2, fld)

#define brx_read_low_in_fb(blk, fld) \
	brx_read_low_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_write_low_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x2, 0x2, fld)

#define brx_write_low_in_fb(blk, fld) \
	brx_write_low_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_get_low_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0x2, 0x2, fld)

#define brx_read_low_in_fb(blk, fld) \
	brx_read_low_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_set_low_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0x2, 0x2, fld)

#define brx_write_low_in_fb(blk, fld) \
	brx_write_low_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_read_next_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0xc, 0x3, fld)

#define brx_read_next_in_fb(blk, fld) \
	brx_read_next_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_write_next_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0xc, 0x3, fld)

#define brx_write_next_in_fb(blk, fld) \
	brx_write_next_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_get_next_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0xc, 0x3, fld)

#define brx_read_next_in_fb(blk, fld) \
	brx_read_next_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_set_next_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0xc, 0x3, fld)

#define brx_write_next_in_fb(blk, fld) \
	brx_write_next_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_read_go_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x13, 0x1, fld)

#define brx_read_go_in_fb(blk, fld) \
	brx_read_go_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_write_go_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x13, 0x1, fld)

#define brx_write_go_in_fb(blk, fld) \
	brx_write_go_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_get_go_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0x13, 0x1, fld)

#define brx_read_go_in_fb(blk, fld) \
	brx_read_go_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_set_go_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0x13, 0x1, fld)

#define brx_write_go_in_fb(blk, fld) \
	brx_write_go_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)



/***
 * Macros to access Register 'cfg' in Block 'fb' ...
 */
#define brx_addr_of_cfg_in_fb(blk)	((size_t) blk + 0x1)

#define brx_read_cfg_in_fb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_cfg_in_fb(blk), 0x1, QVT_BRX_BIG_ENDIAN, reg)

#define brx_write_cfg_in_fb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_cfg_in_fb(blk), 0x1, QVT_BRX_BIG_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'cfg' in Block 'fb' ...
 */
#define brx_read_a_in_fb_cfg(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x8, 0x4, fld)

#define brx_read_a_in_fb(blk, fld) \
	brx_read_a_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_write_a_in_fb_cfg(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x8, 0x4, fld)

#define brx_write_a_in_fb(blk, fld) \
	brx_write_a_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_get_a_in_fb_cfg(reg, fld) \
	qvt_brx_field__read(reg, 0x8, 0x4, fld)

#define brx_read_a_in_fb(blk, fld) \
	brx_read_a_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_set_a_in_fb_cfg(reg, fld) \
	qvt_brx_field__write(reg, 0x8, 0x4, fld)

#define brx_write_a_in_fb(blk, fld) \
	brx_write_a_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_read_b_in_fb_cfg(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x4, 0x4, fld)

#define brx_read_b_in_fb(blk, fld) \
	brx_read_b_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_write_b_in_fb_cfg(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x4, 0x4, fld)

#define brx_write_b_in_fb(blk, fld) \
	brx_write_b_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_get_b_in_fb_cfg(reg, fld) \
	qvt_brx_field__read(reg, 0x4, 0x4, fld)

#define brx_read_b_in_fb(blk, fld) \
	brx_read_b_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_set_b_in_fb_cfg(reg, fld) \
	qvt_brx_field__write(reg, 0x4, 0x4, fld)

#define brx_write_b_in_fb(blk, fld) \
	brx_write_b_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_read_en_in_fb_cfg(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x2, fld)

#define brx_write_en_in_fb_cfg(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x2, fld)

#define brx_get_en_in_fb_cfg(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x2, fld)

#define brx_set_en_in_fb_cfg(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x2, fld)



#else



/***
 * Macros to access Register 'ctl' in Block 'fb' ...
 */
#define brx_addr_of_ctl_in_fb(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "ctl", -1))

#define brx_read_ctl_in_fb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_ctl_in_fb(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_ctl_in_fb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_ctl_in_fb(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'ctl' in Block 'fb' ...
 */
#define brx_read_en_in_fb_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'en', failed to read register 'ctl' in block 'fb'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x1, fld);\
	}

#define brx_write_en_in_fb_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'en', failed to read register 'ctl' in block 'fb'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x1, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'en' of register 'ctl' in block 'fb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_get_en_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x1, fld)

#define brx_set_en_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x1, fld)

#define brx_read_mode_in_fb_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'mode', failed to read register 'ctl' in block 'fb'");\
		qvt_brx_field__read(__qvt_r, 0x8, 0x4, fld);\
	}

#define brx_read_mode_in_fb(blk, fld) \
	brx_read_mode_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_write_mode_in_fb_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'mode', failed to read register 'ctl' in block 'fb'");\
		qvt_brx_field__write(__qvt_r, 0x8, 0x4, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'mode' of register 'ctl' in block 'fb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_mode_in_fb(blk, fld) \
	brx_write_mode_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_get_mode_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0x8, 0x4, fld)

#define brx_read_mode_in_fb(blk, fld) \
	brx_read_mode_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_set_mode_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0x8, 0x4, fld)

#define brx_write_mode_in_fb(blk, fld) \
	brx_write_mode_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_read_low_in_fb_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'low', failed to read register 'ctl' in block 'fb'");\
		qvt_brx_field__read(__qvt_r, 0x2, 0x2, fld);\
	}

#define brx_read_low_in_fb(blk, fld) \
	brx_read_low_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_write_low_in_fb_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'low', failed to read register 'ctl' in block 'fb'");\
		qvt_brx_field__write(__qvt_r, 0x2, 0x2, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'low' of register 'ctl' in block 'fb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_low_in_fb(blk, fld) \
	brx_write_low_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_get_low_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0x2, 0x2, fld)

#define brx_read_low_in_fb(blk, fld) \
	brx_read_low_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_set_low_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0x2, 0x2, fld)

#define brx_write_low_in_fb(blk, fld) \
	brx_write_low_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_read_next_in_fb_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'next', failed to read register 'ctl' in block 'fb'");\
		qvt_brx_field__read(__qvt_r, 0xc, 0x3, fld);\
	}

#define brx_read_next_in_fb(blk, fld) \
	brx_read_next_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_write_next_in_fb_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'next', failed to read register 'ctl' in block 'fb'");\
		qvt_brx_field__write(__qvt_r, 0xc, 0x3, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'next' of register 'ctl' in block 'fb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_next_in_fb(blk, fld) \
	brx_write_next_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_get_next_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0xc, 0x3, fld)

#define brx_read_next_in_fb(blk, fld) \
	brx_read_next_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_set_next_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0xc, 0x3, fld)

#define brx_write_next_in_fb(blk, fld) \
	brx_write_next_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_read_go_in_fb_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'go', failed to read register 'ctl' in block 'fb'");\
		qvt_brx_field__read(__qvt_r, 0x13, 0x1, fld);\
	}

#define brx_read_go_in_fb(blk, fld) \
	brx_read_go_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_write_go_in_fb_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'go', failed to read register 'ctl' in block 'fb'");\
		qvt_brx_field__write(__qvt_r, 0x13, 0x1, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'go' of register 'ctl' in block 'fb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_go_in_fb(blk, fld) \
	brx_write_go_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_get_go_in_fb_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0x13, 0x1, fld)

#define brx_read_go_in_fb(blk, fld) \
	brx_read_go_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)

#define brx_set_go_in_fb_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0x13, 0x1, fld)

#define brx_write_go_in_fb(blk, fld) \
	brx_write_go_in_fb_ctl( \
	brx_addr_of_ctl_in_fb(blk), fld)



/***
 * Macros to access Register 'cfg' in Block 'fb' ...
 */
#define brx_addr_of_cfg_in_fb(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "cfg", -1))

#define brx_read_cfg_in_fb(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_cfg_in_fb(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_cfg_in_fb(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_cfg_in_fb(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'cfg' in Block 'fb' ...
 */
#define brx_read_a_in_fb_cfg(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'a', failed to read register 'cfg' in block 'fb'");\
		qvt_brx_field__read(__qvt_r, 0x8, 0x4, fld);\
	}

#define brx_read_a_in_fb(blk, fld) \
	brx_read_a_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_write_a_in_fb_cfg(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'a', failed to read register 'cfg' in block 'fb'");\
		qvt_brx_field__write(__qvt_r, 0x8, 0x4, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'a' of register 'cfg' in block 'fb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_a_in_fb(blk, fld) \
	brx_write_a_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_get_a_in_fb_cfg(reg, fld) \
	qvt_brx_field__read(reg, 0x8, 0x4, fld)

#define brx_read_a_in_fb(blk, fld) \
	brx_read_a_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_set_a_in_fb_cfg(reg, fld) \
	qvt_brx_field__write(reg, 0x8, 0x4, fld)

#define brx_write_a_in_fb(blk, fld) \
	brx_write_a_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_read_b_in_fb_cfg(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'b', failed to read register 'cfg' in block 'fb'");\
		qvt_brx_field__read(__qvt_r, 0x4, 0x4, fld);\
	}

#define brx_read_b_in_fb(blk, fld) \
	brx_read_b_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_write_b_in_fb_cfg(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'b', failed to read register 'cfg' in block 'fb'");\
		qvt_brx_field__write(__qvt_r, 0x4, 0x4, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'b' of register 'cfg' in block 'fb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_b_in_fb(blk, fld) \
	brx_write_b_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_get_b_in_fb_cfg(reg, fld) \
	qvt_brx_field__read(reg, 0x4, 0x4, fld)

#define brx_read_b_in_fb(blk, fld) \
	brx_read_b_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_set_b_in_fb_cfg(reg, fld) \
	qvt_brx_field__write(reg, 0x4, 0x4, fld)

#define brx_write_b_in_fb(blk, fld) \
	brx_write_b_in_fb_cfg( \
	brx_addr_of_cfg_in_fb(blk), fld)

#define brx_read_en_in_fb_cfg(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'en', failed to read register 'cfg' in block 'fb'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x2, fld);\
	}

#define brx_write_en_in_fb_cfg(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'en', failed to read register 'cfg' in block 'fb'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x2, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'en' of register 'cfg' in block 'fb'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_get_en_in_fb_cfg(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x2, fld)

#define brx_set_en_in_fb_cfg(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x2, fld)


#endif
#endif
