// Source line tracking: the file and line of the description command being run, for the
// hash line in front of its output, and the definition place of each procedure.
//
// Tcl 8.6 numbers the lines of `info frame` relative to the script that holds the
// command: a body that a description command passes to Tcl_Eval is a script of its own
// (a "type eval" frame whose line 1 is the line of the opening brace), a procedure body is
// one too ("type proc"), while the bodies of loops, `if`, `catch` and the like, when they
// are literal words, count within the script around them. Each script this stage
// evaluates (a file, or a body) has its anchor on a stack, pushed and popped around its
// evaluation, with the frame level of the command that evaluates it. A command standing
// straight in the anchored script, or in a procedure body, is placed from its own frame
// alone. Otherwise the frames between it and the anchor are walked outward, adding the
// lines of the description commands and procedure bodies on the way; outer frames, whose
// command texts hold whole bodies, are never read for every command.
#include "expand/expand.hpp"

#include "driver/diag.hpp"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <string_view>
#include <vector>
#if BRIX_TCL_PRIVATE
#include <tclCompile.h>
#include <tclInt.h>
#include <unordered_map>
#endif

bool brix_tcl_internals = BRIX_TCL_PRIVATE != 0;

namespace {

// Anchors of the scripts under evaluation, innermost last. A deque keeps the file names
// in place while scripts nest deeper.
std::deque<lineno_cache_entry> lineno_cache;

[[noreturn]] void position_failed() {
    brix_error("Fatal Internal Error: get_current_brix_file_line_num() failed...\n");
}

// What one frame of `info frame` tells: whether its type is "proc", its line (0 when it
// names none), its command text, and the procedure or lambda it runs in.
struct frame_info {
    bool proc_type = false;
    bool lambda = false;
    int line = 0;
    std::string_view cmd;
    std::string proc; // full name, or empty
    std::string text; // storage of cmd when the answer was parsed
};

// The frame the frame parser read last.
frame_info parsed_frame;

// Drops what was kept about the interpreter's compiled bodies.
void forget_bytecode_frames();

} // namespace

void brix_push_line_anchor(lineno_cache_entry entry) {
    lineno_cache.push_back(std::move(entry));
}
void brix_pop_line_anchor() {
    lineno_cache.pop_back();
}
void brix_clear_line_cache() {
    lineno_cache.clear();
    forget_bytecode_frames();
}

// Receives the key-value words of one `info frame` answer. 8.6 orders the keys by frame
// type ("file" comes before "cmd" in a source frame), so they are read by key.
int brix_parse_info_frame_level_info(ClientData, Tcl_Interp*, int argc, const char** argv) {
    frame_info frame;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string_view key = argv[i];
        const char* value = argv[i + 1];
        if (key == "type") {
            frame.proc_type = strcmp(value, "proc") == 0;
        } else if (key == "line") {
            frame.line = atoi(value);
        } else if (key == "cmd") {
            frame.text = value;
        } else if (key == "proc") {
            frame.proc = value;
        } else if (key == "lambda") {
            frame.lambda = true;
        }
    }
    parsed_frame = std::move(frame);
    parsed_frame.cmd = parsed_frame.text;
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

// Tcl's own `frame` of `info`, while `info` is still Tcl's own; else null.
const Tcl_CmdInfo* own_info_frame() {
    static Tcl_Obj* const info = brix_cached_obj("info");
    static Tcl_Command tcl_info = nullptr;
    static Tcl_CmdInfo tcl_frame{};
    // The last answer, while nothing can have changed it.
    static unsigned epoch = 0;
    static Tcl_Namespace* looked_up_from = nullptr;
    static const Tcl_CmdInfo* found = nullptr;
    if (tcl_info == nullptr) {
        tcl_info = Tcl_FindCommand(brixgen_interp, "::info", nullptr, TCL_GLOBAL_ONLY);
        Tcl_GetCommandInfo(brixgen_interp, "::tcl::info::frame", &tcl_frame);
    }
    Tcl_Namespace* const ns = Tcl_GetCurrentNamespace(brixgen_interp);
    if (epoch != brix_tcl_state_epoch() || ns != looked_up_from) {
        found =
            tcl_frame.objProc != nullptr && Tcl_GetCommandFromObj(brixgen_interp, info) == tcl_info
                ? &tcl_frame
                : nullptr;
        epoch = brix_tcl_state_epoch();
        looked_up_from = ns;
    }
    return found;
}

bool query_failed(int status) {
    return status == TCL_ERROR && *Tcl_GetStringResult(brixgen_interp) != '\0';
}

