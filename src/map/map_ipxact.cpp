#include "map/map_outputs.hpp"

namespace {

// Indented XML, one element a line; text escaped.
class xml_writer {
  public:
    std::string out;

    void open(const std::string& tag, const std::string& attributes = "") {
        indent();
        out += "<ipxact:" + tag + attributes + ">\n";
        ++depth_;
    }
    void close(const std::string& tag) {
        --depth_;
        indent();
        out += "</ipxact:" + tag + ">\n";
    }
    void leaf(const std::string& tag, const std::string& text) {
        indent();
        out += "<ipxact:" + tag + ">" + escaped(text) + "</ipxact:" + tag + ">\n";
    }
    void description(const std::string& doc) {
        if (!doc.empty()) {
            leaf("description", doc);
        }
    }

    static std::string escaped(const std::string& text) {
        std::string s;
        for (const char c : text) {
            switch (c) {
            case '<':
                s += "&lt;";
                break;
            case '>':
                s += "&gt;";
                break;
            case '&':
                s += "&amp;";
                break;
            case '"':
                s += "&quot;";
                break;
            default:
                s += c;
            }
        }
        return s;
    }

  private:
    int depth_ = 0;
    void indent() { out.append(static_cast<size_t>(depth_) * 2, ' '); }
};

std::string literal(uint64_t v) {
    return "'h" + hex_text(v).substr(2);
}

// The standard's access words for ours, with what a write or a read does besides.
struct field_access {
    const char* access;      // nullptr: not told
    const char* write_value; // modifiedWriteValue
    const char* read_action; // readAction
};

field_access access_of(const std::string& word) {
    if (word == "ro" || word == "ru" || word == "a0" || word == "a1") {
        return {"read-only", nullptr, nullptr};
    }
    if (word == "wo") {
        return {"write-only", nullptr, nullptr};
    }
    if (word == "w1") {
        return {"read-writeOnce", nullptr, nullptr};
    }
    if (word == "w1c") {
        return {"read-write", "oneToClear", nullptr};
    }
    if (word == "rc") {
        return {"read-only", nullptr, "clear"};
    }
    if (word == "rw" || word == "dc") {
        return {"read-write", nullptr, nullptr};
    }
    return {nullptr, nullptr, nullptr}; // other, user0..3: the description does not say
}

void write_resets(xml_writer& w, const map_field& f) {
    const auto hard = reset_value(f);
    const auto soft = f.soft_reset ? number_of(*f.soft_reset) : std::nullopt;
    if (!f.hard_reset && !soft) {
        return;
    }
    w.open("resets");
    if (f.hard_reset && hard) {
        w.open("reset");
        w.leaf("value", literal(*hard));
        w.close("reset");
    }
    if (soft) {
        w.open("reset", " resetTypeRef=\"SOFT\"");
        w.leaf("value", literal(*soft));
        w.close("reset");
    }
    w.close("resets");
}

void write_field(xml_writer& w, const map_field& f) {
    const bool reserved = is_reserved(f);
    const field_access a =
        reserved ? field_access{"read-only", nullptr, nullptr} : access_of(f.access);
    w.open("field");
    // Gaps may repeat a name; the standard wants field names unique in a register.
    w.leaf("name", reserved ? f.name + "_" + std::to_string(f.lsb) : f.name);
    w.description(f.doc);
    w.leaf("bitOffset", std::to_string(f.lsb));
    if (!reserved) {
        write_resets(w, f);
    }
    w.leaf("bitWidth", std::to_string(f.width));
    if (a.access != nullptr) {
        w.leaf("access", a.access);
    }
    if (!f.enums.empty()) {
        w.open("enumeratedValues");
        for (const map_enum& e : f.enums) {
            w.open("enumeratedValue");
            w.leaf("name", e.name);
            w.leaf("value",
                   e.value < 0 ? std::to_string(e.value) : literal(static_cast<uint64_t>(e.value)));
            w.close("enumeratedValue");
        }
        w.close("enumeratedValues");
    }
    if (a.write_value != nullptr) {
        w.leaf("modifiedWriteValue", a.write_value);
    }
    if (a.read_action != nullptr) {
        w.leaf("readAction", a.read_action);
    }
    if (reserved) {
        w.leaf("reserved", "true");
    }
    w.close("field");
}

void write_register(xml_writer& w, const map_node& n, const std::string& name, uint64_t offset,
                    uint64_t count) {
    w.open("register");
    w.leaf("name", name);
    w.description(n.doc);
    if (count > 1) {
        w.leaf("dim", std::to_string(count));
    }
    w.leaf("addressOffset", literal(offset));
    w.leaf("typeIdentifier", n.type);
    w.leaf("size", std::to_string(n.bytes * 8));
    for (const map_field& f : n.fields) {
        write_field(w, f);
    }
    w.close("register");
}

void write_registers(xml_writer& w, const std::vector<map_node>& nodes, uint64_t base);

void write_regfile(xml_writer& w, const map_node& n, uint64_t base) {
    w.open("registerFile");
    w.leaf("name", n.name);
    w.description(n.doc);
    if (n.count > 1) {
        w.leaf("dim", std::to_string(n.count));
    }
    w.leaf("addressOffset", literal(n.address - base));
    w.leaf("typeIdentifier", n.type);
    // The elements of a dimension follow each other by the range.
    w.leaf("range", std::to_string(n.count > 1 ? n.stride : n.size));
    write_registers(w, n.components, n.address);
    w.close("registerFile");
}

// Registers and register files at offsets from `base`; memories and virtual registers
// stand elsewhere.
void write_registers(xml_writer& w, const std::vector<map_node>& nodes, uint64_t base) {
    for (const map_node& n : nodes) {
        if (n.unmapped) {
            continue;
        }
        if (n.kind == map_kind::regfile) {
            write_regfile(w, n, base);
        } else if (n.kind == map_kind::reg && (n.count == 1 || n.stride == n.bytes)) {
            write_register(w, n, n.name, n.address - base, n.count);
        } else if (n.kind == map_kind::reg) {
            // A dimension packs its elements by their size: other strides are unrolled.
            for (uint64_t i = 0; i < n.count; ++i) {
                write_register(w, n, n.name + "_" + std::to_string(i),
                               n.address - base + i * n.stride, 1);
            }
        }
    }
}

struct block_site {
    std::string name;
    uint64_t delta; // from the first element of every array on the way
};

void write_memories(xml_writer& w, const std::vector<map_node>& nodes, const block_site& at) {
    for (const map_node& n : nodes) {
        if (n.kind != map_kind::memory || n.unmapped) {
            continue;
        }
        for (uint64_t i = 0; i < n.count; ++i) {
            w.open("addressBlock");
            w.leaf("name", at.name + "_" + n.name + (n.count > 1 ? "_" + std::to_string(i) : ""));
            w.description(n.doc);
            w.leaf("baseAddress", literal(n.address + at.delta + i * n.stride));
            w.leaf("typeIdentifier", n.type);
            w.leaf("range", std::to_string(n.size));
            w.leaf("width", std::to_string(n.bits));
            w.leaf("usage", "memory");
            w.leaf("access", n.access == "ro" ? "read-only" : "read-write");
            w.close("addressBlock");
        }
    }
}

void write_block(xml_writer& w, const map_node& n, const block_site& at, uint64_t word_bits) {
    w.open("addressBlock");
    w.leaf("name", at.name);
    w.description(n.doc);
    w.leaf("baseAddress", literal(n.address + at.delta));
    w.leaf("typeIdentifier", n.type);
    w.leaf("range", std::to_string(n.size));
    w.leaf("width", std::to_string(word_bits));
    w.leaf("usage", "register");
    write_registers(w, n.components, n.address);
    w.close("addressBlock");
    write_memories(w, n.components, at);
}

// The address blocks of a system's blocks, its subsystems' flattened into it.
void write_system(xml_writer& w, const std::vector<map_node>& nodes, const block_site& at,
                  uint64_t word_bits) {
    for (const map_node& n : nodes) {
        if (n.unmapped || (n.kind != map_kind::block && n.kind != map_kind::system)) {
            continue;
        }
        for (uint64_t i = 0; i < n.count; ++i) {
            const block_site site{(at.name.empty() ? "" : at.name + "_") + n.name +
                                      (n.count > 1 ? "_" + std::to_string(i) : ""),
                                  at.delta + i * n.stride};
            if (n.kind == map_kind::block) {
                write_block(w, n, site, word_bits);
            } else {
                write_system(w, n.components, site, word_bits);
            }
        }
    }
}

bool has_soft_reset(const resolved_map& map) {
    bool soft = false;
    for_each_node(map, [&](const map_node& n) {
        for (const map_field& f : n.fields) {
            soft = soft || (f.soft_reset && number_of(*f.soft_reset));
        }
    });
    return soft;
}

void write_domain(xml_writer& w, const resolved_map& map, const map_domain& d) {
    w.open("memoryMap");
    w.leaf("name", d.name.empty() ? map.top : d.name);
    const uint64_t word_bits = d.bytes * 8;
    if (map.kind == map_kind::system) {
        write_system(w, d.components, {"", 0}, word_bits);
    } else {
        map_node top{};
        top.kind = map_kind::block;
        top.type = map.top;
        top.doc = map.doc;
        for (const map_node& n : d.components) {
            top.size = std::max(top.size, n.address + (n.count - 1) * n.stride + n.size);
        }
        top.components = d.components;
        write_block(w, top, {map.top, 0}, word_bits);
    }
    w.leaf("addressUnitBits", "8");
    w.close("memoryMap");
}

} // namespace

