#include "map/resolved_map.hpp"

#include <algorithm>
#include <cstring>
#include <unordered_map>

#include "gen_model/gen_model.hpp"
#include "gen_model/gen_support.hpp"
#include "semantic/model_copy.hpp"

using namespace brix_gen;

const char* map_kind_name(map_kind kind) {
    switch (kind) {
    case map_kind::block:
        return "block";
    case map_kind::system:
        return "system";
    case map_kind::regfile:
        return "regfile";
    case map_kind::reg:
        return "register";
    case map_kind::vreg:
        return "vregister";
    case map_kind::memory:
        break;
    }
    return "memory";
}

namespace {

std::string text_of(const char* s) {
    return s != nullptr ? s : "";
}

std::string doc_of(const brix_doc* d) {
    return d != nullptr ? text_of(d->text) : "";
}

std::string path_text(const brix_hdl_path_tag* p) {
    std::string text;
    for (; p != nullptr; p = p->next) {
        text += (text.empty() ? "" : ", ") + text_of(p->path);
    }
    return text;
}

std::vector<std::pair<std::string, std::string>> attributes_of(const brix_attribute* a) {
    std::vector<std::pair<std::string, std::string>> list;
    for (; a != nullptr; a = a->next) {
        list.emplace_back(text_of(a->name), text_of(a->value));
    }
    std::reverse(list.begin(), list.end()); // the model keeps them newest first
    return list;
}

std::optional<std::string> written(const char* s) {
    return s != nullptr ? std::optional<std::string>(s) : std::nullopt;
}

std::vector<map_field> fields_of(const brix_list_tag* fields, int8_t left_to_right) {
    const brix_field_layout layout = place_fields(fields, left_to_right);
    std::vector<map_field> list;
    size_t i = 0;
    for_each_field(fields, [&](const brix_field_tag* f) {
        const brix_field_type_tag* t = f->type;
        map_field mf{text_of(f->name),
                     static_cast<uint64_t>(layout.lsb[i++]),
                     t->bits,
                     text_of(t->access),
                     written(t->hard_reset),
                     written(t->soft_reset),
                     {},
                     doc_of(t->doc),
                     f};
        if (t->enum_type != nullptr) {
            long long v = -1;
            for (const brix_list_tag* n = t->enum_type->names; n != nullptr; n = n->next) {
                const auto* e = static_cast<const brix_enum_name_declaration*>(n->data);
                v = next_enum_value(e->value, v);
                mf.enums.push_back({text_of(e->name), v});
            }
        }
        list.push_back(std::move(mf));
    });
    return list;
}

// Where the elements of one list land: the base of its first word and the bytes of a word.
struct frame {
    uint64_t base;
    uint64_t unit;
    std::string path;
};

map_node node_at(map_kind kind, const char* name, const frame& f, const brix_placement& p,
                 uint64_t element_words, brix_src_pos src, const void* record) {
    map_node n{};
    n.kind = kind;
    n.name = text_of(name);
    n.path = f.path + "." + n.name;
    n.address = f.base + p.offset * f.unit;
    n.offset = p.offset;
    n.count = p.count;
    n.stride = p.count > 1 ? p.increment * f.unit : 0;
    n.size = element_words * f.unit;
    n.unmapped = p.unmapped;
    n.src = src;
    n.record = record;
    return n;
}

class resolver {
  public:
    // Both return the words the domain spans; with a stream, the nodes go there.
    uint64_t block_domain(const brix_block_domain_tag* dom, const frame& f,
                          std::vector<map_node>& out, const map_stream* stream = nullptr);
    uint64_t system_domain(const brix_system_domain_tag* dom, const frame& f,
                           std::vector<map_node>& out, const map_stream* stream = nullptr);

  private:
    // Words of a block or system domain, by the same key and first-come rule as the models.
    std::unordered_map<std::string, uint64_t> sizes_;
    // A regfile's layout follows the domain it is first met in.
    std::unordered_map<std::string, uint64_t> regfile_bytes_;

