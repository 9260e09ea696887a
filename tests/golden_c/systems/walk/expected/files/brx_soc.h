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
 * Size of Register 'st' in Block 'pio' ...
 */
#define brx_size_of_st_in_pio		0x2




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
 * Macros to access Block 'd' in System 'sub' ...
 */
#define brx_addr_of_d_in_sub(sys)	((size_t) sys + 0x0)



/***
 * Macros to access Register 'st' in Block 'pio' ...
 */
#define brx_addr_of_st_in_pio(blk)	((size_t) blk + 0x2)

#define brx_read_st_in_pio(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_st_in_pio(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_st_in_pio(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_st_in_pio(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'st' in Block 'pio' ...
 */
#define brx_read_en_in_pio_st(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x3, fld)

#define brx_write_en_in_pio_st(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x3, fld)

#define brx_get_en_in_pio_st(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x3, fld)

#define brx_set_en_in_pio_st(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x3, fld)

#define brx_read_lvl_in_pio_st(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x3, 0x9, fld)

#define brx_read_lvl_in_pio(blk, fld) \
	brx_read_lvl_in_pio_st( \
	brx_addr_of_st_in_pio(blk), fld)

#define brx_write_lvl_in_pio_st(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x3, 0x9, fld)

#define brx_write_lvl_in_pio(blk, fld) \
	brx_write_lvl_in_pio_st( \
	brx_addr_of_st_in_pio(blk), fld)

#define brx_get_lvl_in_pio_st(reg, fld) \
	qvt_brx_field__read(reg, 0x3, 0x9, fld)

#define brx_read_lvl_in_pio(blk, fld) \
	brx_read_lvl_in_pio_st( \
	brx_addr_of_st_in_pio(blk), fld)

#define brx_set_lvl_in_pio_st(reg, fld) \
	qvt_brx_field__write(reg, 0x3, 0x9, fld)

#define brx_write_lvl_in_pio(blk, fld) \
	brx_write_lvl_in_pio_st( \
	brx_addr_of_st_in_pio(blk), fld)



/***
 * Macros to access Sub-System 's8' in System 'soc' ...
 */
#define brx_addr_of_s8_in_soc(sys)	((size_t) sys + 0x40)



/***
 * Macros to access Block Array 'dm' in System 'soc' ...
 */
#define brx_addr_of_dm_in_soc(sys, idx)	((size_t) sys + 0x100 + (idx * 32))



/***
 * Macros to access Block 'back' in System 'soc' ...
 */
#define brx_addr_of_back_in_soc(sys)	((size_t) sys + 0x8)



/***
 * Macros to access Block Array 'pn' in System 'soc' ...
 */
#define brx_addr_of_pn_in_soc(sys, idx)	((size_t) sys + 0x160 + (idx * 0x3))



/***
 * Macros to access Sub-System Array 'sl' in System 'soc' ...
 */
#define brx_addr_of_sl_in_soc(sys, idx)	((size_t) sys + 0x160 + (idx * 0x0))



/***
 * Macros to access Block 'after' in System 'soc' ...
 */
#define brx_addr_of_after_in_soc(sys)	((size_t) sys + 0x160)



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
 * Macros to access Block 'd' in System 'sub' ...
 */
#define brx_addr_of_d_in_sub(sys)	((size_t) qvt_brx_sys__get_block_by_name(sys, "d", -1))



/***
 * Macros to access Register 'st' in Block 'pio' ...
 */
#define brx_addr_of_st_in_pio(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "st", -1))

#define brx_read_st_in_pio(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_st_in_pio(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_st_in_pio(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_st_in_pio(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'st' in Block 'pio' ...
 */
#define brx_read_en_in_pio_st(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'en', failed to read register 'st' in block 'pio'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x3, fld);\
	}

#define brx_write_en_in_pio_st(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'en', failed to read register 'st' in block 'pio'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x3, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'en' of register 'st' in block 'pio'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_get_en_in_pio_st(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x3, fld)

#define brx_set_en_in_pio_st(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x3, fld)

#define brx_read_lvl_in_pio_st(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'lvl', failed to read register 'st' in block 'pio'");\
		qvt_brx_field__read(__qvt_r, 0x3, 0x9, fld);\
	}

#define brx_read_lvl_in_pio(blk, fld) \
	brx_read_lvl_in_pio_st( \
	brx_addr_of_st_in_pio(blk), fld)

#define brx_write_lvl_in_pio_st(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'lvl', failed to read register 'st' in block 'pio'");\
		qvt_brx_field__write(__qvt_r, 0x3, 0x9, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'lvl' of register 'st' in block 'pio'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_lvl_in_pio(blk, fld) \
	brx_write_lvl_in_pio_st( \
	brx_addr_of_st_in_pio(blk), fld)

#define brx_get_lvl_in_pio_st(reg, fld) \
	qvt_brx_field__read(reg, 0x3, 0x9, fld)

#define brx_read_lvl_in_pio(blk, fld) \
	brx_read_lvl_in_pio_st( \
	brx_addr_of_st_in_pio(blk), fld)

#define brx_set_lvl_in_pio_st(reg, fld) \
	qvt_brx_field__write(reg, 0x3, 0x9, fld)

#define brx_write_lvl_in_pio(blk, fld) \
	brx_write_lvl_in_pio_st( \
	brx_addr_of_st_in_pio(blk), fld)



/***
 * Macros to access Sub-System 's8' in System 'soc' ...
 */
#define brx_addr_of_s8_in_soc(sys)	((size_t) qvt_brx_sys__get_subsys_by_name(sys, "s8", -1))



/***
 * Macros to access Block Array 'dm' in System 'soc' ...
 */
#define brx_addr_of_dm_in_soc(sys, idx)	((size_t) qvt_brx_sys__get_block_by_name(sys, "dm", idx))



/***
 * Macros to access Block 'back' in System 'soc' ...
 */
#define brx_addr_of_back_in_soc(sys)	((size_t) qvt_brx_sys__get_block_by_name(sys, "back", -1))



/***
 * Macros to access Block Array 'pn' in System 'soc' ...
 */
#define brx_addr_of_pn_in_soc(sys, idx)	((size_t) qvt_brx_sys__get_block_by_name(sys, "pn", idx))



/***
 * Macros to access Sub-System Array 'sl' in System 'soc' ...
 */
#define brx_addr_of_sl_in_soc(sys, idx)	((size_t) qvt_brx_sys__get_subsys_by_name(sys, "sl", idx))



/***
 * Macros to access Block 'after' in System 'soc' ...
 */
#define brx_addr_of_after_in_soc(sys)	((size_t) qvt_brx_sys__get_block_by_name(sys, "after", -1))


#endif
#endif
