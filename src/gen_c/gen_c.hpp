// C interface generation: a header of macros through which C code reaches a block or
// system, either as plain memory (the pure C model) or by name through a SystemVerilog or
// HX model. Complete behind entries that no command line reaches.
#pragma once

// The pure C model.
void emit_c_brx_model(const char* top, const char* top_domain);
// Both forms of every macro, for C code that runs against a SystemVerilog or an HX model.
void emit_brx_c_ifc_for_sv_model(const char* top, const char* top_domain);
void emit_brx_c_ifc_for_hx_model(const char* top, const char* top_domain);
