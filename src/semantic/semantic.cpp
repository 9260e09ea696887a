#include "semantic/semantic.hpp"

#include "driver/options.hpp"
#include "parser/scope.hpp"
#include "semantic/model_copy.hpp"

#include <cstring>

namespace {

constexpr uint32_t cvr_unsaid = 3;
constexpr uint32_t cvr_on = 1;

// Where `to` says nothing, it takes what `from` says. A null `from` changes nothing.
void inherit(brix_cvr_spec_tag* to, const brix_cvr_spec_tag* from) {
    if (from == nullptr) {
        return;
    }
    if (to->addr_map == cvr_unsaid) {
        to->addr_map = from->addr_map;
    }
    if (to->reg_bits == cvr_unsaid) {
        to->reg_bits = from->reg_bits;
    }
    if (to->field_vals == cvr_unsaid) {
        to->field_vals = from->field_vals;
    }
}

// Marks only ever raise a setting to on; they never clear one.
void mark_addr_map(brix_cvr_spec_tag* to, const brix_cvr_spec_tag* from) {
    if (from->addr_map == cvr_on) {
        to->addr_map = cvr_on;
    }
}
void mark_reg_bits_and_field_vals(brix_cvr_spec_tag* to, const brix_cvr_spec_tag* from) {
    if (from->reg_bits == cvr_on) {
        to->reg_bits = cvr_on;
    }
    if (from->field_vals == cvr_on) {
        to->field_vals = cvr_on;
    }
}
void mark(brix_cvr_spec_tag* to, const brix_cvr_spec_tag* from) {
    mark_addr_map(to, from);
    mark_reg_bits_and_field_vals(to, from);
}

// A spec with all three settings unsaid, for a sum that no record keeps.
brix_cvr_spec_tag unsaid_spec() {
    brix_cvr_spec_tag spec{};
    initialize_cvr_spec(&spec);
    return spec;
}

brix_cvr_spec_tag* ensure(brix_cvr_spec_tag*& spec) {
    if (spec == nullptr) {
        spec = new_all_unsaid_cvr_spec();
    }
    return spec;
}

// A null name selects every domain; otherwise only the domains of that name.
template <class Domain> bool selected(const Domain* d, const char* domain) {
    return domain == nullptr || (d->name != nullptr && strcmp(d->name, domain) == 0);
}

void check_register_type(brix_register_type_tag* type, brix_cvr_spec_tag* spec,
                         brix_cvr_spec_tag* out);
void check_block_type(brix_block_type_tag* type, brix_cvr_spec_tag* spec, brix_cvr_spec_tag* out,
                      const char* domain);
void check_system_type(brix_system_type_tag* type, brix_cvr_spec_tag* spec, brix_cvr_spec_tag* out,
                       const char* domain);

// Resolves one setting of a field instance against its definition and its register.
uint32_t resolve_field_setting(uint32_t own, const brix_cvr_spec_tag* type_spec, uint32_t type_x,
                               uint32_t register_x) {
    if (type_spec != nullptr) {
        if (own == cvr_unsaid) {
            own = type_x;
        }
        // Where the definition says nothing, the register's word overrides the instance.
        return type_x == cvr_unsaid ? register_x : own;
    }
    // Without a definition's word only an explicit "on" of the instance survives.
    return own == cvr_on ? own : register_x;
}

void check_register_type(brix_register_type_tag* type, brix_cvr_spec_tag* spec,
                         brix_cvr_spec_tag* out) {
    if (type == nullptr || spec == nullptr) {
        return;
    }
    for (brix_list_tag* n = type->fields; n != nullptr; n = n->next) {
        auto* f = static_cast<brix_field_tag*>(n->data);
        brix_cvr_spec_tag* s = ensure(f->cvr_spec);
        const brix_cvr_spec_tag* t = f->type != nullptr ? f->type->cvr_spec : nullptr;
        s->addr_map = resolve_field_setting(s->addr_map, t, t ? t->addr_map : 0, spec->addr_map);
        s->reg_bits = resolve_field_setting(s->reg_bits, t, t ? t->reg_bits : 0, spec->reg_bits);
        s->field_vals =
            resolve_field_setting(s->field_vals, t, t ? t->field_vals : 0, spec->field_vals);
        mark(ensure(f->cvr_used), s);
        mark(ensure(type->cvr_used), s);
    }
    if (type->crosses != nullptr) {
        // A cross needs the field value coverage of its register.
        ensure(type->cvr_used)->field_vals = cvr_on;
    }
    if (out != nullptr && type->cvr_used != nullptr) {
        mark_reg_bits_and_field_vals(out, type->cvr_used);
    }
}

// An instance spec inherits from its type, then from the domain, then from the level above.
template <class Instance>
brix_cvr_spec_tag* resolve_instance(Instance* inst, const brix_cvr_spec_tag* type_spec,
                                    const brix_cvr_spec_tag* domain_spec,
                                    const brix_cvr_spec_tag* spec) {
    brix_cvr_spec_tag* s = ensure(inst->cvr_spec);
    inherit(s, type_spec);
    inherit(s, domain_spec);
    inherit(s, spec);
    return s;
}

void check_block_domain(brix_block_type_tag* type, brix_block_domain_tag* d,
                        brix_cvr_spec_tag* spec) {
    for (brix_list_tag* n = d->components; n != nullptr; n = n->next) {
        switch (n->tag) {
        case BRIX_REGISTER: {
            auto* r = static_cast<brix_register_tag*>(n->data);
            resolve_instance(r, r->type->cvr_spec, d->cvr_spec, spec);
            brix_cvr_spec_tag local = unsaid_spec();
            check_register_type(r->type, r->cvr_spec, &local);
            if (d->cvr_used != nullptr) {
                mark_reg_bits_and_field_vals(d->cvr_used, &local);
            }
            break;
        }
        case BRIX_VREGISTER: {
            auto* v = static_cast<brix_vregister_tag*>(n->data);
            resolve_instance(v, v->type->cvr_spec, d->cvr_spec, spec);
            for (brix_list_tag* fn = v->type->fields; fn != nullptr; fn = fn->next) {
                auto* f = static_cast<brix_field_tag*>(fn->data);
                brix_cvr_spec_tag* s = ensure(f->cvr_spec);
                inherit(s, f->type != nullptr ? f->type->cvr_spec : nullptr);
                inherit(s, v->cvr_spec);
            }
            break; // virtual registers have no generated coverage
        }
        case BRIX_REGFILE: {
            auto* rf = static_cast<brix_regfile_tag*>(n->data);
            resolve_instance(rf, rf->type->cvr_spec, d->cvr_spec, spec);
            brix_cvr_spec_tag sum = unsaid_spec();
            for (brix_list_tag* rn = rf->type->registers; rn != nullptr; rn = rn->next) {
                auto* r = static_cast<brix_register_tag*>(rn->data);
                brix_cvr_spec_tag* s = ensure(r->cvr_spec);
                inherit(s, r->type->cvr_spec);
                inherit(s, rf->cvr_spec);
                brix_cvr_spec_tag local = unsaid_spec();
                check_register_type(r->type, r->cvr_spec, &local);
                mark(&sum, &local);
            }
            if (d->cvr_used != nullptr) {
                mark_reg_bits_and_field_vals(d->cvr_used, &sum);
            }
            break;
        }
        case BRIX_MEMORY: {
            auto* m = static_cast<brix_memory_tag*>(n->data);
            const brix_cvr_spec_tag* s = resolve_instance(m, m->type->cvr_spec, d->cvr_spec, spec);
            if (s->addr_map == cvr_on) {
                ensure(m->type->cvr_used)->addr_map = cvr_on;
            }
            break;
        }
        default:
            brix_error("Error: Invalid block Component found.\n");
        }
    }
    if (d->cvr_spec != nullptr) {
        mark(ensure(d->cvr_used), d->cvr_spec);
    }
    if (type->cvr_used != nullptr && d->cvr_used != nullptr) {
        mark(type->cvr_used, d->cvr_used);
    }
}

void check_block_type(brix_block_type_tag* type, brix_cvr_spec_tag* spec, brix_cvr_spec_tag* out,
                      const char* domain) {
    if (type == nullptr || spec == nullptr) {
        return;
    }
    for (brix_list_tag* n = type->domains; n != nullptr; n = n->next) {
        auto* d = static_cast<brix_block_domain_tag*>(n->data);
        if (selected(d, domain)) {
            check_block_domain(type, d, spec);
        }
    }
    if (type->cvr_used != nullptr) {
        mark(type->cvr_used, spec);
    }
    if (out != nullptr && type->cvr_used != nullptr) {
        mark(out, type->cvr_used);
    }
}

// The domain of a block or system type that an instance stands for: the first one, or
// the first of the instance's domain name.
template <class Domain, class Type> Domain* domain_of(const Type* type, const char* name) {
    for (const brix_list_tag* n = type->domains; n != nullptr; n = n->next) {
        auto* d = static_cast<Domain*>(n->data);
        if (name == nullptr || (d->name != nullptr && strcmp(d->name, name) == 0)) {
            return d;
        }
    }
    return nullptr;
}

// A block or system instance in a system domain.
template <class Domain, class Instance, class Check>
void check_system_component(Instance* inst, brix_system_domain_tag* d, brix_cvr_spec_tag* spec,
                            Check check_type) {
    brix_cvr_spec_tag* s = ensure(inst->cvr_spec);
    if (const Domain* own = domain_of<Domain>(inst->type, inst->domain)) {
        inherit(s, own->cvr_spec);
    }
    inherit(s, inst->type->cvr_spec);
    inherit(s, d->cvr_spec);
    inherit(s, spec);
    brix_cvr_spec_tag local = unsaid_spec();
    check_type(inst->type, s, &local, inst->domain);
    if (d->cvr_used != nullptr) {
        mark(d->cvr_used, &local);
    }
}

void check_system_type(brix_system_type_tag* type, brix_cvr_spec_tag* spec, brix_cvr_spec_tag* out,
                       const char* domain) {
    if (type == nullptr || spec == nullptr) {
        return;
    }
    for (brix_list_tag* n = type->domains; n != nullptr; n = n->next) {
        auto* d = static_cast<brix_system_domain_tag*>(n->data);
        if (!selected(d, domain)) {
            continue;
        }
        for (brix_list_tag* c = d->components; c != nullptr; c = c->next) {
            if (c->tag == BRIX_BLOCK) {
                check_system_component<brix_block_domain_tag>(static_cast<brix_block_tag*>(c->data),
                                                              d, spec, check_block_type);
            } else if (c->tag == BRIX_SYSTEM) {
                check_system_component<brix_system_domain_tag>(
                    static_cast<brix_system_tag*>(c->data), d, spec, check_system_type);
            } else {
                brix_error("Error: Invalid System Component found.\n");
            }
        }
        if (type->cvr_used != nullptr && d->cvr_used != nullptr) {
            mark(type->cvr_used, d->cvr_used);
        }
    }
    if (out != nullptr && type->cvr_used != nullptr) {
        mark(out, type->cvr_used);
    }
}

} // namespace

