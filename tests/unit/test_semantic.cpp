// The model after the checks: coverage inheritance and marks, the queries, and the
// structure that the block and system rules build.
#include "parser_test_support.hpp"

#include <string>
#include <vector>

#include "semantic/semantic.hpp"

using namespace brix_test;

namespace {

template <class T> std::vector<T*> items(const brix_list_tag* list) {
    std::vector<T*> out;
    for (; list != nullptr; list = list->next) {
        out.push_back(static_cast<T*>(list->data));
    }
    return out;
}

// A spec as three digits, address map first: "110" is on, on, off; 3 means unsaid.
std::string bits(const brix_cvr_spec_tag* s) {
    if (s == nullptr) {
        return "null";
    }
    return std::to_string(s->addr_map) + std::to_string(s->reg_bits) +
           std::to_string(s->field_vals);
}

brix_block_type_tag* block(const char* name) {
    const brix_symrec* sym = lookup_global_symbol(name);
    EXPECT_NE(sym, nullptr) << name;
    return static_cast<brix_block_type_tag*>(sym->data);
}
brix_system_type_tag* system_type(const char* name) {
    return static_cast<brix_system_type_tag*>(lookup_global_symbol(name)->data);
}
brix_block_domain_tag* domain(const brix_block_type_tag* b, size_t i) {
    return items<brix_block_domain_tag>(b->domains).at(i);
}
brix_register_tag* reg_at(const brix_block_domain_tag* d, size_t i) {
    return items<brix_register_tag>(d->components).at(i);
}
brix_field_tag* field_at(const brix_register_tag* r, size_t i) {
    return items<brix_field_tag>(r->type->fields).at(i);
}

// Restores the coverage flags of the command line.
struct cvr_flag_guard {
    int addr_map = brix_cvr_addr_map;
    int reg_bits = brix_cvr_reg_bits;
    int field_vals = brix_cvr_field_vals;
    ~cvr_flag_guard() {
        brix_cvr_addr_map = addr_map;
        brix_cvr_reg_bits = reg_bits;
        brix_cvr_field_vals = field_vals;
    }
};

void parse_and_check(const char* text, const char* top) {
    parse_pure(text);
    check_semantics(top);
}

TEST(SemanticCoverage, NoCoverAnywhereGivesTheDesignDefault) {
    parse_and_check("block b { bytes 4 register r { field a field c } }", "b");
    const brix_block_type_tag* b = block("b");
    const brix_register_tag* r = reg_at(domain(b, 0), 0);
    for (size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(bits(field_at(r, i)->cvr_spec), "110");
        EXPECT_EQ(bits(field_at(r, i)->cvr_used), "113");
    }
    EXPECT_EQ(bits(r->cvr_spec), "110");
    EXPECT_EQ(bits(r->type->cvr_used), "113");
    // The domain takes what the registers mark: bits, not the address map.
    EXPECT_EQ(bits(domain(b, 0)->cvr_used), "313");
    EXPECT_EQ(bits(b->cvr_used), "113");
    EXPECT_EQ(bits(b->cvr_spec), "110");
}

TEST(SemanticCoverage, ACrossForcesFieldValues) {
    parse_and_check("block b { bytes 4 register r { field a field c cross a c } register q { field "
                    "x } }",
                    "b");
    const brix_block_type_tag* b = block("b");
    const brix_block_domain_tag* d = domain(b, 0);
    EXPECT_EQ(bits(reg_at(d, 0)->type->cvr_used), "111");
    EXPECT_EQ(bits(field_at(reg_at(d, 0), 0)->cvr_used), "113");
    EXPECT_EQ(bits(reg_at(d, 1)->type->cvr_used), "113");
    EXPECT_EQ(bits(d->cvr_used), "311");
    EXPECT_EQ(bits(b->cvr_used), "111");
}

TEST(SemanticCoverage, FieldDefinitionAgainstRegisterAndInstance) {
    parse_pure("field nob { cover -b } field onlyf { cover +f } "
               "block b { bytes 4 register r { cover +b-f field nob field onlyf field plain } }");
    brix_register_tag* r = reg_at(domain(block("b"), 0), 0);
    // The instance's own words, which no description can write, set here by hand.
    field_at(r, 1)->cvr_spec = get_cvr_spec("-b");
    field_at(r, 2)->cvr_spec = get_cvr_spec("-b+f");
    check_semantics("b");
    // The definition's -b wins over the register's +b.
    EXPECT_EQ(bits(field_at(r, 0)->cvr_spec), "100");
    EXPECT_EQ(bits(field_at(r, 0)->cvr_used), "133");
    // Where the definition says nothing, the register overrides the instance's -b.
    EXPECT_EQ(bits(field_at(r, 1)->cvr_spec), "111");
    // Without a definition's word only the instance's explicit +f survives.
    EXPECT_EQ(bits(field_at(r, 2)->cvr_spec), "111");
    EXPECT_EQ(bits(r->type->cvr_used), "111");
}

TEST(SemanticCoverage, TheTypeComesBeforeTheDomain) {
    parse_and_check("block b { domain d1 { bytes 4 cover +f register r { cover -f field a } "
                    "register q { field x } } domain d2 { bytes 4 register z { field y } } }",
                    "b");
    const brix_block_type_tag* b = block("b");
    const brix_block_domain_tag* d1 = domain(b, 0);
    EXPECT_EQ(bits(reg_at(d1, 0)->cvr_spec), "110");
    EXPECT_EQ(bits(field_at(reg_at(d1, 0), 0)->cvr_used), "113");
    EXPECT_EQ(bits(reg_at(d1, 1)->cvr_spec), "111");
    EXPECT_EQ(bits(field_at(reg_at(d1, 1), 0)->cvr_used), "111");
    // The domain's own spec is marked into its cvr_used as well.
    EXPECT_EQ(bits(d1->cvr_used), "311");
    EXPECT_EQ(bits(domain(b, 1)->cvr_used), "313");
}

TEST(SemanticCoverage, SharedTypeVisitedTwiceAccumulates) {
    parse_and_check("register s { shared field a } "
                    "block b { domain d1 { bytes 4 cover -a-b register s } "
                    "domain d2 { bytes 4 cover +f register s } }",
                    "b");
    const brix_block_type_tag* b = block("b");
    const brix_register_tag* first = reg_at(domain(b, 0), 0);
    const brix_register_tag* second = reg_at(domain(b, 1), 0);
    ASSERT_EQ(first->type, second->type);
    EXPECT_EQ(bits(first->cvr_spec), "000");
    EXPECT_EQ(bits(second->cvr_spec), "111");
    EXPECT_EQ(bits(first->type->cvr_used), "111");
    // Off is never marked: the first domain's cvr_used stays unsaid.
    EXPECT_EQ(bits(domain(b, 0)->cvr_used), "333");
    EXPECT_EQ(bits(domain(b, 1)->cvr_used), "311");
}

TEST(SemanticCoverage, MemoriesMarkTheAddressMapOnly) {
    parse_pure("memory m { size 4 bits 8 } memory n { size 4 bits 8 } "
               "block b { bytes 4 memory m memory n }");
    const brix_block_domain_tag* d = domain(block("b"), 0);
    auto* m = items<brix_memory_tag>(d->components).at(0);
    auto* n = items<brix_memory_tag>(d->components).at(1);
    m->type->cvr_spec = get_cvr_spec("+b+f");
    n->type->cvr_spec = get_cvr_spec("-a");
    check_semantics("b");
    EXPECT_EQ(bits(m->cvr_spec), "111");
    EXPECT_EQ(bits(m->type->cvr_used), "133");
    EXPECT_EQ(bits(n->type->cvr_used), "333");
    EXPECT_EQ(bits(d->cvr_used), "333");
}

TEST(SemanticCoverage, RegfilesAndVirtualRegisters) {
    parse_and_check("block b { bytes 4 regfile f { cover +f register r { field a } } "
                    "virtual register v { field x } }",
                    "b");
    const brix_block_domain_tag* d = domain(block("b"), 0);
    auto* rf = items<brix_regfile_tag>(d->components).at(0);
    const brix_register_tag* r = items<brix_register_tag>(rf->type->registers).at(0);
    EXPECT_EQ(bits(rf->cvr_spec), "111");
    EXPECT_EQ(bits(r->cvr_spec), "111");
    EXPECT_EQ(bits(r->type->cvr_used), "111");
    EXPECT_EQ(bits(d->cvr_used), "311");
    auto* v = items<brix_vregister_tag>(d->components).at(1);
    EXPECT_EQ(bits(v->cvr_spec), "110");
    EXPECT_EQ(bits(items<brix_field_tag>(v->type->fields).at(0)->cvr_spec), "110");
    EXPECT_EQ(items<brix_field_tag>(v->type->fields).at(0)->cvr_used, nullptr);
}

TEST(SemanticCoverage, SystemsSelectTheInstancesDomain) {
    parse_and_check("block br { domain h { bytes 4 cover -b register r { field a } } "
                    "domain g { bytes 4 register q { field a } } } "
                    "system top { domain d0 { bytes 4 cover +f block br.h = x } "
                    "domain d1 { bytes 4 block br.g = x } }",
                    "top");
    const brix_system_type_tag* top = system_type("top");
    auto doms = items<brix_system_domain_tag>(top->domains);
    auto* x0 = items<brix_block_tag>(doms.at(0)->components).at(0);
    auto* x1 = items<brix_block_tag>(doms.at(1)->components).at(0);
    ASSERT_EQ(x0->type, x1->type);
    // The block's own domain comes first, then the system domain, then the top.
    EXPECT_EQ(bits(x0->cvr_spec), "101");
    EXPECT_EQ(bits(x1->cvr_spec), "110");
    const brix_block_domain_tag* h = domain(x0->type, 0);
    const brix_block_domain_tag* g = domain(x0->type, 1);
    EXPECT_EQ(bits(reg_at(h, 0)->cvr_spec), "101");
    EXPECT_EQ(bits(reg_at(g, 0)->cvr_spec), "110");
    EXPECT_EQ(bits(doms.at(0)->cvr_used), "131");
    EXPECT_EQ(bits(top->cvr_used), "111");
}

TEST(SemanticCoverage, CoverageQueries) {
    cvr_flag_guard guard;
    parse_and_check("block b { domain d1 { bytes 4 cover -a register r { field a } } "
                    "domain d2 { bytes 4 register q { field a cross a a } } }",
                    "b");
    const brix_block_type_tag* b = block("b");
    const brix_register_type_tag* r = reg_at(domain(b, 0), 0)->type;
    const brix_register_type_tag* q = reg_at(domain(b, 1), 0)->type;
    brix_cvr_reg_bits = 0;
    brix_cvr_field_vals = 0;
    brix_cvr_addr_map = 0;
    EXPECT_EQ(can_cvr_register_bits(r), 0);
    EXPECT_EQ(can_cvr_register_field_val(q), 0);
    EXPECT_EQ(can_cvr_block_addr_map(b, nullptr), 0);
    brix_cvr_reg_bits = 1;
    brix_cvr_field_vals = 1;
    brix_cvr_addr_map = 1;
    EXPECT_EQ(can_cvr_register_bits(r), 1);
    EXPECT_EQ(can_cvr_register_field_val(r), 0);
    EXPECT_EQ(can_cvr_register_field_val(q), 1);
    EXPECT_EQ(can_cvr_block_field_val(b), 1);
    EXPECT_EQ(can_cvr_block_addr_map(b, nullptr), 1);
    EXPECT_EQ(can_cvr_block_addr_map(b, "d1"), 0);
    EXPECT_EQ(can_cvr_block_addr_map(b, "d2"), 0); // no domain spec marks the address map
    EXPECT_EQ(can_cvr_block_addr_map(b, "nope"), 0);
    const child_result r0 = run_in_child([] { can_cvr_register_bits(nullptr); });
    EXPECT_EQ(r0.status, 1);
    EXPECT_EQ(r0.err, "can_cvr_register_bits(...) - NULL parameter received.\n\n");
    const child_result r1 = run_in_child([] { can_cvr_block_addr_map(nullptr, nullptr); });
    EXPECT_EQ(r1.err, "can_cvr_block_addr_map(..) - NULL parameter received.\n\n");
}

TEST(SemanticCoverage, CoverageExpressionForAllEightCombinations) {
    cvr_flag_guard guard;
    const char* const expected[8] = {
        "qvt_brx::NO_COVERAGE",
        "qvt_brx::FIELD_VALS",
        "qvt_brx::REG_BITS",
        "(qvt_brx::REG_BITS | qvt_brx::FIELD_VALS)",
        "qvt_brx::ADDR_MAP",
        "(qvt_brx::ADDR_MAP | qvt_brx::FIELD_VALS)",
        "(qvt_brx::ADDR_MAP | qvt_brx::REG_BITS)",
        "qvt_brx::ALL_COVERAGE",
    };
    for (int combination = 0; combination < 8; ++combination) {
        brix_cvr_spec_tag spec{};
        spec.addr_map = (combination & 4) != 0 ? 1 : 0;
        spec.reg_bits = (combination & 2) != 0 ? 1 : 3;
        spec.field_vals = (combination & 1) != 0 ? 1 : 0;
        spec.unused_bits = 0x2AAAAAA; // stray high bits are never read
        brix_cvr_addr_map = brix_cvr_reg_bits = brix_cvr_field_vals = 1;
        EXPECT_STREQ(get_cvr_expr(&spec), expected[combination]) << combination;
        // A model the user did not ask for is off whatever the spec says.
        brix_cvr_addr_map = brix_cvr_reg_bits = brix_cvr_field_vals = 0;
        EXPECT_STREQ(get_cvr_expr(&spec), "qvt_brx::NO_COVERAGE") << combination;
    }
    EXPECT_STREQ(get_cvr_expr(nullptr), "qvt_brx::NO_COVERAGE");
}

} // namespace

