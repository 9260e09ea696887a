// Pure text written by the description commands, compared byte for byte.
#include "expand_harness.hpp"

namespace {

using expand_test::expand_script;
using expand_test::hash;

TEST(ExpandCommands, PairsKeepTwoWordsAndResetBecomesHardReset) {
    EXPECT_EQ(expand_script("bytes 4 5 6\nreset 5\nhard_reset 7\nsoft_reset 1 2\naccess rw\n"
                            "endian big\nnoise n\ninitial 0\nbits 8\nbytes\n"),
              hash(1) + "bytes 4 \n" + hash(2) + "hard_reset 5 \n" + hash(3) + "hard_reset 7 \n" +
                  hash(4) + "soft_reset 1 \n" + hash(5) + "access rw \n" + hash(6) +
                  "endian big \n" + hash(7) + "noise n \n" + hash(8) + "initial 0 \n" + hash(9) +
                  "bits 8 \n" + hash(10) + "bytes \n");
}

TEST(ExpandCommands, SingleDropsAllArgumentsAndAllWordsKeepsThem) {
    EXPECT_EQ(expand_script("left_to_right 1\nsize 4 KB\nshared a b c\n"),
              hash(1) + "left_to_right \n" + hash(2) + "size 4 KB \n" + hash(3) +
                  "shared a b c \n");
}

TEST(ExpandCommands, EnumStaysOnItsLineAndAttributesEndIt) {
    EXPECT_EQ(expand_script("enum {A, B}\nattributes {x = 1}\nenum E {C}\n"),
              hash(1) + "enum { A, B  }" + hash(2) + "attributes { x = 1  }\n" + hash(3) +
                  "enum E { C  }");
}

TEST(ExpandCommands, CompoundBodiesNestWithTabsAndGapsAtTopLevel) {
    EXPECT_EQ(expand_script("block b {\n  bytes 4\n}\n"),
              "BRIX_HASHLINE 1 top.brix\nblock b {\nBRIX_HASHLINE 2 top.brix\n\tbytes 4 \n}\n\n\n");
    EXPECT_EQ(expand_script("system s {\n"
                            "  block b {\n"
                            "    register r {\n"
                            "      field f {\n"
                            "        bits 1\n"
                            "      }\n"
                            "    }\n"
                            "  }\n"
                            "}\n"),
              hash(1) + "system s {\n" + hash(2) + "\tblock b {\n" + hash(3) +
                  "\t\tregister r {\n" + hash(4) + "\t\t\tfield f {\n" + hash(5) +
                  "\t\t\t\tbits 1 \n\t\t\t}\n\t\t}\n\t}\n}\n\n\n");
}

TEST(ExpandCommands, DomainHasNoGapAndBareWordsAreNoBodies) {
    EXPECT_EQ(expand_script("domain d {\n  bytes 1\n}\nregister r\nregister q {}\ncover +f+a\n"
                            "block\nblock b { }\n"),
              hash(1) + "domain d {\n" + hash(2) + "\tbytes 1 \n}\n" + hash(4) + "register r \n" +
                  hash(5) + "register q {\n}\n\n\n" + hash(6) + "cover +f+a \n" + hash(7) +
                  "block \n" + hash(8) + "block b {\n}\n\n\n");
}

TEST(ExpandCommands, QuotedLastWordWithBlanksIsEvaluatedAsBody) {
    EXPECT_EQ(expand_script("field f \"bytes 1\"\n"),
              hash(1) + "field f {\n" + hash(1) + "\tbytes 1 \n}\n\n\n");
}

TEST(ExpandCommands, DocIsVerbatimAndConstraintIsReindented) {
    EXPECT_EQ(expand_script("register r {\n"
                            "  doc {x [1] $y}\n"
                            "  constraint c {x;}\n"
                            "  constraint c { x; }\n"
                            "  constraint c {\n"
                            "      a == 1;\n"
                            "\n"
                            "    b[3:0] == 2; }\n"
                            "  doc\n"
                            "  constraint c\n"
                            "}\n"),
              hash(1) + "register r {\n" + hash(2) +
                  // The subscript in a doc text keeps the backslashes of the pre-pass.
                  "\tdoc {\nx \\\\\\[1\\\\\\] $y\n}\n" + hash(3) + "\tconstraint c x; \n" +
                  hash(4) + "\tconstraint c {\t\tx; \t}\n" + hash(5) +
                  "\tconstraint c {\n\t\ta == 1;\n\n\t\tb[3:0] == 2; \t}\n" + hash(9) + "\tdoc \n" +
                  hash(10) + "\tconstraint c \n}\n\n\n");
}

TEST(ExpandCommands, BinsValueListsAndDefault) {
    EXPECT_EQ(expand_script("coverpoint {\n"
                            "  bins lo {[lo:hi]}\n"
                            "  bins mid {[0 : 3]}\n"
                            "  bins d default\n"
                            "}\n"),
              hash(1) + "coverpoint {\n" + hash(2) + "\tbins lo { [lo:hi]  }\n" + hash(3) +
                  "\tbins mid { [0 : 3]  }\n" + hash(4) + "\tbins d default }\n\n\n");
}

TEST(ExpandCommands, BinsRangeOfDigitsFailsInTcl) {
    expand_test::scratch_dir dir;
    dir.write("top.brix", "bytes 1\nbins b {[0:3]}\n");
    const auto run = expand_test::expand_in(dir, "top.brix");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.pure, "");
    EXPECT_EQ(run.err.rfind("\ninvalid command name ", 0), 0u) << run.err;
    EXPECT_TRUE(run.err.ends_with(" (file \"top.brix\" line 2)\n")) << run.err;
}

