#include "gen_hx/gen_hx.hpp"

#include "gen_hx/hx_backdoor.hpp"
#include "gen_model/gen_coverage.hpp"
#include "gen_model/gen_model.hpp"

// The HX model is the same walk as the SystemVerilog one with these texts. Where HX
// decides differently (no attributes, coverage of every field's bits, bins that count
// otherwise, named crosses, enums without width, the regfile's extra blank line, the
// constructors' default coverage) the difference is a table entry below.

namespace {

const brix_cvr_templates hx_cvr_templates = {
    .fv_point_head = "sample %s_value(%s.value",
    .fv_body_open = ") {\n",
    .fv_small_open = "[%d:0]) {\n",
    .fv_enum_bin = "state %s ( %d );\n",
    .fv_min = "state min ( %d'h0 );\n",
    .fv_max = "state max ( %d'h%llX );\n",
    .fv_others = "state others (%d'h1:%d'h%llX);\n",
    .weight = "cov_weight = %d;\n",
    .point_close = "}\n",
    .cross_label = nullptr,
    .cross_head = "cross ",
    .cross_name_label = "%s(",
    .cross_name_open = "cross_",
    .cross_name_sep = "_X_",
    .cross_name_close = "(",
    .cross_item_sep = ", ",
    .cross_field_suffix = "_value",
    .cross_open = ") {\n",

    .bin_default_alone = "state %s (not state);\n",
    .bin_auto_head = "m_state %s ",
    .bin_count_head = nullptr,
    .bin_head = "state %s ",
    .bin_assign = "",
    .bin_default = nullptr,
    .bin_values_open = // a bin without values is written whole by bin_default_alone
    "( ",
    .bin_value_sep = ", ",
    .bin_values_close = " );\n",
    .bin_range_open = "",
    .bin_range_sep = ":",
    .bin_range_close = "",
    .bin_enum_class = "%s::",

    .rb_every_field = true,
    .rb_class_head = "class brx_cvr_reg_%s {\n"
                     "\tlocal bit [QVT_BRX_DATA_WIDTH-1:0] data;\n"
                     "\tlocal bit                          is_read;\n"
                     "\tevent s;\n"
                     "\tcoverage_group reg_bits {\n"
                     "\t   sample_event = sync(ANY, s) async;\n"
                     "\t   cumulative = 0;\n",
    .rb_point_head = "\t   sample %s({data[%d:%d], is_read}) {\n",
    .rb_wr_as_0 = "\t      wildcard state bit_%d_wr_as_0 (%d'b",
    .rb_wr_as_1 = "\t      wildcard state bit_%d_wr_as_1 (%d'b",
    .rb_rd = "\t      wildcard state bit_%d_rd (%d'b",
    .rb_rd_as_0 = "\t      wildcard state bit_%d_rd_as_0 (%d'b",
    .rb_rd_as_1 = "\t      wildcard state bit_%d_rd_as_1 (%d'b",
    .rb_any_bit = 'x',
    .rb_write_end = "0);\n",
    .rb_read_end = "1);\n",
    .rb_weight = "\t      cov_weight = %d;\n",
    .rb_point_tail = "\t   }\n",
    .rb_class_tail = "\t}\n"
                     "\n"
                     "\ttask new(string name, string domain) {\n"
                     "\t   this.reg_bits = new;\n"
                     "\t   if (domain == \"\") this.reg_bits.set_name(name);\n"
                     "\t   else this.reg_bits.set_name(psprintf(\"%%s(%%s)\", name, domain));\n"
                     "\t}\n"
                     "\n"
                     "\ttask sample(bit [QVT_BRX_DATA_WIDTH-1:0] data,\n"
                     "\t            bit                          is_read) {\n"
                     "\t   this.data = data;\n"
                     "\t   this.is_read = is_read;\n"
                     "\t   trigger(this.s);\n"
                     "\t}\n"
                     "}\n"
                     "\n",

    .am_class_head = "class brx_cvr_block_%s {\n",
    .am_addr_member = "local bit [QVT_BRX_ADDR_WIDTH-1:0] addr;\n",
    .am_event = "event cvr_addr_map;\n",
    .am_named_event = "event cvr_%s_addr_map;\n",
    .am_group_head = "coverage_group addr_map {\n",
    .am_named_group_head = "coverage_group %s_addr_map {\n",
    .am_group_options = {"sample_event = sync(ANY, cvr_addr_map) async;\n", "cumulative = 0;\n"},
    .am_named_group_options = {"sample_event = sync(ANY, cvr_%s_addr_map) async;\n",
                               "cumulative = 0;\n"},
    .am_group_tail = "}\n",
    .am_new_head = "task new (string name",
    .am_domain_param = ", string domain",
    .am_params_close = ") {\n",
    .am_new_single = "this.addr_map = new();\n",
    .am_if_domain = "if (domain == \"%s\") {\n",
    .am_else = "else ",
    .am_end = "}\n",
    .am_new_domain = "this.%s_addr_map = new();\n",
    .am_function_tail = "}\n",
    .am_sample_head = "task sample(bit [QVT_BRX_ADDR_WIDTH-1:0] addr",
    .am_sample_store = "this.addr = addr;\n",
    .am_sample_single = "trigger(this.cvr_addr_map);\n",
    .am_sample_domain = "trigger(this.cvr_%s_addr_map);\n",
    .am_class_tail = "}\n",
    .am_point_head = "sample %s(addr) {\n",
    .am_accessed = "state accessed ( QVT_BRX_ADDR_WIDTH'h%llX );\n",
    .am_accessed_range = "state accessed ( QVT_BRX_ADDR_WIDTH'h%llX:QVT_BRX_ADDR_WIDTH'h%llX );\n",
    .am_first_location = "state first_location_accessed ( QVT_BRX_ADDR_WIDTH'h%llX );\n",
    .am_first_location_range =
        "state first_location_accessed ( QVT_BRX_ADDR_WIDTH'h%llX:QVT_BRX_ADDR_WIDTH'h%llX );\n",
    .am_last_location = "state last_location_accessed ( QVT_BRX_ADDR_WIDTH'h%llX );\n",
    .am_last_location_range =
        "state last_location_accessed ( QVT_BRX_ADDR_WIDTH'h%llX:QVT_BRX_ADDR_WIDTH'h%llX );\n",
    .am_other_locations =
        "state other_locations_accessed ( QVT_BRX_ADDR_WIDTH'h%llX:QVT_BRX_ADDR_WIDTH'h%llX );\n",

    .dc_head = "virtual task domain_coverage(string domain, integer idx) {\n",
    .dc_can_cover = "if (this.can_cover(qvt_brx::ADDR_MAP)) {\n",
    .dc_decl = "brx_cvr_block_%s cg;\n",
    .dc_new_single = "cg = new(this.get_fullname());\n",
    .dc_new_domain = "cg = new(this.get_fullname(), \"%s\");\n",
    .dc_else_begin = "else {\n",
    .dc_bad_domain =
        "printf(\"Internal BRX model error: Invalid domain '%%s' found for Block '%%s'.\\n\", "
        "domain, this.get_fullname());\n",
    .support_line = "printf(\"Please contact " BRIX_SUPPORT_ADDRESS ".\\n\");\n",
    .finish = "exit(1);\n",
    .dc_store = "this.__addr_map[idx] = cg;\n",
    .sm_head =
        "protected virtual task sample(bit [QVT_BRX_ADDR_WIDTH-1:0] addr, integer domain) {\n",
    .sm_is_cover_on = "if (!this.is_cover_on(qvt_brx::ADDR_MAP)) return;\n",
    .sm_exists = "if (!assoc_index(CHECK, this.__addr_map, domain)) {\n",
    .sm_bad_domain = "printf(\"Internal BRX model error: Invalid domain found for Block %%s.\\n\", "
                     "this.get_fullname());\n",
    .sm_call = "this.__addr_map[domain].sample(addr",
    .sm_call_domain = ", this.domains[domain]",
    .sm_call_close = ");\n",

    .sfv_head = "\ttask sample_field_values() {\n\t\tif (this.can_cover(qvt_brx::FIELD_VALS)) {\n",
    .sfv_line = "\t\t\tif (%s.field_values != null) trigger(%s.cvr_field_values);\n",
    .sfv_tail = "\t\t}\n\t}\n",
};

const brix_gen_templates hx_templates = {
    .file_suffix = ".hxs",
    .file_head = "#ifndef BRX_%s\n#define BRX_%s\n\n#ifndef MARSDALE_HXC\n#include "
                 "\"qvt_brx.hxh\"\n#endif\n\n"
                 "#ifndef QVT_BRX_ADDR_WIDTH\n#define QVT_BRX_ADDR_WIDTH 64\n#endif\n\n",
    .backdoor_file_head = emit_hx_backdoor_file_head,
    .backdoor_file_tail = emit_hx_backdoor_file_tail,
    .file_tail = "#endif\n",
    .width_warning =
        "Warning: This BRX model requires QVT_BRX_DATA_WIDTH macro to be defined to %d or "
        "greater.\n",

    .reg_cvr_typedef = "typedef class brx_cvr_reg_%s;\n",
    .reg_class_head = "class brx_reg_%s extends qvt_brx_reg {\n",
    .reg_field_decl = "\tqvt_brx_field %s;\n",
    .reg_rand_field_decl = "\trand qvt_brx_field %s;\n",
    .reg_bits_member = "\tlocal brx_cvr_reg_%s reg_bits[integer];\n",
    .reg_fldval_group_head =
        "\tevent cvr_field_values;\n\n\tcoverage_group field_values {\n\t\tcumulative = 0;\n"
        "\t\tsample_event = sync(ANY, cvr_field_values) async;\n",
    .reg_fldval_group_tail = "\t}\n\n",
    .constraint_decl = "\tconstraint %s;\n",
    .constraint_head = "\tconstraint %s {\n",
    .field_constraint_decl = "\tconstraint %s_%s;\n",
    .field_constraint_head = "\tconstraint %s_%s {\n",
    .constraint_line_indent = "\t\t",
    .constraint_tail = "\t}\n",
    .user_defined_constraint = "\tconstraint user_defined;\n\n",
    .reg_ctor_head =
        "\ttask new(qvt_brx_block parent, string name, bit[QVT_BRX_ADDR_WIDTH-1:0] offset, string "
        "domain, integer cvr, \n\t\t\t\tbit[1:0] rights = 2'b11, bit unmapped = 0) {\n",
    .reg_super_new =
        "\t\tsuper.new(parent, name, %d, offset, domain, cvr, rights, unmapped, %s);\n",
    .reg_fldval_new = "\t\tif (cvr & qvt_brx::FIELD_VALS) this.field_values = new();\n",
    .reg_field_new = "\t\tthis.%s = new(this, \"%s\", %d, %s, %s, %s, %d, %d, cvr);\n",
    .set_attribute = nullptr,
    .add_constraint = // an HX model carries no attributes
    "\t\tXadd_constraintsX(\"%s\");\n",
    .add_field_constraint = "\t\tXadd_constraintsX(\"%s_%s\");\n",
    .add_user_defined_constraint = "\t\tXadd_constraintsX(\"user_defined\");\n",
    .reg_ctor_tail = "\t}\n",
    .reg_bits_methods = {"\n\tlocal virtual task domain_coverage(string  domain,\n"
                         "\t                                   bit     rights,\n"
                         "\t                                   integer idx) {\n"
                         "\t    if (this.can_cover(qvt_brx::REG_BITS)) {\n",
                         "\t        brx_cvr_reg_%s cg;",
                         "\n\t        cg = new(this.get_fullname(), domain);\n"
                         "\t        this.reg_bits[idx] = cg;\n"
                         "\t    }\n"
                         "\t}\n"
                         "\n"
                         "\tvirtual local task sample(bit [QVT_BRX_DATA_WIDTH-1:0] data,\n"
                         "\t                          bit                          is_read,\n"
                         "\t                          integer                      domain) {\n"
                         "\t   if (!this.is_cover_on(qvt_brx::REG_BITS)) return;\n"
                         "\t   if (!assoc_index(CHECK, this.reg_bits, domain)) {\n"
                         "\t      printf(\"Internal BRX model error: invalid domain for %s.\\n\", "
                         "this.get_fullname());\n"
                         "\t      printf(\"Please contact " BRIX_SUPPORT_ADDRESS ".\\n\");\n"
                         "\t      exit(1);\n"
                         "\t   }\n"
                         "\t   this.reg_bits[domain].sample(data, is_read);\n"
                         "\t}\n"},
    .reg_class_tail = "}\n",

    .enum_class_head = "class brx_fld_%s_%s {\n",
    .enum_type_head = "\tenum %s_values { ",
    .enum_type_by_field = true,
    .enum_separator = ", ",
    .enum_name = "\n\t\t%s",
    .enum_value = " = %s",
    .enum_class_tail = "\n\t};\n}\n\n\n",

    .mem_class_head = "class brx_mem_%s extends qvt_brx_mem {\n",
    .mem_ctor_head =
        "\ttask new(qvt_brx_block parent, string name, bit[QVT_BRX_ADDR_WIDTH-1:0] base_address, "
        "string domain, integer cvr,\n\t\t\t\tbit[1:0] rights = 2'b11, bit unmapped = 0) {\n",
    .mem_super_new =
        "\t\tsuper.new(parent, name, qvt_brx::%s, QVT_BRX_ADDR_WIDTH'h%llX, %d, base_address, "
        "domain, cvr, rights, unmapped, %s);\n",
    .mem_class_tail = "\t}\n}\n",

    .vreg_class_head = "class brx_vreg_%s extends qvt_brx_vreg {\n",
    .vreg_field_decl = "\trand qvt_brx_vfield %s;\n",
    .vreg_ctor_head =
        "\ttask new(qvt_brx_block parent, string name, integer n_bits,\n\t\t\t   "
        "bit[QVT_BRX_ADDR_WIDTH-1:0] offset = QVT_BRX_ADDR_WIDTH'h0, qvt_brx_mem mem = null,\n"
        "\t\t\t   bit[QVT_BRX_ADDR_WIDTH-1:0] size = 0, integer incr = 0) {\n\t\tsuper.new(parent, "
        "name, n_bits, offset, mem, size, incr);\n",
    .vreg_field_new = "\t\tthis.%s = new(this, \"%s\", %d, %d);\n",
    .vreg_class_tail = "\t}\n}\n",

    .regfile_class_head = "class brx_regfile_%s {\n",
    .regfile_reg_decl = "\trand brx_reg_%s %s;\n",
    .regfile_reg_array_decl = "\trand brx_reg_%s %s[%d];\n",
    .field_alias_decl = "\t%sqvt_brx_field %s_%s;\n",
    .field_alias_array_decl = "\t%sqvt_brx_field %s_%s[%d];\n",
    .field_short_decl = "\t%sqvt_brx_field %s;\n",
    .field_short_array_decl = "\t%sqvt_brx_field %s[%d];\n",
    .regfile_ctor_head = // HX sets the regfile's constructor off by one more blank line
    "\n\ttask new(qvt_brx_block parent, string name, bit[QVT_BRX_ADDR_WIDTH-1:0] offset, string "
    "domain, integer cvr) {\n",
    .regfile_reg_new =
        "\t\tthis.%s = new(parent, psprintf(\"%%s.%s\",name), offset+QVT_BRX_ADDR_WIDTH'h%llX, "
        "domain, cvr, %s, %d);\n",
    .regfile_reg_array_new =
        "\t\t\tthis.%s[J] = new(parent, psprintf(\"%%s.%s[%%0d]\",name,J), "
        "offset+QVT_BRX_ADDR_WIDTH'h%llX+J*QVT_BRX_ADDR_WIDTH'h%llX, domain, cvr, %s, %d);\n",
    .regfile_ctor_tail = "\t}\n",
    .regfile_class_tail = "}\n",

    .field_alias_new = "\t\tthis.%s_%s = this.%s.%s;\n",
    .field_short_new = "\t\tthis.%s = this.%s.%s;\n",
    .field_alias_array_new = "\t\t\tthis.%s_%s[J] = this.%s[J].%s;\n",
    .field_short_array_new = "\t\t\tthis.%s[J] = this.%s[J].%s;\n",

    .foreach_head = "\t\tforeach (this.%s, i) {\n\t\t\tinteger J = i;\n",
    .foreach_tail = "\t\t}\n",
    .container_ctor_head = // HX constructors default to no coverage by the plain 0
    "\ttask new(integer cover_on = 0, string name = \"%s\", qvt_brx_sys parent = null, integer "
    "base_addr = 0) {\n",
    .container_super_new =
        "\t\tsuper.new(parent, name, \"%s\", %d, %s, base_addr, \"%s\", cover_on, %s);\n",
    .container_add_domain = "\t\tthis.add_domain(%d, %s, \"%s\");\n",
    .backdoor_banner = "\n\t\t//\n\t\t// Setting up backdoor access...\n\t\t//\n",
    .lock_model = "\t\tthis.Xlock_modelX();\n",
    .container_ctor_tail = "\t}\n",

    .block_class_head = "class brx_block_%s extends qvt_brx_block {\n",
    .block_reg_decl = "\trand brx_reg_%s %s;\n",
    .block_reg_array_decl = "\trand brx_reg_%s %s[%d];\n",
    .block_vreg_decl = "\trand brx_vreg_%s %s;\n",
    .block_regfile_decl = "\trand brx_regfile_%s %s;\n",
    .block_regfile_array_decl = "\trand brx_regfile_%s %s[%d];\n",
    .block_mem_decl = "\trand brx_mem_%s %s;\n",
    .vfield_alias_decl = "\trand qvt_brx_vfield %s_%s;\n",
    .vfield_short_decl = "\trand qvt_brx_vfield %s;\n",
    .addr_map_member = "\tlocal brx_cvr_block_%s __addr_map[integer];\n\n",
    .block_obj_new =
        "\t\tthis.%s = new(this, \"%s\", QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on, %s, %d);\n",
    .block_obj_add_domain = "\t\tthis.%s.add_domain(QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", %s, %d);\n",
    .block_reg_array_new =
        "\t\t\tthis.%s[J] = new(this, psprintf(\"%s[%%0d]\",J), "
        "QVT_BRX_ADDR_WIDTH'h%llX+J*QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on, %s, %d);\n",
    .block_regfile_new =
        "\t\tthis.%s = new(this, \"%s\", QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on);\n",
    .block_regfile_array_new =
        "\t\t\tthis.%s[J] = new(this, psprintf(\"%s[%%0d]\",J), "
        "QVT_BRX_ADDR_WIDTH'h%llX+J*QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on);\n",
    .vreg_new_in_memory =
        "\t\tthis.%s = new(this, \"%s\", %llu, QVT_BRX_ADDR_WIDTH'h%llX, this.%s, %d, %llu);\n",
    .vreg_new = "\t\tthis.%s = new(this, \"%s\", %llu);\n",
    .block_class_tail = "}\n",

