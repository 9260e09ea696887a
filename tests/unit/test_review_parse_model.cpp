// Model records built from pure text where lists of different owners grow in turn.
#include "parser_test_support.hpp"

#include <string>
#include <vector>

using namespace brix_test;

namespace {

std::vector<std::string> constraint_names(const brix_constraint_tag* c) {
    std::vector<std::string> names;
    for (; c != nullptr; c = c->next) {
        names.push_back(c->name);
    }
    return names;
}

template <class T> T* global(const char* name, int kind) {
    const brix_symrec* sym = lookup_global_symbol(name);
    EXPECT_NE(sym, nullptr) << name;
    EXPECT_EQ(sym->kind, kind) << name;
    return static_cast<T*>(sym->data);
}

TEST(ReviewParseModel, InterleavedConstraintListsKeepSourceOrder) {
    // The register's list grows between the lists of its fields, and a second register
    // starts while the first one's list is long.
    parse_pure("register r { constraint a { } field f { constraint f1 { } constraint f2 { } } "
               "constraint b { } field g { constraint g1 { } } constraint c { } }\n"
               "register q { constraint q1 { } field h { constraint h1 { } } constraint q2 { } }\n"
               "block bb { domain d1 { bytes 4 constraint x1 { } "
               "register i @0 { constraint i1 { } field k } constraint x2 { } } "
               "domain d2 { bytes 4 constraint y1 { } register j @0 { field k } "
               "constraint y2 { } } }");
    const auto* r = global<brix_register_type_tag>("r", BRIX_REGISTER_TYPE);
    EXPECT_EQ(constraint_names(r->constraints), (std::vector<std::string>{"a", "b", "c"}));
    const auto* f = static_cast<brix_field_tag*>(r->fields->data);
    const auto* g = static_cast<brix_field_tag*>(r->fields->next->data);
    EXPECT_EQ(constraint_names(f->type->constraints), (std::vector<std::string>{"f1", "f2"}));
    EXPECT_EQ(constraint_names(g->type->constraints), (std::vector<std::string>{"g1"}));
    const auto* q = global<brix_register_type_tag>("q", BRIX_REGISTER_TYPE);
    EXPECT_EQ(constraint_names(q->constraints), (std::vector<std::string>{"q1", "q2"}));
    const auto* bb = global<brix_block_type_tag>("bb", BRIX_BLOCK_TYPE);
    const auto* d1 = static_cast<brix_block_domain_tag*>(bb->domains->data);
    const auto* d2 = static_cast<brix_block_domain_tag*>(bb->domains->next->data);
    EXPECT_EQ(constraint_names(d1->constraints), (std::vector<std::string>{"x1", "x2"}));
    EXPECT_EQ(constraint_names(d2->constraints), (std::vector<std::string>{"y1", "y2"}));
    const auto* i = static_cast<brix_register_tag*>(d1->components->data);
    EXPECT_EQ(constraint_names(i->type->constraints), (std::vector<std::string>{"i1"}));
}

} // namespace
