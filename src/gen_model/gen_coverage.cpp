#include "gen_model/gen_coverage.hpp"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <tuple>
#include <unordered_set>
#include <utility>
#include <vector>

#include "driver/options.hpp"
#include "gen_model/gen_support.hpp"
#include "semantic/semantic.hpp"

using namespace brix_gen;

namespace {

const brix_cvr_templates& C() {
    return *brix_cvr_lang;
}

// A model is on in a spec only when its setting is exactly 1.
bool field_vals_on(const brix_cvr_spec_tag* s) {
    return s != nullptr && s->field_vals == 1;
}
bool reg_bits_on(const brix_cvr_spec_tag* s) {
    return s != nullptr && s->reg_bits == 1;
}
bool addr_map_on(const brix_cvr_spec_tag* s) {
    return s != nullptr && s->addr_map == 1;
}

// One line of generated text at `n` tabs.
template <class... A> void at(int n, const char* fmt, const A&... a) {
    indent_code(n, brx_model_fp);
    brix_emit(fmt, a...);
}

// 2^w - k in 64 bits, wrapping as the power does for widths of 64 and more.
unsigned long long all_ones_less(uint32_t w, unsigned long long k) {
    return static_cast<unsigned long long>(brix_pow(2, static_cast<int32_t>(w))) - k;
}

// The products of crosses over wide bins wrap like their sums (wrapping_add).
long long wrapping_mul(long long a, long long b) {
    return static_cast<long long>(static_cast<unsigned long long>(a) *
                                  static_cast<unsigned long long>(b));
}

// ---- Field values -------------------------------------------------------------------

// Bins of an enum field, one an enum name, and their number.
long long emit_field_enum_bins(const brix_enum_type* e, int indent) {
    if (e == nullptr) {
        brix_error("Error - INTERNAL - emit_field_enum_bins(...) - NULL param received.\n");
    }
    if (e->names == nullptr) {
        brix_error("Error - INTERNAL - emit_field_enum_bins(...) - Invalid enum specification "
                   "received.\n");
    }
    long long v = -1;
    long long count = 0;
    for (const brix_list_tag* n = e->names; n != nullptr; n = n->next) {
        const auto* decl = static_cast<const brix_enum_name_declaration*>(n->data);
        v = next_enum_value(decl->value, v);
        at(indent, C().fv_enum_bin, decl->name, v);
        ++count;
    }
    return count;
}

// The coverpoint of one field; returns its number of bins.
long long emit_field_value_point(const brix_register_type_tag* t, const brix_field_tag* f,
                                 int indent, const brix_enum_table& enums) {
    at(indent, C().fv_point_head, f->name, f->name);
    const brix_field_type_tag* ft = f->type;
    const uint32_t w = ft->bits;
    if (ft->coverpoint != nullptr) {
        brix_emit(C().fv_body_open);
        static const brix_enum_values no_enum;
        const auto found = enums.find(f->name);
        const std::string class_name = "brx_fld_" + suffix_of(t) + "_" + f->name;
        return emit_coverpoint_bins(ft->coverpoint, indent + 1,
                                    found != enums.end() ? found->second : no_enum,
                                    class_name.c_str());
    }
    if (ft->enum_type != nullptr) {
        brix_emit(C().fv_body_open);
        return emit_field_enum_bins(ft->enum_type, indent + 1);
    }
    if (w <= 4) {
        brix_emit(C().fv_small_open, static_cast<int>(w) - 1);
        return brix_pow(2, static_cast<int32_t>(w));
    }
    brix_emit(C().fv_body_open);
    const int bits = static_cast<int>(w);
    at(indent + 1, C().fv_min, bits);
    at(indent + 1, C().fv_max, bits, all_ones_less(w, 1));
    at(indent + 1, C().fv_others, bits, bits, all_ones_less(w, 2));
    return 3;
}

// One end of a range, or a single value, as written in a bin.
void emit_bin_value(const brix_cvr_bin_value* v, const char* class_name) {
    if (v->kind == 2) {
        brix_emit("%s", static_cast<const char*>(v->value));
        return;
    }
    if (v->kind == 1) {
        if (class_name != nullptr) {
            brix_emit(C().bin_enum_class, class_name);
        }
        brix_emit("%s", static_cast<const char*>(v->value));
        return;
    }
    brix_error("emit_coverpoint_bins(...) - Invalid cover 'bins' spec found.\n");
}

// The integer a bin value stands for.
long long bin_number(const brix_cvr_bin_value* v, const brix_enum_values& enum_values) {
    if (v->kind == 2) {
        return strtol(static_cast<const char*>(v->value), nullptr, 10);
    }
    if (v->kind == 1) {
        const auto* name = static_cast<const char*>(v->value);
        const auto found = enum_values.find(name);
        if (found == enum_values.end()) {
            brix_error("calc_bin_weight(...) - Undefined enumeration const '%s' used.\n", name);
        }
        return found->second;
    }
    brix_error("calc_bin_weight(...) - Invalid Cover BIN spec found.\n");
}

} // namespace

