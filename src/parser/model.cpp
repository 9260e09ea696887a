#include "parser/model.hpp"

#include <cstring>
#include <string>
#include <deque>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

brix_block_type_tag* all_block_types = nullptr;
brix_system_type_tag* all_system_types = nullptr;

namespace {
// The constant defaults that no one may free.
char default_access_rw[] = "rw";
char default_noise_ro[] = "ro";

// The five initialisers without `_defaults` in their name guard against a null record.
bool null_record(const void* p, const char* warning) {
    if (p == nullptr) {
        brix_warn(warning);
        return true;
    }
    return false;
}
} // namespace

void initialize_cvr_spec(brix_cvr_spec_tag* spec) {
    // Only the low six bits are ever read; the rest of the word is left as it was.
    spec->addr_map = 3;
    spec->reg_bits = 3;
    spec->field_vals = 3;
}

brix_cvr_spec_tag* new_all_unsaid_cvr_spec() {
    auto* spec = brix_new_record<brix_cvr_spec_tag>();
    std::memset(spec, 0, sizeof *spec);
    initialize_cvr_spec(spec);
    return spec;
}

brix_cvr_spec_tag* get_cvr_spec(const char* text) {
    if (text == nullptr) {
        return nullptr;
    }
    brix_cvr_spec_tag* spec = new_all_unsaid_cvr_spec();
    for (const char* p = text; p[0] != '\0'; p += 2) {
        const char sign = p[0];
        const char letter = p[1];
        if ((sign != '+' && sign != '-') || (letter != 'a' && letter != 'b' && letter != 'f')) {
            brix_yyerror("Error: Invalid 'cover' specification...please check.");
        }
        const unsigned value = sign == '+' ? 1 : 0;
        if (letter == 'a') {
            spec->addr_map = value;
        } else if (letter == 'b') {
            spec->reg_bits = value;
        } else {
            spec->field_vals = value;
        }
    }
    return spec;
}

namespace {
// A place packs a file's number, counted from 1, in the 7 bits below the top one and the
// line in the 24 bits below those. With the top bit set, the rest is the number of a whole
// position in the table of wide ones.
constexpr uint32_t wide_place = 0x80000000U;
constexpr int line_bits = 24;
constexpr uint32_t packed_files = 0x7FU;
constexpr unsigned long long packed_lines = (1ULL << line_bits) - 1;

struct src_tables {
    std::deque<std::string> files; // in place, for the pointers handed out
    std::unordered_map<std::string_view, uint32_t> numbers;
    std::vector<std::pair<uint32_t, unsigned long long>> wide; // file number and line
};

src_tables& tables() {
    static src_tables t;
    return t;
}

uint32_t file_number(const char* name) {
    auto& t = tables();
    const auto it = t.numbers.find(name);
    if (it != t.numbers.end()) {
        return it->second;
    }
    const auto number = static_cast<uint32_t>(t.files.size() + 1);
    t.numbers.emplace(t.files.emplace_back(name), number);
    return number;
}

std::pair<uint32_t, unsigned long long> unpacked(uint32_t place) {
    if ((place & wide_place) != 0) {
        return tables().wide[place & ~wide_place];
    }
    return {place >> line_bits, place & packed_lines};
}
} // namespace

const char* brix_src_pos::file() const {
    const uint32_t number = unpacked(place).first;
    return number == 0 ? nullptr : tables().files[number - 1].c_str();
}

unsigned long long brix_src_pos::line() const {
    return unpacked(place).second;
}

brix_src_pos brix_here() {
    // Hash lines name the same file many times over: the last one's number is kept.
    static std::string last_name;
    static uint32_t last = 0;
    if (last == 0 || last_name != brix_src_file_name) {
        last_name = brix_src_file_name;
        last = file_number(brix_src_file_name);
    }
    if (last <= packed_files && brix_src_file_linenum <= packed_lines) {
        return {(last << line_bits) | static_cast<uint32_t>(brix_src_file_linenum)};
    }
    auto& wide = tables().wide;
    wide.emplace_back(last, brix_src_file_linenum);
    return {static_cast<uint32_t>(wide.size() - 1) | wide_place};
}

