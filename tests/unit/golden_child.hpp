// Golden cases that run brix_main in a child with globals that no command line sets. A case
// folder holds its description files, `cmd` with the arguments, and `expected/`.
#pragma once

#include "child_process.hpp"
#include "driver/driver.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace brix_test {

namespace fs = std::filesystem;

inline std::string slurp(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

// The files of a folder, none when it is absent; with `extension`, only those.
inline std::set<std::string> files_in(const fs::path& dir, const std::string& extension = "") {
    std::set<std::string> names;
    if (fs::exists(dir)) {
        for (const auto& f : fs::directory_iterator(dir)) {
            if (extension.empty() || f.path().extension() == extension) {
                names.insert(f.path().filename().string());
            }
        }
    }
    return names;
}

// With BRIX_UPDATE_GOLDEN=1, as for the golden cases of the program, a runner writes what
// the run gave as the expectation instead of comparing.
inline bool updating_golden() {
    const char* v = getenv("BRIX_UPDATE_GOLDEN");
    return v != nullptr && strcmp(v, "1") == 0;
}

inline void expect_golden(const std::string& actual, const fs::path& expected) {
    if (updating_golden()) {
        std::ofstream(expected, std::ios::binary) << actual;
    } else {
        EXPECT_EQ(actual, slurp(expected)) << expected;
    }
}

// The streams and the status of a run, then the files `made` in `work` against the
// case's `expected/files/`.
inline void expect_golden_run(const child_result& run, const fs::path& exp, const fs::path& work,
                              const std::set<std::string>& made) {
    expect_golden(run.out, exp / "stdout");
    expect_golden(run.err, exp / "stderr");
    expect_golden(std::to_string(run.status) + "\n", exp / "status");
    if (updating_golden()) {
        fs::remove_all(exp / "files");
        for (const std::string& f : made) {
            fs::create_directories(exp / "files");
            fs::copy(work / f, exp / "files" / f);
        }
        return;
    }
    EXPECT_EQ(made, files_in(exp / "files"));
    for (const std::string& f : made) {
        EXPECT_EQ(slurp(work / f), slurp(exp / "files" / f)) << f;
    }
}

// The case folders <root>/<group>/<case>, in a stable order.
inline std::vector<fs::path> golden_cases(const fs::path& root) {
    std::vector<fs::path> found;
    for (const auto& group : fs::directory_iterator(root)) {
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

inline std::string golden_case_name(const ::testing::TestParamInfo<fs::path>& info) {
    std::string name =
        info.param.parent_path().filename().string() + "_" + info.param.filename().string();
    for (char& c : name) {
        if (!isalnum(static_cast<unsigned char>(c))) {
            c = '_';
        }
    }
    return name;
}

// Runs the case in a fresh working folder `work` holding its description files: `setup`
// sets the globals in the child, then brix_main takes the arguments of `cmd`.
template <class F>
child_result run_golden_case(const fs::path& dir, const fs::path& work, F setup) {
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
    return run_in_child([&] {
        if (chdir(work.c_str()) != 0) {
            _exit(99);
        }
        setup();
        std::vector<char*> argv;
        for (std::string& a : args) {
            argv.push_back(a.data());
        }
        argv.push_back(nullptr);
        brix_main(static_cast<int>(args.size()), argv.data());
    });
}

} // namespace brix_test
