#include "gen_sv/gen_sv.hpp"

#include "gen_backdoor/backdoor.hpp"
#include "gen_model/gen_coverage.hpp"
#include "gen_model/gen_model.hpp"

namespace {

const brix_cvr_templates sv_cvr_templates = {
    .fv_point_head = "%s_value : coverpoint %s.value",
    .fv_body_open = " {\n",
    .fv_small_open = "[%d:0] {\n",
    .fv_enum_bin = "bins %s = { %d };\n",
    .fv_min = "bins min = { %d'h0 };\n",
    .fv_max = "bins max = { %d'h%llX };\n",
    .fv_others = "bins others = { [%d'h1:%d'h%llX] };\n",
    .weight = "option.weight = %d;\n",
    .point_close = "}\n",
    .cross_label = "%s : ",
    .cross_head = "cross ",
    .cross_name_label = nullptr,
    .cross_name_open = nullptr,
    .cross_name_sep = nullptr,
    .cross_name_close = nullptr,
    .cross_item_sep = ", ",
    .cross_field_suffix = "_value",
    .cross_open = " {\n",

    .bin_default_alone = nullptr,
    .bin_auto_head = "bins %s[]",
    .bin_count_head = "bins %s[%d]",
    .bin_head = "bins %s",
    .bin_assign = " = ",
    .bin_default = "default;\n",
    .bin_values_open = "{ ",
    .bin_value_sep = ", ",
    .bin_values_close = " };\n",
    .bin_range_open = "[",
    .bin_range_sep = ":",
    .bin_range_close = "]",
    .bin_enum_class = "%s::",

    .rb_every_field = false,
    .rb_class_head = "class brx_cvr_reg_%s;\n"
                     "\tlocal bit [`QVT_BRX_DATA_WIDTH-1:0] data;\n"
                     "\tlocal bit                           is_read;\n"
                     "\tcovergroup reg_bits (input string name);\n"
                     "\t   option.name = name;\n"
                     "\t   option.per_instance = 1;\n",
    .rb_point_head = "\t   %s: coverpoint {data[%d:%d], is_read} {\n",
    .rb_wr_as_0 = "\t      wildcard bins bit_%d_wr_as_0 = {%d'b",
    .rb_wr_as_1 = "\t      wildcard bins bit_%d_wr_as_1 = {%d'b",
    .rb_rd = "\t      wildcard bins bit_%d_rd = {%d'b",
    .rb_rd_as_0 = "\t      wildcard bins bit_%d_rd_as_0 = {%d'b",
    .rb_rd_as_1 = "\t      wildcard bins bit_%d_rd_as_1 = {%d'b",
    .rb_any_bit = '?',
    .rb_write_end = "0};\n",
    .rb_read_end = "1};\n",
    .rb_weight = "\t      option.weight = %d;\n",
    .rb_point_tail = "\t   }\n",
    .rb_class_tail = "\tendgroup\n"
                     "\n"
                     "\tfunction new(string name, string domain);\n"
                     "\t   if (domain == \"\") this.reg_bits = new(name);\n"
                     "\t   else this.reg_bits = new($psprintf(\"%%s(%%s)\", name, domain));\n"
                     "\tendfunction\n"
                     "\n"
                     "\tfunction void sample(bit [`QVT_BRX_DATA_WIDTH-1:0] data,\n"
                     "\t                     bit                           is_read);\n"
                     "\t   this.data = data;\n"
                     "\t   this.is_read = is_read;\n"
                     "\t   this.reg_bits.sample();\n"
                     "\tendfunction\n"
                     "endclass\n"
                     "\n",

    .am_class_head = "class brx_cvr_block_%s;\n",
    .am_addr_member = "local bit [`QVT_BRX_ADDR_WIDTH-1:0] addr;\n",
    .am_event = nullptr,
    .am_named_event = nullptr,
    .am_group_head = "covergroup addr_map (input string name);\n",
    .am_named_group_head = "covergroup %s_addr_map (input string name);\n",
    .am_group_options = {"option.name = name;\n", "option.per_instance = 1;\n"},
    .am_named_group_options = {"option.name = name;\n", "option.per_instance = 1;\n"},
    .am_group_tail = "endgroup\n",
    .am_new_head = "function new (string name",
    .am_domain_param = ", string domain",
    .am_params_close = ");\n",
    .am_new_single = "this.addr_map = new($psprintf(\"%%s\", name));\n",
    .am_if_domain = "if (domain == \"%s\") begin\n",
    .am_else = "else ",
    .am_end = "end\n",
    .am_new_domain = "this.%s_addr_map = new($psprintf(\"%%s(%s)\", name));\n",
    .am_function_tail = "endfunction\n",
    .am_sample_head = "function void sample(bit [`QVT_BRX_ADDR_WIDTH-1:0] addr",
    .am_sample_store = "this.addr = addr;\n",
    .am_sample_single = "this.addr_map.sample();\n",
    .am_sample_domain = "this.%s_addr_map.sample();\n",
    .am_class_tail = "endclass : brx_cvr_block_%s\n",
    .am_point_head = "%s : coverpoint addr {\n",
    .am_accessed = "bins accessed = { `QVT_BRX_ADDR_WIDTH'h%llX };\n",
    .am_accessed_range =
        "bins accessed = { [`QVT_BRX_ADDR_WIDTH'h%llX:`QVT_BRX_ADDR_WIDTH'h%llX] };\n",
    .am_first_location = "bins first_location_accessed = { `QVT_BRX_ADDR_WIDTH'h%llX };\n",
    .am_first_location_range =
        "bins first_location_accessed = { [`QVT_BRX_ADDR_WIDTH'h%llX:`QVT_BRX_ADDR_WIDTH'h%llX] "
        "};\n",
    .am_last_location = "bins last_location_accessed = { `QVT_BRX_ADDR_WIDTH'h%llX };\n",
    .am_last_location_range =
        "bins last_location_accessed = { [`QVT_BRX_ADDR_WIDTH'h%llX:`QVT_BRX_ADDR_WIDTH'h%llX] "
        "};\n",
    .am_other_locations =
        "bins other_locations_accessed = { [`QVT_BRX_ADDR_WIDTH'h%llX:`QVT_BRX_ADDR_WIDTH'h%llX] "
        "};\n",

    .dc_head = "virtual function void domain_coverage(string domain, int idx);\n",
    .dc_can_cover = "if (this.can_cover(qvt_brx::ADDR_MAP)) begin\n",
    .dc_decl = "brx_cvr_block_%s cg;\n",
    .dc_new_single = "cg = new(this.get_fullname());\n",
    .dc_new_domain = "cg = new(this.get_fullname(), \"%s\");\n",
    .dc_else_begin = "else begin\n",
    .dc_bad_domain =
        "$write(\"Internal BRX model error: Invalid domain '%%s' found for Block '%%s'.\\n\", "
        "domain, this.get_fullname());\n",
    .support_line = "$write(\"Please contact " BRIX_SUPPORT_ADDRESS ".\\n\");\n",
    .finish = "$finish();\n",
    .dc_store = "this.__addr_map[idx] = cg;\n",
    .sm_head =
        "protected virtual function void sample(bit [`QVT_BRX_ADDR_WIDTH-1:0] addr, int domain);\n",
    .sm_is_cover_on = "if (!this.is_cover_on(qvt_brx::ADDR_MAP)) return;\n",
    .sm_exists = "if (!this.__addr_map.exists(domain)) begin\n",
    .sm_bad_domain = "$write(\"Internal BRX model error: Invalid domain found for Block %%s.\\n\", "
                     "this.get_fullname());\n",
    .sm_call = "this.__addr_map[domain].sample(addr",
    .sm_call_domain = ", this.domains[domain]",
    .sm_call_close = ");\n",

    .sfv_head = "\tfunction void sample_field_values();\n\t\tif "
                "(this.can_cover(qvt_brx::FIELD_VALS)) begin\n",
    .sfv_line = "\t\t\tif (%s.field_values != null) %s.field_values.sample();\n",
    .sfv_tail = "\t\tend\n\tendfunction\n",
};

const brix_bkdr_templates sv_bkdr_templates = {
    .statements_fp = &brx_model_fp,
    .reg_class_head = "class brx_reg_%s",
    .mem_class_head = "class brx_mem_%s",
    .level_suffix = "_%s",
    .reg_class_head_tail = "_bkdr extends qvt_brx_reg_backdoor;\n",
    .mem_class_head_tail = "_%s_bkdr extends qvt_brx_mem_backdoor;\n",
    .shared_reg_class_head = "class %s extends qvt_brx_reg_backdoor;\n",
    .shared_mem_class_head = "class %s extends qvt_brx_mem_backdoor;\n",
    .member_decl = "\tint %s;\n",
    .ctor_head = "\n\tfunction new(",
    .ctor_arg = "int %s",
    .ctor_arg_sep = ", ",
    .ctor_args_end = ");\n",
    .ctor_assign = "\t\tthis.%s = %s;\n",
    .ctor_tail = "\tendfunction\n\n",
    .class_tail = "endclass\n\n\n",

    .reg_task_head =
        {"\tvirtual task read(output qvt_rw::status_e status, output bit "
         "[`QVT_BRX_DATA_WIDTH-1:0] data, \n\t\t\t\t\tinput int data_id, input int scenario_id, "
         "input int stream_id);\n",
         "\tvirtual task write(output qvt_rw::status_e status, input bit "
         "[`QVT_BRX_DATA_WIDTH-1:0] data, \n\t\t\t\t\tinput int data_id, input int scenario_id, "
         "input int stream_id);\n"},
    .mem_task_head =
        {"\tvirtual task read(output qvt_rw::status_e status, input bit "
         "[`QVT_BRX_ADDR_WIDTH-1:0] offset, \n\t\t\t\t\toutput bit [`QVT_BRX_DATA_WIDTH-1:0] data, "
         "input int data_id,\n\t\t\t\t\tinput int scenario_id, input int stream_id);\n",
         "\tvirtual task write(output qvt_rw::status_e status, input bit "
         "[`QVT_BRX_ADDR_WIDTH-1:0] offset,\n\t\t\t\t\tinput bit [`QVT_BRX_DATA_WIDTH-1:0] data, "
         "input int data_id, \n\t\t\t\t\tinput int scenario_id, input int stream_id);\n"},
    .task_body_open = "\t\t",
    .task_ok_tail = {"\t\tstatus = qvt_rw::IS_OK;\n\tendtask\n\n",
                     "\t\tstatus = qvt_rw::IS_OK;\n\tendtask\n"},
    .task_error = "\t\tstatus = qvt_rw::ERROR;\n\tendtask\n",
    .emit_tasks_head = nullptr,
    .emit_task_body = emit_backdoor_access_code,

    .inst_foreach_head = "foreach (this",
    .inst_foreach_tail = ".%s[i%d]) begin\n",
    .inst_begin = "begin\n",
    .inst_end = "end\n",
};

const brix_gen_templates sv_templates = {
    .file_suffix = ".sv",
    .file_head = "`ifndef BRX_%s\n`define BRX_%s\n\n`include \"qvt_brx.sv\"\n\n",
    .backdoor_file_head = nullptr,
    .backdoor_file_tail = nullptr,
    .file_tail = "`endif\n",
    .width_warning =
        "Warning: This BRX model requires `QVT_BRX_DATA_WIDTH macro to be defined to %d or "
        "greater.\n",

    .reg_cvr_typedef = "typedef class brx_cvr_reg_%s;\n",
    .reg_class_head = "class brx_reg_%s extends qvt_brx_reg;\n",
    .reg_field_decl = "\tqvt_brx_field %s;\n",
    .reg_rand_field_decl = "\trand qvt_brx_field %s;\n",
    .reg_bits_member = "\tlocal brx_cvr_reg_%s reg_bits[*];\n",
    .reg_fldval_group_head =
        "\tcovergroup field_values (input string name);\n\t\toption.name = name;\n"
        "\t\toption.per_instance = 1;\n",
    .reg_fldval_group_tail = "\tendgroup : field_values\n\n",
    .constraint_decl = "\tconstraint %s;\n",
    .constraint_head = "\tconstraint %s {\n",
    .field_constraint_decl = "\tconstraint %s_%s;\n",
    .field_constraint_head = "\tconstraint %s_%s {\n",
    .constraint_line_indent = "\t\t",
    .constraint_tail = "\t}\n",
    .user_defined_constraint = "\tconstraint user_defined;\n\n",
    .reg_ctor_head =
        "\tfunction new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, "
        "string domain, int cvr, \n\t\t\t\tbit[1:0] rights = 2'b11, bit unmapped = 0);\n",
    .reg_super_new =
        "\t\tsuper.new(parent, name, %d, offset, domain, cvr, rights, unmapped, %s);\n",
    .reg_fldval_new =
        "\t\tif (cvr & qvt_brx::FIELD_VALS) this.field_values = new(this.get_fullname());\n",
    .reg_field_new = "\t\tthis.%s = new(this, \"%s\", %d, %s, %s, %s, %d, %d, cvr);\n",
    .set_attribute = "\t\tthis.set_attribute(\"%s\", \"%s\");\n",
    .add_constraint = "\t\tXadd_constraintsX(\"%s\");\n",
    .add_field_constraint = "\t\tXadd_constraintsX(\"%s_%s\");\n",
    .add_user_defined_constraint = "\t\tXadd_constraintsX(\"user_defined\");\n",
    .reg_ctor_tail = "\tendfunction: new\n",
    .reg_bits_methods =
        {"\n\tlocal virtual function void domain_coverage(string domain,\n"
         "\t                                            bit    rights,\n"
         "\t                                            int    idx);\n"
         "\t    if (this.can_cover(qvt_brx::REG_BITS)) begin\n",
         "\t        brx_cvr_reg_%s cg;",
         "\n\t        cg = new(this.get_fullname(), domain);\n"
         "\t        this.reg_bits[idx] = cg;\n"
         "\t    end\n"
         "\tendfunction\n"
         "\n"
         "\tvirtual local function void sample(bit [`QVT_BRX_DATA_WIDTH-1:0] data,\n"
         "\t                                   bit                           is_read,\n"
         "\t                                   int                           domain);\n"
         "\t   if (!this.is_cover_on(qvt_brx::REG_BITS)) return;\n"
         "\t   if (!this.reg_bits.exists(domain)) begin\n"
         "\t      $write(\"Internal BRX model error: invalid domain for %s.\\n\", "
         "this.get_fullname());\n"
         "\t      $write(\"Please contact " BRIX_SUPPORT_ADDRESS ".\\n\");\n"
         "\t      $finish();\n"
         "\t   end\n"
         "\t   this.reg_bits[domain].sample(data, is_read);\n"
         "\tendfunction\n"},
    .reg_class_tail = "endclass : brx_reg_%s\n",

    .enum_class_head = "class brx_fld_%s_%s;\n",
    .enum_type_head = "\ttypedef enum bit[%d:0] { ",
    .enum_type_by_field = false,
    .enum_separator = ", ",
    .enum_name = "\n\t\t%s",
    .enum_value = " = %s",
    .enum_class_tail = "\n\t} %s_values;\nendclass : brx_fld_%s_%s\n\n\n",

    .mem_class_head = "class brx_mem_%s extends qvt_brx_mem;\n",
    .mem_ctor_head =
        "\tfunction new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] "
        "base_address, string domain, int cvr,\n\t\t\t\tbit[1:0] rights = 2'b11, bit unmapped = "
        "0);\n",
    .mem_super_new =
        "\t\tsuper.new(parent, name, qvt_brx::%s, `QVT_BRX_ADDR_WIDTH'h%llX, %d, base_address, "
        "domain, cvr, rights, unmapped, %s);\n",
    .mem_class_tail = "\tendfunction: new\nendclass : brx_mem_%s\n",

    .vreg_class_head = "class brx_vreg_%s extends qvt_brx_vreg;\n",
    .vreg_field_decl = "\trand qvt_brx_vfield %s;\n",
    .vreg_ctor_head =
        "\tfunction new(qvt_brx_block parent, string name, int unsigned n_bits,\n\t\t\t "
        "bit[`QVT_BRX_ADDR_WIDTH-1:0] offset = `QVT_BRX_ADDR_WIDTH'h0, qvt_brx_mem mem = null, "
        "longint unsigned size = 0, int unsigned incr = 0);\n\t\tsuper.new(parent, name, n_bits, "
        "offset, mem, size, incr);\n",
    .vreg_field_new = "\t\tthis.%s = new(this, \"%s\", %d, %d);\n",
    .vreg_class_tail = "\tendfunction: new\nendclass : brx_vreg_%s\n",

    .regfile_class_head = "class brx_regfile_%s;\n",
    .regfile_reg_decl = "\trand brx_reg_%s %s;\n",
    .regfile_reg_array_decl = "\trand brx_reg_%s %s[%d];\n",
    .field_alias_decl = "\t%sqvt_brx_field %s_%s;\n",
    .field_alias_array_decl = "\t%sqvt_brx_field %s_%s[%d];\n",
    .field_short_decl = "\t%sqvt_brx_field %s;\n",
    .field_short_array_decl = "\t%sqvt_brx_field %s[%d];\n",
    .regfile_ctor_head =
        "\tfunction new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, "
        "string domain, int cvr);\n",
    .regfile_reg_new =
        "\t\tthis.%s = new(parent, $psprintf(\"%%s.%s\",name), offset+`QVT_BRX_ADDR_WIDTH'h%llX, "
        "domain, cvr, %s, %d);\n",
    .regfile_reg_array_new =
        "\t\t\tthis.%s[J] = new(parent, $psprintf(\"%%s.%s[%%0d]\",name,J), "
        "offset+`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX, domain, cvr, %s, %d);\n",
    .regfile_ctor_tail = "\tendfunction : new\n",
    .regfile_class_tail = "endclass : brx_regfile_%s\n",

    .field_alias_new = "\t\tthis.%s_%s = this.%s.%s;\n",
    .field_short_new = "\t\tthis.%s = this.%s.%s;\n",
    .field_alias_array_new = "\t\t\tthis.%s_%s[J] = this.%s[J].%s;\n",
    .field_short_array_new = "\t\t\tthis.%s[J] = this.%s[J].%s;\n",

    .foreach_head = "\t\tforeach (this.%s[i]) begin\n\t\t\tint J = i;\n",
    .foreach_tail = "\t\tend\n",
    .container_ctor_head =
        "\tfunction new(int cover_on = qvt_brx::NO_COVERAGE, string name = \"%s\", qvt_brx_sys "
        "parent = null, integer base_addr = 0);\n",
    .container_super_new =
        "\t\tsuper.new(parent, name, \"%s\", %d, %s, base_addr, \"%s\", cover_on, %s);\n",
    .container_add_domain = "\t\tthis.add_domain(%d, %s, \"%s\");\n",
    .backdoor_banner = "\n\t\t//\n\t\t// Setting up backdoor access...\n\t\t//\n",
    .lock_model = "\t\tthis.Xlock_modelX();\n",
    .container_ctor_tail = "\tendfunction : new\n",

    .block_class_head = "class brx_block_%s extends qvt_brx_block;\n",
    .block_reg_decl = "\trand brx_reg_%s %s;\n",
    .block_reg_array_decl = "\trand brx_reg_%s %s[%d];\n",
    .block_vreg_decl = "\trand brx_vreg_%s %s;\n",
    .block_regfile_decl = "\trand brx_regfile_%s %s;\n",
    .block_regfile_array_decl = "\trand brx_regfile_%s %s[%d];\n",
    .block_mem_decl = "\trand brx_mem_%s %s;\n",
    .vfield_alias_decl = "\trand qvt_brx_vfield %s_%s;\n",
    .vfield_short_decl = "\trand qvt_brx_vfield %s;\n",
    .addr_map_member = "\tlocal brx_cvr_block_%s __addr_map[*];\n\n",
    .block_obj_new =
        "\t\tthis.%s = new(this, \"%s\", `QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on, %s, %d);\n",
    .block_obj_add_domain = "\t\tthis.%s.add_domain(`QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", %s, %d);\n",
    .block_reg_array_new =
        "\t\t\tthis.%s[J] = new(this, $psprintf(\"%s[%%0d]\",J), "
        "`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on, %s, %d);\n",
    .block_regfile_new =
        "\t\tthis.%s = new(this, \"%s\", `QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on);\n",
    .block_regfile_array_new =
        "\t\t\tthis.%s[J] = new(this, $psprintf(\"%s[%%0d]\",J), "
        "`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on);\n",
    .vreg_new_in_memory =
        "\t\tthis.%s = new(this, \"%s\", %llu, `QVT_BRX_ADDR_WIDTH'h%llX, this.%s, %d, %llu);\n",
    .vreg_new = "\t\tthis.%s = new(this, \"%s\", %llu);\n",
    .block_class_tail = "endclass : brx_block_%s\n",

