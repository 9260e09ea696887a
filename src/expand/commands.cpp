// The description commands. Each writes its words back out as pure description text:
// a hash line, the indent of its nesting, its words with a blank behind each, and for
// compound commands the body, evaluated as Tcl in between. Every word is written by
// evaluating a `puts` of it in double quotes, so Tcl substitutes it a second time.
#include "expand/expand.hpp"

#include "driver/diag.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <string>
#include <unordered_map>
#include <vector>

int brix_level = 0;

namespace {

enum class family { pair, single, all_words, braced, bins, doc, constraint, compound };

struct description_command {
    const char* name;
    family kind;
    // Pair: written in place of word 0 (`reset` becomes `hard_reset`).
    const char* word0 = nullptr;
    // Braced: the declaration ends without a newline, so the next hash line follows it.
    bool stays_on_line = false;
    // Compound: a top-level declaration is followed by two empty lines.
    bool gap_at_top = true;
};

const description_command description_commands[] = {
    {"system", family::compound},
    {"block", family::compound},
    {"register", family::compound},
    {"virtual", family::compound},
    {"field", family::compound},
    {"bits", family::pair},
    {"doc", family::doc},
    {"constraint", family::constraint},
    {"bytes", family::pair},
    {"size", family::all_words},
    {"endian", family::pair},
    {"left_to_right", family::single},
    {"access", family::pair},
    {"reset", family::pair, "hard_reset"},
    {"hard_reset", family::pair, "hard_reset"},
    {"soft_reset", family::pair},
    {"initial", family::pair},
    {"noise", family::pair},
    {"shared", family::all_words},
    {"memory", family::compound},
    {"regfile", family::compound},
    {"domain", family::compound, nullptr, false, false},
    {"cover", family::compound},
    {"cross", family::compound},
    {"label", family::compound},
    {"enum", family::braced, nullptr, true},
    {"bins", family::bins},
    {"coverpoint", family::compound},
    {"attributes", family::braced},
};

// Set once a description command is renamed or deleted.
bool commands_replaced = false;

void note_replaced(ClientData, Tcl_Interp*, const char*, const char*, int) {
    commands_replaced = true;
}

// A set of command names. The line tracking asks for every frame it reads, so the names
// are grouped by length and told apart by their first letter before any comparison.
class name_set {
  public:
    explicit name_set(bool with_proc) {
        for (const description_command& cmd : description_commands) {
            add(cmd.name);
        }
        if (with_proc) {
            add("proc");
        }
    }
    bool contains(std::string_view name) const {
        if (name.empty() || name.size() >= by_length_.size()) {
            return false;
        }
        const auto& candidates = by_length_[name.size()];
        return std::any_of(candidates.begin(), candidates.end(),
                           [name](std::string_view c) { return c[0] == name[0] && c == name; });
    }

