#include "brx_top.h"

void sink(size_t value);

void use(void *top) {
    unsigned int data[1] = {0};
    unsigned int value = 0;
    void *br = (void *) brx_addr_of_br_in_top(top);
    sink(brx_top_domain_width + brx_size_of_dcsr_in_bridge + brx_addr_of_hb_in_top(top));
    brx_read_dcsr_in_bridge(br, data);
    brx_write_dcsr_in_bridge(br, data);
    brx_read_go_in_bridge_dcsr(brx_addr_of_dcsr_in_bridge(br), &value);
    brx_write_go_in_bridge_dcsr(brx_addr_of_dcsr_in_bridge(br), value);
    brx_read_go_in_bridge(br, &value);
    brx_write_go_in_bridge(br, value);
    brx_get_go_in_bridge_dcsr(data, &value);
    brx_set_go_in_bridge_dcsr(data, value);
}