int hdl_xmr_brix_hierarchy(const brix_list_tag* list) {
    for (const brix_list_tag* n = list; n != nullptr; n = n->next) {
        const brix_hdl_path_tag* path = nullptr;
        switch (n->tag) {
        case BRIX_SYSTEM:
            path = static_cast<const brix_system_tag*>(n->data)->hdl_path;
            break;
        case BRIX_BLOCK:
            path = static_cast<const brix_block_tag*>(n->data)->hdl_path;
            break;
        case BRIX_REGFILE:
            path = static_cast<const brix_regfile_tag*>(n->data)->hdl_path;
            break;
        case BRIX_REGISTER:
            path = static_cast<const brix_register_tag*>(n->data)->hdl_path;
            break;
        default:
            break;
        }
        if (path != nullptr && path->is_vhdl) {
            return 1;
        }
    }
    return 0;
}

long long calc_bin_weight(const brix_cvr_bin* bin, const brix_enum_values& enum_values) {
    if (bin == nullptr) {
        brix_error("calc_bin_weight(...) - NULL param received.\n");
    }
    if (bin->values == nullptr) {
        brix_error("calc_bin_weight(...) - Invalid Cover BIN found.\n");
    }
    // The values as closed intervals; their union is counted by merging, so that a wide
    // range costs no more than a narrow one.
    std::vector<std::pair<long long, long long>> spans;
    for (const brix_list_tag* n = bin->values; n != nullptr; n = n->next) {
        const auto* v = static_cast<const brix_cvr_bin_value*>(n->data);
        if (v->kind == 3) {
            const auto* r = static_cast<const brix_cvr_bin_range*>(v->value);
            const long long low = bin_number(r->low, enum_values);
            const long long high = bin_number(r->high, enum_values);
            if (low <= high) {
                spans.emplace_back(low, high);
            }
        } else {
            const long long x = bin_number(v, enum_values);
            spans.emplace_back(x, x);
        }
    }
    std::sort(spans.begin(), spans.end());
    unsigned long long count = 0;
    bool open = false;
    long long low = 0;
    long long high = 0;
    for (const auto& s : spans) {
        if (open && s.first <= high) {
            high = std::max(high, s.second);
            continue;
        }
        if (open) {
            count +=
                static_cast<unsigned long long>(high) - static_cast<unsigned long long>(low) + 1;
        }
        open = true;
        low = s.first;
        high = s.second;
    }
    if (open) {
        count += static_cast<unsigned long long>(high) - static_cast<unsigned long long>(low) + 1;
    }
    return static_cast<long long>(count);
}

