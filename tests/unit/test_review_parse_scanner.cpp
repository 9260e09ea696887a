// Bodies and strings read from a file, across the refills of the scanner's input buffer,
// and the arithmetic of symbol hashes and register widths on absurd inputs.
#include "parser_test_support.hpp"

#include "grammar.hpp"

#include <chrono>
#include <vector>

// The scanner's own buffer calls, to read from a file as the driver does.
struct yy_buffer_state;
yy_buffer_state* yy_create_buffer(FILE* file, int size);
void yy_switch_to_buffer(yy_buffer_state* buffer);

using namespace brix_test;

namespace {

struct token {
    int kind;
    std::string text;
    bool operator==(const token&) const = default;
};

// Scans `bytes` (NULs allowed) from a file through a fresh 16384-byte buffer.
std::vector<token> scan_file(const std::string& bytes) {
    initialize();
    brix_scanner_use_string(""); // back to the initial start condition
    FILE* f = tmpfile();
    fwrite(bytes.data(), 1, bytes.size(), f);
    rewind(f);
    yy_switch_to_buffer(yy_create_buffer(f, 16384));
    brix_src_file_linenum = 1;
    std::vector<token> tokens;
    for (int kind; (kind = yylex()) != 0;) {
        const bool text =
            kind == DOC_BODY || kind == CONSTRAINT_BODY || kind == STRING_LIT || kind == IDENTIFIER;
        tokens.push_back({kind, text ? yylval.str : ""});
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

TEST(ReviewParseScanner, BodiesLongerThanTheInputBufferKeepEveryByte) {
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

TEST(ReviewParseScanner, OneLongLineAndALongStringLiteral) {
    const std::string line(100000, 'q');
    const std::string text = "a\n" + std::string(50000, 'w') + "\nb";
    const std::vector<token> got =
        scan_file("doc {" + line + "} attributes { k \"" + text + "\" }");
    const std::vector<token> want = {{DOC, ""},         {'{', ""},          {DOC_BODY, line},
                                     {'}', ""},         {ATTRIBUTES, ""},   {'{', ""},
                                     {IDENTIFIER, "k"}, {STRING_LIT, text}, {'}', ""}};
    EXPECT_EQ(got, want);
}

TEST(ReviewParseScanner, AHugeBodyIsReadInLinearTime) {
    // Ten megabytes take well under a second when the body is read in one pass; keeping
    // the whole body in the input buffer across refills made this take minutes.
    const std::string body(10 * 1024 * 1024, 'h');
    const auto start = std::chrono::steady_clock::now();
    const std::vector<token> got = scan_file("doc {" + body + "}");
    const auto seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start);
    ASSERT_EQ(got.size(), 4u);
    EXPECT_EQ(got[2].text.size(), body.size());
    EXPECT_LT(seconds.count(), 15.0);
}

TEST(ReviewParseScanner, ANulInABodyIsTextNotTheEnd) {
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

TEST(ReviewParseScanner, UnterminatedStringEndsTheRun) {
    const child_result r = run_in_child([] { scan_file("attributes { a \"never closed"); });
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err.rfind("Fatal error: realloc of ", 0), 0u) << r.err;
    const std::string tail = " bytes failed.\n\n";
    ASSERT_GE(r.err.size(), tail.size());
    EXPECT_EQ(r.err.substr(r.err.size() - tail.size()), tail);
}

TEST(ReviewParseScopes, HashOfVeryLongNamesWrapsLikeA32BitWord) {
    // 300000 times 122 squared passes 2^32; the sum keeps its low 8 bits (128), 128 % 109.
    const child_result hashes = run_in_child([] {
        std::printf("%u %u", brix_symbol_hash(std::string(300000, 'z').c_str()),
                    brix_symbol_hash(std::string(200000, 'z').c_str()));
    });
    EXPECT_EQ(hashes.out, "19 0");
    EXPECT_EQ(hashes.err, "");
    const std::string name(300000, 'z');
    const child_result r = parse_in_child("field " + name + " { bits 2 }");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.err, "");
}

TEST(ReviewParseRegisters, AbsurdWidthsAndOffsetsParseWithoutOverflow) {
    // The byte check adds offsets and widths; such sums must wrap, never overflow.
    for (const char* text : {
             "register r { field a @0x7fffffffffffffff { bits 4 } }",
             "register r { field a @0xffffffffffffffff { bits 4294967295 } }",
             "register r { bytes 1 field a { bits 2147483647 } field b { bits 2147483647 } }",
         }) {
        const child_result r = parse_in_child(text);
        EXPECT_EQ(r.status, 0) << text;
        EXPECT_EQ(r.err, "") << text;
    }
}

} // namespace
