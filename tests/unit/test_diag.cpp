// Format languages of the diagnostics and the writer, and the number conversions.
#include "driver/diag.hpp"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

// Runs `body` with brix_emit writing into a memory stream and returns what it wrote.
template <class F> std::string emitted(F body) {
    char* buf = nullptr;
    size_t size = 0;
    FILE* mem = open_memstream(&buf, &size);
    FILE* saved = brx_model_fp;
    brx_model_fp = mem;
    body();
    brx_model_fp = saved;
    fclose(mem);
    std::string out(buf, size);
    free(buf);
    return out;
}

std::string warned(const char* fmt, int value) {
    testing::internal::CaptureStderr();
    brix_warn(fmt, value);
    return testing::internal::GetCapturedStderr();
}

TEST(Diagnostics, PercentDirectivesOfTheNarrowLanguage) {
    EXPECT_EQ(warned("%d%%\n", 5), "5%\n\n");
    // %c and %llu are not directives here: the letters stand and no argument is read.
    testing::internal::CaptureStderr();
    brix_warn("'%c' %llu %s", "text");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "'c' llu text\n");
}

TEST(Diagnostics, YywarnAddsThePosition) {
    snprintf(brix_src_file_name, sizeof brix_src_file_name, "top.brix");
    brix_src_file_linenum = 42;
    testing::internal::CaptureStderr();
    brix_yywarn("Warning: x '%s'.", "r");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "Warning: x 'r'. (BRIX File: top.brix Line: 42)\n");
    testing::internal::CaptureStderr();
    brix_yywarn("");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), " (BRIX File: top.brix Line: 42)\n");
}

TEST(DiagnosticsDeathTest, ErrorsEndWithStatusOneAndAnEmptyLine) {
    EXPECT_EXIT(brix_error("Error: bad '%s'.\n", "x"), testing::ExitedWithCode(1),
                "^Error: bad 'x'.\n\n$");
    snprintf(brix_src_file_name, sizeof brix_src_file_name, "f.brix");
    brix_src_file_linenum = 7;
    EXPECT_EXIT(yyerror("syntax error"), testing::ExitedWithCode(1),
                "^\nsyntax error \\(BRIX File: f.brix Line: 7\\)\n$");
    EXPECT_EXIT(brix_yyerror("Error: y."), testing::ExitedWithCode(1),
                "^Error: y. \\(BRIX File: f.brix Line: 7\\)\n$");
}

TEST(DiagnosticsDeathTest, ExitRemovesThePureFile) {
    snprintf(pure_brix_file, sizeof pure_brix_file, "/tmp/brix_unit_%d",
             static_cast<int>(getpid()));
    FILE* f = fopen(pure_brix_file, "w");
    ASSERT_NE(f, nullptr);
    fclose(f);
    EXPECT_EXIT(brix_exit(3), testing::ExitedWithCode(3), "");
    EXPECT_NE(access(pure_brix_file, F_OK), 0);
    pure_brix_file[0] = '\0';
}

TEST(Emit, Directives) {
    EXPECT_EQ(emitted([] {
                  brix_emit("%s|%c|%d|%lX|%llX|%llu|%%|%q", "ab", 'z', -3, 255u,
                            0x1234567890ABCDEFULL, 18446744073709551615ULL);
              }),
              "ab|z|-3|FF|1234567890ABCDEF|18446744073709551615|%|q");
    EXPECT_EQ(emitted([] { brix_emit("[%s][%s]", static_cast<const char*>(nullptr), ""); }),
              "[][]");
    EXPECT_EQ(emitted([] { brix_emit("%f", 1.5); }), "1.500000");
    // A format read before and then changed in place is read again.
    char fmt[] = "<%s>";
    EXPECT_EQ(emitted([&] { brix_emit(fmt, "a"); }), "<a>");
    memcpy(fmt, "%d%%", 5);
    EXPECT_EQ(emitted([&] { brix_emit(fmt, 7); }), "7%");
}