// The level of the command being run, as `info frame` counts; -1 when the query fails.
int queried_depth() {
    static Tcl_Obj* const query = brix_cached_obj("info frame");
    if (query_failed(Tcl_EvalObjEx(brixgen_interp, query, 0))) {
        return -1;
    }
    // The evaluation of the query is a frame of its own.
    int depth = 0;
    Tcl_GetIntFromObj(nullptr, Tcl_GetObjResult(brixgen_interp), &depth);
    return depth - 1;
}

// Reads the frame `out` levels outside the command being run, by asking `info frame`.
// When `info` is still Tcl's own, its `frame` is called straight, which counts from the
// command's own frame; an evaluated query would push a frame of its own.
bool query_frame(int out) {
    static Tcl_Obj* const frame_word = brix_cached_obj("frame");
    if (const Tcl_CmdInfo* frame = own_info_frame()) {
        Tcl_Obj* level = Tcl_NewIntObj(-out);
        Tcl_IncrRefCount(level);
        Tcl_Obj* const args[] = {frame_word, level};
        const int status = frame->objProc(frame->objClientData, brixgen_interp, 2, args);
        Tcl_DecrRefCount(level);
        if (query_failed(status)) {
            return false;
        }
    } else {
        const std::string query = "info frame -" + std::to_string(out + 1);
        if (query_failed(Tcl_Eval(brixgen_interp, query.c_str()))) {
            return false;
        }
    }
    return !query_failed(parse_frame_answer());
}

int fold_line(int sum, int line) {
    if (line <= 0) {
        return sum;
    }
    return sum == 0 ? line : sum + line - 1;
}

// Where a walk over the frames has got to.
struct frame_walk {
    const lineno_cache_entry* anchor; // null outside any script
    int sum = 0;
    // Within a procedure body, below a frame of it that names no procedure (`namespace
    // eval`): its lines already count within that body.
    bool in_body = false;
    // The last frame added ran a lambda body, which counts from the `apply` around it.
    bool after_lambda = false;
    const char* file = nullptr;
    bool done = false;
    int depth = 0;        // the level of the command's own frame
    bool queried = false; // read through `info frame` queries
};

// Places the procedure body a frame of type "proc" runs in from the procedure's definition.
void place_in_procedure(frame_walk& walk, const std::string& proc) {
    // Procedures are known by the name they were defined with, less the leading "::".
    const char* key = proc.size() >= 2 ? proc.c_str() + 2 : proc.c_str();
    const char* place = get_str2str_map_value(all_procs_location_info, key);
    if (place == nullptr) {
        brix_error("Error: invalid command name \"%s\"\n", key);
    }
    // "<file> <line>"; the line follows the last blank.
    const char* blank = strrchr(place, ' ');
    static std::string file;
    file.assign(place, static_cast<std::size_t>(blank - place));
    walk.sum += atoi(blank + 1) - 1;
    walk.file = file.c_str();
    walk.done = true;
}

// Takes one frame, going outward: the command's own frame first.
void step(frame_walk& walk, const frame_info& frame) {
    // Up to the first blank or tab; find_first_of would search the two for every letter.
    const auto stop = std::find_if(frame.cmd.begin(), frame.cmd.end(),
                                   [](char c) { return c == ' ' || c == '\t'; });
    const std::string_view name(frame.cmd.data(), std::size_t(stop - frame.cmd.begin()));
    if (frame.proc_type && !frame.proc.empty()) {
        if (!walk.in_body) {
            walk.sum = fold_line(walk.sum, frame.line);
        }
        place_in_procedure(walk, frame.proc);
        return;
    }
    if (walk.in_body) {
        // A lambda body's frame ends the run of frames within it.
        walk.in_body = !frame.lambda;
        return;
    }
    if (frame.proc_type && !frame.lambda) {
        walk.sum = fold_line(walk.sum, frame.line);
        walk.in_body = true;
        return;
    }
    if (name == "source") {
        walk.done = true;
        return;
    }
    const bool adds = walk.after_lambda || brix_placed_like_declaration(name);
    walk.after_lambda = adds && frame.lambda;
    if (adds) {
        walk.sum = fold_line(walk.sum, frame.line);
    }
}

// The place the walk ends at: the anchored script, or a procedure's definition.
int finish(frame_walk& walk, const char** file_out) {
    // Reading the frames in place leaves the result alone; the queries' answers go.
    if (walk.queried) {
        Tcl_ResetResult(brixgen_interp);
    }
    if (walk.file == nullptr) {
        if (walk.anchor == nullptr) {
            walk.file = reading_brix_file;
        } else {
            walk.sum = fold_line(walk.sum, walk.anchor->file_line);
            walk.file = walk.anchor->file_name.c_str();
        }
    }
    *file_out = walk.file;
    return walk.sum;
}

