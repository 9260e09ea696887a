// The scanner on its own: token classes, start conditions, line counting, the bytes that
// no rule takes, which go to the standard output, and bodies and strings read from a file
// across the refills of the input buffer.
#include "parser_test_support.hpp"

#include "grammar.hpp"

#include <chrono>
#include <functional>
#include <vector>

// The scanner's own buffer calls, to read from a file as the driver does.
struct yy_buffer_state;
yy_buffer_state* yy_create_buffer(FILE* file, int size);
void yy_switch_to_buffer(yy_buffer_state* buffer);

using namespace brix_test;

namespace {

struct token {
    int kind;
    std::string text; // the semantic text, for the tokens that carry one
    bool operator==(const token&) const = default;
};

bool carries_text(int kind) {
    return kind == IDENTIFIER || kind == DECIMAL_INT || kind == NUMBER || kind == STRING_LIT ||
           kind == COVER_SPEC || kind == DOC_BODY || kind == CONSTRAINT_BODY;
}

struct scan_result {
    std::vector<token> tokens;
    std::string echoed;
};

scan_result scan(const char* text) {
    initialize();
    brix_src_file_linenum = 0;
    brix_scanner_use_string(text);
    scan_result result;
    testing::internal::CaptureStdout();
    for (int kind; (kind = yylex()) != 0;) {
        result.tokens.push_back({kind, carries_text(kind) ? yylval.str : ""});
    }
    fflush(stdout);
    result.echoed = testing::internal::GetCapturedStdout();
    return result;
}

std::vector<token> tokens_of(const char* text) {
    return scan(text).tokens;
}

TEST(Scanner, NumbersAndIdentifiersAtTheirEdges) {
    EXPECT_EQ(tokens_of("0x"), (std::vector<token>{{DECIMAL_INT, "0"}, {IDENTIFIER, "x"}}));
    EXPECT_EQ(tokens_of("_1a _1 __"),
              (std::vector<token>{{IDENTIFIER, "_1a"}, {DECIMAL_INT, "_1"}, {DECIMAL_INT, "__"}}));
    EXPECT_EQ(tokens_of("0x1F 8'hFF 'b1_0 12'd9 3'o7 8'hxz"),
              (std::vector<token>{{NUMBER, "0x1F"},
                                  {NUMBER, "8'hFF"},
                                  {NUMBER, "'b1_0"},
                                  {NUMBER, "12'd9"},
                                  {NUMBER, "3'o7"},
                                  {NUMBER, "8'hxz"}}));
    EXPECT_EQ(tokens_of("reset reset1 hard_reset"),
              (std::vector<token>{{HARD_RESET, ""}, {IDENTIFIER, "reset1"}, {HARD_RESET, ""}}));
}

TEST(Scanner, UnreadRadixFormsLeaveTheApostropheOnStdout) {
    scan_result r = scan("12'h");
    EXPECT_EQ(r.tokens, (std::vector<token>{{DECIMAL_INT, "12"}, {IDENTIFIER, "h"}}));
    EXPECT_EQ(r.echoed, "'");
    r = scan("4'B1");
    EXPECT_EQ(r.tokens, (std::vector<token>{{DECIMAL_INT, "4"}, {IDENTIFIER, "B1"}}));
    EXPECT_EQ(r.echoed, "'");
    r = scan("7' 'd_ 'o8");
    EXPECT_EQ(r.tokens,
              (std::vector<token>{{DECIMAL_INT, "7"}, {NUMBER, "'d_"}, {IDENTIFIER, "o8"}}));
    EXPECT_EQ(r.echoed, "''");
}

TEST(Scanner, BackquoteStartsAnIdentifierOnly) {
    EXPECT_EQ(tokens_of("a`b"), (std::vector<token>{{IDENTIFIER, "a"}, {IDENTIFIER, "`b"}}));
}

TEST(Scanner, StrayCharactersGoToStdout) {
    scan_result r = scan("+f-a");
    EXPECT_EQ(r.tokens, (std::vector<token>{{'+', ""}, {IDENTIFIER, "f"}, {IDENTIFIER, "a"}}));
    EXPECT_EQ(r.echoed, "-");
    r = scan("a;b \"#");
    EXPECT_EQ(r.tokens, (std::vector<token>{{IDENTIFIER, "a"}, {IDENTIFIER, "b"}}));
    EXPECT_EQ(r.echoed, ";\"#");
    EXPECT_EQ(tokens_of("++ -- @ %"),
              (std::vector<token>{{INC_OP, ""}, {DEC_OP, ""}, {'@', ""}, {'%', ""}}));
}

TEST(Scanner, ConstraintAndDocBodiesAreRawText) {
    EXPECT_EQ(tokens_of("constraint c {}"),
              (std::vector<token>{{CONSTRAINT, ""}, {IDENTIFIER, "c"}, {'{', ""}, {'}', ""}}));
    // Keywords are plain identifiers in a constraint head; braces nest in a body.
    EXPECT_EQ(tokens_of("constraint field { a { b } ; } bits"),
              (std::vector<token>{{CONSTRAINT, ""},
                                  {IDENTIFIER, "field"},
                                  {'{', ""},
                                  {CONSTRAINT_BODY, " a { b } ; "},
                                  {'}', ""},
                                  {BITS, ""}}));
    EXPECT_EQ(tokens_of("doc {\nfield x\n}"),
              (std::vector<token>{{DOC, ""}, {'{', ""}, {DOC_BODY, "\nfield x\n"}, {'}', ""}}));
    EXPECT_EQ(tokens_of("doc\n{}"), (std::vector<token>{{DOC, ""}, {'{', ""}, {'}', ""}}));
}

TEST(Scanner, CoverTakesOnlyItsSpecAndDropsTheRest) {
    scan_result r = scan("cover = +b-a field");
    EXPECT_EQ(r.tokens, (std::vector<token>{{COVER, ""}, {COVER_SPEC, "+b-a"}, {FIELD, ""}}));
    EXPECT_EQ(r.echoed, "=");
    // A trailing sign is not part of the spec.
    EXPECT_EQ(tokens_of("cover -f+x"),
              (std::vector<token>{{COVER, ""}, {COVER_SPEC, "-f"}, {'+', ""}, {IDENTIFIER, "x"}}));
}

TEST(Scanner, AttributesHaveTheirOwnWords) {
    EXPECT_EQ(tokens_of("attributes { size \"x y\n\", n 8, _ }"),
              (std::vector<token>{{ATTRIBUTES, ""},
                                  {'{', ""},
                                  {IDENTIFIER, "size"},
                                  {STRING_LIT, "x y\n"},
                                  {',', ""},
                                  {IDENTIFIER, "n"},
                                  {DECIMAL_INT, "8"},
                                  {',', ""},
                                  {DECIMAL_INT, "_"},
                                  {'}', ""}}));
}

TEST(Scanner, HashLinesSetThePlaceAndTheirOwnNewlineDoesNotCount) {
    // A whole hash line is one token; its place holds from the next token on.
    initialize();
    brix_scanner_use_string("BRIX_HASHLINE 12 dir/top.brix\na\nb");
    brix_src_file_linenum = 3;
    EXPECT_EQ(yylex(), WHOLE_HASHLINE);
    EXPECT_EQ(brix_src_file_linenum, 3u);
    EXPECT_EQ(yylex(), IDENTIFIER);
    EXPECT_STREQ(brix_src_file_name, "dir/top.brix");
    EXPECT_EQ(brix_src_file_linenum, 12u);
    EXPECT_EQ(yylex(), IDENTIFIER);
    EXPECT_EQ(brix_src_file_linenum, 13u);
    // After blanks too.
    scan_result r = scan(" \tBRIX_HASHLINE 5 a.brix\n");
    EXPECT_EQ(r.tokens, (std::vector<token>{{WHOLE_HASHLINE, ""}}));
    EXPECT_STREQ(brix_src_file_name, "a.brix");
    EXPECT_EQ(brix_src_file_linenum, 5u);
    // Other shapes come token by token: all digits is a line number, digits and letters
    // a file name.
    r = scan("BRIX_HASHLINE\t7\n dir/top.brix");
    EXPECT_EQ(r.tokens, (std::vector<token>{{HASHLINE, ""}, {LINENUM, ""}, {FILENAME, ""}}));
    EXPECT_EQ(brix_src_file_linenum, 7u);
    r = scan("BRIX_HASHLINE 12x");
    EXPECT_EQ(r.tokens, (std::vector<token>{{HASHLINE, ""}, {FILENAME, ""}}));
    EXPECT_STREQ(brix_src_file_name, "12x");
    r = scan("BRIX_HASHLINE 1 2 3x");
    EXPECT_EQ(r.tokens,
              (std::vector<token>{{HASHLINE, ""}, {LINENUM, ""}, {LINENUM, ""}, {FILENAME, ""}}));
    EXPECT_EQ(tokens_of("BRIX_HASHLINEx"), (std::vector<token>{{IDENTIFIER, "BRIX_HASHLINEx"}}));
}

TEST(Scanner, NewlinesInBodiesAndStringsCount) {
    // The parser clears the flag after a line number; here the scanner alone runs, so
    // the first newline counts for nothing, like the one ending a hash line.
    initialize();
    brix_scanner_use_string("\na\nb\n");
    brix_src_file_linenum = 12;
    while (yylex() != 0) {
    }
    EXPECT_EQ(brix_src_file_linenum, 14u);

    initialize();
    brix_scanner_use_string("\ndoc {\n\n\n}");
    brix_src_file_linenum = 12;
    while (yylex() != 0) {
    }
    EXPECT_EQ(brix_src_file_linenum, 15u);

    initialize();
    brix_scanner_use_string("\nattributes { a \"x\ny\" }\n");
    brix_src_file_linenum = 1;
    while (yylex() != 0) {
    }
    EXPECT_EQ(brix_src_file_linenum, 3u);
}

TEST(Scanner, UnterminatedBodyEndsTheRun) {
    const child_result r = run_in_child([] {
        initialize();
        brix_scanner_use_string("doc { never closed");
        while (yylex() != 0) {
        }
    });
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err.rfind("Fatal error: realloc of ", 0), 0u) << r.err;
}

