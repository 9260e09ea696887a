// The model: one record per definition (`..._type_tag`) and one per placement (`..._tag`),
// joined by pointers and by the tagged list. The parser fills it, the checks complete it,
// the generators walk it. Nothing in it is ever freed.
#pragma once

#include <cstdint>

#include "driver/diag.hpp"
#include "driver/maps.hpp"

// What a list node or a symbol holds. The numbers are fixed: the deep copy and the checks
// compare them directly.
enum brix_type {
    BRIX_FIELD_TYPE = 0,
    BRIX_FIELD = 1,
    BRIX_REGISTER = 2,
    BRIX_REGISTER_TYPE = 3,
    BRIX_VREGISTER = 4,
    BRIX_VREGISTER_TYPE = 5,
    BRIX_MEMORY = 6,
    BRIX_MEMORY_TYPE = 7,
    BRIX_REGFILE = 8,
    BRIX_REGFILE_TYPE = 9,
    BRIX_BLOCK_DOMAIN = 10,
    BRIX_BLOCK = 11,
    BRIX_BLOCK_TYPE = 12,
    BRIX_SYSTEM_DOMAIN = 13,
    BRIX_SYSTEM = 14,
    BRIX_SYSTEM_TYPE = 15,
    BRIX_KEYWORD = 16,
    // 17 is unassigned.
    BRIX_CROSS = 18,
    BRIX_LABEL = 19,
    BRIX_ENUM_NAME_DECL = 20,
    BRIX_CVR_BIN = 21,
    BRIX_CVR_BIN_VALUE = 22,
    BRIX_ENUM_NAME = 23,
    BRIX_IDENTIFIER = 24,
};

struct brix_hdl_path_tag {
    unsigned is_vhdl : 1; // meaningful on the head of a list only
    char* path;
    brix_hdl_path_tag* next; // non-null on the head: the paths are a concatenation
};

struct brix_constraint_tag {
    char* name;
    char* body; // null for empty braces
    brix_constraint_tag* next;
};

struct brix_doc {
    char* text; // null for empty braces
};

struct brix_attribute {
    char* name;
    char* value;
    brix_attribute* next;
};

struct brix_enum_name_declaration {
    char* name;
    char* value; // null without '='
};

struct brix_enum_type {
    char* name;           // null for an anonymous enum
    brix_list_tag* names; // BRIX_ENUM_NAME_DECL nodes
};

// Three 2-bit settings in the low six bits: 3 unsaid, 1 on, 0 off.
struct brix_cvr_spec_tag {
    uint32_t addr_map : 2;
    uint32_t reg_bits : 2;
    uint32_t field_vals : 2;
    uint32_t unused_bits : 26;
};

struct brix_cvr_bin_value {
    int32_t kind; // 1 enum name, 2 number, 3 range
    void* value;  // the string, or a brix_cvr_bin_range for a range
};

struct brix_cvr_bin_range {
    brix_cvr_bin_value* low;
    brix_cvr_bin_value* high;
};

struct brix_cvr_bin {
    char* name;
    unsigned auto_bins : 1;
    int32_t num_bins;
    brix_list_tag* values; // null for a default bin
};

struct brix_cvr_pnt {
    brix_list_tag* bins;
};

struct brix_cross {
    brix_list_tag* items; // BRIX_IDENTIFIER nodes
    char* label;
};

struct brix_mem_initial {
    char* value;
    char increment;
    char decrement;
};

// Where a declaration stands in the user's files, for outputs that point back at it. Every
// record holds one, so it takes four bytes: a file's number and the line, packed; a
// position that does not fit is kept whole in a table of its own.
struct brix_src_pos {
    uint32_t place = 0; // 0 outside a description

    const char* file() const; // null when the record was made outside a description
    unsigned long long line() const;
};

