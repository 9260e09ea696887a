// Golden cases of the C interface header, tests/golden_c/<group>/<case>/. No command line
// reaches this generator, so each case runs brix_main in a child, in a working folder of its
// own, with brix_gen_c_interface set (or, with a `pure_c` marker, the language "c").
// `cmd` holds the arguments; `expected/` the streams, the status and, under `files/`, the
// headers. The model file written beside a header is the model generators' business.
#include "child_process.hpp"
#include "driver/driver.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string slurp(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

std::vector<fs::path> cases() {
    std::vector<fs::path> found;
    for (const auto& group : fs::directory_iterator(BRIX_C_GOLDEN_DIR)) {
        if (!group.is_directory()) {
            continue;
        }
        for (const auto& c : fs::directory_iterator(group.path())) {
            if (fs::exists(c.path() / "cmd")) {
                found.push_back(c.path());
            }
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

std::set<std::string> headers_in(const fs::path& dir) {
    std::set<std::string> names;
    if (fs::exists(dir)) {
        for (const auto& f : fs::directory_iterator(dir)) {
            if (f.path().extension() == ".h") {
                names.insert(f.path().filename().string());
            }
        }
    }
    return names;
}

class CInterfaceGolden : public ::testing::TestWithParam<fs::path> {};

TEST_P(CInterfaceGolden, HeaderAndMessages) {
    const fs::path dir = GetParam();
    const fs::path exp = dir / "expected";
    const fs::path work = fs::temp_directory_path() /
                          ("brix_c_" + std::to_string(getpid()) + "_" + dir.filename().string());
    fs::remove_all(work);
    fs::create_directories(work);
    for (const auto& f : fs::directory_iterator(dir)) {
        if (f.path().extension() == ".brix") {
            fs::copy(f.path(), work / f.path().filename());
        }
    }
    std::vector<std::string> args{"brixgen"};
    std::istringstream cmd(slurp(dir / "cmd"));
    for (std::string w; cmd >> w;) {
        args.push_back(w);
    }
    const bool pure_c = fs::exists(dir / "pure_c");

    const brix_test::child_result run = brix_test::run_in_child([&] {
        if (chdir(work.c_str()) != 0) {
            _exit(99);
        }
        if (pure_c) {
            target_language = strdup("c");
        } else {
            brix_gen_c_interface = 1;
        }
        std::vector<char*> argv;
        for (std::string& a : args) {
            argv.push_back(a.data());
        }
        argv.push_back(nullptr);
        brix_main(static_cast<int>(args.size()), argv.data());
    });

    EXPECT_EQ(run.out, slurp(exp / "stdout"));
    EXPECT_EQ(run.err, slurp(exp / "stderr"));
    EXPECT_EQ(std::to_string(run.status) + "\n", slurp(exp / "status"));
    const std::set<std::string> want = headers_in(exp / "files");
    EXPECT_EQ(headers_in(work), want);
    for (const std::string& h : want) {
        EXPECT_EQ(slurp(work / h), slurp(exp / "files" / h)) << h;
    }
    fs::remove_all(work);
}

INSTANTIATE_TEST_SUITE_P(Cases, CInterfaceGolden, ::testing::ValuesIn(cases()),
                         [](const ::testing::TestParamInfo<fs::path>& info) {
                             std::string name = info.param.parent_path().filename().string() + "_" +
                                                info.param.filename().string();
                             for (char& c : name) {
                                 if (!isalnum(static_cast<unsigned char>(c))) {
                                     c = '_';
                                 }
                             }
                             return name;
                         });

} // namespace
