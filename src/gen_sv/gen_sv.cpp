#include "gen_sv/gen_sv.hpp"

#include "gen_sv/gen_model.hpp"

namespace {

// Where the generated model sends a user who hits an internal model error.
#define BRIX_SUPPORT_ADDRESS "brix-support@marsdale.com"

const brix_gen_templates sv_templates = {
    /*file_suffix*/ ".sv",
    /*file_head*/ "`ifndef BRX_%s\n`define BRX_%s\n\n`include \"qvt_brx.sv\"\n\n",
    /*file_tail*/ "`endif\n",
    /*width_warning*/
    "Warning: This BRX model requires `QVT_BRX_DATA_WIDTH macro to be defined to %d or "
    "greater.\n",

    /*reg_cvr_typedef*/ "typedef class brx_cvr_reg_%s;\n",
    /*reg_class_head*/ "class brx_reg_%s extends qvt_brx_reg;\n",
    /*reg_field_decl*/ "\tqvt_brx_field %s;\n",
    /*reg_rand_field_decl*/ "\trand qvt_brx_field %s;\n",
    /*reg_bits_member*/ "\tlocal brx_cvr_reg_%s reg_bits[*];\n",
    /*reg_fldval_group_head*/
    "\tcovergroup field_values (input string name);\n\t\toption.name = name;\n"
    "\t\toption.per_instance = 1;\n",
    /*reg_fldval_group_tail*/ "\tendgroup : field_values\n\n",
    /*constraint_decl*/ "\tconstraint %s;\n",
    /*constraint_head*/ "\tconstraint %s {\n",
    /*field_constraint_decl*/ "\tconstraint %s_%s;\n",
    /*field_constraint_head*/ "\tconstraint %s_%s {\n",
    /*constraint_line_indent*/ "\t\t",
    /*constraint_tail*/ "\t}\n",
    /*user_defined_constraint*/ "\tconstraint user_defined;\n\n",
    /*reg_ctor_head*/
    "\tfunction new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, "
    "string domain, int cvr, \n\t\t\t\tbit[1:0] rights = 2'b11, bit unmapped = 0);\n",
    /*reg_super_new*/
    "\t\tsuper.new(parent, name, %d, offset, domain, cvr, rights, unmapped, %s);\n",
    /*reg_fldval_new*/
    "\t\tif (cvr & qvt_brx::FIELD_VALS) this.field_values = new(this.get_fullname());\n",
    /*reg_field_new*/ "\t\tthis.%s = new(this, \"%s\", %d, %s, %s, %s, %d, %d, cvr);\n",
    /*set_attribute*/ "\t\tthis.set_attribute(\"%s\", \"%s\");\n",
    /*add_constraint*/ "\t\tXadd_constraintsX(\"%s\");\n",
    /*add_field_constraint*/ "\t\tXadd_constraintsX(\"%s_%s\");\n",
    /*add_user_defined_constraint*/ "\t\tXadd_constraintsX(\"user_defined\");\n",
    /*reg_ctor_tail*/ "\tendfunction: new\n",
    /*reg_bits_methods*/
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
    /*reg_class_tail*/ "endclass : brx_reg_%s\n",

    /*enum_class_head*/ "class brx_fld_%s_%s;\n\ttypedef enum bit[%d:0] { ",
    /*enum_separator*/ ", ",
    /*enum_name*/ "\n\t\t%s",
    /*enum_value*/ " = %s",
    /*enum_class_tail*/ "\n\t} %s_values;\nendclass : brx_fld_%s_%s\n\n\n",

    /*mem_class_head*/ "class brx_mem_%s extends qvt_brx_mem;\n",
    /*mem_ctor_head*/
    "\tfunction new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] "
    "base_address, string domain, int cvr,\n\t\t\t\tbit[1:0] rights = 2'b11, bit unmapped = "
    "0);\n",
    /*mem_super_new*/
    "\t\tsuper.new(parent, name, qvt_brx::%s, `QVT_BRX_ADDR_WIDTH'h%llX, %d, base_address, "
    "domain, cvr, rights, unmapped, %s);\n",
    /*mem_class_tail*/ "\tendfunction: new\nendclass : brx_mem_%s\n",

    /*vreg_class_head*/ "class brx_vreg_%s extends qvt_brx_vreg;\n",
    /*vreg_field_decl*/ "\trand qvt_brx_vfield %s;\n",
    /*vreg_ctor_head*/
    "\tfunction new(qvt_brx_block parent, string name, int unsigned n_bits,\n\t\t\t "
    "bit[`QVT_BRX_ADDR_WIDTH-1:0] offset = `QVT_BRX_ADDR_WIDTH'h0, qvt_brx_mem mem = null, "
    "longint unsigned size = 0, int unsigned incr = 0);\n\t\tsuper.new(parent, name, n_bits, "
    "offset, mem, size, incr);\n",
    /*vreg_field_new*/ "\t\tthis.%s = new(this, \"%s\", %d, %d);\n",
    /*vreg_class_tail*/ "\tendfunction: new\nendclass : brx_vreg_%s\n",

    /*regfile_class_head*/ "class brx_regfile_%s;\n",
    /*regfile_reg_decl*/ "\trand brx_reg_%s %s;\n",
    /*regfile_reg_array_decl*/ "\trand brx_reg_%s %s[%d];\n",
    /*field_alias_decl*/ "\t%sqvt_brx_field %s_%s;\n",
    /*field_alias_array_decl*/ "\t%sqvt_brx_field %s_%s[%d];\n",
    /*field_short_decl*/ "\t%sqvt_brx_field %s;\n",
    /*field_short_array_decl*/ "\t%sqvt_brx_field %s[%d];\n",
    /*regfile_ctor_head*/
    "\tfunction new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, "
    "string domain, int cvr);\n",
    /*regfile_reg_new*/
    "\t\tthis.%s = new(parent, $psprintf(\"%%s.%s\",name), offset+`QVT_BRX_ADDR_WIDTH'h%llX, "
    "domain, cvr, %s, %d);\n",
    /*regfile_reg_array_new*/
    "\t\t\tthis.%s[J] = new(parent, $psprintf(\"%%s.%s[%%0d]\",name,J), "
    "offset+`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX, domain, cvr, %s, %d);\n",
    /*regfile_ctor_tail*/ "\tendfunction : new\n",
    /*regfile_class_tail*/ "endclass : brx_regfile_%s\n",

    /*field_alias_new*/ "\t\tthis.%s_%s = this.%s.%s;\n",
    /*field_short_new*/ "\t\tthis.%s = this.%s.%s;\n",
    /*field_alias_array_new*/ "\t\t\tthis.%s_%s[J] = this.%s[J].%s;\n",
    /*field_short_array_new*/ "\t\t\tthis.%s[J] = this.%s[J].%s;\n",

    /*foreach_head*/ "\t\tforeach (this.%s[i]) begin\n\t\t\tint J = i;\n",
    /*foreach_tail*/ "\t\tend\n",
    /*container_ctor_head*/
    "\tfunction new(int cover_on = qvt_brx::NO_COVERAGE, string name = \"%s\", qvt_brx_sys "
    "parent = null, integer base_addr = 0);\n",
    /*container_super_new*/
    "\t\tsuper.new(parent, name, \"%s\", %d, %s, base_addr, \"%s\", cover_on, %s);\n",
    /*container_add_domain*/ "\t\tthis.add_domain(%d, %s, \"%s\");\n",
    /*backdoor_banner*/ "\n\t\t//\n\t\t// Setting up backdoor access...\n\t\t//\n",
    /*lock_model*/ "\t\tthis.Xlock_modelX();\n",
    /*container_ctor_tail*/ "\tendfunction : new\n",

    /*block_class_head*/ "class brx_block_%s extends qvt_brx_block;\n",
    /*block_reg_decl*/ "\trand brx_reg_%s %s;\n",
    /*block_reg_array_decl*/ "\trand brx_reg_%s %s[%d];\n",
    /*block_vreg_decl*/ "\trand brx_vreg_%s %s;\n",
    /*block_regfile_decl*/ "\trand brx_regfile_%s %s;\n",
    /*block_regfile_array_decl*/ "\trand brx_regfile_%s %s[%d];\n",
    /*block_mem_decl*/ "\trand brx_mem_%s %s;\n",
    /*vfield_alias_decl*/ "\trand qvt_brx_vfield %s_%s;\n",
    /*vfield_short_decl*/ "\trand qvt_brx_vfield %s;\n",
    /*addr_map_member*/ "\tlocal brx_cvr_block_%s __addr_map[*];\n\n",
    /*block_obj_new*/
    "\t\tthis.%s = new(this, \"%s\", `QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on, %s, %d);\n",
    /*block_obj_add_domain*/
    "\t\tthis.%s.add_domain(`QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", %s, %d);\n",
    /*block_reg_array_new*/
    "\t\t\tthis.%s[J] = new(this, $psprintf(\"%s[%%0d]\",J), "
    "`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on, %s, %d);\n",
    /*block_regfile_new*/
    "\t\tthis.%s = new(this, \"%s\", `QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on);\n",
    /*block_regfile_array_new*/
    "\t\t\tthis.%s[J] = new(this, $psprintf(\"%s[%%0d]\",J), "
    "`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX, \"%s\", cover_on);\n",
    /*vreg_new_in_memory*/
    "\t\tthis.%s = new(this, \"%s\", %llu, `QVT_BRX_ADDR_WIDTH'h%llX, this.%s, %d, %llu);\n",
    /*vreg_new*/ "\t\tthis.%s = new(this, \"%s\", %llu);\n",
    /*block_class_tail*/ "endclass : brx_block_%s\n",

