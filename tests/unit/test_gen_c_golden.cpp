// Golden cases of the C interface header, tests/golden_c/<group>/<case>/. No command line
// reaches this generator, so each case runs brix_main in a child, in a working folder of its
// own, with brix_gen_c_interface set (or, with a `pure_c` marker, the language "c").
// `cmd` holds the arguments; `expected/` the streams, the status and, under `files/`, the
// headers. The model file written beside a header is the model generators' business.
#include "golden_child.hpp"

#include "gen_model/gen_model.hpp"

#include <cstring>

namespace {

namespace fs = std::filesystem;
class CInterfaceGolden : public ::testing::TestWithParam<fs::path> {};

TEST_P(CInterfaceGolden, HeaderAndMessages) {
    const fs::path dir = GetParam();
    const fs::path exp = dir / "expected";
    const fs::path work = fs::temp_directory_path() /
                          ("brix_c_" + std::to_string(getpid()) + "_" + dir.filename().string());
    const bool pure_c = fs::exists(dir / "pure_c");

    const brix_test::child_result run = brix_test::run_golden_case(dir, work, [&] {
        if (pure_c) {
            target_language = strdup("c");
        } else {
            brix_gen_c_interface = 1;
        }
    });

    brix_test::expect_golden_run(run, exp, work, brix_test::files_in(work, ".h"));
    fs::remove_all(work);
}

INSTANTIATE_TEST_SUITE_P(Cases, CInterfaceGolden,
                         ::testing::ValuesIn(brix_test::golden_cases(BRIX_C_GOLDEN_DIR)),
                         brix_test::golden_case_name);

} // namespace

// The header's offsets are words of 32 bits: a walk past 4G wraps, and a later offset is
// compared with the wrapped position, not with the model's 64-bit one.
TEST(COffsetWalk, WrapsAtFourGigawords) {
    brix_basic_offset_walk<uint32_t> c;
    brix_offset_walk model;
    const auto step = [&](const char* offset, uint64_t span) {
        c.place(offset, true);
        model.place(offset, true);
        const std::pair<uint64_t, uint64_t> at{c.off, model.off};
        c.advance(span);
        model.advance(span);
        return at;
    };
    step("0x10", 1);
    EXPECT_EQ(step(nullptr, 4ull << 30), (std::pair<uint64_t, uint64_t>{0x11, 0x11}));
    step("0x8", 1); // backwards: the walk resumes behind the memory
    EXPECT_EQ(c.off, 0x11u);
    EXPECT_EQ(model.off, 0x100000011u);
    step("0x20", 1);
    EXPECT_EQ(step(nullptr, 1), (std::pair<uint64_t, uint64_t>{0x21, 0x100000011}));
    EXPECT_EQ(c.size, 0x22u);
}
