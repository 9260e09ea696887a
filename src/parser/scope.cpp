#include "parser/scope.hpp"

#include <algorithm>
#include <array>
#include <cstring>
#include <deque>

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
// The keyword symbols by the first character of their word. Every lookup that finds no
// symbol of the scope asks here, mostly for a name that is no keyword: the first two
// characters tell most of those apart without a call.
std::array<std::vector<brix_symrec*>, 256>& keywords_by_first() {
    static std::array<std::vector<brix_symrec*>, 256> table;
    return table;
}

brix_symrec* keyword_symbol(const char* name) {
    for (brix_symrec* sym : keywords_by_first()[static_cast<unsigned char>(name[0])]) {
        if (sym->name[1] == name[1] && std::strcmp(sym->name, name) == 0) {
            return sym;
        }
    }
    return nullptr;
}

brix_scope& global_storage() {
    static brix_scope global;
    return global;
}
// The open child scopes, innermost last, and their symbols, in order of insertion. The
// records below the counts are in use; those above wait for reuse, as a stack that rises
// and falls with each field would otherwise take and give back memory every time. It all
// goes back when the parser returns to the global scope. A deque keeps every record in
// place as it grows.
struct open_stacks {
    std::deque<brix_scope> scopes;
    std::size_t scope_count = 0;
    std::deque<brix_symrec> symbols;
    std::size_t symbol_count = 0;
};

open_stacks& stacks() {
    static open_stacks s;
    return s;
}

brix_symrec*& bucket_head(brix_scope* scope, unsigned bucket) {
    for (auto& [b, head] : scope->bucket_heads) {
        if (b == bucket) {
            return head;
        }
    }
    return scope->bucket_heads.emplace_back(static_cast<unsigned char>(bucket), nullptr).second;
}

// Links a symbol of the global scope at the head of its bucket.
void link_symbol(brix_scope* scope, brix_symrec* sym) {
    brix_symrec*& head = bucket_head(scope, brix_symbol_hash(sym->name));
    sym->next = head;
    head = sym;
}

// Past this many symbols a scope keeps an index instead of walking its symbols.
constexpr unsigned indexed_scope_size = 16;

brix_symrec* newest_in_chains(const brix_scope* scope, const char* name) {
    for (brix_symrec* sym = scope_bucket_head(scope, brix_symbol_hash(name)); sym != nullptr;
         sym = sym->next) {
        if (std::strcmp(sym->name, name) == 0) {
            return sym;
        }
    }
    return nullptr;
}

brix_symrec* newest_on_stack(const brix_scope* scope, const char* name) {
    auto& s = stacks();
    for (std::size_t i = s.symbol_count; i-- > scope->first_symbol;) {
        brix_symrec& sym = s.symbols[i];
        if (sym.name[0] == name[0] && std::strcmp(sym.name, name) == 0) {
            return &sym;
        }
    }
    return nullptr;
}

brix_symrec* own_symbol(const brix_scope* scope, const char* name) {
    if (scope->symbol_count >= indexed_scope_size) {
        return scope->newest.find(name);
    }
    return scope == global_scope ? newest_in_chains(scope, name) : newest_on_stack(scope, name);
}

brix_symrec* lookup_in(const brix_scope* scope, const char* name) {
    if (brix_symrec* sym = own_symbol(scope, name)) {
        return sym;
    }
    return keyword_symbol(name);
}

// Every symbol of the scope but the keywords, oldest first.
std::vector<brix_symrec*> symbols_of(brix_scope* scope) {
    std::vector<brix_symrec*> symbols;
    if (scope != global_scope) {
        auto& s = stacks();
        for (std::size_t i = scope->first_symbol; i < s.symbol_count; ++i) {
            symbols.push_back(&s.symbols[i]);
        }
        return symbols;
    }
    for (const auto& [bucket, head] : scope->bucket_heads) {
        for (brix_symrec* s = head; s != nullptr; s = s->next) {
            if (s->kind != BRIX_KEYWORD) {
                symbols.push_back(s);
            }
        }
    }
    std::reverse(symbols.begin(), symbols.end());
    return symbols;
}

brix_scope* push_scope(brix_scope* parent) {
    auto& s = stacks();
    if (s.scope_count == s.scopes.size()) {
        s.scopes.emplace_back();
    }
    brix_scope& scope = s.scopes[s.scope_count++];
    scope.parent = parent;
    scope.first_symbol = s.symbol_count;
    return &scope;
}

// Leaves a closed scope's record as a new one, but for the room its members hold.
void reset(brix_scope& scope) {
    scope.name = nullptr;
    scope.symbol_count = 0;
    scope.newest.clear();
    scope.own_name.clear();
    scope.lasting_name = nullptr;
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
    stacks() = open_stacks{};
    global_scope = &global_storage();
    *global_scope = brix_scope{};
    for (auto& keywords : keywords_by_first()) {
        keywords.clear();
    }
    for (int i = 0; i < BRIX_NUM_KEYWORDS; ++i) {
        auto* sym = new (brix_new_record<brix_symrec>())
            brix_symrec{brix_strdup(brix_keywords[i]), BRIX_KEYWORD, nullptr, nullptr};
        symrecs_for_keywords[i] = sym;
        keywords_by_first()[static_cast<unsigned char>(sym->name[0])].push_back(sym);
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
    brix_scope* scope = push_scope(parent);
    scope->name = name;
    return scope;
}

brix_scope* create_child_scope(brix_scope* parent, std::string&& name) {
    brix_scope* scope = push_scope(parent);
    scope->own_name = std::move(name);
    scope->name = scope->own_name.c_str();
    return scope;
}

char* lasting_scope_name(brix_scope* scope) {
    if (scope->name == nullptr) {
        return nullptr;
    }
    if (scope->lasting_name == nullptr) {
        scope->lasting_name = brix_arena_strdup(scope->name);
    }
    return scope->lasting_name;
}

void switch_to_scope(brix_scope* scope) {
    current_scope = scope;
}

void close_scope() {
    brix_scope* closed = current_scope;
    current_scope = closed->parent;
    if (closed == global_scope) {
        return;
    }
    auto& s = stacks();
    s.symbol_count = closed->first_symbol;
    reset(*closed);
    if (--s.scope_count == 0) {
        s = open_stacks{};
    }
}

brix_symrec* create_and_insert_symrec(brix_scope* scope, char* name, int kind, void* data) {
    brix_symrec* sym = nullptr;
    if (scope == global_scope) {
        sym = new (brix_new_record<brix_symrec>()) brix_symrec{name, kind, data, nullptr};
        link_symbol(scope, sym);
    } else {
        auto& s = stacks();
        if (s.symbol_count == s.symbols.size()) {
            s.symbols.emplace_back();
        }
        sym = &s.symbols[s.symbol_count++];
        *sym = brix_symrec{name, kind, data, nullptr};
    }
    if (++scope->symbol_count == indexed_scope_size) {
        // Oldest first, so that the newest of each name stays.
        for (brix_symrec* s : symbols_of(scope)) {
            scope->newest.assign(s);
        }
    } else if (scope->symbol_count > indexed_scope_size) {
        scope->newest.assign(sym);
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
