// Helpers for tests that feed pure description text straight to the scanner and parser.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include "child_process.hpp"
#include "driver/diag.hpp"
#include "driver/driver.hpp"
#include "parser/parse_state.hpp"
#include "parser/parser.hpp"
#include "parser/scope.hpp"

namespace brix_test {

// Parses `text` with a fresh model and parser state.
inline void parse_pure(const char* text) {
    initialize();
    brix_src_file_name[0] = '\0';
    brix_src_file_linenum = 0;
    brix_scanner_use_string(text);
    yyparse();
}

inline child_result parse_in_child(const std::string& text) {
    return run_in_child([&] { parse_pure(text.c_str()); });
}

// The stderr of a diagnostic through brix_yyerror or brix_yywarn at a place.
inline std::string at(const std::string& message, const char* file, int line) {
    return message + " (BRIX File: " + file + " Line: " + std::to_string(line) + ")\n";
}

// Parses one line of pure text standing at line 7 of t.brix, in a child.
inline child_result parse_at_line_7(const std::string& description) {
    return parse_in_child("BRIX_HASHLINE 7 t.brix\n" + description + "\n");
}

struct error_case {
    const char* description; // one line of pure text, standing at line 7 of t.brix
    const char* message;     // what stands before the place
};

// Runs each case in a child and compares the whole of stderr and the status.
inline void expect_errors(std::initializer_list<error_case> cases) {
    for (const error_case& c : cases) {
        const child_result r = parse_at_line_7(c.description);
        EXPECT_EQ(r.status, 1) << c.description;
        EXPECT_EQ(r.err, at(c.message, "t.brix", 7)) << c.description;
    }
}

// Restores the option flags that the parser reads.
struct option_guard {
    int backdoor = brix_gen_backdoor;
    int quiet = brix_quiet_mode;
    char* language = target_language;
    ~option_guard() {
        brix_gen_backdoor = backdoor;
        brix_quiet_mode = quiet;
        target_language = language;
    }
};

} // namespace brix_test
