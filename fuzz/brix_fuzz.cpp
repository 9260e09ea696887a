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

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <tcl.h>
#include <unistd.h>
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

// Powers of big numbers compute for as long as they like, inside one command where no
// limit looks; such inputs are skipped.
bool uses_unbounded_power(const std::string& text) {
    return text.find("**") != std::string::npos;
}

// What a script may do under the fuzzer: everything Tcl has, within bounds. The interpreter
// stops a script after so many commands or so much time; commands that act outside the
// working folder, wait, or start another interpreter (which the limits would not bound)
// are hidden, so that a script calling them gets Tcl's error for an unknown command.
constexpr int command_limit = 200000;
constexpr long time_limit_seconds = 2;
const char* const hidden_commands[] = {"exec",    "socket", "cd",    "exit",   "load",
                                       "interp",  "after",  "vwait", "update", "glob",
                                       "package", "chan",   "fcopy", "gets",   "read"};

// `open` and `file` on names in the working folder only: no absolute path, no way up, no
// pipe, no home folder. Tcl's own command, renamed out of the way, does the work.
int confined_file_command(ClientData real_name, Tcl_Interp* interp, int objc,
                          Tcl_Obj* const objv[]) {
    std::vector<Tcl_Obj*> words(objv, objv + objc);
    for (int i = 1; i < objc; ++i) {
        const std::string word = Tcl_GetString(objv[i]);
        if (word.starts_with('/') || word.starts_with('|') || word.starts_with('~') ||
            word.find("..") != std::string::npos) {
            Tcl_SetObjResult(interp, Tcl_NewStringObj("path outside the working folder", -1));
            return TCL_ERROR;
        }
    }
    words[0] = Tcl_NewStringObj(static_cast<const char*>(real_name), -1);
    Tcl_IncrRefCount(words[0]);
    const int status = Tcl_EvalObjv(interp, objc, words.data(), 0);
    Tcl_DecrRefCount(words[0]);
    return status;
}

void bound_the_interpreter(Tcl_Interp* interp) {
    for (const char* name : hidden_commands) {
        Tcl_HideCommand(interp, name, name);
    }
    static const char* const confined[][2] = {{"open", "::__brix_fuzz_real_open"},
                                              {"file", "::__brix_fuzz_real_file"}};
    for (const auto& [name, real_name] : confined) {
        const std::string rename = std::string("rename ::") + name + " " + real_name;
        Tcl_Eval(interp, rename.c_str());
        Tcl_CreateObjCommand(interp, name, confined_file_command, const_cast<char*>(real_name),
                             nullptr);
    }
    Tcl_LimitSetCommands(interp, command_limit);
    Tcl_Time until;
    Tcl_GetTime(&until);
    until.sec += time_limit_seconds;
    Tcl_LimitSetTime(interp, &until);
    Tcl_LimitTypeSet(interp, TCL_LIMIT_COMMANDS | TCL_LIMIT_TIME);
}

// Tcl panics when memory runs out (the sanitizer's allocator returns null above its
// limit): the script asked for too much, which is not a finding. Any other panic is.
void quiet_panic(const char* format, ...) {
    if (strncmp(format, "unable to", 9) == 0 || strncmp(format, "max ", 4) == 0) {
        _exit(0);
    }
    va_list args;
    va_start(args, format);
    vfprintf(stderr, format, args);
    va_end(args);
    fputc('\n', stderr);
    abort();
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
    if (uses_unbounded_power(text)) {
        return 0;
    }
    brix_tcl_setup_hook = bound_the_interpreter;
    Tcl_SetPanicProc(quiet_panic);
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