  private:
    void add(std::string_view name) { by_length_.at(name.size()).push_back(name); }
    std::array<std::vector<std::string_view>, 16> by_length_;
};

bool is_description_command(std::string_view name) {
    static const name_set names(false);
    return names.contains(name);
}

// Whether a body, compiled, runs with the lines that evaluating its text gives. Tcl shares
// a literal word among all the scripts it compiles, and the bytecode of a literal that
// some command evaluates keeps the lines of the place it was first compiled for, where
// evaluating the text makes the word afresh. So: only description commands, whose words
// never reach Tcl as scripts but as bodies evaluated here, and no command substitution.
bool compiles_alike(const char* text, int length) {
    const char* p = text;
    const char* const end = text + length;
    while (p < end) {
        Tcl_Parse parse;
        if (Tcl_ParseCommand(nullptr, p, static_cast<int>(end - p), 0, &parse) != TCL_OK) {
            return false;
        }
        const Tcl_Token* tokens = parse.tokenPtr;
        bool alike = parse.numWords == 0 ||
                     (tokens[0].type == TCL_TOKEN_SIMPLE_WORD &&
                      is_description_command({tokens[1].start, std::size_t(tokens[1].size)}));
        alike = alike && std::none_of(tokens, tokens + parse.numTokens, [](const Tcl_Token& t) {
                    return t.type == TCL_TOKEN_COMMAND;
                });
        p = parse.commandStart + parse.commandSize;
        Tcl_FreeParse(&parse);
        if (!alike) {
            return false;
        }
    }
    return true;
}

// Evaluates a body word. The script it runs as is an object of this file's own for each
// body text, compiled the first time it runs: one only ever evaluated here counts its
// lines from the body's first, as evaluating the text does. A body that would not run
// alike compiled, or one whose command names may mean other commands now, is evaluated
// as text.
struct body {
    Tcl_Obj* script;
    bool compiled;
};

// Their compiled code goes with them, and other code may then be compiled at its address.
void bodies_released();

// The bodies met so far, by text, and by the word a body came as: a literal word comes back
// at every call, and is held here so that its address stays its own. Bodies made afresh
// at each call (substituted) would fill it without reuse, so it is emptied when full.
class body_cache {
  public:
    const body& find(Tcl_Obj* word) {
        if (const auto found = by_word_.find(word); found != by_word_.end()) {
            return *found->second;
        }
        if (by_text_.size() >= most || by_word_.size() >= most) {
            clear();
        }
        int length = 0;
        const char* text = Tcl_GetStringFromObj(word, &length);
        auto [entry, added] = by_text_.try_emplace(std::string(text, std::size_t(length)));
        if (added) {
            entry->second = {Tcl_NewStringObj(text, length), compiles_alike(text, length)};
            Tcl_IncrRefCount(entry->second.script);
        }
        Tcl_IncrRefCount(word);
        by_word_.emplace(word, &entry->second);
        return entry->second;
    }
    void clear() {
        bodies_released();
        for (const auto& [text, entry] : by_text_) {
            Tcl_DecrRefCount(entry.script);
        }
        for (const auto& [held, entry] : by_word_) {
            Tcl_DecrRefCount(held);
        }
        by_text_.clear();
        by_word_.clear();
    }

  private:
    static constexpr std::size_t most = 4096;
    std::unordered_map<std::string, body> by_text_;
    std::unordered_map<Tcl_Obj*, const body*> by_word_;
};

body_cache bodies;

int evaluate_body(Tcl_Obj* word) {
    const body& known = bodies.find(word);
    if (known.compiled && !commands_replaced &&
        Tcl_GetCurrentNamespace(brixgen_interp) == Tcl_GetGlobalNamespace(brixgen_interp)) {
        return Tcl_EvalObjEx(brixgen_interp, known.script, 0);
    }
    return Tcl_Eval(brixgen_interp, Tcl_GetString(word));
}

// Counts the commands Tcl runs: while only description commands run, which change
// neither Tcl's commands, nor their traces, nor its channels, what was found out about
// them stands. The epoch moves on whenever anything else may have run.
class quiet_stretch {
  public:
    // At the start of each description command.
    void command_started() { check(1); }
    // After a body: each command in it was a description command and checked the count.
    void body_ended() { check(0); }
    // After an evaluation of this stage's own.
    void evaluated() {
        ++epoch_;
        counted_ = brix_commands_run(&count_);
    }
    unsigned epoch() const { return epoch_; }

  private:
    void check(unsigned expected) {
        unsigned now = 0;
        const bool counted = brix_commands_run(&now);
        if (!counted || !counted_ || now != count_ + expected) {
            ++epoch_;
        }
        counted_ = counted;
        count_ = now;
    }
    bool counted_ = false;
    unsigned count_ = 0;
    unsigned epoch_ = 1;
};

quiet_stretch quiet;

void bodies_released() {
    quiet.evaluated();
}

// brix_direct_writes' answer, asked again once the epoch or the namespace that `puts` is
// looked up from has changed.
class direct_writes_cache {
  public:
    Tcl_Channel channel() {
        Tcl_Namespace* const ns = Tcl_GetCurrentNamespace(brixgen_interp);
        if (epoch_ != quiet.epoch() || ns != namespace_) {
            channel_ = brix_direct_writes();
            epoch_ = quiet.epoch();
            namespace_ = ns;
        }
        return channel_;
    }

  private:
    unsigned epoch_ = 0;
    Tcl_Namespace* namespace_ = nullptr;
    Tcl_Channel channel_ = nullptr;
};

direct_writes_cache direct_writes;

// Writes pure text through Tcl; after the first failed evaluation every later step is
// skipped and status() reports the failure. Each piece is what evaluating a `puts` of it
// writes; where that evaluation can only write the piece as it stands, pieces are
// gathered and written to Tcl's channel in one go, before anything else can run.
class pure_writer {
  public:
    pure_writer() : direct_(direct_writes.channel()) {
        if (spare_.empty()) {
            pending_.reserve(pending_capacity);
        } else {
            pending_ = std::move(spare_.back());
            spare_.pop_back();
        }
    }
    ~pure_writer() {
        drain();
        spare_.push_back(std::move(pending_));
    }
    pure_writer(const pure_writer&) = delete;
    pure_writer& operator=(const pure_writer&) = delete;

