// The expansion run: one Tcl interpreter evaluates the description with standard output
// redirected into the pure file, and `source` looks along the -I directories.
#include "expand/expand.hpp"

#include "driver/diag.hpp"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <new>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

Tcl_Interp* brixgen_interp = nullptr;
Tcl_ObjCmdProc* tcl_puts_proc = nullptr;
const char* reading_brix_file = nullptr;
unsigned long long brix_tcl_error_linenum = 0;
char* user_pwd = nullptr;
char* user_ppwd = nullptr;
brix_str2str_map all_procs_location_info;
char* brix_inc_dirs = nullptr;
void (*brix_tcl_setup_hook)(Tcl_Interp* interp) = nullptr;

namespace {

char brixgen_cmdbuf[1100];
// The pure file being written, for the report of a failed write.
const char* pure_file_name = "";

// Creates the pure file exclusively and without following links, so that a file or
// link planted under the predictable name is neither followed nor truncated.
int create_pure_file(const char* pure_file) {
    const int fd = open(pure_file, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
    if (fd < 0) {
        // The name belongs to somebody else: leave it where it stands. pure_file may be
        // pure_brix_file itself, so keep a copy for the message.
        const std::string name = pure_file;
        pure_brix_file[0] = '\0';
        brix_error("Error: Failed to open temporary %d file '%s' for writing...\n", fd, name);
    }
    return fd;
}

// The whole file with a closing NUL; a NUL inside it ends the script there.
std::unique_ptr<char[]> read_brix_file(const char* path) {
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        fprintf(stderr, "Error: Failed to open file %s ... exiting!\n", path);
        brix_exit(1);
    }
    struct stat st {};
    if (fstat(fd, &st) != 0) {
        fprintf(stderr, "Error: Failed to stat file %s ...\n", path);
        brix_exit(1);
    }
    const auto size = static_cast<std::size_t>(st.st_size);
    std::unique_ptr<char[]> text(new (std::nothrow) char[size + 1]);
    if (!text) {
        fputs("execute_brix_file: Fatal error - malloc failed\n", stderr);
        brix_exit(1);
    }
    const ssize_t got = read(fd, text.get(), size);
    close(fd);
    if (got != static_cast<ssize_t>(size)) {
        fprintf(stderr, "Error: Failed to read entire file %s ... Only %d bytes read.\n", path,
                static_cast<int>(got));
        brix_exit(1);
    }
    text[size] = '\0';
    return text;
}

// Sets reading_brix_file for the evaluation of one file and gives the old one back after.
struct reading_file_scope {
    const char* saved;
    explicit reading_file_scope(const char* path) : saved(reading_brix_file) {
        brix_push_file_anchor(path);
        reading_brix_file = path;
    }
    ~reading_file_scope() {
        brix_pop_line_anchor();
        reading_brix_file = saved;
    }
    reading_file_scope(const reading_file_scope&) = delete;
    reading_file_scope& operator=(const reading_file_scope&) = delete;
};

// Ends the run with the whole Tcl trace and the place in the top file.
[[noreturn]] void report_top_level_error(const char* path) {
    const char* trace = Tcl_GetVar(brixgen_interp, "errorInfo", TCL_GLOBAL_ONLY);
    if (trace != nullptr) {
        fprintf(stderr, "\n%s (file \"%s\" line %llu)\n", trace, path, brix_tcl_error_linenum);
    }
    brix_exit(1);
}

// The private structures are read only from the release they were built against.
bool same_tcl_release() {
    int major = 0;
    int minor = 0;
    int patch = 0;
    int type = 0;
    Tcl_GetVersion(&major, &minor, &patch, &type);
    const char* separator = type == TCL_ALPHA_RELEASE ? "a" : type == TCL_BETA_RELEASE ? "b" : ".";
    const std::string running =
        std::to_string(major) + "." + std::to_string(minor) + separator + std::to_string(patch);
    return running == TCL_PATCH_LEVEL;
}

void setup_interpreter() {
    brix_tcl_internals = brix_tcl_internals && same_tcl_release();
    brixgen_interp = Tcl_CreateInterp();
    Tcl_Init(brixgen_interp);
    Tcl_CmdInfo puts;
    tcl_puts_proc =
        Tcl_GetCommandInfo(brixgen_interp, "::puts", &puts) != 0 ? puts.objProc : nullptr;
    brix_hold_tcl_stdout();
    brix_add_exit_hook(brix_release_tcl_stdout);
    for (const char* rename :
         {"rename source __brix_source_original__", "rename proc __brix_proc_original__"}) {
        if (brix_check_result(Tcl_Eval(brixgen_interp, rename)) != TCL_OK) {
            brix_error("Fatal Error: Failed to setup BRIX support in the Tcl Interpreter.\n");
        }
    }
    initialize_str2str_map(all_procs_location_info);
    brix_register_description_commands();
    Tcl_CreateCommand(brixgen_interp, "source", BRIX_source, nullptr, nullptr);
    Tcl_CreateCommand(brixgen_interp, "proc", BRIX_proc, nullptr, nullptr);
    Tcl_CreateCommand(brixgen_interp, "__brix_parse_info_frame_level_info__",
                      brix_parse_info_frame_level_info, nullptr, nullptr);
    brix_clear_line_cache();
    if (brix_tcl_setup_hook != nullptr) {
        brix_tcl_setup_hook(brixgen_interp);
    }
}

} // namespace