long long emit_coverpoint_bins(const brix_cvr_pnt* pnt, int indent,
                               const brix_enum_values& enum_values, const char* class_name) {
    if (pnt == nullptr || pnt->bins == nullptr) {
        brix_error("emit_coverpoint_bins(...) - Invalid coverpoint found.\n");
    }
    long long total = 0;
    for (const brix_list_tag* n = pnt->bins; n != nullptr; n = n->next) {
        const auto* b = static_cast<const brix_cvr_bin*>(n->data);
        indent_code(indent, brx_model_fp);
        if (b->values == nullptr && C().bin_default_alone != nullptr) {
            brix_emit(C().bin_default_alone, b->name);
            continue;
        }
        if (b->auto_bins) {
            brix_emit(C().bin_auto_head, b->name);
            total = wrapping_add(total, calc_bin_weight(b, enum_values));
        } else if (b->num_bins > 0) {
            if (C().bin_count_head == nullptr) {
                continue;
            }
            brix_emit(C().bin_count_head, b->name, b->num_bins);
            total = wrapping_add(total, b->num_bins);
        } else {
            brix_emit(C().bin_head, b->name);
            total = wrapping_add(total, 1);
        }
        brix_emit(C().bin_assign);
        if (b->values == nullptr) {
            brix_emit(C().bin_default);
            continue;
        }
        brix_emit(C().bin_values_open);
        for (const brix_list_tag* v = b->values; v != nullptr; v = v->next) {
            if (v != b->values) {
                brix_emit(C().bin_value_sep);
            }
            const auto* value = static_cast<const brix_cvr_bin_value*>(v->data);
            if (value->kind == 3) {
                const auto* r = static_cast<const brix_cvr_bin_range*>(value->value);
                brix_emit(C().bin_range_open);
                emit_bin_value(r->low, class_name);
                brix_emit(C().bin_range_sep);
                emit_bin_value(r->high, class_name);
                brix_emit(C().bin_range_close);
            } else {
                emit_bin_value(value, class_name);
            }
        }
        brix_emit(C().bin_values_close);
    }
    return total;
}

namespace {

// The name that follows the keyword of a cross: its label, or its items joined.
void emit_cross_name(const brix_cross* cross) {
    if (cross->label != nullptr) {
        brix_emit(C().cross_name_label, cross->label);
        return;
    }
    brix_emit(C().cross_name_open);
    for (const brix_list_tag* i = cross->items; i != nullptr; i = i->next) {
        if (i != cross->items) {
            brix_emit(C().cross_name_sep);
        }
        brix_emit("%s", static_cast<const char*>(i->data));
    }
    brix_emit(C().cross_name_close);
}

} // namespace

void emit_reg_fldval_cvr_n_cross_pnts(const brix_register_type_tag* t, int indent,
                                      const brix_enum_table& enums) {
    std::unordered_map<std::string, long long> weights;
    std::unordered_set<std::string> fields_seen;
    std::unordered_map<std::string, int> in_cross;
    for (const brix_list_tag* c = t->crosses; c != nullptr; c = c->next) {
        const auto* cross = static_cast<const brix_cross*>(c->data);
        if (cross == nullptr) {
            continue;
        }
        for (const brix_list_tag* i = cross->items; i != nullptr; i = i->next) {
            in_cross[static_cast<const char*>(i->data)] += 1;
        }
    }
    for_each_field(t->fields, [&](const brix_field_tag* f) {
        fields_seen.insert(f->name);
        if (f->cvr_used == nullptr) {
            brix_error("emit_reg_fldval_cvr_n_cross_pnts(...) - INTERNAL - NULL cvr_spec found "
                       "in field.");
        }
        const bool on = field_vals_on(f->cvr_used);
        if (!on && in_cross.count(f->name) == 0) {
            return;
        }
        weights[f->name] = emit_field_value_point(t, f, indent, enums);
        at(indent + 1, C().weight, on ? weights[f->name] : 0LL);
        at(indent, C().point_close);
    });
    for (const brix_list_tag* c = t->crosses; c != nullptr; c = c->next) {
        const auto* cross = static_cast<const brix_cross*>(c->data);
        if (cross == nullptr || cross->items == nullptr) {
            brix_error("emit_reg_fldval_cvr_n_cross_pnts(...) - Invalid 'cross' storage found.");
        }
        long long p = 1;
        indent_code(indent, brx_model_fp);
        if (cross->label != nullptr && C().cross_label != nullptr) {
            brix_emit(C().cross_label, cross->label);
        }
        brix_emit(C().cross_head);
        if (C().cross_name_open != nullptr) {
            emit_cross_name(cross);
        }
        for (const brix_list_tag* i = cross->items; i != nullptr; i = i->next) {
            const auto* item = static_cast<const char*>(i->data);
            if (i != cross->items) {
                brix_emit(C().cross_item_sep);
            }
            brix_emit("%s", item);
            if (fields_seen.count(item) != 0) {
                brix_emit(C().cross_field_suffix);
            }
            p = wrapping_mul(p, weights[item]);
        }
        brix_emit(C().cross_open);
        at(indent + 1, C().weight, p);
        at(indent, C().point_close);
        if (cross->label != nullptr) {
            weights[cross->label] = p;
        }
    }
}

