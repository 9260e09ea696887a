// Expansion of a description script into the pure description.
#pragma once

// Evaluates the description file and writes the pure description into pure_file.
// Returns only on success.
void expand_tcl_constructs(const char* description_file, const char* pure_file);