void brix_fold_error_line(int error_line) {
    if (error_line <= 0) {
        return;
    }
    const auto line = static_cast<unsigned long long>(error_line);
    brix_tcl_error_linenum = brix_tcl_error_linenum == 0 ? line : brix_tcl_error_linenum + line - 1;
}

void brix_flush_tcl_stdout() {
    static Tcl_Obj* const flush = brix_cached_obj("flush stdout");
    const int status = Tcl_EvalObjEx(brixgen_interp, flush, 0);
    const char* result = Tcl_GetStringResult(brixgen_interp);
    if (status == TCL_ERROR) {
        fputs("ERROR: Interprator exited with an error while executing \"flush stdout\"\n", stderr);
        brix_exit(1);
    }
    brix_release_tcl_stdout();
    if (*result != '\0') {
        fputs(result, stdout);
    }
}

void brix_pure_write_failed(int error) {
    brix_write_failed(pure_file_name, error);
}

void brix_flush_pure_stdio() {
    errno = 0;
    if (fflush(stdout) != 0 || ferror(stdout) != 0) {
        brix_pure_write_failed(errno);
    }
}

void brix_print_result() {
    // Through stdio and unflushed: the text waits in stdio's buffer until a `doc` or
    // `constraint` flushes it into the pure text, or else reaches the user's standard
    // output when the process ends. The result stays standing (`set v [source f]`).
    // stdio may write to descriptor 1 now, behind what Tcl has written there.
    brix_release_tcl_stdout();
    fputs(Tcl_GetStringResult(brixgen_interp), stdout);
}

int brix_check_result(int status) {
    const char* result = Tcl_GetStringResult(brixgen_interp);
    if (*result == '\0') {
        return TCL_OK;
    }
    if (status == TCL_OK) {
        brix_print_result();
    } else if (status == TCL_ERROR) {
        brix_fold_error_line(Tcl_GetErrorLine(brixgen_interp));
        return TCL_ERROR;
    }
    return TCL_OK;
}

int brix_eval_checked(const std::string& script) {
    return brix_check_result(Tcl_Eval(brixgen_interp, script.c_str()));
}

Tcl_Obj* brix_cached_obj(const char* script) {
    Tcl_Obj* obj = Tcl_NewStringObj(script, -1);
    Tcl_IncrRefCount(obj);
    return obj;
}

namespace {
// Per byte: 1 where a double-quoted word substitutes or ends, 2 past ASCII.
constexpr auto text_classes = [] {
    std::array<unsigned char, 256> table{};
    for (const unsigned char c : {'$', '[', '\\', '"'}) {
        table[c] = 1;
    }
    for (int c = 0x80; c < 0x100; ++c) {
        table[static_cast<std::size_t>(c)] = 2;
    }
    return table;
}();
} // namespace

brix_text_kind brix_classify_text(std::string_view text) {
    unsigned seen = 0;
    for (const char c : text) {
        seen |= text_classes[static_cast<unsigned char>(c)];
    }
    return {(seen & 1) == 0, (seen & 2) == 0};
}

Tcl_Channel brix_direct_writes() {
    // The `puts` that a script would call, found from the current namespace as Tcl finds
    // it, must be Tcl's own, seen by no trace, and it must find the channel writable. A
    // command is told by its procedure: the token of one that has been deleted may come
    // back for another.
    static Tcl_Obj* const puts = brix_cached_obj("puts");
    const Tcl_Command command = Tcl_GetCommandFromObj(brixgen_interp, puts);
    Tcl_CmdInfo info;
    if (command == nullptr || Tcl_GetCommandInfoFromToken(command, &info) == 0 ||
        info.objProc != tcl_puts_proc || tcl_puts_proc == nullptr || !brix_untraced(command)) {
        return nullptr;
    }
    int mode = 0;
    const Tcl_Channel out = brix_stdout_channel(&mode);
    return (mode & TCL_WRITABLE) != 0 ? out : nullptr;
}

