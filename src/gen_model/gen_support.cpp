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
    for_each_field(fields, [&](const brix_field_tag* f) {
        const uint64_t bits = f->type->bits;
        if (f->offset != nullptr) {
            layout.high = std::max<uint64_t>(layout.high, to_dec(f->offset) + bits);
        } else {
            layout.high += bits;
        }
    });
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
        const uint64_t words = get_ceil(static_cast<uint64_t>(r->type->bytes), bytes);
        uint64_t span = words;
        if (is_array(r->array_size)) {
            check_no_shared_array(r);
            span = static_cast<uint64_t>(r->array_size) * increment_or(r->increment, words);
        }
        walk.place(r->offset, true);
        walk.advance(span);
    }
    return walk.size;
}
