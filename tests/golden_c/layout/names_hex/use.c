#include "brx_nh.h"

void sink(size_t value);

void use(void *blk) {
    unsigned int data[1] = {0};
    unsigned int value = 0;
    sink(brx_size_of_buf_in_nh + brx_addr_of_mix_in_nh(blk, 1));
    brx_read_mix_in_nh(blk, 1, data);
    brx_write_buf_in_nh(blk, 4, data);
    brx_read_mark_in_nh(blk, data);
    brx_read_mix_in_nh_mix(brx_addr_of_mix_in_nh(blk, 0), &value);
    brx_write_buf_in_nh_mix(brx_addr_of_mix_in_nh(blk, 0), value);
    brx_get_tail_in_nh_mix(data, &value);
    brx_write_m_in_nh(blk, value);
}
