// Source line tracking: the file and line of the description command being run, for the
// hash line in front of its output, and the definition place of each procedure.
//
// Tcl 8.6 numbers the lines of `info frame` relative to the script that holds the
// command: a body that a description command passes to Tcl_Eval is a script of its own
// (a "type eval" frame whose line 1 is the line of the opening brace), a procedure body is
// one too ("type proc"), while the bodies of loops, `if`, `catch` and the like, when they
// are literal words, count within the script around them. So the innermost frame alone,
// together with the script it belongs to, names the place. Each script this stage
// evaluates (a file, or a body) has its anchor on a stack, pushed and popped around its
// evaluation; a command in a procedure body is placed from the procedure's definition.
// This reads one small frame per command instead of walking outer frames, whose command
// texts hold whole bodies and would make big descriptions quadratic.
#include "expand/expand.hpp"

#include "driver/diag.hpp"

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <string_view>
#include <tclInt.h>
#include <vector>

namespace {

// Anchors of the scripts under evaluation, innermost last. A deque keeps the file names
// in place while scripts nest deeper.
std::deque<lineno_cache_entry> lineno_cache;

// Results of the frame parser.
int tmp_brix_cmd_frame_linenum = 0;
char* tmp_brix_proc_filename = nullptr;
int tmp_brix_proc_linenum = 0;

[[noreturn]] void position_failed() {
    brix_error("Fatal Internal Error: get_current_brix_file_line_num() failed...\n");
}

} // namespace

void brix_push_line_anchor(lineno_cache_entry entry) {
    lineno_cache.push_back(std::move(entry));
}
void brix_pop_line_anchor() {
    lineno_cache.pop_back();
}
void brix_clear_line_cache() {
    lineno_cache.clear();
}

namespace {

// Places the command of one frame from what `info frame` tells of it: whether its type is
// "proc", its line (0 when it names none), its command text and its procedure, if any.
void place_frame(bool proc_type, int frame_line, std::string_view cmd, const char* proc) {
    // The command's name, also when it is called by its qualified name.
    if (cmd.substr(0, 2) == "::") {
        cmd.remove_prefix(2);
    }
    const std::string name(cmd.substr(0, cmd.find_first_of(" \t")));

    free(tmp_brix_proc_filename);
    tmp_brix_proc_filename = nullptr;
    tmp_brix_proc_linenum = 0;

    if (!proc_type || proc == nullptr) {
        if (name == "source") {
            tmp_brix_cmd_frame_linenum = -1;
        } else if (get_str2int_map_value(all_purebrix_cmds, name.c_str()) != 0) {
            tmp_brix_cmd_frame_linenum = frame_line;
        } else {
            tmp_brix_cmd_frame_linenum = 0;
        }
        return;
    }
    // Procedures are known by the name they were defined with, less the leading "::".
    const char* key = strlen(proc) >= 2 ? proc + 2 : proc;
    const char* place = get_str2str_map_value(all_procs_location_info, key);
    if (place == nullptr) {
        brix_error("Error: invalid command name \"%s\"\n", key);
    }
    // "<file> <line>"; the line follows the last blank.
    const char* blank = strrchr(place, ' ');
    tmp_brix_proc_filename = strndup(place, static_cast<std::size_t>(blank - place));
    tmp_brix_proc_linenum = atoi(blank + 1);
    tmp_brix_cmd_frame_linenum = frame_line;
}

} // namespace

// Receives the key-value words of one `info frame` answer. 8.6 orders the keys by frame
// type ("file" comes before "cmd" in a source frame), so they are read by key.
int brix_parse_info_frame_level_info(ClientData, Tcl_Interp*, int argc, const char** argv) {
    const char* type = "";
    const char* line = "0";
    const char* cmd = "";
    const char* proc = nullptr;
    for (int i = 1; i + 1 < argc; i += 2) {
        const char* key = argv[i];
        const char* value = argv[i + 1];
        if (strcmp(key, "type") == 0) {
            type = value;
        } else if (strcmp(key, "line") == 0) {
            line = value;
        } else if (strcmp(key, "cmd") == 0) {
            cmd = value;
        } else if (strcmp(key, "proc") == 0) {
            proc = value;
        }
    }
    place_frame(strcmp(type, "proc") == 0, atoi(line), cmd, proc);
    return TCL_OK;
}

