// The outputs of brixmap, each a reading of the resolved map.
#pragma once

#include <cstdio>
#include <string>

#include "map/resolved_map.hpp"

// One JSON document of the map, as docs/brixmap.schema.json describes it.
std::string map_json(const resolved_map& map);
// A GitHub-flavoured Markdown reference of the map.
std::string map_markdown(const resolved_map& map);
// The same texts written to `out` in pieces as they are made, so that a big map never
// stands whole in memory. Errors stay in the stream for the caller's ferror/fclose.
void map_json(const resolved_map& map, std::FILE* out);
void map_markdown(const resolved_map& map, std::FILE* out);
// Resolves the map of `top` and writes its JSON as it goes: the same document as
// map_json(resolve_map(top), out), without the whole map in memory.
void map_json(const char* top, std::FILE* out);

// Text that grows in a buffer and goes to `sink` in pieces at the points a writer calls
// spill(); with no sink it all stays in `text`.
struct map_text {
    std::string text;
    std::FILE* sink = nullptr;

    void spill(size_t at_least = 1 << 16) {
        if (sink != nullptr && text.size() >= at_least) {
            fwrite(text.data(), 1, text.size(), sink);
            text.clear();
        }
    }
};

struct map_check_options {
    bool backdoor = false;     // -b: the run would write backdoor classes
    bool field_values = false; // -c f
    bool werror = false;       // warnings count as errors
};
struct map_check_result {
    std::string findings; // one line each, sorted
    int errors = 0;
    int warnings = 0;
    int notes = 0;
};
map_check_result map_check(const resolved_map& map, const map_check_options& options);