std::string map_ipxact(const resolved_map& map, const ipxact_vlnv& vlnv) {
    const auto or_default = [](const std::string& s, const std::string& d) {
        return s.empty() ? d : s;
    };
    xml_writer w;
    w.out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<!-- Register map of " +
            map.top + ", written by brixmap " BRIX_VERSION ". -->\n";
    w.open("component", " xmlns:ipxact=\"http://www.accellera.org/XMLSchema/IPXACT/1685-2014\""
                        " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
                        " xsi:schemaLocation=\"http://www.accellera.org/XMLSchema/IPXACT/1685-2014"
                        " http://www.accellera.org/XMLSchema/IPXACT/1685-2014/index.xsd\"");
    w.leaf("vendor", or_default(vlnv.vendor, "local"));
    w.leaf("library", or_default(vlnv.library, "brix"));
    w.leaf("name", or_default(vlnv.name, map.top));
    w.leaf("version", or_default(vlnv.version, "1.0"));
    w.open("memoryMaps");
    for (const map_domain& d : map.domains) {
        write_domain(w, map, d);
    }
    w.close("memoryMaps");
    if (has_soft_reset(map)) {
        w.open("resetTypes");
        w.open("resetType");
        w.leaf("name", "SOFT");
        w.description("the soft reset of the description");
        w.close("resetType");
        w.close("resetTypes");
    }
    w.description(map.doc);
    w.close("component");
    return std::move(w.out);
}
