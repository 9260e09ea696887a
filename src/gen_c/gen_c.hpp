// C interface generation: complete behind entries that no command line reaches.
#pragma once
void emit_brx_c_ifc_for_sv_model(const char* top, const char* top_domain);
void emit_brx_c_ifc_for_hx_model(const char* top, const char* top_domain);
void emit_c_brx_model(const char* top, const char* top_domain);
