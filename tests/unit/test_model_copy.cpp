// Deep copy, top lookup, multi-domain path consistency, record defaults and scopes.
#include "parser_test_support.hpp"

#include "semantic/model_copy.hpp"

#include <cstring>

using namespace brix_test;

namespace {

template <class T> T* record() {
    return brix_new_record<T>();
}

brix_hdl_path_tag* path_of(const char* text) {
    auto* p = record<brix_hdl_path_tag>();
    initialize_hdl_path_defaults(p);
    p->path = brix_strdup(text);
    return p;
}

TEST(ModelCopy, RegisterCopiesItsTypeAndFieldsButSharesStringsAndCvrUsed) {
    parse_pure("register t { field a { bits 3 cover +f } }\nregfile rf { register t @0 }");
    const auto* rf = static_cast<brix_regfile_type_tag*>(lookup_global_symbol("rf")->data);
    auto* inst = static_cast<brix_register_tag*>(rf->registers->data);
    inst->cvr_spec = new_all_unsaid_cvr_spec();

    brix_register_tag* one = copy_register(inst);
    brix_register_tag* two = copy_register(inst);
    EXPECT_NE(one->type, inst->type);
    EXPECT_NE(one->cvr_spec, inst->cvr_spec);
    EXPECT_NE(one->cvr_spec, two->cvr_spec);
    EXPECT_EQ(one->type->cvr_used, two->type->cvr_used);
    EXPECT_EQ(one->name, inst->name);
    auto* f0 = static_cast<brix_field_tag*>(inst->type->fields->data);
    auto* f1 = static_cast<brix_field_tag*>(one->type->fields->data);
    EXPECT_NE(f1, f0);
    EXPECT_NE(f1->type, f0->type);
    EXPECT_NE(f1->type->cvr_spec, f0->type->cvr_spec);
    EXPECT_EQ(f1->type->cvr_spec->field_vals, 1u);
    EXPECT_EQ(f1->cvr_used, f0->cvr_used);
    EXPECT_EQ(f1->name, f0->name);
}

TEST(ModelCopy, SharedTypesStayOneRecord) {
    auto* shared = record<brix_register_type_tag>();
    initialize_register_type_defaults(shared);
    shared->is_shared = 1;
    auto* inst = record<brix_register_tag>();
    initialize_register_defaults(inst);
    inst->type = shared;
    EXPECT_EQ(copy_register(inst)->type, shared);
    // The type copy itself does not look at the flag.
    EXPECT_NE(copy_register_type(shared), shared);

    auto* mem_type = record<brix_memory_type_tag>();
    initialize_memory_type_defaults(mem_type);
    mem_type->is_shared = 1;
    auto* mem = record<brix_memory_tag>();
    initialize_memory_defaults(mem);
    mem->type = mem_type;
    EXPECT_EQ(copy_memory(mem)->type, mem_type);
    mem_type->is_shared = -1;
    EXPECT_NE(copy_memory(mem)->type, mem_type);
}

TEST(ModelCopy, BlockTypeCopiesDomainsComponentsAndUnsharedTypes) {
    auto* shared = record<brix_register_type_tag>();
    initialize_register_type_defaults(shared);
    shared->is_shared = 1;
    auto* own = record<brix_register_type_tag>();
    initialize_register_type_defaults(own);
    auto* r1 = record<brix_register_tag>();
    initialize_register_defaults(r1);
    r1->type = own;
    auto* r2 = record<brix_register_tag>();
    initialize_register_defaults(r2);
    r2->type = shared;
    auto* domain = record<brix_block_domain_tag>();
    initialize_block_domain_defaults(domain);
    domain->components = create_brix_list_node(BRIX_REGISTER, r1);
    add_to_brix_list_end(domain->components, BRIX_REGISTER, r2);
    add_to_brix_list_end(domain->components, BRIX_REGISTER_TYPE, shared);
    auto* block = record<brix_block_type_tag>();
    initialize_block_type_defaults(block);
    block->domains = create_brix_list_node(BRIX_BLOCK_DOMAIN, domain);

    const brix_block_type_tag* copy = copy_block_type(block);
    ASSERT_NE(copy->domains, block->domains);
    const auto* d = static_cast<brix_block_domain_tag*>(copy->domains->data);
    EXPECT_NE(d, domain);
    const brix_list_tag* c = d->components;
    EXPECT_NE(static_cast<brix_register_tag*>(c->data), r1);
    EXPECT_NE(static_cast<brix_register_tag*>(c->data)->type, own);
    EXPECT_EQ(static_cast<brix_register_tag*>(c->next->data)->type, shared);
    EXPECT_EQ(c->next->next->data, shared);
    EXPECT_EQ(c->next->next->tag, BRIX_REGISTER_TYPE);
    EXPECT_EQ(copy_list(nullptr), nullptr);
    EXPECT_EQ(copy_block_type(nullptr), nullptr);
}

TEST(ModelCopy, IdentifiersAreCopiedAndUncopyableTagsEndTheRun) {
    brix_list_tag* items = create_brix_list_node(BRIX_IDENTIFIER, brix_strdup("a"));
    const brix_list_tag* copy = copy_list(items);
    EXPECT_NE(copy->data, items->data);
    EXPECT_STREQ(static_cast<char*>(copy->data), "a");
    for (const int tag : {int{BRIX_CROSS}, 25}) {
        const child_result r =
            run_in_child([tag] { copy_list(create_brix_list_node(tag, nullptr)); });
        EXPECT_EQ(r.status, 1);
        EXPECT_EQ(r.err, "ERROR - Deep copying is not supported for 'brix_type' " +
                             std::to_string(tag) + "\n\n");
    }
}

brix_block_type_tag* block_named(const char* name, brix_block_type_tag* next) {
    auto* b = record<brix_block_type_tag>();
    initialize_block_type_defaults(b);
    b->name = brix_strdup(name);
    b->next = next;
    return b;
}

brix_system_type_tag* system_named(const char* name, brix_system_type_tag* next) {
    auto* s = record<brix_system_type_tag>();
    initialize_system_type_defaults(s);
    s->name = brix_strdup(name);
    s->next = next;
    return s;
}

TEST(TopLookup, FindsOneBlockOrSystemAndRefusesAmbiguity) {
    initialize();
    all_block_types = block_named("a", block_named("b", nullptr));
    all_system_types = system_named("s", nullptr);
    const brix_symrec* b = lookup_top_symbol("b");
    ASSERT_NE(b, nullptr);
    EXPECT_EQ(b->kind, BRIX_BLOCK_TYPE);
    EXPECT_EQ(b->data, all_block_types->next);
    EXPECT_EQ(lookup_top_symbol("s")->kind, BRIX_SYSTEM_TYPE);
    EXPECT_EQ(lookup_top_symbol("zz"), nullptr);

    const auto ambiguous = [](auto setup) {
        return run_in_child([setup] {
            setup();
            lookup_top_symbol("x");
        });
    };
    child_result r =
        ambiguous([] { all_system_types = system_named("x", system_named("x", nullptr)); });
    EXPECT_EQ(r.err, "Error: Ambiguious 'topname' specified. Two systems with same (x) topname "
                     "found!\n\n");
    r = ambiguous([] { all_block_types = block_named("x", block_named("x", nullptr)); });
    EXPECT_EQ(r.err, "Error: Ambiguious 'topname' specified. Two blocks with same (x) topname "
                     "found!\n\n");
}

// A system of two domains, each holding one instance of block type `b` named `x`.
struct two_domain_system {
    brix_system_type_tag* system = system_named("top", nullptr);
    brix_block_tag* first = nullptr;
    brix_block_tag* second = nullptr;

