#include "parser/scope.hpp"

#include <cstring>

#include "parser/parse_state.hpp"

const char* const brix_keywords[BRIX_NUM_KEYWORDS] = {
    "field",         "register", "virtual", "regfile", "memory",     "block",      "system",
    "domain",        "bits",     "access",  "reset",   "hard_reset", "soft_reset", "bytes",
    "left_to_right", "noise",    "size",    "initial", "endian",     "constraint", "doc",
    "shared",        "enum",     "cover",   "cross",   "vhdl_path"};
brix_symrec* symrecs_for_keywords[BRIX_NUM_KEYWORDS] = {};
brix_scope* current_scope = nullptr;
brix_scope* global_scope = nullptr;

namespace {
std::unordered_map<std::string_view, brix_symrec*>& keyword_index() {
    static std::unordered_map<std::string_view, brix_symrec*> index;
    return index;
}

brix_scope* new_scope(const char* name) {
    auto* scope = new (brix_new_record<brix_scope>()) brix_scope{};
    scope->name = name;
    return scope;
}

brix_symrec*& bucket_head(brix_scope* scope, unsigned bucket) {
    for (auto& [b, head] : scope->bucket_heads) {
        if (b == bucket) {
            return head;
        }
    }
    if (scope->bucket_heads.empty()) {
        scope->bucket_heads.reserve(4); // a register's fields, without regrowing
    }
    return scope->bucket_heads.emplace_back(static_cast<unsigned char>(bucket), nullptr).second;
}

// Links a symbol at the head of its bucket.
void link_symbol(brix_scope* scope, brix_symrec* sym) {
    brix_symrec*& head = bucket_head(scope, brix_symbol_hash(sym->name));
    sym->next = head;
    head = sym;
}

// Past this many symbols a scope keeps an index instead of walking its chains.
constexpr unsigned indexed_scope_size = 16;

brix_symrec* own_symbol(const brix_scope* scope, const char* name) {
    if (scope->newest != nullptr) {
        const auto it = scope->newest->find(name);
        return it == scope->newest->end() ? nullptr : it->second;
    }
    for (brix_symrec* sym = scope_bucket_head(scope, brix_symbol_hash(name)); sym != nullptr;
         sym = sym->next) {
        if (std::strcmp(sym->name, name) == 0) {
            return sym;
        }
    }
    return nullptr;
}

brix_symrec* lookup_in(const brix_scope* scope, const char* name) {
    if (brix_symrec* sym = own_symbol(scope, name)) {
        return sym;
    }
    const auto& keywords = keyword_index();
    const auto it = keywords.find(name);
    return it == keywords.end() ? nullptr : it->second;
}

} // namespace

unsigned brix_symbol_hash(const char* name) {
    // The sum wraps as a 32-bit word would; only its low 8 bits count.
    uint32_t sum = 0;
    for (const char* p = name; *p != '\0'; ++p) {
        const int32_t c = static_cast<signed char>(*p);
        sum += static_cast<uint32_t>(c * c);
    }
    return (sum & 0xFFU) % BRIX_SCOPE_BUCKETS;
}

void initialize() {
    global_scope = new_scope(nullptr);
    keyword_index().clear();
    for (int i = 0; i < BRIX_NUM_KEYWORDS; ++i) {
        auto* sym = new (brix_new_record<brix_symrec>())
            brix_symrec{brix_strdup(brix_keywords[i]), BRIX_KEYWORD, nullptr, nullptr};
        symrecs_for_keywords[i] = sym;
        keyword_index().emplace(sym->name, sym);
        link_symbol(global_scope, sym);
    }
    current_scope = global_scope;
    reset_parse_state();
}

brix_symrec* scope_bucket_head(const brix_scope* scope, unsigned bucket) {
    for (const auto& [b, head] : scope->bucket_heads) {
        if (b == bucket) {
            return head;
        }
    }
    return nullptr;
}

brix_scope* create_child_scope(brix_scope* parent, const char* name) {
    // Nothing can reach a closed scope that holds nothing (most fields' scopes): the next
    // sibling takes its place instead of adding to the memory of every field.
    if (brix_scope* last = parent->last_child; last != nullptr && last->closed &&
                                               last->symbol_count == 0 &&
                                               last->first_child == nullptr) {
        last->name = name;
        last->closed = false;
        return last;
    }
    brix_scope* scope = new_scope(name);
    scope->parent = parent;
    if (parent->last_child == nullptr) {
        parent->first_child = scope;
    } else {
        parent->last_child->next_sibling = scope;
    }
    parent->last_child = scope;
    return scope;
}

void switch_to_scope(brix_scope* scope) {
    current_scope = scope;
}

void close_scope() {
    current_scope->closed = true;
    current_scope = current_scope->parent;
}

brix_symrec* create_and_insert_symrec(brix_scope* scope, char* name, int kind, void* data) {
    auto* sym = new (brix_new_record<brix_symrec>()) brix_symrec{name, kind, data, nullptr};
    link_symbol(scope, sym);
    if (++scope->symbol_count == indexed_scope_size) {
        // Oldest first, so that the newest of each name stays.
        scope->newest = std::make_unique<std::unordered_map<std::string_view, brix_symrec*>>();
        std::vector<brix_symrec*> symbols;
        for (const auto& [bucket, head] : scope->bucket_heads) {
            for (brix_symrec* s = head; s != nullptr; s = s->next) {
                if (s->kind != BRIX_KEYWORD) {
                    symbols.push_back(s);
                }
            }
        }
        for (auto it = symbols.rbegin(); it != symbols.rend(); ++it) {
            (*scope->newest)[(*it)->name] = *it;
        }
    } else if (scope->newest != nullptr) {
        (*scope->newest)[sym->name] = sym;
    }
    return sym;
}

brix_symrec* lookup_local_symbol(const char* name) {
    return lookup_in(current_scope, name);
}

brix_symrec* lookup_global_symbol(const char* name) {
    return lookup_in(global_scope, name);
}

namespace {
// Whether the global definition of that name has a domain of that name; the unnamed
// default domain matches no name.
template <class Type, class Domain>
int has_named_domain(const char* type_name, const char* domain_name) {
    const brix_symrec* sym = lookup_global_symbol(type_name);
    if (sym == nullptr) {
        return 0;
    }
    const auto* type = static_cast<const Type*>(sym->data);
    for (const brix_list_tag* n = type->domains; n != nullptr; n = n->next) {
        const auto* domain = static_cast<const Domain*>(n->data);
        if (domain->name != nullptr && std::strcmp(domain->name, domain_name) == 0) {
            return 1;
        }
    }
    return 0;
}
} // namespace

int exists_block_domain(const char* block_type_name, const char* domain_name) {
    return has_named_domain<brix_block_type_tag, brix_block_domain_tag>(block_type_name,
                                                                        domain_name);
}

int exists_system_domain(const char* system_type_name, const char* domain_name) {
    return has_named_domain<brix_system_type_tag, brix_system_domain_tag>(system_type_name,
                                                                          domain_name);
}

void destroy_scope() {}
