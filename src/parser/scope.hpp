// Scopes and symbols: a tree of hash tables, one per definition with a body.
#pragma once

#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "parser/model.hpp"

constexpr int BRIX_SCOPE_BUCKETS = 109;
constexpr int BRIX_NUM_KEYWORDS = 26;

struct brix_symrec {
    char* name;
    int32_t kind; // a brix_type
    void* data;   // the record; null for a domain name and a keyword
    brix_symrec* next;
};

struct brix_scope {
    const char* name; // null for the global scope; kept, not copied
    // Heads of the bucket chains that hold this scope's own symbols, newest first, one
    // entry per bucket in use: most scopes (a field's) hold no symbol, so storage grows
    // with the symbols. The keywords, shared by every scope, are chained once, in the
    // global scope.
    std::vector<std::pair<unsigned char, brix_symrec*>> bucket_heads;
    brix_scope* first_child;
    brix_scope* next_sibling;
    brix_scope* parent;
    brix_scope* last_child; // tail of the children, for appending
    // Newest symbol of each name, made once the scope holds more symbols than a walk of
    // its chains should pass: with only 109 buckets the chains of a big block grow with
    // the description. The shared keyword symbols are found through their own table.
    std::unique_ptr<std::unordered_map<std::string_view, brix_symrec*>> newest;
    unsigned symbol_count;
    bool closed; // left by the parser; an empty one is reused for its next sibling
};

extern const char* const brix_keywords[BRIX_NUM_KEYWORDS];
extern brix_symrec* symrecs_for_keywords[BRIX_NUM_KEYWORDS];
extern brix_scope* current_scope;
extern brix_scope* global_scope;

// Bucket of a name: sum of squares of the signed characters, low 8 bits, modulo 109.
unsigned brix_symbol_hash(const char* name);

// Sets up the global scope with the keywords and resets the parser's state.
void initialize();
// The scope keeps `name` itself: it must live as long as the model.
brix_scope* create_child_scope(brix_scope* parent, const char* name);
// The newest of the scope's own symbols in a bucket, whose `next` leads to older ones.
brix_symrec* scope_bucket_head(const brix_scope* scope, unsigned bucket);
void switch_to_scope(brix_scope* scope);
// Leaves the current scope for its parent.
void close_scope();
brix_symrec* create_and_insert_symrec(brix_scope* scope, char* name, int kind, void* data);
brix_symrec* lookup_local_symbol(const char* name);
brix_symrec* lookup_global_symbol(const char* name);
int exists_block_domain(const char* block_type_name, const char* domain_name);
int exists_system_domain(const char* system_type_name, const char* domain_name);
void destroy_scope();
