#include "brx_rb.h"

void sink(size_t value);

/* The short field aliases of the arrays arr and plain (brx_read_v_in_rb, brx_write_w_in_rb)
 * call the array's address macro without an index, so no use of them can compile; they
 * stay in the header as generated and are left out here. */
void use(void *blk) {
    unsigned int data[2] = {0, 0};
    unsigned int value = 0;
    sink(brx_top_domain_width + brx_size_of_r8_in_rb + brx_addr_of_arr_in_rb(blk, 3) +
         brx_addr_of_plain_in_rb(blk, 2) + brx_addr_of_gone_in_rb(blk));
    brx_read_r8_in_rb(blk, data);
    brx_write_arr_in_rb(blk, 1, data);
    brx_read_plain_in_rb(blk, 0, data);
    brx_read_hi_in_rb_r8(brx_addr_of_r8_in_rb(blk), &value);
    brx_write_v_in_rb_arr(brx_addr_of_arr_in_rb(blk, 1), value);
    brx_read_lo_in_rb(blk, &value);
    brx_write_hi_in_rb(blk, value);
    brx_get_x_in_rb_back(data, &value);
    brx_set_w_in_rb_plain(data, value);
}
