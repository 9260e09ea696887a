// String-keyed chained hash maps and the tagged singly linked list.
//
// A map is a fixed array of bucket chains with the exact hash below, because generators
// walk the buckets in index order and each chain from its head. Each map also keeps a
// side index from key to node so that look-ups and duplicate checks stay O(1) on big
// descriptions; the chains alone decide every observable order.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

constexpr int BRIX_STR2INT_MAP_SIZE = 109;
constexpr int BRIX_STR2STR_MAP_SIZE = 109;
constexpr int BRIX_STR2VOIDPTR_MAP_SIZE = 19;

struct brix_str2int_map_node_tag {
    char* key;
    long long value;
    brix_str2int_map_node_tag* next;
};
struct brix_str2str_map_node_tag {
    char* key;
    char* value;
    brix_str2str_map_node_tag* next;
};
struct brix_str2voidptr_map_node_tag {
    char* key;
    void* value;
    brix_str2voidptr_map_node_tag* next;
};

// The side index of a map, or of a scope's symbols: open addressing over the nodes
// themselves, by the string at `Key`, a slot of one pointer per node or two, as maps can
// hold a few entries for every register.
template <class Node, auto Key = &Node::key> class brix_key_index {
  public:
    Node* find(const char* key) const { return slots_.empty() ? nullptr : slots_[slot_for(key)]; }
    // The node's key must not be in the index yet.
    void insert(Node* node) {
        if ((count_ + 1) * 2 > slots_.size()) {
            grow();
        }
        place(node);
        ++count_;
    }
    // The node takes the place of the one of the same key, if any.
    void assign(Node* node) {
        if (!slots_.empty()) {
            if (Node*& slot = slots_[slot_for(node->*Key)]; slot != nullptr) {
                slot = node;
                return;
            }
        }
        insert(node);
    }
    void clear() {
        slots_.clear();
        slots_.shrink_to_fit();
        count_ = 0;
        shift_ = 64;
    }

  private:
    // FNV-1a over the bytes, spread by a multiplication whose top bits pick the slot: keys
    // are short, and one pass reads each once.
    std::size_t slot_of(const char* key) const {
        uint64_t hash = 14695981039346656037ULL;
        for (const char* p = key; *p != '\0'; ++p) {
            hash = (hash ^ static_cast<unsigned char>(*p)) * 1099511628211ULL;
        }
        return static_cast<std::size_t>((hash * 0x9E3779B97F4A7C15ULL) >> shift_);
    }
    // The slot that holds the key, or the empty one where it would go.
    std::size_t slot_for(const char* key) const {
        std::size_t i = slot_of(key);
        while (slots_[i] != nullptr && std::strcmp(key, slots_[i]->*Key) != 0) {
            i = (i + 1) & (slots_.size() - 1);
        }
        return i;
    }
    void place(Node* node) {
        std::size_t i = slot_of(node->*Key);
        while (slots_[i] != nullptr) {
            i = (i + 1) & (slots_.size() - 1);
        }
        slots_[i] = node;
    }
    void grow() {
        std::vector<Node*> old(std::max<std::size_t>(8, slots_.size() * 2), nullptr);
        old.swap(slots_);
        shift_ = 64 - static_cast<unsigned>(std::countr_zero(slots_.size()));
        for (Node* node : old) {
            if (node != nullptr) {
                place(node);
            }
        }
    }

    std::vector<Node*> slots_;
    std::size_t count_ = 0;
    unsigned shift_ = 64; // 64 less the bits of a slot number
};

// Room for a map's nodes, and for the keys of the maps that keep their own: carved from
// blocks that double in size and all go when the map is freed, so that an entry costs no
// heap block of its own.
class brix_map_room {
  public:
    // Aligned for any node.
    void* take(std::size_t size);
    void clear();

  private:
    std::vector<std::unique_ptr<char[]>> blocks_;
    std::size_t block_size_ = 0;
    char* next_ = nullptr;
    std::size_t left_ = 0;
};

