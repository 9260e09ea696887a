// The pre-pass that shields subscripts such as r[3:0] and r[%d] from Tcl's command
// substitution. The text passes through Tcl twice (the script, then the `puts` of each
// word), so each bracket goes behind three backslashes: "\\\[" becomes "\[" and then "[".
// Constraint bodies are SystemVerilog printed without the second pass, so they are found
// first and left as they stand.
#include "expand/expand.hpp"

#include <cstring>

namespace {

// Character classes of the plain locale, whatever locale Tcl may have set.
bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}
bool is_alnum(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool is_word(char c) {
    return is_alnum(c) || c == '_';
}
bool is_subscript_char(char c) {
    return (c >= '0' && c <= '9') || c == ':' || c == '%' || c == 'd';
}

// Recognises "constraint <name> {" and follows the braces of the body after it.
// States 1 to 10 have matched that many letters of the keyword; 11 and 12 are in the
// blanks before and in the name, 13 in the blanks behind it, 14 and on inside the body.
struct constraint_finder {
    int state = 0;
    bool in_body = false;

    void step(const char* text, const char* p) {
        static const char keyword_tail[] = "onstraint";
        const char c = *p;
        if (state == 0) {
            if (c == 'c' && p != text && !is_word(p[-1])) {
                state = 1;
            }
        } else if (state <= 9) {
            state = c == keyword_tail[state - 1] ? state + 1 : 0;
        } else if (state == 10) {
            state = is_blank(c) ? 11 : 0;
        } else if (state == 11) {
            state = is_blank(c) ? 11 : is_word(c) ? 12 : 0;
        } else if (state == 12) {
            state = is_blank(c) ? 13 : is_word(c) ? 12 : 0;
        } else if (state == 13) {
            if (is_blank(c)) {
                state = 13;
            } else if (c == '{') {
                state = 14;
                in_body = true;
            } else {
                state = 0;
            }
        } else if (c == '{') {
            ++state;
        } else if (c == '}' && --state == 13) {
            in_body = false;
            state = 0;
        }
    }
};

} // namespace

std::string protect_brix_subscripts(const char* text) {
    std::string out;
    out.reserve(strlen(text));
    constraint_finder finder;
    for (const char* p = text; *p != '\0';) {
        if (finder.state == 0) {
            // Nothing under way: only a bracket or the start of the keyword is looked at.
            const std::size_t plain = strcspn(p, "[c");
            out.append(p, plain);
            p += plain;
            if (*p == '\0') {
                break;
            }
        }
        finder.step(text, p);
        if (*p != '[' || finder.in_body) {
            out += *p++;
            continue;
        }
        const char* run = p + 1;
        const char* end = run;
        while (is_subscript_char(*end)) {
            ++end;
        }
        if (*end == '\0') {
            // A subscript cut off by the end of the text is dropped.
            break;
        }
        if (*end == ']') {
            out += "\\\\\\[";
            out.append(run, end);
            out += "\\\\\\";
            p = end; // the "]" goes on as an ordinary byte
        } else {
            // Tcl's own brackets: copied, and the byte that ended the run is not looked at.
            out.append(p, end + 1);
            p = end + 1;
        }
    }
    return out;
}