namespace {
// Hands the words of the `info frame` answer in the interpreter's result to the frame
// parser. They are the words that evaluating "__brix_parse_info_frame_level_info__ <answer>"
// would pass it, since a list's text reads back as the same words.
int parse_frame_answer() {
    Tcl_Obj* answer = Tcl_GetObjResult(brixgen_interp);
    Tcl_IncrRefCount(answer);
    int count = 0;
    Tcl_Obj** elements = nullptr;
    int status = Tcl_ListObjGetElements(brixgen_interp, answer, &count, &elements);
    if (status == TCL_OK) {
        std::vector<const char*> words;
        words.reserve(static_cast<std::size_t>(count) + 1);
        words.push_back("__brix_parse_info_frame_level_info__");
        for (int i = 0; i < count; ++i) {
            words.push_back(Tcl_GetString(elements[i]));
        }
        status = brix_parse_info_frame_level_info(nullptr, brixgen_interp,
                                                  static_cast<int>(words.size()), words.data());
    }
    Tcl_DecrRefCount(answer);
    return status;
}
} // namespace

namespace {
// Tcl's own `frame` of `info`, while `info` is still Tcl's own; else null.
const Tcl_CmdInfo* own_info_frame() {
    static Tcl_Obj* const info = brix_cached_obj("info");
    static Tcl_Command tcl_info = nullptr;
    static Tcl_CmdInfo tcl_frame{};
    if (tcl_info == nullptr) {
        tcl_info = Tcl_FindCommand(brixgen_interp, "::info", nullptr, TCL_GLOBAL_ONLY);
        Tcl_GetCommandInfo(brixgen_interp, "::tcl::info::frame", &tcl_frame);
    }
    if (tcl_frame.objProc == nullptr || Tcl_GetCommandFromObj(brixgen_interp, info) != tcl_info) {
        return nullptr;
    }
    return &tcl_frame;
}
} // namespace

// Asks "info frame -1" from the command being run, for the frame of that command. When
// `info` is still Tcl's own, its `frame` is called straight, with level 0, which names the
// same frame there: the evaluation of the script would push a frame of its own.
int query_frame() {
    static Tcl_Obj* const query = brix_cached_obj("info frame -1");
    static Tcl_Obj* const frame_args[] = {brix_cached_obj("frame"), brix_cached_obj("0")};
    if (const Tcl_CmdInfo* frame = own_info_frame()) {
        return frame->objProc(frame->objClientData, brixgen_interp, 2, frame_args);
    }
    return Tcl_EvalObjEx(brixgen_interp, query, 0);
}

