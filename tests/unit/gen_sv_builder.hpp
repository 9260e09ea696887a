// Builds small models by hand, as the parser would leave them, and runs a model generator
// over them into a temporary folder.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <initializer_list>
#include <sstream>
#include <string>
#include <unistd.h>
#include <utility>

#include "driver/driver.hpp"
#include "gen_hx/gen_hx.hpp"
#include "gen_plan/gen_plan.hpp"
#include "gen_sv/gen_sv.hpp"
#include "parser/model.hpp"
#include "semantic/semantic.hpp"

#include "parser_test_support.hpp"

namespace brix_build {

inline char* s(const char* text) {
    return text != nullptr ? brix_strdup(text) : nullptr;
}

template <class T> T* record(void (*init)(T*)) {
    T* r = brix_new_record<T>();
    init(r);
    return r;
}

using node = std::pair<int, void*>;

template <class T> brix_list_tag* list_of(int tag, std::initializer_list<T*> items) {
    brix_list_tag* head = nullptr;
    brix_list_tag* tail = nullptr;
    for (T* item : items) {
        brix_list_tag* n = create_brix_list_node(tag, item);
        (head == nullptr ? head : tail->next) = n;
        tail = n;
    }
    return head;
}

// Components of their own kinds, as `reg`, `mem` and the others give them.
inline brix_list_tag* list(std::initializer_list<node> items) {
    brix_list_tag* head = nullptr;
    for (const node& n : items) {
        if (head == nullptr) {
            head = create_brix_list_node(n.first, n.second);
        } else {
            add_to_brix_list_end(head, n.first, n.second);
        }
    }
    return head;
}

inline brix_field_tag* field(const char* name, uint32_t bits, const char* access = "rw",
                             const char* offset = nullptr, const char* hard = nullptr) {
    auto* t = record(initialize_field_type_defaults);
    t->name = s(name);
    t->bits = bits;
    t->access = s(access);
    t->hard_reset = s(hard);
    auto* f = record(initialize_field_defaults);
    f->name = s(name);
    f->offset = s(offset);
    f->type = t;
    f->cvr_used = new_all_unsaid_cvr_spec();
    return f;
}

inline brix_constraint_tag* constraint(const char* name, const char* body,
                                       brix_constraint_tag* next = nullptr) {
    auto* c = record(initialize_constraint_defaults);
    c->name = s(name);
    c->body = s(body);
    c->next = next;
    return c;
}

inline brix_list_tag* fields(std::initializer_list<brix_field_tag*> fs) {
    return list_of(BRIX_FIELD, fs);
}

inline brix_register_type_tag* reg_type(const char* name, int bytes,
                                        std::initializer_list<brix_field_tag*> fs) {
    auto* t = record(initialize_register_type_defaults);
    t->name = s(name);
    t->bytes = bytes;
    t->fields = fields(fs);
    t->cvr_used = new_all_unsaid_cvr_spec();
    return t;
}

inline node reg(const char* name, brix_register_type_tag* type, const char* offset = nullptr,
                int array_size = -1, const char* increment = nullptr) {
    auto* r = record(initialize_register_defaults);
    r->name = s(name);
    r->type = type;
    r->offset = s(offset);
    r->array_size = array_size;
    r->increment = s(increment);
    return {BRIX_REGISTER, r};
}

inline brix_memory_type_tag* mem_type(const char* name, uint64_t size, uint32_t bits) {
    auto* t = record(initialize_memory_type_defaults);
    t->name = s(name);
    t->size = size;
    t->bits = bits;
    t->cvr_used = new_all_unsaid_cvr_spec();
    return t;
}

inline node mem(const char* name, brix_memory_type_tag* type, const char* offset = nullptr) {
    auto* m = record(initialize_memory_defaults);
    m->name = s(name);
    m->type = type;
    m->offset = s(offset);
    return {BRIX_MEMORY, m};
}

inline brix_regfile_type_tag* regfile_type(const char* name, std::initializer_list<node> regs) {
    auto* t = record(initialize_regfile_type_defaults);
    t->name = s(name);
    t->registers = list(regs);
    return t;
}

inline node regfile(const char* name, brix_regfile_type_tag* type, const char* offset = nullptr,
                    int array_size = -1, const char* increment = nullptr) {
    auto* r = record(initialize_regfile_defaults);
    r->name = s(name);
    r->type = type;
    r->offset = s(offset);
    r->array_size = array_size;
    r->increment = s(increment);
    return {BRIX_REGFILE, r};
}

inline brix_vregister_type_tag* vreg_type(const char* name, int bytes,
                                          std::initializer_list<brix_field_tag*> fs) {
    auto* t = record(initialize_vregister_type_defaults);
    t->name = s(name);
    t->bytes = bytes;
    t->fields = fields(fs);
    return t;
}

inline node vreg(const char* name, brix_vregister_type_tag* type, const char* memory,
                 const char* offset, int array_size, const char* increment = nullptr) {
    auto* v = record(initialize_vregister_defaults);
    v->name = s(name);
    v->type = type;
    v->memory = s(memory);
    v->offset = s(offset);
    v->array_size = array_size;
    v->increment = s(increment);
    return {BRIX_VREGISTER, v};
}

template <class Domain>
Domain* make_domain(void (*init)(Domain*), const char* name, int bytes,
                    std::initializer_list<node> components) {
    Domain* d = record(init);
    d->name = s(name);
    d->bytes = bytes;
    d->components = list(components);
    d->cvr_used = new_all_unsaid_cvr_spec();
    return d;
}

inline brix_block_domain_tag* domain(const char* name, int bytes, const char* endian,
                                     std::initializer_list<node> components) {
    auto* d = make_domain(initialize_block_domain_defaults, name, bytes, components);
    d->endian = s(endian);
    return d;
}

inline brix_system_domain_tag* sys_domain(const char* name, int bytes,
                                          std::initializer_list<node> components) {
    return make_domain(initialize_system_domain_defaults, name, bytes, components);
}

// A block or system type, joined to its root list as the parser does at its closing brace.
template <class Type, class Domain>
Type* make_container(void (*init)(Type*), Type*& root, int domain_tag, const char* name,
                     std::initializer_list<Domain*> doms) {
    Type* t = record(init);
    t->name = s(name);
    t->domains = list_of(domain_tag, doms);
    t->cvr_used = new_all_unsaid_cvr_spec();
    t->next = root;
    root = t;
    return t;
}

inline brix_block_type_tag* block_type(const char* name,
                                       std::initializer_list<brix_block_domain_tag*> doms) {
    return make_container(initialize_block_type_defaults, all_block_types, BRIX_BLOCK_DOMAIN, name,
                          doms);
}

inline brix_system_type_tag* system_type(const char* name,
                                         std::initializer_list<brix_system_domain_tag*> doms) {
    return make_container(initialize_system_type_defaults, all_system_types, BRIX_SYSTEM_DOMAIN,
                          name, doms);
}

inline node block(const char* name, brix_block_type_tag* type, const char* offset = nullptr,
                  int array_size = -1, const char* increment = nullptr, const char* dom = nullptr) {
    auto* b = record(initialize_block_defaults);
    b->name = s(name);
    b->type = type;
    b->offset = s(offset);
    b->array_size = array_size;
    b->increment = s(increment);
    b->domain = s(dom);
    return {BRIX_BLOCK, b};
}

// Each test starts from an empty model and the default flags.
class generator_test : public ::testing::Test {
  protected:
    void SetUp() override {
        all_block_types = nullptr;
        all_system_types = nullptr;
        char tmpl[] = "/tmp/brix_gen_sv_XXXXXX";
        dir_ = mkdtemp(tmpl);
        out_base_ = dir_ + "/out";
        ofile = out_base_.c_str();
        brix_gen_backdoor = 0;
        brix_ext_ud = 0;
        brix_quiet_mode = 0;
    }
    void TearDown() override {
        ofile = nullptr;
        brix_ext_ud = 0;
        brix_quiet_mode = 0;
        ask_models("");
        std::string cmd = "rm -rf '" + dir_ + "'";
        EXPECT_EQ(0, system(cmd.c_str()));
    }
    // Runs the checks and the generator of `lang` for `top` and returns the generated text.
    std::string generate(const char* top, const std::string& lang = "sv") {
        check_semantics(top);
        (lang == "hx" ? emit_hx_brx_model : emit_sv_brx_model)(top);
        std::ifstream in(out_base_ + "." + (lang == "hx" ? "hxs" : "sv"));
        std::stringstream text;
        text << in.rdbuf();
        return text.str();
    }
    // Asks for the coverage models of `letters` ("a", "b", "f" in any mix) and no others.
    static void ask_models(const std::string& letters) {
        brix_cvr_addr_map = letters.find('a') != std::string::npos ? 1 : 0;
        brix_cvr_reg_bits = letters.find('b') != std::string::npos ? 1 : 0;
        brix_cvr_field_vals = letters.find('f') != std::string::npos ? 1 : 0;
    }
    // The model and then the plan of `top`; returns the plan's text.
    std::string generate_plan(const char* top) {
        generate(top);
        char here[4096];
        EXPECT_NE(nullptr, getcwd(here, sizeof here));
        EXPECT_EQ(0, chdir(dir_.c_str()));
        emit_kpl_qvtp_model(top);
        EXPECT_EQ(0, chdir(here));
        std::ifstream in(dir_ + "/qvtp_" + top + ".kpl");
        std::stringstream text;
        text << in.rdbuf();
        return text.str();
    }
    // The same in a child process, for runs that end through the diagnostics.
    brix_test::child_result generate_in_child(const char* top) {
        return brix_test::run_in_child([&] { generate(top); });
    }

    std::string dir_;
    std::string out_base_;
};

// True when `text` holds `part` with its lines in this order, adjacent.
inline ::testing::AssertionResult holds(const std::string& text, const std::string& part) {
    if (text.find(part) != std::string::npos) {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "missing:\n" << part << "\nin:\n" << text;
}

} // namespace brix_build
