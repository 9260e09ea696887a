#include "brx_soc.h"

void sink(size_t value);

void use(void *soc) {
    unsigned int data[1] = {0};
    unsigned int value = 0;
    void *s8 = (void *) brx_addr_of_s8_in_soc(soc);
    void *dma = (void *) brx_addr_of_d_in_sub(s8);
    void *pio = (void *) brx_addr_of_pn_in_soc(soc, 1);
    sink(brx_addr_of_dm_in_soc(soc, 2) + brx_addr_of_back_in_soc(soc) +
         brx_addr_of_sl_in_soc(soc, 1) + brx_addr_of_after_in_soc(soc) + brx_size_of_st_in_pio);
    brx_read_ctrl_in_dma(dma, data);
    brx_write_st_in_pio(pio, data);
    brx_read_en_in_pio_st(brx_addr_of_st_in_pio(pio), &value);
    brx_write_lvl_in_pio(pio, value);
    brx_set_en_in_pio_st(data, value);
}
