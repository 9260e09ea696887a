#include "driver/diag.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <link.h>
#include <unistd.h>
#include <utility>
#include <vector>

char pure_brix_file[100] = "";
char brix_src_file_name[1000] = "";
unsigned long long brix_src_file_linenum = 0;
FILE* brx_model_fp = nullptr;
int brix_quiet_mode = 0;

namespace {
std::vector<void (*)()>& exit_hooks() {
    static std::vector<void (*)()> hooks;
    return hooks;
}
void release_held_text();
} // namespace

void brix_add_exit_hook(void (*hook)()) {
    if (std::find(exit_hooks().begin(), exit_hooks().end(), hook) == exit_hooks().end()) {
        exit_hooks().push_back(hook);
    }
}

void brix_exit(int status) {
    // The writers buffer: what they were given reaches its file on every way out.
    for (auto hook = exit_hooks().rbegin(); hook != exit_hooks().rend(); ++hook) {
        (*hook)();
    }
    release_held_text();
    if (brx_model_fp != nullptr) {
        fflush(brx_model_fp);
    }
    if (pure_brix_file[0] != '\0') {
        unlink(pure_brix_file);
    }
    exit(status);
}

void brix_diag_format(const char* fmt, brix_args args) {
    for (const char* p = fmt; *p != '\0'; ++p) {
        if (*p != '%') {
            fputc(*p, stderr);
            continue;
        }
        if (p[1] == '\0') {
            break; // a lone trailing '%' writes nothing
        }
        ++p;
        if (*p == 's') {
            if (const brix_arg* a = args.take(); a && a->kind == brix_arg::STR && a->s) {
                fputs(a->s, stderr);
            }
        } else if (*p == 'd') {
            if (const brix_arg* a = args.take()) {
                fprintf(stderr, "%d", static_cast<int>(a->as_signed()));
            }
        } else if (*p == 'f') {
            if (const brix_arg* a = args.take()) {
                fprintf(stderr, "%f", a->kind == brix_arg::DBL ? a->d : 0.0);
            }
        } else {
            // Any other character stands for itself and reads no argument: "%c" shows "c".
            fputc(*p, stderr);
        }
    }
}

void brix_verror(const char* fmt, brix_args args) {
    brix_diag_format(fmt, args);
    fputc('\n', stderr);
    brix_exit(1);
}

void brix_vwarn(const char* fmt, brix_args args) {
    brix_diag_format(fmt, args);
    fputc('\n', stderr);
}

static void write_position_suffix() {
    fprintf(stderr, " (BRIX File: %s Line: %llu)\n", brix_src_file_name, brix_src_file_linenum);
}

void brix_vyyerror(const char* fmt, brix_args args) {
    fflush(stdout);
    brix_diag_format(fmt, args);
    write_position_suffix();
    brix_exit(1);
}

void brix_vyywarn(const char* fmt, brix_args args) {
    fflush(stdout);
    brix_diag_format(fmt, args);
    write_position_suffix();
}

void yyerror(const char* message) {
    fflush(stdout);
    fprintf(stderr, "\n%s (BRIX File: %s Line: %llu)\n", message, brix_src_file_name,
            brix_src_file_linenum);
    brix_exit(1);
}

namespace {
// Text put together by brix_emit: appends are its hot path, so it keeps its own size and
// room rather than going through std::string's checks.
struct emit_text {
    std::unique_ptr<char[]> data;
    std::size_t size = 0;
    std::size_t room = 0;