// Scans `bytes` (NULs allowed) from a file through a fresh 16384-byte buffer; `each` sees
// every token as it comes.
std::vector<token> scan_file(
    const std::string& bytes, const std::function<void(int)>& each = [](int) {}) {
    initialize();
    brix_scanner_use_string(""); // back to the initial start condition
    FILE* f = tmpfile();
    fwrite(bytes.data(), 1, bytes.size(), f);
    rewind(f);
    yy_switch_to_buffer(yy_create_buffer(f, 16384));
    brix_src_file_linenum = 1;
    std::vector<token> tokens;
    for (int kind; (kind = yylex()) != 0;) {
        tokens.push_back({kind, carries_text(kind) ? yylval.str : ""});
        each(kind);
    }
    fclose(f);
    return tokens;
}

// A long text with braces and newlines spread over it, balanced.
std::string long_body(int lines) {
    std::string body = "\n";
    for (int i = 0; i < lines; ++i) {
        body += "  x" + std::to_string(i) + " { y } " + std::string(i % 300, 'z') + "\n";
    }
    return body;
}

TEST(ScannerFile, BodiesLongerThanTheInputBufferKeepEveryByte) {
    const std::string body = long_body(400); // about 80 KB
    const std::vector<token> got =
        scan_file("doc {" + body + "} constraint c {" + body + "} field after\n");
    const std::vector<token> want = {{DOC, ""},
                                     {'{', ""},
                                     {DOC_BODY, body},
                                     {'}', ""},
                                     {CONSTRAINT, ""},
                                     {IDENTIFIER, "c"},
                                     {'{', ""},
                                     {CONSTRAINT_BODY, body},
                                     {'}', ""},
                                     {FIELD, ""},
                                     {IDENTIFIER, "after"}};
    EXPECT_EQ(got, want);
    // The first newline counts for nothing (no hash line came), every other one counts.
    EXPECT_EQ(brix_src_file_linenum, 1u + 2 * 401);
}

