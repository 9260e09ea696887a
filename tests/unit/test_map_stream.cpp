// The JSON written while the map is resolved is the JSON of the whole map, byte for byte,
// with the address of a virtual register taken from its memory, handed on before it.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "map/map_outputs.hpp"
#include "parser_test_support.hpp"
#include "semantic/semantic.hpp"

namespace {

using namespace brix_test;

TEST(MapStream, StreamedJsonIsTheWholeMapsJson) {
    const child_result r = run_in_child([] {
        parse_pure(
            "memory fifo { size 8 bits 32 } virtual register v { bytes 4 field a { bits 32 } "
            "} block b { bytes 4 register r @0x0 { field f } memory fifo @0x4 virtual register "
            "v = early[2] fifo @0x2 register q @0x10 { field g } }");
        check_semantics("b");
        FILE* f = tmpfile();
        map_json("b", f);
        printf("%s\f%s", map_json(resolve_map("b")).c_str(), read_all(f).c_str());
    });
    ASSERT_EQ(r.status, 0) << r.err;
    const size_t cut = r.out.find('\f');
    ASSERT_NE(cut, std::string::npos);
    const std::string tree = r.out.substr(0, cut);
    EXPECT_EQ(r.out.substr(cut + 1), tree);
    // The memory sits at word 4, byte 16, with 4 bytes a location: location 2 is byte 24.
    const size_t early = tree.find("\"name\": \"early\"");
    ASSERT_NE(early, std::string::npos);
    const std::string want = "\"address\": 24,";
    EXPECT_EQ(tree.substr(tree.find("\"address\": ", early), want.size()), want);
}

} // namespace
