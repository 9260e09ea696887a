#pragma once
void emit_sv_brx_model(const char* top);