// The level below which the anchored script's commands stand.
int anchor_level() {
    return lineno_cache.empty() ? 0 : lineno_cache.back().level;
}

// The walk on the answers of `info frame`; false when a query fails.
bool walk_queried(frame_walk& walk) {
    walk.queried = true;
    walk.depth = queried_depth();
    if (walk.depth < 0) {
        return false;
    }
    for (int out = 0; !walk.done && walk.depth - out > anchor_level(); ++out) {
        if (!query_frame(out)) {
            return false;
        }
        step(walk, parsed_frame);
    }
    return true;
}

#if BRIX_TCL_PRIVATE
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

// Tcl finds the command that a bytecode frame stands at, and its line, by walking the
// body's tables from their start: in a body of n commands that is n steps for each, n²
// for all. Here each body's tables are read once, and kept while the body is the same.
class bytecode_places {
  public:
    // Sets the frame's command, line and type, as TclGetSrcInfoForPc does; false where
    // these tables cannot tell, for Tcl to do it.
    bool locate(CmdFrame& frame) {
        const auto* code = static_cast<const ByteCode*>(frame.data.tebc.codePtr);
        if (bodies_.size() >= most) {
            bodies_.clear();
        }
        const unsigned epoch = brix_tcl_state_epoch();
        decoded& body = bodies_[code];
        if (!body.describes(code, epoch)) {
            body = decode(code);
            body.checked = epoch;
        }
        const char* cmd = frame.cmd;
        int length = frame.len;
        if (cmd == nullptr && !body.command_at(code, frame.data.tebc.pc, cmd, length)) {
            return false;
        }
        const int src_offset = static_cast<int>(cmd - code->source);
        const auto* interp = reinterpret_cast<Interp*>(brixgen_interp);
        Tcl_HashEntry* entry =
            Tcl_FindHashEntry(interp->lineBCPtr, reinterpret_cast<const char*>(code));
        const ECL* loc = nullptr;
        const ExtCmdLoc* ecl = nullptr;
        if (entry != nullptr) {
            ecl = static_cast<const ExtCmdLoc*>(Tcl_GetHashValue(entry));
            loc = body.loc_at(ecl, src_offset, epoch);
            if (loc == nullptr) {
                return false;
            }
        }
        frame.cmd = cmd;
        frame.len = length;
        if (loc != nullptr) {
            frame.line = loc->line;
            frame.nline = loc->nline;
            frame.type = ecl->type;
            if (ecl->type == TCL_LOCATION_SOURCE) {
                frame.data.eval.path = ecl->path;
                Tcl_IncrRefCount(frame.data.eval.path);
            }
        }
        return true;
    }

  private:
    struct span {
        int code_offset;
        int code_end; // last byte
        int src_offset;
        int src_length;
    };
    struct decoded {
        // What tells this body from a later one at the same address.
        const char* source = nullptr;
        const unsigned char* code_start = nullptr;
        const Namespace* ns = nullptr;
        int sizes[6] = {};
        // A body freed and another of the same shape compiled at its address differ only
        // here; that can only happen once Tcl has run other commands, so the encoded
        // tables are compared again once per epoch.
        std::vector<unsigned char> table;
        unsigned checked = 0;
        std::vector<span> commands; // by code offset, as Tcl keeps them
        // The word locations: (source offset, entry) by offset, the first entry first.
        const ExtCmdLoc* ecl = nullptr;
        int used = -1;
        unsigned ecl_checked = 0;
        std::vector<std::pair<int, int>> loc_of;

