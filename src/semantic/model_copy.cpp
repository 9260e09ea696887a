#include "semantic/model_copy.hpp"

#include <cstring>
#include <string>

namespace {
// A field-by-field copy of a record, with its own cvr_spec.
template <class T> T* clone(const T* src) {
    T* copy = brix_new_record<T>();
    std::memcpy(static_cast<void*>(copy), static_cast<const void*>(src), sizeof(T));
    copy->cvr_spec = copy_cvr_spec(src->cvr_spec);
    return copy;
}

template <class T>
const T* find_type_by_name(const T* list, const char* name, const char* twice_message) {
    const T* found = nullptr;
    for (const T* t = list; t != nullptr; t = t->next) {
        if (t->name != nullptr && std::strcmp(t->name, name) == 0) {
            if (found != nullptr) {
                brix_error(twice_message, name);
            }
            found = t;
        }
    }
    return found;
}

template <class Instance>
void make_multi_domain_paths_agree(brix_str2str_map& paths, const brix_system_type_tag* system,
                                   Instance* inst, const char* message) {
    if (inst->domain == nullptr) {
        return;
    }
    const std::string key = std::string(inst->type->name) + " " + inst->name;
    const char* mapped = get_str2str_map_value(paths, key.c_str());
    if (mapped == nullptr) {
        if (inst->hdl_path != nullptr) {
            add_str2str_map_entry(paths, brix_strdup(key.c_str()),
                                  brix_strdup(inst->hdl_path->path));
        }
        return;
    }
    if (inst->hdl_path == nullptr) {
        auto* path = brix_new_record<brix_hdl_path_tag>();
        initialize_hdl_path_defaults(path);
        path->path = brix_strdup(mapped);
        inst->hdl_path = path;
    } else if (std::strcmp(inst->hdl_path->path, mapped) != 0) {
        brix_error(message, system->name, inst->name);
    }
}
} // namespace

brix_symrec* lookup_top_symbol(const char* name) {
    const brix_system_type_tag* system = find_type_by_name(
        all_system_types, name,
        "Error: Ambiguious 'topname' specified. Two systems with same (%s) topname found!\n");
    const brix_block_type_tag* block = find_type_by_name(
        all_block_types, name,
        "Error: Ambiguious 'topname' specified. Two blocks with same (%s) topname found!\n");
    if (system != nullptr && block != nullptr) {
        brix_error("Error: Ambiguious 'topname' specified. At least, one block and one system "
                   "with same (%s) topname found!\n",
                   name);
    }
    if (system == nullptr && block == nullptr) {
        return nullptr;
    }
    auto* sym = brix_new_record<brix_symrec>();
    sym->name = const_cast<char*>(name);
    sym->kind = system != nullptr ? BRIX_SYSTEM_TYPE : BRIX_BLOCK_TYPE;
    sym->data = system != nullptr ? const_cast<brix_system_type_tag*>(system)
                                  : static_cast<void*>(const_cast<brix_block_type_tag*>(block));
    sym->next = nullptr;
    return sym;
}

void check_system_data_consistency(brix_system_type_tag* system_type) {
    brix_str2str_map paths;
    initialize_str2str_map(paths);
    for (const brix_list_tag* d = system_type->domains; d != nullptr; d = d->next) {
        const auto* domain = static_cast<const brix_system_domain_tag*>(d->data);
        for (const brix_list_tag* c = domain->components; c != nullptr; c = c->next) {
            if (c->tag == BRIX_BLOCK) {
                make_multi_domain_paths_agree(
                    paths, system_type, static_cast<brix_block_tag*>(c->data),
                    "Error: System '%s' - Inconsistent hdl_path specification found among "
                    "multiple domain instantiations of block '%s'.\n");
            } else if (c->tag == BRIX_SYSTEM) {
                make_multi_domain_paths_agree(
                    paths, system_type, static_cast<brix_system_tag*>(c->data),
                    "Error: System '%s' - Inconsistent hdl_path specification found among "
                    "multiple domain instantiations of system '%s'.\n");
            }
        }
    }
    free_str2str_map(paths, 1);
}

brix_cvr_spec_tag* copy_cvr_spec(const brix_cvr_spec_tag* spec) {
    if (spec == nullptr) {
        return nullptr;
    }
    auto* copy = brix_new_record<brix_cvr_spec_tag>();
    *copy = *spec;
    return copy;
}

brix_field_type_tag* copy_field_type(const brix_field_type_tag* t) {
    return t == nullptr ? nullptr : clone(t);
}

brix_field_tag* copy_field(const brix_field_tag* f) {
    if (f == nullptr) {
        return nullptr;
    }
    brix_field_tag* copy = clone(f);
    copy->type = copy_field_type(f->type);
    return copy;
}

brix_register_type_tag* copy_register_type(const brix_register_type_tag* t) {
    if (t == nullptr) {
        return nullptr;
    }
    brix_register_type_tag* copy = clone(t);
    copy->fields = copy_list(t->fields);
    return copy;
}

brix_register_tag* copy_register(const brix_register_tag* r) {
    if (r == nullptr) {
        return nullptr;
    }
    brix_register_tag* copy = clone(r);
    if (r->type != nullptr && r->type->is_shared != 1) {
        copy->type = copy_register_type(r->type);
    }
    return copy;
}

brix_vregister_type_tag* copy_vregister_type(const brix_vregister_type_tag* t) {
    if (t == nullptr) {
        return nullptr;
    }
    brix_vregister_type_tag* copy = clone(t);
    copy->fields = copy_list(t->fields);
    return copy;
}

brix_vregister_tag* copy_vregister(const brix_vregister_tag* v) {
    if (v == nullptr) {
        return nullptr;
    }
    brix_vregister_tag* copy = clone(v);
    copy->type = copy_vregister_type(v->type);
    return copy;
}

