// The work of the grammar's actions. The grammar file names the order in which these run;
// the checks and the building of records live here.
#pragma once

#include "parser/model.hpp"

// Display names: the record's own name, else the first identifier of the declaration.
const char* register_type_display_name();
const char* vregister_type_display_name();
const char* memory_type_display_name();
const char* regfile_type_display_name();
const char* field_type_display_name();

// Scopes of definitions with a body.
void open_definition_scope(const char* name);
void close_definition_scope();

// hdl paths.
void begin_vhdl_path();
char* hdl_path_piece(const char* lead, char* ident, char* rest);
char* hdl_path_subscript(char* text, char* rest);
char* hdl_path_range(char* low, char* high);
char* hdl_path_percent_subscript(char* ident);
char* join_hdl_path_identifier(char* ident, char* rest);
void append_hdl_path(char* path);
brix_hdl_path_tag* take_hdl_path(bool vhdl);
void refuse_verilog_colon();
bool any_path_has_percent_d(const brix_hdl_path_tag* path);

char* check_offset_word(char* word);
int array_subscript(char* text);
char* rewrite_hex_reset(char* number);

// Items owned by the record under construction.
void begin_constraint(brix_constraint_tag*& owner_list);
void name_constraint(char* name);
void begin_doc(brix_doc*& owner_doc);
void add_attribute(char* name, char* value);
void take_attributes(brix_attribute*& target);
void refuse_second_attributes(const brix_attribute* existing, const char* message,
                              const char* name);
void add_enum_name(char* name, char* value);
// Parses a `cover` text into `target`, refusing a second one; frees the text.
void store_cvr_spec(brix_cvr_spec_tag*& target, char* text);

// Global field definitions and field properties.
void begin_global_field_type(char* name);
void end_global_field_type();
void field_set_bits(char* number);
void field_set_access(char* word);
void field_set_hard_reset(char* number, bool deprecated_word);
void field_set_soft_reset(char* number);
void field_begin_constraint();
void field_begin_doc();
void field_set_enum(char* name);
void field_set_cover(char* text);

// Field instances in registers (own_scope) and virtual registers.
void begin_field_instance(char* ident, bool own_scope);
void field_instance_renamed(char* name, brix_hdl_path_tag* path, char* offset, char* cover);
void field_instance_place(brix_hdl_path_tag* path, char* offset);
void begin_inline_field_type();
void end_inline_field_type();
void field_instance_cover(char* cover);
void finish_field_instance(char* ident, int form, bool in_register);

// Registers.
void begin_global_register_type(char* name);
void register_set_bytes(char* number);
void register_set_noise(char* word);
void register_set_shared(brix_hdl_path_tag* path);
void check_register_field_languages();
void register_type_before_close();
void end_global_register_type();

// Virtual registers.
void begin_global_vregister_type(char* name);
void vregister_set_bytes(char* number);
void vregister_set_cover(char* text);
void end_global_vregister_type();

// Crosses of registers and virtual registers.
void begin_cross(const brix_list_tag* items, const char* owner_name);
void end_cross(brix_list_tag* items, brix_list_tag*& crosses);

// Coverpoints.
void begin_bin(char* name);
void bin_brackets(char* number);
void bin_default_checks();
void add_bin_value(brix_cvr_bin_value* value);
brix_cvr_bin_value* bin_enum_value(char* ident);
brix_cvr_bin_value* bin_number_value(char* number);
brix_cvr_bin_value* bin_range_value(brix_cvr_bin_value* low, brix_cvr_bin_value* high);
void end_bin(bool bracket_form);
void end_coverpoint();

// Memories.
void begin_global_memory_type(char* name);
void memory_check_no_size();
void memory_set_size(char* number, char* unit);
char* memory_size_unit(char* word);
void memory_set_bits(char* number);
void memory_set_access(char* word);
void memory_begin_initial();
void memory_initial_number(char* number, int op);
void memory_initial_word(char* word);
void memory_end_initial();
void memory_set_noise(char* word);
void memory_set_shared(brix_hdl_path_tag* path);
void memory_set_cover(char* text);
void end_global_memory_type();
// The tests at the end of a memory type, global or inline: bits, size, cvr_used.
void check_memory_type_complete();

// Register files and the register instances in them.
void begin_global_regfile_type(char* name);
void end_global_regfile_type();
void begin_register_instance(char* ident);
void register_instance_renamed(char* name, int array_size, brix_hdl_path_tag* path, char* offset,
                               char* increment);
void register_instance_place(int array_size, brix_hdl_path_tag* path, char* offset,
                             char* increment);
void register_instance_flags(char* rw_flag, char* cover);
void begin_inline_register_type();
void inline_register_before_close();
void finish_register_instance_in_regfile(char* ident, int form);
void finish_register_instance_in_block(char* ident, int form);
