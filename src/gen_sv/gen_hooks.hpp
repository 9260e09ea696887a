// The places where the coverage models and the backdoor classes join the model text.
// Their writers come with those features; until then each writes nothing, so that the
// text around them is complete as it stands with coverage and backdoor off.
#pragma once

#include <string>
#include <unordered_map>

#include "parser/model.hpp"

// Field name to enum name to value, filled while a register's enum classes are written.
using brix_enum_table = std::unordered_map<std::string, std::unordered_map<std::string, long long>>;

// Coverage: the body of `field_values`, the register-bit class, the address-map class and
// methods of a block, and a block's `sample_field_values`.
void emit_reg_fldval_cvr_n_cross_pnts(const brix_register_type_tag* type, int indent,
                                      const brix_enum_table& enums);
void emit_reg_bits_cvr_class(const brix_register_type_tag* type);
void emit_block_cvr_class(const brix_block_type_tag* type, int indent);
void emit_block_addrmap_cvr_methods(const brix_block_type_tag* type, int indent);
void emit_block_field_value_sample_method(const brix_block_type_tag* type);

// Backdoor: the classes written ahead of the top's direct components, and what the top's
// constructor sets up for each of them.
void emit_register_backdoor(const brix_register_tag* reg);
void emit_regfile_backdoor(const brix_regfile_tag* regfile);
void emit_memory_backdoor(const brix_memory_tag* mem);
void emit_block_backdoor(const brix_block_tag* block);
void emit_system_backdoor(const brix_system_tag* system);
void emit_register_backdoor_instantiations(const brix_register_tag* reg);
void emit_regfile_backdoor_instantiations(const brix_regfile_tag* regfile);
void emit_memory_backdoor_instantiations(const brix_memory_tag* mem);
void emit_block_backdoor_instantiations(const brix_block_tag* block);
void emit_system_backdoor_instantiations(const brix_system_tag* system);
void emit_vhdl_bkdr_connection_module();
