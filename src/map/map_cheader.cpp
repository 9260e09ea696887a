#include <cctype>
#include <limits>
#include <unordered_map>

#include "map/map_outputs.hpp"

namespace {

std::string macro_name(std::string_view text) {
    std::string out;
    for (const char c : text) {
        out += isalnum(static_cast<unsigned char>(c)) ? static_cast<char>(toupper(c)) : '_';
    }
    return out;
}

std::string ull(uint64_t v) {
    return hex_text(v) + "ULL";
}

std::string unsigned_decimal(uint64_t v) {
    return std::to_string(v) + "U";
}

// The header's lines, and who asked for each macro: one name from two paths is an error,
// since the second definition would silently win or fail to compile.
class macro_set {
  public:
    std::string text;
    std::string error;

    void define(const std::string& name, const std::string& value, const std::string& path,
                const std::string& params = "") {
        const auto [it, fresh] = owner_.emplace(name, path);
        if (!fresh) {
            if (it->second != path && error.empty()) {
                error =
                    "macro " + name + " stands for both '" + it->second + "' and '" + path + "'";
            }
            return;
        }
        text += "#define " + name + params + " " + value + "\n";
    }

  private:
    std::unordered_map<std::string, std::string> owner_;
};

// One index a level of array on the way down: the stride that index steps by.
using indexes = std::vector<uint64_t>;

std::string parameters(size_t n) {
    if (n == 0) {
        return "";
    }
    if (n == 1) {
        return "(i)";
    }
    std::string s = "(";
    for (size_t k = 0; k < n; ++k) {
        s += (k == 0 ? "i" : ", i") + std::to_string(k);
    }
    return s + ")";
}

std::string address_value(uint64_t address, const indexes& strides) {
    if (strides.empty()) {
        return ull(address);
    }
    std::string s = "(" + ull(address);
    for (size_t k = 0; k < strides.size(); ++k) {
        const std::string index = strides.size() == 1 ? "i" : "i" + std::to_string(k);
        s += " + " + ull(strides[k]) + " * (" + index + ")";
    }
    return s + ")";
}

std::string enum_value(long long v) {
    if (v == std::numeric_limits<long long>::min()) {
        return "(-9223372036854775807LL - 1)"; // no literal holds it
    }
    return v < 0 ? "(" + std::to_string(v) + "LL)" : ull(static_cast<uint64_t>(v));
}

void field_macros(macro_set& out, const std::string& prefix, const std::string& path,
                  const map_field& f) {
    const std::string name = prefix + "_" + macro_name(f.name);
    const std::string fpath = path + "." + f.name;
    out.define(name + "_SHIFT", unsigned_decimal(f.lsb), fpath);
    out.define(name + "_WIDTH", unsigned_decimal(f.width), fpath);
    // A mask beyond bit 63 has no literal.
    if (f.lsb + f.width <= 64) {
        out.define(name + "_MASK", ull(field_mask(f)), fpath);
    }
    if (const auto reset = reset_value(f)) {
        out.define(name + "_RESET", ull(*reset), fpath);
    }
    for (const map_enum& e : f.enums) {
        out.define(name + "_" + macro_name(e.name), enum_value(e.value), fpath + "." + e.name);
    }
}

void node_macros(macro_set& out, const map_node& n, const std::string& domain, indexes strides) {
    // Several domains: the domain's name follows the top's, as one path may stand in each.
    std::string path = n.path;
    if (!domain.empty()) {
        path.insert(path.find('.'), "." + domain);
    }
    const std::string prefix = macro_name(path);
    if (n.count > 1) {
        strides.push_back(n.stride);
    }
    if (n.placed && !n.unmapped) {
        out.define(prefix + "_ADDR", address_value(n.address, strides), path,
                   parameters(strides.size()));
    }
    if (n.count > 1) {
        out.define(prefix + "_COUNT", unsigned_decimal(n.count), path);
        out.define(prefix + "_STRIDE", ull(n.stride), path);
    }
    const bool reg = n.kind == map_kind::reg || n.kind == map_kind::vreg;
    out.define(prefix + "_SIZE", unsigned_decimal(reg ? n.bytes : n.size), path);
    if (n.kind == map_kind::memory) {
        out.define(prefix + "_WORDS", unsigned_decimal(n.words), path);
    }
    for (const map_field& f : n.fields) {
        if (!is_reserved(f)) {
            field_macros(out, prefix, path, f);
        }
    }
    for (const map_node& c : n.components) {
        node_macros(out, c, domain, strides);
    }
}

} // namespace

map_written map_c_header(const resolved_map& map) {
    macro_set macros;
    for (const map_domain& d : map.domains) {
        const std::string domain = map.domains.size() > 1 ? d.name : "";
        for (const map_node& n : d.components) {
            node_macros(macros, n, domain, {});
        }
    }
    if (!macros.error.empty()) {
        return {"", std::move(macros.error)};
    }
    const std::string guard = macro_name(map.top) + "_MAP_H";
    std::string text =
        "/* Register map of " + map.top +
        ", written by brixmap " BRIX_VERSION ". Addresses are bytes from the top's base. */\n"
        "#ifndef " +
        guard + "\n#define " + guard + "\n\n" + macros.text + "\n#endif /* " + guard + " */\n";
    return {std::move(text), ""};
}