    two_domain_system(const char* path1, const char* path2, bool with_domain = true) {
        brix_block_type_tag* type = block_named("b", nullptr);
        first = instance(type, path1, with_domain ? "d1" : nullptr);
        second = instance(type, path2, with_domain ? "d2" : nullptr);
        system->domains = create_brix_list_node(BRIX_SYSTEM_DOMAIN, domain_with(first));
        add_to_brix_list_end(system->domains, BRIX_SYSTEM_DOMAIN, domain_with(second));
    }
    static brix_block_tag* instance(brix_block_type_tag* type, const char* path,
                                    const char* domain) {
        auto* inst = record<brix_block_tag>();
        initialize_block_defaults(inst);
        inst->name = brix_strdup("x");
        inst->type = type;
        inst->domain = domain != nullptr ? brix_strdup(domain) : nullptr;
        inst->hdl_path = path != nullptr ? path_of(path) : nullptr;
        return inst;
    }
    static brix_system_domain_tag* domain_with(brix_block_tag* inst) {
        auto* d = record<brix_system_domain_tag>();
        initialize_system_domain_defaults(d);
        d->components = create_brix_list_node(BRIX_BLOCK, inst);
        return d;
    }
};

TEST(SystemConsistency, PathsOfMultiDomainInstancesAgreeForward) {
    two_domain_system same("p", "p");
    check_system_data_consistency(same.system);
    EXPECT_STREQ(same.second->hdl_path->path, "p");

    two_domain_system first_only("p", nullptr);
    check_system_data_consistency(first_only.system);
    ASSERT_NE(first_only.second->hdl_path, nullptr);
    EXPECT_STREQ(first_only.second->hdl_path->path, "p");
    EXPECT_EQ(first_only.second->hdl_path->is_vhdl, 0u);

    two_domain_system second_only(nullptr, "q");
    check_system_data_consistency(second_only.system);
    EXPECT_EQ(second_only.first->hdl_path, nullptr);

    two_domain_system no_domain("p", "q", false);
    check_system_data_consistency(no_domain.system);
    EXPECT_STREQ(no_domain.second->hdl_path->path, "q");

    const child_result r = run_in_child([] {
        two_domain_system differ("p", "q");
        check_system_data_consistency(differ.system);
    });
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "Error: System 'top' - Inconsistent hdl_path specification found among "
                     "multiple domain instantiations of block 'x'.\n\n");
}