    map_node reg(const brix_register_tag* r, brix_offset_walk& walk, uint64_t d, const frame& f);
    map_node memory(const brix_memory_tag* m, brix_offset_walk& walk, uint64_t d, const frame& f);
    map_node regfile(const brix_regfile_tag* rf, brix_offset_walk& walk, uint64_t d,
                     const frame& f);
    map_node vreg(const brix_vregister_tag* v, const frame& f);
    map_node sub(const brix_list_tag* c, brix_offset_walk& walk, uint64_t d, const frame& f);
    template <class Domain> uint64_t domain_words(const std::string& key, const Domain* dom);
};

map_node resolver::reg(const brix_register_tag* r, brix_offset_walk& walk, uint64_t d,
                       const frame& f) {
    const brix_register_type_tag* t = r->type;
    const uint64_t words = get_ceil(static_cast<uint64_t>(t->bytes), d);
    const brix_placement p = brix_place(walk, r->offset, true, r->array_size, r->increment, words);
    map_node n = node_at(map_kind::reg, r->name, f, p, words, r->src, r);
    n.type = suffix_of(t);
    n.type_src = t->src;
    n.doc = doc_of(t->doc);
    n.attributes = attributes_of(t->attributes);
    n.hdl_path = path_text(t->is_shared == 1 ? t->hdl_path : r->hdl_path);
    n.bytes = static_cast<uint64_t>(t->bytes);
    n.fields = fields_of(t->fields, t->left_to_right);
    return n;
}

map_node resolver::memory(const brix_memory_tag* m, brix_offset_walk& walk, uint64_t d,
                          const frame& f) {
    const brix_memory_type_tag* t = m->type;
    const uint64_t words = brix_memory_words(t, d);
    const brix_placement p = brix_place(walk, m->offset, true, -1, nullptr, words);
    map_node n = node_at(map_kind::memory, m->name, f, p, words, m->src, m);
    n.type = suffix_of(t);
    n.type_src = t->src;
    n.doc = doc_of(t->doc);
    n.attributes = attributes_of(t->attributes);
    n.hdl_path = path_text(t->is_shared == 1 ? t->hdl_path : m->hdl_path);
    n.words = t->size;
    n.bits = t->bits;
    n.access = text_of(t->access);
    return n;
}

map_node resolver::regfile(const brix_regfile_tag* rf, brix_offset_walk& walk, uint64_t d,
                           const frame& f) {
    const uint64_t size = get_regfile_size_in_block_offsets(rf->type, d);
    const brix_placement p =
        brix_place(walk, rf->offset, false, rf->array_size, rf->increment, size);
    map_node n = node_at(map_kind::regfile, rf->name, f, p, size, rf->src, rf);
    n.type = suffix_of(rf->type);
    n.type_src = rf->type->src;
    n.doc = doc_of(rf->type->doc);
    n.hdl_path = path_text(rf->hdl_path);
    const uint64_t layout = regfile_bytes_.try_emplace(n.type, d).first->second;
    const frame inner{n.address, f.unit, n.path};
    brix_offset_walk rf_walk;
    for (const brix_list_tag* c = rf->type->registers; c != nullptr; c = c->next) {
        n.components.push_back(
            reg(static_cast<const brix_register_tag*>(c->data), rf_walk, layout, inner));
    }
    return n;
}

// Virtual registers take no block offsets: they live in a memory, placed at run time.
map_node resolver::vreg(const brix_vregister_tag* v, const frame& f) {
    const brix_vregister_type_tag* t = v->type;
    map_node n{};
    n.kind = map_kind::vreg;
    n.name = text_of(v->name);
    n.path = f.path + "." + n.name;
    n.type = suffix_of(t);
    n.type_src = t->src;
    n.count = v->array_size > 0 ? static_cast<uint64_t>(v->array_size) : 1;
    n.offset = v->offset != nullptr ? to_dec(v->offset) : 0;
    n.bytes = static_cast<uint64_t>(t->bytes);
    n.size = get_ceil(n.bytes, f.unit) * f.unit;
    n.stride = n.count > 1 ? increment_or(v->increment, n.size / f.unit) * f.unit : 0;
    n.memory = text_of(v->memory);
    n.placed = v->memory != nullptr && v->array_size > 0;
    n.doc = doc_of(t->doc);
    n.fields = fields_of(t->fields, t->left_to_right);
    n.src = v->src;
    n.record = v;
    return n;
}

// Virtual registers sit in a memory of their block, which the grammar wants declared
// before them: their address follows from the memory's.
struct vreg_places {
    struct place {
        uint64_t address;
        uint64_t unit; // bytes of one location
    };
    std::unordered_map<std::string, place> memories;

