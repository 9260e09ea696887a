// Register, virtual register and memory classes, and the walk's refusals, on hand-built
// models.
#include "gen_sv_builder.hpp"

using namespace brix_build;

namespace {

class gen_sv_classes : public generator_test {};

brix_enum_type* enum_of(std::initializer_list<std::pair<const char*, const char*>> names) {
    auto* e = record(initialize_enum_type);
    brix_list_tag* head = nullptr;
    for (const auto& [name, value] : names) {
        auto* d = record(initialize_enum_name_declaration);
        d->name = s(name);
        d->value = s(value);
        if (head == nullptr) {
            head = create_brix_list_node(BRIX_ENUM_NAME_DECL, d);
        } else {
            add_to_brix_list_end(head, BRIX_ENUM_NAME_DECL, d);
        }
    }
    e->names = head;
    return e;
}

TEST_F(gen_sv_classes, enum_class_takes_its_name_from_the_field) {
    brix_field_tag* mode = field("mode", 2);
    mode->type->enum_type = enum_of({{"idle", nullptr}, {"busy", "3"}, {"done", nullptr}});
    block_type("b", {domain(nullptr, 4, nullptr, {reg("r", reg_type("r", 1, {mode}))})});
    EXPECT_TRUE(holds(generate("b"), "`include \"qvt_brx.sv\"\n\n"
                                     "class brx_fld_r_mode;\n"
                                     "\ttypedef enum bit[1:0] { \n\t\tidle, \n\t\tbusy = 3, "
                                     "\n\t\tdone\n\t} mode_values;\n"
                                     "endclass : brx_fld_r_mode\n\n\n"
                                     "class brx_reg_r extends qvt_brx_reg;\n"));
}

TEST_F(gen_sv_classes, named_out_fields_keep_their_bits_only) {
    brix_register_type_tag* t =
        reg_type("r", 2, {field("unused", 4), field("reserved", 4), field("x", 8)});
    const std::string text = [&] {
        block_type("b", {domain(nullptr, 4, nullptr, {reg("r", t)})});
        return generate("b");
    }();
    EXPECT_TRUE(holds(text, "class brx_reg_r extends qvt_brx_reg;\n\trand qvt_brx_field x;\n\n"));
    EXPECT_TRUE(holds(text,
                      "\t\tthis.x = new(this, \"x\", 8, qvt_brx::RW, 8'h0, 8'hx, 8, 0, cvr);\n"
                      "\tendfunction: new\n"));
    EXPECT_EQ(std::string::npos, text.find("unused"));
    EXPECT_EQ(std::string::npos, text.find("reserved"));
}

TEST_F(gen_sv_classes, backwards_field_offset_does_not_rewind) {
    // b at 8 then a at 0: a takes its offset, c continues above b.
    brix_register_type_tag* t =
        reg_type("r", 4, {field("b", 4, "rw", "8"), field("a", 4, "rw", "0"), field("c", 4)});
    block_type("blk", {domain(nullptr, 4, nullptr, {reg("r", t)})});
    const std::string text = generate("blk");
    EXPECT_TRUE(holds(text, "\"b\", 4, qvt_brx::RW, 4'h0, 4'hx, 8, 0, cvr);\n"));
    EXPECT_TRUE(holds(text, "\"a\", 4, qvt_brx::RW, 4'h0, 4'hx, 0, 0, cvr);\n"));
    EXPECT_TRUE(holds(text, "\"c\", 4, qvt_brx::RW, 4'h0, 4'hx, 12, 0, cvr);\n"));
}

TEST_F(gen_sv_classes, constrained_flag_search_stops_at_empty_constraint) {
    brix_register_type_tag* t = reg_type("r", 1, {field("x", 4), field("y", 4)});
    // y is named only after a constraint with empty braces, so the search never sees it.
    t->constraints = constraint("a", "x > 1;", constraint("e", nullptr, constraint("b", "y<2;")));
    block_type("blk", {domain(nullptr, 4, nullptr, {reg("r", t)})});
    const std::string text = generate("blk");
    EXPECT_TRUE(holds(text, "\"x\", 4, qvt_brx::RW, 4'h0, 4'hx, 0, 1, cvr);\n"));
    EXPECT_TRUE(holds(text, "\"y\", 4, qvt_brx::RW, 4'h0, 4'hx, 4, 0, cvr);\n"));
    EXPECT_TRUE(holds(text, "\tconstraint a {\n\t\tx > 1;\n\t}\n"
                            "\tconstraint e;\n"
                            "\tconstraint b {\n\t\ty<2;\n\t}\n\n"));
    EXPECT_TRUE(holds(text, "\t\tXadd_constraintsX(\"a\");\n\t\tXadd_constraintsX(\"e\");\n"
                            "\t\tXadd_constraintsX(\"b\");\n\tendfunction: new\n"));
}

TEST_F(gen_sv_classes, value_rewrite_touches_whole_words_only) {
    brix_field_tag* f = field("f", 8);
    f->type->constraints = constraint("c", "value != values; (value)\n  my_value == value_x;");
    block_type("blk", {domain(nullptr, 4, nullptr, {reg("r", reg_type("r", 1, {f}))})});
    EXPECT_TRUE(holds(generate("blk"), "\tconstraint f_c {\n"
                                       "\t\tf.value != values; (f.value)\n"
                                       "\t\tmy_value == value_x;\n"
                                       "\t}\n\n"));
}

TEST_F(gen_sv_classes, attributes_and_user_defined_constraints) {
    brix_register_type_tag* t = reg_type("r", 1, {field("f", 8)});
    auto* second = record<brix_attribute>([](brix_attribute* a) { *a = {}; });
    second->name = s("owner");
    second->value = s("\"hw\"");
    auto* first = record<brix_attribute>([](brix_attribute* a) { *a = {}; });
    first->name = s("width");
    first->value = s("8");
    first->next = second;
    t->attributes = first;
    brix_ext_ud = 1;
    block_type("blk", {domain(nullptr, 4, nullptr, {reg("r", t)})});
    const std::string text = generate("blk");
    EXPECT_TRUE(holds(text, "\trand qvt_brx_field f;\n\n\tconstraint user_defined;\n\n"
                            "\tfunction new(qvt_brx_block parent"));
    EXPECT_TRUE(holds(text, "\t\tthis.set_attribute(\"width\", \"8\");\n"
                            "\t\tthis.set_attribute(\"owner\", \"\"hw\"\");\n"
                            "\t\tXadd_constraintsX(\"user_defined\");\n\tendfunction: new\n"));
    // The block's class gets its own user-defined constraint too.
    EXPECT_TRUE(holds(text, "\t\tXadd_constraintsX(\"user_defined\");\n"
                            "\t\tthis.Xlock_modelX();\n"));
}

TEST_F(gen_sv_classes, virtual_register_class_and_instances) {
    brix_vregister_type_tag* d =
        vreg_type("desc", 8, {field("addr", 24), field("unused", 8), field("len", 8)});
    brix_memory_type_tag* m = mem_type("ram", 64, 32);
    block_type("blk", {domain(nullptr, 4, nullptr,
                              {mem("ram", m, "0x0"), vreg("vd", d, "ram", "0x10", 4, "3"),
                               vreg("vs", d, nullptr, nullptr, -1, "1")})});
    const brix_test::child_result run = generate_in_child("blk");
    ASSERT_EQ(0, run.status);
    const std::string text = [&] {
        std::ifstream in(out_base_ + ".sv");
        std::stringstream t;
        t << in.rdbuf();
        return t.str();
    }();
    EXPECT_TRUE(holds(text, "class brx_vreg_desc extends qvt_brx_vreg;\n"
                            "\trand qvt_brx_vfield addr;\n"
                            "\trand qvt_brx_vfield len;\n\n"
                            "\tfunction new(qvt_brx_block parent, string name, int unsigned "
                            "n_bits,\n\t\t\t bit[`QVT_BRX_ADDR_WIDTH-1:0] offset = "
                            "`QVT_BRX_ADDR_WIDTH'h0, qvt_brx_mem mem = null, longint unsigned "
                            "size = 0, int unsigned incr = 0);\n"
                            "\t\tsuper.new(parent, name, n_bits, offset, mem, size, incr);\n"
                            "\t\tthis.addr = new(this, \"addr\", 24, 0);\n"
                            "\t\tthis.len = new(this, \"len\", 8, 32);\n"
                            "\tendfunction: new\nendclass : brx_vreg_desc\n\n\n"));
    // Two words of four bytes: 64 bits; an increment of 3 words stands, one of 1 is
    // refused with a warning.
    EXPECT_TRUE(holds(text, "\t\tthis.vd = new(this, \"vd\", 64, `QVT_BRX_ADDR_WIDTH'h10, "
                            "this.ram, 4, 3);\n"
                            "\t\tthis.vd_addr = this.vd.addr;\n"
                            "\t\tthis.vd_len = this.vd.len;\n"
                            "\t\tthis.vs = new(this, \"vs\", 64);\n"));
    EXPECT_EQ("Warning: 8 bytes virtual register 'desc' instantiated in 4 bytes block.\n\n"
              "Warning: 8 bytes virtual register 'desc' instantiated in 4 bytes block.\n\n"
              "Warning: Block 'blk' - Virtual Register 'vs' - Ignoring 'incr', as it must be "
              "big enough to make sure (virtual) register (array) elementoverlapping doesn't "
              "happen.\n\n"
              // The written increment of 3 words of 4 bytes counts as 96 bits of data.
              "Warning: This BRX model requires `QVT_BRX_DATA_WIDTH macro to be defined to 96 "
              "or greater.\n\n",
              run.err);
}

TEST_F(gen_sv_classes, quiet_mode_keeps_only_the_unsilenced_warnings) {
    brix_quiet_mode = 1;
    brix_vregister_type_tag* d = vreg_type("desc", 4, {field("a", 32)});
    block_type("blk", {domain(nullptr, 4, nullptr,
                              {reg("w", reg_type("w", 16, {field("x", 128)})),
                               vreg("v", d, nullptr, nullptr, -1, "0")})});
    const brix_test::child_result run = generate_in_child("blk");
    EXPECT_EQ(0, run.status);
    EXPECT_EQ("Warning: Block 'blk' - Virtual Register 'v' - Ignoring 'incr', as it must be "
              "big enough to make sure (virtual) register (array) elementoverlapping doesn't "
              "happen.\n\n"
              "Warning: This BRX model requires `QVT_BRX_DATA_WIDTH macro to be defined to 128 "
              "or greater.\n\n",
              run.err);
}

TEST_F(gen_sv_classes, exactly_64_bits_needs_no_wider_data_path) {
    block_type("blk",
               {domain(nullptr, 8, nullptr, {reg("w", reg_type("w", 8, {field("x", 64)}))})});
    const brix_test::child_result run = generate_in_child("blk");
    EXPECT_EQ(0, run.status);
    EXPECT_EQ("", run.err);
}

TEST_F(gen_sv_classes, access_flags_and_shared_memory) {
    brix_register_type_tag* t = reg_type("r", 4, {field("f", 1)});
    brix_memory_type_tag* m = mem_type("ram", 16, 32);
    m->is_shared = 1;
    node rd = reg("rd", t, "0x0");
    static_cast<brix_register_tag*>(rd.second)->rw_flag = s("read");
    node wr = reg("wr", t, "none");
    static_cast<brix_register_tag*>(wr.second)->rw_flag = s("write");
    node m2 = mem("shm", m, "0x20");
    static_cast<brix_memory_tag*>(m2.second)->rw_flag = s("read");
    block_type("blk", {domain("a", 4, "fifo_ls", {rd, wr, mem("shm", m, "0x10")}),
                       domain("b", 4, "no", {m2})});
    const std::string text = generate("blk");
    EXPECT_TRUE(holds(text, "\t\tsuper.new(parent, name, \"blk\", 4, qvt_brx::LITTLE_FIFO, "
                            "base_addr, \"a\", cover_on, qvt_brx::NO_COVERAGE);\n"
                            "\t\tthis.add_domain(4, qvt_brx::NO_ENDIAN, \"b\");\n"
                            "\t\tthis.rd = new(this, \"rd\", `QVT_BRX_ADDR_WIDTH'h0, \"a\", "
                            "cover_on, 2'b10, 0);\n"));
    // @none is built where the walk stands and takes no space.
    EXPECT_TRUE(holds(text, "\t\tthis.wr = new(this, \"wr\", `QVT_BRX_ADDR_WIDTH'h1, \"a\", "
                            "cover_on, 2'b01, 1);\n"));
    EXPECT_TRUE(holds(text, "\t\tthis.shm = new(this, \"ram\", `QVT_BRX_ADDR_WIDTH'h10, \"a\", "
                            "cover_on, 2'b11, 0);\n"));
    EXPECT_TRUE(holds(text, "\t\tthis.shm.add_domain(`QVT_BRX_ADDR_WIDTH'h20, \"b\", 2'b10, 0);\n"
                            "\t\tthis.Xlock_modelX();\n"));
    EXPECT_EQ(text.find("\trand brx_mem_ram shm;\n"), text.rfind("\trand brx_mem_ram shm;\n"));
}

TEST_F(gen_sv_classes, refusals_end_the_run) {
    brix_register_type_tag* st = reg_type("st", 4, {field("f", 1)});
    st->is_shared = 1;
    block_type("arr", {domain(nullptr, 4, nullptr, {reg("s", st, nullptr, 2)})});
    brix_test::child_result run = generate_in_child("arr");
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("Error: Register 'st' - Array of shared register is not allowed.\n", run.err);

    brix_register_type_tag* other = reg_type("other", 4, {field("g", 1)});
    other->is_shared = 1;
    block_type("mix", {domain("a", 4, nullptr, {reg("s", st)}),
                       domain("b", 4, nullptr, {reg("s", other)})});
    run = generate_in_child("mix");
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("Shared Register 's' (In Block 'mix') - Multiple instances of same name, but of "
              "different type found.\n",
              run.err);

    node bad = reg("bad", reg_type("t", 4, {field("f", 1)}));
    static_cast<brix_register_tag*>(bad.second)->rw_flag = s("Read");
    block_type("flag", {domain(nullptr, 4, nullptr, {bad})});
    run = generate_in_child("flag");
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("Error - Invalid shared access specifier 'Read' found ...\n\n", run.err);
}

TEST_F(gen_sv_classes, system_refuses_one_name_for_two_types) {
    brix_block_type_tag* x =
        block_type("x", {domain(nullptr, 4, nullptr, {reg("r", reg_type("r", 4, {}))})});
    brix_block_type_tag* y =
        block_type("y", {domain(nullptr, 4, nullptr, {reg("q", reg_type("q", 4, {}))})});
    system_type("s", {sys_domain("d0", 4, {block("u", x)}), sys_domain("d1", 4, {block("u", y)})});
    const brix_test::child_result run = generate_in_child("s");
    EXPECT_EQ(1, run.status);
    EXPECT_EQ("Error: Multiple components with same name found inside system 's'.\n\n", run.err);
}

} // namespace
