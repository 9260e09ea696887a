#include "brx_soc.h"

void sink(size_t value);

void use(void *soc) {
    unsigned int data[1] = {0};
    unsigned int value = 0;
    void *sub = (void *) brx_addr_of_s1_in_soc(soc);
    void *dma = (void *) brx_addr_of_d_in_sub(sub);
    void *tmr = (void *) brx_addr_of_tmr_in_soc(soc, 1);
    sink(brx_top_domain_width + brx_size_of_ctrl_in_dma + brx_size_of_cnt_in_soc_tmr +
         brx_addr_of_wide_in_soc(soc) + brx_addr_of_pair_in_soc(soc, 1));
    brx_read_ctrl_in_dma(dma, data);
    brx_write_cnt_in_soc_tmr(tmr, data);
    brx_read_en_in_dma_ctrl(brx_addr_of_ctrl_in_dma(dma), &value);
    brx_write_c_in_soc_tmr_cnt(brx_addr_of_cnt_in_soc_tmr(tmr), value);
    brx_read_c_in_soc_tmr(tmr, &value);
    brx_write_en_in_dma(dma, value);
    brx_get_en_in_dma_ctrl(data, &value);
    brx_set_c_in_soc_tmr_cnt(data, value);
}
