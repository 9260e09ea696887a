// The state of one generation run and small readings of the model, shared by the model
// walk and the coverage, backdoor and C-interface writers.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <strings.h>
#include <type_traits>
#include <vector>

#include "driver/diag.hpp"
#include "driver/maps.hpp"
#include "parser/model.hpp"

struct brix_cvr_templates;
struct brix_bkdr_templates;

// State of one generation run.
extern const char* brix_top;
extern uint32_t strlen_top;
extern char* uc_top;
extern brix_str2int_map all_registers, all_vregisters, all_memories, all_regfiles, all_blocks,
    all_systems, all_block_sizes, all_system_sizes, all_emitted_shared_registers,
    all_emitted_shared_memories;
extern uint32_t brix_largest_register_bytes, brix_largest_memory_bits, brix_largest_vregister_bytes,
    brix_largest_vregister_incr;
// The levels above the object now being emitted, as the backdoor walk's views of their
// records.
extern brix_list_tag* brix_hierarchy;
// The coverage and backdoor tables of the language now being written, set by the walk.
extern const brix_cvr_templates* brix_cvr_lang;
extern const brix_bkdr_templates* brix_bkdr_lang;

// Writes `n` tabs to a stream through the writer; nothing for `n` below 1.
void indent_code(int n, FILE* stream);

// `<scope_prefix>_<name>`, or `<name>` for a global definition.
std::string brix_class_suffix(const char* scope_prefix, const char* name);

// Bit positions of a register's fields in list order, by the placement rule.
struct brix_field_layout {
    uint64_t high;              // bits spanned by the fields
    std::vector<long long> lsb; // one a field, real or not
};
brix_field_layout place_fields(const brix_list_tag* fields, int8_t left_to_right);

// The position of the next component in a list, and the size that the list spans, counted
// in `Pos`: the models count in 64 bits, the C interface in 32 bits that wrap.
template <class Pos> struct brix_basic_offset_walk {
    Pos off = 0;
    Pos size = 0;
    Pos saved = 0;
    bool unmapped = false;
    // Moves to a written offset; `none` leaves the position and takes no space when
    // `honour_none` is set. Going backwards keeps the old position, to resume from.
    void place(const char* offset, bool honour_none) {
        saved = 0;
        unmapped = honour_none && offset != nullptr && strcmp(offset, "none") == 0;
        if (offset == nullptr || unmapped) {
            return;
        }
        const Pos v = static_cast<Pos>(to_dec(offset));
        if (v < off) {
            saved = off;
        }
        off = v;
    }
    void advance(uint64_t span) {
        if (!unmapped) {
            const Pos next = static_cast<Pos>(off + span);
            off = saved == 0 ? next : std::max(next, saved);
        }
        size = std::max(size, off);
    }
};
using brix_offset_walk = brix_basic_offset_walk<uint64_t>;

// One component's place in its list, in words of the domain.
struct brix_placement {
    uint64_t offset;    // of the first element
    uint64_t count;     // elements: 1 for a scalar
    uint64_t increment; // words from one element to the next; the span of a scalar
    bool unmapped;      // `@none`: no address and no space
};
// Places a component whose one element takes `words` words and moves the walk past it. An
// array steps by its written increment, else by `words`. Made for both walks of
// brix_basic_offset_walk.
template <class Pos>
brix_placement brix_place(brix_basic_offset_walk<Pos>& walk, const char* offset, bool honour_none,
                          int32_t array_size, const char* increment, uint64_t words);
// Words one location of a memory takes in a domain of `domain_bytes`.
uint64_t brix_memory_words(const brix_memory_type_tag* t, uint64_t domain_bytes);
// Words of a system domain that a block or system of `size` words in its own domain of
// `bytes` takes in a system domain of `system_bytes`.
uint64_t brix_subsystem_words(uint64_t size, uint64_t bytes, uint64_t system_bytes);

// The offsets that a regfile's registers span in a domain of `bytes`.
uint64_t get_regfile_size_in_block_offsets(const brix_regfile_type_tag* rf, uint64_t bytes);

namespace brix_gen {

inline bool is_named(const char* text, const char* word) {
    // Most names differ from the word in their first letter: no call for those.
    return text != nullptr && text[0] == word[0] && strcmp(text, word) == 0;
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

// An array of a shared register is an error.
void check_no_shared_array(const brix_register_tag* r);

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
