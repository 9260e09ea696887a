#include "gen_hx/hx_backdoor.hpp"

#include <string>
#include <vector>

#include "driver/diag.hpp"
#include "gen_backdoor/backdoor.hpp"
#include "gen_model/gen_model.hpp"

FILE* brx_bkdrs_hxh_fp = nullptr;
FILE* brx_bkdrs_v_fp = nullptr;
std::string verilog_module_name;

namespace {

std::string side_file_name(const char* suffix) {
    return std::string("brx_bkdrs_") + brix_top + suffix;
}

FILE* open_side_file(const std::string& name) {
    FILE* fp = brix_open_output(name);
    if (fp == nullptr) {
        brix_error("Error: Failed to open file '%s' for writing...", name);
    }
    return fp;
}

// What the three files say of one task, by object kind and direction.
struct hx_task_texts {
    const char* model_call_args; // the call's arguments ahead of the index members
    const char* hxh_params;      // the declaration's parameters ahead of the index members
    const char* v_ports;         // the task's ports ahead of the index members
};

// [register, memory][read, write]
const hx_task_texts task_texts[2][2] = {
    {{"(status, data", "(var bit status,\n\t\t\t\tvar bit [QVT_BRX_DATA_WIDTH-1:0] data",
      ";\n\t\toutput status;\n\t\toutput [`QVT_BRX_DATA_WIDTH-1:0] data;\n"},
     {"(status, data", "(var bit status,\n\t\t\t\tbit [QVT_BRX_DATA_WIDTH-1:0] data",
      ";\n\t\toutput status;\n\t\tinput [`QVT_BRX_DATA_WIDTH-1:0] data;\n"}},
    {{"(status, data, offset",
      "(var bit status,\n\t\t\t\tvar bit [QVT_BRX_DATA_WIDTH-1:0] data,\n\t\t\t\tbit "
      "[QVT_BRX_ADDR_WIDTH-1:0] offset",
      ";\n\t\toutput status;\n\t\toutput [`QVT_BRX_DATA_WIDTH-1:0] data;\n\t\tinput "
      "[`QVT_BRX_ADDR_WIDTH-1:0] offset;\n"},
     {"(status, data, offset",
      "(var bit status,\n\t\t\t\tbit [QVT_BRX_DATA_WIDTH-1:0] data,\n\t\t\t\tbit "
      "[QVT_BRX_ADDR_WIDTH-1:0] offset",
      ";\n\t\toutput status;\n\t\tinput [`QVT_BRX_DATA_WIDTH-1:0] data;\n\t\tinput "
      "[`QVT_BRX_ADDR_WIDTH-1:0] offset;\n"}},
};

const char* const task_suffix[2] = {"_rd", "_wr"};
// The end of the method behind its call.
const char* const model_call_tail[2] = {
    ");\n\t\tif (status == 0)\n\t\t\tread_t = qvt_rw::IS_OK;\n\t\telse\n\t\t\tread_t = "
    "qvt_rw::ERROR;\n\t}\n",
    ");\n\t\tif (status == 0)\n\t\t\twrite_t = qvt_rw::IS_OK;\n\t\telse\n\t\t\twrite_t = "
    "qvt_rw::ERROR;\n\t}\n"};
// A write's declaration stands one line below the read's.
const char* const hxh_task_lead[2] = {"", "\n"};

// The comments that head an object's tasks; the declarations' comment of a memory has a
// blank behind the name.
void emit_hx_backdoor_tasks_head(const brix_bkdr_object& o) {
    const bool reg = o.reg != nullptr;
    const char* name = reg ? o.reg->name : o.mem->name;
    brix_emit_to(brx_bkdrs_hxh_fp,
                 reg ? "\n\n//\n// hdl_task declarations for register '%s'\n//\n"
                     : "\n\n//\n// hdl_task declarations for memory '%s' \n//\n",
                 name);
    brix_emit_to(brx_bkdrs_v_fp,
                 reg ? "\n\n\t//\n\t// Backdoor read/write (Verilog) implementation for register "
                       "'%s'\n\t//\n"
                     : "\n\n\t//\n\t// Backdoor read/write (Verilog) implementation for memory "
                       "'%s'\n\t//\n",
                 name);
}

// The method calls its task by the name of the class and passes the class's indices; the
// task, declared in the .hxh and defined in the .v, holds the access statements.
void emit_hx_backdoor_task(const brix_bkdr_object& o, brix_bkdr_dir dir) {
    const int d = static_cast<int>(dir);
    const hx_task_texts& t = task_texts[o.reg != nullptr ? 0 : 1][d];
    const std::string task = backdoor_class_name(o) + task_suffix[d];
    const std::vector<const char*> members = backdoor_index_members(o);

    brix_emit("%s%s", task, t.model_call_args);
    for (const char* m : members) {
        brix_emit(", %s", m);
    }
    // The whole method is written before the task, which may stop the run.
    brix_emit(model_call_tail[d]);

    brix_emit_to(brx_bkdrs_hxh_fp, "%shdl_task %s%s", hxh_task_lead[d], task, t.hxh_params);
    for (const char* m : members) {
        brix_emit_to(brx_bkdrs_hxh_fp, ",\n\t\t\t\tinteger %s", m);
    }
    brix_emit_to(brx_bkdrs_hxh_fp, ")\n\t\"%s.%s\";\n", verilog_module_name, task);

    brix_emit_to(brx_bkdrs_v_fp, "\ttask %s%s", task, t.v_ports);
    for (const char* m : members) {
        brix_emit_to(brx_bkdrs_v_fp, "\t\tinput integer %s;\n", m);
    }
    brix_emit_to(brx_bkdrs_v_fp, "\tbegin\n\t\tstatus = 1;\n\t\t");
    emit_backdoor_access_code(o, dir);
    brix_emit_to(brx_bkdrs_v_fp, "\t\tstatus = 0;\n\tend\n\tendtask\n\n");
}

} // namespace

