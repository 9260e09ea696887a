#pragma once
void emit_kpl_qvtp_model(const char* top);
