// Hash lines across files, procedures and nested bodies; `source`; the run's own
// results and failures.
#include "expand_harness.hpp"

#include <cstring>
#include <vector>

namespace {

using expand_test::expand_in;
using expand_test::expansion;
using expand_test::hash;
using expand_test::scratch_dir;
using expand_test::slurp;

// "line file" of every hash line, in order.
std::vector<std::string> hash_lines(const std::string& pure) {
    static const std::string mark = "BRIX_HASHLINE ";
    std::vector<std::string> found;
    for (std::size_t at = pure.find(mark); at != std::string::npos; at = pure.find(mark, at)) {
        at += mark.size();
        const std::size_t end = pure.find('\n', at);
        found.push_back(pure.substr(at, end - at));
    }
    return found;
}

using lines = std::vector<std::string>;

TEST(ExpandLines, NestedBodiesAndLoopsCountFromTheFile) {
    EXPECT_EQ(hash_lines(expand_test::expand_script("block b {\n"
                                                    "  bytes 4\n"
                                                    "  register r {\n"
                                                    "    bytes 1\n"
                                                    "    field f {\n"
                                                    "      bits 1\n"
                                                    "    }\n"
                                                    "  }\n"
                                                    "}\n"
                                                    "\n"
                                                    "foreach i {1 2} {\n"
                                                    "  block c$i {\n"
                                                    "    bytes $i\n"
                                                    "  }\n"
                                                    "}\n"
                                                    "if {1} {\n"
                                                    "  bytes 9\n"
                                                    "}\n"
                                                    "block d {\n"
                                                    "  while {[incr k] < 2} {\n"
                                                    "\n"
                                                    "    catch { bytes 22 }\n"
                                                    "  }\n"
                                                    "}\n")),
              (lines{"1 top.brix", "2 top.brix", "3 top.brix", "4 top.brix", "5 top.brix",
                     "6 top.brix", "12 top.brix", "13 top.brix", "12 top.brix", "13 top.brix",
                     "17 top.brix", "19 top.brix", "22 top.brix"}));
}

// Runs `script` twice, reading Tcl's frames and channel state directly and through Tcl's
// public commands and calls only; both runs must write the same.
std::string on_both_paths(const std::string& script) {
    const bool built_with_them = brix_tcl_internals;
    const std::string direct = expand_test::expand_script(script);
    brix_tcl_internals = false;
    const std::string asked = expand_test::expand_script(script);
    brix_tcl_internals = built_with_them;
    EXPECT_EQ(direct, asked) << script;
    return asked;
}

// Scripts that a procedure evaluates count from the line that evaluates them; a lambda
// body from its `apply`; a declaration reached through a word that names no description
// command stands at the declaration around it. A coroutine stitches its frames onto its
// caller's.
TEST(ExpandLines, EvaluatedScriptsAndIndirectCalls) {
    struct placed {
        const char* script;
        lines want;
    };
    const placed cases[] = {
        {"proc mk {} {\n  uplevel 1 {\n\n    bytes 1\n  }\n}\nblock b {\n  mk\n}\n",
         {"7 top.brix", "4 top.brix"}},
        {"proc mk {} {\n  set t \"\\nbytes 1\"\n  eval $t\n}\nmk\n", {"4 top.brix"}},
        {"proc mk {} {\n  register r {\n    namespace eval ns {\n\n      bytes 1 }}\n}\nmk\n",
         {"2 top.brix", "5 top.brix"}},
        {"namespace eval ns {\n  bytes 1\n}\n\napply {{} {\n  bytes 2\n}}\n",
         {"2 top.brix", "6 top.brix"}},
        {"coroutine co apply {{} {\n  uplevel 1 {\n\n  bytes 1 }\n}}\n", {"4 top.brix"}},
        {"interp alias {} reg {} register\nproc mk {} { tailcall bytes 3 }\nblock b {\n"
         "  {*}[list bytes 1]\n  reg r\n  mk\n}\n",
         {"3 top.brix", "3 top.brix", "3 top.brix", "3 top.brix"}},
    };
    for (const placed& c : cases) {
        EXPECT_EQ(hash_lines(on_both_paths(c.script)), c.want) << c.script;
    }
}

// Tcl's public paths, taken when the library is not the release the program was built
// with, write what the direct reading writes; so do the paths a script steers the writes
// and the queries onto.
TEST(ExpandRun, PublicPathsWriteWhatTheDirectOnesWrite) {
    const std::string decls = "block b {\n  register r {\n    bytes 1\n  }\n}\n";
    const std::string plain = on_both_paths("\n" + decls);
    ASSERT_EQ(hash_lines(plain), (lines{"2 top.brix", "3 top.brix", "4 top.brix"}));
    for (const char* steer : {
             "rename info tcl_info; interp alias {} info {} tcl_info\n",
             "rename info tcl_info; interp alias {} info {} apply {args {tailcall tcl_info "
             "{*}$args}}\n",
             "rename puts tcl_puts; proc puts args { tcl_puts {*}$args }\n",
         }) {
        EXPECT_EQ(on_both_paths(steer + decls), plain) << steer;
    }
    EXPECT_EQ(on_both_paths("fconfigure stdout -encoding iso8859-1\nbytes \\u00e9\n"),
              hash(2) + "bytes \xe9 \n");
    EXPECT_EQ(on_both_paths("fconfigure stdout -encoding utf-8\nbytes \\u00e9\n"),
              hash(2) + "bytes \xc3\xa9 \n");
    EXPECT_EQ(on_both_paths("fconfigure stdout -translation crlf\nbytes 1\n"),
              "BRIX_HASHLINE 2 top.brix\r\nbytes 1 \r\n");
    EXPECT_EQ(hash_lines(on_both_paths("proc mk {} {\n  bytes 1\n}\nblock b {\n"
                                       "  coroutine co mk\n}\n")),
              (lines{"4 top.brix", "2 top.brix"}));
    EXPECT_EQ(on_both_paths("namespace eval ns {}\nproc ns::mk {} {\n  bytes 1\n}\nns::mk\n"),
              hash(3) + "bytes 1 \n");
}

TEST(ExpandLines, ProcBodiesCountFromTheDefinitionNotTheCall) {
    scratch_dir dir;
    dir.write("top.brix", "# procedures\n"
                          "proc mk {n} {\n"
                          "  register $n {\n"
                          "    bytes 1\n"
                          "  }\n"
                          "  foreach w {1} {\n"
                          "    bytes $w\n"
                          "  }\n"
                          "}\n"
                          "block b {\n"
                          "  bytes 4\n"
                          "}\n"
                          "source lib.brix\n"
                          "mk r1\n"
                          "lib_reg q\n");
    dir.write("lib.brix", "\n"
                          "proc lib_reg {n} {\n"
                          "\n"
                          "  field $n { bits 2 }\n"
                          "}\n");
    const auto run = expand_in(dir, "top.brix");
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(hash_lines(run.pure), (lines{"10 top.brix", "11 top.brix", "3 top.brix", "4 top.brix",
                                           "7 top.brix", "4 lib.brix", "4 lib.brix"}));
}

TEST(ExpandLines, SourcedFileStartsAtItsOwnLineOneAtTheCurrentIndent) {
    scratch_dir dir;
    dir.write("top.brix", "block b {\n"
                          "  bytes 1\n"
                          "  source inc.brix\n"
                          "  bytes 2\n"
                          "}\n");
    dir.write("inc.brix", "\n\nregister r {\n  bytes 8\n}\n");
    const auto run = expand_in(dir, "top.brix");
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.pure, hash(1) + "block b {\n" + hash(2) + "\tbytes 1 \n" + hash(3, "inc.brix") +
                            "\tregister r {\n" + hash(4, "inc.brix") + "\t\tbytes 8 \n\t}\n" +
                            hash(4) + "\tbytes 2 \n}\n\n\n");
}

