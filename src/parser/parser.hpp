// The parser stage: the scanner's input, the symbol tables and the grammar.
#pragma once

#include <cstdio>

extern FILE* yyin;
void initialize();
int yyparse();
