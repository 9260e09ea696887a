#include "driver/maps.hpp"

#include "driver/diag.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <unordered_map>

unsigned brix_hash_key(const char* key) {
    unsigned sum = 0;
    for (const char* p = key; *p != '\0'; ++p) {
        const int c = static_cast<signed char>(*p);
        sum += static_cast<unsigned>(c * c);
    }
    return sum & 0xFFU;
}

namespace {

template <class Map> void initialize_map(Map& map) {
    for (std::size_t b = 0; b < std::size(map.buckets); ++b) {
        map.buckets[b] = nullptr;
        map.tails[b] = nullptr;
    }
    map.index.clear();
}

template <class Map> auto* find_node(const Map& map, const char* key) {
    return map.index.find(key);
}

// Appends at the end of the key's chain; a key already present ends the run.
template <class Map, class Node>
Node* add_node(Map& map, Node* node, const char* duplicate_message) {
    if (find_node(map, node->key) != nullptr) {
        brix_error(duplicate_message, node->key);
    }
    const std::size_t b = brix_hash_key(node->key) % std::size(map.buckets);
    if (map.buckets[b] == nullptr) {
        map.buckets[b] = node;
    } else {
        map.tails[b]->next = node;
    }
    map.tails[b] = node;
    map.index.insert(node);
    return node;
}

template <class Map, class Node> Node* find_for_update(Map& map, const char* key, const char* fn) {
    if (map.buckets[brix_hash_key(key) % std::size(map.buckets)] == nullptr) {
        brix_error("Fatal Error: %s() executed on non-existent key '%s'.\n", fn, key);
    }
    Node* node = find_node(map, key);
    if (node == nullptr) {
        // The gap of blanks before "key" is part of the message.
        brix_error("Fatal Error: %s() executed on non-existent                                     "
                   "        "
                   "key '%s'.\n",
                   fn, key);
    }
    return node;
}

template <class Map, class Fn> void free_map(Map& map, Fn free_node) {
    for (auto& b : map.buckets) {
        for (auto* n = b; n != nullptr; n = n->next) {
            free_node(n);
        }
        b = nullptr;
    }
    for (auto& t : map.tails) {
        t = nullptr;
    }
    map.index.clear();
    map.room.clear();
}

template <class Node, class Map, class Value> Node* new_node(Map& map, char* key, Value value) {
    return new (map.room.take(sizeof(Node))) Node{key, value, nullptr};
}

} // namespace

void initialize_str2int_map(brix_str2int_map& map) {
    initialize_map(map);
}
void initialize_str2str_map(brix_str2str_map& map) {
    initialize_map(map);
}
void initialize_str2voidptr_map(brix_str2voidptr_map& map) {
    initialize_map(map);
}

brix_str2int_map_node_tag* add_str2int_map_entry(brix_str2int_map& map, char* key,
                                                 long long value) {
    // These maps own their keys: each is kept in the map's room, right behind its node.
    const std::size_t size = std::strlen(key) + 1;
    using node = brix_str2int_map_node_tag;
    auto* n = new (map.room.take(sizeof(node) + size)) node{nullptr, value, nullptr};
    n->key = static_cast<char*>(std::memcpy(reinterpret_cast<char*>(n + 1), key, size));
    brix_free(key);
    return add_node(map, n,
                    "Error: add_str2int_map_entry - Attempted to add key '%s' 2nd time on a "
                    "unique key map.");
}

brix_str2str_map_node_tag* add_str2str_map_entry(brix_str2str_map& map, char* key, char* value) {
    return add_node(map, new_node<brix_str2str_map_node_tag>(map, key, value),
                    "Error: add_str2str_map_entry - Attempted to add key '%s' 2nd time on a "
                    "unique key map.");
}

brix_str2voidptr_map_node_tag* add_str2voidptr_map_entry(brix_str2voidptr_map& map, char* key,
                                                         void* value) {
    return add_node(map, new_node<brix_str2voidptr_map_node_tag>(map, key, value),
                    "Error: add_str2voidptr_map_entry - Attempted to add key '%s' 2nd time on a "
                    "unique key map.");
}

void* brix_map_room::take(std::size_t size) {
    constexpr std::size_t alignment =
        std::max({alignof(brix_str2int_map_node_tag), alignof(brix_str2str_map_node_tag),
                  alignof(brix_str2voidptr_map_node_tag)});
    size = (size + alignment - 1) / alignment * alignment;
    if (size > left_) {
        // The first block holds a few entries; the blocks double up to a size whose
        // unused tail does not matter.
        constexpr std::size_t first_block = 256;
        constexpr std::size_t largest_block = std::size_t{1} << 16;
        block_size_ = block_size_ == 0 ? first_block : std::min(block_size_ * 2, largest_block);
        const std::size_t block = std::max(block_size_, size);
        next_ = blocks_.emplace_back(new char[block]).get();
        left_ = block;
    }
    void* p = next_;
    next_ += size;
    left_ -= size;
    return p;
}

