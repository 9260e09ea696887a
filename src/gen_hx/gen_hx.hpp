#pragma once
void emit_hx_brx_model(const char* top);
