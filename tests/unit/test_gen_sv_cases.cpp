// The models of the golden cases of the SystemVerilog generator, built by hand: the
// generator is checked apart from the parser that reads the cases' descriptions.
#include "gen_sv_builder.hpp"

using namespace brix_build;

namespace {

std::string read_file(const std::string& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// A file of a case's `expected` folder.
std::string golden_expected(const std::string& group_case, const std::string& file) {
    std::string tests = BRIX_TEST_DATA_DIR;
    tests.erase(tests.rfind('/'));
    const std::string path = tests + "/golden/" + group_case + "/expected/" + file;
    if (access(path.c_str(), R_OK) == 0) {
        return read_file(path);
    }
    ADD_FAILURE() << "no file " << file << " in the golden case " << group_case;
    return {};
}

class gen_sv_cases : public generator_test {
  protected:
    // Generates in a child and compares the model and the warnings with the case.
    void expect_case(const char* top, const std::string& group_case, const std::string& file) {
        const brix_test::child_result run = generate_in_child(top);
        EXPECT_EQ(0, run.status);
        EXPECT_EQ(golden_expected(group_case, "stderr"), run.err);
        EXPECT_EQ(golden_expected(group_case, "files/" + file), read_file(out_base_ + ".sv"));
    }
};

TEST_F(gen_sv_cases, regfile_none_and_backwards) {
    brix_register_type_tag* r = reg_type("r", 4, {field("v", 32)});
    brix_regfile_type_tag* rf = regfile_type(
        "rf", {reg("a", r, "0x10"), reg("b", r, "none"), reg("c", r, "0x0"), reg("d", r)});
    block_type("top", {domain(nullptr, 4, nullptr, {regfile("f", rf), reg("after", r)})});
    expect_case("top", "gen_sv_edges/regfile_none_and_backwards", "brx_top.sv");
}

TEST_F(gen_sv_cases, placement_resets_constraints) {
    brix_register_type_tag* lr =
        reg_type("lr", 2, {field("hi", 8), field("lo", 8, "rw", nullptr, "'h5")});
    lr->left_to_right = 1;
    brix_field_tag* value = field("value", 8);
    value->type->constraints = constraint("small", "\n\t\t\tvalue < 10;\n\t\t");
    brix_register_type_tag* cfg = reg_type("cfg", 4, {value, field("foo", 4, "rw", "16")});
    cfg->constraints = constraint("pick", "\n\t\tfoo_bar == 1;\n\t");
    block_type("regs",
               {domain(nullptr, 4, nullptr, {reg("lr", lr, "0x0"), reg("cfg", cfg, "0x1")})});
    expect_case("regs", "gen_sv_edges/placement_resets_constraints", "brx_regs.sv");
}

TEST_F(gen_sv_cases, wide_registers_and_width_warning) {
    brix_register_type_tag* w8 = reg_type("w8", 8, {field("lo", 32), field("hi", 32)});
    brix_register_type_tag* w16 = reg_type("w16", 16, {field("all", 128)});
    block_type("wide", {domain(nullptr, 4, nullptr,
                               {reg("one", w8), reg("many", w8, nullptr, 2), reg("big", w16)})});
    expect_case("wide", "gen_sv_edges/wide_registers_and_width_warning", "brx_wide.sv");
}

TEST_F(gen_sv_cases, two_domain_block_in_two_domains) {
    brix_register_type_tag* csr = reg_type("csr", 4, {field("go", 1)});
    brix_block_type_tag* bridge =
        block_type("bridge", {domain("host", 4, nullptr, {reg("csr", csr, "0x0")}),
                              domain("dbg", 2, nullptr, {reg("dcsr", csr, "0x8")})});
    system_type("top", {sys_domain("d0", 4, {block("br", bridge, "0x100", -1, nullptr, "host")}),
                        sys_domain("d1", 2, {block("br", bridge, "0x0", -1, nullptr, "dbg")})});
    expect_case("top", "gen_sv_systems/two_domain_block_in_two_domains", "brx_top.sv");
}

TEST_F(gen_sv_cases, array_steps_and_wider_block) {
    brix_register_type_tag* ctrl =
        reg_type("ctrl", 4, {field("en", 1, "rw", nullptr, "1"), field("mode", 3, "ro", "4")});
    brix_block_type_tag* dma = block_type(
        "dma",
        {domain(nullptr, 4, nullptr,
                {reg("ctrl", ctrl, "0x10"), mem("fifo", mem_type("fifo", 256, 32), "0x100")})});
    system_type("arr", {sys_domain("wide", 4, {block("a", dma, nullptr, 4), block("after", dma)}),
                        sys_domain("narrow", 2, {block("n", dma), block("m", dma)})});
    expect_case("arr", "gen_sv_systems/array_steps_and_wider_block", "brx_arr.sv");
}

TEST_F(gen_sv_cases, output_name_keeps_top_in_guard_only) {
    brix_register_type_tag* ctrl =
        reg_type("ctrl", 4, {field("en", 1, "rw", nullptr, "1"), field("mode", 3, "ro", "4")});
    block_type("dma", {domain(nullptr, 4, nullptr,
                              {reg("ctrl", ctrl, "0x10"),
                               mem("buf", mem_type("buf", 256, 32), "0x100")})});
    out_base_ = dir_ + "/model";
    ofile = out_base_.c_str();
    expect_case("dma", "gen_sv_blocks/output_name_option", "model.sv");
}

} // namespace
