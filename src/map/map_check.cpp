#include "map/map_outputs.hpp"

map_check_result map_check(const resolved_map&, const map_check_options&) {
    return {};
}
