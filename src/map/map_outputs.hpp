// The outputs of brixmap, each a reading of the resolved map.
#pragma once

#include <string>

#include "map/resolved_map.hpp"

// One JSON document of the map, as docs/brixmap.schema.json describes it.
std::string map_json(const resolved_map& map);
// A GitHub-flavoured Markdown reference of the map.
std::string map_markdown(const resolved_map& map);

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
