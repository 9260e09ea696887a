// The grammar actions of blocks, systems, their domains and the instances in them. The
// functions that serve both a block and a system take the kind of the container:
// BRIX_BLOCK or BRIX_SYSTEM.
#pragma once

#include "parser/model.hpp"

// Global definitions of blocks and systems.
void begin_global_container(int kind, char* name);
void open_container_body(int kind);
void container_body_before_close(int kind);
void end_global_container(int kind);

// A property at block or system level, outside any domain, opens the default domain.
void before_container_level_property(int kind);
void begin_container_domain(int kind);
void name_container_domain(int kind, char* name, char* offset);
void end_container_domain(int kind);

// Properties of a domain.
void container_set_bytes(int kind, char* number);
void container_set_endian(int kind, char* word);
void refuse_second_container_attributes(int kind);
void take_container_attributes(int kind);

// Virtual register instances in a block.
void begin_vregister_instance(char* ident);
void vregister_instance_renamed(char* name);
void vregister_static_placement(int array_size, char* memory, char* offset, char* increment);
void vregister_dynamic_placement();
void vregister_instance_cover(char* cover);
void begin_inline_vregister_type();
void inline_vregister_before_close();
void finish_vregister_instance(char* ident, int form);

// Regfile instances in a block.
void begin_regfile_instance(char* ident);
void regfile_instance_renamed(char* name, int array_size, brix_hdl_path_tag* path, char* offset);
void regfile_instance_renamed_end(char* increment, char* cover);
void regfile_instance_place(int array_size, brix_hdl_path_tag* path, char* offset, char* increment);
void regfile_instance_cover(char* cover);
void begin_inline_regfile_type();
void inline_regfile_before_close();
void finish_regfile_instance(char* ident, int form);

// Memory instances in a block.
void begin_memory_instance(char* ident);
void memory_instance_renamed(char* name, brix_hdl_path_tag* path, char* offset);
void memory_instance_renamed_end(char* rw_flag, char* cover);
void memory_instance_place(brix_hdl_path_tag* path, char* offset);
void memory_instance_flags(char* rw_flag, char* cover);
void begin_inline_memory_type();
void inline_memory_before_close();
void finish_memory_instance(char* ident, int form);

// Block and system instances in a system. A system instance saves the variables of the
// system around it, since a system can stand inside a system.
struct brix_saved_system_vars {
    brix_system_domain_tag* domain;
    brix_system_type_tag* type;
    brix_system_tag* system;
    brix_str2voidptr_map* instantiated;
    char* type_name;
};
void begin_block_instance(char* ident);
brix_saved_system_vars* begin_system_instance(char* ident);
void container_instance_in_domain(int kind, char* domain, char* rename, int array_size,
                                  brix_hdl_path_tag* path, char* offset);
void container_instance_renamed(int kind, char* name, int array_size, brix_hdl_path_tag* path,
                                char* offset);
void container_instance_tail(int kind, char* increment, char* cover);
void container_instance_place(int kind, int array_size, brix_hdl_path_tag* path, char* offset,
                              char* increment);
void container_instance_by_name(int kind, char* cover);
void container_instance_by_name_end(int kind);
void begin_inline_container_type(int kind);
void inline_container_before_close(int kind);
void finish_block_instance();
void finish_system_instance(brix_saved_system_vars* saved);