    // Writes `text`; `script()` gives the `puts` that writes it. An evaluation that fails
    // stops the writer unless `ignored`.
    template <class Script> void put(std::string_view text, Script script, bool ignored = false) {
        put_read(text, brix_classify_text(text), script, ignored);
    }
    // The same, for a text already classified.
    template <class Script>
    void put_read(std::string_view text, brix_text_kind kind, Script script, bool ignored) {
        if (failed_ || gather(text, kind)) {
            return;
        }
        drain();
        eval(script(), ignored);
    }
    // A fixed piece of this file's own, plain ASCII.
    void put(std::string_view text, const char* script) {
        put_read(
            text, brix_text_kind{}, [script] { return std::string(script); }, false);
    }
    void word(const char* text) {
        const std::size_t length = strlen(text);
        if (failed_ || gather({text, length}, brix_classify_text({text, length}), ' ')) {
            return;
        }
        put(std::string(text, length) + ' ', [text, length] {
            std::string script = "puts -nonewline \"";
            if (length <= 1000) {
                for (const char* p = text; *p != '\0'; ++p) {
                    if (*p == '"') {
                        script += '\\';
                    }
                    script += *p;
                }
            } else {
                // Longer words go in as they stand: their quotes end the string.
                script.append(text, length);
            }
            return script + " \"";
        });
    }
    // Words first to last, the last excluded.
    void words(const char** argv, int first, int last) {
        for (int i = first; i < last; ++i) {
            word(argv[i]);
        }
    }
    void indent() {
        if (brix_level > 0) {
            static std::string tabs; // kept for its storage
            tabs.assign(static_cast<std::size_t>(brix_level), '\t');
            put_read(
                tabs, brix_text_kind{}, [] { return "puts -nonewline \"" + tabs + "\""; }, false);
        }
    }
    void newline() { put("\n", "puts \"\""); }
    // Writes what is gathered; before anything else may write or run. The line-buffered
    // channel writes out all it holds after each write with a newline in it, so the text
    // up to the end of the last such piece goes in one write and the rest in another.
    void drain() {
        const std::string_view all(pending_);
        for (const std::string_view part : {all.substr(0, flushed_), all.substr(flushed_)}) {
            if (part.empty() || failed_) {
                continue;
            }
            if (direct_ == nullptr || !brix_write_direct(direct_, part, ascii_)) {
                // Let `puts` meet the failure again and report it as it does.
                eval("puts -nonewline \"" + std::string(part) + "\"", false);
            }
        }
        pending_.clear();
        flushed_ = 0;
        ascii_ = true;
    }
    // Evaluates a body, with what is gathered written first; its Check.
    int eval_body(Tcl_Obj* body) {
        drain();
        const int status = brix_check_result(evaluate_body(body));
        quiet.body_ended();
        direct_ = direct_writes.channel();
        return status;
    }
    bool failed() const { return failed_; }
    int status() {
        drain();
        return failed_ ? TCL_ERROR : TCL_OK;
    }

  private:
    // Gathers `text`, of the given kind, and a blank behind it when `tail` is one, when
    // they may go straight to the channel.
    bool gather(std::string_view text, brix_text_kind kind, char tail = '\0') {
        if (direct_ == nullptr || !kind.plain) {
            return false;
        }
        pending_ += text;
        if (tail != '\0') {
            pending_ += tail;
        }
        ascii_ = ascii_ && kind.ascii;
        if (text.find('\n') != std::string_view::npos) {
            flushed_ = pending_.size();
        }
        return true;
    }
    void eval(const std::string& script, bool ignored) {
        const int status = brix_eval_checked(script);
        // The evaluation may have run any Tcl, `rename` and `close` among it.
        quiet.evaluated();
        direct_ = direct_writes.channel();
        if (status != TCL_OK && !ignored) {
            failed_ = true;
        }
    }

