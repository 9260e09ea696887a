#ifndef __BRX_MEMTOP_H__
#define __BRX_MEMTOP_H__


#ifndef QVT_BRX_PURE_C_MODEL
#define QVT_BRX_C_INTF_FOR_HX_MODEL
#endif


#include "qvt_brx.h"



/***
 * Top Level Domain/Physical Interface width ...
 */
#define brx_top_domain_width	0x2



/***
 * Size of Memory 'm8' in Block 'MemTop' ...
 */
#define brx_size_of_m8_in_MemTop		0x800



/***
 * Size of Memory 'm32' in Block 'MemTop' ...
 */
#define brx_size_of_m32_in_MemTop		0x40



/***
 * Size of Memory 'm64' in Block 'MemTop' ...
 */
#define brx_size_of_m64_in_MemTop		0x10



/***
 * Size of Memory 'big' in Block 'MemTop' ...
 */
#define brx_size_of_big_in_MemTop		0x200000000



/***
 * Size of Register 'ctl' in Block 'MemTop' ...
 */
#define brx_size_of_ctl_in_MemTop		0x2




#ifdef QVT_BRX_PURE_C_MODEL

/***
 * Macros to access Memory 'm8' in Block 'MemTop' ...
 */
#define brx_addr_of_m8_in_MemTop(blk)	((size_t) blk + 0x0)

#define brx_read_m8_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__read(brx_addr_of_m8_in_MemTop(blk), 0x8, offset, 0x1, QVT_BRX_LITTLE_ENDIAN, mem)

#define brx_write_m8_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__write(brx_addr_of_m8_in_MemTop(blk), 0x8, offset, 0x1, QVT_BRX_LITTLE_ENDIAN, mem)



/***
 * Macros to access Memory 'm32' in Block 'MemTop' ...
 */
#define brx_addr_of_m32_in_MemTop(blk)	((size_t) blk + 0x400)

#define brx_read_m32_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__read(brx_addr_of_m32_in_MemTop(blk), 0x20, offset, 0x2, QVT_BRX_LITTLE_ENDIAN, mem)

#define brx_write_m32_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__write(brx_addr_of_m32_in_MemTop(blk), 0x20, offset, 0x2, QVT_BRX_LITTLE_ENDIAN, mem)



/***
 * Macros to access Memory 'm64' in Block 'MemTop' ...
 */
#define brx_addr_of_m64_in_MemTop(blk)	((size_t) blk + 0x420)

#define brx_read_m64_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__read(brx_addr_of_m64_in_MemTop(blk), 0x40, offset, 0x4, QVT_BRX_LITTLE_ENDIAN, mem)

#define brx_write_m64_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__write(brx_addr_of_m64_in_MemTop(blk), 0x40, offset, 0x4, QVT_BRX_LITTLE_ENDIAN, mem)



/***
 * Macros to access Memory 'big' in Block 'MemTop' ...
 */
#define brx_addr_of_big_in_MemTop(blk)	((size_t) blk + 0x428)

#define brx_read_big_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__read(brx_addr_of_big_in_MemTop(blk), 0x10, offset, 0x1, QVT_BRX_LITTLE_ENDIAN, mem)

#define brx_write_big_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__write(brx_addr_of_big_in_MemTop(blk), 0x10, offset, 0x1, QVT_BRX_LITTLE_ENDIAN, mem)



/***
 * Macros to access Register 'ctl' in Block 'MemTop' ...
 */
#define brx_addr_of_ctl_in_MemTop(blk)	((size_t) blk + 0x428)

#define brx_read_ctl_in_MemTop(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_ctl_in_MemTop(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)

#define brx_write_ctl_in_MemTop(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_ctl_in_MemTop(blk), 0x1, QVT_BRX_LITTLE_ENDIAN, reg)



/***
 * Macros to access Fields of Register 'ctl' in Block 'MemTop' ...
 */
#define brx_read_en_in_MemTop_ctl(reg, fld) \
	qvt_brx_field__read(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x1, fld)

#define brx_read_en_in_MemTop(blk, fld) \
	brx_read_en_in_MemTop_ctl( \
	brx_addr_of_ctl_in_MemTop(blk), fld)

#define brx_write_en_in_MemTop_ctl(reg, fld) \
	qvt_brx_field__write(((unsigned int *) qvt_brx_addr_align(reg)), 0x0, 0x1, fld)

#define brx_write_en_in_MemTop(blk, fld) \
	brx_write_en_in_MemTop_ctl( \
	brx_addr_of_ctl_in_MemTop(blk), fld)

#define brx_get_en_in_MemTop_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x1, fld)

#define brx_read_en_in_MemTop(blk, fld) \
	brx_read_en_in_MemTop_ctl( \
	brx_addr_of_ctl_in_MemTop(blk), fld)

#define brx_set_en_in_MemTop_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x1, fld)

