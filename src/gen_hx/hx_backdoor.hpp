// The HX backdoor. HX cannot name objects of the design, so a backdoor class calls an
// `hdl_task` declared in brx_bkdrs_<top>.hxh, which stands for a Verilog task of the module
// in brx_bkdrs_<top>.v; that task holds the access statements that the SystemVerilog class
// would hold. The three files grow side by side, written by the shared backdoor walk.
#pragma once

#include <cstdio>
#include <string>

struct brix_bkdr_templates;

// The side files of -b, named after the top whatever -o says.
extern FILE* brx_bkdrs_hxh_fp; // hdl_task declarations
extern FILE* brx_bkdrs_v_fp;   // the Verilog module of tasks
// The module of tasks: "qvt_brx_bkdrs_<top>".
extern std::string verilog_module_name;

extern const brix_bkdr_templates hx_bkdr_templates;

// Opens the side files and writes their heads and the model's head.
void emit_hx_backdoor_file_head();
// Writes the ends of the side files and closes them.
void emit_hx_backdoor_file_tail();
