// The walk that turns the checked model into a register model, shared by the target
// languages. Each language gives a table of its templates; the walk decides what is
// written, in which order and with which numbers, and the table how it is spelled.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <unordered_map>
#include <vector>

#include "driver/diag.hpp"
#include "driver/maps.hpp"
#include "parser/model.hpp"

struct brix_cvr_templates;
struct brix_bkdr_templates;

// Where the generated model sends a user who hits an internal model error.
#define BRIX_SUPPORT_ADDRESS "brix-support@marsdale.com"

// Every text that the walk writes, as a brix_emit format, for one target language.
// The comment of each member names its arguments in order.
struct brix_gen_templates {
    const char* file_suffix; // appended to -o's value or to "brx_<top>"
    const char* file_head;   // uc_top, uc_top
    // With -b, writes the model's head in place of file_head, for a language whose backdoor
    // reaches the design through side files of its own; null: file_head serves.
    void (*backdoor_file_head)();
    // With -b, ends those side files, after file_tail; null: there are none.
    void (*backdoor_file_tail)();
    const char* file_tail;
    const char* width_warning; // data width in bits

    // Register class (suffix = class suffix of the register type).
    const char* reg_cvr_typedef;        // suffix
    const char* reg_class_head;         // suffix
    const char* reg_field_decl;         // field
    const char* reg_rand_field_decl;    // field
    const char* reg_bits_member;        // suffix
    const char* reg_fldval_group_head;  // (no argument)
    const char* reg_fldval_group_tail;  // (no argument)
    const char* constraint_decl;        // name
    const char* constraint_head;        // name
    const char* field_constraint_decl;  // field, name
    const char* field_constraint_head;  // field, name
    const char* constraint_line_indent; // written ahead of each line of a body
    const char* constraint_tail;
    const char* user_defined_constraint;
    const char* reg_ctor_head;
    const char* reg_super_new;        // bits, coverage expression
    const char* reg_fldval_new;       // (no argument)
    const char* reg_field_new;        // field, field, bits, access, hard, soft, lsb, constrained
    const char* set_attribute;        // name, value; null: the language has no attributes
    const char* add_constraint;       // name
    const char* add_field_constraint; // field, name
    const char* add_user_defined_constraint;
    const char* reg_ctor_tail;
    const char* reg_bits_methods[3]; // the middle piece takes the suffix
    const char* reg_class_tail;      // suffix

    // Enum classes of fields.
    const char* enum_class_head; // suffix, field
    const char* enum_type_head;  // bits - 1, or the field with enum_type_by_field
    bool enum_type_by_field;     // the enum type is named after the field and has no width
    const char* enum_separator;
    const char* enum_name;       // name
    const char* enum_value;      // value as written
    const char* enum_class_tail; // field, suffix, field

    // Memory class.
    const char* mem_class_head; // suffix
    const char* mem_ctor_head;
    const char* mem_super_new;  // access, size, bits, coverage expression
    const char* mem_class_tail; // suffix

    // Virtual register class.
    const char* vreg_class_head; // suffix
    const char* vreg_field_decl; // field
    const char* vreg_ctor_head;
    const char* vreg_field_new;  // field, field, bits, lsb
    const char* vreg_class_tail; // suffix

    // Register file class.
    const char* regfile_class_head;     // suffix
    const char* regfile_reg_decl;       // register suffix, instance
    const char* regfile_reg_array_decl; // register suffix, instance, size
    const char* field_alias_decl;       // "rand " or "", register, field
    const char* field_alias_array_decl; // "rand " or "", register, field, size
    const char* field_short_decl;       // "rand " or "", field
    const char* field_short_array_decl; // "rand " or "", field, size
    const char* regfile_ctor_head;      // with any blank line the language puts in front of it
    const char* regfile_reg_new;        // name, name, offset, rights, unmapped
    const char* regfile_reg_array_new;  // name, name, offset, increment, rights, unmapped
    const char* regfile_ctor_tail;
    const char* regfile_class_tail; // suffix

    // Aliases built in constructors.
    const char* field_alias_new;       // register, field, register, field
    const char* field_short_new;       // field, register, field
    const char* field_alias_array_new; // register, field, register, field
    const char* field_short_array_new; // field, register, field

    // Shared by the constructors of blocks and systems.
    const char* foreach_head; // instance
    const char* foreach_tail;
    const char* container_ctor_head;  // class suffix
    const char* container_super_new;  // suffix, bytes, endian, domain, coverage expression
    const char* container_add_domain; // bytes, endian, domain
    const char* backdoor_banner;
    const char* lock_model;
    const char* container_ctor_tail;

    // Block class.
    const char* block_class_head;         // suffix
    const char* block_reg_decl;           // register suffix, instance
    const char* block_reg_array_decl;     // register suffix, instance, size
    const char* block_vreg_decl;          // suffix, instance
    const char* block_regfile_decl;       // suffix, instance
    const char* block_regfile_array_decl; // suffix, instance, size
    const char* block_mem_decl;           // suffix, instance
    const char* vfield_alias_decl;        // instance, field
    const char* vfield_short_decl;        // field
    const char* addr_map_member;          // suffix
    const char* block_obj_new;            // instance, name, offset, domain, rights, unmapped
    const char* block_obj_add_domain;     // instance, offset, domain, rights, unmapped
    const char*
        block_reg_array_new; // instance, instance, offset, increment, domain, rights, unmapped
    const char* block_regfile_new;       // instance, instance, offset, domain
    const char* block_regfile_array_new; // instance, instance, offset, increment, domain
    const char* vreg_new_in_memory; // instance, instance, bits, offset, memory, size, increment
    const char* vreg_new;           // instance, instance, bits
    const char* block_class_tail;   // suffix