namespace {
// The text `info frame` gives as a frame's "cmd".
std::string_view frame_command(const CmdFrame& frame) {
    if (frame.cmdObj != nullptr) {
        return Tcl_GetString(frame.cmdObj);
    }
    if (frame.cmd != nullptr) {
        return {frame.cmd, static_cast<std::size_t>(frame.len)};
    }
    return {};
}

// Places the command being run from its frame, read where `info frame 0` reads it and as
// it reads it, without building the answer, whose objects would cost more than all the
// rest. False, where that reading is not this one (a coroutine stitches frames together,
// a frame of another kind), for the query to be asked.
bool place_frame_directly() {
    static Tcl_Obj* const proc_name = brix_cached_obj("");
    if (own_info_frame() == nullptr) {
        return false;
    }
    const auto* interp = reinterpret_cast<Interp*>(brixgen_interp);
    const CmdFrame* frame = interp->cmdFramePtr;
    if (interp->execEnvPtr->corPtr != nullptr || frame == nullptr || frame->level < 1) {
        return false;
    }
    CmdFrame where = *frame;
    int line = 0;
    std::string_view cmd;
    switch (frame->type) {
    case TCL_LOCATION_EVAL:
        line = frame->line != nullptr ? frame->line[0] : 1;
        cmd = frame_command(where);
        break;
    case TCL_LOCATION_SOURCE:
        if (frame->line == nullptr) {
            return false;
        }
        line = frame->line[0];
        cmd = frame_command(where);
        break;
    case TCL_LOCATION_PREBC:
        break;
    case TCL_LOCATION_BC:
        TclGetSrcInfoForPc(&where);
        if (where.type == TCL_LOCATION_SOURCE) {
            Tcl_DecrRefCount(where.data.eval.path);
            line = where.line != nullptr ? where.line[0] : 1;
        } else if (where.line != nullptr) {
            line = where.line[0];
        } else {
            return false;
        }
        cmd = frame_command(where);
        break;
    default:
        return false;
    }
    // The procedure the frame runs in, by its full name, as `info frame` names it.
    // Only a frame of type "proc" is placed from it.
    const bool proc_type = where.type == TCL_LOCATION_PROC;
    const char* proc = nullptr;
    const Proc* proc_ptr = frame->framePtr != nullptr ? frame->framePtr->procPtr : nullptr;
    if (proc_type && proc_ptr != nullptr && proc_ptr->cmdPtr->hPtr != nullptr) {
        Tcl_SetObjLength(proc_name, 0);
        Tcl_GetCommandFullName(brixgen_interp, reinterpret_cast<Tcl_Command>(proc_ptr->cmdPtr),
                               proc_name);
        proc = Tcl_GetString(proc_name);
    }
    place_frame(proc_type, line, cmd, proc);
    return true;
}
} // namespace

int get_current_brix_file_line_num(const char** file_out) {
    if (!place_frame_directly()) {
        if (query_frame() == TCL_ERROR && *Tcl_GetStringResult(brixgen_interp) != '\0') {
            return 1;
        }
        if (parse_frame_answer() == TCL_ERROR && *Tcl_GetStringResult(brixgen_interp) != '\0') {
            return 1;
        }
    }
    Tcl_ResetResult(brixgen_interp);
    const int line = tmp_brix_cmd_frame_linenum;
    if (tmp_brix_proc_filename != nullptr) {
        *file_out = tmp_brix_proc_filename;
        return line + tmp_brix_proc_linenum - 1;
    }
    if (line <= 0 || lineno_cache.empty()) {
        *file_out = reading_brix_file;
        return line < 0 ? 0 : line;
    }
    const lineno_cache_entry& anchor = lineno_cache.back();
    *file_out = anchor.file_name.c_str();
    return line + anchor.file_line - anchor.frame_line;
}

void brix_hashline_text(std::string& text, lineno_cache_entry* where) {
    const char* file = nullptr;
    const int line = get_current_brix_file_line_num(&file);
    if (line < 1 || file == nullptr) {
        position_failed();
    }
    if (where != nullptr) {
        *where = {1, line, file};
    }
    char number[16];
    char* end = std::to_chars(number, number + sizeof number, line).ptr;
    text.assign("BRIX_HASHLINE ");
    text.append(number, end);
    text += ' ';
    text += file;
}

int BRIX_proc(ClientData, Tcl_Interp* interp, int argc, const char** argv) {
    if (argc != 4) {
        brix_error("Wrong # args: should be \"proc name args body\"\n");
    }
    const char* file = nullptr;
    const int line = get_current_brix_file_line_num(&file);
    if (line < 1 || file == nullptr) {
        position_failed();
    }
    const std::string place = std::string(file) + " " + std::to_string(line);
    // A later definition of the same name replaces the place.
    if (get_str2str_map_value(all_procs_location_info, argv[1]) != nullptr) {
        update_str2str_map_entry(all_procs_location_info, argv[1], brix_strdup(place.c_str()));
    } else {
        add_str2str_map_entry(all_procs_location_info, brix_strdup(argv[1]),
                              brix_strdup(place.c_str()));
    }

    // Tcl's `proc` is reached through the text of a command, not word by word: a name with
    // a blank in it becomes two words there.
    std::string command = "__brix_proc_original__ ";
    command.append(argv[1]).append(" {").append(argv[2]).append("} {").append(argv[3]);
    command += '}';
    const int status = Tcl_Eval(interp, command.c_str());
    return status == TCL_ERROR ? brix_check_result(status) : TCL_OK;
}
