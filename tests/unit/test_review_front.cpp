// Second look at the front of the run: search-path entries "." and "..", what a caught
// Tcl error leaves behind, the free modes of the maps, and the run driver's own way out
// when the pure description is gone.
#include "expand_harness.hpp"

#include <cstring>
#include <fcntl.h>
#include <string>
#include <sys/wait.h>
#include <vector>

namespace {

using expand_test::expansion;
using expand_test::hash;
using expand_test::scratch_dir;
using expand_test::slurp;

// Expands `top` with the working folder `work` and the -I list `inc_dirs` taken as it
// stands, so that the entries "." and ".." reach the search.
expansion expand_from(const std::filesystem::path& work, const std::string& top,
                      const std::string& inc_dirs) {
    const std::filesystem::path pure = work / "pure";
    const brix_test::child_result child = brix_test::run_in_child([&] {
        if (chdir(work.c_str()) != 0) {
            _exit(99);
        }
        snprintf(pure_brix_file, sizeof pure_brix_file, "%s", pure.c_str());
        brix_inc_dirs = strdup(inc_dirs.c_str());
        Tcl_FindExecutable(nullptr);
        expand_tcl_constructs(top.c_str(), pure.c_str());
    });
    expansion run;
    run.status = child.status;
    run.pure = slurp(pure);
    run.err = child.err;
    return run;
}

TEST(ReviewFrontSource, DotAndDotDotStandForTheWorkingFolderAndItsParent) {
    scratch_dir dir;
    const std::filesystem::path root = std::filesystem::canonical(dir.path());
    dir.write("work/sub/top.brix", "source x.brix\nsource y.brix\n");
    // Found through "." and "..": the copies beside the top file come last and lose.
    dir.write("work/x.brix", "bytes 1\n");
    dir.write("work/sub/x.brix", "bytes 9\n");
    dir.write("y.brix", "\nbytes 2\n");
    dir.write("work/sub/y.brix", "bytes 8\n");
    // Empty entries are skipped; a missing folder is passed over.
    const expansion run = expand_from(root / "work", "sub/top.brix", "::nothere:.:..:");
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.pure, hash(1, (root / "work").string() + "/x.brix") + "bytes 1 \n" +
                            hash(2, root.string() + "/y.brix") + "bytes 2 \n");
}

TEST(ReviewFrontSource, NoEntryHoldsTheFileSoTheTopFoldersFailureIsFinal) {
    scratch_dir dir;
    dir.write("work/top.brix", "bytes 1\nsource gone.brix\n");
    const expansion run =
        expand_from(std::filesystem::canonical(dir.path()) / "work", "top.brix", ".:..");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "Error: Failed to open file gone.brix ... exiting!\n");
    EXPECT_EQ(run.pure, ""); // removed on the way out
}

// A caught failure keeps both its summed line and the raised nesting: the next error
// adds to the old sum, and the next declaration is indented by the bodies left open.
// The failing word leaves what was written before it.
TEST(ReviewFrontRun, CaughtErrorLeavesLineSumAndLevelRaised) {
    const std::string caught = "catch {\n"
                               "  block b {\n"
                               "    register r {\n"
                               "      bytes {$nope}\n"
                               "    }\n"
                               "  }\n"
                               "}\n"
                               "bytes 1\n";
    scratch_dir dir;
    dir.write("ok.brix", caught);
    EXPECT_EQ(expand_test::expand_in(dir, "ok.brix").pure,
              hash(2, "ok.brix") + "block b {\n" + hash(3, "ok.brix") + "\tregister r {\n" +
                  hash(4, "ok.brix") + "\t\tbytes " + hash(8, "ok.brix") + "\t\tbytes 1 \n");

    dir.write("top.brix", caught + "nosuch\n");
    const expansion run = expand_test::expand_in(dir, "top.brix");
    EXPECT_EQ(run.status, 1);
    // The caught error summed 1 (the puts), then 2 and 3 through the two bodies: 3 + 9 - 1.
    EXPECT_EQ(run.err, "\ninvalid command name \"nosuch\"\n    while executing\n\"nosuch\" "
                       "(file \"top.brix\" line 11)\n");
}

// A printed result stays the result: `source` hands on its file's last result, which is
// printed once for the file and once more where `source` is the last command.
TEST(ReviewFrontRun, SourceKeepsTheResultOfItsFile) {
    scratch_dir dir;
    dir.write("inc.brix", "bytes 1\nset q 3\n");
    dir.write("top.brix", "set v [source inc.brix]\nbytes $v\nsource inc.brix\n");
    const expansion run = expand_test::expand_in(dir, "top.brix");
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.pure, hash(1, "inc.brix") + "bytes 1 \n" + hash(2) + "bytes 3 \n" +
                            hash(1, "inc.brix") + "bytes 1 \n");
    EXPECT_EQ(run.out, "333" + std::filesystem::current_path().string() + "\n");
}