namespace {
// The top's own spec: the design's default where it says nothing.
template <class Type> brix_cvr_spec_tag* top_spec(Type* type) {
    brix_cvr_spec_tag* design_default = new_all_unsaid_cvr_spec();
    design_default->addr_map = 1;
    design_default->reg_bits = 1;
    design_default->field_vals = 0;
    if (type->cvr_spec == nullptr) {
        type->cvr_spec = design_default;
    } else {
        inherit(type->cvr_spec, design_default);
    }
    return type->cvr_spec;
}
} // namespace

void check_semantics(const char* top) {
    const brix_symrec* sym = lookup_design_top(top);
    if (sym->kind == BRIX_BLOCK_TYPE) {
        auto* type = static_cast<brix_block_type_tag*>(sym->data);
        check_block_type(type, top_spec(type), nullptr, nullptr);
    } else {
        auto* type = static_cast<brix_system_type_tag*>(sym->data);
        check_system_type(type, top_spec(type), nullptr, nullptr);
    }
}

namespace {
bool addr_map_on(const brix_cvr_spec_tag* s) {
    return s != nullptr && s->addr_map == cvr_on;
}
bool reg_bits_on(const brix_cvr_spec_tag* s) {
    return s != nullptr && s->reg_bits == cvr_on;
}
bool field_vals_on(const brix_cvr_spec_tag* s) {
    return s != nullptr && s->field_vals == cvr_on;
}
} // namespace

