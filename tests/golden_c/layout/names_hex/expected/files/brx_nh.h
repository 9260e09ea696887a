#ifndef __BRX_NH_H__
#define __BRX_NH_H__


#define QVT_BRX_PURE_C_MODEL


#include "qvt_brx.h"



/***
 * Top Level Domain/Physical Interface width ...
 */
#define brx_top_domain_width	0x1



/***
 * Size of Register 'mix' in Block 'nh' ...
 */
#define brx_size_of_mix_in_nh		0x4



/***
 * Size of Memory 'buf' in Block 'nh' ...
 */
#define brx_size_of_buf_in_nh		0x36



/***
 * Size of Register 'mark' in Block 'nh' ...
 */
#define brx_size_of_mark_in_nh		0x1






/***
 * Macros to access Register Array 'mix' in Block 'nh' ...
 */
#define brx_addr_of_mix_in_nh(blk, idx)	((size_t) blk + 0x3 + (idx * 0x1a))

#define brx_read_mix_in_nh(blk, idx, reg) \
	qvt_brx_reg__read(brx_addr_of_mix_in_nh(blk, idx), 0x4, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_mix_in_nh(blk, idx, reg) \
	qvt_brx_reg__write(brx_addr_of_mix_in_nh(blk, idx), 0x4, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'mix' in Block 'nh' ...
 */
#define brx_read_mix_in_nh_mix(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x4, fld)

#define brx_write_mix_in_nh_mix(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x4, fld)

#define brx_get_mix_in_nh_mix(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x4, fld)

#define brx_set_mix_in_nh_mix(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x4, fld)

#define brx_read_buf_in_nh_mix(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x1c, 0x4, fld)

#define brx_write_buf_in_nh_mix(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x1c, 0x4, fld)

#define brx_get_buf_in_nh_mix(reg, fld) \
	qvt_brx_field__read(reg, 0x1c, 0x4, fld)

#define brx_set_buf_in_nh_mix(reg, fld) \
	qvt_brx_field__write(reg, 0x1c, 0x4, fld)

#define brx_read_tail_in_nh_mix(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0xa, 0x6, fld)

#define brx_read_tail_in_nh(blk, fld) \
	brx_read_tail_in_nh_mix( \
	brx_addr_of_mix_in_nh(blk), fld)

#define brx_write_tail_in_nh_mix(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0xa, 0x6, fld)

#define brx_write_tail_in_nh(blk, fld) \
	brx_write_tail_in_nh_mix( \
	brx_addr_of_mix_in_nh(blk), fld)

#define brx_get_tail_in_nh_mix(reg, fld) \
	qvt_brx_field__read(reg, 0xa, 0x6, fld)

#define brx_read_tail_in_nh(blk, fld) \
	brx_read_tail_in_nh_mix( \
	brx_addr_of_mix_in_nh(blk), fld)

#define brx_set_tail_in_nh_mix(reg, fld) \
	qvt_brx_field__write(reg, 0xa, 0x6, fld)

#define brx_write_tail_in_nh(blk, fld) \
	brx_write_tail_in_nh_mix( \
	brx_addr_of_mix_in_nh(blk), fld)



/***
 * Macros to access Memory 'buf' in Block 'nh' ...
 */
#define brx_addr_of_buf_in_nh(blk)	((size_t) blk + 0x37)

#define brx_read_buf_in_nh(blk, offset, mem) \
	qvt_brx_mem__read(brx_addr_of_buf_in_nh(blk), 0xc, offset, 0x2, QVT_BRX_LITTLE_ENDIAN, mem)

#define brx_write_buf_in_nh(blk, offset, mem) \
	qvt_brx_mem__write(brx_addr_of_buf_in_nh(blk), 0xc, offset, 0x2, QVT_BRX_LITTLE_ENDIAN, mem)



/***
 * Macros to access Register 'mark' in Block 'nh' ...
 */
#define brx_addr_of_mark_in_nh(blk)	((size_t) blk + 0x37)

#define brx_read_mark_in_nh(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_mark_in_nh(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_mark_in_nh(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_mark_in_nh(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'mark' in Block 'nh' ...
 */
#define brx_read_m_in_nh_mark(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x8, fld)

#define brx_read_m_in_nh(blk, fld) \
	brx_read_m_in_nh_mark( \
	brx_addr_of_mark_in_nh(blk), fld)

#define brx_write_m_in_nh_mark(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x8, fld)

#define brx_write_m_in_nh(blk, fld) \
	brx_write_m_in_nh_mark( \
	brx_addr_of_mark_in_nh(blk), fld)

#define brx_get_m_in_nh_mark(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x8, fld)

#define brx_read_m_in_nh(blk, fld) \
	brx_read_m_in_nh_mark( \
	brx_addr_of_mark_in_nh(blk), fld)

#define brx_set_m_in_nh_mark(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x8, fld)

#define brx_write_m_in_nh(blk, fld) \
	brx_write_m_in_nh_mark( \
	brx_addr_of_mark_in_nh(blk), fld)


#endif
