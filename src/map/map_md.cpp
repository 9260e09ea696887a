#include <cstdio>
#include <unordered_set>

#include "map/map_outputs.hpp"

namespace {

std::string hex(uint64_t v) {
    char buf[24];
    snprintf(buf, sizeof buf, "0x%llX", static_cast<unsigned long long>(v));
    return buf;
}

// A description as one table cell: one line, pipes escaped.
std::string cell(const std::string& text) {
    std::string out;
    for (const char c : text) {
        if (c == '|') {
            out += "\\|";
        } else if (c == '\n' || c == '\r' || c == '\t') {
            out += ' ';
        } else {
            out += c;
        }
    }
    return out;
}

// Markdown would read `_` and `*` of a name as emphasis.
std::string code(const std::string& text) {
    return "`" + text + "`";
}

bool has_section(const map_node& n) {
    return n.kind == map_kind::reg || n.kind == map_kind::vreg;
}

std::string size_text(const map_node& n) {
    std::string s = std::to_string(n.size);
    if (n.count > 1) {
        s = std::to_string(n.count) + " × " + s + ", stride " + hex(n.stride);
    }
    return s;
}

std::string address_text(const map_node& n) {
    if (!n.placed) {
        return "dynamic";
    }
    return n.unmapped ? "unmapped" : hex(n.address);
}

void map_rows(map_text& out, const std::vector<map_node>& nodes, size_t top_length) {
    for (const map_node& n : nodes) {
        const std::string name = n.path.substr(top_length + 1);
        out.text += "| " + address_text(n) + " | ";
        if (has_section(n)) {
            out.text.append("[").append(code(name)).append("](#").append(n.path).append(")");
        } else {
            out.text += code(name);
        }
        out.text += " | " + std::string(map_kind_name(n.kind)) + " | " + size_text(n) + " | " +
                    cell(n.doc) + " |\n";
        out.spill();
        map_rows(out, n.components, top_length);
    }
}

std::string bits_text(const map_field& f) {
    if (f.width <= 1) {
        return std::to_string(f.lsb);
    }
    return std::to_string(f.lsb + f.width - 1) + ":" + std::to_string(f.lsb);
}

std::string reset_text(const map_field& f) {
    std::string s = f.hard_reset ? *f.hard_reset : "0";
    if (f.soft_reset) {
        s += " (soft " + *f.soft_reset + ")";
    }
    return s;
}

std::string enums_text(const map_field& f) {
    std::string s;
    for (const map_enum& e : f.enums) {
        s += (s.empty() ? "" : ", ") + code(e.name) + " = " + std::to_string(e.value);
    }
    return s;
}

void register_section(map_text& out, const map_node& n) {
    out.text += "\n<a id=\"" + n.path + "\"></a>\n\n### " + code(n.path) + "\n\n";
    out.text += std::string(n.kind == map_kind::vreg ? "Virtual register" : "Register") +
                " of type " + code(n.type) + ", " + std::to_string(n.bytes) + " bytes, at " +
                address_text(n);
    if (n.kind == map_kind::vreg && !n.memory.empty()) {
        out.text += " in memory " + code(n.memory);
    }
    if (n.count > 1) {
        out.text += "; " + std::to_string(n.count) + " elements, stride " + hex(n.stride);
    }
    out.text += ".\n\n";
    if (!n.doc.empty()) {
        out.text += cell(n.doc) + "\n\n";
    }
    out.text += "| Bits | Field | Access | Reset | Values | Description |\n"
                "|---|---|---|---|---|---|\n";
    for (const map_field& f : n.fields) {
        out.text += "| " + bits_text(f) + " | " + code(f.name) + " | " + f.access + " | " +
                    code(reset_text(f)) + " | " + enums_text(f) + " | " + cell(f.doc) + " |\n";
    }
}

void sections(map_text& out, const std::vector<map_node>& nodes,
              std::unordered_set<std::string>& written) {
    for (const map_node& n : nodes) {
        // A shared register stands in several domains under one path: one section.
        if (has_section(n) && written.insert(n.path).second) {
            register_section(out, n);
            out.spill();
        }
        sections(out, n.components, written);
    }
}

void write_markdown(map_text& out, const resolved_map& map) {
    out.text += "# Register map of " + code(map.top) + "\n\n";
    out.text += "The " + std::string(map_kind_name(map.kind)) + " " + code(map.top) + " has " +
                std::to_string(map.domains.size()) +
                (map.domains.size() == 1 ? " domain" : " domains") +
                ". Addresses are in bytes from the top's base.\n\n";
    if (!map.doc.empty()) {
        out.text += cell(map.doc) + "\n\n";
    }
    out.text += "| Domain | Width | Endianness |\n|---|---|---|\n";
    for (const map_domain& d : map.domains) {
        out.text += "| " + (d.name.empty() ? std::string("(default)") : code(d.name)) + " | " +
                    std::to_string(d.bytes) + " bytes | " +
                    (d.endian.empty() ? std::string("little") : d.endian) + " |\n";
    }
    for (const map_domain& d : map.domains) {
        out.text +=
            "\n## Address map" + (d.name.empty() ? "" : " of domain " + code(d.name)) + "\n\n";
        out.text += "| Address | Name | Kind | Size | Description |\n|---|---|---|---|---|\n";
        map_rows(out, d.components, map.top.size());
    }
    out.text += "\n## Registers\n";
    std::unordered_set<std::string> written;
    for (const map_domain& d : map.domains) {
        sections(out, d.components, written);
    }
}

} // namespace

std::string map_markdown(const resolved_map& map) {
    map_text out;
    write_markdown(out, map);
    return std::move(out.text);
}

void map_markdown(const resolved_map& map, std::FILE* sink) {
    map_text out{{}, sink};
    write_markdown(out, map);
    out.spill(0);
}