// ---- Register bits ------------------------------------------------------------------

namespace {

// The wildcard pattern of bit `i` of a `w`-bit field, most significant first.
std::string bit_pattern(uint32_t w, uint32_t i, char bit) {
    std::string p(w, C().rb_any_bit);
    p[w - 1 - i] = bit;
    return p;
}

void put_bit_bin(std::string& out, const char* head, uint32_t i, uint32_t w,
                 const std::string& pattern, const char* end) {
    brix_format(out, head, static_cast<int>(i), static_cast<int>(w) + 1);
    out += pattern;
    brix_format(out, end);
}

// The bins of every bit of a `w`-bit field, and their number: writes of 0 and 1, then
// reads unless the field is write-only.
struct field_bins {
    std::string text;
    int count = 0;
};

field_bins make_field_bins(uint32_t w, bool write_only, bool read_only) {
    field_bins b;
    for (uint32_t i = 0; i < w; ++i) {
        const std::string zero = bit_pattern(w, i, '0');
        const std::string one = bit_pattern(w, i, '1');
        put_bit_bin(b.text, C().rb_wr_as_0, i, w, zero, C().rb_write_end);
        put_bit_bin(b.text, C().rb_wr_as_1, i, w, one, C().rb_write_end);
        b.count += 2;
        if (write_only) {
            continue;
        }
        if (read_only) {
            put_bit_bin(b.text, C().rb_rd, i, w, std::string(w, C().rb_any_bit), C().rb_read_end);
            b.count += 1;
            continue;
        }
        put_bit_bin(b.text, C().rb_rd_as_0, i, w, zero, C().rb_read_end);
        put_bit_bin(b.text, C().rb_rd_as_1, i, w, one, C().rb_read_end);
        b.count += 2;
    }
    return b;
}

// Fields of one width and kind have the same bins: those of fields up to this width are
// made once (their text grows as the square of the width).
constexpr uint32_t kept_bins_width = 64;

void emit_field_bins(const brix_field_tag* f) {
    const uint32_t w = f->type->bits;
    const bool write_only = has_access(f, "wo");
    const bool read_only = !write_only && is_read_only(f);
    field_bins made;
    const field_bins* b = &made;
    if (w <= kept_bins_width) {
        static std::map<std::tuple<const brix_cvr_templates*, uint32_t, bool, bool>, field_bins>
            kept;
        const auto key = std::make_tuple(&C(), w, write_only, read_only);
        auto found = kept.find(key);
        if (found == kept.end()) {
            found = kept.emplace(key, make_field_bins(w, write_only, read_only)).first;
        }
        b = &found->second;
    } else {
        made = make_field_bins(w, write_only, read_only);
    }
    brix_emit("%s", b->text);
    brix_emit(C().rb_weight, b->count);
}

} // namespace

void emit_reg_bits_cvr_class(const brix_register_type_tag* t) {
    brix_emit(C().rb_class_head, suffix_of(t));
    const brix_field_layout layout = place_fields(t->fields, t->left_to_right);
    size_t index = 0;
    for_each_field(t->fields, [&](const brix_field_tag* f) {
        const long long lsb = layout.lsb[index++];
        if (!is_real_field(f) || (!C().rb_every_field && !reg_bits_on(f->cvr_spec))) {
            return;
        }
        const uint32_t w = f->type->bits;
        brix_emit(C().rb_point_head, f->name,
                  static_cast<int>(wrapping_add(lsb, static_cast<long long>(w) - 1)),
                  static_cast<int>(lsb));
        emit_field_bins(f);
        brix_emit(C().rb_point_tail);
    });
    brix_emit(C().rb_class_tail);
}

