#include "brx_b.h"

void sink(size_t value);

void use(void *blk) {
    unsigned int data[1] = {0};
    unsigned int value = 0;
    sink(brx_top_domain_width + brx_size_of_r_in_b + brx_addr_of_r_in_b(blk));
    brx_read_r_in_b(blk, data);
    brx_write_r_in_b(blk, data);
    brx_read_f_in_b_r(brx_addr_of_r_in_b(blk), &value);
    brx_write_f_in_b_r(brx_addr_of_r_in_b(blk), value);
    brx_read_f_in_b(blk, &value);
    brx_write_f_in_b(blk, value);
    brx_get_f_in_b_r(data, &value);
    brx_set_f_in_b_r(data, value);
}