    // System class.
    const char* sys_class_head;       // suffix
    const char* sys_block_decl;       // suffix, instance
    const char* sys_block_array_decl; // suffix, instance, size
    const char* sys_sys_decl;         // suffix, instance
    const char* sys_sys_array_decl;   // suffix, instance, size
    const char* sys_comp_new;         // instance, instance, offset
    const char* sys_comp_same;        // instance, stored instance
    const char* sys_comp_array_new;   // instance, instance, offset, increment
    const char* sys_comp_array_same;  // instance, stored instance
    const char* register_block;       // instance, domain, system domain, offset
    const char* register_block_array; // instance, domain, system domain, offset, increment
    const char* register_subsys;
    const char* register_subsys_array;
    const char* sys_class_tail; // suffix

    // The texts of the three coverage models.
    const brix_cvr_templates* cvr;
    // The texts of the backdoor classes.
    const brix_bkdr_templates* bkdr;
};

// The table of the language now being written.
extern const brix_gen_templates* brix_lang;

// State of one generation run.
extern const char* brix_top;
extern uint32_t strlen_top;
extern char* uc_top;
extern brix_str2int_map all_registers, all_vregisters, all_memories, all_regfiles, all_blocks,
    all_systems, all_block_sizes, all_system_sizes, all_emitted_shared_registers,
    all_emitted_shared_memories;
extern uint32_t brix_largest_register_bytes, brix_largest_memory_bits, brix_largest_vregister_bytes,
    brix_largest_vregister_incr;
// The levels above the object now being emitted, read by the backdoor writers.
extern brix_list_tag* brix_hierarchy;

// Writes the whole model of `top` with the templates of `lang`.
void emit_brx_model(const char* top, const brix_gen_templates& lang);
// The model's file: -o's value, else "brx_<top>", with the language's suffix.
std::string brix_model_file_name(const char* top, const brix_gen_templates& lang);

// `<scope_prefix>_<name>`, or `<name>` for a global definition.
std::string brix_class_suffix(const char* scope_prefix, const char* name);

int already_emitted_register(const brix_register_type_tag* type);
void emit_register(const brix_register_tag* reg);
void emit_constraints(const brix_constraint_tag* list);
void emit_block_components(brix_block_type_tag* type);
void emit_block_itself(brix_block_type_tag* type);
void emit_system_components(brix_system_type_tag* type);
void emit_system_itself(brix_system_type_tag* type);
uint64_t get_regfile_size_in_block_offsets(const brix_regfile_type_tag* rf, uint64_t bytes);

// Bit positions of a register's fields in list order, by the placement rule.
struct brix_field_layout {
    uint64_t high;              // bits spanned by the fields
    std::vector<long long> lsb; // one a field, real or not
};
brix_field_layout place_fields(const brix_list_tag* fields, int8_t left_to_right);

// The position of the next component in a list, and the size that the list spans, counted
// in `Pos`: the models count in 64 bits, the C interface in 32 bits that wrap.
template <class Pos> struct brix_basic_offset_walk {
    Pos off = 0;
    Pos size = 0;
    Pos saved = 0;
    bool unmapped = false;
    // Moves to a written offset; `none` leaves the position and takes no space when
    // `honour_none` is set. Going backwards keeps the old position, to resume from.
    void place(const char* offset, bool honour_none) {
        saved = 0;
        unmapped = honour_none && offset != nullptr && strcmp(offset, "none") == 0;
        if (offset == nullptr || unmapped) {
            return;
        }
        const Pos v = static_cast<Pos>(to_dec(offset));
        if (v < off) {
            saved = off;
        }
        off = v;
    }
    void advance(uint64_t span) {
        if (!unmapped) {
            const Pos next = static_cast<Pos>(off + span);
            off = saved == 0 ? next : std::max(next, saved);
        }
        size = std::max(size, off);
    }
};
using brix_offset_walk = brix_basic_offset_walk<uint64_t>;

// One component's place in its list, in words of the domain.
struct brix_placement {
    uint64_t offset;    // of the first element
    uint64_t count;     // elements: 1 for a scalar
    uint64_t increment; // words from one element to the next; the span of a scalar
    bool unmapped;      // `@none`: no address and no space
};
// Places a component whose one element takes `words` words and moves the walk past it. An
// array steps by its written increment, else by `words`. Made for both walks of
// brix_basic_offset_walk.
template <class Pos>
brix_placement brix_place(brix_basic_offset_walk<Pos>& walk, const char* offset, bool honour_none,
                          int32_t array_size, const char* increment, uint64_t words);
// Words one location of a memory takes in a domain of `domain_bytes`.
uint64_t brix_memory_words(const brix_memory_type_tag* t, uint64_t domain_bytes);
// Words of a system domain that a block or system of `size` words in its own domain of
// `bytes` takes in a system domain of `system_bytes`.
uint64_t brix_subsystem_words(uint64_t size, uint64_t bytes, uint64_t system_bytes);
