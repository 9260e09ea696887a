// Backdoor access classes, reaching registers and memories straight through their hdl
// paths. The generator calls these at fixed places; they write nothing yet, so that the
// text around them is complete as it stands with the backdoor off.
#pragma once

#include "parser/model.hpp"

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
