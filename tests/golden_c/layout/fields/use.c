#include "brx_fb.h"

void sink(size_t value);

void use(void *blk) {
    unsigned int data[1] = {0};
    unsigned int value = 0;
    sink(brx_top_domain_width + brx_size_of_ctl_in_fb + brx_addr_of_cfg_in_fb(blk));
    brx_read_cfg_in_fb(blk, data);
    brx_write_cfg_in_fb(blk, data);
    brx_read_en_in_fb_ctl(brx_addr_of_ctl_in_fb(blk), &value);
    brx_write_en_in_fb_cfg(brx_addr_of_cfg_in_fb(blk), value);
    brx_read_mode_in_fb(blk, &value);
    brx_write_b_in_fb(blk, value);
    brx_get_go_in_fb_ctl(data, &value);
    brx_set_a_in_fb_cfg(data, value);
}