#define brx_write_en_in_MemTop(blk, fld) \
	brx_write_en_in_MemTop_ctl( \
	brx_addr_of_ctl_in_MemTop(blk), fld)



#else



/***
 * Macros to access Memory 'm8' in Block 'MemTop' ...
 */
#define brx_addr_of_m8_in_MemTop(blk)	((size_t) qvt_brx_block_or_sys__get_mem_by_name(blk, "m8"))

#define brx_read_m8_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__read(brx_addr_of_m8_in_MemTop(blk), offset, &qvt_brx_status, mem, 0x0, 0x0)

#define brx_write_m8_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__write(brx_addr_of_m8_in_MemTop(blk), offset, &qvt_brx_status, mem, 0x0, 0x0)



/***
 * Macros to access Memory 'm32' in Block 'MemTop' ...
 */
#define brx_addr_of_m32_in_MemTop(blk)	((size_t) qvt_brx_block_or_sys__get_mem_by_name(blk, "m32"))

#define brx_read_m32_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__read(brx_addr_of_m32_in_MemTop(blk), offset, &qvt_brx_status, mem, 0x0, 0x0)

#define brx_write_m32_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__write(brx_addr_of_m32_in_MemTop(blk), offset, &qvt_brx_status, mem, 0x0, 0x0)



/***
 * Macros to access Memory 'm64' in Block 'MemTop' ...
 */
#define brx_addr_of_m64_in_MemTop(blk)	((size_t) qvt_brx_block_or_sys__get_mem_by_name(blk, "m64"))

#define brx_read_m64_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__read(brx_addr_of_m64_in_MemTop(blk), offset, &qvt_brx_status, mem, 0x0, 0x1)

#define brx_write_m64_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__write(brx_addr_of_m64_in_MemTop(blk), offset, &qvt_brx_status, mem, 0x0, 0x1)



/***
 * Macros to access Memory 'big' in Block 'MemTop' ...
 */
#define brx_addr_of_big_in_MemTop(blk)	((size_t) qvt_brx_block_or_sys__get_mem_by_name(blk, "big"))

#define brx_read_big_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__read(brx_addr_of_big_in_MemTop(blk), offset, &qvt_brx_status, mem, 0x0, 0x0)

#define brx_write_big_in_MemTop(blk, offset, mem) \
	qvt_brx_mem__write(brx_addr_of_big_in_MemTop(blk), offset, &qvt_brx_status, mem, 0x0, 0x0)



/***
 * Macros to access Register 'ctl' in Block 'MemTop' ...
 */
#define brx_addr_of_ctl_in_MemTop(blk)	((size_t) qvt_brx_block_or_sys__get_reg_by_name(blk, "ctl", -1))

#define brx_read_ctl_in_MemTop(blk, reg) \
	qvt_brx_reg__read(brx_addr_of_ctl_in_MemTop(blk), &qvt_brx_status, reg, 0x0, 0x0)

#define brx_write_ctl_in_MemTop(blk, reg) \
	qvt_brx_reg__write(brx_addr_of_ctl_in_MemTop(blk), &qvt_brx_status, reg, 0x0, 0x0)



/***
 * Macros to access Fields of Register 'ctl' in Block 'MemTop' ...
 */
#define brx_read_en_in_MemTop_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While reading field 'en', failed to read register 'ctl' in block 'MemTop'");\
		qvt_brx_field__read(__qvt_r, 0x0, 0x1, fld);\
	}

#define brx_read_en_in_MemTop(blk, fld) \
	brx_read_en_in_MemTop_ctl( \
	brx_addr_of_ctl_in_MemTop(blk), fld)

#define brx_write_en_in_MemTop_ctl(reg, fld) \
	{\
		unsigned int __qvt_r[0x1];\
		qvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("While writing field 'en', failed to read register 'ctl' in block 'MemTop'");\
		qvt_brx_field__write(__qvt_r, 0x0, 0x1, fld);\
		if (qvt_brx_status == 1)\
			qvt_brx_error("Failed to write field 'en' of register 'ctl' in block 'MemTop'");\
		qvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x0);\
	}

#define brx_write_en_in_MemTop(blk, fld) \
	brx_write_en_in_MemTop_ctl( \
	brx_addr_of_ctl_in_MemTop(blk), fld)

#define brx_get_en_in_MemTop_ctl(reg, fld) \
	qvt_brx_field__read(reg, 0x0, 0x1, fld)

#define brx_read_en_in_MemTop(blk, fld) \
	brx_read_en_in_MemTop_ctl( \
	brx_addr_of_ctl_in_MemTop(blk), fld)

#define brx_set_en_in_MemTop_ctl(reg, fld) \
	qvt_brx_field__write(reg, 0x0, 0x1, fld)

#define brx_write_en_in_MemTop(blk, fld) \
	brx_write_en_in_MemTop_ctl( \
	brx_addr_of_ctl_in_MemTop(blk), fld)


#endif
#endif