TEST(ExpandCommands, WordsAreSubstitutedTwice) {
    EXPECT_EQ(expand_script("set w 8\nbits {$w}\nbits {[expr {$w * 2}]}\n"),
              hash(2) + "bits 8 \n" + hash(3) + "bits 16 \n");
}

TEST(ExpandCommands, QuotesAreEscapedInWordsOfUpToThousandCharacters) {
    const std::string word = std::string(998, 'a') + "\"x";
    EXPECT_EQ(expand_script("bits [string repeat a 998]\\\"x\n"), hash(1) + "bits " + word + " \n");

    expand_test::scratch_dir dir;
    dir.write("top.brix", "bits [string repeat a 999]\\\"x\n");
    const auto run = expand_test::expand_in(dir, "top.brix");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.rfind("\nextra characters after close-quote\n", 0), 0u) << run.err;
}

TEST(ExpandCommands, LoopsProduceFlatDeclarations) {
    EXPECT_EQ(expand_script("for {set i 0} {$i<3} {incr i} { register r$i { bytes 1 } }\n"
                            "foreach {n w} {a 1 b 2} {\n"
                            "  field $n {\n"
                            "    bits $w\n"
                            "  }\n"
                            "}\n"),
              hash(1) + "register r0 {\n" + hash(1) + "\tbytes 1 \n}\n\n\n" + hash(1) +
                  "register r1 {\n" + hash(1) + "\tbytes 1 \n}\n\n\n" + hash(1) +
                  "register r2 {\n" + hash(1) + "\tbytes 1 \n}\n\n\n" + hash(3) + "field a {\n" +
                  hash(4) + "\tbits 1 \n}\n\n\n" + hash(3) + "field b {\n" + hash(4) +
                  "\tbits 2 \n}\n\n\n");
}

TEST(ExpandCommands, ProcBodiesArePlacedWhereTheyRun) {
    EXPECT_EQ(expand_script("proc reg {n} {\n"
                            "  register $n {\n"
                            "    bytes 1\n"
                            "  }\n"
                            "}\n"
                            "block b {\n"
                            "  reg r\n"
                            "  block c {\n"
                            "    reg q\n"
                            "  }\n"
                            "}\n"),
              hash(6) + "block b {\n" + hash(2) + "\tregister r {\n" + hash(3) +
                  "\t\tbytes 1 \n\t}\n" + hash(8) + "\tblock c {\n" + hash(2) +
                  "\t\tregister q {\n" + hash(3) + "\t\t\tbytes 1 \n\t\t}\n\t}\n}\n\n\n");
}

} // namespace
