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
