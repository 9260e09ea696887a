// Scopes and symbols.
//
// The global scope lives as long as the model: what follows the parser looks up its
// symbols and walks its chains. A child scope serves only while the parser is inside its
// definition, and scopes open and close nested: the open child scopes and their symbols
// are kept as two stacks, and closing a scope gives its memory back, so that the symbols
// of a big description cost nothing once their definitions are read.
#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "parser/model.hpp"

constexpr int BRIX_SCOPE_BUCKETS = 109;
constexpr int BRIX_NUM_KEYWORDS = 26;

struct brix_symrec {
    char* name;
    int32_t kind;      // a brix_type
    void* data;        // the record; null for a domain name and a keyword
    brix_symrec* next; // next older symbol of the bucket, in the global scope
};

struct brix_scope {
    const char* name = nullptr; // null for the global scope
    brix_scope* parent = nullptr;
    // The global scope's symbols: heads of its bucket chains, newest first, one entry per
    // bucket in use. The keywords, shared by every scope, are chained here once.
    std::vector<std::pair<unsigned char, brix_symrec*>> bucket_heads;
    // A child scope's symbols: the stack of open scopes' symbols from this place on.
    std::size_t first_symbol = 0;
    unsigned symbol_count = 0;
    // Newest symbol of each name, made once the scope holds more symbols than a walk
    // should pass. The shared keyword symbols are found through their own table.
    brix_key_index<brix_symrec, &brix_symrec::name> newest;
    std::string own_name;         // the name of a definition's scope, while it is open
    char* lasting_name = nullptr; // a copy of the name for the records, once one asks
};

extern const char* const brix_keywords[BRIX_NUM_KEYWORDS];
extern brix_symrec* symrecs_for_keywords[BRIX_NUM_KEYWORDS];
extern brix_scope* current_scope;
extern brix_scope* global_scope;

// Bucket of a name: sum of squares of the signed characters, low 8 bits, modulo 109.
unsigned brix_symbol_hash(const char* name);

// Sets up the global scope with the keywords, forgets every child scope and resets the
// parser's state.
void initialize();
// Opens a scope inside `parent`, the innermost open scope. It keeps `name` itself, which
// must live while the scope is open; a definition's composed name can be given over
// instead.
brix_scope* create_child_scope(brix_scope* parent, const char* name);
brix_scope* create_child_scope(brix_scope* parent, std::string&& name);
// The name of a scope as a string that lives as long as the model.
char* lasting_scope_name(brix_scope* scope);
// The newest of the global scope's symbols in a bucket, whose `next` leads to older ones.
brix_symrec* scope_bucket_head(const brix_scope* scope, unsigned bucket);
void switch_to_scope(brix_scope* scope);
// Leaves the current scope, the innermost open one, for its parent, and forgets it with
// its symbols.
void close_scope();
// `scope` is the global scope or the innermost open one.
brix_symrec* create_and_insert_symrec(brix_scope* scope, char* name, int kind, void* data);
brix_symrec* lookup_local_symbol(const char* name);
brix_symrec* lookup_global_symbol(const char* name);
int exists_block_domain(const char* block_type_name, const char* domain_name);
int exists_system_domain(const char* system_type_name, const char* domain_name);
void destroy_scope();
