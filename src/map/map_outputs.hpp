// The outputs of brixmap, each a reading of the resolved map.
#pragma once

#include <cstdio>
#include <optional>
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

// ---- values every output reads the same way ----
// A number as the description writes it (42, 0x2A, 'h2A), or nothing when it holds digits
// of no known value (x, z).
std::optional<uint64_t> number_of(const std::string& text);
// A field's hard reset as a number: 0 when none is written, nothing when it is not known.
std::optional<uint64_t> reset_value(const map_field& f);
// `unused` and `reserved` fields are the gaps of a register, not fields of their own.
bool is_reserved(const map_field& f);
std::string hex_text(uint64_t v); // 0x2A
uint64_t field_mask(const map_field& f);

// A self-contained HTML page of the map: navigation, search, a diagram per register.
std::string map_html(const resolved_map& map);

// The identity of the IP-XACT component; empty parts take their defaults.
struct ipxact_vlnv {
    std::string vendor;
    std::string library;
    std::string name;
    std::string version;
};
// An IEEE 1685-2014 component with one memory map per domain.
std::string map_ipxact(const resolved_map& map, const ipxact_vlnv& vlnv);

// An output that can fail on the map: `error` set means nothing is to be written.
struct map_written {
    std::string text;
    std::string error;
};
// A C header of addresses and field macros; macro names that two paths share are an error.
map_written map_c_header(const resolved_map& map);