const brix_bkdr_templates hx_bkdr_templates = {
    .statements_fp = &brx_bkdrs_v_fp,
    .reg_class_head = "class brx_reg_%s",
    .mem_class_head = "class brx_mem_%s",
    .level_suffix = "_%s",
    .reg_class_head_tail = "_bkdr extends qvt_brx_reg_backdoor {\n",
    .mem_class_head_tail = "_%s_bkdr extends qvt_brx_mem_backdoor {\n",
    .shared_reg_class_head = "class %s extends qvt_brx_reg_backdoor {\n",
    .shared_mem_class_head = "class %s extends qvt_brx_mem_backdoor {\n",
    .member_decl = "\tinteger %s;\n",
    .ctor_head = "\n\ttask new(",
    .ctor_arg = "integer %s",
    .ctor_arg_sep = ", ",
    .ctor_args_end = ") {\n",
    .ctor_assign = "\t\tthis.%s = %s;\n",
    .ctor_tail = "\t}\n\n",
    .class_tail = "}\n\n\n",

    .reg_task_head =
        {"\tvirtual function qvt_rw::status_e read_t(var bit [QVT_BRX_DATA_WIDTH-1:0] data, \n"
         "                    integer data_id, integer scenario_id, integer stream_id) {\n",
         "\tvirtual function qvt_rw::status_e write_t(bit [QVT_BRX_DATA_WIDTH-1:0] data,\n"
         "\t\t\t\t\tinteger data_id, integer scenario_id, integer stream_id) {\n"},
    .mem_task_head =
        {"\tvirtual function qvt_rw::status_e read_t(bit [QVT_BRX_ADDR_WIDTH-1:0] offset, \n"
         "\t\t\t\t\tvar bit [QVT_BRX_DATA_WIDTH-1:0] data, integer data_id,\n"
         "\t\t\t\t\tinteger scenario_id, integer stream_id) {\n",
         "\tvirtual function qvt_rw::status_e write_t(bit [QVT_BRX_ADDR_WIDTH-1:0] offset,\n"
         "\t\t\t\t\tbit [QVT_BRX_DATA_WIDTH-1:0] data, integer data_id, \n"
         "\t\t\t\t\tinteger scenario_id, integer stream_id) {\n"},
    .task_body_open = "\t\tbit status = 0;\n\t\t",
    .task_ok_tail = {"", ""}, // the method ends with its call, ahead of the task
    .task_error = "\t\twrite_t = qvt_rw::ERROR;\n\t}\n",
    .emit_tasks_head = emit_hx_backdoor_tasks_head,
    .emit_task_body = emit_hx_backdoor_task,

    .inst_foreach_head = "foreach (this",
    .inst_foreach_tail = ".%s, i%d) {\n",
    .inst_begin = "{\n",
    .inst_end = "}\n",
};