TEST(ScannerFile, OneLongLineAndALongStringLiteral) {
    const std::string line(100000, 'q');
    const std::string text = "a\n" + std::string(50000, 'w') + "\nb";
    const std::vector<token> got =
        scan_file("doc {" + line + "} attributes { k \"" + text + "\" }");
    const std::vector<token> want = {{DOC, ""},         {'{', ""},          {DOC_BODY, line},
                                     {'}', ""},         {ATTRIBUTES, ""},   {'{', ""},
                                     {IDENTIFIER, "k"}, {STRING_LIT, text}, {'}', ""}};
    EXPECT_EQ(got, want);
}

TEST(ScannerFile, HashLinesCutByTheBufferEndAreWholeToo) {
    // After blanks a hash line is read by hand unless the buffer ends within it; then the
    // rules read it. Shifting the text moves the buffer's end through every part of one.
    for (int shift = 0; shift < 45; ++shift) {
        std::string text(shift, ' ');
        std::vector<token> want;
        for (int line = 1; text.size() < 20000; ++line) {
            const std::string n = std::to_string(line);
            text += " BRIX_HASHLINE " + n + " dir/f" + n + ".brix\n" + "x" + n;
            want.push_back({WHOLE_HASHLINE, ""});
            want.push_back({IDENTIFIER, "x" + n});
        }
        int wrong_places = 0;
        const std::vector<token> got = scan_file(text, [&](int kind) {
            if (kind == IDENTIFIER) {
                const std::string n = yylval.str + 1;
                wrong_places += std::to_string(brix_src_file_linenum) != n ||
                                brix_src_file_name != "dir/f" + n + ".brix";
            }
        });
        EXPECT_EQ(got, want) << shift;
        EXPECT_EQ(wrong_places, 0) << shift;
    }
}

