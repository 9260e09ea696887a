#pragma once
void check_semantics(const char* top);