    void reserve(std::size_t more) {
        if (size + more > room) {
            grow(more);
        }
    }
    void grow(std::size_t more) {
        const std::size_t grown = std::max(room * 2, size + more + 4096);
        auto bigger = std::make_unique<char[]>(grown);
        if (size != 0) {
            memcpy(bigger.get(), data.get(), size);
        }
        data = std::move(bigger);
        room = grown;
    }
    void append(const char* text, std::size_t n) {
        reserve(n);
        memcpy(data.get() + size, text, n);
        size += n;
    }
    // As append, from text that can be read `copy_block` bytes beyond its end: short
    // pieces are copied as one block of fixed size, without a call.
    static constexpr std::size_t copy_block = 16;
    void append_padded(const char* text, std::size_t n) {
        if (n > copy_block) {
            append(text, n);
            return;
        }
        reserve(copy_block);
        memcpy(data.get() + size, text, copy_block);
        size += n;
    }
    // A string of unknown length: names are short, so a block's worth is copied a byte at a
    // time and only a longer rest is measured.
    void append_string(const char* text) {
        reserve(copy_block);
        char* out = data.get() + size;
        for (std::size_t n = 0; n < copy_block; ++n) {
            if (text[n] == '\0') {
                size += n;
                return;
            }
            out[n] = text[n];
        }
        size += copy_block;
        append(text + copy_block, strlen(text + copy_block));
    }
    void push(char c) {
        reserve(1);
        data[size++] = c;
    }
    // Writes it all to `out`; true when stdio took all of it.
    bool write_to(FILE* out) const {
        return size == 0 || fwrite_unlocked(data.get(), 1, size, out) == size;
    }
};

// A generated file that is open, with its name for the report of a failed write and the
// text brix_emit has given it that has not yet been handed to stdio.
struct output_file {
    FILE* fp;
    std::string name;
    emit_text held;
};

std::vector<std::unique_ptr<output_file>>& open_outputs() {
    static std::vector<std::unique_ptr<output_file>> outputs;
    return outputs;
}

// The output of the last lookup: calls mostly go to the same file one after another.
output_file* last_output = nullptr;

output_file* search_outputs(FILE* fp) {
    for (const auto& output : open_outputs()) {
        if (output->fp == fp) {
            return last_output = output.get();
        }
    }
    return nullptr;
}

output_file* output_of(FILE* fp) {
    if (last_output != nullptr && last_output->fp == fp) {
        return last_output;
    }
    return search_outputs(fp);
}

std::string output_name(FILE* fp) {
    const output_file* output = output_of(fp);
    return output != nullptr ? output->name : "";
}

// Hands the held text to stdio; a failed write ends the run.
void hand_over(output_file& output) {
    const bool written = output.held.write_to(output.fp);
    output.held.size = 0;
    if (!written) {
        brix_write_failed(output.fp);
    }
}

// On the way out what brix_emit holds reaches stdio too; a second failure is not reported.
void release_held_text() {
    for (const auto& output : open_outputs()) {
        output->held.write_to(output->fp);
        output->held.size = 0;
    }
}

// Held text goes to stdio in pieces of about this size: a call into stdio per call of
// brix_emit would cost more than the formatting.
constexpr std::size_t hold_limit = std::size_t{1} << 16;

// Writes a number as printf's %d, %u or %X would: the writer's hot path, where a printf
// per number would cost more than the rest of the line.
template <class Number> void put_number(emit_text& out, Number value, int base) {
    char text[24];
    const auto end = std::to_chars(text, text + sizeof text, value, base).ptr;
    if (base == 16) {
        for (char* c = text; c != end; ++c) {
            if (*c >= 'a') {
                *c = static_cast<char>(*c - 'a' + 'A');
            }
        }
    }
    out.append(text, static_cast<std::size_t>(end - text));
}

// One directive's text, its argument taken from `args`. The codes: 's', 'c', 'd', 'f',
// 'x' for %lX, 'X' for %llX and 'u' for %llu.
void put_directive(emit_text& text, char code, brix_args& args) {
    const brix_arg* a = args.take();
    if (a == nullptr) {
        return;
    }
    switch (code) {
    case 's':
        if (a->kind == brix_arg::STR && a->s != nullptr) {
            text.append_string(a->s);
        }
        break;
    case 'c':
        text.push(static_cast<char>(a->as_signed()));
        break;
    case 'd':
        put_number(text, static_cast<int>(a->as_signed()), 10);
        break;
    case 'f': {
        char number[400];
        const int length =
            snprintf(number, sizeof number, "%f", a->kind == brix_arg::DBL ? a->d : 0.0);
        text.append(number, static_cast<std::size_t>(length));
        break;
    }
    case 'x':
        put_number(text, static_cast<uint32_t>(a->as_unsigned()), 16);
        break;
    default:
        put_number(text, a->as_unsigned(), code == 'X' ? 16 : 10);
        break;
    }
}

// A format read once: its literal text, with the directives' places in it. Any other letter
// after '%' stands for itself and is literal text; a lone trailing '%' writes nothing. An
// unsupported length directive ends the pieces, with the message that ends the run.
struct parsed_format {
    struct piece {
        std::size_t start, length; // of the literal text before the directive
        char code;                 // the directive, 0 after the last literal text
    };
    const char* key = nullptr;
    std::string fmt; // what was read, to tell a format from another at the same address
    std::string literal;
    std::vector<piece> pieces;
    const char* unsupported = nullptr;
    char bad = 0;
    bool literal_format = false; // in the program's read-only image: cannot change
};

// The directive after a '%' at `p`: its code and length, code 0 for a letter that stands
// for itself, or null length for an unsupported length directive.
std::pair<char, int> read_directive(const char* p) {
    switch (*p) {
    case 's':
    case 'c':
    case 'd':
    case 'f':
        return {*p, 1};
    case 'l':
        if (p[1] == 'X') {
            return {'x', 2};
        }
        if (p[1] == 'l' && (p[2] == 'X' || p[2] == 'u')) {
            return {p[2], 3};
        }
        return {'?', 0};
    default:
        return {0, 1};
    }
}

void parse_format(parsed_format& f, const char* fmt) {
    f.key = fmt;
    f.fmt = fmt;
    f.literal.clear();
    f.pieces.clear();
    f.unsupported = nullptr;
    std::size_t start = 0;
    for (const char* p = fmt; *p != '\0' && !(*p == '%' && p[1] == '\0'); ++p) {
        if (*p != '%') {
            f.literal += *p;
            continue;
        }
        const auto [code, length] = read_directive(p + 1);
        if (length == 0) {
            f.bad = p[2] == 'l' ? p[3] : p[2];
            f.unsupported = p[2] == 'l'
                                ? "Error: Unsupported format '%%ll%c' used in with 'brix_emit'.\n"
                                : "Error: Unsupported format '%%l%c' used in with 'brix_emit'.\n";
            break;
        }
        if (code == 0) {
            f.literal += p[1];
        } else {
            f.pieces.push_back({start, f.literal.size() - start, code});
            start = f.literal.size();
        }
        p += length;
    }
    f.pieces.push_back({start, f.literal.size() - start, 0});
    f.literal.append(emit_text::copy_block, '\0');
}

// The read-only parts of the program's own image, where its string literals lie.
std::vector<std::pair<std::uintptr_t, std::uintptr_t>> read_only_image() {
    std::vector<std::pair<std::uintptr_t, std::uintptr_t>> ranges;
    dl_iterate_phdr(
        [](dl_phdr_info* info, std::size_t, void* data) {
            auto& found = *static_cast<decltype(ranges)*>(data);
            for (int i = 0; i < info->dlpi_phnum; ++i) {
                const ElfW(Phdr)& h = info->dlpi_phdr[i];
                if (h.p_type == PT_LOAD && (h.p_flags & PF_W) == 0) {
                    const std::uintptr_t begin = info->dlpi_addr + h.p_vaddr;
                    found.emplace_back(begin, begin + h.p_memsz);
                }
            }
            return 1; // the program itself comes first
        },
        &ranges);
    return ranges;
}

bool is_literal(const char* p) {
    static const auto ranges = read_only_image();
    const auto address = reinterpret_cast<std::uintptr_t>(p);
    return std::any_of(ranges.begin(), ranges.end(), [address](const auto& r) {
        return address >= r.first && address < r.second;
    });
}

// The formats are mostly the few templates of the generators, used over and over: each is
// read once and kept by its address. A format that is not a literal of the program, and
// so may have changed, is checked against its text at every use.
const parsed_format& parsed(const char* fmt) {
    static std::array<parsed_format, 1024> kept;
    const auto address = reinterpret_cast<std::uintptr_t>(fmt);
    parsed_format& f = kept[((address >> 3) * 0x9E3779B97F4A7C15ULL >> 54) % kept.size()];
    if (f.key != fmt) {
        parse_format(f, fmt);
        f.literal_format = is_literal(fmt);
    } else if (!f.literal_format && strcmp(f.fmt.c_str(), fmt) != 0) {
        parse_format(f, fmt);
    }
    return f;
}

// Appends the text of one call; returns the parsed format for its unsupported directive.
const parsed_format& format_into(emit_text& text, const char* fmt, brix_args args) {
    const parsed_format& f = parsed(fmt);
    for (const parsed_format::piece& p : f.pieces) {
        text.append_padded(f.literal.data() + p.start, p.length);
        if (p.code == 's' && args.next < args.count) {
            // The most common directive, without the call.
            const brix_arg& a = args.args[args.next++];
            if (a.kind == brix_arg::STR && a.s != nullptr) {
                text.append_string(a.s);
            }
        } else if (p.code != 0) {
            put_directive(text, p.code, args);
        }
    }
    return f;
}
} // namespace

