// Small helpers shared by the files of grammar actions.
#pragma once

#include <cstring>
#include <initializer_list>

#include "parser/model.hpp"
#include "parser/scope.hpp"

inline constexpr const char* MULTIPLE_DEFINITION =
    "Error: Multiple definition of symbol '%s' in same scope.";
inline constexpr const char* ALREADY_DEFINED =
    "Error: Symbol '%s' already defined in the current scope.";
inline constexpr const char* REGISTER_LEFT_TO_RIGHT =
    "Error: First field (%s) of a left_to_right register (%s) cannot have bit-offset specified.";
inline constexpr const char* VREGISTER_LEFT_TO_RIGHT =
    "Error: First field (%s) of a left_to_right vregister (%s) cannot have bit-offset "
    "specified.";

inline bool is_one_of(const char* word, std::initializer_list<const char*> words) {
    for (const char* w : words) {
        if (std::strcmp(word, w) == 0) {
            return true;
        }
    }
    return false;
}

inline const char* either(const char* name, const char* fallback) {
    return name != nullptr ? name : fallback;
}

inline int32_t decimal(const char* text) {
    return static_cast<int32_t>(brix_str_to_dec(10, text));
}

inline void refuse_defined_here(const char* name, const char* message) {
    if (lookup_local_symbol(name) != nullptr) {
        brix_yyerror(message, name);
    }
}

inline void append_node(brix_list_tag*& head, int tag, void* data) {
    if (head == nullptr) {
        head = create_brix_list_node(tag, data);
    } else {
        add_to_brix_list_end(head, tag, data);
    }
}

inline brix_symrec* global_symbol_of_kind(const char* name, int kind) {
    brix_symrec* sym = lookup_global_symbol(name);
    return sym != nullptr && sym->kind == kind ? sym : nullptr;
}

inline void set_cvr_used_if_null(brix_cvr_spec_tag*& used) {
    if (used == nullptr) {
        used = new_all_unsaid_cvr_spec();
    }
}

// The bytes check: the smallest whole number of bytes that holds the fields, offsets
// counted; a type without `bytes` takes that number. The sums wrap rather than overflow,
// so that absurd widths and offsets give a wrong answer, never undefined behaviour.
template <class Type> bool valid_bytes(Type* type) {
    int32_t used = 0;
    for (const brix_list_tag* n = type->fields; n != nullptr; n = n->next) {
        const auto* field = static_cast<const brix_field_tag*>(n->data);
        if (field->offset != nullptr) {
            const auto end = static_cast<int64_t>(to_dec(field->offset) + field->type->bits);
            if (end > used) {
                used = static_cast<int32_t>(end);
            }
        } else {
            used = static_cast<int32_t>(static_cast<uint32_t>(used) + field->type->bits);
        }
    }
    const int32_t needed = used / 8 + (used % 8 != 0 ? 1 : 0);
    if (type->bytes == -1) {
        type->bytes = needed;
        return true;
    }
    return type->bytes >= needed;
}

template <class Type> void check_left_to_right_first_field(const Type* type, const char* message) {
    if (type->left_to_right != 1 || type->fields == nullptr) {
        return;
    }
    const auto* first = static_cast<const brix_field_tag*>(type->fields->data);
    if (first->offset != nullptr) {
        brix_yyerror(message, first->name, type->name);
    }
}

// A second instance of one name is allowed for a shared register or memory placed again
// under the same definition.
template <class Instance>
bool shared_instance_allowed(const brix_symrec* existing, int kind, int8_t new_type_shared,
                             const char* new_type_name) {
    if (existing->kind != kind || new_type_shared != 1) {
        return false;
    }
    const auto* other = static_cast<const Instance*>(existing->data);
    return other->type != nullptr && other->type->is_shared == 1 &&
           std::strcmp(other->type->name, new_type_name) == 0;
}

// The one copy of a shared definition per block, or a copy of the definition's own.
template <class Type>
Type* resolve_instance_type(Type* definition, brix_str2voidptr_map* shared_copies,
                            Type* (*copier)(const Type*)) {
    if (definition->is_shared != 1 || shared_copies == nullptr) {
        return copier(definition);
    }
    if (void* hit = get_str2voidptr_map_value(*shared_copies, definition->name)) {
        return static_cast<Type*>(hit);
    }
    Type* copy = copier(definition);
    add_str2voidptr_map_entry(*shared_copies, brix_strdup(definition->name), copy);
    return copy;
}

// The scope prefix of an inline definition: the name of the scope it stands in, one copy
// shared by every definition there.
inline char* current_scope_prefix() {
    return lasting_scope_name(current_scope);
}