void initialize_constraint_defaults(brix_constraint_tag* c) {
    *c = {nullptr, nullptr, nullptr};
}

void initialize_doc_defaults(brix_doc* d) {
    d->text = nullptr;
}

void initialize_hdl_path_defaults(brix_hdl_path_tag* p) {
    p->is_vhdl = 0;
    p->path = nullptr;
    p->next = nullptr;
}

void initialize_enum_name_declaration(brix_enum_name_declaration* d) {
    if (!null_record(d, "initialize_enum_name_declaration(...) - NULL parameter received.")) {
        *d = {nullptr, nullptr};
    }
}

void initialize_enum_type(brix_enum_type* e) {
    if (!null_record(e, "initialize_enum_type(...) - NULL parameter received.")) {
        *e = {nullptr, nullptr};
    }
}

void initialize_cvr_bin_value(brix_cvr_bin_value* v) {
    if (!null_record(v, "initialize_cvr_bin_val(...) - NULL parameter received.")) {
        *v = {0, nullptr};
    }
}

void initialize_cvr_bin(brix_cvr_bin* b) {
    if (!null_record(b, "initialize_cvr_bin(...) - NULL parameter received.")) {
        b->name = nullptr;
        b->auto_bins = 0;
        b->num_bins = -1;
        b->values = nullptr;
    }
}

void initialize_cvr_pnt(brix_cvr_pnt* p) {
    if (!null_record(p, "initialize_cvr_pnt(...) - NULL parameter received.")) {
        p->bins = nullptr;
    }
}

void initialize_field_type_defaults(brix_field_type_tag* t) {
    *t = {};
    t->bits = 1;
    t->access = default_access_rw;
    t->src = brix_here();
}

void initialize_field_defaults(brix_field_tag* f) {
    *f = {};
    f->src = brix_here();
}

void initialize_register_type_defaults(brix_register_type_tag* t) {
    *t = {};
    t->bytes = -1;
    t->left_to_right = -1;
    t->is_shared = -1;
    t->noise = default_noise_ro;
    t->src = brix_here();
}

void initialize_register_defaults(brix_register_tag* r) {
    *r = {};
    r->array_size = -1;
    r->src = brix_here();
}

void initialize_vregister_type_defaults(brix_vregister_type_tag* t) {
    *t = {};
    t->bytes = -1;
    t->left_to_right = -1;
    t->src = brix_here();
}

void initialize_vregister_defaults(brix_vregister_tag* v) {
    *v = {};
    v->array_size = -1;
    v->src = brix_here();
}

void initialize_mem_initial_defaults(brix_mem_initial* i) {
    *i = {nullptr, 0, 0};
}

void initialize_memory_type_defaults(brix_memory_type_tag* t) {
    *t = {};
    t->access = default_access_rw;
    t->noise = default_noise_ro;
    t->is_shared = -1;
    t->src = brix_here();
}

void initialize_memory_defaults(brix_memory_tag* m) {
    *m = {};
    m->src = brix_here();
}

void initialize_regfile_type_defaults(brix_regfile_type_tag* t) {
    *t = {};
    t->src = brix_here();
}

void initialize_regfile_defaults(brix_regfile_tag* r) {
    *r = {};
    r->array_size = -1;
    r->src = brix_here();
}

void initialize_block_domain_defaults(brix_block_domain_tag* d) {
    *d = {};
    d->bytes = -1;
}

void initialize_block_type_defaults(brix_block_type_tag* t) {
    *t = {};
    t->src = brix_here();
}

void initialize_block_defaults(brix_block_tag* b) {
    *b = {};
    b->array_size = -1;
    b->src = brix_here();
}

void initialize_system_domain_defaults(brix_system_domain_tag* d) {
    *d = {};
    d->bytes = -1;
}

void initialize_system_type_defaults(brix_system_type_tag* t) {
    *t = {};
    t->src = brix_here();
}

void initialize_system_defaults(brix_system_tag* s) {
    *s = {};
    s->array_size = -1;
    s->src = brix_here();
}
