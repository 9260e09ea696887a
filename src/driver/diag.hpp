// Diagnostics, the generated-text writer and number conversions.
//
// The diagnostics and brix_emit each speak a small printf-like format language of their
// own. Arguments are passed as a typed pack so that a directive that reads no argument
// ("%c" in the diagnostics) or one that reads the wrong kind can never read past the pack.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

// Name of the temporary pure description file; empty until main has chosen it.
extern char pure_brix_file[100];
// Place in the user's description, as set by the scanner from hash lines.
extern char brix_src_file_name[1000];
extern unsigned long long brix_src_file_linenum;
// Stream that brix_emit writes to.
extern FILE* brx_model_fp;
extern int brix_quiet_mode;

struct brix_arg {
    enum kind_t { STR, INT, UINT, DBL, CHR } kind;
    // The member that `kind` names; a directive that reads another kind sees 0.
    union {
        const char* s;
        long long i;
        unsigned long long u;
        double d;
    };

    brix_arg(const char* v) : kind(STR), s(v) {}
    brix_arg(const std::string& v) : kind(STR), s(v.c_str()) {}
    brix_arg(char v) : kind(CHR), i(v) {}
    brix_arg(int v) : kind(INT), i(v) {}
    brix_arg(long v) : kind(INT), i(v) {}
    brix_arg(long long v) : kind(INT), i(v) {}
    brix_arg(unsigned v) : kind(UINT), u(v) {}
    brix_arg(unsigned long v) : kind(UINT), u(v) {}
    brix_arg(unsigned long long v) : kind(UINT), u(v) {}
    brix_arg(double v) : kind(DBL), d(v) {}

    long long as_signed() const {
        return kind == UINT ? static_cast<long long>(u) : kind == INT || kind == CHR ? i : 0;
    }
    unsigned long long as_unsigned() const {
        return kind == UINT ? u : static_cast<unsigned long long>(as_signed());
    }
};

// A view of the arguments of one call.
struct brix_args {
    const brix_arg* args;
    std::size_t count;
    std::size_t next = 0;
    const brix_arg* take() { return next < count ? &args[next++] : nullptr; }
};

// Ends the run: calls the exit hooks, newest first, flushes the model's stream and removes
// the temporary pure description.
[[noreturn]] void brix_exit(int status);
// A stage that holds output of its own registers here how to release it on every way out.
void brix_add_exit_hook(void (*hook)());
[[noreturn]] void brix_verror(const char* fmt, brix_args args);
void brix_vwarn(const char* fmt, brix_args args);
[[noreturn]] void brix_vyyerror(const char* fmt, brix_args args);
void brix_vyywarn(const char* fmt, brix_args args);
void brix_vemit(const char* fmt, brix_args args);
// brix_emit's format language, to another stream than the model's.
void brix_vemit_to(FILE* out, const char* fmt, brix_args args);
// Writes `text` as it is, where brix_emit_to would write it.
void brix_write_text(FILE* out, std::string_view text);
// brix_emit's format language, appended to a string.
void brix_vformat(std::string& out, const char* fmt, brix_args args);
// Writes a diagnostic's format to stderr in the diagnostics' format language.
void brix_diag_format(const char* fmt, brix_args args);

template <class... A> [[noreturn]] void brix_error(const char* fmt, const A&... a) {
    const std::array<brix_arg, sizeof...(A)> v{brix_arg(a)...};
    brix_verror(fmt, brix_args{v.data(), v.size()});
}
template <class... A> void brix_warn(const char* fmt, const A&... a) {
    const std::array<brix_arg, sizeof...(A)> v{brix_arg(a)...};
    brix_vwarn(fmt, brix_args{v.data(), v.size()});
}
template <class... A> [[noreturn]] void brix_yyerror(const char* fmt, const A&... a) {
    const std::array<brix_arg, sizeof...(A)> v{brix_arg(a)...};
    brix_vyyerror(fmt, brix_args{v.data(), v.size()});
}
template <class... A> void brix_yywarn(const char* fmt, const A&... a) {
    const std::array<brix_arg, sizeof...(A)> v{brix_arg(a)...};
    brix_vyywarn(fmt, brix_args{v.data(), v.size()});
}
template <class... A> void brix_emit(const char* fmt, const A&... a) {
    const std::array<brix_arg, sizeof...(A)> v{brix_arg(a)...};
    brix_vemit(fmt, brix_args{v.data(), v.size()});
}
template <class... A> void brix_format(std::string& out, const char* fmt, const A&... a) {
    const std::array<brix_arg, sizeof...(A)> v{brix_arg(a)...};
    brix_vformat(out, fmt, brix_args{v.data(), v.size()});
}
template <class... A> void brix_emit_to(FILE* out, const char* fmt, const A&... a) {
    const std::array<brix_arg, sizeof...(A)> v{brix_arg(a)...};
    brix_vemit_to(out, fmt, brix_args{v.data(), v.size()});
}

// Generated files. brix_open_output opens one for writing and keeps its name for the report
// of a failed write (null when it cannot be opened; the caller has its own message).
// brix_close_output closes it and clears the pointer. A failed write or close ends the run
// through brix_write_failed, which names the file and the system's reason.
FILE* brix_open_output(const std::string& name);
void brix_close_output(FILE*& fp);
[[noreturn]] void brix_write_failed(const char* name, int error);
[[noreturn]] void brix_write_failed(FILE* fp);

// Bison's own error entry.
[[noreturn]] void yyerror(const char* message);

long long brix_pow(int32_t base, int32_t exponent);
unsigned long long brix_str_to_dec(uint32_t radix, const char* digits);
unsigned long long to_dec(const char* text);
unsigned long long get_ceil(unsigned long long a, unsigned long long b);

void* brix_malloc(std::size_t size);
// Frees what brix_malloc or brix_strdup gave; leaves what the arena gave alone.
void brix_free(void* p);
char* brix_strdup(const char* s);
// Memory for what lives until the process ends, the model and the words it is made of:
// carved from big blocks, without the per-allocation overhead of malloc, and never freed.
void* brix_arena_alloc(std::size_t size, std::size_t alignment);
char* brix_arena_strdup(const char* s);
