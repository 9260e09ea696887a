// The parser's state: the record of each kind under construction and the flags that the
// grammar's actions share. There is no parser context object: the actions work on these.
#pragma once

#include "parser/model.hpp"

extern brix_field_type_tag* tmp_field_type;
extern brix_field_tag* tmp_field;
extern brix_register_type_tag* tmp_register_type;
extern brix_register_tag* tmp_register;
extern brix_vregister_type_tag* tmp_vregister_type;
extern brix_vregister_tag* tmp_vregister;
extern brix_regfile_type_tag* tmp_regfile_type;
extern brix_regfile_tag* tmp_regfile;
extern brix_memory_type_tag* tmp_memory_type;
extern brix_memory_tag* tmp_memory;
extern brix_block_type_tag* tmp_block_type;
extern brix_block_domain_tag* tmp_block_domain;
extern brix_block_tag* tmp_block;
extern brix_system_type_tag* tmp_system_type;
extern brix_system_domain_tag* tmp_system_domain;
extern brix_system_tag* tmp_system;

extern brix_constraint_tag* tmp_constraint;
extern brix_doc* tmp_doc;
extern brix_mem_initial* tmp_mem_initial;
extern brix_hdl_path_tag* tmp_hdl_path;
extern brix_attribute* tmp_attr_list;
extern brix_list_tag* tmp_enum_name_list;
extern brix_cvr_bin* tmp_bin_spec;
extern brix_list_tag* tmp_bin_spec_list;
extern brix_list_tag* tmp_bin_values;
extern char* tmp_label;

extern char* tmp_field_type_name;
extern char* tmp_register_type_name;
extern char* tmp_vregister_type_name;
extern char* tmp_memory_type_name;
extern char* tmp_regfile_type_name;
extern char* tmp_block_type_name;
extern char* tmp_system_type_name;

extern brix_str2voidptr_map* tmp_shared_regs;
extern brix_str2voidptr_map* tmp_shared_mems;
extern brix_str2voidptr_map* tmp_instantiated_blk_or_sys_with_multiple_doms;

extern char tmp_parsing_vhdl_path;
extern char parsing_unused_or_reserved_field;
extern char parsing_block_with_domain_spec;
extern char parsing_block_without_domain_spec;
extern char parsing_system_with_domain_spec;
extern char parsing_system_without_domain_spec;

// The scanner's state that the grammar touches.
extern unsigned char tmpbrixflag_first_line_read_after_hashline;
extern int brix_column;

// Puts all of the above back to its state before a parse.
void reset_parse_state();