TEST(ScannerFile, ANulInABodyIsTextNotTheEnd) {
    // The body's text is a C string and ends at the NUL; the reader goes on to the brace.
    const child_result r = run_in_child([] {
        constexpr char bytes[] = "doc { a\0b { c } } bits";
        const std::vector<token> want = {
            {DOC, ""}, {'{', ""}, {DOC_BODY, " a"}, {'}', ""}, {BITS, ""}};
        std::fputs(scan_file(std::string(bytes, sizeof bytes - 1)) == want ? "same" : "differs",
                   stdout);
    });
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.out, "same");
    EXPECT_EQ(r.err, "");
}

TEST(ScannerFile, UnterminatedStringEndsTheRun) {
    const child_result r = run_in_child([] { scan_file("attributes { a \"never closed"); });
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err.rfind("Fatal error: realloc of ", 0), 0u) << r.err;
    const std::string tail = " bytes failed.\n\n";
    ASSERT_GE(r.err.size(), tail.size());
    EXPECT_EQ(r.err.substr(r.err.size() - tail.size()), tail);
}

} // namespace

// One long name, number or body scans in about the time of as much ordinary text: flex must
// not rescan the token from its start at every refill of its buffer. Quadratic, 16 MB takes
// half a minute; the bound leaves ample room for a slow or loaded machine.
TEST(Scanner, LongTokensScanInLinearTime) {
    constexpr std::size_t size = std::size_t{16} << 20;
    const auto seconds_to_scan = [](const std::string& text) {
        FILE* in = tmpfile();
        fwrite(text.data(), 1, text.size(), in);
        rewind(in);
        initialize();
        brix_scanner_restart(in);
        const auto start = std::chrono::steady_clock::now();
        int tokens = 0;
        while (yylex() != 0) {
            ++tokens;
        }
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        fclose(in);
        return std::pair{tokens, took.count()};
    };
    std::string ordinary;
    while (ordinary.size() < size) {
        ordinary += "field f { bits 8 }\n";
    }
    const double ordinary_seconds = seconds_to_scan(ordinary).second;
    for (const auto& [text, count] : {std::pair{std::string(size, 'a'), 1},
                                      {std::string(size, '7'), 1},
                                      {"'h" + std::string(size, 'f'), 1},
                                      {"doc {" + std::string(size, 'h') + "}", 4}}) {
        const auto [tokens, took] = seconds_to_scan(text);
        EXPECT_EQ(tokens, count);
        EXPECT_LT(took, 4 * ordinary_seconds + 1.0) << text.substr(0, 3);
    }
    brix_scanner_use_string("");
}