TEST(ExpandSource, RelativeToTheTopFilesDirectoryWithoutSearchPath) {
    scratch_dir dir;
    dir.write("proj/top.brix", "source inc/x.brix\n");
    dir.write("proj/inc/x.brix", "bytes 1\n");
    const auto run = expand_in(dir, "proj/top.brix");
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.pure, hash(1, "inc/x.brix") + "bytes 1 \n");
}

TEST(ExpandSource, SearchPathInOrderThenTheTopFilesDirectory) {
    scratch_dir dir;
    dir.write("top.brix", "source x.brix\n");
    dir.write("a/x.brix", "bytes 1\n");
    dir.write("b/x.brix", "bytes 2\n");
    dir.write("x.brix", "bytes 3\n");
    const std::string root = dir.path().string();
    EXPECT_EQ(expand_in(dir, "top.brix", "a:b").pure, hash(1, root + "/a/x.brix") + "bytes 1 \n");
    EXPECT_EQ(expand_in(dir, "top.brix", "b:a").pure, hash(1, root + "/b/x.brix") + "bytes 2 \n");
    EXPECT_EQ(expand_in(dir, "top.brix", "c").pure, hash(1, "x.brix") + "bytes 3 \n");
}

TEST(ExpandRun, EmptyErrorStopsItsScriptButNotTheRun) {
    scratch_dir dir;
    dir.write("top.brix", "source inc.brix\n"
                          "block b {\n"
                          "  error \"\"\n"
                          "  bytes 2\n"
                          "}\n"
                          "bytes 6\n"
                          "error \"\"\n"
                          "bytes 8\n");
    dir.write("inc.brix", "bytes 1\nerror \"\"\nbytes 3\n");
    const auto run = expand_in(dir, "top.brix");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.pure, hash(1, "inc.brix") + "bytes 1 \n" + hash(2) + "block b {\n}\n\n\n" +
                            hash(6) + "bytes 6 \n");
}