    void note(map_node& n) {
        if (n.kind == map_kind::memory) {
            memories.try_emplace(n.name, place{n.address, n.size / std::max<uint64_t>(n.words, 1)});
        } else if (const auto it = memories.find(n.memory);
                   n.kind == map_kind::vreg && n.placed && it != memories.end()) {
            n.address = it->second.address + n.offset * it->second.unit;
        }
    }
};

void hand_on(std::vector<map_node>& out, const map_stream* stream) {
    if (stream != nullptr) {
        for (const map_node& n : out) {
            stream->component(n);
        }
        out.clear();
    }
}

uint64_t resolver::block_domain(const brix_block_domain_tag* dom, const frame& f,
                                std::vector<map_node>& out, const map_stream* stream) {
    const auto d = static_cast<uint64_t>(dom->bytes);
    brix_offset_walk walk;
    vreg_places vregs;
    for (const brix_list_tag* c = dom->components; c != nullptr; c = c->next) {
        switch (c->tag) {
        case BRIX_REGISTER:
            out.push_back(reg(static_cast<const brix_register_tag*>(c->data), walk, d, f));
            break;
        case BRIX_MEMORY:
            out.push_back(memory(static_cast<const brix_memory_tag*>(c->data), walk, d, f));
            break;
        case BRIX_REGFILE:
            out.push_back(regfile(static_cast<const brix_regfile_tag*>(c->data), walk, d, f));
            break;
        default:
            out.push_back(vreg(static_cast<const brix_vregister_tag*>(c->data), f));
        }
        vregs.note(out.back());
        hand_on(out, stream);
    }
    return walk.size;
}

template <class Domain> uint64_t resolver::domain_words(const std::string& key, const Domain* dom) {
    if (const auto it = sizes_.find(key); it != sizes_.end()) {
        return it->second;
    }
    std::vector<map_node> scratch;
    uint64_t size = 0;
    if constexpr (std::is_same_v<Domain, brix_block_domain_tag>) {
        size = block_domain(dom, {0, 1, ""}, scratch);
    } else {
        size = system_domain(dom, {0, 1, ""}, scratch);
    }
    sizes_.emplace(key, size);
    return size;
}

map_node resolver::sub(const brix_list_tag* c, brix_offset_walk& walk, uint64_t d, const frame& f) {
    const bool is_block = c->tag == BRIX_BLOCK;
    const auto* b = static_cast<const brix_block_tag*>(c->data);
    const auto* s = static_cast<const brix_system_tag*>(c->data);
    const char* domain = is_block ? b->domain : s->domain;
    const std::string suffix = is_block ? suffix_of(b->type) : suffix_of(s->type);
    const std::string key = size_key(suffix, domain);
    // The domain the instance stands for, by the models' rule.
    const brix_block_domain_tag* bd =
        is_block ? &instance_domain<brix_block_domain_tag>(b->type->domains, b->type->name, domain)
                 : nullptr;
    const brix_system_domain_tag* sd =
        is_block
            ? nullptr
            : &instance_domain<brix_system_domain_tag>(s->type->domains, s->type->name, domain);
    const uint64_t bytes = static_cast<uint64_t>(bd != nullptr ? bd->bytes : sd->bytes);
    const uint64_t size = bd != nullptr ? domain_words(key, bd) : domain_words(key, sd);
    const uint64_t span = brix_subsystem_words(size, bytes, d);
    const brix_placement p =
        is_block ? brix_place(walk, b->offset, false, b->array_size, b->increment, span)
                 : brix_place(walk, s->offset, false, s->array_size, s->increment, span);
    map_node n =
        node_at(is_block ? map_kind::block : map_kind::system, is_block ? b->name : s->name, f, p,
                span, is_block ? b->src : s->src, c->data);
    n.type = suffix;
    n.type_src = is_block ? b->type->src : s->type->src;
    n.domain = text_of(bd != nullptr ? bd->name : sd->name);
    n.doc = doc_of(is_block ? b->type->doc : s->type->doc);
    n.attributes = attributes_of(is_block ? b->type->attributes : s->type->attributes);
    n.hdl_path = path_text(is_block ? b->hdl_path : s->hdl_path);
    const frame inner{n.address, get_ceil(bytes, d) * f.unit, n.path};
    if (bd != nullptr) {
        block_domain(bd, inner, n.components);
    } else {
        system_domain(sd, inner, n.components);
    }
    return n;
}

uint64_t resolver::system_domain(const brix_system_domain_tag* dom, const frame& f,
                                 std::vector<map_node>& out, const map_stream* stream) {
    brix_offset_walk walk;
    for (const brix_list_tag* c = dom->components; c != nullptr; c = c->next) {
        out.push_back(sub(c, walk, static_cast<uint64_t>(dom->bytes), f));
        hand_on(out, stream);
    }
    return walk.size;
}

template <class Domain, class Type>
void resolve_domains(resolver& r, const Type* type, resolved_map& map, const map_stream* stream) {
    if (stream != nullptr) {
        stream->begin(map);
    }
    for_each_domain<const Domain>(type->domains, [&](const Domain* d) {
        map_domain md{text_of(d->name), static_cast<uint64_t>(d->bytes), text_of(d->endian), {}};
        const frame f{0, md.bytes, map.top};
        if (stream != nullptr) {
            stream->begin_domain(md);
        }
        if constexpr (std::is_same_v<Domain, brix_block_domain_tag>) {
            r.block_domain(d, f, md.components, stream);
        } else {
            r.system_domain(d, f, md.components, stream);
        }
        if (stream != nullptr) {
            stream->end_domain(md);
        }
        map.domains.push_back(std::move(md));
    });
}

resolved_map resolve(const char* top, const map_stream* stream) {
    const brix_symrec* sym = lookup_top_symbol(top);
    resolved_map map{};
    map.top = top;
    map.record = sym->data;
    resolver r;
    if (sym->kind == BRIX_BLOCK_TYPE) {
        const auto* t = static_cast<const brix_block_type_tag*>(sym->data);
        map.kind = map_kind::block;
        map.doc = doc_of(t->doc);
        map.src = t->src;
        resolve_domains<brix_block_domain_tag>(r, t, map, stream);
    } else {
        const auto* t = static_cast<const brix_system_type_tag*>(sym->data);
        map.kind = map_kind::system;
        map.doc = doc_of(t->doc);
        map.src = t->src;
        resolve_domains<brix_system_domain_tag>(r, t, map, stream);
    }
    return map;
}

} // namespace

resolved_map resolve_map(const char* top) {
    return resolve(top, nullptr);
}

resolved_map resolve_map(const char* top, const map_stream& stream) {
    return resolve(top, &stream);
}