void brix_vemit(const char* fmt, brix_args args) {
    brix_vemit_to(brx_model_fp, fmt, args);
}

namespace {
// The text to which a call's output is appended: a generated file's held text, or for any
// other stream a piece of its own that goes out at the end of the call.
emit_text& text_for(FILE* out, output_file*& output) {
    static emit_text direct;
    output = output_of(out);
    direct.size = 0;
    return output != nullptr ? output->held : direct;
}

// Ends a call: held text goes to stdio once there is enough of it, other text at once. A
// call that failed on an unsupported directive writes what it has and reports no failed
// write.
void finish_call(FILE* out, output_file* output, emit_text& text, bool complete) {
    if (output == nullptr) {
        if (!text.write_to(out) && complete) {
            brix_write_failed(out);
        }
    } else if (text.size >= hold_limit && complete) {
        hand_over(*output);
    }
}
} // namespace

void brix_vemit_to(FILE* out, const char* fmt, brix_args args) {
    output_file* output = nullptr;
    emit_text& text = text_for(out, output);
    const parsed_format& f = format_into(text, fmt, args);
    finish_call(out, output, text, f.unsupported == nullptr);
    if (f.unsupported != nullptr) {
        brix_error(f.unsupported, f.bad);
    }
}

void brix_write_text(FILE* out, std::string_view piece) {
    output_file* output = nullptr;
    emit_text& text = text_for(out, output);
    text.append(piece.data(), piece.size());
    finish_call(out, output, text, true);
}