// Results go through stdio unflushed: they reach the user's standard output at the end,
// unless a later doc or constraint flushes them into the pure text behind Tcl's output.
TEST(ExpandRun, ResultsWaitInStdioForTheUsersOutput) {
    EXPECT_EQ(expand_test::expand_script("bytes 1\nset x 5\n", "5"), hash(1) + "bytes 1 \n");
    EXPECT_EQ(expand_test::expand_script("block b {\n  bytes 1\n  set x 7\n}\nset y 8\n", "78"),
              hash(1) + "block b {\n" + hash(2) + "\tbytes 1 \n}\n\n\n");
}

TEST(ExpandRun, DocAndConstraintFlushWaitingResultsIntoThePureText) {
    EXPECT_EQ(expand_test::expand_script("register r {\n"
                                         "  field f { set x 5 }\n"
                                         "  doc {d}\n"
                                         "  field g { set x 6 }\n"
                                         "  constraint c { x; }\n"
                                         "  set x 7\n"
                                         "}\n",
                                         "7"),
              hash(1) + "register r {\n" + hash(2) + "\tfield f {\n\t}\n" + hash(3) +
                  "\tdoc 5{\nd\n}\n" + hash(4) + "\tfield g {\n\t}\n" + hash(5) +
                  "\tconstraint c 6{\t\tx; \t}\n}\n\n\n");
}

// What Tcl's channel has written stands in the file before anything else writes there:
// a child process given descriptor 1, and a `tell`, which counts all of it.
TEST(ExpandRun, OtherWritersFollowWhatTclHasWritten) {
    EXPECT_EQ(expand_test::expand_script("bytes 1\nexec echo hi >@stdout\nbytes 2\n"),
              hash(1) + "bytes 1 \nhi\n" + hash(3) + "bytes 2 \n");
    EXPECT_EQ(expand_test::expand_script("bytes 1\nset p [tell stdout]\nbytes $p\n"),
              hash(1) + "bytes 1 \n" + hash(3) + "bytes 34 \n");
}

