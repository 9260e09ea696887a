// The block and system classes of the SystemVerilog model, on models built by hand.
#include "gen_sv_builder.hpp"

using namespace brix_build;

namespace {

// The block `dma` of the documented example: `ctrl` at 'h10, `buf` at 'h100.
brix_block_type_tag* make_dma() {
    brix_register_type_tag* ctrl =
        reg_type("ctrl", 4, {field("en", 1, "rw", nullptr, "1"), field("mode", 3, "ro", "4")});
    brix_memory_type_tag* buf = mem_type("buf", 256, 32);
    return block_type("dma", {domain(nullptr, 4, nullptr,
                                     {reg("ctrl", ctrl, "'h10"), mem("buf", buf, "'h100")})});
}

class gen_sv_blocks : public generator_test {};

TEST_F(gen_sv_blocks, documented_dma_file) {
    make_dma();
    const std::string expected =
        "`ifndef BRX_DMA\n"
        "`define BRX_DMA\n"
        "\n"
        "`include \"qvt_brx.sv\"\n"
        "\n"
        "class brx_reg_ctrl extends qvt_brx_reg;\n"
        "\trand qvt_brx_field en;\n"
        "\tqvt_brx_field mode;\n"
        "\n"
        "\tfunction new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] offset, "
        "string domain, int cvr, \n"
        "\t\t\t\tbit[1:0] rights = 2'b11, bit unmapped = 0);\n"
        "\t\tsuper.new(parent, name, 32, offset, domain, cvr, rights, unmapped, "
        "qvt_brx::NO_COVERAGE);\n"
        "\t\tthis.en = new(this, \"en\", 1, qvt_brx::RW, 1, 1'hx, 0, 0, cvr);\n"
        "\t\tthis.mode = new(this, \"mode\", 3, qvt_brx::RO, 3'h0, 3'hx, 4, 0, cvr);\n"
        "\tendfunction: new\n"
        "endclass : brx_reg_ctrl\n"
        "\n\n"
        "class brx_mem_buf extends qvt_brx_mem;\n"
        "\tfunction new(qvt_brx_block parent, string name, bit[`QVT_BRX_ADDR_WIDTH-1:0] "
        "base_address, string domain, int cvr,\n"
        "\t\t\t\tbit[1:0] rights = 2'b11, bit unmapped = 0);\n"
        "\t\tsuper.new(parent, name, qvt_brx::RW, `QVT_BRX_ADDR_WIDTH'h100, 32, base_address, "
        "domain, cvr, rights, unmapped, qvt_brx::NO_COVERAGE);\n"
        "\tendfunction: new\n"
        "endclass : brx_mem_buf\n"
        "\n\n"
        "class brx_block_dma extends qvt_brx_block;\n"
        "\trand brx_reg_ctrl ctrl;\n"
        "\trand brx_mem_buf buf;\n"
        "\trand qvt_brx_field ctrl_en;\n"
        "\trand qvt_brx_field en;\n"
        "\tqvt_brx_field ctrl_mode;\n"
        "\tqvt_brx_field mode;\n"
        "\n"
        "\tfunction new(int cover_on = qvt_brx::NO_COVERAGE, string name = \"dma\", qvt_brx_sys "
        "parent = null, integer base_addr = 0);\n"
        "\t\tsuper.new(parent, name, \"dma\", 4, qvt_brx::LITTLE_ENDIAN, base_addr, \"\", "
        "cover_on, qvt_brx::NO_COVERAGE);\n"
        "\t\tthis.ctrl = new(this, \"ctrl\", `QVT_BRX_ADDR_WIDTH'h10, \"\", cover_on, 2'b11, 0);\n"
        "\t\tthis.ctrl_en = this.ctrl.en;\n"
        "\t\tthis.en = this.ctrl.en;\n"
        "\t\tthis.ctrl_mode = this.ctrl.mode;\n"
        "\t\tthis.mode = this.ctrl.mode;\n"
        "\t\tthis.buf = new(this, \"buf\", `QVT_BRX_ADDR_WIDTH'h100, \"\", cover_on, 2'b11, 0);\n"
        "\t\tthis.Xlock_modelX();\n"
        "\tendfunction : new\n"
        "endclass : brx_block_dma\n"
        "\n\n"
        "`endif\n";
    EXPECT_EQ(expected, generate("dma"));
}

TEST_F(gen_sv_blocks, two_domains_share_one_register) {
    brix_register_type_tag* st = reg_type("st", 4, {field("f", 1)});
    st->is_shared = 1;
    brix_block_domain_tag* a = domain("a", 4, "big", {reg("s", st)});
    brix_block_domain_tag* c = domain("c", 8, nullptr, {reg("s", st)});
    block_type("b", {a, c});
    const std::string text = generate("b");
    EXPECT_TRUE(holds(
        text,
        "\tfunction new(int cover_on = qvt_brx::NO_COVERAGE, string name = \"b\", qvt_brx_sys "
        "parent = null, integer base_addr = 0);\n"
        "\t\tsuper.new(parent, name, \"b\", 4, qvt_brx::BIG_ENDIAN, base_addr, \"a\", cover_on, "
        "qvt_brx::NO_COVERAGE);\n"
        "\t\tthis.add_domain(8, qvt_brx::LITTLE_ENDIAN, \"c\");\n"
        "\t\tthis.s = new(this, \"st\", `QVT_BRX_ADDR_WIDTH'h0, \"a\", cover_on, 2'b11, 0);\n"
        "\t\tthis.s_f = this.s.f;\n"
        "\t\tthis.f = this.s.f;\n"
        "\t\tthis.s.add_domain(`QVT_BRX_ADDR_WIDTH'h0, \"c\", 2'b11, 0);\n"
        "\t\tthis.Xlock_modelX();\n"
        "\tendfunction : new\n"));
    // One member and one set of alias declarations for the two instances.
    EXPECT_TRUE(holds(text, "class brx_block_b extends qvt_brx_block;\n"
                            "\trand brx_reg_st s;\n"
                            "\trand qvt_brx_field s_f;\n"
                            "\trand qvt_brx_field f;\n\n"));
}

TEST_F(gen_sv_blocks, documented_system_places_scalar_and_array) {
    brix_block_type_tag* dma = make_dma();
    system_type(
        "soc", {sys_domain(nullptr, 4,
                           {block("d0", dma, "'h1000"), block("d1", dma, "'h2000", 2, "'h1000")})});
    const std::string text = generate("soc");
    EXPECT_TRUE(holds(
        text,
        "class brx_sys_soc extends qvt_brx_sys;\n"
        "\trand brx_block_dma d0;\n"
        "\trand brx_block_dma d1[2];\n"
        "\n"
        // The one domain's empty constraint list still ends in its blank line.
        "\n"
        "\tfunction new(int cover_on = qvt_brx::NO_COVERAGE, string name = \"soc\", qvt_brx_sys "
        "parent = null, integer base_addr = 0);\n"
        "\t\tsuper.new(parent, name, \"soc\", 4, qvt_brx::LITTLE_ENDIAN, base_addr, \"\", "
        "cover_on, qvt_brx::NO_COVERAGE);\n"
        "\t\tthis.d0 = new(cover_on, \"d0\", this, `QVT_BRX_ADDR_WIDTH'h1000);\n"
        "\t\tthis.register_block(this.d0, \"\", \"\", `QVT_BRX_ADDR_WIDTH'h1000);\n"
        "\t\tforeach (this.d1[i]) begin\n"
        "\t\t\tint J = i;\n"
        "\t\t\tthis.d1[J] = new(cover_on, $psprintf(\"d1[%0d]\",J), this, "
        "`QVT_BRX_ADDR_WIDTH'h2000+J*`QVT_BRX_ADDR_WIDTH'h1000);\n"
        "\t\t\tthis.register_block(this.d1[J], \"\", \"\", "
        "`QVT_BRX_ADDR_WIDTH'h2000+J*`QVT_BRX_ADDR_WIDTH'h1000);\n"
        "\t\tend\n"
        "\t\tthis.Xlock_modelX();\n"
        "\tendfunction : new\n"
        "endclass : brx_sys_soc\n\n\n`endif\n"));
    // The block's classes are written once, ahead of the system.
    EXPECT_EQ(text.find("class brx_block_dma "), text.rfind("class brx_block_dma "));
    EXPECT_LT(text.find("class brx_block_dma "), text.find("class brx_sys_soc "));
}

} // namespace