TEST(ReviewFrontMaps, FreeModesLeaveWhatTheyDoNotOwn) {
    char key_a[] = "a";
    char key_b[] = "b";
    brix_str2str_map strs;
    add_str2str_map_entry(strs, key_a, strdup("1"));
    add_str2str_map_entry(strs, key_b, nullptr);
    free_str2str_map(strs, 0); // values and nodes only: the keys on the stack stay untouched
    EXPECT_EQ(get_str2str_map_value(strs, "a"), nullptr);

    char* value = strdup("kept");
    add_str2str_map_entry(strs, key_a, value);
    free_str2str_map(strs, 2); // nodes only
    EXPECT_STREQ(value, "kept");
    free(value);

    int target = 0;
    brix_str2voidptr_map ptrs;
    add_str2voidptr_map_entry(ptrs, key_a, &target);
    free_str2voidptr_map(ptrs, 0);
    for (auto* b : ptrs.buckets) {
        EXPECT_EQ(b, nullptr);
    }
    // After a free the same key may be added again.
    add_str2voidptr_map_entry(ptrs, key_a, &target);
    EXPECT_EQ(get_str2voidptr_map_value(ptrs, "a"), &target);
    free_str2voidptr_map(ptrs, 0);
}

TEST(ReviewFrontMaps, CounterStepAddsNewKeysAtTheChainsEnd) {
    brix_str2int_map map;
    add_str2int_map_entry(map, strdup("ba"), 5);
    update_str2int_map(map, strdup("ab")); // same bucket, new key
    update_str2int_map(map, strdup("ba"));
    std::vector<std::pair<std::string, long long>> chain;
    for (auto* n = map.buckets[brix_hash_key("ab") % BRIX_STR2INT_MAP_SIZE]; n; n = n->next) {
        chain.emplace_back(n->key, n->value);
    }
    EXPECT_EQ(chain, (std::vector<std::pair<std::string, long long>>{{"ba", 6}, {"ab", 1}}));
    free_str2int_map(map);
}

TEST(ReviewFrontEmitDeathTest, LengthDirectiveCutOffByTheEndOfTheFormat) {
    brx_model_fp = tmpfile();
    EXPECT_EXIT(brix_emit("x %l"), testing::ExitedWithCode(1),
                "^Error: Unsupported format '%lc' used in with 'brix_emit'.\n\n$");
    EXPECT_EXIT(brix_emit("x %ll"), testing::ExitedWithCode(1),
                "^Error: Unsupported format '%llc' used in with 'brix_emit'.\n\n$");
    fclose(brx_model_fp);
    brx_model_fp = nullptr;
}

// The description deletes its own pure file: the run cannot read it back and says so,
// without the help text.
TEST(ReviewFrontDriver, VanishedPureFileCannotBeOpened) {
    scratch_dir dir;
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
    const std::string text = slurp(err);
    const std::string head = "Error: Failed to open Pure BRIX file '/tmp/qvt_";
    const std::string tail =
        "_" + std::to_string(pid) + "_pure_brix' for reading...please check.\n";
    ASSERT_EQ(text.size(), head.size() + 14 + tail.size()) << text;
    EXPECT_EQ(text.substr(0, head.size()), head);
    EXPECT_EQ(text.substr(head.size() + 14), tail);
}

// Tcl's parser recurses for each nested "[" without a limit of its own: beyond a depth
// that no description needs, the file is refused before Tcl sees it.
TEST(ReviewFrontRun, BracketsNestedBeyondTheLimitAreRefused) {
    const auto nested = [](int depth) {
        return "bytes 1\nset x {" + std::string(depth, '[') + std::string(depth, ']') + "}\n";
    };
    scratch_dir dir;
    dir.write("top.brix", nested(2000) + "bytes 2\n");
    const expansion ok = expand_test::expand_in(dir, "top.brix");
    EXPECT_EQ(ok.status, 0) << ok.err;
    EXPECT_EQ(ok.pure, hash(1) + "bytes 1 \n" + hash(3) + "bytes 2 \n");

    // An escaped bracket opens nothing; one behind an escaped backslash does.
    std::string escaped;
    std::string behind_escape;
    for (int i = 0; i < 2001; ++i) {
        escaped += "\\[";
        behind_escape += "\\\\[";
    }
    dir.write("top.brix", "set y \"" + escaped + "\"\n");
    EXPECT_EQ(expand_test::expand_in(dir, "top.brix").status, 0);
    dir.write("top.brix", "set y {" + behind_escape + "}\n");
    EXPECT_EQ(expand_test::expand_in(dir, "top.brix").err,
              "Error: Brackets nested too deeply in file top.brix at line 1 ... exiting!\n\n");

    dir.write("top.brix", nested(2001));
    const expansion refused = expand_test::expand_in(dir, "top.brix");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "Error: Brackets nested too deeply in file top.brix at line 2 ... "
                           "exiting!\n\n");
    EXPECT_EQ(refused.pure, "");
}

} // namespace
