// Small readings of the model shared by the class writers and the coverage writers.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <strings.h>
#include <type_traits>

#include "gen_model/gen_model.hpp"
#include "parser/model.hpp"

namespace brix_gen {

inline bool is_named(const char* text, const char* word) {
    return text != nullptr && strcmp(text, word) == 0;
}

// Fields called "unused" or "reserved" exist only as bits.
inline bool is_real_field(const brix_field_tag* f) {
    return !is_named(f->name, "unused") && !is_named(f->name, "reserved");
}

// The access word of a field compared ignoring case; a field without one has none.
inline bool has_access(const brix_field_tag* f, const char* word) {
    return f->type->access != nullptr && strcasecmp(f->type->access, word) == 0;
}

inline bool is_read_only(const brix_field_tag* f) {
    return has_access(f, "ro");
}

inline const char* rand_prefix(const brix_field_tag* f) {
    return is_read_only(f) ? "" : "rand ";
}

inline bool is_array(int32_t array_size) {
    return array_size >= 2;
}

template <class Type> std::string suffix_of(const Type* t) {
    return brix_class_suffix(t->scope_prefix, t->name);
}

inline void raise(uint32_t& tracker, uint64_t value) {
    tracker = static_cast<uint32_t>(std::max<uint64_t>(tracker, value));
}

// Sums of positions and values that absurd descriptions can push past the range wrap
// instead of overflowing.
inline long long wrapping_add(long long a, long long b) {
    return static_cast<long long>(static_cast<unsigned long long>(a) +
                                  static_cast<unsigned long long>(b));
}

// The value of the next name of an enum: its written value read as a decimal number, else
// one more than the previous.
inline long long next_enum_value(const char* written, long long previous) {
    if (written != nullptr) {
        return strtol(written, nullptr, 10);
    }
    return wrapping_add(previous, 1);
}

inline uint64_t increment_or(const char* increment, uint64_t fallback) {
    return increment != nullptr ? to_dec(increment) : fallback;
}

template <class F> void for_each_field(const brix_list_tag* fields, F f) {
    for (const brix_list_tag* n = fields; n != nullptr; n = n->next) {
        f(static_cast<const brix_field_tag*>(n->data));
    }
}

template <class F> void for_each_real_field(const brix_list_tag* fields, F f) {
    for_each_field(fields, [&](const brix_field_tag* field) {
        if (is_real_field(field)) {
            f(field);
        }
    });
}

template <class Domain, class F> void for_each_domain(const brix_list_tag* domains, F f) {
    for (const brix_list_tag* n = domains; n != nullptr; n = n->next) {
        f(static_cast<Domain*>(n->data));
    }
}

template <class Domain, class F> void for_each_component(const brix_list_tag* domains, F f) {
    for_each_domain<Domain>(domains, [&](Domain* d) {
        for (const brix_list_tag* c = d->components; c != nullptr; c = c->next) {
            f(d, c);
        }
    });
}

// The key of a domain's size: the class suffix, and the domain's name when it has one.
inline std::string size_key(const std::string& suffix, const char* domain) {
    return domain != nullptr ? suffix + " " + domain : suffix;
}

// The domain of its type that a block or system instance stands for: the type's unnamed
// domain, else the one the instance names. The grammar makes an instance of a type with
// several domains name one; an instance that still finds none stops the run.
template <class Domain>
const Domain& instance_domain(const brix_list_tag* type_domains, const char* type_name,
                              const char* domain) {
    for (const brix_list_tag* n = type_domains; n != nullptr; n = n->next) {
        const auto* d = static_cast<const Domain*>(n->data);
        if (d->name == nullptr || (domain != nullptr && strcmp(d->name, domain) == 0)) {
            return *d;
        }
    }
    brix_error(std::is_same_v<Domain, brix_block_domain_tag>
                   ? "Fatal Internal Error: Invalid block '%s' (domain '%s') found.\n"
                   : "Fatal Internal Error: Invalid system '%s' (domain '%s') found.\n",
               type_name, domain != nullptr ? domain : "");
}

inline int count_nodes(const brix_list_tag* list) {
    int n = 0;
    for (; list != nullptr; list = list->next) {
        ++n;
    }
    return n;
}

} // namespace brix_gen
