// Checks after parsing: the top, and which coverage models apply to what.
#pragma once

#include "parser/model.hpp"

// Finds the top named by -t and settles the coverage specs of everything below it.
void check_semantics(const char* top);

// Coverage queries of the generators; they read what check_semantics marked.
int can_cvr_register_bits(const brix_register_type_tag* type);
int can_cvr_register_field_val(const brix_register_type_tag* type);
int can_cvr_block_field_val(const brix_block_type_tag* type);
int can_cvr_block_addr_map(const brix_block_type_tag* type, const char* domain);
// The coverage argument of a constructor for a type's `cvr_used`.
const char* get_cvr_expr(const brix_cvr_spec_tag* spec);
