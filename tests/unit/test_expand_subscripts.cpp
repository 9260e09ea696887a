// The pre-pass that puts subscripts behind three backslashes.
#include "expand_harness.hpp"

namespace {

// The three backslashes as they appear in the rewritten text.
const std::string bs3 = "\\\\\\";

TEST(ExpandSubscripts, RangesIndexesAndEmptySubscriptsAreProtected) {
    EXPECT_EQ(protect_brix_subscripts("field f[3:0] {"), "field f" + bs3 + "[3:0" + bs3 + "] {");
    EXPECT_EQ(protect_brix_subscripts("r[%d]"), "r" + bs3 + "[%d" + bs3 + "]");
    EXPECT_EQ(protect_brix_subscripts("r[]"), "r" + bs3 + "[" + bs3 + "]");
    EXPECT_EQ(protect_brix_subscripts("set x [1]"), "set x " + bs3 + "[1" + bs3 + "]");
}

TEST(ExpandSubscripts, TclBracketsAreLeftAlone) {
    EXPECT_EQ(protect_brix_subscripts("set n [llength $l]"), "set n [llength $l]");
    EXPECT_EQ(protect_brix_subscripts("[expr 1+1]"), "[expr 1+1]");
    EXPECT_EQ(protect_brix_subscripts("a[1x]"), "a[1x]");
    // The byte that ends the run is copied untested, even when it opens a subscript.
    EXPECT_EQ(protect_brix_subscripts("[[3]"), "[[3]");
}

TEST(ExpandSubscripts, SubscriptCutOffByTheEndIsDropped) {
    EXPECT_EQ(protect_brix_subscripts("bytes 4 [12"), "bytes 4 ");
    EXPECT_EQ(protect_brix_subscripts("x["), "x");
    EXPECT_EQ(protect_brix_subscripts("x[1]y[2"), "x" + bs3 + "[1" + bs3 + "]y");
}

TEST(ExpandSubscripts, ConstraintBodiesAreExempt) {
    EXPECT_EQ(protect_brix_subscripts("\nconstraint c { x[3:0] == 1; }"),
              "\nconstraint c { x[3:0] == 1; }");
    EXPECT_EQ(protect_brix_subscripts(" constraint  c_1 \n {\n{x[1]} y[2] }z[3]"),
              " constraint  c_1 \n {\n{x[1]} y[2] }z" + bs3 + "[3" + bs3 + "]");
}

TEST(ExpandSubscripts, OnlyTheExactConstraintHeadIsRecognised) {
    const std::string protected_body = "{ x" + bs3 + "[1" + bs3 + "] }";
    // At the very first byte of the text.
    EXPECT_EQ(protect_brix_subscripts("constraint c { x[1] }"), "constraint c " + protected_body);
    // No blank before the brace, two names, or a word character in front.
    EXPECT_EQ(protect_brix_subscripts("\nconstraint c{ x[1] }"), "\nconstraint c" + protected_body);
    EXPECT_EQ(protect_brix_subscripts("\nconstraint c d { x[1] }"),
              "\nconstraint c d " + protected_body);
    EXPECT_EQ(protect_brix_subscripts("\n_constraint c { x[1] }"),
              "\n_constraint c " + protected_body);
    EXPECT_EQ(protect_brix_subscripts("\nconstraints c { x[1] }"),
              "\nconstraints c " + protected_body);
}

TEST(ExpandSubscripts, SubscriptsReachThePureTextAsWritten) {
    EXPECT_EQ(expand_test::expand_script("register r[%d] {\n"
                                         "  field f[3:0] {bits 4}\n"
                                         "}\n"
                                         "set x [1]\n"
                                         "bytes $x[llength {a b}]\n"
                                         "set z abc[12",
                                         "abc"),
              expand_test::hash(1) + "register r[%d] {\n" + expand_test::hash(2) +
                  "\tfield f[3:0] {\n" + expand_test::hash(2) + "\t\tbits 4 \n\t}\n}\n\n\n" +
                  // The script's last result, "abc", waits for the user's output; the
                  // cut-off subscript is gone.
                  expand_test::hash(5) + "bytes [1]2 \n");
}

} // namespace
