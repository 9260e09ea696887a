#include <algorithm>
#include <cstring>
#include <map>
#include <set>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <unordered_set>

#include "map/map_outputs.hpp"
#include "parser/scope.hpp"

namespace {

enum class severity { error, warning, note };

struct finding {
    std::string file;
    unsigned long long line;
    severity level;
    std::string message;
    const char* id;

    bool operator<(const finding& o) const {
        return std::tie(file, line, message, id) < std::tie(o.file, o.line, o.message, o.id);
    }
};

using findings = std::set<finding>;

void report(findings& out, const brix_src_pos& at, severity level, std::string message,
            const char* id) {
    out.insert({at.file() != nullptr ? at.file() : "", at.line(), level, std::move(message), id});
}

std::string quoted(const std::string& s) {
    return "'" + s + "'";
}

// Of a pair, the finding stands at the declaration that comes later in the files.
const brix_src_pos& later(const brix_src_pos& a, const brix_src_pos& b) {
    const auto key = [](const brix_src_pos& p) {
        return std::make_tuple(std::string_view(p.file() != nullptr ? p.file() : ""), p.line());
    };
    return key(a) < key(b) ? b : a;
}

// ---- overlap ------------------------------------------------------------------------

struct range {
    uint64_t first;
    uint64_t last; // inclusive, so that a range reaching 2^64 - 1 still fits
    const map_node* node;
};

// Arrays of more elements than this are taken as one range from first to last byte.
constexpr uint64_t max_elements = 1 << 16;

void add_ranges(std::vector<range>& ranges, const map_node& n) {
    if (n.unmapped || n.kind == map_kind::vreg || n.size == 0) {
        return;
    }
    if (n.count > 1 && n.count <= max_elements && n.stride >= n.size) {
        for (uint64_t i = 0; i < n.count; ++i) {
            const uint64_t first = n.address + i * n.stride;
            ranges.push_back({first, first + n.size - 1, &n});
        }
        return;
    }
    const uint64_t span = (n.count - 1) * n.stride + n.size;
    ranges.push_back({n.address, n.address + span - 1, &n});
}

std::string hex(uint64_t v) {
    char buf[24];
    snprintf(buf, sizeof buf, "0x%llX", static_cast<unsigned long long>(v));
    return buf;
}

void check_overlap(findings& out, const std::vector<map_node>& list) {
    std::vector<range> ranges;
    for (const map_node& n : list) {
        add_ranges(ranges, n);
    }
    std::sort(ranges.begin(), ranges.end(),
              [](const range& a, const range& b) { return a.first < b.first; });
    std::set<std::pair<const map_node*, const map_node*>> seen;
    const range* reach = nullptr; // the range seen so far that ends last
    for (const range& r : ranges) {
        if (reach != nullptr && r.first <= reach->last && r.node != reach->node &&
            seen.emplace(reach->node, r.node).second) {
            const map_node& a = *reach->node;
            const map_node& b = *r.node;
            report(out, later(a.src, b.src), severity::error,
                   std::string(map_kind_name(b.kind)) + " " + quoted(b.path) + " at " +
                       hex(r.first) + " overlaps " + map_kind_name(a.kind) + " " + quoted(a.path) +
                       " (" + hex(reach->first) + ".." + hex(reach->last) + ")",
                   "overlap");
        }
        if (reach == nullptr || r.last > reach->last) {
            reach = &r;
        }
    }
}

// ---- fields -------------------------------------------------------------------------

std::string bits(uint64_t last, uint64_t first) {
    return last == first ? std::to_string(first)
                         : std::to_string(last) + ":" + std::to_string(first);
}

void check_field_overlap(findings& out, const map_node& n) {
    std::vector<const map_field*> fields;
    for (const map_field& f : n.fields) {
        fields.push_back(&f);
    }
    std::stable_sort(fields.begin(), fields.end(),
                     [](const map_field* a, const map_field* b) { return a->lsb < b->lsb; });
    const map_field* reach = nullptr;
    for (const map_field* f : fields) {
        if (reach != nullptr && f->lsb < reach->lsb + reach->width) {
            const uint64_t last = std::min(f->lsb + f->width, reach->lsb + reach->width) - 1;
            report(out, later(f->record->src, reach->record->src), severity::error,
                   "fields " + quoted(reach->name) + " and " + quoted(f->name) + " of " +
                       quoted(n.type) + " share bits " + bits(last, f->lsb),
                   "field-overlap");
        }
        if (reach == nullptr || f->lsb + f->width > reach->lsb + reach->width) {
            reach = f;
        }
    }
}

bool fits(uint64_t value, uint64_t width) {
    return width >= 64 || value >> width == 0;
}

void check_reset_width(findings& out, const map_node& n, const map_field& f) {
    const auto too_wide = [&](const char* what, const std::string& text) {
        report(out, f.record->src, severity::error,
               std::string(what) + " " + text + " of field " + quoted(f.name) + " of " +
                   quoted(n.type) + " does not fit in " + std::to_string(f.width) + " bits",
               "reset-width");
    };
    for (const auto& [what, text] :
         {std::pair("reset", f.hard_reset), std::pair("soft reset", f.soft_reset)}) {
        if (text) {
            if (const auto v = number_of(*text); v && !fits(*v, f.width)) {
                too_wide(what, *text);
            }
        }
    }
    for (const map_enum& e : f.enums) {
        if (e.value < 0 || !fits(static_cast<uint64_t>(e.value), f.width)) {
            too_wide("enum value", quoted(e.name) + " = " + std::to_string(e.value));
        }
    }
}

// ---- names --------------------------------------------------------------------------

// IEEE 1800-2017, Annex B.
const std::unordered_set<std::string_view>& sv_keywords() {
    static const std::unordered_set<std::string_view> words = {"accept_on",
                                                               "alias",
                                                               "always",
                                                               "always_comb",
                                                               "always_ff",
                                                               "always_latch",
                                                               "and",
                                                               "assert",
                                                               "assign",
                                                               "assume",
                                                               "automatic",
                                                               "before",
                                                               "begin",
                                                               "bind",
                                                               "bins",
                                                               "binsof",
                                                               "bit",
                                                               "break",
                                                               "buf",
                                                               "bufif0",
                                                               "bufif1",
                                                               "byte",
                                                               "case",
                                                               "casex",
                                                               "casez",
                                                               "cell",
                                                               "chandle",
                                                               "checker",
                                                               "class",
                                                               "clocking",
                                                               "cmos",
                                                               "config",
                                                               "const",
                                                               "constraint",
                                                               "context",
                                                               "continue",
                                                               "cover",
                                                               "covergroup",
                                                               "coverpoint",
                                                               "cross",
                                                               "deassign",
                                                               "default",
                                                               "defparam",
                                                               "design",
                                                               "disable",
                                                               "dist",
                                                               "do",
                                                               "edge",
                                                               "else",
                                                               "end",
                                                               "endcase",
                                                               "endchecker",
                                                               "endclass",
                                                               "endclocking",
                                                               "endconfig",
                                                               "endfunction",
                                                               "endgenerate",
                                                               "endgroup",
                                                               "endinterface",
                                                               "endmodule",
                                                               "endpackage",
                                                               "endprimitive",
                                                               "endprogram",
                                                               "endproperty",
                                                               "endspecify",
                                                               "endsequence",
                                                               "endtable",
                                                               "endtask",
                                                               "enum",
                                                               "event",
                                                               "eventually",
                                                               "expect",
                                                               "export",
                                                               "extends",
                                                               "extern",
                                                               "final",
                                                               "first_match",
                                                               "for",
                                                               "force",
                                                               "foreach",
                                                               "forever",
                                                               "fork",
                                                               "forkjoin",
                                                               "function",
                                                               "generate",
                                                               "genvar",
                                                               "global",
                                                               "highz0",
                                                               "highz1",
                                                               "if",
                                                               "iff",
                                                               "ifnone",
                                                               "ignore_bins",
                                                               "illegal_bins",
                                                               "implements",
                                                               "implies",
                                                               "import",
                                                               "incdir",
                                                               "include",
                                                               "initial",
                                                               "inout",
                                                               "input",
                                                               "inside",
                                                               "instance",
                                                               "int",
                                                               "integer",
                                                               "interconnect",
                                                               "interface",
                                                               "intersect",
                                                               "join",
                                                               "join_any",
                                                               "join_none",
                                                               "large",
                                                               "let",
                                                               "liblist",
                                                               "library",
                                                               "local",
                                                               "localparam",
                                                               "logic",
                                                               "longint",
                                                               "macromodule",
                                                               "matches",
                                                               "medium",
                                                               "modport",
                                                               "module",
                                                               "nand",
                                                               "negedge",
                                                               "nettype",
                                                               "new",
                                                               "nexttime",
                                                               "nmos",
                                                               "nor",
                                                               "noshowcancelled",
                                                               "not",
                                                               "notif0",
                                                               "notif1",
                                                               "null",
                                                               "or",
                                                               "output",
                                                               "package",
                                                               "packed",
                                                               "parameter",
                                                               "pmos",
                                                               "posedge",
                                                               "primitive",
                                                               "priority",
                                                               "program",
                                                               "property",
                                                               "protected",
                                                               "pull0",
                                                               "pull1",
                                                               "pulldown",
                                                               "pullup",
                                                               "pulsestyle_ondetect",
                                                               "pulsestyle_onevent",
                                                               "pure",
                                                               "rand",
                                                               "randc",
                                                               "randcase",
                                                               "randsequence",
                                                               "rcmos",
                                                               "real",
                                                               "realtime",
                                                               "ref",
                                                               "reg",
                                                               "reject_on",
                                                               "release",
                                                               "repeat",
                                                               "restrict",
                                                               "return",
                                                               "rnmos",
                                                               "rpmos",
                                                               "rtran",
                                                               "rtranif0",
                                                               "rtranif1",
                                                               "s_always",
                                                               "s_eventually",
                                                               "s_nexttime",
                                                               "s_until",
                                                               "s_until_with",
                                                               "scalared",
                                                               "sequence",
                                                               "shortint",
                                                               "shortreal",
                                                               "showcancelled",
                                                               "signed",
                                                               "small",
                                                               "soft",
                                                               "solve",
                                                               "specify",
                                                               "specparam",
                                                               "static",
                                                               "string",
                                                               "strong",
                                                               "strong0",
                                                               "strong1",
                                                               "struct",
                                                               "super",
                                                               "supply0",
                                                               "supply1",
                                                               "sync_accept_on",
                                                               "sync_reject_on",
                                                               "table",
                                                               "tagged",
                                                               "task",
                                                               "this",
                                                               "throughout",
                                                               "time",
                                                               "timeprecision",
                                                               "timeunit",
                                                               "tran",
                                                               "tranif0",
                                                               "tranif1",
                                                               "tri",
                                                               "tri0",
                                                               "tri1",
                                                               "triand",
                                                               "trior",
                                                               "trireg",
                                                               "type",
                                                               "typedef",
                                                               "union",
                                                               "unique",
                                                               "unique0",
                                                               "unsigned",
                                                               "until",
                                                               "until_with",
                                                               "untyped",
                                                               "use",
                                                               "uwire",
                                                               "var",
                                                               "vectored",
                                                               "virtual",
                                                               "void",
                                                               "wait",
                                                               "wait_order",
                                                               "wand",
                                                               "weak",
                                                               "weak0",
                                                               "weak1",
                                                               "while",
                                                               "wildcard",
                                                               "wire",
                                                               "with",
                                                               "within",
                                                               "wor",
                                                               "xnor",
                                                               "xor"};
    return words;
}

void check_keyword(findings& out, const std::string& name, const char* what,
                   const brix_src_pos& at) {
    if (sv_keywords().count(name) != 0) {
        report(out, at, severity::error,
               std::string(what) + " name " + quoted(name) +
                   " is a SystemVerilog keyword: the model does not compile",
               "keyword");
    }
}

void check_names(findings& out, const map_node& n) {
    check_keyword(out, n.name, map_kind_name(n.kind), n.src);
    for (const map_field& f : n.fields) {
        check_keyword(out, f.name, "field", f.record->src);
        for (const map_enum& e : f.enums) {
            check_keyword(out, e.name, "enum", f.record->src);
        }
    }
}

const char* class_prefix(map_kind kind) {
    switch (kind) {
    case map_kind::block:
        return "brx_block_";
    case map_kind::system:
        return "brx_sys_";
    case map_kind::regfile:
        return "brx_regfile_";
    case map_kind::reg:
        return "brx_reg_";
    case map_kind::vreg:
        return "brx_vreg_";
    case map_kind::memory:
        break;
    }
    return "brx_mem_";
}

} // namespace