bool brix_write_direct(Tcl_Channel out, std::string_view text, bool ascii) {
    const bool unconverted = brix_passes_unconverted(out, ascii);
    if (unconverted && brix_hold_directly(out, text)) {
        Tcl_ResetResult(brixgen_interp);
        return true;
    }
    const int length = static_cast<int>(text.size());
    const int written = unconverted ? Tcl_Write(out, text.data(), length)
                                    : Tcl_WriteChars(out, text.data(), length);
    if (written < 0) {
        return false;
    }
    // As after the evaluation of a `puts`.
    Tcl_ResetResult(brixgen_interp);
    return true;
}

int execute_brix_file(const char* path) {
    const std::unique_ptr<char[]> text = read_brix_file(path);
    const std::string script = protect_brix_subscripts(text.get());

    const reading_file_scope scope(path);
    const int status = Tcl_Eval(brixgen_interp, script.c_str());
    const char* result = Tcl_GetStringResult(brixgen_interp);
    // An error with an empty message goes by unnoticed.
    if (*result == '\0') {
        return TCL_OK;
    }
    if (status != TCL_ERROR) {
        if (status == TCL_OK) {
            brix_print_result();
        }
        return TCL_OK;
    }
    brix_fold_error_line(Tcl_GetErrorLine(brixgen_interp));
    if (scope.saved == nullptr) {
        report_top_level_error(path);
    }
    const std::string where = "    (file \"" + std::string(path) + "\" line " +
                              std::to_string(brix_tcl_error_linenum) + ")\n";
    Tcl_AddErrorInfo(brixgen_interp, where.c_str());
    // The line of the `source` command in the including file starts a new sum.
    brix_tcl_error_linenum = 0;
    return TCL_ERROR;
}

int BRIX_source(ClientData, Tcl_Interp*, int argc, const char** argv) {
    if (argc != 2) {
        fputs("wrong # args: should be \"source fileName\"\n", stderr);
        brix_exit(1);
    }
    const char* name = argv[1];
    if (brix_inc_dirs != nullptr) {
        const std::string dirs = brix_inc_dirs;
        std::size_t start = 0;
        while (start <= dirs.size()) {
            std::size_t stop = dirs.find(':', start);
            if (stop == std::string::npos) {
                stop = dirs.size();
            }
            std::string dir = dirs.substr(start, stop - start);
            start = stop + 1;
            if (dir.empty()) {
                continue;
            }
            if (dir == ".") {
                dir = user_pwd;
            } else if (dir == "..") {
                dir = user_ppwd;
            }
            const std::string candidate = dir + "/" + name;
            if (FILE* f = fopen(candidate.c_str(), "r")) {
                fclose(f);
                return execute_brix_file(candidate.c_str());
            }
        }
    }
    // The top file's directory, which is the working directory, comes last.
    return execute_brix_file(name);
}

char* brix_dirname(const char* path) {
    const char* slash = strrchr(path, '/');
    if (slash == nullptr) {
        return strdup(".");
    }
    if (slash == path) {
        return strdup("/");
    }
    return strndup(path, static_cast<std::size_t>(slash - path));
}

void expand_tcl_constructs(const char* description_file, const char* pure_file) {
    const int fd = create_pure_file(pure_file);
    pure_file_name = pure_file;

    // Both of Tcl's stdout channel, made when first used, and stdio's stdout write into
    // the pure file, so descriptor 1 is moved before the interpreter exists.
    const int user_stdout = dup(1);
    close(1);
    dup(fd);
    // From here stdio's error flag speaks of the pure file only.
    clearerr(stdout);

    setup_interpreter();

    char* dir = brix_dirname(description_file);
    if (getcwd(brixgen_cmdbuf, 1000) == nullptr) {
        fputs("Error: 'getcwd' failed...\n", stderr);
        brix_exit(1);
    }
    user_pwd = brix_strdup(brixgen_cmdbuf);
    user_ppwd = brix_dirname(user_pwd);
    // A directory that cannot be entered shows up as a failure to open the file.
    (void)!chdir(dir);
    free(dir);

    // The script runs in its own directory, and every name shown for it is its base name.
    const char* slash = strrchr(description_file, '/');
    const char* base = slash != nullptr ? slash + 1 : description_file;
    execute_brix_file(base);

    brix_clear_line_cache();
    brix_forget_bodies();
    free_str2str_map(all_procs_location_info, 1);

    // What stdio still holds is left for the user's standard output.
    brix_flush_tcl_stdout();
    // A write that stdio made on its own shows only in its error flag.
    int error = ferror(stdout) != 0 ? EIO : 0;
    if (close(fd) != 0 || close(1) != 0) {
        error = error != 0 ? error : errno;
    }
    dup(user_stdout);
    close(user_stdout);
    if (error != 0) {
        brix_pure_write_failed(error);
    }
    (void)!chdir(user_pwd);
    free(user_pwd);
    free(user_ppwd);
    user_pwd = user_ppwd = nullptr;
}