    /*sys_class_head*/ "class brx_sys_%s extends qvt_brx_sys;\n",
    /*sys_block_decl*/ "\trand brx_block_%s %s;\n",
    /*sys_block_array_decl*/ "\trand brx_block_%s %s[%d];\n",
    /*sys_sys_decl*/ "\trand brx_sys_%s %s;\n",
    /*sys_sys_array_decl*/ "\trand brx_sys_%s %s[%d];\n",
    /*sys_comp_new*/ "\t\tthis.%s = new(cover_on, \"%s\", this, `QVT_BRX_ADDR_WIDTH'h%llX);\n",
    /*sys_comp_same*/ "\t\tthis.%s = this.%s;\n",
    /*sys_comp_array_new*/
    "\t\t\tthis.%s[J] = new(cover_on, $psprintf(\"%s[%%0d]\",J), this, "
    "`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX);\n",
    /*sys_comp_array_same*/ "\t\t\tthis.%s[J] = this.%s[J];\n",
    /*register_block*/
    "\t\tthis.register_block(this.%s, \"%s\", \"%s\", `QVT_BRX_ADDR_WIDTH'h%llX);\n",
    /*register_block_array*/
    "\t\t\tthis.register_block(this.%s[J], \"%s\", \"%s\", "
    "`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX);\n",
    /*register_subsys*/
    "\t\tthis.register_subsys(this.%s, \"%s\", \"%s\", `QVT_BRX_ADDR_WIDTH'h%llX);\n",
    /*register_subsys_array*/
    "\t\t\tthis.register_subsys(this.%s[J], \"%s\", \"%s\", "
    "`QVT_BRX_ADDR_WIDTH'h%llX+J*`QVT_BRX_ADDR_WIDTH'h%llX);\n",
    /*sys_class_tail*/ "endclass : brx_sys_%s\n",
};

} // namespace

void emit_sv_brx_model(const char* top) {
    emit_brx_model(top, sv_templates);
}