    .sys_class_head = "class brx_sys_%s extends qvt_brx_sys {\n",
    .sys_block_decl = "\trand brx_block_%s %s;\n",
    .sys_block_array_decl = "\trand brx_block_%s %s[%d];\n",
    .sys_sys_decl = "\trand brx_sys_%s %s;\n",
    .sys_sys_array_decl = "\trand brx_sys_%s %s[%d];\n",
    .sys_comp_new = "\t\tthis.%s = new(cover_on, \"%s\", this, QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .sys_comp_same = "\t\tthis.%s = this.%s;\n",
    .sys_comp_array_new = "\t\t\tthis.%s[J] = new(cover_on, psprintf(\"%s[%%0d]\",J), this, "
                          "QVT_BRX_ADDR_WIDTH'h%llX+J*QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .sys_comp_array_same = "\t\t\tthis.%s[J] = this.%s[J];\n",
    .register_block =
        "\t\tthis.register_block(this.%s, \"%s\", \"%s\", QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .register_block_array = "\t\t\tthis.register_block(this.%s[J], \"%s\", \"%s\", "
                            "QVT_BRX_ADDR_WIDTH'h%llX+J*QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .register_subsys =
        "\t\tthis.register_subsys(this.%s, \"%s\", \"%s\", QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .register_subsys_array = "\t\t\tthis.register_subsys(this.%s[J], \"%s\", \"%s\", "
                             "QVT_BRX_ADDR_WIDTH'h%llX+J*QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .sys_class_tail = "}\n",

    .cvr = &hx_cvr_templates,
    .bkdr = &hx_bkdr_templates,
};

} // namespace

void emit_hx_brx_model(const char* top) {
    emit_brx_model(top, hx_templates);
}