TEST(SourcePositions, FileAndLineOfEveryRange) {
    const std::string saved_name = brix_src_file_name;
    const unsigned long long saved_line = brix_src_file_linenum;
    const auto here = [](const char* file, unsigned long long line) {
        std::strcpy(brix_src_file_name, file);
        brix_src_file_linenum = line;
        return brix_here();
    };
    const brix_src_pos a = here("a.brix", 7);
    const brix_src_pos wide = here("a.brix", (1ULL << 40) + 3);
    const brix_src_pos edge = here("a.brix", (1ULL << 24) - 1);
    const brix_src_pos b = here("b.brix", UINT32_MAX);
    const brix_src_pos a2 = here("a.brix", 0);
    std::vector<brix_src_pos> many; // past the files whose number packs with the line
    for (int i = 0; i < 200; ++i) {
        many.push_back(here(("f" + std::to_string(i)).c_str(), i));
    }
    for (int i = 0; i < 200; ++i) {
        EXPECT_EQ(many[i].file(), "f" + std::to_string(i));
        EXPECT_EQ(many[i].line(), static_cast<unsigned long long>(i));
    }
    EXPECT_STREQ(a.file(), "a.brix");
    EXPECT_EQ(a.line(), 7u);
    EXPECT_STREQ(wide.file(), "a.brix");
    EXPECT_EQ(wide.line(), (1ULL << 40) + 3);
    EXPECT_EQ(edge.line(), (1ULL << 24) - 1);
    EXPECT_STREQ(b.file(), "b.brix");
    EXPECT_EQ(b.line(), UINT32_MAX);
    EXPECT_EQ(a2.file(), a.file());
    EXPECT_EQ(brix_src_pos{}.file(), nullptr);
    EXPECT_EQ(brix_src_pos{}.line(), 0u);
    here(saved_name.c_str(), saved_line);
}

