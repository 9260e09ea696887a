#include "parser/parse_state.hpp"

brix_field_type_tag* tmp_field_type = nullptr;
brix_field_tag* tmp_field = nullptr;
brix_register_type_tag* tmp_register_type = nullptr;
brix_register_tag* tmp_register = nullptr;
brix_vregister_type_tag* tmp_vregister_type = nullptr;
brix_vregister_tag* tmp_vregister = nullptr;
brix_regfile_type_tag* tmp_regfile_type = nullptr;
brix_regfile_tag* tmp_regfile = nullptr;
brix_memory_type_tag* tmp_memory_type = nullptr;
brix_memory_tag* tmp_memory = nullptr;
brix_block_type_tag* tmp_block_type = nullptr;
brix_block_domain_tag* tmp_block_domain = nullptr;
brix_block_tag* tmp_block = nullptr;
brix_system_type_tag* tmp_system_type = nullptr;
brix_system_domain_tag* tmp_system_domain = nullptr;
brix_system_tag* tmp_system = nullptr;

brix_constraint_tag* tmp_constraint = nullptr;
brix_doc* tmp_doc = nullptr;
brix_mem_initial* tmp_mem_initial = nullptr;
brix_hdl_path_tag* tmp_hdl_path = nullptr;
brix_attribute* tmp_attr_list = nullptr;
brix_list_tag* tmp_enum_name_list = nullptr;
brix_cvr_bin* tmp_bin_spec = nullptr;
brix_list_tag* tmp_bin_spec_list = nullptr;
brix_list_tag* tmp_bin_values = nullptr;
char* tmp_label = nullptr;

char* tmp_field_type_name = nullptr;
char* tmp_register_type_name = nullptr;
char* tmp_vregister_type_name = nullptr;
char* tmp_memory_type_name = nullptr;
char* tmp_regfile_type_name = nullptr;
char* tmp_block_type_name = nullptr;
char* tmp_system_type_name = nullptr;

brix_str2voidptr_map* tmp_shared_regs = nullptr;
brix_str2voidptr_map* tmp_shared_mems = nullptr;
brix_str2voidptr_map* tmp_instantiated_blk_or_sys_with_multiple_doms = nullptr;

char tmp_parsing_vhdl_path = 0;
char parsing_unused_or_reserved_field = 0;
char parsing_block_with_domain_spec = 0;
char parsing_block_without_domain_spec = 0;
char parsing_system_with_domain_spec = 0;
char parsing_system_without_domain_spec = 0;

unsigned char tmpbrixflag_first_line_read_after_hashline = 0;
int brix_column = 0;

void reset_parse_state() {
    tmp_field_type = nullptr;
    tmp_field = nullptr;
    tmp_register_type = nullptr;
    tmp_register = nullptr;
    tmp_vregister_type = nullptr;
    tmp_vregister = nullptr;
    tmp_regfile_type = nullptr;
    tmp_regfile = nullptr;
    tmp_memory_type = nullptr;
    tmp_memory = nullptr;
    tmp_block_type = nullptr;
    tmp_block_domain = nullptr;
    tmp_block = nullptr;
    tmp_system_type = nullptr;
    tmp_system_domain = nullptr;
    tmp_system = nullptr;
    tmp_constraint = nullptr;
    tmp_doc = nullptr;
    tmp_mem_initial = nullptr;
    tmp_hdl_path = nullptr;
    tmp_attr_list = nullptr;
    tmp_enum_name_list = nullptr;
    tmp_bin_spec = nullptr;
    tmp_bin_spec_list = nullptr;
    tmp_bin_values = nullptr;
    tmp_label = nullptr;
    tmp_field_type_name = nullptr;
    tmp_register_type_name = nullptr;
    tmp_vregister_type_name = nullptr;
    tmp_memory_type_name = nullptr;
    tmp_regfile_type_name = nullptr;
    tmp_block_type_name = nullptr;
    tmp_system_type_name = nullptr;
    tmp_shared_regs = nullptr;
    tmp_shared_mems = nullptr;
    tmp_instantiated_blk_or_sys_with_multiple_doms = nullptr;
    tmp_parsing_vhdl_path = 0;
    parsing_unused_or_reserved_field = 0;
    parsing_block_with_domain_spec = 0;
    parsing_block_without_domain_spec = 0;
    parsing_system_with_domain_spec = 0;
    parsing_system_without_domain_spec = 0;
    tmpbrixflag_first_line_read_after_hashline = 0;
    brix_column = 0;
    all_block_types = nullptr;
    all_system_types = nullptr;
}