void brix_vformat(std::string& out, const char* fmt, brix_args args) {
    static emit_text text;
    text.size = 0;
    const parsed_format& f = format_into(text, fmt, args);
    out.append(text.data.get(), text.size);
    if (f.unsupported != nullptr) {
        brix_error(f.unsupported, f.bad);
    }
}

FILE* brix_open_output(const std::string& name) {
    FILE* fp = fopen(name.c_str(), "w");
    if (fp != nullptr) {
        open_outputs().push_back(std::make_unique<output_file>(output_file{fp, name, {}}));
    }
    return fp;
}

void brix_write_failed(const char* name, int error) {
    brix_error("Error: Failed to write file '%s' (%s).", name, strerror(error != 0 ? error : EIO));
}

void brix_write_failed(FILE* fp) {
    const int error = errno;
    brix_write_failed(output_name(fp).c_str(), error);
}

void brix_close_output(FILE*& fp) {
    FILE* const stream = fp;
    if (output_file* output = output_of(stream)) {
        hand_over(*output);
    }
    // The pointer is cleared first: the way out flushes the model's stream if it is set.
    fp = nullptr;
    if (stream == brx_model_fp) {
        brx_model_fp = nullptr;
    }
    const std::string name = output_name(stream);
    last_output = nullptr;
    std::erase_if(open_outputs(), [stream](const auto& output) { return output->fp == stream; });
    errno = 0;
    const bool failed = fflush(stream) != 0 || ferror(stream) != 0;
    const int error = errno;
    if (fclose(stream) != 0 || failed) {
        brix_write_failed(name.c_str(), error != 0 ? error : errno);
    }
}

long long brix_pow(int32_t base, int32_t exponent) {
    // Square-and-multiply gives the same wrapped product as multiplying `exponent` times.
    uint64_t result = 1;
    uint64_t factor = static_cast<uint64_t>(static_cast<int64_t>(base));
    for (uint32_t e = exponent > 0 ? static_cast<uint32_t>(exponent) : 0; e != 0; e >>= 1) {
        if (e & 1U) {
            result *= factor;
        }
        factor *= factor;
    }
    return static_cast<long long>(result);
}

