#include "gen_c/gen_c.hpp"
void emit_brx_c_ifc_for_sv_model(const char* /*top*/, const char* /*top_domain*/) {}
void emit_brx_c_ifc_for_hx_model(const char* /*top*/, const char* /*top_domain*/) {}
void emit_c_brx_model(const char* /*top*/, const char* /*top_domain*/) {}
