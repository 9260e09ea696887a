// Backdoor pieces that a whole run does not show: the recovery of an expanded level's path,
// the names of connector registers, and the connector without a design top path, which the
// parser refuses before a generator could see it.
#include "gen_backdoor/backdoor.hpp"
#include "gen_backdoor/vhdl.hpp"
#include "gen_sv_builder.hpp"

using namespace brix_build;

namespace {

class backdoor : public generator_test {};

TEST_F(backdoor, expanded_element_gets_its_index_back_in_brackets) {
    brix_hdl_path_tag path{0, s("u_blkX3X.sub"), nullptr};
    brix_tmp_info_for_mem_vhdl_bkdr info{s("blk"), 2, s("u_blk[blk].sub")};
    EXPECT_EQ("u_blk[3].sub", get_hdl_path_with_mem_bkdr_wrkaround("blkX3X", &path, &info));
    // A level that was not expanded keeps its path.
    EXPECT_EQ("u_blkX3X.sub", get_hdl_path_with_mem_bkdr_wrkaround("blk", &path, nullptr));

    brix_hdl_path_tag other{0, s("v_blk.sub"), nullptr};
    const brix_test::child_result run = brix_test::run_in_child(
        [&] { get_hdl_path_with_mem_bkdr_wrkaround("blkX3X", &other, &info); });
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("Error - get_hdl_path_with_mem_bkdr_wrkaround(...) - Internal data structure "
              "corruption, please report.\n\n",
              run.err);
}

TEST_F(backdoor, connector_register_names) {
    std::string name;
    EXPECT_TRUE(emit_vhdl_path("a.b[2].c", name, false));
    EXPECT_EQ("a__b__c", name);
    name.clear();
    EXPECT_TRUE(emit_vhdl_path("a.b[2].c", name, true));
    EXPECT_EQ("a__bX2X__c", name);
    name.clear();
    EXPECT_FALSE(emit_vhdl_path("u3", name, false));
    // "%d" after a letter takes the index; at the start or inside brackets it stays.
    name.clear();
    EXPECT_FALSE(create_tmpregname(name, "x.y", "u%d", 3, true, {}, false));
    EXPECT_EQ("__x__y__u3__op", name);
    name.clear();
    EXPECT_FALSE(create_tmpregname(name, nullptr, "%d_q", 3, false, {}, false));
    EXPECT_EQ("__%d_q__ip", name);
    name.clear();
    EXPECT_TRUE(create_tmpregname(name, nullptr, "m[%d]", 3, false, {}, true));
    EXPECT_EQ("__mX%dX__ip", name);
}

TEST_F(backdoor, vhdl_memory_below_run_time_index_gets_a_class_per_element) {
    brix_memory_tag* m = static_cast<brix_memory_tag*>(mem("m", mem_type("ram", 8, 32)).second);
    m->hdl_path = record(initialize_hdl_path_defaults);
    m->hdl_path->path = s("m_q");
    m->hdl_path->is_vhdl = 1;
    brix_block_type_tag* b = block_type("b", {domain(nullptr, 4, nullptr, {{BRIX_MEMORY, m}})});
    node blk = block("blk", b, "0x0", 2, "0x100");
    auto* blk_record = static_cast<brix_block_tag*>(blk.second);
    blk_record->hdl_path = record(initialize_hdl_path_defaults);
    blk_record->hdl_path->path = s("u_blk[%d]");
    system_type("top", {sys_domain(nullptr, 4, {blk})});
    brix_gen_backdoor = 1;
    const brix_test::child_result run = generate_in_child("top");
    brix_gen_backdoor = 0;
    // The first element's class is begun; its access then needs the connector, which
    // cannot be made without the design's top path (brix_backdoor_top_path).
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("Error: 'brixgen' option '-p' is mandatory for VHDL Backdoor code generation.\n\n",
              run.err);
    std::ifstream in(out_base_ + ".sv");
    std::stringstream text;
    text << in.rdbuf();
    EXPECT_TRUE(holds(text.str(), "class brx_mem_top_blkX0X_m_bkdr extends qvt_brx_mem_backdoor;\n"
                                  "\tvirtual task read("));
    EXPECT_EQ(std::string::npos, text.str().find("int blk;"));
}

} // namespace
