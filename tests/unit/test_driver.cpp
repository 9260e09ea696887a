// Helpers of the run driver and the life of the temporary file.
#include "driver/diag.hpp"
#include "driver/driver.hpp"
#include "expand/expand.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <regex>
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
    EXPECT_EQ(take(dirname("a/b/c.brix")), "a/b");
    EXPECT_EQ(take(dirname("/c.brix")), "/");
    EXPECT_EQ(take(dirname("c.brix")), ".");
    EXPECT_EQ(take(dirname("")), ".");
    EXPECT_EQ(take(dirname("a/")), "a");
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
    const std::regex form("/tmp/qvt_20[0-9]{12}_" + std::to_string(getpid()) + "_pure_brix");
    EXPECT_TRUE(std::regex_match(name, form)) << name;
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

} // namespace
