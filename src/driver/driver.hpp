// Command line and the order of one run.
#pragma once

// Option flags read by the later stages.
extern char* target_language;
extern const char* ofile;
extern char* brix_inc_dirs;
extern int brix_gen_backdoor;
extern int brix_ext_ud;
extern int brix_cvr_reg_bits;
extern int brix_cvr_addr_map;
extern int brix_cvr_field_vals;
extern int brix_gen_c_interface;
extern char* brix_backdoor_top_path;
extern char* brix_vhdl_backdoor_top_path;

void show_brixgen_help();
// Both return a new heap string.
char* get_absolute_path(const char* path);
char* dirname(const char* path);

// Fills pure_brix_file with the temporary file's name for this process.
void brix_name_pure_file();

// The whole program; returns the exit status of a successful run.
int brix_main(int argc, char** argv);
