#include "brx_br.h"

void sink(size_t value);

void use(void *blk) {
    unsigned int data[1] = {0};
    unsigned int value = 0;
    sink(brx_top_domain_width + brx_size_of_dcsr_in_br + brx_addr_of_stat_in_br(blk));
    brx_read_dcsr_in_br(blk, data);
    brx_write_stat_in_br(blk, data);
    brx_read_st_in_br_stat(brx_addr_of_stat_in_br(blk), &value);
    brx_write_go_in_br_dcsr(brx_addr_of_dcsr_in_br(blk), value);
    brx_read_go_in_br(blk, &value);
    brx_write_st_in_br(blk, value);
    brx_get_go_in_br_dcsr(data, &value);
    brx_set_st_in_br_stat(data, value);
}
