#include "gen_model/gen_support.hpp"

const char* brix_top = nullptr;
uint32_t strlen_top = 0;
char* uc_top = nullptr;
brix_str2int_map all_registers, all_vregisters, all_memories, all_regfiles, all_blocks, all_systems,
    all_block_sizes, all_system_sizes, all_emitted_shared_registers, all_emitted_shared_memories;
uint32_t brix_largest_register_bytes = 0;
uint32_t brix_largest_memory_bits = 0;
uint32_t brix_largest_vregister_bytes = 0;
uint32_t brix_largest_vregister_incr = 0;
brix_list_tag* brix_hierarchy = nullptr;
const brix_cvr_templates* brix_cvr_lang = nullptr;
const brix_bkdr_templates* brix_bkdr_lang = nullptr;

using namespace brix_gen;

void brix_gen::check_no_shared_array(const brix_register_tag* r) {
    if (is_array(r->array_size) && r->type->is_shared == 1) {
        brix_error("Error: Register '%s' - Array of shared register is not allowed.",
                   r->type->name);
    }
}

std::string brix_class_suffix(const char* scope_prefix, const char* name) {
    std::string s = scope_prefix != nullptr ? std::string(scope_prefix) + "_" : std::string();
    return s + (name != nullptr ? name : "");
}

brix_field_layout place_fields(const brix_list_tag* fields, int8_t left_to_right) {
    brix_field_layout layout{0, {}};
    size_t count = 0;
    for_each_field(fields, [&](const brix_field_tag* f) {
        ++count;
        const uint64_t bits = f->type->bits;
        if (f->offset != nullptr) {
            layout.high = std::max<uint64_t>(layout.high, to_dec(f->offset) + bits);
        } else {
            layout.high += bits;
        }
    });
    layout.lsb.reserve(count);
    const bool ltr = left_to_right == 1;
    long long pos = ltr ? static_cast<long long>(layout.high) : 0;
    for_each_field(fields, [&](const brix_field_tag* f) {
        const long long bits = f->type->bits;
        long long guard = 0;
        if (ltr) {
            pos = f->offset != nullptr
                      ? wrapping_add(static_cast<long long>(layout.high - to_dec(f->offset)), -bits)
                      : wrapping_add(pos, -bits);
        } else if (f->offset != nullptr) {
            const long long v = static_cast<long long>(to_dec(f->offset));
            if (pos > v) {
                guard = pos;
            }
            pos = v;
        }
        layout.lsb.push_back(pos);
        if (!ltr) {
            pos = guard < 1 ? wrapping_add(pos, bits) : std::max(wrapping_add(pos, bits), guard);
        }
    });
    return layout;
}

uint64_t get_regfile_size_in_block_offsets(const brix_regfile_type_tag* rf, uint64_t bytes) {
    brix_offset_walk walk;
    for (const brix_list_tag* n = rf->registers; n != nullptr; n = n->next) {
        const auto* r = static_cast<const brix_register_tag*>(n->data);
        raise(brix_largest_register_bytes, static_cast<uint32_t>(r->type->bytes));
        check_no_shared_array(r);
        brix_place(walk, r->offset, true, r->array_size, r->increment,
                   get_ceil(static_cast<uint64_t>(r->type->bytes), bytes));
    }
    return walk.size;
}

template <class Pos>
brix_placement brix_place(brix_basic_offset_walk<Pos>& walk, const char* offset, bool honour_none,
                          int32_t array_size, const char* increment, uint64_t words) {
    walk.place(offset, honour_none);
    brix_placement p{walk.off, 1, words, walk.unmapped};
    if (is_array(array_size)) {
        p.count = static_cast<uint64_t>(array_size);
        p.increment = increment_or(increment, words);
    }
    walk.advance(p.count * p.increment);
    return p;
}
template brix_placement brix_place(brix_offset_walk&, const char*, bool, int32_t, const char*,
                                   uint64_t);
template brix_placement brix_place(brix_basic_offset_walk<uint32_t>&, const char*, bool, int32_t,
                                   const char*, uint64_t);

uint64_t brix_memory_words(const brix_memory_type_tag* t, uint64_t domain_bytes) {
    return t->size * get_ceil(t->bits, domain_bytes * 8);
}

uint64_t brix_subsystem_words(uint64_t size, uint64_t bytes, uint64_t system_bytes) {
    return bytes > system_bytes ? size * get_ceil(bytes, system_bytes) : size;
}

void indent_code(int n, FILE* stream) {
    static const std::string tabs(64, '\t');
    for (; n > 0; n -= static_cast<int>(tabs.size())) {
        brix_write_text(stream, std::string_view(tabs).substr(0, static_cast<size_t>(n)));
    }
}