brix_memory_type_tag* copy_memory_type(const brix_memory_type_tag* t) {
    return t == nullptr ? nullptr : clone(t);
}

brix_memory_tag* copy_memory(const brix_memory_tag* m) {
    if (m == nullptr) {
        return nullptr;
    }
    brix_memory_tag* copy = clone(m);
    if (m->type != nullptr && m->type->is_shared != 1) {
        copy->type = copy_memory_type(m->type);
    }
    return copy;
}

brix_regfile_type_tag* copy_regfile_type(const brix_regfile_type_tag* t) {
    if (t == nullptr) {
        return nullptr;
    }
    brix_regfile_type_tag* copy = clone(t);
    copy->registers = copy_list(t->registers);
    return copy;
}

brix_regfile_tag* copy_regfile(const brix_regfile_tag* r) {
    if (r == nullptr) {
        return nullptr;
    }
    brix_regfile_tag* copy = clone(r);
    copy->type = copy_regfile_type(r->type);
    return copy;
}

brix_block_domain_tag* copy_block_domain(const brix_block_domain_tag* d) {
    if (d == nullptr) {
        return nullptr;
    }
    brix_block_domain_tag* copy = clone(d);
    copy->components = copy_list(d->components);
    return copy;
}

brix_block_type_tag* copy_block_type(const brix_block_type_tag* t) {
    if (t == nullptr) {
        return nullptr;
    }
    brix_block_type_tag* copy = clone(t);
    copy->domains = copy_list(t->domains);
    return copy;
}

brix_block_tag* copy_block(const brix_block_tag* b) {
    if (b == nullptr) {
        return nullptr;
    }
    brix_block_tag* copy = clone(b);
    copy->type = copy_block_type(b->type);
    return copy;
}

brix_system_domain_tag* copy_system_domain(const brix_system_domain_tag* d) {
    if (d == nullptr) {
        return nullptr;
    }
    brix_system_domain_tag* copy = clone(d);
    copy->components = copy_list(d->components);
    return copy;
}

brix_system_type_tag* copy_system_type(const brix_system_type_tag* t) {
    if (t == nullptr) {
        return nullptr;
    }
    brix_system_type_tag* copy = clone(t);
    copy->domains = copy_list(t->domains);
    return copy;
}

brix_system_tag* copy_system(const brix_system_tag* s) {
    if (s == nullptr) {
        return nullptr;
    }
    brix_system_tag* copy = clone(s);
    copy->type = copy_system_type(s->type);
    return copy;
}

namespace {
void* copy_list_data(int tag, void* data) {
    switch (tag) {
    case BRIX_FIELD_TYPE:
        return copy_field_type(static_cast<brix_field_type_tag*>(data));
    case BRIX_FIELD:
        return copy_field(static_cast<brix_field_tag*>(data));
    case BRIX_REGISTER:
        return copy_register(static_cast<brix_register_tag*>(data));
    case BRIX_REGISTER_TYPE: {
        auto* t = static_cast<brix_register_type_tag*>(data);
        return t->is_shared == 1 ? t : copy_register_type(t);
    }
    case BRIX_VREGISTER:
        return copy_vregister(static_cast<brix_vregister_tag*>(data));
    case BRIX_VREGISTER_TYPE:
        return copy_vregister_type(static_cast<brix_vregister_type_tag*>(data));
    case BRIX_MEMORY:
        return copy_memory(static_cast<brix_memory_tag*>(data));
    case BRIX_MEMORY_TYPE: {
        auto* t = static_cast<brix_memory_type_tag*>(data);
        return t->is_shared == 1 ? t : copy_memory_type(t);
    }
    case BRIX_REGFILE:
        return copy_regfile(static_cast<brix_regfile_tag*>(data));
    case BRIX_REGFILE_TYPE:
        return copy_regfile_type(static_cast<brix_regfile_type_tag*>(data));
    case BRIX_BLOCK_DOMAIN:
        return copy_block_domain(static_cast<brix_block_domain_tag*>(data));
    case BRIX_BLOCK:
        return copy_block(static_cast<brix_block_tag*>(data));
    case BRIX_BLOCK_TYPE:
        return copy_block_type(static_cast<brix_block_type_tag*>(data));
    case BRIX_SYSTEM_TYPE:
        return copy_system_type(static_cast<brix_system_type_tag*>(data));
    case BRIX_SYSTEM_DOMAIN:
        return copy_system_domain(static_cast<brix_system_domain_tag*>(data));
    case BRIX_SYSTEM:
        return copy_system(static_cast<brix_system_tag*>(data));
    case BRIX_IDENTIFIER:
        return brix_strdup(static_cast<const char*>(data));
    default:
        brix_error("ERROR - Deep copying is not supported for 'brix_type' %d\n", tag);
    }
}
} // namespace

brix_list_tag* copy_list(const brix_list_tag* list) {
    brix_list_tag* head = nullptr;
    brix_list_tag* tail = nullptr;
    for (const brix_list_tag* n = list; n != nullptr; n = n->next) {
        brix_list_tag* node = create_brix_list_node(n->tag, copy_list_data(n->tag, n->data));
        if (tail == nullptr) {
            head = node;
        } else {
            tail->next = node;
        }
        tail = node;
    }
    return head;
}

const brix_symrec* lookup_design_top(const char* name) {
    const brix_symrec* sym = lookup_top_symbol(name);
    if (sym == nullptr) {
        brix_error("Error: The specified top '%s' doesn't exist.", name);
    }
    if (sym->kind != BRIX_BLOCK_TYPE && sym->kind != BRIX_SYSTEM_TYPE) {
        brix_error("Error: Only blocks or systems can be specified as design 'top'.");
    }
    return sym;
}
