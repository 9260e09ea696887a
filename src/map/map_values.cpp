#include <cctype>
#include <cstdio>
#include <string_view>

#include "map/map_outputs.hpp"

std::optional<uint64_t> number_of(const std::string& text) {
    unsigned radix = 10;
    std::string_view digits = text;
    if (const size_t q = text.find('\''); q != std::string::npos && q + 1 < text.size()) {
        const char r = static_cast<char>(tolower(text[q + 1]));
        radix = r == 'h' ? 16 : r == 'b' ? 2 : r == 'o' ? 8 : r == 'd' ? 10 : 0;
        digits = std::string_view(text).substr(q + 2);
    } else if (text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
        radix = 16;
        digits = std::string_view(text).substr(2);
    }
    uint64_t value = 0;
    bool any = false;
    for (const char c : digits) {
        if (c == '_') {
            continue;
        }
        const int d = isdigit(static_cast<unsigned char>(c))    ? c - '0'
                      : isxdigit(static_cast<unsigned char>(c)) ? tolower(c) - 'a' + 10
                                                                : 99;
        if (radix == 0 || d >= static_cast<int>(radix) || value > (UINT64_MAX - d) / radix) {
            return std::nullopt;
        }
        value = value * radix + static_cast<uint64_t>(d);
        any = true;
    }
    return any ? std::optional<uint64_t>(value) : std::nullopt;
}

std::optional<uint64_t> reset_value(const map_field& f) {
    return f.hard_reset ? number_of(*f.hard_reset) : std::optional<uint64_t>(0);
}

bool is_reserved(const map_field& f) {
    return f.name == "unused" || f.name == "reserved";
}

std::string hex_text(uint64_t v) {
    char buf[24];
    snprintf(buf, sizeof buf, "0x%llX", static_cast<unsigned long long>(v));
    return buf;
}

uint64_t field_mask(const map_field& f) {
    const uint64_t ones = f.width >= 64 ? ~uint64_t{0} : (uint64_t{1} << f.width) - 1;
    return f.lsb >= 64 ? 0 : ones << f.lsb;
}
