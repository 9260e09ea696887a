// The parser stage: the scanner's input, the symbol tables and the grammar.
#pragma once

#include <cstdio>

extern FILE* yyin;
void initialize();
int yyparse();
int yylex();

// Points the scanner at a new input, in its first start condition.
void brix_scanner_restart(FILE* input);
void brix_scanner_use_string(const char* text);
