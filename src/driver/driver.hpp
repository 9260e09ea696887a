// Command line and the order of one run.
#pragma once

#include "driver/options.hpp"

void show_brixgen_help();
// A new heap string.
char* get_absolute_path(const char* path);

// Fills pure_brix_file with the temporary file's name for this process.
void brix_name_pure_file();

// Appends an -I value, made absolute, to the folders joined by ':' in brix_inc_dirs.
void brix_add_include_dir(const char* value);

// The stages up to the checked model: the expansion into the temporary pure description,
// the parse, the semantic checks of `top`. Any error ends the run; yyin is left open.
void brix_read_model(const char* description_file, const char* top);
// Writes past the file size limit fail with an error to report instead of a signal.
void brix_ignore_file_size_signal();

// The whole program; returns the exit status of a successful run.
int brix_main(int argc, char** argv);
