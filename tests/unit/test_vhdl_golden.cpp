// Golden cases of the backdoor into VHDL parts of a design, tests/golden_vhdl/<group>/<case>/.
// The command line takes no design top path, so each case runs brix_main in a child, in a
// working folder of its own, with the paths of its `top_path` and `connector_path` files set.
// `cmd` holds the arguments; `expected/` the streams, the status, under `files/` the connector
// modules, and in `backdoor.sv` the model's backdoor classes followed by the constructor lines
// that attach them. The rest of the model is the model generator's business.
#include "golden_child.hpp"

#include <cstring>
#include <set>

namespace {

namespace fs = std::filesystem;
using brix_test::slurp;

std::string first_line(const fs::path& path) {
    const std::string text = slurp(path);
    return text.substr(0, text.find('\n'));
}

// The value of a case's setting file, or none when the file is absent.
char* setting(const fs::path& path) {
    return fs::exists(path) ? strdup(first_line(path).c_str()) : nullptr;
}

// The backdoor classes of a model, then the lines of the top's constructor below the
// backdoor banner.
std::string backdoor_text(const std::string& model) {
    std::istringstream in(model);
    std::string classes;
    std::string ctor;
    bool in_class = false;
    bool in_ctor = false;
    for (std::string line; std::getline(in, line);) {
        if (line.rfind("class brx_", 0) == 0 && line.find("_bkdr extends") != std::string::npos) {
            in_class = true;
        }
        if (in_class) {
            classes += line + "\n";
            in_class = line != "endclass" && line != "}";
        }
        if (line == "\t\tthis.Xlock_modelX();") {
            in_ctor = false;
        }
        if (in_ctor) {
            ctor += line + "\n";
        }
        if (line == "\t\t// Setting up backdoor access...") {
            in_ctor = true;
            std::getline(in, line); // the banner's closing "//"
        }
    }
    return classes + ctor;
}

class VhdlBackdoorGolden : public ::testing::TestWithParam<fs::path> {};

TEST_P(VhdlBackdoorGolden, ClassesConnectorAndMessages) {
    const fs::path dir = GetParam();
    const fs::path exp = dir / "expected";
    const fs::path work = fs::temp_directory_path() /
                          ("brix_vhdl_" + std::to_string(getpid()) + "_" + dir.filename().string());
    char* top_path = setting(dir / "top_path");
    char* connector_path = setting(dir / "connector_path");

    const brix_test::child_result run = brix_test::run_golden_case(dir, work, [&] {
        brix_backdoor_top_path = top_path;
        brix_vhdl_backdoor_top_path = connector_path;
    });
    free(top_path);
    free(connector_path);

    // Every file of the run: the model, and the connectors in full.
    std::set<std::string> made = brix_test::files_in(work);
    for (const auto& f : fs::directory_iterator(dir)) {
        made.erase(f.path().filename().string());
    }
    // `model` names the model file that a run leaves, whose backdoor is in `backdoor.sv`.
    if (fs::exists(exp / "model")) {
        const std::string model = first_line(exp / "model");
        EXPECT_EQ(made.erase(model), 1u) << model;
        brix_test::expect_golden(backdoor_text(slurp(work / model)), exp / "backdoor.sv");
    }
    brix_test::expect_golden_run(run, exp, work, made);
    fs::remove_all(work);
}

INSTANTIATE_TEST_SUITE_P(Cases, VhdlBackdoorGolden,
                         ::testing::ValuesIn(brix_test::golden_cases(BRIX_VHDL_GOLDEN_DIR)),
                         brix_test::golden_case_name);

} // namespace

namespace {

// The side files that no command line reaches, written to a full device: the run ends with
// the file's name and the reason, and leaves no temporary file.
TEST(SideFileWrites, FailedWriteEndsTheRun) {
    const struct {
        fs::path dir;
        const char* file;
        bool c_interface;
    } cases[] = {
        {fs::path(BRIX_VHDL_GOLDEN_DIR) / "connector/field_paths", "brx_vhdl_bkdrs_top.v", false},
        {fs::path(BRIX_C_GOLDEN_DIR) / "worked/sv_block", "brx_b.h", true},
    };
    for (const auto& c : cases) {
        const fs::path work = fs::temp_directory_path() / ("brix_full_" + std::to_string(getpid()));
        const brix_test::child_result run = brix_test::run_golden_case(c.dir, work, [&] {
            brix_backdoor_top_path = strdup("tb.dut");
            brix_vhdl_backdoor_top_path = strdup("tb.conn");
            brix_gen_c_interface = c.c_interface ? 1 : 0;
            std::ofstream("pid") << getpid();
            if (symlink("/dev/full", c.file) != 0) {
                _exit(99);
            }
        });
        const std::string pid = slurp(work / "pid");
        EXPECT_EQ(run.status, 1) << c.file;
        EXPECT_EQ(run.err, std::string("Error: Failed to write file '") + c.file +
                               "' (No space left on device).\n");
        for (const auto& f : fs::directory_iterator("/tmp")) {
            EXPECT_FALSE(f.path().string().ends_with("_" + pid + "_pure_brix")) << f.path();
        }
        fs::remove_all(work);
    }
}

} // namespace
