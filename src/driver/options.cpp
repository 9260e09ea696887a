#include "driver/options.hpp"

char* target_language = nullptr;
const char* ofile = nullptr;
int brix_gen_backdoor = 0;
int brix_ext_ud = 0;
int brix_cvr_reg_bits = 0;
int brix_cvr_addr_map = 0;
int brix_cvr_field_vals = 0;
int brix_gen_c_interface = 0;
char* brix_backdoor_top_path = nullptr;
char* brix_vhdl_backdoor_top_path = nullptr;

bool brix_take_coverage_model(char letter) {
    int* const flag = letter == 'b'   ? &brix_cvr_reg_bits
                      : letter == 'a' ? &brix_cvr_addr_map
                      : letter == 'f' ? &brix_cvr_field_vals
                                      : nullptr;
    if (flag != nullptr) {
        *flag = 1;
    }
    return flag != nullptr;
}