namespace {

TEST(BlockModel, DomainsComponentsAndTypeOrder) {
    parse_pure("register r { field a } register s { shared field a } memory m { size 4 bits 8 } "
               "virtual register w { field x } "
               "block one { attributes { k v } cover +a endian big register r @0 "
               "virtual register w = v0 virtual register iv { field x } bytes 4 doc { d } "
               "memory m @8 } "
               "block two { doc { d } domain d1 { bytes 4 register s register r2 { field a } } "
               "domain d2 { bytes 2 register s read regfile f[2] +8 { register q { field "
               "a } } } } "
               "system top { bytes 4 block one (p) @0 block two.d2 @0x100 "
               "block t[2] { bytes 4 register r } system sub { bytes 4 block one } endian big }");
    const brix_block_type_tag* one = block("one");
    ASSERT_EQ(items<brix_block_domain_tag>(one->domains).size(), 1u);
    const brix_block_domain_tag* d = domain(one, 0);
    EXPECT_EQ(d->name, nullptr);
    EXPECT_EQ(d->bytes, 4);
    EXPECT_STREQ(d->endian, "big");
    std::vector<int> tags;
    for (const brix_list_tag* n = d->components; n != nullptr; n = n->next) {
        tags.push_back(n->tag);
    }
    EXPECT_EQ(tags, (std::vector<int>{BRIX_REGISTER, BRIX_VREGISTER, BRIX_VREGISTER, BRIX_MEMORY}));
    EXPECT_STREQ(one->attributes->name, "k");
    EXPECT_EQ(bits(one->cvr_spec), "133");
    EXPECT_NE(one->doc, nullptr);
    auto* v = items<brix_vregister_tag>(d->components).at(1);
    EXPECT_EQ(v->is_dynamic, 1);
    EXPECT_STREQ(v->name, "v0");
    EXPECT_EQ(v->type->scope_prefix, nullptr);
    EXPECT_STREQ(items<brix_vregister_tag>(d->components).at(2)->type->scope_prefix, "one");

    const brix_block_type_tag* two = block("two");
    ASSERT_EQ(items<brix_block_domain_tag>(two->domains).size(), 2u);
    const brix_block_domain_tag* d1 = domain(two, 0);
    const brix_block_domain_tag* d2 = domain(two, 1);
    EXPECT_EQ(reg_at(d1, 0)->type, reg_at(d2, 0)->type);
    EXPECT_STREQ(reg_at(d2, 0)->rw_flag, "read");
    EXPECT_STREQ(reg_at(d1, 1)->type->scope_prefix, "two");
    auto* f = items<brix_regfile_tag>(d2->components).at(1);
    EXPECT_EQ(f->array_size, 2);
    EXPECT_STREQ(f->increment, "8");
    EXPECT_STREQ(items<brix_register_tag>(f->type->registers).at(0)->type->scope_prefix, "two_f");

    // Every block type in order of completion, the inline one of the system included.
    std::vector<std::string> names;
    for (const brix_block_type_tag* t = all_block_types; t != nullptr; t = t->next) {
        names.push_back(std::string(t->scope_prefix ? t->scope_prefix : "") + ":" + t->name);
    }
    EXPECT_EQ(names, (std::vector<std::string>{":one", ":two", "top:t"}));
    // An inline system is complete before the system around it.
    EXPECT_STREQ(all_system_types->name, "sub");
    EXPECT_STREQ(all_system_types->next->name, "top");

    // The nested system left the outer one as it was: `endian` behind it still lands.
    const brix_system_type_tag* top = system_type("top");
    const auto* td = items<brix_system_domain_tag>(top->domains).at(0);
    EXPECT_STREQ(td->endian, "big");
    std::vector<int> kinds;
    for (const brix_list_tag* n = td->components; n != nullptr; n = n->next) {
        kinds.push_back(n->tag);
    }
    EXPECT_EQ(kinds, (std::vector<int>{BRIX_BLOCK, BRIX_BLOCK, BRIX_BLOCK, BRIX_SYSTEM}));
    auto* in_domain = items<brix_block_tag>(td->components).at(1);
    EXPECT_STREQ(in_domain->name, "two");
    EXPECT_STREQ(in_domain->domain, "d2");
    EXPECT_NE(in_domain->type, two); // a copy, never the definition itself
    auto* sub = items<brix_system_tag>(td->components).at(3);
    EXPECT_STREQ(sub->type->scope_prefix, "top");
}

TEST(SystemModel, DomainQualifiedInstancesShareOneCopy) {
    parse_pure("register r { field a } "
               "block br { domain h { bytes 4 register r } domain g { bytes 4 register r = r1 } } "
               "system ss { domain p { bytes 4 block br.h } domain q { bytes 4 block br.g } } "
               "system top { domain d0 { bytes 4 block br.h = x (a) system ss.p = y (s) } "
               "domain d1 { bytes 4 block br.g = x system ss.q = y } }");
    const auto doms = items<brix_system_domain_tag>(system_type("top")->domains);
    auto* x0 = items<brix_block_tag>(doms.at(0)->components).at(0);
    auto* x1 = items<brix_block_tag>(doms.at(1)->components).at(0);
    EXPECT_EQ(x0->type, x1->type);
    // The path of the first line is passed forward to the later ones.
    ASSERT_NE(x1->hdl_path, nullptr);
    EXPECT_STREQ(x1->hdl_path->path, "a");
    auto* y0 = items<brix_system_tag>(doms.at(0)->components).at(1);
    auto* y1 = items<brix_system_tag>(doms.at(1)->components).at(1);
    // A system instance looks its key up in a map of its own and so gets its own copy.
    EXPECT_NE(y0->type, y1->type);
    EXPECT_STREQ(y0->type->name, y1->type->name);
    EXPECT_STREQ(y1->hdl_path->path, "s");
    // Without a rename the instance takes the definition's name.
    const auto ss_doms = items<brix_system_domain_tag>(system_type("ss")->domains);
    EXPECT_STREQ(items<brix_block_tag>(ss_doms.at(0)->components).at(0)->name, "br");
}

} // namespace
