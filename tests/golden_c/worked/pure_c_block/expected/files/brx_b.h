#ifndef __BRX_B_H__
#define __BRX_B_H__


#define QVT_BRX_PURE_C_MODEL


#include "qvt_brx.h"



/***
 * Top Level Domain/Physical Interface width ...
 */
#define brx_top_domain_width	0x4



/***
 * Size of Register 'r' in Block 'b' ...
 */
#define brx_size_of_r_in_b		0x4






/***
 * Macros to access Register 'r' in Block 'b' ...
 */
#define brx_addr_of_r_in_b(blk)	((size_t) blk + 0x0)

#define brx_read_r_in_b(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_r_in_b(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_r_in_b(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_r_in_b(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'r' in Block 'b' ...
 */
#define brx_read_f_in_b_r(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x20, fld)

#define brx_read_f_in_b(blk, fld) \
	brx_read_f_in_b_r( \
	brx_addr_of_r_in_b(blk), fld)

#define brx_write_f_in_b_r(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x20, fld)

#define brx_write_f_in_b(blk, fld) \
	brx_write_f_in_b_r( \
	brx_addr_of_r_in_b(blk), fld)

#define brx_get_f_in_b_r(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x20, fld)

#define brx_read_f_in_b(blk, fld) \
	brx_read_f_in_b_r( \
	brx_addr_of_r_in_b(blk), fld)

#define brx_set_f_in_b_r(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x20, fld)

#define brx_write_f_in_b(blk, fld) \
	brx_write_f_in_b_r( \
	brx_addr_of_r_in_b(blk), fld)


#endif