    .sys_class_head = "class brx_sys_%s extends qvt_brx_sys;\n",
    .sys_block_decl = "\trand brx_block_%s %s;\n",
    .sys_block_array_decl = "\trand brx_block_%s %s[%d];\n",
    .sys_sys_decl = "\trand brx_sys_%s %s;\n",
    .sys_sys_array_decl = "\trand brx_sys_%s %s[%d];\n",
    .sys_comp_new = "\t\tthis.%s = new(cover_on, \"%s\", this, `QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .sys_comp_same = "\t\tthis.%s = this.%s;\n",
    .sys_comp_array_new = "\t\t\tthis.%s[J] = new(cover_on, $psprintf(\"%s[%%0d]\",J), this, "
                          "`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .sys_comp_array_same = "\t\t\tthis.%s[J] = this.%s[J];\n",
    .register_block =
        "\t\tthis.register_block(this.%s, \"%s\", \"%s\", `QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .register_block_array = "\t\t\tthis.register_block(this.%s[J], \"%s\", \"%s\", "
                            "`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .register_subsys =
        "\t\tthis.register_subsys(this.%s, \"%s\", \"%s\", `QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .register_subsys_array = "\t\t\tthis.register_subsys(this.%s[J], \"%s\", \"%s\", "
                             "`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX);\n",
    .sys_class_tail = "endclass : brx_sys_%s\n",

    .cvr = &sv_cvr_templates,
    .bkdr = &sv_bkdr_templates,
};

} // namespace

void emit_sv_brx_model(const char* top) {
    emit_brx_model(top, sv_templates);
}