// The position stands beside the 32-bit members of a record, where it takes no padding.
struct brix_field_type_tag {
    char* name;
    uint32_t bits;
    brix_src_pos src;
    char* access;
    char* hard_reset;
    char* soft_reset;
    brix_constraint_tag* constraints;
    brix_doc* doc;
    brix_cvr_spec_tag* cvr_spec;
    brix_enum_type* enum_type;
    brix_cvr_pnt* coverpoint;
};

struct brix_field_tag {
    char* name;
    brix_hdl_path_tag* hdl_path;
    char* offset;
    brix_field_type_tag* type;
    brix_cvr_spec_tag* cvr_spec;
    brix_cvr_spec_tag* cvr_used;
    brix_src_pos src;
};

struct brix_register_type_tag {
    char* name;
    int32_t bytes;
    int8_t left_to_right;
    int8_t is_shared;
    brix_list_tag* fields;
    brix_constraint_tag* constraints;
    char* noise;
    brix_hdl_path_tag* hdl_path;
    brix_doc* doc;
    char* scope_prefix;
    brix_list_tag* crosses;
    brix_cvr_spec_tag* cvr_spec;
    brix_cvr_spec_tag* cvr_used;
    brix_attribute* attributes;
    brix_src_pos src;
};

struct brix_register_tag {
    char* name;
    int32_t array_size;
    brix_src_pos src;
    brix_hdl_path_tag* hdl_path;
    char* offset;
    char* increment;
    char* rw_flag;
    brix_register_type_tag* type;
    brix_cvr_spec_tag* cvr_spec;
};

struct brix_vregister_type_tag {
    char* name;
    int32_t bytes;
    int8_t left_to_right;
    brix_list_tag* fields;
    brix_doc* doc;
    char* scope_prefix;
    brix_list_tag* crosses;
    brix_cvr_spec_tag* cvr_spec;
    brix_src_pos src;
};

struct brix_vregister_tag {
    char* name;
    int32_t array_size;
    char* memory;
    char* offset;
    char* increment;
    char is_dynamic;
    brix_vregister_type_tag* type;
    brix_cvr_spec_tag* cvr_spec;
    brix_src_pos src;
};

struct brix_memory_type_tag {
    char* name;
    uint64_t size;
    uint32_t bits;
    char* access;
    brix_mem_initial* initial;
    char* noise;
    int8_t is_shared;
    brix_hdl_path_tag* hdl_path;
    brix_doc* doc;
    char* scope_prefix;
    brix_cvr_spec_tag* cvr_spec;
    brix_cvr_spec_tag* cvr_used;
    brix_attribute* attributes;
    brix_src_pos src;
};

struct brix_memory_tag {
    char* name;
    brix_hdl_path_tag* hdl_path;
    char* offset;
    char* rw_flag;
    brix_memory_type_tag* type;
    brix_cvr_spec_tag* cvr_spec;
    brix_src_pos src;
};

struct brix_regfile_type_tag {
    char* name;
    brix_list_tag* registers;
    brix_constraint_tag* constraints;
    brix_doc* doc;
    char* scope_prefix;
    brix_cvr_spec_tag* cvr_spec;
    brix_src_pos src;
};

struct brix_regfile_tag {
    char* name;
    int32_t array_size;
    brix_hdl_path_tag* hdl_path;
    char* offset;
    char* increment;
    brix_regfile_type_tag* type;
    brix_cvr_spec_tag* cvr_spec;
    brix_src_pos src;
};

struct brix_block_domain_tag {
    char* name; // null for the default domain
    char* offset;
    int32_t bytes;
    char* endian;
    brix_list_tag* components;
    brix_constraint_tag* constraints;
    brix_cvr_spec_tag* cvr_spec;
    brix_cvr_spec_tag* cvr_used;
};

// Same layout as the block domain.
struct brix_system_domain_tag {
    char* name;
    char* offset;
    int32_t bytes;
    char* endian;
    brix_list_tag* components;
    brix_constraint_tag* constraints;
    brix_cvr_spec_tag* cvr_spec;
    brix_cvr_spec_tag* cvr_used;
};

