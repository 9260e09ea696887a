#include "driver/diag.hpp"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
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

void brix_vemit(const char* fmt, brix_args args) {
    brix_vemit_to(brx_model_fp, fmt, args);
}

namespace {
// Writes a number as printf's %d, %u or %X would: the writer's hot path, where a printf
// per number would cost more than the rest of the line.
template <class Number> void put_number(std::string& out, Number value, int base) {
    char text[24];
    const auto end = std::to_chars(text, text + sizeof text, value, base).ptr;
    if (base == 16) {
        for (char* c = text; c != end; ++c) {
            *c = static_cast<char>(toupper(static_cast<unsigned char>(*c)));
        }
    }
    out.append(text, end);
}
} // namespace

void brix_vemit_to(FILE* out, const char* fmt, brix_args args) {
    // The text of one call is put together here and handed to stdio in one piece: a call
    // into stdio per piece would cost more than the pieces.
    static std::string text;
    text.clear();
    const auto fail = [out](const char* message, char c) {
        fwrite_unlocked(text.data(), 1, text.size(), out);
        brix_error(message, c);
    };
    for (const char* p = fmt; *p != '\0'; ++p) {
        if (*p != '%') {
            // The text up to the next directive in one piece.
            const char* stop = strchrnul(p, '%');
            text.append(p, stop);
            p = stop - 1;
            continue;
        }
        if (p[1] == '\0') {
            break;
        }
        ++p;
        const char c = *p;
        if (c == 's') {
            if (const brix_arg* a = args.take(); a && a->kind == brix_arg::STR && a->s) {
                text += a->s;
            }
        } else if (c == 'c') {
            if (const brix_arg* a = args.take()) {
                text += static_cast<char>(a->as_signed());
            }
        } else if (c == 'd') {
            if (const brix_arg* a = args.take()) {
                put_number(text, static_cast<int>(a->as_signed()), 10);
            }
        } else if (c == 'f') {
            if (const brix_arg* a = args.take()) {
                char number[400];
                const int length =
                    snprintf(number, sizeof number, "%f", a->kind == brix_arg::DBL ? a->d : 0.0);
                text.append(number, static_cast<std::size_t>(length));
            }
        } else if (c == 'l') {
            ++p;
            if (*p == 'X') {
                if (const brix_arg* a = args.take()) {
                    put_number(text, static_cast<uint32_t>(a->as_unsigned()), 16);
                }
            } else if (*p == 'l') {
                ++p;
                if (*p == 'X' || *p == 'u') {
                    if (const brix_arg* a = args.take()) {
                        put_number(text, a->as_unsigned(), *p == 'X' ? 16 : 10);
                    }
                } else {
                    fail("Error: Unsupported format '%%ll%c' used in with 'brix_emit'.\n", *p);
                }
            } else {
                fail("Error: Unsupported format '%%l%c' used in with 'brix_emit'.\n", *p);
            }
        } else {
            text += c;
        }
    }
    if (fwrite_unlocked(text.data(), 1, text.size(), out) != text.size()) {
        brix_write_failed(out);
    }
}

namespace {
// The generated files now open, with their names.
std::vector<std::pair<FILE*, std::string>>& open_outputs() {
    static std::vector<std::pair<FILE*, std::string>> outputs;
    return outputs;
}

std::string output_name(FILE* fp) {
    for (const auto& [stream, name] : open_outputs()) {
        if (stream == fp) {
            return name;
        }
    }
    return "";
}
} // namespace

FILE* brix_open_output(const std::string& name) {
    FILE* fp = fopen(name.c_str(), "w");
    if (fp != nullptr) {
        open_outputs().emplace_back(fp, name);
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
    // The pointer is cleared first: the way out flushes the model's stream if it is set.
    fp = nullptr;
    if (stream == brx_model_fp) {
        brx_model_fp = nullptr;
    }
    const std::string name = output_name(stream);
    std::erase_if(open_outputs(), [stream](const auto& output) { return output.first == stream; });
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
