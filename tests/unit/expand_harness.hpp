// Runs one expansion in a forked child, since it moves descriptor 1 and the working
// directory, ends the process on errors and keeps a process-wide interpreter.
#pragma once

#include "child_process.hpp"
#include "driver/diag.hpp"
#include "driver/driver.hpp"
#include "expand/expand.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <unistd.h>
#include <utility>

namespace expand_test {

struct expansion {
    int status = -1;  // exit status of the child
    std::string pure; // the pure file, empty if the run removed it
    std::string err;  // what the run wrote to the standard error stream
    std::string out;  // what reached the user's standard output, then the working folder
};

inline std::string slurp(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// A scratch folder for the files of one case, removed with it.
class scratch_dir {
  public:
    scratch_dir() {
        char pattern[] = "/tmp/brix_expand_XXXXXX";
        path_ = mkdtemp(pattern);
    }
    ~scratch_dir() { std::filesystem::remove_all(path_); }
    scratch_dir(const scratch_dir&) = delete;
    scratch_dir& operator=(const scratch_dir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    void write(const std::string& name, const std::string& text) const {
        const std::filesystem::path file = path_ / name;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
    }

  private:
    std::filesystem::path path_;
};

// Expands `top` (a path relative to the folder) with the given -I list, whose entries
// are relative to the folder too.
inline expansion expand_in(const scratch_dir& dir, const std::string& top,
                           const std::string& inc_dirs = "") {
    // A new name for each run, since the pure file is created exclusively.
    static int runs = 0;
    const std::string pure = (dir.path() / "pure").string() + std::to_string(++runs);
    const std::string description = (dir.path() / top).string();
    std::string absolute_inc;
    for (std::size_t start = 0; start < inc_dirs.size();) {
        const std::size_t stop = std::min(inc_dirs.find(':', start), inc_dirs.size());
        if (!absolute_inc.empty()) {
            absolute_inc += ':';
        }
        absolute_inc += (dir.path() / inc_dirs.substr(start, stop - start)).string();
        start = stop + 1;
    }
    const brix_test::child_result run = brix_test::run_in_child([&] {
        snprintf(pure_brix_file, sizeof pure_brix_file, "%s", pure.c_str());
        brix_inc_dirs = absolute_inc.empty() ? nullptr : strdup(absolute_inc.c_str());
        Tcl_FindExecutable(nullptr);
        expand_tcl_constructs(description.c_str(), pure.c_str());
        char cwd[4096];
        printf("%s\n", getcwd(cwd, sizeof cwd));
    });
    expansion result;
    result.status = run.status;
    result.pure = slurp(pure);
    result.err = run.err;
    result.out = run.out;
    return result;
}

// Expands a single top file "top.brix" holding `script`; the run must succeed, and
// `printed` is what its results left in stdio's buffer for the user's standard output.
inline std::string expand_script(const std::string& script, const std::string& printed = "") {
    scratch_dir dir;
    dir.write("top.brix", script);
    const expansion run = expand_in(dir, "top.brix");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err, "");
    // Descriptor 1 and the working folder are the user's again after the run.
    EXPECT_EQ(run.out, printed + std::filesystem::current_path().string() + "\n");
    return run.pure;
}

// "BRIX_HASHLINE <line> <file>\n" ahead of a declaration.
inline std::string hash(int line, const std::string& file = "top.brix") {
    return "BRIX_HASHLINE " + std::to_string(line) + " " + file + "\n";
}

} // namespace expand_test
