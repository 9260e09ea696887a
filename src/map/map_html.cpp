#include <map>

#include "map/map_html_page.hpp"
#include "map/map_outputs.hpp"

namespace {

// A JSON string that is also safe inside a <script> element.
std::string js(const std::string& s) {
    std::string out = "\"";
    for (const char c : s) {
        const auto u = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (c == '<' || c == '>' || c == '&' || u < 0x20) {
            char buf[8];
            snprintf(buf, sizeof buf, "\\u%04x", u);
            out += buf;
        } else {
            out += c;
        }
    }
    return out + "\"";
}

std::string html_escaped(const std::string& s) {
    std::string out;
    for (const char c : s) {
        out += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
    }
    return out;
}

std::string reset_text(const map_field& f) {
    std::string s = f.hard_reset ? *f.hard_reset : "0";
    return f.soft_reset ? s + " (soft " + *f.soft_reset + ")" : s;
}

// One field list as JSON; registers of one layout share it, so that a map of many
// registers of few layouts stays small.
std::string fields_json(const std::vector<map_field>& fields) {
    std::string s = "[";
    for (const map_field& f : fields) {
        std::string values;
        for (const map_enum& e : f.enums) {
            values += (values.empty() ? "" : ", ") + e.name + " = " + std::to_string(e.value);
        }
        s += (s.size() > 1 ? ",[" : "[") + js(f.name) + "," + std::to_string(f.lsb) + "," +
             std::to_string(f.width) + "," + js(f.access) + "," + js(reset_text(f)) + "," +
             js(f.doc) + "," + js(values) + "]";
    }
    return s + "]";
}

std::string detail(const map_node& n) {
    switch (n.kind) {
    case map_kind::reg:
        return std::to_string(n.bytes) + " bytes";
    case map_kind::vreg:
        return std::to_string(n.bytes) + " bytes" + (n.memory.empty() ? "" : " in " + n.memory);
    case map_kind::memory:
        return std::to_string(n.words) + " words of " + std::to_string(n.bits) + " bits, " +
               n.access;
    default:
        return std::to_string(n.size) + " bytes";
    }
}

struct page_data {
    std::string nodes;
    std::map<std::string, size_t> field_sets;
    std::string fields;
    std::string nav;
    size_t registers = 0;
};

void add_node(page_data& p, const map_node& n, size_t domain, size_t depth) {
    const bool reg = n.kind == map_kind::reg || n.kind == map_kind::vreg;
    size_t set = 0;
    if (reg) {
        const std::string json = fields_json(n.fields);
        const auto [it, fresh] = p.field_sets.emplace(json, p.field_sets.size());
        if (fresh) {
            p.fields += (p.fields.empty() ? "" : ",\n") + json;
        }
        set = it->second;
        ++p.registers;
    } else {
        p.nav += "<a href=\"#" + html_escaped(n.path) +
                 "\" style=\"padding-left:" + std::to_string(depth) + "em\">" +
                 html_escaped(n.name) + "</a>\n";
    }
    const std::string address = n.unmapped || !n.placed ? "" : hex_text(n.address);
    p.nodes += (p.nodes.empty() ? "[" : ",\n[") + std::to_string(domain) + "," +
               std::to_string(depth) + "," + js(map_kind_name(n.kind)) + "," + js(n.path) + "," +
               js(address) + "," + std::to_string(n.count) + "," + js(hex_text(n.stride)) + "," +
               std::to_string(n.size) + "," + js(detail(n)) + "," + js(n.doc) + "," +
               std::to_string(set) + "," + std::to_string(n.bytes) + "]";
    for (const map_node& c : n.components) {
        add_node(p, c, domain, depth + 1);
    }
}

std::string data_json(const resolved_map& map, page_data& p) {
    std::string domains;
    for (size_t d = 0; d < map.domains.size(); ++d) {
        const map_domain& dom = map.domains[d];
        const std::string name = dom.name.empty() ? "(default domain)" : dom.name;
        domains += std::string(d == 0 ? "" : ",") + "{\"name\":" + js(dom.name) +
                   ",\"bytes\":" + std::to_string(dom.bytes) + ",\"endian\":" + js(dom.endian) +
                   "}";
        p.nav += "<div class=\"dom\">" + html_escaped(name) + ", " + std::to_string(dom.bytes) +
                 " bytes</div>\n";
        for (const map_node& n : dom.components) {
            add_node(p, n, d, 0);
        }
    }
    return "{\"top\":" + js(map.top) + ",\"registers\":" + std::to_string(p.registers) +
           ",\"domains\":[" + domains + "],\n\"fields\":[" + p.fields + "],\n\"nodes\":[" +
           p.nodes + "]}";
}

} // namespace

std::string map_html(const resolved_map& map) {
    page_data p;
    const std::string data = data_json(map, p);
    const std::string title = "Register map of " + html_escaped(map.top);
    std::string summary = std::string("The ") + map_kind_name(map.kind) + " " +
                          html_escaped(map.top) + ": " + std::to_string(p.registers) +
                          " registers; addresses are bytes from the top's base.";
    if (!map.doc.empty()) {
        summary += " " + html_escaped(map.doc);
    }
    return "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
           "<meta name=\"generator\" content=\"brixmap " BRIX_VERSION "\">\n<title>" +
           title + "</title>\n<style>" + html_style + "</style>\n</head>\n<body>\n<nav>\n" +
           "<a href=\"#\"><b>" + html_escaped(map.top) + "</b></a>\n" + p.nav +
           "</nav>\n<main>\n<header>\n<h1>" + title + "</h1>\n<p>" + summary +
           "</p>\n<input type=\"search\" id=\"search\" placeholder=\"Filter by name, path or "
           "address (0x...)\" autocomplete=\"off\"><span id=\"status\"></span>\n</header>\n"
           "<div id=\"list\"></div>\n<div id=\"more\"></div>\n</main>\n"
           "<script type=\"application/json\" id=\"map-data\">" +
           data + "</script>\n<script>" + html_script + "</script>\n</body>\n</html>\n";
}
