// Helpers of the run driver and the life of the temporary file.
#include "driver/diag.hpp"
#include "driver/driver.hpp"
#include "driver/room.hpp"
#include "expand/expand.hpp"
#include "expand_harness.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <sys/wait.h>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>

namespace {

std::string take(char* heap) {
    std::string s(heap);
    free(heap);
    return s;
}

TEST(Driver, Dirname) {
    EXPECT_EQ(take(brix_dirname("a/b/c.brix")), "a/b");
    EXPECT_EQ(take(brix_dirname("/c.brix")), "/");
    EXPECT_EQ(take(brix_dirname("c.brix")), ".");
    EXPECT_EQ(take(brix_dirname("")), ".");
    EXPECT_EQ(take(brix_dirname("a/")), "a");
}

TEST(Driver, AbsolutePathPrefixesTheWorkingDirectoryOnce) {
    char cwd[5000];
    ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
    EXPECT_EQ(take(get_absolute_path("/x/y")), "/x/y");
    // The value is made absolute as one piece: only the head of a list gets the prefix.
    EXPECT_EQ(take(get_absolute_path("a:b")), std::string(cwd) + "/a:b");
}

TEST(Driver, TemporaryFileName) {
    brix_name_pure_file();
    const std::string name = pure_brix_file;
    pure_brix_file[0] = '\0';
    // /tmp/qvt_<YYYYMMDDhhmmss>_<pid>_pure_brix
    const std::string head = "/tmp/qvt_";
    const std::string tail = "_" + std::to_string(getpid()) + "_pure_brix";
    ASSERT_EQ(name.size(), head.size() + 14 + tail.size()) << name;
    EXPECT_EQ(name.substr(0, head.size()), head);
    EXPECT_EQ(name.substr(head.size() + 14), tail);
    const std::string stamp = name.substr(head.size(), 14);
    EXPECT_EQ(stamp.find_first_not_of("0123456789"), std::string::npos) << name;
    EXPECT_EQ(stamp.substr(0, 2), "20");
}

std::string slurp(const std::string& path) {
    std::ifstream in(path);
    std::stringstream s;
    s << in.rdbuf();
    return s.str();
}

// A file or link planted under the temporary name is neither followed nor truncated,
// and it is not removed on the way out either: it is not ours.
TEST(DriverDeathTest, PlantedTemporaryNameIsLeftAlone) {
    const std::string base = "/tmp/brix_unit_plant_" + std::to_string(getpid());
    const std::string target = base + "_target";
    const std::string link = base + "_link";
    std::ofstream(target) << "keep";
    ASSERT_EQ(symlink(target.c_str(), link.c_str()), 0);
    for (const std::string& planted : {link, target}) {
        snprintf(pure_brix_file, sizeof pure_brix_file, "%s", planted.c_str());
        EXPECT_EXIT(expand_tcl_constructs("none.brix", pure_brix_file), testing::ExitedWithCode(1),
                    "^Error: Failed to open temporary -1 file '" + planted +
                        "' for writing...\n\n$");
    }
    pure_brix_file[0] = '\0';
    char buf[256] = {};
    EXPECT_GT(readlink(link.c_str(), buf, sizeof buf - 1), 0);
    EXPECT_EQ(slurp(target), "keep");
    unlink(link.c_str());
    unlink(target.c_str());
}

// The description deletes its own pure file: the run cannot read it back and says so,
// without the help text.
TEST(Driver, VanishedPureFileCannotBeOpened) {
    expand_test::scratch_dir dir;
    dir.write("top.brix", "file delete {*}[glob /tmp/qvt_*_[pid]_pure_brix]\n");
    const std::string err = (dir.path() / "stderr").string();
    fflush(nullptr);
    const pid_t pid = fork();
    if (pid == 0) {
        const int fd = open(err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
        dup2(fd, 2);
        dup2(open("/dev/null", O_WRONLY), 1);
        if (chdir(dir.path().c_str()) != 0) {
            _exit(99);
        }
        execl(BRIX_BINARY, "brixgen", "-l", "sv", "-t", "b", "top.brix", nullptr);
        _exit(98);
    }
    int wstatus = 0;
    waitpid(pid, &wstatus, 0);
    ASSERT_TRUE(WIFEXITED(wstatus));
    EXPECT_EQ(WEXITSTATUS(wstatus), 1);
    const std::string text = expand_test::slurp(err);
    const std::string head = "Error: Failed to open Pure BRIX file '/tmp/qvt_";
    const std::string tail =
        "_" + std::to_string(pid) + "_pure_brix' for reading...please check.\n";
    ASSERT_EQ(text.size(), head.size() + 14 + tail.size()) << text;
    EXPECT_EQ(text.substr(0, head.size()), head);
    EXPECT_EQ(text.substr(head.size() + 14), tail);
}

volatile bool stop_recursing = false;

int recurse_without_end(int depth, char**) {
    volatile char frame[1 << 16];
    frame[0] = static_cast<char>(depth);
    return stop_recursing ? 0 : recurse_without_end(depth + 1, nullptr) + frame[0];
}

// A run that overflows even its own big stack says so and takes its temporary file along.
TEST(DriverDeathTest, StackOverflowEndsWithAWordAndNoTemporaryFile) {
    snprintf(pure_brix_file, sizeof pure_brix_file, "/tmp/brix_unit_deep_%d", getpid());
    std::ofstream(pure_brix_file) << "pure";
    EXPECT_EXIT(brix_run_with_room(recurse_without_end, 0, nullptr), testing::ExitedWithCode(1),
                "^Error: The description nests too deeply: out of stack space.\n$");
    EXPECT_NE(access(pure_brix_file, F_OK), 0);
    unlink(pure_brix_file);
    pure_brix_file[0] = '\0';
}

} // namespace
