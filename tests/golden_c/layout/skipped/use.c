#include "brx_sk.h"

void sink(size_t value);

void use(void *blk) {
    unsigned int data[1] = {0};
    unsigned int value = 0;
    sink(brx_top_domain_width + brx_size_of_a_in_sk + brx_addr_of_b_in_sk(blk));
    brx_read_a_in_sk(blk, data);
    brx_write_b_in_sk(blk, data);
    brx_read_k_in_sk_a(brx_addr_of_a_in_sk(blk), &value);
    brx_write_z_in_sk_b(brx_addr_of_b_in_sk(blk), value);
    brx_read_z_in_sk(blk, &value);
    brx_write_z_in_sk(blk, value);
    brx_get_k_in_sk_a(data, &value);
    brx_set_z_in_sk_b(data, value);
}
