#ifndef __BRX_SK_H__
#define __BRX_SK_H__


#ifndef QVT_BRX_PURE_C_MODEL
#define QVT_BRX_C_INTF_FOR_SV_MODEL
#endif


#include "qvt_brx.h"



/***
 * Top Level Domain/Physical Interface width ...
 */
#define brx_top_domain_width	0x4



/***
 * Size of Register 'a' in Block 'sk' ...
 */
#define brx_size_of_a_in_sk		0x4



/***
 * Size of Register 'b' in Block 'sk' ...
 */
#define brx_size_of_b_in_sk		0x4




#ifdef QVT_BRX_PURE_C_MODEL

/***
 * Macros to access Register 'a' in Block 'sk' ...
 */
#define brx_addr_of_a_in_sk(blk)	((size_t) blk + 0x2)

#define brx_read_a_in_sk(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_a_in_sk(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_a_in_sk(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_a_in_sk(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'a' in Block 'sk' ...
 */
#define brx_read_k_in_sk_a(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x4, fld)

#define brx_write_k_in_sk_a(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x4, fld)

#define brx_get_k_in_sk_a(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x4, fld)

#define brx_set_k_in_sk_a(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x4, fld)



/***
 * Macros to access Register 'b' in Block 'sk' ...
 */
#define brx_addr_of_b_in_sk(blk)	((size_t) blk + 0x3)

#define brx_read_b_in_sk(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_b_in_sk(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_b_in_sk(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_b_in_sk(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'b' in Block 'sk' ...
 */
#define brx_read_z_in_sk_b(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x8, fld)

#define brx_read_z_in_sk(blk, fld) \
	brx_read_z_in_sk_b( \
	brx_addr_of_b_in_sk(blk), fld)

#define brx_write_z_in_sk_b(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x8, fld)

#define brx_write_z_in_sk(blk, fld) \
	brx_write_z_in_sk_b( \
	brx_addr_of_b_in_sk(blk), fld)

#define brx_get_z_in_sk_b(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x8, fld)

#define brx_read_z_in_sk(blk, fld) \
	brx_read_z_in_sk_b( \
	brx_addr_of_b_in_sk(blk), fld)

#define brx_set_z_in_sk_b(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x8, fld)

#define brx_write_z_in_sk(blk, fld) \
	brx_write_z_in_sk_b( \
	brx_addr_of_b_in_sk(blk), fld)



#else



/***
 * Macros to access Register 'a' in Block 'sk' ...
 */
#define brx_addr_of_a_in_sk(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "a", -1))

#define brx_read_a_in_sk(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_a_in_sk(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_a_in_sk(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_a_in_sk(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'a' in Block 'sk' ...
 */
#define brx_read_k_in_sk_a(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'k', failed to read register 'a' in block 'sk'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x4, fld);\
	}

#define brx_write_k_in_sk_a(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'k', failed to read register 'a' in block 'sk'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x4, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'k' of register 'a' in block 'sk'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_get_k_in_sk_a(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x4, fld)

#define brx_set_k_in_sk_a(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x4, fld)



/***
 * Macros to access Register 'b' in Block 'sk' ...
 */
#define brx_addr_of_b_in_sk(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "b", -1))

#define brx_read_b_in_sk(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_b_in_sk(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_b_in_sk(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_b_in_sk(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'b' in Block 'sk' ...
 */
#define brx_read_z_in_sk_b(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'z', failed to read register 'b' in block 'sk'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x8, fld);\
	}

#define brx_read_z_in_sk(blk, fld) \
	brx_read_z_in_sk_b( \
	brx_addr_of_b_in_sk(blk), fld)

#define brx_write_z_in_sk_b(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'z', failed to read register 'b' in block 'sk'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x8, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'z' of register 'b' in block 'sk'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_z_in_sk(blk, fld) \
	brx_write_z_in_sk_b( \
	brx_addr_of_b_in_sk(blk), fld)

#define brx_get_z_in_sk_b(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x8, fld)

#define brx_read_z_in_sk(blk, fld) \
	brx_read_z_in_sk_b( \
	brx_addr_of_b_in_sk(blk), fld)

#define brx_set_z_in_sk_b(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x8, fld)

#define brx_write_z_in_sk(blk, fld) \
	brx_write_z_in_sk_b( \
	brx_addr_of_b_in_sk(blk), fld)


#endif
#endif
