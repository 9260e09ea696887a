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

#include "gen_backdoor/vhdl.hpp"
#include "parser/model.hpp"

// An access is a read or a write; the two differ in a few texts only.
enum class brix_bkdr_dir { read = 0, write = 1 };

// What an array level held before the memory backdoor expanded it into its elements, and
// the element now being written.
struct brix_tmp_info_for_mem_vhdl_bkdr {
    char* name;
    int32_t array_size;
    char* hdl_path;
    int32_t index = 0;
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
    const char* class_tail;

    // The read and write methods of a class, indexed by brix_bkdr_dir. A method is its
    // head, then task_body_open, the body and task_ok_tail; a write that can only fail is
    // its head and task_error.
    const char* reg_task_head[2];
    const char* mem_task_head[2];
    const char* task_body_open;
    const char* task_ok_tail[2];
    const char* task_error;
    // Written ahead of the methods; null: nothing.
    void (*emit_tasks_head)(const brix_bkdr_object& obj);
    // The body of a method: the access statements themselves (emit_backdoor_access_code),
    // or the call of a task of the language's side files that holds them.
    void (*emit_task_body)(const brix_bkdr_object& obj, brix_bkdr_dir dir);

    // Constructor lines that attach a class to its object.
    const char* inst_foreach_head;
    const char* inst_foreach_tail; // level name, counter
    const char* inst_begin;
    const char* inst_end;
};

// The body of one task, from the head of brix_hierarchy down, to the statement stream; the
// caller has indented its first line. A language whose tasks live apart calls this.
void emit_backdoor_access_code(const brix_bkdr_object& obj, brix_bkdr_dir dir);
// The array levels above the object that its class keeps an index for, outermost first.
std::vector<const char*> backdoor_index_members(const brix_bkdr_object& obj);
// The name of the object's class, from brix_top and the levels of brix_hierarchy.
std::string backdoor_class_name(const brix_bkdr_object& obj);

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

bool has_bkdr_array_ancestor(const brix_list_tag* hierarchy);
// The array levels of a hierarchy indexed at run time, whose path in the hierarchy's view
// names the level ("[<name>]"), outermost first.
std::vector<brix_bkdr_dimension> backdoor_variable_dimensions(const brix_list_tag* hierarchy);
bool fields_implemented_in_vhdl(const brix_register_tag* reg);
// The path of an array level with the index of an expanded element back in brackets.
std::string get_hdl_path_with_mem_bkdr_wrkaround(const char* name, const brix_hdl_path_tag* path,
                                                 const brix_tmp_info_for_mem_vhdl_bkdr* info);
