// Top lookup, the hdl path consistency of multi-domain instances, and the deep copy of
// definitions for instantiation.
#pragma once

#include "parser/model.hpp"
#include "parser/scope.hpp"

// A new symbol for the block or system type of that name; null when there is none.
brix_symrec* lookup_top_symbol(const char* name);
// The block or system named by -t; a missing top or one of another kind ends the run.
const brix_symrec* lookup_design_top(const char* name);
void check_system_data_consistency(brix_system_type_tag* system_type);

// Each copies the record, duplicating only its cvr_spec and its own component lists; all
// other pointers, cvr_used included, stay shared with the source. Null gives null.
brix_cvr_spec_tag* copy_cvr_spec(const brix_cvr_spec_tag* spec);
brix_field_type_tag* copy_field_type(const brix_field_type_tag* t);
brix_field_tag* copy_field(const brix_field_tag* f);
brix_register_type_tag* copy_register_type(const brix_register_type_tag* t);
brix_register_tag* copy_register(const brix_register_tag* r);
brix_vregister_type_tag* copy_vregister_type(const brix_vregister_type_tag* t);
brix_vregister_tag* copy_vregister(const brix_vregister_tag* v);
brix_memory_type_tag* copy_memory_type(const brix_memory_type_tag* t);
brix_memory_tag* copy_memory(const brix_memory_tag* m);
brix_regfile_type_tag* copy_regfile_type(const brix_regfile_type_tag* t);
brix_regfile_tag* copy_regfile(const brix_regfile_tag* r);
brix_block_domain_tag* copy_block_domain(const brix_block_domain_tag* d);
brix_block_type_tag* copy_block_type(const brix_block_type_tag* t);
brix_block_tag* copy_block(const brix_block_tag* b);
brix_system_domain_tag* copy_system_domain(const brix_system_domain_tag* d);
brix_system_type_tag* copy_system_type(const brix_system_type_tag* t);
brix_system_tag* copy_system(const brix_system_tag* s);
brix_list_tag* copy_list(const brix_list_tag* list);