TEST(EmitDeathTest, UnsupportedLengthFormatsEndTheRun) {
    EXPECT_EXIT(emitted([] { brix_emit("ok %lld", 1LL); }), testing::ExitedWithCode(1),
                "^Error: Unsupported format '%llc' used in with 'brix_emit'.\n\n$");
    EXPECT_EXIT(emitted([] { brix_emit("%lu", 1u); }), testing::ExitedWithCode(1),
                "^Error: Unsupported format '%lc' used in with 'brix_emit'.\n\n$");
}

TEST(Emit, TextBeforeABadDirectiveReachesTheFile) {
    char path[] = "/tmp/brix_emit_XXXXXX";
    const int fd = mkstemp(path);
    ASSERT_GE(fd, 0);
    close(fd);
    EXPECT_EXIT(
        {
            brx_model_fp = fopen(path, "w");
            brix_emit("first\n");
            brix_emit("second %ld");
        },
        testing::ExitedWithCode(1), "");
    FILE* f = fopen(path, "r");
    char buf[64] = {};
    const size_t n = fread(buf, 1, sizeof buf - 1, f);
    fclose(f);
    unlink(path);
    EXPECT_EQ(std::string(buf, n), "first\nsecond ");
}

TEST(Numbers, LiteralForms) {
    EXPECT_EQ(to_dec("32'h1F_FF"), 8191u);
    EXPECT_EQ(to_dec("4'b1_0"), 2u);
    EXPECT_EQ(to_dec("1_000"), 1000u);
    EXPECT_EQ(to_dec("_"), 0u);
    EXPECT_EQ(to_dec("0x1f"), 31u);
    EXPECT_EQ(to_dec("0XFF"), 255u);
    EXPECT_EQ(to_dec("'o17"), 15u);
    EXPECT_EQ(to_dec("8'd255"), 255u);
    // The 0x test is made at every position, not just at the start.
    EXPECT_EQ(to_dec("10x3"), 3u);
    // x and z add their raw code differences from '0'.
    EXPECT_EQ(to_dec("8'hxz"), static_cast<unsigned long long>(('x' - '0') * 16 + ('z' - '0')));
    EXPECT_EQ(to_dec("'b1x"), static_cast<unsigned long long>(('x' - '0') + 2));
    // 64-bit wrap-around.
    EXPECT_EQ(to_dec("0x1_0000_0000_0000_0001"), 1u);
    EXPECT_EQ(to_dec("18446744073709551617"), 1u);
}

TEST(NumbersDeathTest, UnknownRadixShowsTheLetterC) {
    EXPECT_EXIT(to_dec("'q1"), testing::ExitedWithCode(1),
                "^Error: Unsupported number system 'c' specified.\n$");
}

TEST(Numbers, PowAndCeil) {
    EXPECT_EQ(brix_pow(2, 64), 0);
    EXPECT_EQ(brix_pow(2, 63), static_cast<long long>(1ULL << 63));
    EXPECT_EQ(brix_pow(-3, 3), -27);
    EXPECT_EQ(brix_pow(7, 0), 1);
    EXPECT_EQ(brix_pow(7, -2), 1);
    // Fast exponentiation must wrap exactly like repeated multiplication.
    for (int e : {1, 5, 41, 63, 100}) {
        unsigned long long naive = 1;
        for (int i = 0; i < e; ++i) {
            naive *= 3ULL;
        }
        EXPECT_EQ(static_cast<unsigned long long>(brix_pow(3, e)), naive) << e;
    }
    EXPECT_EQ(get_ceil(7, 8), 1u);
    EXPECT_EQ(get_ceil(8, 8), 1u);
    EXPECT_EQ(get_ceil(0, 8), 0u);
    EXPECT_EQ(get_ceil(17, 8), 3u);
}

TEST(EmitDeathTest, LengthDirectiveCutOffByTheEndOfTheFormat) {
    brx_model_fp = tmpfile();
    EXPECT_EXIT(brix_emit("x %l"), testing::ExitedWithCode(1),
                "^Error: Unsupported format '%lc' used in with 'brix_emit'.\n\n$");
    EXPECT_EXIT(brix_emit("x %ll"), testing::ExitedWithCode(1),
                "^Error: Unsupported format '%llc' used in with 'brix_emit'.\n\n$");
    fclose(brx_model_fp);
    brx_model_fp = nullptr;
}

} // namespace
