#include "brx_MemTop.h"

void sink(size_t value);

void use(void *blk) {
    unsigned int data[2] = {0, 0};
    unsigned int value = 0;
    sink(brx_top_domain_width + brx_size_of_big_in_MemTop + brx_addr_of_m64_in_MemTop(blk));
    brx_read_m8_in_MemTop(blk, 1023, data);
    brx_write_m64_in_MemTop(blk, 1, data);
    brx_read_ctl_in_MemTop(blk, data);
    brx_write_ctl_in_MemTop(blk, data);
    brx_read_en_in_MemTop_ctl(brx_addr_of_ctl_in_MemTop(blk), &value);
    brx_write_en_in_MemTop_ctl(brx_addr_of_ctl_in_MemTop(blk), value);
    brx_read_en_in_MemTop(blk, &value);
    brx_write_en_in_MemTop(blk, value);
    brx_get_en_in_MemTop_ctl(data, &value);
    brx_set_en_in_MemTop_ctl(data, value);
}