namespace {

struct definition {
    std::string type;
    brix_src_pos src;
};

// Two definitions are one when they stand at one place under one name: copies of a
// definition keep its position.
bool same_definition(const definition& a, const definition& b) {
    return a.type == b.type && a.src.line() == b.src.line() &&
           std::string_view(a.src.file() != nullptr ? a.src.file() : "") ==
               std::string_view(b.src.file() != nullptr ? b.src.file() : "");
}

void check_class_name(findings& out, std::unordered_map<std::string, definition>& classes,
                      const map_node& n, const std::string& type_name) {
    const std::string cls = class_prefix(n.kind) + n.type;
    const definition here{type_name, n.type_src};
    const auto [it, first] = classes.emplace(cls, here);
    if (!first && !same_definition(it->second, here)) {
        report(out, later(it->second.src, here.src), severity::error,
               "two types get the class name " + quoted(cls) +
                   ": one class is missing from "
                   "the model",
               "class-collision");
    }
}

// The type's own name: the class suffix less the scope it was defined in.
std::string type_name_of(const map_node& n) {
    switch (n.kind) {
    case map_kind::reg:
        return static_cast<const brix_register_tag*>(n.record)->type->name;
    case map_kind::memory:
        return static_cast<const brix_memory_tag*>(n.record)->type->name;
    case map_kind::regfile:
        return static_cast<const brix_regfile_tag*>(n.record)->type->name;
    case map_kind::vreg:
        return static_cast<const brix_vregister_tag*>(n.record)->type->name;
    case map_kind::block:
        return static_cast<const brix_block_tag*>(n.record)->type->name;
    case map_kind::system:
        break;
    }
    return static_cast<const brix_system_tag*>(n.record)->type->name;
}

void check_coverage_array(findings& out, const map_node& n, bool in_array) {
    const auto* r = static_cast<const brix_register_tag*>(n.record);
    const brix_cvr_spec_tag* used = r->type->cvr_used;
    const bool wanted = used != nullptr && used->field_vals == 1 && r->cvr_spec != nullptr &&
                        r->cvr_spec->field_vals == 1;
    if (wanted && (in_array || n.count > 1)) {
        const std::string what = n.count > 1 ? "register array " + quoted(n.path)
                                             : "register " + quoted(n.path) + " of a regfile array";
        report(out, n.src, severity::warning,
               "field-value coverage of " + what +
                   ": the model samples it without an index, which does not compile",
               "coverage-array");
    }
}

bool register_has_path(const map_node& n) {
    if (!n.hdl_path.empty()) {
        return true;
    }
    return std::any_of(n.fields.begin(), n.fields.end(),
                       [](const map_field& f) { return f.record->hdl_path != nullptr; });
}

struct walk_state {
    findings& out;
    const map_check_options& options;
    std::unordered_map<std::string, definition> classes;
    std::set<std::string> used; // "file:line:name" of every definition reached
};

std::string definition_key(const brix_src_pos& src, const std::string& name) {
    return std::string(src.file() != nullptr ? src.file() : "") + ":" + std::to_string(src.line()) +
           ":" + name;
}

void check_node(walk_state& s, const map_node& n, bool in_array) {
    const std::string type_name = type_name_of(n);
    check_names(s.out, n);
    check_class_name(s.out, s.classes, n, type_name);
    s.used.insert(definition_key(n.type_src, type_name));
    for (const map_field& f : n.fields) {
        s.used.insert(definition_key(f.record->type->src, f.record->type->name));
        check_reset_width(s.out, n, f);
    }
    if (n.kind == map_kind::reg || n.kind == map_kind::vreg) {
        check_field_overlap(s.out, n);
    }
    if (n.kind == map_kind::reg) {
        check_coverage_array(s.out, n, in_array);
    }
    const bool sub = n.kind == map_kind::block || n.kind == map_kind::system;
    // "%d" alone picks an instance per index when the model is written; "[%d]" stays an
    // index at run time, into an array of module instances.
    if (sub && n.count > 1 && n.hdl_path.find("[%d]") != std::string::npos) {
        report(s.out, n.src, severity::warning,
               "hdl path " + quoted(n.hdl_path) + " of " + map_kind_name(n.kind) + " array " +
                   quoted(n.path) + " has '[%d]': the backdoor indexes a module instance array " +
                   "at run time",
               "block-array-path");
    }
    const bool storage = n.kind == map_kind::reg || n.kind == map_kind::memory;
    if (s.options.backdoor && storage &&
        (n.kind == map_kind::reg ? !register_has_path(n) : n.hdl_path.empty())) {
        report(s.out, n.src, severity::note,
               std::string(map_kind_name(n.kind)) + " " + quoted(n.path) +
                   " has no hdl path: no backdoor",
               "hdl-path");
    }
    check_overlap(s.out, n.components);
    // A block samples the registers of its regfiles by name, arrays without an index; a
    // block of an array has a class of its own, where its registers stand alone.
    const bool regfile_array = n.kind == map_kind::regfile && n.count > 1;
    for (const map_node& c : n.components) {
        check_node(s, c, regfile_array);
    }
}

const char* definition_word(int32_t kind) {
    switch (kind) {
    case BRIX_FIELD_TYPE:
        return "field";
    case BRIX_REGISTER_TYPE:
        return "register";
    case BRIX_VREGISTER_TYPE:
        return "virtual register";
    case BRIX_MEMORY_TYPE:
        return "memory";
    case BRIX_REGFILE_TYPE:
        return "regfile";
    case BRIX_BLOCK_TYPE:
        return "block";
    case BRIX_SYSTEM_TYPE:
        return "system";
    default:
        return nullptr;
    }
}

// Every record kind keeps its position right behind its own fields: read it by kind.
brix_src_pos definition_src(const brix_symrec* s) {
    switch (s->kind) {
    case BRIX_FIELD_TYPE:
        return static_cast<const brix_field_type_tag*>(s->data)->src;
    case BRIX_REGISTER_TYPE:
        return static_cast<const brix_register_type_tag*>(s->data)->src;
    case BRIX_VREGISTER_TYPE:
        return static_cast<const brix_vregister_type_tag*>(s->data)->src;
    case BRIX_MEMORY_TYPE:
        return static_cast<const brix_memory_type_tag*>(s->data)->src;
    case BRIX_REGFILE_TYPE:
        return static_cast<const brix_regfile_type_tag*>(s->data)->src;
    case BRIX_BLOCK_TYPE:
        return static_cast<const brix_block_type_tag*>(s->data)->src;
    default:
        return static_cast<const brix_system_type_tag*>(s->data)->src;
    }
}

void check_unused(walk_state& s, const resolved_map& map) {
    s.used.insert(definition_key(map.src, map.top));
    for (const auto& [bucket, head] : global_scope->bucket_heads) {
        for (const brix_symrec* sym = head; sym != nullptr; sym = sym->next) {
            const char* word = definition_word(sym->kind);
            if (word == nullptr || sym->data == nullptr) {
                continue;
            }
            const brix_src_pos src = definition_src(sym);
            if (s.used.count(definition_key(src, sym->name)) == 0) {
                report(s.out, src, severity::note,
                       std::string(word) + " " + quoted(sym->name) +
                           " is defined but not used under " + quoted(map.top),
                       "unused");
            }
        }
    }
}

} // namespace

map_check_result map_check(const resolved_map& map, const map_check_options& options) {
    findings out;
    walk_state s{out, options, {}, {}};
    for (const map_domain& d : map.domains) {
        check_overlap(out, d.components);
        for (const map_node& n : d.components) {
            check_node(s, n, false);
        }
    }
    check_unused(s, map);
    // Sorted as the lines read: by file, by line, then by the rest of the text.
    std::vector<std::tuple<std::string, unsigned long long, std::string>> lines;
    map_check_result r;
    for (const finding& f : out) {
        severity level = f.level;
        if (level == severity::warning && options.werror) {
            level = severity::error;
        }
        const char* word = level == severity::error     ? "error"
                           : level == severity::warning ? "warning"
                                                        : "note";
        lines.emplace_back(f.file, f.line,
                           std::string(word) + ": " + f.message + " [" + f.id + "]");
        ++(level == severity::error ? r.errors : level == severity::warning ? r.warnings : r.notes);
    }
    std::sort(lines.begin(), lines.end());
    for (const auto& [file, line, text] : lines) {
        r.findings += file + ":" + std::to_string(line) + ": " + text + "\n";
    }
    return r;
}
