// Command line and the order of one run.
#pragma once

#include "driver/options.hpp"

void show_brixgen_help();
// A new heap string.
char* get_absolute_path(const char* path);

// Fills pure_brix_file with the temporary file's name for this process.
void brix_name_pure_file();

// The whole program; returns the exit status of a successful run.
int brix_main(int argc, char** argv);
