#ifndef __BRX_SOC_H__
#define __BRX_SOC_H__


#ifndef QVT_BRX_PURE_C_MODEL
#define QVT_BRX_C_INTF_FOR_SV_MODEL
#endif


#include "qvt_brx.h"



/***
 * Top Level Domain/Physical Interface width ...
 */
#define brx_top_domain_width	0x2



/***
 * Size of Register 'ctrl' in Block 'dma' ...
 */
#define brx_size_of_ctrl_in_dma		0x4



/***
 * Size of Register 'cnt' in Block 'soc_tmr' ...
 */
#define brx_size_of_cnt_in_soc_tmr		0x2




#ifdef QVT_BRX_PURE_C_MODEL

/***
 * Macros to access Register 'ctrl' in Block 'dma' ...
 */
#define brx_addr_of_ctrl_in_dma(blk)	((size_t) blk + 0x10)

#define brx_read_ctrl_in_dma(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_ctrl_in_dma(blk), 0x2, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_ctrl_in_dma(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_ctrl_in_dma(blk), 0x2, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'ctrl' in Block 'dma' ...
 */
#define brx_read_en_in_dma_ctrl(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x1, fld)

#define brx_read_en_in_dma(blk, fld) \
	brx_read_en_in_dma_ctrl( \
	brx_addr_of_ctrl_in_dma(blk), fld)

#define brx_write_en_in_dma_ctrl(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x1, fld)

#define brx_write_en_in_dma(blk, fld) \
	brx_write_en_in_dma_ctrl( \
	brx_addr_of_ctrl_in_dma(blk), fld)

#define brx_get_en_in_dma_ctrl(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x1, fld)

#define brx_read_en_in_dma(blk, fld) \
	brx_read_en_in_dma_ctrl( \
	brx_addr_of_ctrl_in_dma(blk), fld)

#define brx_set_en_in_dma_ctrl(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x1, fld)

#define brx_write_en_in_dma(blk, fld) \
	brx_write_en_in_dma_ctrl( \
	brx_addr_of_ctrl_in_dma(blk), fld)



/***
 * Macros to access Register 'cnt' in Block 'soc_tmr' ...
 */
#define brx_addr_of_cnt_in_soc_tmr(blk)	((size_t) blk + 0x0)

#define brx_read_cnt_in_soc_tmr(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_cnt_in_soc_tmr(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_cnt_in_soc_tmr(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_cnt_in_soc_tmr(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'cnt' in Block 'soc_tmr' ...
 */
#define brx_read_c_in_soc_tmr_cnt(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x10, fld)

#define brx_read_c_in_soc_tmr(blk, fld) \
	brx_read_c_in_soc_tmr_cnt( \
	brx_addr_of_cnt_in_soc_tmr(blk), fld)

#define brx_write_c_in_soc_tmr_cnt(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x10, fld)

#define brx_write_c_in_soc_tmr(blk, fld) \
	brx_write_c_in_soc_tmr_cnt( \
	brx_addr_of_cnt_in_soc_tmr(blk), fld)

#define brx_get_c_in_soc_tmr_cnt(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x10, fld)

#define brx_read_c_in_soc_tmr(blk, fld) \
	brx_read_c_in_soc_tmr_cnt( \
	brx_addr_of_cnt_in_soc_tmr(blk), fld)

#define brx_set_c_in_soc_tmr_cnt(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x10, fld)

#define brx_write_c_in_soc_tmr(blk, fld) \
	brx_write_c_in_soc_tmr_cnt( \
	brx_addr_of_cnt_in_soc_tmr(blk), fld)



/***
 * Macros to access Block 'd' in System 'sub' ...
 */
#define brx_addr_of_d_in_sub(sys)	((size_t) sys + 0x0)



/***
 * Macros to access Block 'wide' in System 'soc' ...
 */
#define brx_addr_of_wide_in_soc(sys)	((size_t) sys + 0x100)



/***
 * Macros to access Block Array 'pair' in System 'soc' ...
 */
#define brx_addr_of_pair_in_soc(sys, idx)	((size_t) sys + 0x122 + (idx * 0x40))



/***
 * Macros to access Block Array 'tmr' in System 'soc' ...
 */
#define brx_addr_of_tmr_in_soc(sys, idx)	((size_t) sys + 0x1a2 + (idx * 0x1))



/***
 * Macros to access Sub-System 's1' in System 'soc' ...
 */