        bool describes(const ByteCode* code, unsigned epoch) {
            const int now[6] = {code->numSrcBytes,  code->numCodeBytes, code->numCommands,
                                code->compileEpoch, code->nsEpoch,      code->numCmdLocBytes};
            if (source != code->source || code_start != code->codeStart || ns != code->nsPtr ||
                !std::equal(std::begin(now), std::end(now), sizes)) {
                return false;
            }
            if (checked != epoch) {
                if (!std::equal(table.begin(), table.end(), code->codeDeltaStart)) {
                    return false;
                }
                checked = epoch;
            }
            return true;
        }
        // The innermost command whose code holds pc: of those, the one starting last.
        bool command_at(const ByteCode* code, const char* pc, const char*& cmd, int& length) const {
            const int offset =
                static_cast<int>(reinterpret_cast<const unsigned char*>(pc) - code->codeStart);
            auto it = std::upper_bound(
                commands.begin(), commands.end(), offset,
                [](int at, const span& command) { return at < command.code_offset; });
            while (it != commands.begin()) {
                --it;
                if (offset <= it->code_end) {
                    cmd = code->source + it->src_offset;
                    length = it->src_length;
                    return true;
                }
            }
            return false;
        }
        bool same_offsets(const ExtCmdLoc* table) const {
            return std::all_of(loc_of.begin(), loc_of.end(), [table](const auto& entry) {
                return table->loc[entry.second].srcOffset == entry.first;
            });
        }
        const ECL* loc_at(const ExtCmdLoc* table, int src_offset, unsigned epoch) {
            if (table != ecl || table->nuloc != used ||
                (ecl_checked != epoch && !same_offsets(table))) {
                ecl = table;
                used = table->nuloc;
                loc_of.clear();
                loc_of.reserve(static_cast<std::size_t>(table->nuloc));
                for (int i = 0; i < table->nuloc; ++i) {
                    loc_of.emplace_back(table->loc[i].srcOffset, i);
                }
                std::sort(loc_of.begin(), loc_of.end());
            }
            ecl_checked = epoch;
            const auto found =
                std::lower_bound(loc_of.begin(), loc_of.end(), std::pair{src_offset, 0});
            return found == loc_of.end() || found->first != src_offset ? nullptr
                                                                       : &table->loc[found->second];
        }
    };

    // One entry of the command tables: a byte, or 0xFF and four bytes, big end first.
    static int next_number(const unsigned char*& p) {
        if (*p != 0xFF) {
            return static_cast<signed char>(*p++);
        }
        const int value = static_cast<int>((unsigned(p[1]) << 24) | (unsigned(p[2]) << 16) |
                                           (unsigned(p[3]) << 8) | unsigned(p[4]));
        p += 5;
        return value;
    }
    static decoded decode(const ByteCode* code) {
        decoded body;
        body.source = code->source;
        body.code_start = code->codeStart;
        body.ns = code->nsPtr;
        const int sizes[6] = {code->numSrcBytes,  code->numCodeBytes, code->numCommands,
                              code->compileEpoch, code->nsEpoch,      code->numCmdLocBytes};
        std::copy(std::begin(sizes), std::end(sizes), body.sizes);
        body.table.assign(code->codeDeltaStart, code->codeDeltaStart + code->numCmdLocBytes);
        body.commands.reserve(static_cast<std::size_t>(code->numCommands));
        const unsigned char* code_delta = code->codeDeltaStart;
        const unsigned char* code_length = code->codeLengthStart;
        const unsigned char* src_delta = code->srcDeltaStart;
        const unsigned char* src_length = code->srcLengthStart;
        int code_offset = 0;
        int src_offset = 0;
        for (int i = 0; i < code->numCommands; ++i) {
            code_offset += next_number(code_delta);
            const int code_end = code_offset + next_number(code_length) - 1;
            src_offset += next_number(src_delta);
            body.commands.push_back({code_offset, code_end, src_offset, next_number(src_length)});
        }
        return body;
    }

    static constexpr std::size_t most = 4096;
    std::unordered_map<const ByteCode*, decoded> bodies_;

  public:
    void clear() { bodies_.clear(); }
};

bytecode_places bytecode_frames;

void forget_bytecode_frames() {
    bytecode_frames.clear();
}

// Reads one frame where `info frame` reads it and as it reads it, without building the
// answer, whose objects would cost more than all the rest. False for a frame of a kind
// this reading does not know.
bool read_frame(const CmdFrame& frame, frame_info& out) {
    CmdFrame where = frame;
    out.line = 0;
    out.cmd = {};
    switch (frame.type) {
    case TCL_LOCATION_EVAL:
        out.line = frame.line != nullptr ? frame.line[0] : 1;
        out.cmd = frame_command(where);
        break;
    case TCL_LOCATION_SOURCE:
        if (frame.line == nullptr) {
            return false;
        }
        out.line = frame.line[0];
        out.cmd = frame_command(where);
        break;
    case TCL_LOCATION_PREBC:
        break;
    case TCL_LOCATION_BC:
        if (!bytecode_frames.locate(where)) {
            TclGetSrcInfoForPc(&where);
        }
        if (where.type == TCL_LOCATION_SOURCE) {
            Tcl_DecrRefCount(where.data.eval.path);
            out.line = where.line != nullptr ? where.line[0] : 1;
        } else if (where.line != nullptr) {
            out.line = where.line[0];
        } else {
            return false;
        }
        out.cmd = frame_command(where);
        break;
    default:
        return false;
    }
    // The procedure or lambda the frame runs in, as `info frame` names it.
    out.proc_type = where.type == TCL_LOCATION_PROC;
    out.proc.clear();
    const Proc* proc = frame.framePtr != nullptr ? frame.framePtr->procPtr : nullptr;
    out.lambda = proc != nullptr && proc->cmdPtr->hPtr == nullptr && proc->cmdPtr->clientData;
    if (out.proc_type && proc != nullptr && proc->cmdPtr->hPtr != nullptr) {
        static Tcl_Obj* const name = brix_cached_obj("");
        Tcl_SetObjLength(name, 0);
        Tcl_GetCommandFullName(brixgen_interp, reinterpret_cast<Tcl_Command>(proc->cmdPtr), name);
        out.proc = Tcl_GetString(name);
    }
    return true;
}

