// The coverage models of a register model: field values and register bits in the register
// class, the address map in a class ahead of the block class, and the block methods that
// drive them. The texts come from the language's coverage table; the walks are shared.
#pragma once

#include <cstdio>
#include <string>
#include <unordered_map>

#include "parser/model.hpp"

// Enum name to value, of one field.
using brix_enum_values = std::unordered_map<std::string, long long>;
// Field name to its enum values, filled while a register's enum classes are written.
using brix_enum_table = std::unordered_map<std::string, brix_enum_values>;

// Every text of the coverage models, as brix_emit formats. Texts written at an indent are
// given without their tabs; the writer puts the tabs in front.
struct brix_cvr_templates {
    // Field values: coverpoints of `field_values`.
    const char* fv_point_head; // field, field
    const char* fv_body_open;  // bins, enum or min/max/others follow
    const char* fv_small_open; // bits - 1: the bits select one bin a value
    const char* fv_enum_bin;   // enum name, value
    const char* fv_min;        // bits
    const char* fv_max;        // bits, 2^bits - 1
    const char* fv_others;     // bits, bits, 2^bits - 2
    const char* weight;        // weight; shared by all coverpoints and crosses
    const char* point_close;
    const char* cross_label; // label, ahead of the keyword; null: the label names the cross
    const char* cross_head;
    // The name behind the keyword, for a language in which every cross has one; null: none.
    const char* cross_name_label; // label
    const char* cross_name_open;  // ahead of the items joined into the name of an unlabelled cross
    const char* cross_name_sep;
    const char* cross_name_close;
    const char* cross_item_sep;
    const char* cross_field_suffix; // behind an item that is a field
    const char* cross_open;

    // User bins of a coverpoint.
    // A bin without values, whole and counting no bin; null: it is written as the others,
    // ending in bin_default, and counts one.
    const char* bin_default_alone; // name
    const char* bin_auto_head;     // name: the `[]` form
    const char* bin_count_head;    // name, n: the `[n]` form; null: such a bin writes nothing
    const char* bin_head;          // name
    const char* bin_assign;
    const char* bin_default;
    const char* bin_values_open;
    const char* bin_value_sep;
    const char* bin_values_close;
    const char* bin_range_open;
    const char* bin_range_sep;
    const char* bin_range_close;
    const char* bin_enum_class; // class of the field's enum, ahead of an enum name

    // Register-bit class.
    bool rb_every_field;       // every real field has a coverpoint, whatever its own spec
    const char* rb_class_head; // suffix
    const char* rb_point_head; // field, msb, lsb
    const char* rb_wr_as_0;    // bit, width of the pattern
    const char* rb_wr_as_1;    // bit, width
    const char* rb_rd;         // bit, width
    const char* rb_rd_as_0;    // bit, width
    const char* rb_rd_as_1;    // bit, width
    char rb_any_bit;           // the pattern's character for a bit of no interest
    const char* rb_write_end;
    const char* rb_read_end;
    const char* rb_weight; // weight
    const char* rb_point_tail;
    const char* rb_class_tail;

    // Address-map class.
    const char* am_class_head; // suffix
    const char* am_addr_member;
    const char* am_event;            // a domain's sampling event, unnamed domain; null: none
    const char* am_named_event;      // domain
    const char* am_group_head;       // (unnamed domain)
    const char* am_named_group_head; // domain
    const char* am_group_options[2];
    const char* am_named_group_options[2]; // domain
    const char* am_group_tail;
    const char* am_new_head;
    const char* am_domain_param; // behind the first parameter with several domains
    const char* am_params_close;
    const char* am_new_single;
    const char* am_if_domain; // domain
    const char* am_else;
    const char* am_end;
    const char* am_new_domain; // domain, domain
    const char* am_function_tail;
    const char* am_sample_head;
    const char* am_sample_store;
    const char* am_sample_single;
    const char* am_sample_domain;        // domain
    const char* am_class_tail;           // suffix
    const char* am_point_head;           // coverpoint name
    const char* am_accessed;             // offset
    const char* am_accessed_range;       // first, last
    const char* am_first_location;       // offset
    const char* am_first_location_range; // first, last
    const char* am_last_location;        // offset
    const char* am_last_location_range;  // first, last
    const char* am_other_locations;      // first, last

    // Address-map methods of the block class.
    const char* dc_head;
    const char* dc_can_cover;
    const char* dc_decl; // suffix
    const char* dc_new_single;
    const char* dc_new_domain; // domain
    const char* dc_else_begin;
    const char* dc_bad_domain;
    const char* support_line;
    const char* finish;
    const char* dc_store;
    const char* sm_head;
    const char* sm_is_cover_on;
    const char* sm_exists;
    const char* sm_bad_domain;
    const char* sm_call;
    const char* sm_call_domain;
    const char* sm_call_close;

    // The block's `sample_field_values`.
    const char* sfv_head;
    const char* sfv_line; // path, path
    const char* sfv_tail;
};

// The body of `field_values`.
void emit_reg_fldval_cvr_n_cross_pnts(const brix_register_type_tag* type, int indent,
                                      const brix_enum_table& enums);
// Writes the bins of a coverpoint; returns how many bins the simulator makes of them.
long long emit_coverpoint_bins(const brix_cvr_pnt* pnt, int indent,
                               const brix_enum_values& enum_values, const char* class_name);
// The number of distinct values of a `[]` bin.
long long calc_bin_weight(const brix_cvr_bin* bin, const brix_enum_values& enum_values);
// The register-bit class, written behind the register class.
void emit_reg_bits_cvr_class(const brix_register_type_tag* type);
// The address-map class, ahead of the block class.
void emit_block_cvr_class(const brix_block_type_tag* type, int indent);
void emit_regfile_addrmap_cvtpnts(const brix_regfile_tag* regfile, uint64_t base, int index,
                                  int bytes, int indent);
// `domain_coverage` and `sample` of a block with address-map coverage.
void emit_block_addrmap_cvr_methods(const brix_block_type_tag* type, int indent);
void emit_block_field_value_sample_method(const brix_block_type_tag* type);

// 1 when a level of the list has an hdl_path written as a VHDL path.
int hdl_xmr_brix_hierarchy(const brix_list_tag* list);