#define brx_addr_of_s1_in_soc(sys)	((size_t) sys + 0x1a4)



#else



/***
 * Macros to access Register 'ctrl' in Block 'dma' ...
 */
#define brx_addr_of_ctrl_in_dma(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "ctrl", -1))

#define brx_read_ctrl_in_dma(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_ctrl_in_dma(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_ctrl_in_dma(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_ctrl_in_dma(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'ctrl' in Block 'dma' ...
 */
#define brx_read_en_in_dma_ctrl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'en', failed to read register 'ctrl' in block 'dma'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x1, fld);\
	}

#define brx_read_en_in_dma(blk, fld) \
	brx_read_en_in_dma_ctrl( \
	brx_addr_of_ctrl_in_dma(blk), fld)

#define brx_write_en_in_dma_ctrl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'en', failed to read register 'ctrl' in block 'dma'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x1, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'en' of register 'ctrl' in block 'dma'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_en_in_dma(blk, fld) \
	brx_write_en_in_dma_ctrl( \
	brx_addr_of_ctrl_in_dma(blk), fld)

#define brx_get_en_in_dma_ctrl(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x1, fld)

#define brx_read_en_in_dma(blk, fld) \
	brx_read_en_in_dma_ctrl( \
	brx_addr_of_ctrl_in_dma(blk), fld)

#define brx_set_en_in_dma_ctrl(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x1, fld)

#define brx_write_en_in_dma(blk, fld) \
	brx_write_en_in_dma_ctrl( \
	brx_addr_of_ctrl_in_dma(blk), fld)



/***
 * Macros to access Register 'cnt' in Block 'soc_tmr' ...
 */
#define brx_addr_of_cnt_in_soc_tmr(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "cnt", -1))

#define brx_read_cnt_in_soc_tmr(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_cnt_in_soc_tmr(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_cnt_in_soc_tmr(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_cnt_in_soc_tmr(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'cnt' in Block 'soc_tmr' ...
 */
#define brx_read_c_in_soc_tmr_cnt(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'c', failed to read register 'cnt' in block 'soc_tmr'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x10, fld);\
	}

#define brx_read_c_in_soc_tmr(blk, fld) \
	brx_read_c_in_soc_tmr_cnt( \
	brx_addr_of_cnt_in_soc_tmr(blk), fld)

#define brx_write_c_in_soc_tmr_cnt(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'c', failed to read register 'cnt' in block 'soc_tmr'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x10, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'c' of register 'cnt' in block 'soc_tmr'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_c_in_soc_tmr(blk, fld) \
	brx_write_c_in_soc_tmr_cnt( \
	brx_addr_of_cnt_in_soc_tmr(blk), fld)

#define brx_get_c_in_soc_tmr_cnt(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x10, fld)

#define brx_read_c_in_soc_tmr(blk, fld) \
	brx_read_c_in_soc_tmr_cnt( \
	brx_addr_of_cnt_in_soc_tmr(blk), fld)

#define brx_set_c_in_soc_tmr_cnt(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x10, fld)

#define brx_write_c_in_soc_tmr(blk, fld) \
	brx_write_c_in_soc_tmr_cnt( \
	brx_addr_of_cnt_in_soc_tmr(blk), fld)



/***
 * Macros to access Block 'd' in System 'sub' ...
 */
#define brx_addr_of_d_in_sub(sys)	((size_t) qvt_brx_sys__get_block_by_name(sys, "d", -1))



/***
 * Macros to access Block 'wide' in System 'soc' ...
 */
#define brx_addr_of_wide_in_soc(sys)	((size_t) qvt_brx_sys__get_block_by_name(sys, "wide", -1))



/***
 * Macros to access Block Array 'pair' in System 'soc' ...
 */
#define brx_addr_of_pair_in_soc(sys, idx)	((size_t) qvt_brx_sys__get_block_by_name(sys, "pair", idx))



/***
 * Macros to access Block Array 'tmr' in System 'soc' ...
 */
#define brx_addr_of_tmr_in_soc(sys, idx)	((size_t) qvt_brx_sys__get_block_by_name(sys, "tmr", idx))



/***
 * Macros to access Sub-System 's1' in System 'soc' ...
 */
#define brx_addr_of_s1_in_soc(sys)	((size_t) qvt_brx_sys__get_subsys_by_name(sys, "s1", -1))


#endif
#endif
