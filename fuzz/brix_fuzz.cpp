// Fuzzing entry points, one process per input as a fork-server fuzzer runs them.
//
//   brix_fuzz whole FILE   the whole program on a description (-b -c baf)
//   brix_fuzz parse FILE   the scanner and grammar alone on a pure description
//   brix_fuzz gen   FILE   a pure description that parses, through the checks and generators
//   brix_fuzz expand FILE PURE   writes the pure description of FILE (for seed corpora)
//
// The language (sv or hx) follows the parity of the input's length, so that one corpus
// exercises both. Outputs are written into the working directory.
#include "driver/diag.hpp"
#include "driver/driver.hpp"
#include "driver/room.hpp"
#include "expand/expand.hpp"
#include "gen_hx/gen_hx.hpp"
#include "gen_plan/gen_plan.hpp"
#include "gen_sv/gen_sv.hpp"
#include "parser/model.hpp"
#include "parser/parser.hpp"
#include "semantic/semantic.hpp"

#include <cstdio>
#include <cstring>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::string read_file(const char* path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Tcl words that reach outside the process, wait, loop without bound or allocate without
// bound. A script that uses them is the user's program misbehaving, not ours, so such
// inputs are skipped instead of being reported as hangs or crashes.
bool uses_unbounded_tcl(const std::string& text) {
    static const std::regex words(
        R"(\b(exec|open|file|socket|cd|pwd|glob|load|interp|package|exit|after|vwait|update|gets|read|while|for|foreach|lmap|repeat|lrepeat|time|source|format|binary|zlib|chan|fconfigure|fcopy|rename|trace|coroutine|yield|tailcall|apply|uplevel|upvar|namespace|info)\b)");
    // Powers of big numbers compute for as long as they like.
    return std::regex_search(text, words) || text.find("**") != std::string::npos;
}

// The first block or system that the text names, as the top of the run.
std::string guess_top(const std::string& text) {
    static const std::regex decl(R"(\b(block|system)\s+([A-Za-z_][A-Za-z0-9_]*))");
    std::smatch m;
    return std::regex_search(text, m, decl) ? m[2].str() : std::string("top");
}

const char* language_for(const std::string& text) {
    return text.size() % 2 == 0 ? "sv" : "hx";
}

int run_whole(const char* path, const std::string& text) {
    if (uses_unbounded_tcl(text)) {
        return 0;
    }
    std::string top = guess_top(text);
    std::vector<std::string> words = {"brixgen", "-l", language_for(text), "-t", top, "-b", "-c",
                                      "baf",     path};
    std::vector<char*> argv;
    for (std::string& w : words) {
        argv.push_back(w.data());
    }
    argv.push_back(nullptr);
    return brix_run_with_room(brix_main, static_cast<int>(words.size()), argv.data());
}

// The last system type, else the last block type: a top the description can have.
const char* pick_parsed_top() {
    const char* top = nullptr;
    for (const brix_block_type_tag* b = all_block_types; b != nullptr; b = b->next) {
        top = b->name;
    }
    for (const brix_system_type_tag* s = all_system_types; s != nullptr; s = s->next) {
        top = s->name;
    }
    return top;
}

int run_parse(const char* path, const std::string& text, bool generate) {
    FILE* in = fopen(path, "r");
    if (in == nullptr) {
        return 1;
    }
    yyin = in;
    initialize();
    yyparse();
    if (!generate) {
        return 0;
    }
    const char* top = pick_parsed_top();
    if (top == nullptr) {
        return 0;
    }
    static char lang[3];
    strcpy(lang, language_for(text));
    target_language = lang;
    brix_gen_backdoor = 1;
    brix_cvr_reg_bits = brix_cvr_addr_map = brix_cvr_field_vals = 1;
    check_semantics(top);
    if (strcmp(lang, "sv") == 0) {
        emit_sv_brx_model(top);
    } else {
        emit_hx_brx_model(top);
    }
    emit_kpl_qvtp_model(top);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    std::string mode = argc > 1 ? argv[1] : "";
    if (mode == "expand" && argc == 4) {
        expand_tcl_constructs(argv[2], argv[3]);
        return 0;
    }
    if (argc != 3) {
        fprintf(stderr, "usage: brix_fuzz whole|parse|gen FILE | expand FILE PURE\n");
        return 2;
    }
    std::string text = read_file(argv[2]);
    if (mode == "whole") {
        return run_whole(argv[2], text);
    }
    if (mode == "parse" || mode == "gen") {
        return run_parse(argv[2], text, mode == "gen");
    }
    fprintf(stderr, "brix_fuzz: unknown target '%s'\n", argv[1]);
    return 2;
}
