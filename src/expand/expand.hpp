// Expansion of a description script into the pure description.
#pragma once

#include "driver/maps.hpp"

#include <string>
#include <string_view>
#include <tcl.h>

// Evaluates the description file and writes the pure description into pure_file.
// Returns only on success.
void expand_tcl_constructs(const char* description_file, const char* pure_file);
// The -I folders, joined by ':', where `source` looks first; null: none. Owned by the caller.
extern char* brix_inc_dirs;
// The folder part of a path, as a new heap string: "." without a slash.
char* brix_dirname(const char* path);

// --- Shared by the expansion stage -------------------------------------------------------

extern Tcl_Interp* brixgen_interp;
// The file being evaluated; null before the first one, which tells the top file apart.
extern const char* reading_brix_file;
// Accumulated line of the Tcl error on its way up.
extern unsigned long long brix_tcl_error_linenum;
// Nesting of compound bodies being evaluated, and so the tabs in front of a declaration.
extern int brix_level;
extern char* user_pwd;
extern char* user_ppwd;
extern brix_str2str_map all_procs_location_info;

// Called on the interpreter once it is set up, before the description runs, by a driver
// that must bound what a script may do (the fuzzer); null in brixgen.
extern void (*brix_tcl_setup_hook)(Tcl_Interp* interp);

// Evaluates one file of the description; TCL_OK or TCL_ERROR.
int execute_brix_file(const char* path);
int BRIX_source(ClientData client_data, Tcl_Interp* interp, int argc, const char** argv);

// Puts the array subscripts of a script behind three backslashes, leaving constraint
// bodies alone.
std::string protect_brix_subscripts(const char* text);

// Folds a positive error line of the script that just failed into brix_tcl_error_linenum.
void brix_fold_error_line(int error_line);
// The common tail of every evaluation: a non-empty result is printed on success, and an
// error with a message folds its line in and gives TCL_ERROR. Anything else goes on.
int brix_check_result(int status);
// Tcl_Eval followed by brix_check_result.
int brix_eval_checked(const std::string& script);
// A Tcl object kept for the whole run: a fixed script, which Tcl then compiles once, or
// a fixed word, which keeps what Tcl resolved it to.
Tcl_Obj* brix_cached_obj(const char* script);
// What one pass over a text tells: whether it is plain, that is a `puts -nonewline
// "<text>"` writes it as it stands, nothing in it substituting; and whether it is ASCII only.
struct brix_text_kind {
    bool plain = true;
    bool ascii = true;
};
brix_text_kind brix_classify_text(std::string_view text);
// The channel that such a `puts` would write to, when the `puts` is Tcl's own and the
// channel writable, so that its text may be written straight to the channel instead;
// else null. It stands until Tcl runs a script.
Tcl_Channel brix_direct_writes();
// Tcl_GetChannel(interp, "stdout", mode), for the expansion's interpreter.
Tcl_Channel brix_stdout_channel(int* mode);
// Writes text straight to that channel, as such a `puts` would; false, when the write
// fails, for the caller to evaluate the `puts` and report the failure as it does.
// `ascii` tells whether the text is known to be ASCII only.
bool brix_write_direct(Tcl_Channel out, std::string_view text, bool ascii);
// True when the channel would write a text of ASCII only (`ascii`) as it stands: its
// encoding keeps ASCII and its newlines are left alone, so it may skip the conversion.
bool brix_passes_unconverted(Tcl_Channel out, bool ascii);
// The number of commands the interpreter has run so far, counting each once as it
// starts; false when that count is out of view, and every answer that stands "until Tcl
// runs a script" must then be asked for again.
bool brix_commands_run(unsigned* count);
// Whether Tcl's private structures may be read: built with them, and the library running
// is the release they were taken from. Set at set-up; the public paths serve otherwise.
extern bool brix_tcl_internals;
// The procedure of Tcl's own `puts`, as found once the interpreter is set up.
extern Tcl_ObjCmdProc* tcl_puts_proc;
// True when no execution trace could see an evaluation of `command` now: none on the
// command itself, and no step trace of an enclosing procedure. Without Tcl's private
// structures in view, never.
bool brix_untraced(Tcl_Command command);
// Stacks the holding channel on Tcl's stdout: it keeps what Tcl writes until
// brix_release_tcl_stdout, a seek, a child process, a flush or `open` by the script, or
// the channel's end.
void brix_hold_tcl_stdout();
// Writes what Tcl's stdout holds to descriptor 1; called before anything else writes there.
void brix_release_tcl_stdout();
// Takes `text`, which passes unconverted, as Tcl_Write on the holding channel would end by
// taking it, when that is so; false when the channel must write it itself.
bool brix_hold_directly(Tcl_Channel out, std::string_view text);
// Prints the interpreter's result through stdio without a flush, and leaves the result
// as it was.
void brix_print_result();
// Flushes stdio's stdout into the pure file; a failed write ends the run.
void brix_flush_pure_stdio();
// Ends the run for a failed write into the pure file, with the system's reason.
[[noreturn]] void brix_pure_write_failed(int error);
// Evaluates "flush stdout" so that stdio may write behind Tcl's channel; fatal on error.
void brix_flush_tcl_stdout();

// --- Source line tracking ----------------------------------------------------------------

// Where the script being evaluated lies: the commands at frame levels above `level` run
// within it, and its line 1 stands at file_line of file_name; a file_line of 0 is a file
// of its own, whose lines are the script's.
struct lineno_cache_entry {
    int level;
    int file_line;
    std::string file_name;
};
// Makes `entry` the anchor of the scripts evaluated until brix_pop_line_anchor.
void brix_push_line_anchor(lineno_cache_entry entry);
// Anchors a file about to be evaluated by the command being run (none for the top file).
void brix_push_file_anchor(const char* path);
void brix_pop_line_anchor();
void brix_clear_line_cache();

// The line of the command being run; stores its file in *file_out, which the caller must
// neither free nor keep. Returns 1 with *file_out untouched when a Tcl query fails.
int get_current_brix_file_line_num(const char** file_out);
// Sets `text` to the hash line of the command being run, without its newline. With
// `where`, also hands back the place it names. Tells what kind of text it is.
brix_text_kind brix_hashline_text(std::string& text, lineno_cache_entry* where = nullptr);

int BRIX_proc(ClientData client_data, Tcl_Interp* interp, int argc, const char** argv);
int brix_parse_info_frame_level_info(ClientData client_data, Tcl_Interp* interp, int argc,
                                     const char** argv);

// Registers the 29 description commands.
void brix_register_description_commands();
// Lets go of the bodies kept for reuse, once the description has run.
void brix_forget_bodies();
// Moves on whenever the interpreter may have run anything but description commands, which
// change neither Tcl's commands, nor their traces, nor its channels: what was found out
// about those in one epoch stands through it.
unsigned brix_tcl_state_epoch();
// For a command of this stage's own other than the description commands that asks about
// Tcl's state (`proc`): whatever ran since the last description command moves the epoch.
void brix_tcl_command_started();
// True for the name of a description command or `proc`, whose lines the line tracking
// adds up.
bool brix_placed_like_declaration(std::string_view name);