// The script may leave part of a line in Tcl's buffer or change how the channel buffers
// and translates; the declarations' text still lands behind it, as `puts` would put it.
TEST(ExpandRun, DeclarationsFollowTheChannelsOwnState) {
    EXPECT_EQ(expand_test::expand_script("puts -nonewline x\nbytes 1\nputs -nonewline y\n"),
              "x" + hash(2) + "bytes 1 \ny");
    EXPECT_EQ(expand_test::expand_script("fconfigure stdout -buffering full\nbytes 1\n"
                                         "exec echo hi >@stdout\nbytes 2\n"),
              hash(2) + "bytes 1 \nhi\n" + hash(4) + "bytes 2 \n");
    EXPECT_EQ(expand_test::expand_script("fconfigure stdout -buffering none\n"
                                         "puts -nonewline a\nbytes 1\n"),
              "a" + hash(3) + "bytes 1 \n");
    EXPECT_EQ(expand_test::expand_script("fconfigure stdout -translation crlf\nbytes 1\n"),
              "BRIX_HASHLINE 2 top.brix\r\nbytes 1 \r\n");
}

TEST(ExpandRun, FailuresEndTheRunAndRemoveThePureFile) {
    struct failure {
        const char* script;
        const char* err;
    };
    const failure cases[] = {
        {"source\n", "wrong # args: should be \"source fileName\"\n"},
        {"source nope.brix\n", "Error: Failed to open file nope.brix ... exiting!\n"},
        {"proc a b\n", "Wrong # args: should be \"proc name args body\"\n\n"},
        {"namespace eval ns { proc a {} { bytes 1 } }\nns::a\n",
         "Error: invalid command name \"ns::a\"\n\n"},
        // No description command frame around, by name or by place.
        {"::bytes 1\n", "Fatal Internal Error: get_current_brix_file_line_num() failed...\n\n"},
        {"{*}[list bytes 1]\n",
         "Fatal Internal Error: get_current_brix_file_line_num() failed...\n\n"},
    };
    for (const failure& c : cases) {
        scratch_dir dir;
        dir.write("top.brix", c.script);
        const auto run = expand_in(dir, "top.brix");
        EXPECT_EQ(run.status, 1) << c.script;
        EXPECT_EQ(run.err, c.err) << c.script;
        EXPECT_EQ(run.pure, "") << c.script;
    }
}

TEST(ExpandRun, ErrorLineSumsUpThroughNestedBodies) {
    scratch_dir dir;
    dir.write("top.brix", "set a 1\n"
                          "\n"
                          "block b {\n"
                          "  set x 1\n"
                          "  register r {\n"
                          "\n"
                          "     nosuch 1\n"
                          "  }\n"
                          "}\n");
    const auto run = expand_in(dir, "top.brix");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.rfind("\ninvalid command name \"nosuch\"\n    while executing\n", 0), 0u);
    EXPECT_TRUE(run.err.ends_with("}\" (file \"top.brix\" line 7)\n")) << run.err;
}

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

TEST(ExpandSource, DotAndDotDotStandForTheWorkingFolderAndItsParent) {
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

TEST(ExpandSource, NoEntryHoldsTheFileSoTheTopFoldersFailureIsFinal) {
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
TEST(ExpandRun, CaughtErrorLeavesLineSumAndLevelRaised) {
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
TEST(ExpandRun, SourceKeepsTheResultOfItsFile) {
    scratch_dir dir;
    dir.write("inc.brix", "bytes 1\nset q 3\n");
    dir.write("top.brix", "set v [source inc.brix]\nbytes $v\nsource inc.brix\n");
    const expansion run = expand_test::expand_in(dir, "top.brix");
    ASSERT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.pure, hash(1, "inc.brix") + "bytes 1 \n" + hash(2) + "bytes 3 \n" +
                            hash(1, "inc.brix") + "bytes 1 \n");
    EXPECT_EQ(run.out, "333" + std::filesystem::current_path().string() + "\n");
}

// Brackets nest as deep as Tcl's parser takes them: the run's own stack has room, and
// nothing before Tcl counts them, in comments and braces least of all.
TEST(ExpandRun, DeepBracketsAreLeftToTcl) {
    scratch_dir dir;
    dir.write("top.brix", "# " + std::string(2001, '[') + "\nbytes 1\nset x {" +
                              std::string(100000, '[') + std::string(100000, ']') + "}\nbytes 2\n");
    const expansion ok = expand_test::expand_in(dir, "top.brix");
    EXPECT_EQ(ok.status, 0) << ok.err;
    EXPECT_EQ(ok.pure, hash(2) + "bytes 1 \n" + hash(4) + "bytes 2 \n");
}

} // namespace
