// Coverage models and the plan file over hand-built models that a description cannot reach
// directly: bin counting, address maps of single named domains, instances with their map
// switched off and memories of one location or 2^31 offsets, and the plans of systems,
// named domains and regfiles.
#include "gen_sv_builder.hpp"

#include "gen_plan/gen_plan.hpp"
#include "gen_model/gen_coverage.hpp"

using namespace brix_build;

namespace {

brix_cvr_bin_value* number(const char* text) {
    auto* v = brix_new_record<brix_cvr_bin_value>();
    v->kind = 2;
    v->value = s(text);
    return v;
}

brix_cvr_bin_value* enum_name(const char* text) {
    auto* v = brix_new_record<brix_cvr_bin_value>();
    v->kind = 1;
    v->value = s(text);
    return v;
}

brix_cvr_bin_value* range(brix_cvr_bin_value* low, brix_cvr_bin_value* high) {
    auto* r = brix_new_record<brix_cvr_bin_range>();
    r->low = low;
    r->high = high;
    auto* v = brix_new_record<brix_cvr_bin_value>();
    v->kind = 3;
    v->value = r;
    return v;
}

brix_cvr_bin* auto_bin(std::initializer_list<brix_cvr_bin_value*> values) {
    auto* b = record(initialize_cvr_bin);
    b->name = s("b");
    b->auto_bins = 1;
    b->values = list_of(BRIX_CVR_BIN_VALUE, values);
    return b;
}

TEST(calc_bin_weight, counts_distinct_values_once) {
    const brix_enum_values none;
    EXPECT_EQ(4, calc_bin_weight(
                     auto_bin({number("1"), range(number("3"), number("5")), number("4")}), none));
    // Overlapping and touching ranges merge; a backwards range adds nothing.
    EXPECT_EQ(11, calc_bin_weight(
                      auto_bin({range(number("0"), number("5")), range(number("3"), number("10")),
                                range(number("9"), number("2"))}),
                      none));
    // Another base reads up to its first non-digit.
    EXPECT_EQ(1, calc_bin_weight(auto_bin({number("'h10"), number("0")}), none));
}

TEST(calc_bin_weight, reads_enum_names_and_wide_ranges) {
    const brix_enum_values states{{"idle", 0}, {"busy", 3}};
    EXPECT_EQ(4, calc_bin_weight(auto_bin({range(enum_name("idle"), enum_name("busy"))}), states));
    EXPECT_EQ(1000000001LL,
              calc_bin_weight(auto_bin({range(number("0"), number("1000000000"))}), states));
}

TEST(calc_bin_weight, refuses_unknown_names_and_empty_bins) {
    const brix_enum_values none;
    brix_cvr_bin* unknown = auto_bin({enum_name("gone")});
    EXPECT_EQ("calc_bin_weight(...) - Undefined enumeration const 'gone' used.\n\n",
              brix_test::run_in_child([&] { calc_bin_weight(unknown, none); }).err);
    brix_cvr_bin* empty = auto_bin({});
    EXPECT_EQ("calc_bin_weight(...) - Invalid Cover BIN found.\n\n",
              brix_test::run_in_child([&] { calc_bin_weight(empty, none); }).err);
}

// Runs the model and the plan for `top` with the models of `letters` asked for, and
// returns the plan's text.
class plan_test : public generator_test {
  protected:
    std::string plan(const char* top, const char* letters) {
        ask_models(letters);
        const std::string text = generate_plan(top);
        ask_models("");
        return text;
    }
};

const char* const reg_r_t_plan =
    "plan reg_r_t;\n"
    "    attribute string path = \"\";\n\n"
    "    feature f0_bits;\n"
    "        measure Group fcov;\n"
    "            source = \"group instance: brx_cvr_reg_r_t::reg_bits.${path}.f0\";\n"
    "        endmeasure\n"
    "    endfeature\n"
    "endplan\n\n\n";

brix_register_type_tag* r_t() {
    return reg_type("r_t", 4, {field("f0", 1), field("unused", 7)});
}

TEST_F(plan_test, block_below_a_system_takes_the_path) {
    brix_block_type_tag* b = block_type("b", {domain(nullptr, 4, nullptr, {reg("r", r_t())})});
    system_type("s", {sys_domain("d0", 4, {block("u_b", b, "0x0", 2, "0x100")}),
                      sys_domain("d1", 4, {block("u_b", b, "0x0")})});
    EXPECT_EQ(std::string(reg_r_t_plan) +
                  "plan block_b;\n"
                  "    attribute string path = \"\";\n\n"
                  "    feature reg_r;\n"
                  "        subplan reg_r_t #(path=\"${path}.r\");\n"
                  "    endfeature\n"
                  "\n"
                  "    feature address_map;\n"
                  "        measure Group fcov;\n"
                  "            source = \"group instance: brx_block_b::addr_map.${path}\";\n"
                  "        endmeasure\n"
                  "    endfeature\n"
                  "endplan\n\n\n"
                  "plan sys_s;\n"
                  "    attribute string path = \"\";\n\n"
                  "    feature block_u_b0;\n"
                  "        subplan block_b #(path=\"u_b[0]\");\n"
                  "    endfeature\n"
                  "    feature block_u_b1;\n"
                  "        subplan block_b #(path=\"u_b[1]\");\n"
                  "    endfeature\n"
                  "endplan\n\n\n",
              plan("s", "ab"));
}

TEST_F(plan_test, named_domain_wraps_its_features) {
    block_type("b", {domain("d", 4, nullptr, {reg("r", r_t())})});
    EXPECT_EQ(std::string(reg_r_t_plan) + "plan block_b;\n"
                                          "    attribute string path = \"\";\n\n"
                                          "    feature d;\n"
                                          "        feature reg_r;\n"
                                          "            subplan reg_r_t #(path=\"r(d)\");\n"
                                          "        endfeature\n"
                                          "    endfeature\n"
                                          "endplan\n\n\n",
              plan("b", "b"));
}

TEST_F(plan_test, regfiles_and_arrays_one_plan_a_type) {
    brix_register_type_tag* x = reg_type("xt", 4, {field("reserved", 32)});
    brix_regfile_type_tag* rft = regfile_type("rft", {reg("x", x), reg("y", x, nullptr, 2)});
    block_type("top", {domain(nullptr, 4, nullptr,
                              {regfile("rf", rft), reg("r", x, nullptr, 2),
                               mem("m", mem_type("m", 4, 32))})});
    EXPECT_EQ("plan reg_xt;\n"
              "    attribute string path = \"\";\n\n"
              "endplan\n\n\n"
              "plan regfile_rft;\n"
              "    attribute string path = \"\";\n\n"
              "    feature reg_x;\n"
              "        subplan reg_xt #(path=\"${path}.x\");\n"
              "    endfeature\n"
              "    feature reg_y0;\n"
              "        subplan reg_xt #(path=\"${path}.y[0]\");\n"
              "    endfeature\n"
              "    feature reg_y1;\n"
              "        subplan reg_xt #(path=\"${path}.y[1]\");\n"
              "    endfeature\n"
              "endplan\n\n\n"
              "plan block_top;\n"
              "    attribute string path = \"\";\n\n"
              "    feature regfile_rf;\n"
              "        subplan regfile_rft #(path=\"rf\");\n"
              "    endfeature\n"
              "    feature reg_r0;\n"
              "        subplan reg_xt #(path=\"r[0]\");\n"
              "    endfeature\n"
              "    feature reg_r1;\n"
              "        subplan reg_xt #(path=\"r[1]\");\n"
              "    endfeature\n"
              "endplan\n\n\n",
              plan("top", "b"));
}

TEST_F(plan_test, field_values_alone_has_no_register_plans) {
    block_type("b", {domain(nullptr, 4, nullptr, {reg("r", r_t())})});
    EXPECT_EQ("plan block_b;\n"
              "    attribute string path = \"\";\n\n"
              "\n"
              "    feature field_values;\n"
              "        measure Group fcov;\n"
              "            source = \"group instance: brx_block_b::field_values\";\n"
              "        endmeasure\n"
              "    endfeature\n"
              "endplan\n\n\n",
              plan("b", "f"));
}

} // namespace