struct brix_block_type_tag {
    char* name;
    brix_list_tag* domains;
    brix_doc* doc;
    char* scope_prefix;
    brix_cvr_spec_tag* cvr_spec;
    brix_block_type_tag* next; // link of all_block_types
    brix_cvr_spec_tag* cvr_used;
    brix_attribute* attributes;
    brix_src_pos src;
};

struct brix_system_type_tag {
    char* name;
    brix_list_tag* domains;
    brix_doc* doc;
    char* scope_prefix;
    brix_cvr_spec_tag* cvr_spec;
    brix_cvr_spec_tag* cvr_used;
    brix_system_type_tag* next; // link of all_system_types
    brix_attribute* attributes;
    brix_src_pos src;
};

// Filled only while the memory backdoor expands an instance.
struct brix_tmp_info_for_mem_vhdl_bkdr;

struct brix_block_tag {
    char* domain; // the domain chosen by the `.domain` form
    char* name;
    int32_t array_size;
    brix_hdl_path_tag* hdl_path;
    char* offset;
    char* increment;
    brix_cvr_spec_tag* cvr_spec;
    brix_block_type_tag* type;
    brix_tmp_info_for_mem_vhdl_bkdr* tmp_info;
    brix_src_pos src;
};

struct brix_system_tag {
    char* domain;
    char* name;
    int32_t array_size;
    brix_hdl_path_tag* hdl_path;
    char* offset;
    char* increment;
    brix_system_type_tag* type;
    brix_cvr_spec_tag* cvr_spec;
    brix_tmp_info_for_mem_vhdl_bkdr* tmp_info;
    brix_src_pos src;
};

// Model roots: every completed block and system type, in order of completion.
extern brix_block_type_tag* all_block_types;
extern brix_system_type_tag* all_system_types;

// The position the scanner has reached in the user's files.
brix_src_pos brix_here();
void initialize_constraint_defaults(brix_constraint_tag* c);
void initialize_doc_defaults(brix_doc* d);
void initialize_hdl_path_defaults(brix_hdl_path_tag* p);
void initialize_enum_name_declaration(brix_enum_name_declaration* d);
void initialize_enum_type(brix_enum_type* e);
void initialize_cvr_bin_value(brix_cvr_bin_value* v);
void initialize_cvr_bin(brix_cvr_bin* b);
void initialize_cvr_pnt(brix_cvr_pnt* p);
void initialize_cvr_spec(brix_cvr_spec_tag* spec);
void initialize_field_type_defaults(brix_field_type_tag* t);
void initialize_field_defaults(brix_field_tag* f);
void initialize_register_type_defaults(brix_register_type_tag* t);
void initialize_register_defaults(brix_register_tag* r);
void initialize_vregister_type_defaults(brix_vregister_type_tag* t);
void initialize_vregister_defaults(brix_vregister_tag* v);
void initialize_mem_initial_defaults(brix_mem_initial* i);
void initialize_memory_type_defaults(brix_memory_type_tag* t);
void initialize_memory_defaults(brix_memory_tag* m);
void initialize_regfile_type_defaults(brix_regfile_type_tag* t);
void initialize_regfile_defaults(brix_regfile_tag* r);
void initialize_block_domain_defaults(brix_block_domain_tag* d);
void initialize_block_type_defaults(brix_block_type_tag* t);
void initialize_block_defaults(brix_block_tag* b);
void initialize_system_domain_defaults(brix_system_domain_tag* d);
void initialize_system_type_defaults(brix_system_type_tag* t);
void initialize_system_defaults(brix_system_tag* s);

// Allocates a record of type T from the model's allocator, uninitialised. Records live
// until the process ends.
template <class T> T* brix_new_record() {
    return static_cast<T*>(brix_arena_alloc(sizeof(T), alignof(T)));
}
// A new spec with all three settings unsaid, as every default `cvr_used` is made.
brix_cvr_spec_tag* new_all_unsaid_cvr_spec();
// Parses a `cover` text such as "+a-f"; null for null.
brix_cvr_spec_tag* get_cvr_spec(const char* text);
