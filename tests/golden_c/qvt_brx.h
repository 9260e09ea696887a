/* Stand-in for the run-time library's C header: the constants and functions that the
 * generated macros name, declared for each of the two forms, so that a generated header
 * and the code that uses it can be compiled. */
#ifndef QVT_BRX_H
#define QVT_BRX_H

#include <stddef.h>

#define QVT_BRX_LITTLE_ENDIAN 0
#define QVT_BRX_BIG_ENDIAN 1

/* A field inside register words in hand. */
void qvt_brx_field__read(unsigned int *reg, unsigned int lsb, unsigned int bits,
                         unsigned int *fld);
void qvt_brx_field__write(unsigned int *reg, unsigned int lsb, unsigned int bits,
                          unsigned int fld);

#ifdef QVT_BRX_PURE_C_MODEL
/* The model is plain memory at addresses computed by the macros. */
void *qvt_brx_addr_align(size_t addr);
void qvt_brx_reg__read(size_t addr, unsigned int words, int endian, unsigned int *reg);
void qvt_brx_reg__write(size_t addr, unsigned int words, int endian, unsigned int *reg);
void qvt_brx_mem__read(size_t addr, unsigned int bits, unsigned long long offset,
                       unsigned int words, int endian, unsigned int *mem);
void qvt_brx_mem__write(size_t addr, unsigned int bits, unsigned long long offset,
                        unsigned int words, int endian, unsigned int *mem);
#else
/* The model runs elsewhere and is reached by name; `status` is 1 after a failure. */
extern int qvt_brx_status;
void qvt_brx_error(const char *message);
void *qvt_brx_block_or_sys__get_reg_by_name(void *blk, const char *name, int idx);
void *qvt_brx_block_or_sys__get_mem_by_name(void *blk, const char *name);
void *qvt_brx_sys__get_block_by_name(void *sys, const char *name, int idx);
void *qvt_brx_sys__get_subsys_by_name(void *sys, const char *name, int idx);
void qvt_brx_reg__read(size_t reg, int *status, unsigned int *data, unsigned int first,
                       unsigned int last);
void qvt_brx_reg__write(size_t reg, int *status, unsigned int *data, unsigned int first,
                        unsigned int last);
void qvt_brx_mem__read(size_t mem, unsigned long long offset, int *status, unsigned int *data,
                       unsigned int first, unsigned int last);
void qvt_brx_mem__write(size_t mem, unsigned long long offset, int *status, unsigned int *data,
                        unsigned int first, unsigned int last);
#endif

#endif
