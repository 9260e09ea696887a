// The errors and warnings of the parser's rules, from the table in cases/parser_messages.txt
// (its head describes the form of a case).
#include "parser_test_support.hpp"

#include <fstream>
#include <string>

using namespace brix_test;

namespace {

std::string unescape(const std::string& text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) {
            out += text[++i] == 'n' ? '\n' : text[i];
        } else {
            out += text[i];
        }
    }
    return out;
}

void set_options(const std::string& words) {
    brix_gen_backdoor = words.find("backdoor") != std::string::npos;
    brix_quiet_mode = words.find("quiet") != std::string::npos;
    static char top[] = "top";
    brix_backdoor_top_path = words.find("toppath") != std::string::npos ? top : nullptr;
    const bool sv = words.find(" sv") != std::string::npos;
    const bool hx = words.find(" hx") != std::string::npos;
    target_language = const_cast<char*>(sv ? "sv" : hx ? "hx" : nullptr);
}

// Runs one case against the expectation `kind rest`.
void check(const std::string& text, const std::string& kind, const std::string& rest, int line) {
    const child_result r = parse_at_line_7(text);
    const std::string message = unescape(rest);
    SCOPED_TRACE("cases/parser_messages.txt:" + std::to_string(line));
    if (kind == "error") {
        EXPECT_EQ(r.status, 1);
        EXPECT_EQ(r.err, at(message, "t.brix", 7));
    } else if (kind == "warning" || kind == "warning-q" || kind == "ok") {
        EXPECT_EQ(r.status, 0);
        EXPECT_EQ(r.err, kind == "ok" ? "" : at(message, "t.brix", 7));
        if (kind != "ok" && !brix_quiet_mode) {
            brix_quiet_mode = 1;
            EXPECT_EQ(parse_at_line_7(text).err, kind == "warning" ? r.err : "") << "with -q";
            brix_quiet_mode = 0;
        }
    } else if (kind == "status") {
        EXPECT_EQ(r.status, std::stoi(rest));
    } else if (kind == "stderr") {
        EXPECT_EQ(r.status, std::stoi(rest));
        EXPECT_EQ(r.err, message.substr(message.find(' ') + 1));
    } else {
        ADD_FAILURE() << "unknown expectation '" << kind << "'";
    }
}

TEST(ParserMessages, EveryCaseOfTheTable) {
    option_guard guard;
    std::ifstream in(BRIX_UNIT_CASES_DIR "/parser_messages.txt");
    ASSERT_TRUE(in.good());
    std::string prefix;
    std::string description;
    int line_number = 0;
    int cases = 0;
    for (std::string line; std::getline(in, line);) {
        ++line_number;
        if (line.empty() || line[0] == '#') {
            continue;
        }
        const std::size_t space = line.find(' ');
        const std::string word = line.substr(0, space);
        const std::string rest = space == std::string::npos ? "" : line.substr(space + 1);
        if (word == "options") {
            set_options(line);
        } else if (word == "prefix") {
            prefix = unescape(rest);
        } else if (word == ">") {
            description = prefix + unescape(rest);
        } else {
            check(description, word, rest, line_number);
            ++cases;
        }
    }
    EXPECT_GT(cases, 200);
}

// Not a case of the table: the input holds no place line and no token.
TEST(ParserMessages, EmptyInputIsASyntaxErrorWithoutAPlace) {
    EXPECT_EQ(parse_in_child("").err, "\nsyntax error, unexpected $end (BRIX File:  Line: 0)\n");
}

TEST(ParserMessages, CoverSpecTextIsCheckedPairByPair) {
    const child_result r = run_in_child([] { get_cvr_spec("+a+q"); });
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err.rfind("Error: Invalid 'cover' specification...please check. (BRIX File:", 0),
              0u);
    const brix_cvr_spec_tag* spec = get_cvr_spec("+a-a");
    EXPECT_EQ(spec->addr_map, 0u);
    EXPECT_EQ(spec->reg_bits, 3u);
    EXPECT_EQ(get_cvr_spec(nullptr), nullptr);
}

} // namespace