// ---- Address map --------------------------------------------------------------------

namespace {

// One coverpoint of the address-map class.
template <class F> void emit_addr_point(int indent, const std::string& name, F bins, int weight) {
    brix_emit("\n");
    at(indent, C().am_point_head, name);
    bins();
    at(indent + 1, C().weight, weight);
    at(indent, C().point_close);
}

// The bin of a register location of `words` offsets at `x`.
void emit_accessed_bin(int indent, uint64_t x, uint64_t words) {
    if (words == 1) {
        at(indent, C().am_accessed, x);
    } else {
        at(indent, C().am_accessed_range, x, x + words - 1);
    }
}

// A register in the walk of a domain, a regfile's registers included: `prefix` goes in
// front of its coverpoint names.
void emit_register_addr_points(const brix_register_tag* r, uint64_t d, brix_offset_walk& walk,
                               const std::string& prefix, int indent) {
    const brix_register_type_tag* t = r->type;
    raise(brix_largest_register_bytes, static_cast<uint32_t>(t->bytes));
    const uint64_t words = get_ceil(static_cast<uint64_t>(t->bytes), d);
    const brix_placement p = brix_place(walk, r->offset, true, r->array_size, r->increment, words);
    if (p.unmapped || !addr_map_on(r->cvr_spec)) {
        return;
    }
    if (!is_array(r->array_size)) {
        emit_addr_point(
            indent, prefix + r->name, [&] { emit_accessed_bin(indent + 1, p.offset, words); }, 1);
        return;
    }
    for (uint64_t i = 0; i < p.count; ++i) {
        emit_addr_point(
            indent, prefix + r->name + "_" + std::to_string(i),
            [&] { emit_accessed_bin(indent + 1, p.offset + i * p.increment, words); }, 1);
    }
}

void emit_memory_addr_points(const brix_memory_tag* m, uint64_t d, brix_offset_walk& walk,
                             int indent) {
    const brix_memory_type_tag* t = m->type;
    raise(brix_largest_memory_bits, t->bits);
    if (t->bits > d * 8 && !brix_quiet_mode) {
        brix_warn("Warning: %d bits memory '%s' instantiated in %d bytes block.\n",
                  static_cast<int>(t->bits), t->name, static_cast<int>(d));
    }
    const uint64_t w = get_ceil(t->bits, d * 8);
    const uint64_t size = t->size;
    // The span is taken as a 32-bit product, sign-extended: the class and the constructor
    // part only for memories of more than 2^31 offsets.
    const auto low_product =
        static_cast<int32_t>(static_cast<uint32_t>(size) * static_cast<uint32_t>(w));
    const brix_placement p = brix_place(walk, m->offset, true, -1, nullptr,
                                        static_cast<uint64_t>(static_cast<int64_t>(low_product)));
    if (p.unmapped || !addr_map_on(m->cvr_spec)) {
        return;
    }
    const uint64_t off = p.offset;
    emit_addr_point(
        indent, m->name,
        [&] {
            if (w == 1) {
                at(indent + 1, C().am_first_location, off);
                at(indent + 1, C().am_last_location, off + size - 1);
            } else {
                at(indent + 1, C().am_first_location_range, off, off + w - 1);
                at(indent + 1, C().am_last_location_range, off + (size - 1) * w,
                   off + size * w - 1);
            }
            at(indent + 1, C().am_other_locations, off + w, off + (size - 1) * w - 1);
        },
        3);
}

void emit_regfile_walk(const brix_regfile_tag* f, uint64_t d, brix_offset_walk& walk, int indent) {
    const uint64_t size = get_regfile_size_in_block_offsets(f->type, d);
    const brix_placement p = brix_place(walk, f->offset, false, f->array_size, f->increment, size);
    if (!is_array(f->array_size)) {
        emit_regfile_addrmap_cvtpnts(f, p.offset, -1, static_cast<int>(d), indent);
        return;
    }
    for (int i = 0; i < f->array_size; ++i) {
        emit_regfile_addrmap_cvtpnts(f, p.offset + static_cast<uint64_t>(i) * p.increment, i,
                                     static_cast<int>(d), indent);
    }
}

// The choice among several domains: `if`, then `else if`, each with its own body.
template <class F> void emit_domain_chain(const brix_block_type_tag* type, int indent, F body) {
    bool first = true;
    for_each_domain<const brix_block_domain_tag>(
        type->domains, [&](const brix_block_domain_tag* d) {
            indent_code(indent, brx_model_fp);
            if (!first) {
                brix_emit(C().am_else);
            }
            first = false;
            const char* name = d->name != nullptr ? d->name : "";
            brix_emit(C().am_if_domain, name);
            body(name);
            at(indent, C().am_end);
        });
}

// The texts of one method of the address-map class.
struct addr_class_method {
    const char* head;
    const char* single;     // the body with one domain
    const char* per_domain; // domain, domain: the body of each domain's branch
};

// The constructor and `sample` of the address-map class: the domain is a parameter, and the
// body a choice among the domains, only when there are several.
void emit_addr_class_method(const brix_block_type_tag* type, int indent, const char* first_line,
                            const addr_class_method& m) {
    const bool several = count_nodes(type->domains) > 1;
    at(indent + 1, m.head);
    if (several) {
        brix_emit(C().am_domain_param);
    }
    brix_emit(C().am_params_close);
    if (first_line != nullptr) {
        at(indent + 2, first_line);
    }
    if (several) {
        emit_domain_chain(type, indent + 2,
                          [&](const char* name) { at(indent + 3, m.per_domain, name, name); });
    } else {
        at(indent + 2, m.single);
    }
    at(indent + 1, C().am_function_tail);
}

} // namespace