void brix_map_room::clear() {
    blocks_.clear();
    blocks_.shrink_to_fit();
    block_size_ = 0;
    next_ = nullptr;
    left_ = 0;
}

void update_str2int_map(brix_str2int_map& map, char* key) {
    if (brix_str2int_map_node_tag* node = find_node(map, key)) {
        node->value += 1;
        brix_free(key);
        return;
    }
    add_str2int_map_entry(map, key, 1);
}

void update_str2str_map_entry(brix_str2str_map& map, const char* key, char* value) {
    auto* node = find_for_update<brix_str2str_map, brix_str2str_map_node_tag>(
        map, key, "update_str2str_map_entry");
    brix_free(node->value);
    node->value = value;
}

void update_str2voidptr_map_entry(brix_str2voidptr_map& map, const char* key, void* value) {
    auto* node = find_for_update<brix_str2voidptr_map, brix_str2voidptr_map_node_tag>(
        map, key, "update_str2voidptr_map_entry");
    node->value = value;
}

long long get_str2int_map_value(const brix_str2int_map& map, const char* key) {
    const auto* node = find_node(map, key);
    return node == nullptr ? 0 : node->value;
}

char* get_str2str_map_value(const brix_str2str_map& map, const char* key) {
    const auto* node = find_node(map, key);
    return node == nullptr ? nullptr : node->value;
}

void* get_str2voidptr_map_value(const brix_str2voidptr_map& map, const char* key) {
    const auto* node = find_node(map, key);
    return node == nullptr ? nullptr : node->value;
}

void free_str2int_map(brix_str2int_map& map) {
    free_map(map, [](brix_str2int_map_node_tag*) {}); // the keys go with the room
}

void free_str2str_map(brix_str2str_map& map, int mode) {
    free_map(map, [mode](brix_str2str_map_node_tag* n) {
        if (mode <= 1) {
            if (mode == 1) {
                brix_free(n->key);
            }
            brix_free(n->value);
        }
    });
}

void free_str2voidptr_map(brix_str2voidptr_map& map, int mode) {
    free_map(map, [mode](brix_str2voidptr_map_node_tag* n) {
        if (mode == 1) {
            brix_free(n->key);
        }
    });
}

// Lists ------------------------------------------------------------------------------
//
// Appending walks to the tail. To keep long lists linear, the last known tail of each
// long list is remembered by head. A hint is always a node of its list: lists only shrink
// through brix_list_pop and destroy_brix_list, which keep the hints right, so the walk
// from a hint reaches the true tail even when someone linked nodes on by hand.

namespace {
std::unordered_map<const brix_list_tag*, brix_list_tag*>& tail_hints() {
    static std::unordered_map<const brix_list_tag*, brix_list_tag*> hints;
    return hints;
}

void link_at_tail(brix_list_tag* head, brix_list_tag* node) {
    brix_link_at_tail(head, node, tail_hints());
}
} // namespace

brix_list_tag* create_brix_list_node(int tag, void* data) {
    void* node = brix_arena_alloc(sizeof(brix_list_tag), alignof(brix_list_tag));
    return new (node) brix_list_tag{tag, data, nullptr};
}

brix_list_tag* add_to_brix_list_end(brix_list_tag* head, int tag, void* data) {
    brix_list_tag* node = create_brix_list_node(tag, data);
    link_at_tail(head, node);
    return node;
}

void brix_list_push(brix_list_tag** head, brix_list_tag* node) {
    if (*head == nullptr) {
        *head = node;
        return;
    }
    link_at_tail(*head, node);
}

brix_list_tag* brix_list_pop(brix_list_tag** head) {
    brix_list_tag* first = *head;
    if (first == nullptr) {
        return nullptr;
    }
    auto& hints = tail_hints();
    if (first->next == nullptr) {
        hints.erase(first);
        *head = nullptr;
        return first;
    }
    brix_list_tag* before = first;
    while (before->next->next != nullptr) {
        before = before->next;
    }
    brix_list_tag* last = before->next;
    before->next = nullptr;
    hints[first] = before;
    return last;
}

void destroy_brix_list(brix_list_tag* head) {
    // The nodes live in the arena, with the model; only the list's hint goes.
    if (head != nullptr) {
        tail_hints().erase(head);
    }
}
