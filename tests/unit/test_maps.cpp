// Hash buckets, chain order and messages of the maps; the tagged list.
#include "driver/maps.hpp"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

char* dup(const char* s) {
    return strdup(s);
}

template <class Map> std::vector<std::string> chain(const Map& map, const char* key) {
    std::vector<std::string> keys;
    for (auto* n = map.buckets[brix_hash_key(key) % std::size(map.buckets)]; n; n = n->next) {
        keys.emplace_back(n->key);
    }
    return keys;
}

TEST(Hash, SignedByteSquaresLowEightBits) {
    EXPECT_EQ(brix_hash_key("a"), 193u);
    EXPECT_EQ(brix_hash_key("a") % BRIX_STR2INT_MAP_SIZE, 84u);
    EXPECT_EQ(brix_hash_key("a") % BRIX_STR2VOIDPTR_MAP_SIZE, 3u);
    EXPECT_EQ(brix_hash_key(""), 0u);
    // 0xC8 is -56 as a signed byte: 3136, low byte 64; as unsigned 200*200 = 40000, also 64.
    EXPECT_EQ(brix_hash_key("\xC8"), 64u);
    EXPECT_EQ(brix_hash_key("\xC8\xC8"), 128u);
}

TEST(Maps, SameBucketKeepsInsertionOrder) {
    brix_str2int_map map;
    initialize_str2int_map(map);
    add_str2int_map_entry(map, dup("ba"), 1);
    add_str2int_map_entry(map, dup("ab"), 2);
    add_str2int_map_entry(map, dup("a"), 3);
    EXPECT_EQ(chain(map, "ab"), (std::vector<std::string>{"ba", "ab"}));
    EXPECT_EQ(get_str2int_map_value(map, "ab"), 2);
    EXPECT_EQ(get_str2int_map_value(map, "zz"), 0);
    free_str2int_map(map);
    for (auto* b : map.buckets) {
        EXPECT_EQ(b, nullptr);
    }
    EXPECT_EQ(get_str2int_map_value(map, "ab"), 0);
}

TEST(Maps, CounterStep) {
    brix_str2int_map map;
    update_str2int_map(map, dup("k"));
    EXPECT_EQ(get_str2int_map_value(map, "k"), 1);
    update_str2int_map(map, dup("k"));
    EXPECT_EQ(get_str2int_map_value(map, "k"), 2);
    EXPECT_EQ(chain(map, "k").size(), 1u);
    free_str2int_map(map);
}

TEST(Maps, StringValuesUpdateAndFree) {
    brix_str2str_map map;
    add_str2str_map_entry(map, dup("x"), dup("1"));
    add_str2str_map_entry(map, dup("y"), nullptr);
    update_str2str_map_entry(map, "x", dup("2"));
    EXPECT_STREQ(get_str2str_map_value(map, "x"), "2");
    EXPECT_EQ(get_str2str_map_value(map, "y"), nullptr);
    EXPECT_EQ(get_str2str_map_value(map, "nope"), nullptr);
    free_str2str_map(map, 1); // the null value is skipped
    EXPECT_EQ(get_str2str_map_value(map, "x"), nullptr);
}

TEST(Maps, PointerValues) {
    brix_str2voidptr_map map;
    int a = 0, b = 0;
    add_str2voidptr_map_entry(map, dup("p"), &a);
    update_str2voidptr_map_entry(map, "p", &b);
    EXPECT_EQ(get_str2voidptr_map_value(map, "p"), &b);
    free_str2voidptr_map(map, 1);
}

