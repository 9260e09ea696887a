// Option flags of the command line, set by the driver and read by the later stages.
#pragma once

extern char* target_language;
extern const char* ofile;
extern int brix_gen_backdoor;
extern int brix_ext_ud;
extern int brix_cvr_reg_bits;
extern int brix_cvr_addr_map;
extern int brix_cvr_field_vals;
extern int brix_gen_c_interface;
extern char* brix_backdoor_top_path;
extern char* brix_vhdl_backdoor_top_path;

// Turns on the coverage model of one letter of `-c` (b, a or f); false for any other.
bool brix_take_coverage_model(char letter);