template <class Node, int N> struct brix_map {
    Node* buckets[N] = {};
    Node* tails[N] = {}; // last node of each chain, so that adding does not walk it
    brix_key_index<Node> index;
    brix_map_room room;
};
using brix_str2int_map = brix_map<brix_str2int_map_node_tag, BRIX_STR2INT_MAP_SIZE>;
using brix_str2str_map = brix_map<brix_str2str_map_node_tag, BRIX_STR2STR_MAP_SIZE>;
using brix_str2voidptr_map = brix_map<brix_str2voidptr_map_node_tag, BRIX_STR2VOIDPTR_MAP_SIZE>;

// Sum of the squares of the characters read as signed bytes, low 8 bits kept.
unsigned brix_hash_key(const char* key);

void initialize_str2int_map(brix_str2int_map& map);
void initialize_str2str_map(brix_str2str_map& map);
void initialize_str2voidptr_map(brix_str2voidptr_map& map);

brix_str2int_map_node_tag* add_str2int_map_entry(brix_str2int_map& map, char* key, long long value);
brix_str2str_map_node_tag* add_str2str_map_entry(brix_str2str_map& map, char* key, char* value);
brix_str2voidptr_map_node_tag* add_str2voidptr_map_entry(brix_str2voidptr_map& map, char* key,
                                                         void* value);

void update_str2int_map(brix_str2int_map& map, char* key);
void update_str2str_map_entry(brix_str2str_map& map, const char* key, char* value);
void update_str2voidptr_map_entry(brix_str2voidptr_map& map, const char* key, void* value);

long long get_str2int_map_value(const brix_str2int_map& map, const char* key);
char* get_str2str_map_value(const brix_str2str_map& map, const char* key);
void* get_str2voidptr_map_value(const brix_str2voidptr_map& map, const char* key);

void free_str2int_map(brix_str2int_map& map);
void free_str2str_map(brix_str2str_map& map, int mode);
void free_str2voidptr_map(brix_str2voidptr_map& map, int mode);

// The generic list: every component list of the model is made of these nodes.
struct brix_list_tag {
    int tag; // a brix_type
    void* data;
    brix_list_tag* next;
};

brix_list_tag* create_brix_list_node(int tag, void* data);
// Appends after the last node of the list that starts at `head` and returns the new node.
brix_list_tag* add_to_brix_list_end(brix_list_tag* head, int tag, void* data);
void brix_list_push(brix_list_tag** head, brix_list_tag* node);
brix_list_tag* brix_list_pop(brix_list_tag** head);
void destroy_brix_list(brix_list_tag* head);

// Links `item`, which may lead a chain, behind the tail of the list that starts at `head`,
// for any record linked through `next`. The tails of long lists are remembered in
// `hints`, by head, so that building them stays linear however the appends to different
// lists interleave; short lists (most: a register's fields) are walked, as a hint each
// would cost more memory than the walk costs time.
template <class T>
void brix_link_at_tail(T* head, T* item, std::unordered_map<const T*, T*>& hints) {
    constexpr int hinted_list_length = 16;
    const auto hint = hints.find(head);
    T* tail = hint == hints.end() ? head : hint->second;
    int steps = 0;
    for (; tail->next != nullptr; ++steps) {
        tail = tail->next;
    }
    tail->next = item;
    for (; tail->next != nullptr; ++steps) {
        tail = tail->next;
    }
    if (hint != hints.end()) {
        hint->second = tail;
    } else if (steps >= hinted_list_length) {
        hints.emplace(head, tail);
    }
}

// Only the `next` member is used, so any record with one can be reversed.
template <class Node> Node* recurse_brix_hdl_path_list(Node* node, Node* prev) {
    while (node != nullptr) {
        Node* next = node->next;
        node->next = prev;
        prev = node;
        node = next;
    }
    return prev;
}
template <class Node> Node* reverse_brix_hdl_path_list(Node* head) {
    return recurse_brix_hdl_path_list<Node>(head, nullptr);
}
