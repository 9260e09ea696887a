#include "gen_hx/gen_hx.hpp"
void emit_hx_brx_model(const char* /*top*/) {}