    // Room for a declaration's hash line and words, without regrowing.
    static constexpr std::size_t pending_capacity = 256;
    // The storage of writers that have ended, one for each level of nesting, for the next
    // writers to take over instead of allocating their own.
    static inline std::vector<std::string> spare_;
    bool failed_ = false;
    Tcl_Channel direct_; // where plain pieces may go straight, or null
    std::string pending_;
    std::size_t flushed_ = 0; // end of the last piece with a newline in it
    bool ascii_ = true;       // nothing gathered goes past ASCII
};

// The start of every declaration: its hash line, whose evaluation is not looked at, and
// the indent.
void start_declaration(pure_writer& w, lineno_cache_entry* where = nullptr) {
    // Kept from one declaration to the next for its storage; the `puts` is made from it
    // before anything is evaluated.
    static std::string text;
    const brix_text_kind kind = brix_hashline_text(text, where);
    text += '\n';
    w.put_read(
        text, kind, [] { return "puts \"" + text.substr(0, text.size() - 1) + "\""; }, true);
    w.indent();
}

// A last word with no blank, tab or newline in it, and not empty, is a plain word.
bool is_body(const char* word) {
    return *word == '\0' || strpbrk(word, " \t\n") != nullptr;
}

// Writes the words ahead of a body: all but the last, and the first `kept` words in any
// case. Gives the last word back when it is left for a body; otherwise ends the
// declaration and gives null, as after a failure.
const char* write_head(pure_writer& w, int argc, const char** argv, int kept,
                       bool any_word_is_body) {
    const int head = std::max(argc - 1, std::min(argc, kept));
    w.words(argv, 0, head);
    if (head == argc) {
        w.newline();
        return nullptr;
    }
    const char* last = argv[argc - 1];
    if (!any_word_is_body && !is_body(last)) {
        w.word(last);
        w.newline();
        return nullptr;
    }
    return w.failed() ? nullptr : last;
}

int write_compound(const description_command& cmd, int argc, const char** argv,
                   Tcl_Obj* const objv[]) {
    lineno_cache_entry where{};
    pure_writer w;
    start_declaration(w, &where);
    const char* body = write_head(w, argc, argv, 1, false);
    if (body == nullptr) {
        return w.status();
    }
    w.put("{\n", "puts -nonewline \"{\\n\"");
    if (w.failed()) {
        return TCL_ERROR;
    }
    ++brix_level;
    brix_push_line_anchor(where);
    const int status = w.eval_body(objv[argc - 1]);
    brix_pop_line_anchor();
    if (status != TCL_OK) {
        // The level stays raised: the error ends the run unless the description catches it.
        return TCL_ERROR;
    }
    --brix_level;
    w.indent();
    w.put("}\n", "puts \"}\"");
    if (brix_level == 0 && cmd.gap_at_top) {
        w.put("\n\n", "puts \"\\n\"");
    }
    return w.status();
}

int write_pair(const description_command& cmd, int argc, const char** argv) {
    pure_writer w;
    start_declaration(w);
    w.word(cmd.word0 != nullptr ? cmd.word0 : argv[0]);
    if (argc > 1) {
        w.word(argv[1]);
    }
    w.newline();
    return w.status();
}

int write_single(int, const char** argv) {
    pure_writer w;
    start_declaration(w);
    w.word(argv[0]);
    w.newline();
    return w.status();
}

int write_all_words(int argc, const char** argv) {
    pure_writer w;
    start_declaration(w);
    w.words(argv, 0, argc);
    w.newline();
    return w.status();
}

int write_braced(const description_command& cmd, int argc, const char** argv) {
    pure_writer w;
    start_declaration(w);
    w.words(argv, 0, argc - 1);
    w.put("{ ", "puts -nonewline \"{ \"");
    w.word(argv[argc - 1]);
    if (cmd.stays_on_line) {
        w.put(" }", "puts -nonewline \" }\"");
    } else {
        w.put(" }\n", "puts \" }\"");
    }
    return w.status();
}

int write_bins(int argc, const char** argv) {
    pure_writer w;
    start_declaration(w);
    w.words(argv, 0, argc - 1);
    const char* last = argv[argc - 1];
    if (strcmp(last, "default") == 0) {
        w.word(last);
        return w.status();
    }
    // Shields ranges such as [lo:hi] from the second substitution.
    std::string values;
    for (const char* p = last; *p != '\0'; ++p) {
        if (*p == '[' || *p == ']') {
            values += '\\';
        }
        values += *p;
    }
    w.put("{ ", "puts -nonewline \"{ \"");
    w.word(values.c_str());
    w.put(" }\n", "puts \" }\"");
    return w.status();
}

int write_doc(int argc, const char** argv) {
    pure_writer w;
    start_declaration(w);
    const char* body = write_head(w, argc, argv, 1, true);
    if (body == nullptr) {
        return w.status();
    }
    // The text goes out as it stands, through stdio behind what Tcl has buffered.
    w.drain();
    brix_flush_tcl_stdout();
    printf("{\n%s\n}\n", body);
    brix_flush_pure_stdio();
    return TCL_OK;
}

void write_tabs(int count) {
    for (int i = 0; i < count; ++i) {
        fputc('\t', stdout);
    }
}

// Writes a constraint body line by line, each line re-indented to the level inside it;
// empty lines stay.
void write_constraint_body(const char* body) {
    fputc('{', stdout);
    ++brix_level;
    const char* p = body;
    while (*p != '\0') {
        p += strspn(p, " \t");
        if (*p == '\0') {
            break;
        }
        if (*p == '\n') {
            fputc('\n', stdout);
            ++p;
            continue;
        }
        write_tabs(brix_level);
        const char* end = strchr(p, '\n');
        end = end != nullptr ? end + 1 : p + strlen(p);
        fwrite(p, 1, static_cast<std::size_t>(end - p), stdout);
        p = end;
    }
    --brix_level;
    write_tabs(brix_level);
    fputs("}\n", stdout);
    brix_flush_pure_stdio();
}

int write_constraint(int argc, const char** argv) {
    pure_writer w;
    start_declaration(w);
    // The name is never taken for a body.
    const char* body = write_head(w, argc, argv, 2, false);
    if (body == nullptr) {
        return w.status();
    }
    w.drain();
    brix_flush_tcl_stdout();
    write_constraint_body(body);
    return TCL_OK;
}

int write_declaration(const description_command& cmd, int argc, const char** argv,
                      Tcl_Obj* const objv[]) {
    switch (cmd.kind) {
    case family::pair:
        return write_pair(cmd, argc, argv);
    case family::single:
        return write_single(argc, argv);
    case family::all_words:
        return write_all_words(argc, argv);
    case family::braced:
        return write_braced(cmd, argc, argv);
    case family::bins:
        return write_bins(argc, argv);
    case family::doc:
        return write_doc(argc, argv);
    case family::constraint:
        return write_constraint(argc, argv);
    case family::compound:
        return write_compound(cmd, argc, argv, objv);
    }
    return TCL_ERROR;
}

int run_description_command(ClientData client_data, Tcl_Interp*, int objc, Tcl_Obj* const objv[]) {
    const auto& cmd = *static_cast<const description_command*>(client_data);
    quiet.command_started();
    // Declarations have a handful of words; the array is only for longer ones.
    constexpr int on_stack = 16;
    const char* few[on_stack];
    std::vector<const char*> many;
    const char** argv = few;
    if (objc > on_stack) {
        many.resize(static_cast<std::size_t>(objc));
        argv = many.data();
    }
    for (int i = 0; i < objc; ++i) {
        argv[i] = Tcl_GetString(objv[i]);
    }
    return write_declaration(cmd, objc, argv, objv);
}

} // namespace

void brix_register_description_commands() {
    // A new interpreter: its commands are all its own, and it compiles its own bodies.
    commands_replaced = false;
    bodies.clear();
    quiet.evaluated();
    for (const description_command& cmd : description_commands) {
        Tcl_CreateObjCommand(brixgen_interp, cmd.name, run_description_command,
                             const_cast<description_command*>(&cmd), nullptr);
        Tcl_TraceCommand(brixgen_interp, cmd.name, TCL_TRACE_RENAME | TCL_TRACE_DELETE,
                         note_replaced, nullptr);
    }
}

void brix_forget_bodies() {
    bodies.clear();
}

unsigned brix_tcl_state_epoch() {
    return quiet.epoch();
}

void brix_tcl_command_started() {
    quiet.command_started();
}

bool brix_placed_like_declaration(std::string_view name) {
    // `proc` is placed like a description command.
    static const name_set names(true);
    return names.contains(name);
}