TEST(Scopes, HashBucketsAndLookups) {
    EXPECT_EQ(brix_symbol_hash("a"), 193u % 109);
    EXPECT_EQ(brix_symbol_hash(""), 0u);
    EXPECT_EQ(brix_symbol_hash("ab"), brix_symbol_hash("ba"));
    EXPECT_EQ(brix_symbol_hash("\xC8"), brix_symbol_hash("8")); // -56 and 56 square alike
    initialize();
    EXPECT_EQ(lookup_local_symbol("register")->kind, BRIX_KEYWORD);
    char name[] = "g";
    create_and_insert_symrec(global_scope, name, BRIX_REGISTER_TYPE, nullptr);
    brix_scope* child = create_child_scope(global_scope, std::string("c"));
    switch_to_scope(child);
    EXPECT_EQ(lookup_local_symbol("g"), nullptr);
    EXPECT_NE(lookup_global_symbol("g"), nullptr);
    // Keywords are shared records, found in every scope.
    EXPECT_EQ(lookup_local_symbol("vhdl_path"), lookup_global_symbol("vhdl_path"));
    // Newest first, below and past the size at which a scope is indexed.
    std::vector<std::string> names;
    for (int i = 0; i < 40; ++i) {
        names.push_back("s" + std::to_string(i % 20));
    }
    for (int i = 0; i < 40; ++i) {
        const brix_symrec* sym = create_and_insert_symrec(
            child, names[i].data(), i < 20 ? BRIX_FIELD : BRIX_LABEL, nullptr);
        EXPECT_EQ(lookup_local_symbol(names[i].c_str()), sym);
        EXPECT_EQ(lookup_local_symbol("s0")->kind, i < 20 ? BRIX_FIELD : BRIX_LABEL);
    }
    // A closed scope's symbols are gone; its inline definitions keep a copy of its name.
    brix_scope* grandchild = create_child_scope(child, "f");
    switch_to_scope(grandchild);
    EXPECT_EQ(lookup_local_symbol("s1"), nullptr);
    char e[] = "e";
    create_and_insert_symrec(grandchild, e, BRIX_ENUM_NAME, e);
    EXPECT_STREQ(lasting_scope_name(child), "c");
    close_scope();
    EXPECT_EQ(current_scope, child);
    EXPECT_EQ(lookup_local_symbol("e"), nullptr);
    EXPECT_EQ(lookup_local_symbol("s1")->kind, BRIX_LABEL);
    close_scope();
    EXPECT_EQ(current_scope, global_scope);
    EXPECT_EQ(lookup_local_symbol("s1"), nullptr);
    // The global scope chains its symbols, newest first: ab and ba share a bucket.
    char ab[] = "ab", ba[] = "ba", ab2[] = "ab";
    create_and_insert_symrec(global_scope, ab, BRIX_FIELD, nullptr);
    create_and_insert_symrec(global_scope, ba, BRIX_LABEL, nullptr);
    const brix_symrec* newer = create_and_insert_symrec(global_scope, ab2, BRIX_ENUM_NAME, nullptr);
    EXPECT_EQ(lookup_global_symbol("ab"), newer);
    EXPECT_EQ(lookup_global_symbol("ba")->kind, BRIX_LABEL);
    EXPECT_EQ(scope_bucket_head(global_scope, brix_symbol_hash("ab")), newer);
    EXPECT_EQ(newer->next->next->name, std::string("ab"));
    EXPECT_EQ(scope_bucket_head(global_scope, brix_symbol_hash("x")), nullptr);
}

} // namespace