unsigned long long brix_str_to_dec(uint32_t radix, const char* digits) {
    uint64_t value = 0;
    uint64_t weight = 1; // radix to the power of the digit's position
    for (std::size_t n = strlen(digits); n-- > 0;) {
        const char c = digits[n];
        if (c == '_') {
            continue;
        }
        int64_t digit;
        if (c >= 'A' && c <= 'F') {
            digit = c - 'A' + 10;
        } else if (c >= 'a' && c <= 'f') {
            digit = c - 'a' + 10;
        } else {
            digit = c - '0';
        }
        value += static_cast<uint64_t>(digit) * weight;
        weight *= radix;
    }
    return value;
}

unsigned long long to_dec(const char* text) {
    for (const char* p = text;; ++p) {
        if (*p == '\'') {
            uint32_t radix = 0;
            switch (p[1]) {
            case 'h':
                radix = 16;
                break;
            case 'b':
                radix = 2;
                break;
            case 'o':
                radix = 8;
                break;
            case 'd':
                radix = 10;
                break;
            default:
                brix_error("Error: Unsupported number system '%c' specified.", p[1]);
            }
            return brix_str_to_dec(radix, p + 2);
        }
        if (p[0] == '0' && (p[1] == 'x' || p[1] == 'X')) {
            return brix_str_to_dec(16, p + 2);
        }
        if (*p == '\0') {
            return brix_str_to_dec(10, text);
        }
    }
}

unsigned long long get_ceil(unsigned long long a, unsigned long long b) {
    return a / b + (a % b != 0 ? 1 : 0);
}

void* brix_malloc(std::size_t size) {
    return malloc(size);
}
char* brix_strdup(const char* s) {
    return strdup(s);
}

namespace {
// The blocks of the arena, by address, each with its end.
std::map<const char*, const char*>& arena_blocks() {
    static std::map<const char*, const char*> blocks;
    return blocks;
}

bool in_arena(const void* p) {
    // The parser frees its tokens as it uses them, so a pointer mostly lies in the block
    // of the last hit; only a miss searches the map.
    static std::uintptr_t hit_begin = 0;
    static std::uintptr_t hit_end = 0;
    const auto address = reinterpret_cast<std::uintptr_t>(p);
    if (address >= hit_begin && address < hit_end) {
        return true;
    }
    const auto& blocks = arena_blocks();
    const char* c = static_cast<const char*>(p);
    auto it = blocks.upper_bound(c);
    if (it == blocks.begin() || c >= (--it)->second) {
        return false;
    }
    hit_begin = reinterpret_cast<std::uintptr_t>(it->first);
    hit_end = reinterpret_cast<std::uintptr_t>(it->second);
    return true;
}
} // namespace

namespace {
// Memory carved front to back from big blocks.
struct arena_lane {
    char* next = nullptr;
    std::size_t left = 0;
};
} // namespace

void* brix_arena_alloc(std::size_t size, std::size_t alignment) {
    constexpr std::size_t block_size = std::size_t{1} << 20;
    // Words and the small records of lesser alignment have a lane of their own: mixed with
    // the pointer-aligned records, each would leave padding behind it.
    static arena_lane aligned;
    static arena_lane packed;
    if (size > block_size / 4) {
        return brix_malloc(size);
    }
    arena_lane& lane = alignment >= alignof(void*) ? aligned : packed;
    std::size_t pad =
        (alignment - reinterpret_cast<std::uintptr_t>(lane.next) % alignment) % alignment;
    if (lane.next == nullptr || pad + size > lane.left) {
        // The rest of the block is left unused; a failed allocation gives null, as malloc.
        lane.next = static_cast<char*>(brix_malloc(block_size));
        if (lane.next == nullptr) {
            lane.left = 0;
            return nullptr;
        }
        arena_blocks().emplace(lane.next, lane.next + block_size);
        lane.left = block_size;
        pad = 0;
    }
    void* p = lane.next + pad;
    lane.next += pad + size;
    lane.left -= pad + size;
    return p;
}

char* brix_arena_strdup(const char* s) {
    const std::size_t size = strlen(s) + 1;
    auto* copy = static_cast<char*>(brix_arena_alloc(size, 1));
    return copy != nullptr ? static_cast<char*>(memcpy(copy, s, size)) : nullptr;
}

void brix_free(void* p) {
    if (!in_arena(p)) {
        free(p);
    }
}