namespace {
// A model is on for a type when it was asked for at all and its `cvr_used` marks it.
template <class Type>
int coverage_query(int asked, const Type* type, const char* null_message,
                   bool (*on)(const brix_cvr_spec_tag*)) {
    if (asked == 0) {
        return 0;
    }
    if (type == nullptr) {
        brix_error(null_message);
    }
    return on(type->cvr_used) ? 1 : 0;
}
} // namespace

int can_cvr_register_bits(const brix_register_type_tag* type) {
    return coverage_query(brix_cvr_reg_bits, type,
                          "can_cvr_register_bits(...) - NULL parameter received.\n", reg_bits_on);
}

int can_cvr_register_field_val(const brix_register_type_tag* type) {
    return coverage_query(brix_cvr_field_vals, type,
                          "can_cvr_register_field_val(...) - NULL parameter received.\n",
                          field_vals_on);
}

int can_cvr_block_field_val(const brix_block_type_tag* type) {
    return coverage_query(brix_cvr_field_vals, type,
                          "can_cvr_block_field_val(...) - NULL parameter received.\n",
                          field_vals_on);
}

int can_cvr_block_addr_map(const brix_block_type_tag* type, const char* domain) {
    if (brix_cvr_addr_map == 0) {
        return 0;
    }
    if (type == nullptr) {
        brix_error("can_cvr_block_addr_map(..) - NULL parameter received.\n");
    }
    if (domain == nullptr) {
        return addr_map_on(type->cvr_used) ? 1 : 0;
    }
    for (const brix_list_tag* n = type->domains; n != nullptr; n = n->next) {
        const auto* d = static_cast<const brix_block_domain_tag*>(n->data);
        if (d->name != nullptr && strcmp(d->name, domain) == 0 && addr_map_on(d->cvr_used)) {
            return 1;
        }
    }
    return 0;
}

const char* get_cvr_expr(const brix_cvr_spec_tag* spec) {
    if (spec == nullptr) {
        return "qvt_brx::NO_COVERAGE";
    }
    const bool a = brix_cvr_addr_map == 1 && addr_map_on(spec);
    const bool b = brix_cvr_reg_bits == 1 && reg_bits_on(spec);
    const bool f = brix_cvr_field_vals == 1 && field_vals_on(spec);
    static const char* const texts[8] = {
        "qvt_brx::NO_COVERAGE",                      // - - -
        "qvt_brx::FIELD_VALS",                       // - - f
        "qvt_brx::REG_BITS",                         // - b -
        "(qvt_brx::REG_BITS | qvt_brx::FIELD_VALS)", // - b f
        "qvt_brx::ADDR_MAP",                         // a - -
        "(qvt_brx::ADDR_MAP | qvt_brx::FIELD_VALS)", // a - f
        "(qvt_brx::ADDR_MAP | qvt_brx::REG_BITS)",   // a b -
        "qvt_brx::ALL_COVERAGE",                     // a b f
    };
    return texts[(a ? 4 : 0) + (b ? 2 : 0) + (f ? 1 : 0)];
}
