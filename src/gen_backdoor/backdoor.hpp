// Backdoor access classes, reaching registers and memories straight through their hdl
// paths. The generator calls these at fixed places: ahead of the classes of the top's
// components, and in the top's constructor.
//
// One walk serves every target language. It decides what is written; the language's
// `brix_bkdr_templates` decides how the class around the access statements is spelled and
// where those statements go. The statements themselves are Verilog in every language.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "parser/model.hpp"

// An access is a read or a write; the two differ in a few texts only.
enum class brix_bkdr_dir { read = 0, write = 1 };

// What an array level held before the memory backdoor expanded it into its elements.
struct brix_tmp_info_for_mem_vhdl_bkdr {
    char* name;
    int32_t array_size;
    char* hdl_path;
};

// A register or a memory that gets a backdoor class.
struct brix_bkdr_object {
    const brix_register_tag* reg = nullptr;
    const brix_memory_tag* mem = nullptr;
};

// The spelling of the backdoor classes in one target language. Comments name the
// arguments of each brix_emit format in order.
struct brix_bkdr_templates {
    // Where the access statements go: the model file, or a side file of the language.
    FILE** statements_fp;

    const char* reg_class_head;        // top
    const char* mem_class_head;        // top
    const char* level_suffix;          // level name
    const char* reg_class_head_tail;   // (no argument)
    const char* mem_class_head_tail;   // memory name
    const char* shared_reg_class_head; // class name
    const char* shared_mem_class_head; // class name
    const char* member_decl;           // member
    const char* ctor_head;
    const char* ctor_arg; // member
    const char* ctor_arg_sep;
    const char* ctor_args_end;
    const char* ctor_assign; // member, member
    const char* ctor_tail;
    // Writes the read and write tasks of a class; `writable` is false when the write can
    // only answer an error.
    void (*emit_tasks)(const brix_bkdr_object& obj, bool writable);
    const char* class_tail;

    // Texts of the tasks written inside the class (emit_backdoor_tasks_in_class).
    const char* reg_task_head[2];
    const char* mem_task_head[2];
    const char* task_body_open;
    const char* task_ok_tail[2];
    const char* task_error;

    // Constructor lines that attach a class to its object.
    const char* inst_foreach_head;
    const char* inst_foreach_tail; // level name, counter
    const char* inst_begin;
    const char* inst_end;
};

// The tasks of a class written inside the class itself, with the access statements.
void emit_backdoor_tasks_in_class(const brix_bkdr_object& obj, bool writable);
// The body of one task, from the head of brix_hierarchy down, to the statement stream; the
// caller has indented its first line. A language whose tasks live apart calls this.
void emit_backdoor_access_code(const brix_bkdr_object& obj, brix_bkdr_dir dir);
// The array levels above the object that its class keeps an index for, outermost first.
std::vector<const char*> backdoor_index_members(const brix_bkdr_object& obj);

// Classes, written ahead of the classes of the top's components.
void emit_register_backdoor(const brix_register_tag* reg);
void emit_regfile_backdoor(const brix_regfile_tag* regfile);
void emit_memory_backdoor(const brix_memory_tag* mem);
void emit_memory_backdoor_mixed(const brix_memory_tag* mem);
// The mixed form for a VHDL memory below an array level indexed at run time, else the plain.
void emit_memory_backdoor_plain_or_mixed(const brix_memory_tag* mem);
void emit_block_backdoor(brix_block_tag* block);
void emit_system_backdoor(brix_system_tag* system);

// Constructor lines of the top.
void emit_register_backdoor_instantiations(const brix_register_tag* reg);
void emit_regfile_backdoor_instantiations(const brix_regfile_tag* regfile);
void emit_memory_backdoor_instantiations(const brix_memory_tag* mem);
void emit_memory_backdoor_instantiations_mixed(const brix_memory_tag* mem);
void emit_memory_backdoor_instantiations_plain_or_mixed(const brix_memory_tag* mem);
void emit_block_backdoor_instantiations(brix_block_tag* block);
void emit_system_backdoor_instantiations(brix_system_tag* system);

// Rewrites the first "%d" of every path of an array level to the level's name, so that
// "ch[%d]" becomes "ch[chan]".
void process_backdoor_hdl_path(brix_hdl_path_tag* list, const char* name);
bool has_bkdr_array_ancestor(const brix_list_tag* hierarchy);
// The array levels of a hierarchy indexed at run time, as process_backdoor_hdl_path leaves
// them ("[<name>]" in their path), outermost first.
struct brix_bkdr_dimension {
    const char* name;
    int32_t array_size;
};
std::vector<brix_bkdr_dimension> backdoor_variable_dimensions(const brix_list_tag* hierarchy);
bool fields_implemented_in_vhdl(const brix_register_tag* reg);
// The path of an array level with the index of an expanded element back in brackets.
std::string get_hdl_path_with_mem_bkdr_wrkaround(const char* name, const brix_hdl_path_tag* path,
                                                 const brix_tmp_info_for_mem_vhdl_bkdr* info);

// Writes the connector module of the objects reached in VHDL, if there are any.
void emit_vhdl_bkdr_connection_module();
