#include "gen_model/gen_model.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cctype>
#include <cstring>
#include <string_view>
#include <strings.h>
#include <unordered_map>

#include "driver/options.hpp"
#include "gen_model/gen_coverage.hpp"
#include "gen_backdoor/backdoor.hpp"
#include "gen_backdoor/vhdl.hpp"
#include "gen_model/gen_support.hpp"
#include "semantic/model_copy.hpp"
#include "semantic/semantic.hpp"

const brix_gen_templates* brix_lang = nullptr;

using namespace brix_gen;

namespace {

const brix_gen_templates& L() {
    return *brix_lang;
}

// The ten maps of one run, in the order in which they are set up.
brix_str2int_map* const run_maps[] = {&all_registers,
                                      &all_vregisters,
                                      &all_memories,
                                      &all_regfiles,
                                      &all_blocks,
                                      &all_systems,
                                      &all_block_sizes,
                                      &all_system_sizes,
                                      &all_emitted_shared_registers,
                                      &all_emitted_shared_memories};

std::string upper(const char* text) {
    std::string s = text != nullptr ? text : "";
    for (char& c : s) {
        c = static_cast<char>(toupper(static_cast<unsigned char>(c)));
    }
    return s;
}

// How often each name stands among the members of a class and their fields. A block may
// hold a million registers, so each name takes one slot of 16 bytes, open-addressed; the
// names are the model's own and outlive the count.
class name_counts {
  public:
    void add(const char* name) {
        if ((used_ + 1) * 5 > slots_.size() * 4) {
            grow();
        }
        const std::size_t length = strlen(name);
        slot& s = slots_[find(name, length)];
        if (s.name == nullptr) {
            s = {name, static_cast<std::uint32_t>(length), 0};
            ++used_;
        }
        ++s.count;
    }
    bool once(const char* name) const {
        return !slots_.empty() && slots_[find(name, strlen(name))].count == 1;
    }

