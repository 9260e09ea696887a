#include <cstdio>

#include "map/map_outputs.hpp"

namespace {

// Writes JSON with two blanks of indent a level; members in the order they are written.
class json_writer {
  public:
    map_text out;

    explicit json_writer(std::FILE* sink) { out.sink = sink; }

    void open(char bracket) {
        out.text += bracket;
        ++depth_;
        first_ = true;
    }
    void close(char bracket) {
        --depth_;
        if (!first_) {
            newline();
        }
        out.text += bracket;
        first_ = false;
    }
    void key(const char* name) {
        item();
        string(name);
        out.text += ": ";
    }
    // The next value of an array.
    void item() {
        if (!first_) {
            out.text += ',';
        }
        newline();
        first_ = false;
    }
    void string(const std::string& s) {
        out.text += '"';
        for (const char c : s) {
            escaped(c);
        }
        out.text += '"';
    }
    void number(unsigned long long v) { out.text += std::to_string(v); }
    void signed_number(long long v) { out.text += std::to_string(v); }
    void boolean(bool v) { out.text += v ? "true" : "false"; }
    void null() { out.text += "null"; }
    void optional_string(const std::string& s) {
        if (s.empty()) {
            null();
        } else {
            string(s);
        }
    }
    void field(const char* name, const std::string& s) {
        key(name);
        string(s);
    }
    void field(const char* name, unsigned long long v) {
        key(name);
        number(v);
    }

  private:
    int depth_ = 0;
    bool first_ = true;

    void newline() {
        out.text += '\n';
        out.text.append(static_cast<size_t>(depth_) * 2, ' ');
    }
    void escaped(char c) {
        switch (c) {
        case '"':
            out.text += "\\\"";
            return;
        case '\\':
            out.text += "\\\\";
            return;
        case '\n':
            out.text += "\\n";
            return;
        case '\t':
            out.text += "\\t";
            return;
        default:
            break;
        }
        if (static_cast<unsigned char>(c) < 0x20) {
            char buf[8];
            snprintf(buf, sizeof buf, "\\u%04x", static_cast<unsigned>(c));
            out.text += buf;
        } else {
            out.text += c;
        }
    }
};

void write_source(json_writer& w, const brix_src_pos& src) {
    w.key("file");
    w.optional_string(src.file() != nullptr ? src.file() : "");
    w.field("line", src.line());
}

void write_fields(json_writer& w, const std::vector<map_field>& fields) {
    w.key("fields");
    w.open('[');
    for (const map_field& f : fields) {
        w.item();
        w.open('{');
        w.field("name", f.name);
        w.field("lsb", f.lsb);
        w.field("width", f.width);
        w.field("access", f.access);
        w.key("hard_reset");
        f.hard_reset ? w.string(*f.hard_reset) : w.null();
        w.key("soft_reset");
        f.soft_reset ? w.string(*f.soft_reset) : w.null();
        w.key("enums");
        w.open('[');
        for (const map_enum& e : f.enums) {
            w.item();
            w.open('{');
            w.field("name", e.name);
            w.key("value");
            w.signed_number(e.value);
            w.close('}');
        }
        w.close(']');
        w.key("doc");
        w.optional_string(f.doc);
        w.key("hdl_path");
        w.optional_string(f.record->hdl_path != nullptr ? f.record->hdl_path->path : "");
        write_source(w, f.record->src);
        w.close('}');
    }
    w.close(']');
}

void write_components(json_writer& w, const std::vector<map_node>& nodes);
void write_component(json_writer& w, const map_node& n);

void write_node(json_writer& w, const map_node& n) {
    w.open('{');
    w.field("kind", map_kind_name(n.kind));
    w.field("name", n.name);
    w.field("path", n.path);
    w.field("type", n.type);
    w.key("address");
    n.placed ? w.number(n.address) : w.null();
    w.field("offset", n.offset);
    w.field("count", n.count);
    w.field("stride", n.stride);
    w.field("size", n.size);
    w.key("unmapped");
    w.boolean(n.unmapped);
    w.key("doc");
    w.optional_string(n.doc);
    w.key("attributes");
    w.open('[');
    for (const auto& [name, value] : n.attributes) {
        w.item();
        w.open('{');
        w.field("name", name);
        w.field("value", value);
        w.close('}');
    }
    w.close(']');
    w.key("hdl_path");
    w.optional_string(n.hdl_path);
    write_source(w, n.src);
    switch (n.kind) {
    case map_kind::reg:
        w.field("bytes", n.bytes);
        write_fields(w, n.fields);
        break;
    case map_kind::vreg:
        w.key("memory");
        w.optional_string(n.memory);
        w.field("bytes", n.bytes);
        write_fields(w, n.fields);
        break;
    case map_kind::memory:
        w.field("words", n.words);
        w.field("bits", n.bits);
        w.field("access", n.access);
        break;
    case map_kind::block:
    case map_kind::system:
        w.key("domain");
        w.optional_string(n.domain);
        write_components(w, n.components);
        break;
    case map_kind::regfile:
        write_components(w, n.components);
        break;
    }
    w.close('}');
}

void write_components(json_writer& w, const std::vector<map_node>& nodes) {
    w.key("components");
    w.open('[');
    for (const map_node& n : nodes) {
        write_component(w, n);
    }
    w.close(']');
}

void write_head(json_writer& w, const resolved_map& map) {
    w.open('{');
    w.field("tool", "brixmap");
    w.field("version", BRIX_VERSION);
    w.field("top", map.top);
    w.field("kind", map_kind_name(map.kind));
    w.key("doc");
    w.optional_string(map.doc);
    write_source(w, map.src);
    w.key("domains");
    w.open('[');
}

void write_domain_head(json_writer& w, const map_domain& d) {
    w.item();
    w.open('{');
    w.key("name");
    w.optional_string(d.name);
    w.field("bytes", d.bytes);
    w.key("endian");
    w.optional_string(d.endian);
    w.key("components");
    w.open('[');
}

void write_component(json_writer& w, const map_node& n) {
    w.item();
    write_node(w, n);
    w.out.spill();
}

void write_domain_tail(json_writer& w) {
    w.close(']');
    w.close('}');
}

void write_tail(json_writer& w) {
    w.close(']');
    w.close('}');
    w.out.text += '\n';
    w.out.spill(0);
}

void write_document(json_writer& w, const resolved_map& map) {
    write_head(w, map);
    for (const map_domain& d : map.domains) {
        write_domain_head(w, d);
        for (const map_node& n : d.components) {
            write_component(w, n);
        }
        write_domain_tail(w);
    }
    write_tail(w);
}

} // namespace

std::string map_json(const resolved_map& map) {
    json_writer w(nullptr);
    write_document(w, map);
    return std::move(w.out.text);
}

void map_json(const resolved_map& map, std::FILE* out) {
    json_writer w(out);
    write_document(w, map);
}

void map_json(const char* top, std::FILE* out) {
    json_writer w(out);
    resolve_map(top, {[&](const resolved_map& map) { write_head(w, map); },
                      [&](const map_domain& d) { write_domain_head(w, d); },
                      [&](const map_node& n) { write_component(w, n); },
                      [&](const map_domain&) { write_domain_tail(w); }});
    write_tail(w);
}