// The walk on the interpreter's own frames; false where that reading is not `info
// frame`'s (a coroutine stitches frames together, a frame of another kind), for the
// frames to be asked for.
bool walk_directly(frame_walk& walk) {
    if (!brix_tcl_internals || own_info_frame() == nullptr) {
        return false;
    }
    const auto* interp = reinterpret_cast<Interp*>(brixgen_interp);
    const CmdFrame* frame = interp->cmdFramePtr;
    if (interp->execEnvPtr->corPtr != nullptr || frame == nullptr || frame->level < 1) {
        return false;
    }
    static frame_info info;
    walk.depth = frame->level;
    const int anchor = anchor_level();
    for (; !walk.done && frame != nullptr && frame->level > anchor; frame = frame->nextPtr) {
        if (!read_frame(*frame, info)) {
            return false;
        }
        step(walk, info);
    }
    return true;
}

// The level of the command being run, without a query when the frames may be read.
int current_depth() {
    const auto* interp = reinterpret_cast<Interp*>(brixgen_interp);
    if (brix_tcl_internals && interp->execEnvPtr->corPtr == nullptr) {
        return interp->cmdFramePtr != nullptr ? interp->cmdFramePtr->level : 0;
    }
    return queried_depth();
}
#else
void forget_bytecode_frames() {}
bool walk_directly(frame_walk&) {
    return false;
}
int current_depth() {
    return queried_depth();
}
#endif

} // namespace

void brix_push_file_anchor(const char* path) {
    // The top file is evaluated before any command runs.
    const int level = reading_brix_file == nullptr ? 0 : current_depth();
    brix_push_line_anchor({level, 0, path});
}

namespace {
// The level of the command placed last.
int placed_depth = 0;
} // namespace

int get_current_brix_file_line_num(const char** file_out) {
    const lineno_cache_entry* anchor = lineno_cache.empty() ? nullptr : &lineno_cache.back();
    frame_walk walk{anchor};
    if (!walk_directly(walk)) {
        walk = frame_walk{anchor};
        if (!walk_queried(walk)) {
            return 1;
        }
    }
    placed_depth = walk.depth;
    return finish(walk, file_out);
}

brix_text_kind brix_hashline_text(std::string& text, lineno_cache_entry* where) {
    const char* file = nullptr;
    const int line = get_current_brix_file_line_num(&file);
    if (line < 1 || file == nullptr) {
        position_failed();
    }
    if (where != nullptr) {
        *where = {placed_depth, line, file};
    }
    const std::string_view file_name(file);
    // "BRIX_HASHLINE <line> ", written over the text's own storage.
    constexpr std::string_view head = "BRIX_HASHLINE ";
    char number[16];
    const std::size_t digits =
        static_cast<std::size_t>(std::to_chars(number, number + sizeof number, line).ptr - number);
    text.resize(head.size() + digits + 1 + file_name.size());
    char* out = std::copy(head.begin(), head.end(), text.data());
    out = std::copy(number, number + digits, out);
    *out++ = ' ';
    std::copy(file_name.begin(), file_name.end(), out);
    // All but the file name is plain ASCII; the name is mostly the last one's.
    static std::string last_file;
    static brix_text_kind last_kind;
    if (last_file != file_name) {
        last_file = file_name;
        last_kind = brix_classify_text(last_file);
    }
    return last_kind;
}

int BRIX_proc(ClientData, Tcl_Interp* interp, int argc, const char** argv) {
    if (argc != 4) {
        brix_error("Wrong # args: should be \"proc name args body\"\n");
    }
    // `info` may have been replaced since the last declaration.
    brix_tcl_command_started();
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
