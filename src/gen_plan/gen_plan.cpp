// The verification plan: one plan a register, regfile, block and system type, joined by
// subplans, with measures naming the covergroups of the generated model. Plans are
// written leaves first, each type once.
#include "gen_plan/gen_plan.hpp"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

#include "driver/options.hpp"
#include "driver/maps.hpp"
#include "gen_model/gen_support.hpp"
#include "parser/model.hpp"
#include "semantic/model_copy.hpp"

namespace {

FILE* kpl_fp = nullptr;
const char* plan_top = nullptr;
// The types whose plan has been written, by type key.
brix_str2int_map planned_registers, planned_regfiles, planned_blocks, planned_systems;

brix_str2int_map* const plan_maps[] = {&planned_registers, &planned_regfiles, &planned_blocks,
                                       &planned_systems};

// One line of the plan at `level` levels of four blanks, put together from its pieces.
template <class... Pieces> void put(int level, const Pieces&... pieces) {
    static std::string line;
    line.assign(static_cast<size_t>(4 * std::max(level, 0)), ' ');
    (line += ... += pieces);
    brix_write_text(kpl_fp, line);
}

template <class Type> std::string type_key(const Type* t) {
    return brix_class_suffix(t->scope_prefix, t->name);
}

bool emitted(const brix_str2int_map& map, const std::string& key) {
    return get_str2int_map_value(map, key.c_str()) != 0;
}

void note(brix_str2int_map& map, const std::string& key) {
    add_str2int_map_entry(map, brix_strdup(key.c_str()), 1);
}

template <class Type> bool is_top(const Type* t) {
    return t->scope_prefix == nullptr && strcmp(t->name, plan_top) == 0;
}

const char* attribute_line = "attribute string path = \"\";\n\n";

// The head of a plan and its `path` attribute.
void plan_head(int level, const char* kind, const std::string& key) {
    put(level, "plan ", kind, key, ";\n");
    put(level + 1, attribute_line);
}

// The end of a plan, noted as written.
void plan_tail(int level, brix_str2int_map& map, const std::string& key) {
    put(level, "endplan\n");
    note(map, key);
    brix_write_text(kpl_fp, "\n\n");
}

// The feature of an instance, one an array element: its head, the subplan of its type
// and the path that `path_of(index)` gives (index -1 for a scalar).
template <class PathOf>
void emit_instance_features(int level, const char* kind, const char* name, int32_t array_size,
                            const std::string& key, PathOf path_of) {
    const std::string subplan = "subplan " + std::string(kind) + key + " #(path=\"";
    if (array_size <= 1) {
        put(level, "feature ", kind, name, ";\n");
        put(level + 1, subplan, path_of(-1));
        put(level, "endfeature\n");
        return;
    }
    for (int32_t k = 0; k < array_size; ++k) {
        put(level, "feature ", kind, name, std::to_string(k), ";\n");
        put(level + 1, subplan, path_of(k));
        put(level, "endfeature\n");
    }
}

// `name` or `name[k]`, behind `prefix`, closed by `closing`.
std::string path_text(const std::string& prefix, const char* name, int k,
                      const std::string& closing) {
    std::string text = prefix + name;
    if (k >= 0) {
        text += "[" + std::to_string(k) + "]";
    }
    return text + closing;
}

bool already_emitted_register(const brix_register_type_tag* type) {
    return emitted(planned_registers, type_key(type));
}

void emit_register(const brix_register_type_tag* t, int level) {
    const std::string key = type_key(t);
    plan_head(level, "reg_", key);
    for (const brix_list_tag* n = t->fields; n != nullptr; n = n->next) {
        const auto* f = static_cast<const brix_field_tag*>(n->data);
        if (strcmp(f->name, "reserved") == 0 || strcmp(f->name, "unused") == 0) {
            continue;
        }
        put(level + 1, "feature ", f->name, "_bits;\n");
        put(level + 2, "measure Group fcov;\n");
        put(level + 3, "source = \"group instance: brx_cvr_reg_", key, "::reg_bits.${path}.",
            f->name, "\";\n");
        put(level + 2, "endmeasure\n");
        put(level + 1, "endfeature\n");
    }
    plan_tail(level, planned_registers, key);
}

void emit_regfile(const brix_regfile_type_tag* t, int level) {
    for (const brix_list_tag* n = t->registers; n != nullptr; n = n->next) {
        const auto* r = static_cast<const brix_register_tag*>(n->data);
        if (!already_emitted_register(r->type)) {
            emit_register(r->type, level);
        }
    }
    const std::string key = type_key(t);
    plan_head(level, "regfile_", key);
    for (const brix_list_tag* n = t->registers; n != nullptr; n = n->next) {
        const auto* r = static_cast<const brix_register_tag*>(n->data);
        emit_instance_features(level + 1, "reg_", r->name, r->array_size, type_key(r->type),
                               [&](int k) { return path_text("${path}.", r->name, k, "\");\n"); });
    }
    plan_tail(level, planned_regfiles, key);
}

// The plans of a block's registers and regfiles; only register bits have plans there.
void emit_block_components(const brix_block_type_tag* type, int level) {
    if (brix_cvr_reg_bits != 1) {
        return;
    }
    for (const brix_list_tag* d = type->domains; d != nullptr; d = d->next) {
        const auto* dom = static_cast<const brix_block_domain_tag*>(d->data);
        for (const brix_list_tag* c = dom->components; c != nullptr; c = c->next) {
            if (c->tag == BRIX_REGISTER) {
                const auto* r = static_cast<const brix_register_tag*>(c->data);
                if (!already_emitted_register(r->type)) {
                    emit_register(r->type, level);
                }
            } else if (c->tag == BRIX_REGFILE) {
                const auto* f = static_cast<const brix_regfile_tag*>(c->data);
                if (!emitted(planned_regfiles, type_key(f->type))) {
                    emit_regfile(f->type, level);
                }
            }
        }
    }
}

// A feature that measures one of the block's covergroups.
void emit_measure_feature(int level, const char* feature, const char* group,
                          const brix_block_type_tag* type) {
    brix_write_text(kpl_fp, "\n");
    put(level, "feature ", feature, ";\n");
    put(level + 1, "measure Group fcov;\n");
    put(level + 2, "source = \"group instance: brx_block_", type_key(type), group,
        is_top(type) ? "\";\n" : ".${path}\";\n");
    put(level + 1, "endmeasure\n");
    put(level, "endfeature\n");
}

void emit_block_itself(const brix_block_type_tag* type, int level) {
    const std::string key = type_key(type);
    plan_head(level, "block_", key);
    int j = level + 1;
    const std::string prefix = is_top(type) ? "" : "${path}.";
    if (brix_cvr_reg_bits == 1) {
        for (const brix_list_tag* d = type->domains; d != nullptr; d = d->next) {
            const auto* dom = static_cast<const brix_block_domain_tag*>(d->data);
            const std::string closing =
                dom->name != nullptr ? "(" + std::string(dom->name) + ")\");\n" : "\");\n";
            if (dom->name != nullptr) {
                put(j, "feature ", dom->name, ";\n");
                ++j;
            }
            for (const brix_list_tag* c = dom->components; c != nullptr; c = c->next) {
                if (c->tag == BRIX_REGISTER) {
                    const auto* r = static_cast<const brix_register_tag*>(c->data);
                    emit_instance_features(
                        j, "reg_", r->name, r->array_size, type_key(r->type),
                        [&](int k) { return path_text(prefix, r->name, k, closing); });
                } else if (c->tag == BRIX_REGFILE) {
                    const auto* f = static_cast<const brix_regfile_tag*>(c->data);
                    emit_instance_features(
                        j, "regfile_", f->name, f->array_size, type_key(f->type),
                        [&](int k) { return path_text(prefix, f->name, k, closing); });
                }
            }
            if (dom->name != nullptr) {
                --j;
                put(j, "endfeature\n");
            }
        }
    }
    if (brix_cvr_addr_map == 1) {
        emit_measure_feature(j, "address_map", "::addr_map", type);
    }
    if (brix_cvr_field_vals == 1) {
        emit_measure_feature(j, "field_values", "::field_values", type);
    }
    plan_tail(level, planned_blocks, key);
}

void emit_system(const brix_system_type_tag* type, int level) {
    for (const brix_list_tag* d = type->domains; d != nullptr; d = d->next) {
        const auto* dom = static_cast<const brix_system_domain_tag*>(d->data);
        for (const brix_list_tag* c = dom->components; c != nullptr; c = c->next) {
            if (c->tag == BRIX_BLOCK) {
                const auto* b = static_cast<const brix_block_tag*>(c->data);
                if (!emitted(planned_blocks, type_key(b->type))) {
                    emit_block_components(b->type, level);
                    emit_block_itself(b->type, level);
                }
            } else if (c->tag == BRIX_SYSTEM) {
                const auto* s = static_cast<const brix_system_tag*>(c->data);
                if (!emitted(planned_systems, type_key(s->type))) {
                    emit_system(s->type, level);
                }
            }
        }
    }
    const std::string key = type_key(type);
    plan_head(level, "sys_", key);
    const std::string prefix = is_top(type) ? "" : "${path}.";
    brix_str2int_map seen;
    initialize_str2int_map(seen);
    // An instance that stands in several domains gets one feature.
    auto feature = [&](const char* kind, const char* name, int32_t array_size,
                       const std::string& type_key_of_instance) {
        if (emitted(seen, name)) {
            return;
        }
        emit_instance_features(level + 1, kind, name, array_size, type_key_of_instance,
                               [&](int k) { return path_text(prefix, name, k, "\");\n"); });
        note(seen, name);
    };
    for (const brix_list_tag* d = type->domains; d != nullptr; d = d->next) {
        const auto* dom = static_cast<const brix_system_domain_tag*>(d->data);
        for (const brix_list_tag* c = dom->components; c != nullptr; c = c->next) {
            if (c->tag == BRIX_BLOCK) {
                const auto* b = static_cast<const brix_block_tag*>(c->data);
                feature("block_", b->name, b->array_size, type_key(b->type));
            } else if (c->tag == BRIX_SYSTEM) {
                const auto* s = static_cast<const brix_system_tag*>(c->data);
                feature("sys_", s->name, s->array_size, type_key(s->type));
            }
        }
    }
    free_str2int_map(seen);
    plan_tail(level, planned_systems, key);
}

} // namespace

void emit_kpl_qvtp_model(const char* top_name) {
    plan_top = top_name;
    const brix_symrec* sym = lookup_design_top(top_name);
    const std::string file_name = "qvtp_" + std::string(top_name) + ".kpl";
    kpl_fp = brix_open_output(file_name);
    if (kpl_fp == nullptr) {
        brix_error("Error: Failed to open output file '%s' for writing...", file_name);
    }
    for (brix_str2int_map* map : plan_maps) {
        initialize_str2int_map(*map);
    }
    if (sym->kind == BRIX_BLOCK_TYPE) {
        const auto* type = static_cast<const brix_block_type_tag*>(sym->data);
        emit_block_components(type, 0);
        emit_block_itself(type, 0);
    } else {
        emit_system(static_cast<const brix_system_type_tag*>(sym->data), 0);
    }
    for (brix_str2int_map* map : plan_maps) {
        free_str2int_map(*map);
    }
    brix_close_output(kpl_fp);
}