void emit_regfile_addrmap_cvtpnts(const brix_regfile_tag* f, uint64_t base, int index, int bytes,
                                  int indent) {
    const std::string prefix = index == -1
                                   ? std::string(f->name) + "_"
                                   : std::string(f->name) + "_" + std::to_string(index) + "_";
    brix_offset_walk walk;
    walk.off = base;
    for (const brix_list_tag* n = f->type->registers; n != nullptr; n = n->next) {
        emit_register_addr_points(static_cast<const brix_register_tag*>(n->data),
                                  static_cast<uint64_t>(bytes), walk, prefix, indent);
    }
}

void emit_block_cvr_class(const brix_block_type_tag* type, int indent) {
    if (type == nullptr) {
        brix_error("Error: INTERNAL - emit_block_cvr_class(...) - NULL parameter received.\n");
    }
    const std::string suffix = suffix_of(type);
    at(indent, C().am_class_head, suffix);
    at(indent + 1, C().am_addr_member);
    if (C().am_event != nullptr) {
        for_each_domain<const brix_block_domain_tag>(
            type->domains, [&](const brix_block_domain_tag* d) {
                if (d->name != nullptr) {
                    at(indent + 1, C().am_named_event, d->name);
                } else {
                    at(indent + 1, C().am_event);
                }
            });
    }
    for_each_domain<const brix_block_domain_tag>(
        type->domains, [&](const brix_block_domain_tag* d) {
            brix_emit("\n");
            if (d->name != nullptr) {
                at(indent + 1, C().am_named_group_head, d->name);
                for (const char* option : C().am_named_group_options) {
                    at(indent + 2, option, d->name);
                }
            } else {
                at(indent + 1, C().am_group_head);
                for (const char* option : C().am_group_options) {
                    at(indent + 2, option);
                }
            }
            const auto bytes = static_cast<uint64_t>(d->bytes);
            brix_offset_walk walk;
            for (const brix_list_tag* c = d->components; c != nullptr; c = c->next) {
                switch (c->tag) {
                case BRIX_REGISTER:
                    emit_register_addr_points(static_cast<const brix_register_tag*>(c->data), bytes,
                                              walk, "", indent + 2);
                    break;
                case BRIX_MEMORY:
                    emit_memory_addr_points(static_cast<const brix_memory_tag*>(c->data), bytes,
                                            walk, indent + 2);
                    break;
                case BRIX_REGFILE:
                    emit_regfile_walk(static_cast<const brix_regfile_tag*>(c->data), bytes, walk,
                                      indent + 2);
                    break;
                default:
                    break;
                }
            }
            at(indent + 1, C().am_group_tail);
        });
    brix_emit("\n");
    emit_addr_class_method(type, indent, nullptr,
                           {C().am_new_head, C().am_new_single, C().am_new_domain});
    brix_emit("\n");
    emit_addr_class_method(type, indent, C().am_sample_store,
                           {C().am_sample_head, C().am_sample_single, C().am_sample_domain});
    at(indent, C().am_class_tail, suffix);
    brix_emit("\n\n");
}