  private:
    struct slot {
        const char* name = nullptr;
        std::uint32_t length = 0;
        std::uint32_t count = 0;
    };
    // The slot of the name, or the empty one where it would go.
    std::size_t find(const char* name, std::size_t length) const {
        const std::size_t mask = slots_.size() - 1;
        std::size_t i = std::hash<std::string_view>{}({name, length}) & mask;
        while (slots_[i].name != nullptr &&
               (slots_[i].length != length || std::memcmp(slots_[i].name, name, length) != 0)) {
            i = (i + 1) & mask;
        }
        return i;
    }
    void grow() {
        std::vector<slot> old(std::max<std::size_t>(16, slots_.size() * 2));
        old.swap(slots_);
        for (const slot& s : old) {
            if (s.name != nullptr) {
                slots_[find(s.name, s.length)] = s;
            }
        }
    }
    std::vector<slot> slots_;
    std::size_t used_ = 0;
};

bool in_map(const brix_str2int_map& map, const std::string& key) {
    return get_str2int_map_value(map, key.c_str()) != 0;
}

void note_emitted(brix_str2int_map& map, const std::string& key) {
    add_str2int_map_entry(map, brix_strdup(key.c_str()), 1);
}

void count_name(name_counts& names, const char* name) {
    names.add(name);
}

bool counted_once(const name_counts& names, const char* name) {
    return names.once(name);
}

// The whole-word test of constraint bodies: a word stands alone when the characters on
// both sides of it are not identifier characters.
bool is_word_char(char c) {
    return isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

bool holds_whole_word(const char* body, const char* word) {
    const size_t len = strlen(word);
    if (len == 0) {
        return false;
    }
    const char* p = body;
    while ((p = strstr(p, word)) != nullptr) {
        if (p != body && is_word_char(p[-1])) {
            p += 1;
        } else if (is_word_char(p[len])) {
            p += len;
        } else {
            return true;
        }
    }
    return false;
}

// Each whole word `value` in a field's constraint refers to that field's value.
std::string rewrite_value(const char* body, const char* field) {
    static const char word[] = "value";
    const size_t len = sizeof word - 1;
    std::string out;
    const char* p = body;
    while (*p != '\0') {
        if (strncmp(p, word, len) == 0 && (p == body || !is_word_char(p[-1])) &&
            !is_word_char(p[len])) {
            out += field;
            out += ".value";
            p += len;
        } else {
            out += *p++;
        }
    }
    return out;
}

// A constraint's body, one line of text a line, leading blanks dropped, empty lines gone.
void emit_constraint_body(const char* body) {
    const char* p = body;
    while (*p != '\0') {
        while (*p == ' ' || *p == '\t' || *p == '\n') {
            ++p;
        }
        if (*p == '\0') {
            break;
        }
        const char* end = strchr(p, '\n');
        const size_t n = end != nullptr ? static_cast<size_t>(end - p) : strlen(p);
        brix_emit(L().constraint_line_indent);
        brix_emit("%s", std::string(p, n));
        brix_emit("\n");
        p += n;
    }
}

void emit_field_constraints(const brix_list_tag* fields) {
    bool any = false;
    for_each_field(fields, [&](const brix_field_tag* f) {
        for (const brix_constraint_tag* c = f->type->constraints; c != nullptr; c = c->next) {
            any = true;
            if (c->body == nullptr) {
                brix_emit(L().field_constraint_decl, f->name, c->name);
                continue;
            }
            brix_emit(L().field_constraint_head, f->name, c->name);
            emit_constraint_body(rewrite_value(c->body, f->name).c_str());
            brix_emit(L().constraint_tail);
        }
    });
    if (any) {
        brix_emit("\n");
    }
}

// A field is constrained by its own constraints or by a register constraint that names
// it; a register constraint with empty braces ends the search.
int is_constrained(const brix_field_tag* f, const brix_register_type_tag* t) {
    if (f->type->constraints != nullptr) {
        return 1;
    }
    for (const brix_constraint_tag* c = t->constraints; c != nullptr; c = c->next) {
        if (c->body == nullptr) {
            return 0;
        }
        if (holds_whole_word(c->body, f->name)) {
            return 1;
        }
    }
    return 0;
}

// A reset value as written, else `<bits><suffix>` made in `buffer`.
const char* reset_text(const char* written, std::string_view suffix, uint32_t bits,
                       std::array<char, 32>& buffer) {
    if (written != nullptr) {
        return written;
    }
    char* end = std::to_chars(buffer.data(), buffer.data() + 16, bits).ptr;
    end += suffix.copy(end, buffer.data() + buffer.size() - 1 - end);
    *end = '\0';
    return buffer.data();
}

// The access constant of a field, `qvt_brx::<ACCESS>`, in a string kept for it.
const std::string& access_constant(const char* access) {
    static std::string text;
    text.assign("qvt_brx::");
    for (const char* c = access != nullptr ? access : ""; *c != '\0'; ++c) {
        text += static_cast<char>(toupper(static_cast<unsigned char>(*c)));
    }
    return text;
}

void emit_attributes(const brix_attribute* list) {
    if (L().set_attribute == nullptr) {
        return;
    }
    for (const brix_attribute* a = list; a != nullptr; a = a->next) {
        brix_emit(L().set_attribute, a->name, a->value);
    }
}

void emit_add_constraints(const brix_constraint_tag* list) {
    for (const brix_constraint_tag* c = list; c != nullptr; c = c->next) {
        brix_emit(L().add_constraint, c->name);
    }
}

void emit_user_defined_constraint() {
    if (brix_ext_ud) {
        brix_emit(L().user_defined_constraint);
    }
}

void emit_add_user_defined_constraint() {
    if (brix_ext_ud) {
        brix_emit(L().add_user_defined_constraint);
    }
}

// The enum classes of a register's fields, ahead of the register class.
void emit_register_enum_classes(const brix_register_type_tag* t, brix_enum_table& enums) {
    const std::string suffix = suffix_of(t);
    for_each_real_field(t->fields, [&](const brix_field_tag* f) {
        const brix_enum_type* e = f->type->enum_type;
        if (e == nullptr || e->names == nullptr) {
            return;
        }
        brix_emit(L().enum_class_head, suffix, f->name);
        if (L().enum_type_by_field) {
            brix_emit(L().enum_type_head, f->name);
        } else {
            brix_emit(L().enum_type_head, static_cast<int>(f->type->bits) - 1);
        }
        long long v = -1;
        auto& values = enums[f->name];
        for (const brix_list_tag* n = e->names; n != nullptr; n = n->next) {
            const auto* decl = static_cast<const brix_enum_name_declaration*>(n->data);
            if (n != e->names) {
                brix_emit(L().enum_separator);
            }
            brix_emit(L().enum_name, decl->name);
            if (decl->value != nullptr) {
                brix_emit(L().enum_value, decl->value);
            }
            v = next_enum_value(decl->value, v);
            values[decl->name] = v;
        }
        brix_emit(L().enum_class_tail, f->name, suffix, f->name);
    });
}

const char* rights_of(const char* rw_flag) {
    if (rw_flag == nullptr) {
        return "2'b11";
    }
    if (strcmp(rw_flag, "read") == 0) {
        return "2'b10";
    }
    if (strcmp(rw_flag, "write") == 0) {
        return "2'b01";
    }
    brix_error("Error - Invalid shared access specifier '%s' found ...\n", rw_flag);
}

int unmapped_of(const char* offset) {
    return is_named(offset, "none") ? 1 : 0;
}

// The alias assignments of one register's fields in a constructor.
void emit_register_fields_construction(const brix_register_tag* reg, const name_counts& names) {
    const bool array = is_array(reg->array_size);
    for_each_real_field(reg->type->fields, [&](const brix_field_tag* f) {
        brix_emit(array ? L().field_alias_array_new : L().field_alias_new, reg->name, f->name,
                  reg->name, f->name);
        if (counted_once(names, f->name)) {
            brix_emit(array ? L().field_short_array_new : L().field_short_new, f->name, reg->name,
                      f->name);
        }
    });
}

// The declarations of a register's field aliases in a regfile or block class.
void emit_register_alias_decls(const brix_register_tag* reg, const name_counts& names) {
    const bool array = is_array(reg->array_size);
    for_each_real_field(reg->type->fields, [&](const brix_field_tag* f) {
        if (array) {
            brix_emit(L().field_alias_array_decl, rand_prefix(f), reg->name, f->name,
                      reg->array_size);
        } else {
            brix_emit(L().field_alias_decl, rand_prefix(f), reg->name, f->name);
        }
        if (!counted_once(names, f->name)) {
            return;
        }
        if (array) {
            brix_emit(L().field_short_array_decl, rand_prefix(f), f->name, reg->array_size);
        } else {
            brix_emit(L().field_short_decl, rand_prefix(f), f->name);
        }
    });
}

void count_real_fields(name_counts& names, const brix_list_tag* fields) {
    for_each_real_field(fields, [&](const brix_field_tag* f) { count_name(names, f->name); });
}

// Offsets a register of `bytes` takes in a domain of `domain_bytes`, with the warning for
// a register wider than the domain.
uint64_t register_words(const brix_register_type_tag* t, uint64_t domain_bytes) {
    raise(brix_largest_register_bytes, static_cast<uint32_t>(t->bytes));
    if (static_cast<uint64_t>(t->bytes) > domain_bytes && !brix_quiet_mode) {
        brix_warn("Warning: %d bytes register '%s' instantiated in %d bytes block.\n", t->bytes,
                  t->name, static_cast<int>(domain_bytes));
    }
    return get_ceil(static_cast<uint64_t>(t->bytes), domain_bytes);
}

// ---- Component classes --------------------------------------------------------------

void emit_memory_class(const brix_memory_type_tag* m) {
    const std::string suffix = suffix_of(m);
    brix_emit(L().mem_class_head, suffix);
    brix_emit(L().mem_ctor_head);
    const std::string access = upper(m->access);
    brix_emit(L().mem_super_new, access, static_cast<unsigned long long>(m->size),
              static_cast<int>(m->bits), get_cvr_expr(m->cvr_used));
    emit_attributes(m->attributes);
    brix_emit(L().mem_class_tail, suffix);
    note_emitted(all_memories, suffix);
    brix_emit("\n\n");
}

void emit_vregister_class(const brix_vregister_type_tag* t) {
    const std::string suffix = suffix_of(t);
    brix_emit(L().vreg_class_head, suffix);
    for_each_real_field(t->fields,
                        [&](const brix_field_tag* f) { brix_emit(L().vreg_field_decl, f->name); });
    brix_emit("\n");
    brix_emit(L().vreg_ctor_head);
    const brix_field_layout layout = place_fields(t->fields, t->left_to_right);
    size_t i = 0;
    for_each_field(t->fields, [&](const brix_field_tag* f) {
        if (is_real_field(f)) {
            brix_emit(L().vreg_field_new, f->name, f->name, static_cast<int>(f->type->bits),
                      static_cast<int>(layout.lsb[i]));
        }
        ++i;
    });
    brix_emit(L().vreg_class_tail, suffix);
    note_emitted(all_vregisters, suffix);
    brix_emit("\n\n");
}

void emit_regfile_class(const brix_regfile_type_tag* rf, uint64_t d) {
    for (const brix_list_tag* n = rf->registers; n != nullptr; n = n->next) {
        const auto* r = static_cast<const brix_register_tag*>(n->data);
        if (n->tag == BRIX_REGISTER && !already_emitted_register(r->type)) {
            emit_register(r);
        }
    }
    name_counts names;
    const std::string suffix = suffix_of(rf);
    brix_emit(L().regfile_class_head, suffix);
    for (const brix_list_tag* n = rf->registers; n != nullptr; n = n->next) {
        if (n->tag != BRIX_REGISTER) {
            brix_error("Error - Invalid Regfile Component.\n");
        }
        const auto* r = static_cast<const brix_register_tag*>(n->data);
        count_name(names, r->name);
        if (is_array(r->array_size)) {
            brix_emit(L().regfile_reg_array_decl, suffix_of(r->type), r->name, r->array_size);
        } else {
            brix_emit(L().regfile_reg_decl, suffix_of(r->type), r->name);
        }
        count_real_fields(names, r->type->fields);
    }
    for (const brix_list_tag* n = rf->registers; n != nullptr; n = n->next) {
        emit_register_alias_decls(static_cast<const brix_register_tag*>(n->data), names);
    }
    brix_emit("\n");
    if (rf->constraints != nullptr) {
        emit_constraints(rf->constraints);
    }
    brix_emit(L().regfile_ctor_head);
    brix_offset_walk walk;
    for (const brix_list_tag* n = rf->registers; n != nullptr; n = n->next) {
        const auto* r = static_cast<const brix_register_tag*>(n->data);
        const uint64_t words = register_words(r->type, d);
        const brix_placement p =
            brix_place(walk, r->offset, true, r->array_size, r->increment, words);
        const char* rights = rights_of(r->rw_flag);
        const int unmapped = unmapped_of(r->offset);
        if (!is_array(r->array_size)) {
            brix_emit(L().regfile_reg_new, r->name, r->name, p.offset, rights, unmapped);
            emit_register_fields_construction(r, names);
        } else {
            brix_emit(L().foreach_head, r->name);
            brix_emit(L().regfile_reg_array_new, r->name, r->name, p.offset, p.increment, rights,
                      unmapped);
            emit_register_fields_construction(r, names);
            brix_emit(L().foreach_tail);
        }
    }
    brix_emit(L().regfile_ctor_tail);
    brix_emit(L().regfile_class_tail, suffix);
    note_emitted(all_regfiles, suffix);
    brix_emit("\n\n");
    brix_emit("\n\n");
}

// ---- Blocks and systems -------------------------------------------------------------

template <class Type> const char* domain_word(const Type* d) {
    return d->name != nullptr ? d->name : "";
}

const char* endian_word(const char* endian) {
    if (endian == nullptr || strcmp(endian, "little") == 0) {
        return "qvt_brx::LITTLE_ENDIAN";
    }
    if (strcmp(endian, "big") == 0) {
        return "qvt_brx::BIG_ENDIAN";
    }
    if (strcmp(endian, "fifo_ls") == 0) {
        return "qvt_brx::LITTLE_FIFO";
    }
    if (strcmp(endian, "fifo_ms") == 0) {
        return "qvt_brx::BIG_FIFO";
    }
    return "qvt_brx::NO_ENDIAN";
}

// Head of a block's or system's constructor: the first domain goes to `super.new`, the
// others are added before any member is built.
template <class Domain, class Type> void emit_container_ctor_head(const Type* type) {
    const std::string suffix = suffix_of(type);
    brix_emit(L().container_ctor_head, suffix);
    bool first = true;
    for_each_domain<Domain>(type->domains, [&](const Domain* d) {
        if (first) {
            brix_emit(L().container_super_new, suffix, d->bytes, endian_word(d->endian),
                      domain_word(d), get_cvr_expr(type->cvr_used));
            first = false;
        } else {
            brix_emit(L().container_add_domain, d->bytes, endian_word(d->endian), domain_word(d));
        }
    });
}

// Attributes, constraints and the lock that end a block's or system's constructor.
template <class Domain, class Type> void emit_container_ctor_tail(const Type* type) {
    emit_attributes(type->attributes);
    for_each_domain<Domain>(type->domains,
                            [&](const Domain* d) { emit_add_constraints(d->constraints); });
    emit_add_user_defined_constraint();
    brix_emit(L().lock_model);
    brix_emit(L().container_ctor_tail);
}

// A block writes the constraints of the domains that have some; a system runs every
// domain's list through emit_constraints, so an empty one still leaves its blank line.
template <class Domain> void emit_domain_constraints(const brix_list_tag* domains) {
    constexpr bool every_domain = std::is_same_v<Domain, brix_system_domain_tag>;
    for_each_domain<Domain>(domains, [&](const Domain* d) {
        if (every_domain || d->constraints != nullptr) {
            emit_constraints(d->constraints);
        }
    });
    emit_user_defined_constraint();
}

template <class Type> bool is_top_itself(const Type* type, bool backdoor) {
    return backdoor && is_named(type->name, brix_top) && type->scope_prefix == nullptr;
}

// One member for each instance name of a shared register or memory in a block; a later
// instance of that name must be of the same type.
struct shared_members {
    brix_str2voidptr_map map;
    const char* block;
    const char* mismatch;
    // True when `name` was met before.
    bool seen(const char* name, const char* type_name) {
        const auto* known = static_cast<const char*>(get_str2voidptr_map_value(map, name));
        if (known == nullptr) {
            add_str2voidptr_map_entry(map, const_cast<char*>(name), const_cast<char*>(type_name));
            return false;
        }
        if (strcmp(known, type_name) != 0) {
            brix_error(mismatch, name, block);
        }
        return true;
    }
    void clear() { free_str2voidptr_map(map, 0); }
};

shared_members shared_registers_of(const char* block) {
    shared_members s{{},
                     block,
                     "Shared Register '%s' (In Block '%s') - Multiple instances of same name, "
                     "but of different type found."};
    initialize_str2voidptr_map(s.map);
    return s;
}

shared_members shared_memories_of(const char* block) {
    shared_members s{{},
                     block,
                     "Memory '%s' (In Block '%s') - Multiple instances of same name, but of "
                     "different type found."};
    initialize_str2voidptr_map(s.map);
    return s;
}

bool seen_shared_register(shared_members& shared, const brix_register_tag* r) {
    return r->type->is_shared == 1 && shared.seen(r->name, r->type->name);
}

bool seen_shared_memory(shared_members& shared, const brix_memory_tag* m) {
    return m->type->is_shared == 1 && shared.seen(m->name, m->type->name);
}

void emit_block_member_decls(const brix_block_type_tag* type, name_counts& names) {
    shared_members regs = shared_registers_of(type->name);
    shared_members mems = shared_memories_of(type->name);
    for_each_component<brix_block_domain_tag>(type->domains, [&](const brix_block_domain_tag*,
                                                                 const brix_list_tag* c) {
        switch (c->tag) {
        case BRIX_REGISTER: {
            const auto* r = static_cast<const brix_register_tag*>(c->data);
            count_name(names, r->name);
            if (seen_shared_register(regs, r)) {
                return;
            }
            if (is_array(r->array_size)) {
                brix_emit(L().block_reg_array_decl, suffix_of(r->type), r->name, r->array_size);
            } else {
                brix_emit(L().block_reg_decl, suffix_of(r->type), r->name);
            }
            count_real_fields(names, r->type->fields);
            return;
        }
        case BRIX_VREGISTER: {
            const auto* v = static_cast<const brix_vregister_tag*>(c->data);
            count_name(names, v->name);
            brix_emit(L().block_vreg_decl, suffix_of(v->type), v->name);
            count_real_fields(names, v->type->fields);
            return;
        }
        case BRIX_REGFILE: {
            const auto* f = static_cast<const brix_regfile_tag*>(c->data);
            count_name(names, f->name);
            if (is_array(f->array_size)) {
                brix_emit(L().block_regfile_array_decl, suffix_of(f->type), f->name, f->array_size);
            } else {
                brix_emit(L().block_regfile_decl, suffix_of(f->type), f->name);
            }
            return;
        }
        case BRIX_MEMORY: {
            const auto* m = static_cast<const brix_memory_tag*>(c->data);
            count_name(names, m->name);
            if (!seen_shared_memory(mems, m)) {
                brix_emit(L().block_mem_decl, suffix_of(m->type), m->name);
            }
            return;
        }
        default:
            brix_error("Error - Invalid Block Component.\n");
        }
    });
    regs.clear();
    mems.clear();
}

void emit_block_alias_decls(const brix_block_type_tag* type, const name_counts& names) {
    shared_members regs = shared_registers_of(type->name);
    for_each_component<brix_block_domain_tag>(
        type->domains, [&](const brix_block_domain_tag*, const brix_list_tag* c) {
            if (c->tag == BRIX_VREGISTER) {
                const auto* v = static_cast<const brix_vregister_tag*>(c->data);
                for_each_real_field(v->type->fields, [&](const brix_field_tag* f) {
                    brix_emit(L().vfield_alias_decl, v->name, f->name);
                    if (counted_once(names, f->name)) {
                        brix_emit(L().vfield_short_decl, f->name);
                    }
                });
            } else if (c->tag == BRIX_REGISTER) {
                const auto* r = static_cast<const brix_register_tag*>(c->data);
                if (!seen_shared_register(regs, r)) {
                    emit_register_alias_decls(r, names);
                }
            }
        });
    regs.clear();
}

void emit_block_register(const brix_block_domain_tag* dom, const brix_register_tag* r,
                         brix_offset_walk& walk, shared_members& shared, const name_counts& names) {
    const uint64_t d = static_cast<uint64_t>(dom->bytes);
    const uint64_t words = register_words(r->type, d);
    check_no_shared_array(r);
    const brix_placement p = brix_place(walk, r->offset, true, r->array_size, r->increment, words);
    const char* rights = rights_of(r->rw_flag);
    const int unmapped = unmapped_of(r->offset);
    if (is_array(r->array_size)) {
        brix_emit(L().foreach_head, r->name);
        brix_emit(L().block_reg_array_new, r->name, r->name, p.offset, p.increment,
                  domain_word(dom), rights, unmapped);
        emit_register_fields_construction(r, names);
        brix_emit(L().foreach_tail);
    } else if (seen_shared_register(shared, r)) {
        brix_emit(L().block_obj_add_domain, r->name, p.offset, domain_word(dom), rights, unmapped);
    } else {
        const char* name = r->type->is_shared == 1 ? r->type->name : r->name;
        brix_emit(L().block_obj_new, r->name, name, p.offset, domain_word(dom), rights, unmapped);
        emit_register_fields_construction(r, names);
    }
}

void emit_block_memory(const brix_block_domain_tag* dom, const brix_memory_tag* m,
                       brix_offset_walk& walk, shared_members& shared) {
    const uint64_t d = static_cast<uint64_t>(dom->bytes);
    const brix_memory_type_tag* t = m->type;
    raise(brix_largest_memory_bits, t->bits);
    if (t->bits > d * 8 && !brix_quiet_mode) {
        brix_warn("Warning: %d bits memory '%s' instantiated in %d bytes block.\n",
                  static_cast<int>(t->bits), t->name, static_cast<int>(d));
    }
    const brix_placement p =
        brix_place(walk, m->offset, true, -1, nullptr, brix_memory_words(t, d));
    const char* rights = rights_of(m->rw_flag);
    const int unmapped = unmapped_of(m->offset);
    if (seen_shared_memory(shared, m)) {
        brix_emit(L().block_obj_add_domain, m->name, p.offset, domain_word(dom), rights, unmapped);
    } else {
        const char* name = t->is_shared == 1 ? t->name : m->name;
        brix_emit(L().block_obj_new, m->name, name, p.offset, domain_word(dom), rights, unmapped);
    }
}

void emit_block_regfile(const brix_block_domain_tag* dom, const brix_regfile_tag* f,
                        brix_offset_walk& walk) {
    const uint64_t size =
        get_regfile_size_in_block_offsets(f->type, static_cast<uint64_t>(dom->bytes));
    const brix_placement p = brix_place(walk, f->offset, false, f->array_size, f->increment, size);
    if (is_array(f->array_size)) {
        brix_emit(L().foreach_head, f->name);
        brix_emit(L().block_regfile_array_new, f->name, f->name, p.offset, p.increment,
                  domain_word(dom));
        brix_emit(L().foreach_tail);
    } else {
        brix_emit(L().block_regfile_new, f->name, f->name, p.offset, domain_word(dom));
    }
}

// Virtual registers are placed in their memory at run time and take no block offsets.
void emit_block_vregister(const brix_block_type_tag* block, const brix_block_domain_tag* dom,
                          const brix_vregister_tag* v, const name_counts& names) {
    const uint64_t d = static_cast<uint64_t>(dom->bytes);
    const brix_vregister_type_tag* t = v->type;
    raise(brix_largest_vregister_bytes, static_cast<uint32_t>(t->bytes));
    if (static_cast<uint64_t>(t->bytes) > d && !brix_quiet_mode) {
        brix_warn("Warning: %d bytes virtual register '%s' instantiated in %d bytes block.\n",
                  t->bytes, t->name, static_cast<int>(d));
    }
    const uint64_t words = get_ceil(static_cast<uint64_t>(t->bytes), d);
    uint64_t incr = words;
    if (v->increment != nullptr) {
        const uint64_t i = to_dec(v->increment);
        if (i >= words) {
            incr = i;
        } else {
            brix_warn("Warning: Block '%s' - Virtual Register '%s' - Ignoring 'incr', as it "
                      "must be big enough to make sure (virtual) register (array) "
                      "elementoverlapping doesn't happen.\n",
                      block->name, v->name);
        }
        raise(brix_largest_vregister_incr, incr * d);
    }
    const uint64_t o = v->offset != nullptr ? to_dec(v->offset) : 0;
    const uint64_t n_bits = words * d * 8;
    if (v->memory != nullptr && v->array_size > 0) {
        brix_emit(L().vreg_new_in_memory, v->name, v->name, n_bits, o, v->memory, v->array_size,
                  incr);
    } else {
        brix_emit(L().vreg_new, v->name, v->name, n_bits);
    }
    for_each_real_field(t->fields, [&](const brix_field_tag* f) {
        brix_emit(L().field_alias_new, v->name, f->name, v->name, f->name);
        if (counted_once(names, f->name)) {
            brix_emit(L().field_short_new, f->name, v->name, f->name);
        }
    });
}

void emit_block_constructor(brix_block_type_tag* type, const name_counts& names, bool backdoor) {
    emit_container_ctor_head<brix_block_domain_tag>(type);
    const std::string suffix = suffix_of(type);
    shared_members regs = shared_registers_of(type->name);
    shared_members mems = shared_memories_of(type->name);
    for_each_domain<brix_block_domain_tag>(type->domains, [&](const brix_block_domain_tag* dom) {
        brix_offset_walk walk;
        for (const brix_list_tag* c = dom->components; c != nullptr; c = c->next) {
            switch (c->tag) {
            case BRIX_REGISTER:
                emit_block_register(dom, static_cast<const brix_register_tag*>(c->data), walk, regs,
                                    names);
                break;
            case BRIX_MEMORY:
                emit_block_memory(dom, static_cast<const brix_memory_tag*>(c->data), walk, mems);
                break;
            case BRIX_REGFILE:
                emit_block_regfile(dom, static_cast<const brix_regfile_tag*>(c->data), walk);
                break;
            case BRIX_VREGISTER:
                emit_block_vregister(type, dom, static_cast<const brix_vregister_tag*>(c->data),
                                     names);
                break;
            default:
                brix_error("Error - Invalid Block Component.\n");
            }
        }
        add_str2int_map_entry(all_block_sizes, brix_strdup(size_key(suffix, dom->name).c_str()),
                              static_cast<long long>(walk.size));
    });
    regs.clear();
    mems.clear();
    if (is_top_itself(type, backdoor)) {
        brix_emit(L().backdoor_banner);
        for_each_component<brix_block_domain_tag>(type->domains, [&](const brix_block_domain_tag*,
                                                                     const brix_list_tag* c) {
            if (c->tag == BRIX_REGISTER) {
                emit_register_backdoor_instantiations(
                    static_cast<const brix_register_tag*>(c->data));
            } else if (c->tag == BRIX_REGFILE) {
                emit_regfile_backdoor_instantiations(static_cast<const brix_regfile_tag*>(c->data));
            } else if (c->tag == BRIX_MEMORY) {
                emit_memory_backdoor_instantiations_plain_or_mixed(
                    static_cast<const brix_memory_tag*>(c->data));
            }
        });
    }
    emit_container_ctor_tail<brix_block_domain_tag>(type);
    if (can_cvr_block_addr_map(type, nullptr)) {
        emit_block_addrmap_cvr_methods(type, 1);
    }
}

// What one block or system instance of a system needs from the walk: its class, size
// table and the texts that differ between the two kinds.
struct system_component {
    const char* name;
    const char* domain;
    int32_t array_size;
    const char* offset;
    const char* increment;
    std::string class_key; // "brx_block_<suffix>" or "brx_sys_<suffix>"
    std::string suffix;    // class suffix of its type
    const char* type_name;
    const brix_list_tag* type_domains;
    const brix_str2int_map* sizes;
    const char* register_one;
    const char* register_array;
};

system_component describe(const brix_list_tag* c) {
    if (c->tag == BRIX_BLOCK) {
        const auto* b = static_cast<const brix_block_tag*>(c->data);
        return {b->name,
                b->domain,
                b->array_size,
                b->offset,
                b->increment,
                "brx_block_" + suffix_of(b->type),
                suffix_of(b->type),
                b->type->name,
                b->type->domains,
                &all_block_sizes,
                L().register_block,
                L().register_block_array};
    }
    const auto* s = static_cast<const brix_system_tag*>(c->data);
    return {s->name,
            s->domain,
            s->array_size,
            s->offset,
            s->increment,
            "brx_sys_" + suffix_of(s->type),
            suffix_of(s->type),
            s->type->name,
            s->type->domains,
            &all_system_sizes,
            L().register_subsys,
            L().register_subsys_array};
}

void emit_system_component(const brix_system_domain_tag* sys_dom, const brix_list_tag* node,
                           brix_offset_walk& walk, brix_str2str_map& instantiated) {
    const system_component c = describe(node);
    const uint64_t size = static_cast<uint64_t>(
        get_str2int_map_value(*c.sizes, size_key(c.suffix, c.domain).c_str()));
    const auto bytes = static_cast<uint64_t>(
        node->tag == BRIX_BLOCK
            ? instance_domain<brix_block_domain_tag>(c.type_domains, c.type_name, c.domain).bytes
            : instance_domain<brix_system_domain_tag>(c.type_domains, c.type_name, c.domain).bytes);
    const uint64_t span = brix_subsystem_words(size, bytes, static_cast<uint64_t>(sys_dom->bytes));
    const bool multi_domain = c.type_domains != nullptr && c.type_domains->next != nullptr;
    const std::string key = c.class_key + " " + c.name;
    const char* stored = nullptr;
    if (multi_domain) {
        stored = get_str2str_map_value(instantiated, key.c_str());
    }
    const bool first = stored == nullptr;
    const brix_placement p = brix_place(walk, c.offset, false, c.array_size, c.increment, span);
    const char* sys_domain = domain_word(sys_dom);
    const char* inst_domain = c.domain != nullptr ? c.domain : "";
    if (!is_array(c.array_size)) {
        if (first) {
            if (multi_domain) {
                add_str2str_map_entry(instantiated, brix_strdup(key.c_str()), brix_strdup(c.name));
            }
            brix_emit(L().sys_comp_new, c.name, c.name, p.offset);
        } else if (strcmp(stored, c.name) != 0) {
            brix_emit(L().sys_comp_same, c.name, stored);
        }
        brix_emit(c.register_one, c.name, inst_domain, sys_domain, p.offset);
        return;
    }
    brix_emit(L().foreach_head, c.name);
    if (first) {
        add_str2str_map_entry(instantiated, brix_strdup(key.c_str()), brix_strdup(c.name));
        brix_emit(L().sys_comp_array_new, c.name, c.name, p.offset, p.increment);
    } else if (strcmp(stored, c.name) != 0) {
        brix_emit(L().sys_comp_array_same, c.name, stored);
    }
    brix_emit(c.register_array, c.name, inst_domain, sys_domain, p.offset, p.increment);
    brix_emit(L().foreach_tail);
}

void emit_system_constructor(brix_system_type_tag* type, bool backdoor) {
    emit_container_ctor_head<brix_system_domain_tag>(type);
    const std::string suffix = suffix_of(type);
    brix_str2str_map instantiated;
    initialize_str2str_map(instantiated);
    for_each_domain<brix_system_domain_tag>(type->domains, [&](const brix_system_domain_tag* d) {
        brix_offset_walk walk;
        for (const brix_list_tag* c = d->components; c != nullptr; c = c->next) {
            if (c->tag != BRIX_BLOCK && c->tag != BRIX_SYSTEM) {
                brix_error("Error: Invalid System Component found.\n");
            }
            emit_system_component(d, c, walk, instantiated);
        }
        add_str2int_map_entry(all_system_sizes, brix_strdup(size_key(suffix, d->name).c_str()),
                              static_cast<long long>(walk.size));
    });
    free_str2str_map(instantiated, 1);
    if (is_top_itself(type, backdoor)) {
        brix_emit(L().backdoor_banner);
        for_each_component<brix_system_domain_tag>(
            type->domains, [&](const brix_system_domain_tag*, const brix_list_tag* c) {
                if (c->tag == BRIX_BLOCK) {
                    emit_block_backdoor_instantiations(static_cast<brix_block_tag*>(c->data));
                } else {
                    emit_system_backdoor_instantiations(static_cast<brix_system_tag*>(c->data));
                }
            });
    }
    emit_container_ctor_tail<brix_system_domain_tag>(type);
}

} // namespace

int already_emitted_register(const brix_register_type_tag* type) {
    return in_map(all_registers, suffix_of(type)) ? 1 : 0;
}

void emit_constraints(const brix_constraint_tag* list) {
    for (const brix_constraint_tag* c = list; c != nullptr; c = c->next) {
        if (c->body == nullptr) {
            brix_emit(L().constraint_decl, c->name);
            continue;
        }
        brix_emit(L().constraint_head, c->name);
        emit_constraint_body(c->body);
        brix_emit(L().constraint_tail);
    }
    brix_emit("\n");
}

void emit_register(const brix_register_tag* reg) {
    const brix_register_type_tag* t = reg->type;
    const std::string suffix = suffix_of(t);
    const bool bits_cov = can_cvr_register_bits(t) != 0;
    const bool fldval_cov = can_cvr_register_field_val(t) != 0;
    if (bits_cov) {
        brix_emit(L().reg_cvr_typedef, suffix);
    }
    brix_enum_table enums;
    emit_register_enum_classes(t, enums);
    brix_emit(L().reg_class_head, suffix);
    for_each_real_field(t->fields, [&](const brix_field_tag* f) {
        brix_emit(is_read_only(f) ? L().reg_field_decl : L().reg_rand_field_decl, f->name);
    });
    brix_emit("\n");
    if (bits_cov) {
        brix_emit(L().reg_bits_member, suffix);
    }
    if (fldval_cov) {
        brix_emit(L().reg_fldval_group_head);
        emit_reg_fldval_cvr_n_cross_pnts(t, 2, enums);
        brix_emit(L().reg_fldval_group_tail);
    }
    if (t->constraints != nullptr) {
        emit_constraints(t->constraints);
    }
    emit_field_constraints(t->fields);
    emit_user_defined_constraint();
    brix_emit(L().reg_ctor_head);
    brix_emit(L().reg_super_new, t->bytes * 8, get_cvr_expr(t->cvr_used));
    if (fldval_cov) {
        brix_emit(L().reg_fldval_new);
    }
    const brix_field_layout layout = place_fields(t->fields, t->left_to_right);
    size_t i = 0;
    for_each_field(t->fields, [&](const brix_field_tag* f) {
        const long long lsb = layout.lsb[i++];
        if (!is_real_field(f)) {
            return;
        }
        const brix_field_type_tag* ft = f->type;
        std::array<char, 32> hard;
        std::array<char, 32> soft;
        brix_emit(L().reg_field_new, f->name, f->name, static_cast<int>(ft->bits),
                  access_constant(ft->access), reset_text(ft->hard_reset, "'h0", ft->bits, hard),
                  reset_text(ft->soft_reset, "'hx", ft->bits, soft), static_cast<int>(lsb),
                  is_constrained(f, t));
    });
    emit_attributes(t->attributes);
    emit_add_constraints(t->constraints);
    for_each_field(t->fields, [&](const brix_field_tag* f) {
        for (const brix_constraint_tag* c = f->type->constraints; c != nullptr; c = c->next) {
            brix_emit(L().add_field_constraint, f->name, c->name);
        }
    });
    emit_add_user_defined_constraint();
    brix_emit(L().reg_ctor_tail);
    if (bits_cov) {
        brix_emit("%s", L().reg_bits_methods[0]);
        brix_emit(L().reg_bits_methods[1], suffix);
        brix_emit("%s", L().reg_bits_methods[2]);
    }
    brix_emit(L().reg_class_tail, suffix);
    if (bits_cov) {
        brix_emit("\n");
        emit_reg_bits_cvr_class(t);
    }
    note_emitted(all_registers, suffix);
    brix_emit("\n\n");
}

void emit_block_components(brix_block_type_tag* type, bool backdoor) {
    for_each_component<brix_block_domain_tag>(
        type->domains, [&](const brix_block_domain_tag* d, const brix_list_tag* c) {
            switch (c->tag) {
            case BRIX_REGISTER: {
                const auto* r = static_cast<const brix_register_tag*>(c->data);
                if (backdoor) {
                    emit_register_backdoor(r);
                }
                if (!already_emitted_register(r->type)) {
                    emit_register(r);
                }
                return;
            }
            case BRIX_VREGISTER: {
                const auto* v = static_cast<const brix_vregister_tag*>(c->data);
                if (!in_map(all_vregisters, suffix_of(v->type))) {
                    emit_vregister_class(v->type);
                }
                return;
            }
            case BRIX_REGFILE: {
                const auto* f = static_cast<const brix_regfile_tag*>(c->data);
                if (backdoor) {
                    emit_regfile_backdoor(f);
                }
                if (!in_map(all_regfiles, suffix_of(f->type))) {
                    emit_regfile_class(f->type, static_cast<uint64_t>(d->bytes));
                }
                return;
            }
            case BRIX_MEMORY: {
                const auto* m = static_cast<const brix_memory_tag*>(c->data);
                if (backdoor) {
                    emit_memory_backdoor(m);
                }
                if (!in_map(all_memories, suffix_of(m->type))) {
                    emit_memory_class(m->type);
                }
                return;
            }
            default:
                brix_error("Error: Invalid component found in BRIX Block '%s'...", type->name);
            }
        });
}

void emit_block_itself(brix_block_type_tag* type, bool backdoor) {
    name_counts names;
    const std::string suffix = suffix_of(type);
    const bool addr_map = can_cvr_block_addr_map(type, nullptr) != 0;
    if (addr_map) {
        emit_block_cvr_class(type, 0);
    }
    brix_emit(L().block_class_head, suffix);
    emit_block_member_decls(type, names);
    emit_block_alias_decls(type, names);
    brix_emit("\n");
    if (addr_map) {
        brix_emit(L().addr_map_member, suffix);
    }
    emit_domain_constraints<brix_block_domain_tag>(type->domains);
    emit_block_constructor(type, names, backdoor);
    if (can_cvr_block_field_val(type)) {
        emit_block_field_value_sample_method(type);
    }
    brix_emit(L().block_class_tail, suffix);
    note_emitted(all_blocks, suffix);
    brix_emit("\n\n");
}

void emit_system_components(brix_system_type_tag* type, bool backdoor) {
    for_each_component<brix_system_domain_tag>(
        type->domains, [&](const brix_system_domain_tag*, const brix_list_tag* c) {
            if (c->tag == BRIX_BLOCK) {
                auto* b = static_cast<brix_block_tag*>(c->data);
                if (backdoor) {
                    emit_block_backdoor(b);
                }
                if (!in_map(all_blocks, suffix_of(b->type))) {
                    emit_block_components(b->type, false);
                    emit_block_itself(b->type, false);
                }
            } else if (c->tag == BRIX_SYSTEM) {
                auto* s = static_cast<brix_system_tag*>(c->data);
                if (backdoor) {
                    emit_system_backdoor(s);
                }
                if (!in_map(all_systems, suffix_of(s->type))) {
                    emit_system_components(s->type, false);
                    emit_system_itself(s->type, false);
                }
            } else {
                brix_error("Error: Invalid System Component found.\n");
            }
        });
}

void emit_system_itself(brix_system_type_tag* type, bool backdoor) {
    const std::string suffix = suffix_of(type);
    brix_emit(L().sys_class_head, suffix);
    brix_str2str_map names;
    initialize_str2str_map(names);
    for_each_component<brix_system_domain_tag>(type->domains, [&](const brix_system_domain_tag*,
                                                                  const brix_list_tag* c) {
        if (c->tag != BRIX_BLOCK && c->tag != BRIX_SYSTEM) {
            brix_error("Error - Invalid System Component.\n");
        }
        const system_component comp = describe(c);
        const char* known = get_str2str_map_value(names, comp.name);
        if (known != nullptr) {
            if (comp.class_key != known) {
                brix_error("Error: Multiple components with same name found inside system "
                           "'%s'.\n",
                           type->name);
            }
            return;
        }
        add_str2str_map_entry(names, brix_strdup(comp.name), brix_strdup(comp.class_key.c_str()));
        const bool block = c->tag == BRIX_BLOCK;
        if (is_array(comp.array_size)) {
            brix_emit(block ? L().sys_block_array_decl : L().sys_sys_array_decl, comp.suffix,
                      comp.name, comp.array_size);
        } else {
            brix_emit(block ? L().sys_block_decl : L().sys_sys_decl, comp.suffix, comp.name);
        }
    });
    free_str2str_map(names, 1);
    brix_emit("\n");
    emit_domain_constraints<brix_system_domain_tag>(type->domains);
    emit_system_constructor(type, backdoor);
    brix_emit(L().sys_class_tail, suffix);
    note_emitted(all_systems, suffix);
    brix_emit("\n\n");
}

std::string brix_model_file_name(const char* top, const brix_gen_templates& lang) {
    return (ofile != nullptr ? std::string(ofile) : std::string("brx_") + top) + lang.file_suffix;
}

void emit_brx_model(const char* top, const brix_gen_templates& lang) {
    brix_lang = &lang;
    brix_cvr_lang = lang.cvr;
    brix_bkdr_lang = lang.bkdr;
    brix_top = top;
    strlen_top = static_cast<uint32_t>(strlen(top));
    const brix_symrec* sym = lookup_design_top(top);
    for (brix_str2int_map* map : run_maps) {
        initialize_str2int_map(*map);
    }
    brix_largest_register_bytes = 0;
    brix_largest_memory_bits = 0;
    brix_largest_vregister_bytes = 0;
    brix_largest_vregister_incr = 0;
    uc_top = brix_strdup(upper(top).c_str());
    const std::string file_name = brix_model_file_name(top, lang);
    brx_model_fp = brix_open_output(file_name);
    if (brx_model_fp == nullptr) {
        brix_error("Error: Failed to open output file '%s' for writing...", file_name);
    }
    if (brix_gen_backdoor && lang.backdoor_file_head != nullptr) {
        lang.backdoor_file_head();
    } else {
        brix_emit(lang.file_head, uc_top, uc_top);
    }
    const bool backdoor = brix_gen_backdoor != 0;
    if (sym->kind == BRIX_BLOCK_TYPE) {
        auto* type = static_cast<brix_block_type_tag*>(sym->data);
        emit_block_components(type, backdoor);
        emit_block_itself(type, backdoor);
    } else {
        auto* type = static_cast<brix_system_type_tag*>(sym->data);
        emit_system_components(type, backdoor);
        emit_system_itself(type, backdoor);
    }
    brix_emit(lang.file_tail);
    if (brix_gen_backdoor) {
        if (lang.backdoor_file_tail != nullptr) {
            lang.backdoor_file_tail();
        }
        emit_vhdl_bkdr_connection_module(top);
    }
    // In the trackers' own width: a product past 32 bits wraps.
    const uint32_t width =
        std::max({brix_largest_register_bytes * 8u, brix_largest_memory_bits,
                  brix_largest_vregister_bytes * 8u, brix_largest_vregister_incr * 8u});
    if (width > 64) {
        brix_warn(lang.width_warning, static_cast<int>(width));
    }
    brix_free(uc_top);
    uc_top = nullptr;
    brix_close_output(brx_model_fp);
    for (brix_str2int_map* map : run_maps) {
        free_str2int_map(*map);
    }
}