namespace {

class sample_method_test : public generator_test {
  protected:
    std::string generate_field_values(const char* top) {
        brix_cvr_field_vals = 1;
        const std::string text = generate(top);
        brix_cvr_field_vals = 0;
        return text;
    }
};

brix_cvr_spec_tag* field_values_on() {
    brix_cvr_spec_tag* spec = new_all_unsaid_cvr_spec();
    spec->field_vals = 1;
    return spec;
}

TEST_F(sample_method_test, shared_register_is_sampled_once) {
    brix_register_type_tag* st = reg_type("st", 4, {field("f", 1)});
    st->is_shared = 1;
    brix_block_type_tag* b = block_type("b", {domain("a", 4, nullptr, {reg("s", st, "0x0")}),
                                              domain("c", 4, nullptr, {reg("s", st, "0x4")})});
    b->cvr_spec = field_values_on();
    EXPECT_TRUE(holds(generate_field_values("b"),
                      "\n\tfunction void sample_field_values();\n"
                      "\t\tif (this.can_cover(qvt_brx::FIELD_VALS)) begin\n"
                      "\t\t\tif (s.field_values != null) s.field_values.sample();\n"
                      "\t\tend\n"
                      "\tendfunction\n"
                      "endclass : brx_block_b\n"));
}

TEST_F(sample_method_test, regfile_registers_by_path) {
    brix_regfile_type_tag* rft = regfile_type("rft", {reg("x", reg_type("t", 4, {field("f", 6)}))});
    block_type("on", {domain(nullptr, 4, nullptr, {regfile("rf", rft)})})->cvr_spec =
        field_values_on();
    EXPECT_TRUE(holds(generate_field_values("on"),
                      "\t\t\tif (rf.x.field_values != null) rf.x.field_values.sample();\n"));
}

TEST_F(sample_method_test, none_without_field_value_coverage) {
    block_type("off", {domain(nullptr, 4, nullptr, {reg("r", reg_type("u", 4, {field("g", 2)}))})});
    const std::string text = generate_field_values("off");
    EXPECT_EQ(std::string::npos, text.find("sample_field_values"));
    EXPECT_EQ(std::string::npos, text.find("covergroup field_values"));
}

class coverage_test : public generator_test {};

const char* const A = "`QVT_BRX_ADDR_WIDTH'h";

std::string addr(const char* hex) {
    return std::string(A) + hex;
}

brix_cvr_spec_tag* addr_map_off() {
    brix_cvr_spec_tag* spec = new_all_unsaid_cvr_spec();
    spec->addr_map = 0;
    return spec;
}

TEST_F(coverage_test, single_named_domain_declares_its_group_but_builds_addr_map) {
    ask_models("a");
    block_type("nb",
               {domain("d", 4, nullptr, {reg("r", reg_type("t", 4, {field("f", 8)}), "0x0")})});
    const std::string text = generate("nb");
    EXPECT_TRUE(holds(text, "class brx_cvr_block_nb;\n"
                            "\tlocal bit [`QVT_BRX_ADDR_WIDTH-1:0] addr;\n"
                            "\n"
                            "\tcovergroup d_addr_map (input string name);\n"
                            "\t\toption.name = name;\n"
                            "\t\toption.per_instance = 1;\n"
                            "\n"
                            "\t\tr : coverpoint addr {\n"
                            "\t\t\tbins accessed = { " +
                                addr("0") +
                                " };\n"
                                "\t\t\toption.weight = 1;\n"
                                "\t\t}\n"
                                "\tendgroup\n"
                                "\n"
                                "\tfunction new (string name);\n"
                                "\t\tthis.addr_map = new($psprintf(\"%s\", name));\n"
                                "\tendfunction\n"
                                "\n"
                                "\tfunction void sample(bit [`QVT_BRX_ADDR_WIDTH-1:0] addr);\n"
                                "\t\tthis.addr = addr;\n"
                                "\t\tthis.addr_map.sample();\n"
                                "\tendfunction\n"
                                "endclass : brx_cvr_block_nb\n\n\n"
                                "class brx_block_nb extends qvt_brx_block;\n"));
    // The one domain goes to super.new with its name; the methods take no domain.
    EXPECT_TRUE(holds(text, "\t\tsuper.new(parent, name, \"nb\", 4, qvt_brx::LITTLE_ENDIAN, "
                            "base_addr, \"d\", cover_on, qvt_brx::ADDR_MAP);\n"));
    EXPECT_TRUE(holds(text, "\t\t\tbrx_cvr_block_nb cg;\n"
                            "\t\t\tcg = new(this.get_fullname());\n"
                            "\t\t\tthis.__addr_map[idx] = cg;\n"));
    EXPECT_TRUE(holds(text, "\t\tthis.__addr_map[domain].sample(addr);\n\tendfunction\n"));
}

TEST_F(coverage_test, instances_without_address_map_leave_an_empty_group) {
    ask_models("a");
    brix_register_type_tag* t = reg_type("t", 4, {field("f", 8)});
    node r = reg("r", t, "0x0");
    static_cast<brix_register_tag*>(r.second)->cvr_spec = addr_map_off();
    node m = mem("m", mem_type("m_t", 4, 32), "0x10");
    static_cast<brix_memory_tag*>(m.second)->cvr_spec = addr_map_off();
    block_type("quiet", {domain(nullptr, 4, nullptr, {r, m})});
    const std::string text = generate("quiet");
    EXPECT_TRUE(holds(text, "\tcovergroup addr_map (input string name);\n"
                            "\t\toption.name = name;\n"
                            "\t\toption.per_instance = 1;\n"
                            "\tendgroup\n"
                            "\n"
                            "\tfunction new (string name);\n"));
    EXPECT_TRUE(holds(text, "\tlocal brx_cvr_block_quiet __addr_map[*];\n\n"));
}

TEST_F(coverage_test, memories_of_one_location_have_backwards_ranges) {
    ask_models("a");
    block_type("mb", {domain(nullptr, 4, nullptr,
                             {mem("one", mem_type("one_t", 1, 32), "0x20"),
                              mem("dbl", mem_type("dbl_t", 1, 64), "0x40")})});
    const brix_test::child_result run = generate_in_child("mb");
    EXPECT_EQ(0, run.status);
    // The too wide memory warns in the coverage class and again in the constructor.
    const std::string warning =
        "Warning: 64 bits memory 'dbl_t' instantiated in 4 bytes block.\n\n";
    EXPECT_EQ(warning + warning, run.err);
    std::ifstream in(out_base_ + ".sv");
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_TRUE(holds(text.str(), "\t\tone : coverpoint addr {\n"
                                  "\t\t\tbins first_location_accessed = { " +
                                      addr("20") +
                                      " };\n"
                                      "\t\t\tbins last_location_accessed = { " +
                                      addr("20") +
                                      " };\n"
                                      "\t\t\tbins other_locations_accessed = { [" +
                                      addr("21") + ":" + addr("1F") +
                                      "] };\n"
                                      "\t\t\toption.weight = 3;\n"
                                      "\t\t}\n"));
    EXPECT_TRUE(holds(text.str(), "\t\tdbl : coverpoint addr {\n"
                                  "\t\t\tbins first_location_accessed = { [" +
                                      addr("40") + ":" + addr("41") +
                                      "] };\n"
                                      "\t\t\tbins last_location_accessed = { [" +
                                      addr("40") + ":" + addr("41") +
                                      "] };\n"
                                      "\t\t\tbins other_locations_accessed = { [" +
                                      addr("42") + ":" + addr("3F") + "] };\n"));
}

TEST_F(coverage_test, coverage_walk_takes_a_memory_span_in_32_bits) {
    ask_models("a");
    block_type("huge", {domain(nullptr, 4, nullptr,
                               {mem("m", mem_type("m_t", 0x80000000ULL, 32), "0x0"),
                                reg("r", reg_type("t", 4, {field("f", 8)}))})});
    const std::string text = generate("huge");
    EXPECT_TRUE(holds(text, "\t\t\tbins last_location_accessed = { " + addr("7FFFFFFF") +
                                " };\n"
                                "\t\t\tbins other_locations_accessed = { [" +
                                addr("1") + ":" + addr("7FFFFFFE") + "] };\n"));
    // 2^31 as a signed 32-bit product is negative: the class places r far from where the
    // constructor, which takes the full product, builds it.
    EXPECT_TRUE(holds(text, "\t\tr : coverpoint addr {\n"
                            "\t\t\tbins accessed = { " +
                                addr("FFFFFFFF80000000") + " };\n"));
    EXPECT_TRUE(holds(text, "\t\tthis.r = new(this, \"r\", " + addr("80000000") +
                                ", \"\", cover_on, 2'b11, 0);\n"));
}

TEST_F(coverage_test, plan_of_nested_systems_with_bit_coverage_only) {
    ask_models("b");
    brix_register_type_tag* only = reg_type("only", 4, {field("reserved", 8), field("unused", 24)});
    brix_block_type_tag* b =
        block_type("b", {domain(nullptr, 4, nullptr,
                                {reg("r", only), mem("m", mem_type("m_t", 4, 32), "0x10"),
                                 vreg("v", vreg_type("vt", 4, {field("a", 8)}), "m", "0x0", 2)})});
    brix_system_type_tag* inner =
        system_type("inner", {sys_domain(nullptr, 4, {block("k", b, nullptr, 2)})});
    auto* sub = record(initialize_system_defaults);
    sub->name = s("sub");
    sub->type = inner;
    system_type("s", {sys_domain("d0", 4, {block("u", b), {BRIX_SYSTEM, sub}}),
                      sys_domain("d1", 4, {block("u", b)})});
    EXPECT_EQ("plan reg_only;\n"
              "    attribute string path = \"\";\n\n"
              "endplan\n\n\n"
              "plan block_b;\n"
              "    attribute string path = \"\";\n\n"
              "    feature reg_r;\n"
              "        subplan reg_only #(path=\"${path}.r\");\n"
              "    endfeature\n"
              "endplan\n\n\n"
              "plan sys_inner;\n"
              "    attribute string path = \"\";\n\n"
              "    feature block_k0;\n"
              "        subplan block_b #(path=\"${path}.k[0]\");\n"
              "    endfeature\n"
              "    feature block_k1;\n"
              "        subplan block_b #(path=\"${path}.k[1]\");\n"
              "    endfeature\n"
              "endplan\n\n\n"
              "plan sys_s;\n"
              "    attribute string path = \"\";\n\n"
              "    feature block_u;\n"
              "        subplan block_b #(path=\"u\");\n"
              "    endfeature\n"
              "    feature sys_sub;\n"
              "        subplan sys_inner #(path=\"sub\");\n"
              "    endfeature\n"
              "endplan\n\n\n",
              generate_plan("s"));
}

TEST_F(coverage_test, one_array_name_in_two_domains_stops_at_its_second_key) {
    brix_block_type_tag* b = block_type(
        "b", {domain(nullptr, 4, nullptr, {reg("r", reg_type("t", 4, {field("f", 8)}))})});
    system_type("s", {sys_domain("d0", 4, {block("u", b, nullptr, 2)}),
                      sys_domain("d1", 4, {block("u", b, nullptr, 2)})});
    const brix_test::child_result run = generate_in_child("s");
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("Error: add_str2str_map_entry - Attempted to add key 'brx_block_b u' 2nd time on a "
              "unique key map.\n",
              run.err);
    // The file stays as far as it was written: the second loop is open.
    std::ifstream in(out_base_ + ".sv");
    std::stringstream text;
    text << in.rdbuf();
    const std::string tail = "\t\tend\n\t\tforeach (this.u[i]) begin\n\t\t\tint J = i;\n";
    ASSERT_GE(text.str().size(), tail.size());
    EXPECT_EQ(tail, text.str().substr(text.str().size() - tail.size()));
}

} // namespace

namespace {

// A field placed at the top of the 64-bit range: its msb and the positions after it wrap
// instead of overflowing (the sanitizer build stops the child on an overflow).
TEST_F(coverage_test, field_at_the_end_of_the_offset_range_wraps) {
    ask_models("baf");
    block_type(
        "far",
        {domain(nullptr, 8, nullptr,
                {reg("r", reg_type("t", 8,
                                   {field("a", 2, "rw", "0x7fffffffffffffff"), field("c", 3)}))})});
    const brix_test::child_result run = generate_in_child("far");
    EXPECT_EQ(0, run.status);
    EXPECT_EQ(std::string::npos, run.err.find("runtime error")) << run.err;
}

} // namespace