TEST(MapsDeathTest, Messages) {
    brix_str2int_map ints;
    add_str2int_map_entry(ints, dup("k"), 1);
    EXPECT_EXIT(add_str2int_map_entry(ints, dup("k"), 2), testing::ExitedWithCode(1),
                "^Error: add_str2int_map_entry - Attempted to add key 'k' 2nd time on a "
                "unique key map.\n$");
    brix_str2str_map strs;
    add_str2str_map_entry(strs, dup("ab"), nullptr);
    EXPECT_EXIT(add_str2str_map_entry(strs, dup("ab"), nullptr), testing::ExitedWithCode(1),
                "^Error: add_str2str_map_entry - Attempted .*\n$");
    // Empty bucket and missing key in a filled bucket word the message differently.
    EXPECT_EXIT(update_str2str_map_entry(strs, "q", nullptr), testing::ExitedWithCode(1),
                "^Fatal Error: update_str2str_map_entry\\(\\) executed on non-existent key "
                "'q'.\n\n$");
    EXPECT_EXIT(update_str2str_map_entry(strs, "ba", nullptr), testing::ExitedWithCode(1),
                "^Fatal Error: update_str2str_map_entry\\(\\) executed on non-existent {45}key "
                "'ba'.\n\n$");
    brix_str2voidptr_map ptrs;
    add_str2voidptr_map_entry(ptrs, dup("ab"), nullptr);
    EXPECT_EXIT(add_str2voidptr_map_entry(ptrs, dup("ab"), nullptr), testing::ExitedWithCode(1),
                "^Error: add_str2voidptr_map_entry - Attempted .*\n$");
    EXPECT_EXIT(update_str2voidptr_map_entry(ptrs, "q", nullptr), testing::ExitedWithCode(1),
                "^Fatal Error: update_str2voidptr_map_entry\\(\\) executed on non-existent key");
    EXPECT_EXIT(update_str2voidptr_map_entry(ptrs, "ba", nullptr), testing::ExitedWithCode(1),
                "non-existent {45}key 'ba'");
}

std::vector<int> tags(const brix_list_tag* head) {
    std::vector<int> out;
    for (; head; head = head->next) {
        out.push_back(head->tag);
    }
    return out;
}

TEST(Lists, AppendPushAndPopAtTheTail) {
    brix_list_tag* head = create_brix_list_node(1, nullptr);
    add_to_brix_list_end(head, 2, nullptr);
    // Nodes linked on by hand are still found before the next append.
    head->next->next = create_brix_list_node(3, nullptr);
    add_to_brix_list_end(head, 4, nullptr);
    EXPECT_EQ(tags(head), (std::vector<int>{1, 2, 3, 4}));

    brix_list_tag* popped = brix_list_pop(&head);
    EXPECT_EQ(popped->tag, 4);
    add_to_brix_list_end(head, 5, nullptr); // the tail moved back and must be found
    EXPECT_EQ(tags(head), (std::vector<int>{1, 2, 3, 5}));
    destroy_brix_list(head);

    head = nullptr;
    EXPECT_EQ(brix_list_pop(&head), nullptr);
    brix_list_tag* node = create_brix_list_node(7, nullptr);
    brix_list_push(&head, node);
    brix_list_push(&head, create_brix_list_node(8, nullptr));
    EXPECT_EQ(brix_list_pop(&head)->tag, 8);
    EXPECT_EQ(brix_list_pop(&head), node);
    EXPECT_EQ(head, nullptr);
}

TEST(Lists, LongListsStayInOrder) {
    brix_list_tag* head = create_brix_list_node(0, nullptr);
    brix_list_tag* other = create_brix_list_node(0, nullptr);
    for (int i = 1; i < 200000; ++i) {
        add_to_brix_list_end(head, i, nullptr);
        add_to_brix_list_end(other, -i, nullptr);
    }
    int expect = 0;
    for (const brix_list_tag* n = head; n; n = n->next) {
        ASSERT_EQ(n->tag, expect++);
    }
    EXPECT_EQ(expect, 200000);
    destroy_brix_list(head);
    destroy_brix_list(other);
}

TEST(Maps, FreeModesLeaveWhatTheyDoNotOwn) {
    char key_a[] = "a";
    char key_b[] = "b";
    brix_str2str_map strs;
    add_str2str_map_entry(strs, key_a, strdup("1"));
    add_str2str_map_entry(strs, key_b, nullptr);
    free_str2str_map(strs, 0); // values and nodes only: the keys on the stack stay untouched
    EXPECT_EQ(get_str2str_map_value(strs, "a"), nullptr);

    char* value = strdup("kept");
    add_str2str_map_entry(strs, key_a, value);
    free_str2str_map(strs, 2); // nodes only
    EXPECT_STREQ(value, "kept");
    free(value);

    int target = 0;
    brix_str2voidptr_map ptrs;
    add_str2voidptr_map_entry(ptrs, key_a, &target);
    free_str2voidptr_map(ptrs, 0);
    for (auto* b : ptrs.buckets) {
        EXPECT_EQ(b, nullptr);
    }
    // After a free the same key may be added again.
    add_str2voidptr_map_entry(ptrs, key_a, &target);
    EXPECT_EQ(get_str2voidptr_map_value(ptrs, "a"), &target);
    free_str2voidptr_map(ptrs, 0);
}

} // namespace