void emit_hx_backdoor_file_head() {
    const std::string hxh = side_file_name(".hxh");
    brx_bkdrs_hxh_fp = open_side_file(hxh);
    brx_bkdrs_v_fp = open_side_file(side_file_name(".v"));
    verilog_module_name = std::string("qvt_brx_bkdrs_") + brix_top;
    // The model includes the task declarations and needs the data width for their arguments.
    brix_emit("#ifndef BRX_%s\n#define BRX_%s\n\n#ifndef MARSDALE_HXC\n#include "
              "\"qvt_brx.hxh\"\n#endif\n\n#include \"%s\"\n\n#ifndef QVT_BRX_DATA_WIDTH\n#define "
              "QVT_BRX_DATA_WIDTH 64\n#endif\n\n#ifndef QVT_BRX_ADDR_WIDTH\n#define "
              "QVT_BRX_ADDR_WIDTH 64\n#endif\n\n",
              uc_top, uc_top, hxh);
    brix_emit_to(brx_bkdrs_hxh_fp,
                 "////\n//\n// This file is auto-generated by 'brixgen'\n//\n// Description: It "
                 "contains 'hdl_task' declarations for all external HDL (Verilog)\n//          "
                 "    tasks implementing BRX register/memory/field backdoor access.\n//\n////\n\n"
                 "#ifndef BRX_BKDRS_%s\n#define BRX_BKDRS_%s\n\n#ifndef QVT_BRX_DATA_WIDTH\n"
                 "#define QVT_BRX_DATA_WIDTH 64\n#endif\n\n#ifndef QVT_BRX_ADDR_WIDTH\n#define "
                 "QVT_BRX_ADDR_WIDTH 64\n#endif\n",
                 uc_top, uc_top);
    // The module stays open: each object's tasks are added as the walk meets it.
    brix_emit_to(brx_bkdrs_v_fp,
                 "////\n//\n// This file is auto-generated by 'brixgen'\n//\n// Description: It "
                 "contains HDL (Verilog) tasks implementing backdoor \n//              access to "
                 "all BRX registers/memories/fields.\n//\n////\n\n`ifndef QVT_BRX_DATA_WIDTH\n"
                 "`define QVT_BRX_DATA_WIDTH 64\n`endif\n\n`ifndef QVT_BRX_ADDR_WIDTH\n`define "
                 "QVT_BRX_ADDR_WIDTH 64\n`endif\n\nmodule %s;",
                 verilog_module_name);
}

void emit_hx_backdoor_file_tail() {
    brix_emit_to(brx_bkdrs_v_fp, "\nendmodule\n");
    brix_emit_to(brx_bkdrs_hxh_fp, "\n\n#endif\n");
    brix_close_output(brx_bkdrs_v_fp);
    brix_close_output(brx_bkdrs_hxh_fp);
    verilog_module_name.clear();
}
