// The resolved register map of one top: every component with its absolute address, read
// once from the checked model. The outputs of brixmap only read this tree.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "parser/model.hpp"

enum class map_kind { block, system, regfile, reg, vreg, memory };

// The word used for a kind in every output.
const char* map_kind_name(map_kind kind);

struct map_enum {
    std::string name;
    long long value;
};

struct map_field {
    std::string name;
    uint64_t lsb;
    uint64_t width;
    std::string access;
    std::optional<std::string> hard_reset; // as written
    std::optional<std::string> soft_reset;
    std::vector<map_enum> enums;
    std::string doc;
    const brix_field_tag* record;
};

struct map_node {
    map_kind kind;
    std::string name;
    std::string path;   // instance path from the top, `top.blk.reg`
    std::string type;   // the type's class suffix
    std::string domain; // blocks and systems: the domain of their type they stand for
    uint64_t address;   // bytes from the top's base, of the first element
    uint64_t offset;    // words of the enclosing list, as the models place it
    uint64_t count;     // 1 for a scalar
    uint64_t stride;    // bytes between elements, 0 for a scalar
    uint64_t size;      // bytes one element takes
    bool unmapped;      // `@none`
    std::string doc;
    std::vector<std::pair<std::string, std::string>> attributes; // in source order
    brix_src_pos src;
    brix_src_pos type_src; // the definition of its type
    std::string hdl_path;  // the path the backdoor takes, "" when none
    // Registers and virtual registers.
    uint64_t bytes = 0;
    std::vector<map_field> fields;
    // Memories.
    uint64_t words = 0;
    uint64_t bits = 0;
    std::string access;
    // Virtual registers: the memory that holds them; unplaced ones have no address.
    std::string memory;
    bool placed = true;
    const void* record; // the model's instance record, for the checks
    std::vector<map_node> components;
};

struct map_domain {
    std::string name;
    uint64_t bytes;
    std::string endian;
    std::vector<map_node> components;
};

struct resolved_map {
    std::string top;
    map_kind kind; // block or system
    std::string doc;
    brix_src_pos src;
    const void* record; // the top's type record
    std::vector<map_domain> domains;
};

// The map of `top`, a block or system that the checks have found.
resolved_map resolve_map(const char* top);

// Where the pieces of a map go as they are resolved, for an output too big to hold whole.
struct map_stream {
    std::function<void(const resolved_map&)> begin; // the top, before its domains
    std::function<void(const map_domain&)> begin_domain;
    std::function<void(const map_node&)> component; // with its subtree, in list order
    std::function<void(const map_domain&)> end_domain;
};
// The same map, handed to `stream` one component of a domain's list at a time and then
// dropped: at most one such subtree is held, and the map returned has no components.
resolved_map resolve_map(const char* top, const map_stream& stream);

// Calls `f(node)` for every node of the tree, parents before children.
template <class F> void for_each_node(const std::vector<map_node>& nodes, F&& f) {
    for (const map_node& n : nodes) {
        f(n);
        for_each_node(n.components, f);
    }
}
template <class F> void for_each_node(const resolved_map& map, F&& f) {
    for (const map_domain& d : map.domains) {
        for_each_node(d.components, f);
    }
}