void emit_block_addrmap_cvr_methods(const brix_block_type_tag* type, int indent) {
    const bool several = count_nodes(type->domains) > 1;
    brix_emit("\n");
    at(indent, C().dc_head);
    at(indent + 1, C().dc_can_cover);
    at(indent + 2, C().dc_decl, suffix_of(type));
    if (several) {
        emit_domain_chain(type, indent + 2,
                          [&](const char* name) { at(indent + 3, C().dc_new_domain, name); });
        at(indent + 2, C().dc_else_begin);
        at(indent + 3, C().dc_bad_domain);
        at(indent + 3, C().support_line);
        at(indent + 3, C().finish);
        at(indent + 2, C().am_end);
    } else {
        at(indent + 2, C().dc_new_single);
    }
    at(indent + 2, C().dc_store);
    at(indent + 1, C().am_end);
    at(indent, C().am_function_tail);
    brix_emit("\n");
    at(indent, C().sm_head);
    at(indent + 1, C().sm_is_cover_on);
    at(indent + 1, C().sm_exists);
    at(indent + 2, C().sm_bad_domain);
    at(indent + 2, C().support_line);
    at(indent + 2, C().finish);
    at(indent + 1, C().am_end);
    at(indent + 1, C().sm_call);
    if (several) {
        brix_emit(C().sm_call_domain);
    }
    brix_emit(C().sm_call_close);
    at(indent, C().am_function_tail);
}

// ---- Sampling of field values -------------------------------------------------------

void emit_block_field_value_sample_method(const brix_block_type_tag* type) {
    if (type == nullptr) {
        brix_error("emit_block_field_value_sample_method(...) - NULLL param received.");
    }
    // The method is written only when it has a line, so the paths are gathered first.
    std::vector<std::string> paths;
    std::unordered_set<std::string> handled;
    auto visit = [&](const brix_register_tag* r, const std::string& path) {
        const brix_register_type_tag* t = r->type;
        if (t->is_shared == 1 && handled.count(t->name) != 0) {
            return;
        }
        if (!field_vals_on(t->cvr_used) || !field_vals_on(r->cvr_spec)) {
            return;
        }
        paths.push_back(path);
        handled.insert(t->name);
    };
    for_each_component<const brix_block_domain_tag>(
        type->domains, [&](const brix_block_domain_tag*, const brix_list_tag* c) {
            if (c->tag == BRIX_REGISTER) {
                const auto* r = static_cast<const brix_register_tag*>(c->data);
                visit(r, r->name);
            } else if (c->tag == BRIX_REGFILE) {
                const auto* f = static_cast<const brix_regfile_tag*>(c->data);
                for (const brix_list_tag* n = f->type->registers; n != nullptr; n = n->next) {
                    const auto* r = static_cast<const brix_register_tag*>(n->data);
                    visit(r, std::string(f->name) + "." + r->name);
                }
            }
        });
    if (paths.empty()) {
        return;
    }
    brix_emit("\n");
    brix_emit(C().sfv_head);
    for (const std::string& path : paths) {
        brix_emit(C().sfv_line, path, path);
    }
    brix_emit(C().sfv_tail);
}
