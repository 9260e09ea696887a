// Address-map coverage and plan texts over hand-built models that a description cannot
// reach directly: a single named domain, instances with their address map switched off,
// memories of one location and of 2^31 offsets, and the plan of nested systems.
#include "gen_sv_builder.hpp"

#include "gen_plan/gen_plan.hpp"

using namespace brix_build;

namespace {

const char* const A = "`QVT_BRX_ADDR_WIDTH'h";

std::string addr(const char* hex) {
    return std::string(A) + hex;
}

brix_cvr_spec_tag* addr_map_off() {
    brix_cvr_spec_tag* spec = new_all_unsaid_cvr_spec();
    spec->addr_map = 0;
    return spec;
}

class review_gen_test : public generator_test {};

TEST_F(review_gen_test, single_named_domain_declares_its_group_but_builds_addr_map) {
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

TEST_F(review_gen_test, instances_without_address_map_leave_an_empty_group) {
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

TEST_F(review_gen_test, memories_of_one_location_have_backwards_ranges) {
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

TEST_F(review_gen_test, coverage_walk_takes_a_memory_span_in_32_bits) {
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

TEST_F(review_gen_test, plan_of_nested_systems_with_bit_coverage_only) {
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

TEST_F(review_gen_test, one_array_name_in_two_domains_stops_at_its_second_key) {
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
TEST_F(review_gen_test, field_at_the_end_of_the_offset_range_wraps) {
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
