#include "gen_c/gen_c.hpp"

#include "driver/diag.hpp"
#include "gen_model/gen_support.hpp"
#include "semantic/model_copy.hpp"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <sstream>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

using namespace brix_gen;

namespace brix_c {
namespace {

// Which forms of the macros are written.
int32_t gen_brx_c_model = 0;
int32_t gen_brx_c_ifc = 0;
// The `bytes` of the top's domain: the unit of the word counts in the plain form.
uint32_t top_level_domain_width = 0;

// State of one header, kept apart from the model generator's, which has run just before.
std::string top;
std::string uc_top;
std::unordered_set<std::string> all_blocks, all_systems;
std::unordered_map<std::string, uint32_t> all_block_sizes, all_system_sizes;

// The header counts offsets in words of 32 bits that wrap, as the run-time interface does.
using c_offset_walk = brix_basic_offset_walk<uint32_t>;

// Uses of each name among the components of a block, fields included.
using name_counts = std::unordered_map<std::string, int>;

// The three texts of the header: sizes, always; the plain form; the by-name form.
struct c_buffers {
    std::ostringstream sizes;
    std::ostringstream model;
    std::ostringstream ifc;
};

enum class access { read, write };

const char* word(access dir) {
    return dir == access::read ? "read" : "write";
}

// Numbers in the header are lower-case hexadecimal without leading zeros.
std::string hex(uint64_t value) {
    std::ostringstream s;
    s << std::hex << value;
    return s.str();
}

std::string comment(const std::string& text) {
    return "/***\n * " + text + "\n */\n";
}

// Calls `f` with each buffer whose form is being written, and whether it is the by-name form.
template <class F> void for_each_form(c_buffers& b, F f) {
    if (gen_brx_c_model) {
        f(b.model, false);
    }
    if (gen_brx_c_ifc) {
        f(b.ifc, true);
    }
}

const char* endian_macro(const char* endian) {
    return is_named(endian, "big") ? "QVT_BRX_BIG_ENDIAN" : "QVT_BRX_LITTLE_ENDIAN";
}

// The index of the last 32-bit word of a register or a memory location of `bytes` bytes.
uint32_t last_word(uint32_t bytes) {
    return (bytes - 1) >> 2;
}

// Words of the top's interface that `size` bytes take.
uint32_t top_words(uint32_t size) {
    return (size - 1) / top_level_domain_width + 1;
}

bool visits(const char* domain_name, const char* wanted) {
    return wanted == nullptr || domain_name == nullptr || is_named(domain_name, wanted);
}

// Where a component lives: a comment heading and brx_addr_of_<name>_in_<container>, an
// offset from the container in the plain form and a look-up by name in the other.
struct addr_macro {
    const char* kind;      // "Register", "Memory", "Block", "Sub-System"
    const char* container; // "Block" or "System"
    const char* param;     // "blk" or "sys"
    const char* getter;    // run-time look-up of the by-name form
    bool getter_index;     // whether the look-up takes an index
};

void emit_addr_macro(c_buffers& b, const addr_macro& m, const std::string& name,
                     const std::string& suffix, bool array, uint64_t offset,
                     const std::string& stride) {
    const std::string text = std::string("Macros to access ") + m.kind + " " +
                             (array ? "Array " : "") + "'" + name + "' in " + m.container + " '" +
                             suffix + "' ...";
    const std::string head = "#define brx_addr_of_" + name + "_in_" + suffix + "(" + m.param +
                             (array ? ", idx" : "") + ")\t((size_t) ";
    if (gen_brx_c_model) {
        b.model << "\n\n"
                << comment(text) << head << m.param << " + 0x"
                << hex(static_cast<uint32_t>(offset));
        if (array) {
            b.model << " + (idx * " << stride << ")";
        }
        b.model << ")\n\n";
    }
    if (gen_brx_c_ifc) {
        b.ifc << "\n\n"
              << comment(text) << head << m.getter << "(" << m.param << ", \"" << name << "\"";
        if (m.getter_index) {
            b.ifc << ", " << (array ? "idx" : "-1");
        }
        b.ifc << "))\n\n";
    }
}

void emit_size_macro(c_buffers& b, const char* kind, const std::string& name,
                     const std::string& suffix, uint64_t size) {
    b.sizes << "\n\n"
            << comment(std::string("Size of ") + kind + " '" + name + "' in Block '" + suffix +
                       "' ...")
            << "#define brx_size_of_" << name << "_in_" << suffix << "\t\t0x" << hex(size)
            << "\n\n";
}

// brx_read_<N> or brx_write_<N> of a register. `size` is the register's span in bytes.
void emit_register_access_macro(access dir, const brix_register_tag* reg, c_buffers& b,
                                const std::string& suffix, const char* endian, uint32_t size) {
    const std::string n = std::string(reg->name) + "_in_" + suffix;
    const char* idx = is_array(reg->array_size) ? ", idx" : "";
    const std::string head = std::string("#define brx_") + word(dir) + "_" + n + "(blk" + idx +
                             ", reg) \\\n\tqvt_brx_reg__" + word(dir) + "(brx_addr_of_" + n +
                             "(blk" + idx + ")";
    if (gen_brx_c_model) {
        b.model << head << ", 0x" << hex(top_words(size)) << ", " << endian_macro(endian)
                << ", reg)\n\n";
    }
    if (gen_brx_c_ifc) {
        b.ifc << head << ", &qvt_brx_status, reg, 0x0, 0x"
              << hex(last_word(static_cast<uint32_t>(reg->type->bytes))) << ")\n\n";
    }
}

// brx_read_<N> or brx_write_<N> of a memory. `size` is the span of a location in bytes.
void emit_memory_access_macro(access dir, const brix_memory_tag* mem, c_buffers& b,
                              const std::string& suffix, const char* endian, uint32_t size) {
    const std::string n = std::string(mem->name) + "_in_" + suffix;
    const uint32_t bits = mem->type->bits;
    const std::string head = std::string("#define brx_") + word(dir) + "_" + n +
                             "(blk, offset, mem) \\\n\tqvt_brx_mem__" + word(dir) +
                             "(brx_addr_of_" + n + "(blk";
    if (gen_brx_c_model) {
        b.model << head << "), 0x" << hex(bits) << ", offset, 0x" << hex(top_words(size)) << ", "
                << endian_macro(endian) << ", mem)\n\n";
    }
    if (gen_brx_c_ifc) {
        b.ifc << head << "), offset, &qvt_brx_status, mem, 0x0, 0x" << hex(((bits - 1) / 8) >> 2)
              << ")\n\n";
    }
}

// Bit positions of a register's fields, real or not, in list order. Left to right, a first
// pass finds how far below the top bit the fields reach, and the second counts down from
// that height.
std::vector<uint32_t> field_lsbs(const brix_register_type_tag* t) {
    std::vector<uint32_t> lsbs;
    if (t->left_to_right != 1) {
        for (long long lsb : place_fields(t->fields, 0).lsb) {
            lsbs.push_back(static_cast<uint32_t>(lsb));
        }
        return lsbs;
    }
    auto pass = [&](uint32_t top_bit, bool record) {
        uint32_t pos = top_bit;
        for_each_field(t->fields, [&](const brix_field_tag* f) {
            const uint32_t bits = f->type->bits;
            pos = f->offset != nullptr ? top_bit - static_cast<uint32_t>(to_dec(f->offset)) - bits
                                       : pos - bits;
            if (record) {
                lsbs.push_back(pos);
            }
        });
        return pos;
    };
    const uint32_t width = static_cast<uint32_t>(t->bytes) * 8;
    pass(width - pass(width, false), true);
    return lsbs;
}

struct field_site {
    const brix_field_tag* field;
    uint32_t lsb;
    std::string reg;    // the register's name
    std::string suffix; // the block's
    uint32_t bytes;     // of the register type
};

// brx_read_<f>_in_<B> or brx_write_<f>_in_<B>, for a field whose name is used once in the
// block: the long macro on the register's address.
void emit_field_alias(std::ostream& os, access dir, const field_site& s) {
    const std::string f = s.field->name;
    os << "#define brx_" << word(dir) << "_" << f << "_in_" << s.suffix << "(blk, fld) \\\n\tbrx_"
       << word(dir) << "_" << f << "_in_" << s.suffix << "_" << s.reg << "( \\\n\tbrx_addr_of_"
       << s.reg << "_in_" << s.suffix << "(blk), fld)\n\n";
}

// brx_read_<f>_in_<B>_<R> or brx_write_...: the plain form works on the register's memory,
// the by-name form reads the register, and a write modifies and writes it back.
void emit_field_access_macro(access dir, const field_site& s, c_buffers& b, bool alias) {
    const std::string f = s.field->name;
    const std::string lsb_bits = "0x" + hex(s.lsb) + ", 0x" + hex(s.field->type->bits) + ", fld)";
    const std::string head = std::string("#define brx_") + word(dir) + "_" + f + "_in_" + s.suffix +
                             "_" + s.reg + "(reg, fld) \\\n";
    const std::string last = hex(last_word(s.bytes));
    for_each_form(b, [&](std::ostream& os, bool by_name) {
        os << head;
        if (!by_name) {
            os << "\tqvt_brx_field__" << word(dir)
               << "(((unsigned int *) qvt_brx_addr_align(reg)), " << lsb_bits << "\n\n";
        } else {
            os << "\t{\\\n\t\tunsigned int __qvt_r[0x" << hex(last_word(s.bytes) + 1)
               << "];\\\n\t\tqvt_brx_reg__read(reg, &qvt_brx_status, __qvt_r, 0, 0x" << last
               << ");\\\n\t\tif (qvt_brx_status == 1)\\\n\t\t\tqvt_brx_error(\"While "
               << (dir == access::read ? "reading" : "writing") << " field '" << f
               << "', failed to read register '" << s.reg << "' in block '" << s.suffix
               << "'\");\\\n\t\tqvt_brx_field__" << word(dir) << "(__qvt_r, " << lsb_bits
               << ";\\\n";
            if (dir == access::write) {
                os << "\t\tif (qvt_brx_status == 1)\\\n"
                   << "\t\t\tqvt_brx_error(\"Failed to write field '" << f << "' of register '"
                   << s.reg << "' in block '" << s.suffix
                   << "'\");\\\n\t\tqvt_brx_reg__write(reg, &qvt_brx_status, __qvt_r, 0, 0x" << last
                   << ");\\\n";
            }
            os << "\t}\n\n";
        }
        if (alias) {
            emit_field_alias(os, dir, s);
        }
    });
}

// brx_get_... or brx_set_...: the field in a register value in hand. The alias that follows
// is that of the read or the write, so those aliases are defined twice with one text.
void emit_field_value_macro(access dir, const field_site& s, c_buffers& b, bool alias) {
    for_each_form(b, [&](std::ostream& os, bool) {
        os << "#define brx_" << (dir == access::read ? "get" : "set") << "_" << s.field->name
           << "_in_" << s.suffix << "_" << s.reg << "(reg, fld) \\\n\tqvt_brx_field__" << word(dir)
           << "(reg, 0x" << hex(s.lsb) << ", 0x" << hex(s.field->type->bits) << ", fld)\n\n";
        if (alias) {
            emit_field_alias(os, dir, s);
        }
    });
}

void emit_register_fields(const brix_register_tag* reg, c_buffers& b, const std::string& suffix,
                          const name_counts& names) {
    const brix_register_type_tag* t = reg->type;
    const std::string text = std::string("Macros to access Fields of Register '") + reg->name +
                             "' in Block '" + suffix + "' ...";
    for_each_form(b, [&](std::ostream& os, bool) { os << "\n\n" << comment(text); });
    const std::vector<uint32_t> lsbs = field_lsbs(t);
    size_t i = 0;
    for_each_field(t->fields, [&](const brix_field_tag* f) {
        const uint32_t lsb = lsbs[i++];
        if (!is_real_field(f)) {
            return;
        }
        const field_site s{f, lsb, reg->name, suffix, static_cast<uint32_t>(t->bytes)};
        const auto count = names.find(f->name);
        const bool alias = count != names.end() && count->second == 1;
        emit_field_access_macro(access::read, s, b, alias);
        emit_field_access_macro(access::write, s, b, alias);
        emit_field_value_macro(access::read, s, b, alias);
        emit_field_value_macro(access::write, s, b, alias);
    });
}

const addr_macro register_addr{"Register", "Block", "blk", "qvt_brx_block_or_sys__get_reg_by_name",
                               true};
const addr_macro memory_addr{"Memory", "Block", "blk", "qvt_brx_block_or_sys__get_mem_by_name",
                             false};
const addr_macro block_addr{"Block", "System", "sys", "qvt_brx_sys__get_block_by_name", true};
const addr_macro subsystem_addr{"Sub-System", "System", "sys", "qvt_brx_sys__get_subsys_by_name",
                                true};

void emit_register(const brix_register_tag* reg, c_buffers& b, const std::string& suffix,
                   const brix_block_domain_tag* domain, const name_counts& names,
                   c_offset_walk& walk) {
    const uint32_t d = static_cast<uint32_t>(domain->bytes);
    const uint32_t words = (static_cast<uint32_t>(reg->type->bytes) - 1) / d + 1;
    emit_size_macro(b, "Register", reg->name, suffix, uint64_t{words} * d);
    const brix_placement p =
        brix_place(walk, reg->offset, true, reg->array_size, reg->increment, words);
    const std::string stride = reg->increment != nullptr
                                   ? "0x" + hex(to_dec(reg->increment))
                                   : "brx_size_of_" + std::string(reg->name) + "_in_" + suffix;
    emit_addr_macro(b, register_addr, reg->name, suffix, is_array(reg->array_size), p.offset,
                    stride);
    emit_register_access_macro(access::read, reg, b, suffix, domain->endian, words * d);
    emit_register_access_macro(access::write, reg, b, suffix, domain->endian, words * d);
    emit_register_fields(reg, b, suffix, names);
}

void emit_memory(const brix_memory_tag* mem, c_buffers& b, const std::string& suffix,
                 const brix_block_domain_tag* domain, c_offset_walk& walk) {
    const brix_memory_type_tag* m = mem->type;
    const uint32_t d = static_cast<uint32_t>(domain->bytes);
    const uint32_t words = ((m->bits - 1) / 8) / d + 1;
    emit_size_macro(b, "Memory", mem->name, suffix, m->size * words * d);
    const brix_placement p = brix_place(walk, mem->offset, true, -1, nullptr,
                                        uint64_t{words} * static_cast<uint32_t>(m->size));
    emit_addr_macro(b, memory_addr, mem->name, suffix, false, p.offset, "");
    emit_memory_access_macro(access::read, mem, b, suffix, domain->endian, words * d);
    emit_memory_access_macro(access::write, mem, b, suffix, domain->endian, words * d);
}

// The domain that a top is seen through, and the width of its words.
template <class Domain>
void settle_top_domain(const brix_list_tag* domains, const char* type_name, const char* domain,
                       c_buffers& b, const char* missing, const char* multiple) {
    const Domain* chosen = nullptr;
    if (domain != nullptr) {
        for_each_domain<const Domain>(domains, [&](const Domain* d) {
            if (chosen == nullptr && is_named(d->name, domain)) {
                chosen = d;
            }
        });
        if (chosen == nullptr) {
            brix_error(missing, type_name, domain);
        }
    } else {
        if (count_nodes(domains) != 1) {
            brix_error(multiple, type_name);
        }
        chosen = static_cast<const Domain*>(domains->data);
    }
    top_level_domain_width = static_cast<uint32_t>(chosen->bytes);
    b.sizes << "\n\n"
            << comment("Top Level Domain/Physical Interface width ...")
            << "#define brx_top_domain_width\t0x" << hex(top_level_domain_width) << "\n\n";
}

void count_names(name_counts& names, const char* name, const brix_list_tag* fields) {
    ++names[name];
    for_each_field(fields, [&](const brix_field_tag* f) { ++names[f->name]; });
}

void emit_block(const brix_block_type_tag* type, c_buffers& b, const char* domain, bool is_top) {
    if (is_top) {
        settle_top_domain<brix_block_domain_tag>(
            type->domains, type->name, domain, b,
            "Error: Block '%s' - Couldn't find domain '%s' in it.\n",
            "Error: Block '%s' - Has multiple domains. So, you must specify the domain you want "
            "to instantiate.\n");
    }
    name_counts names;
    for_each_component<brix_block_domain_tag>(
        type->domains, [&](const brix_block_domain_tag* d, const brix_list_tag* c) {
            if (!visits(d->name, domain)) {
                return;
            }
            if (c->tag == BRIX_REGISTER) {
                const auto* r = static_cast<const brix_register_tag*>(c->data);
                count_names(names, r->name, r->type->fields);
            } else if (c->tag == BRIX_VREGISTER) {
                const auto* v = static_cast<const brix_vregister_tag*>(c->data);
                count_names(names, v->name, v->type->fields);
            } else if (c->tag == BRIX_REGFILE) {
                ++names[static_cast<const brix_regfile_tag*>(c->data)->name];
            } else if (c->tag == BRIX_MEMORY) {
                ++names[static_cast<const brix_memory_tag*>(c->data)->name];
            }
        });
    const std::string suffix = suffix_of(type);
    for_each_domain<const brix_block_domain_tag>(
        type->domains, [&](const brix_block_domain_tag* d) {
            if (!visits(d->name, domain)) {
                return;
            }
            c_offset_walk walk;
            for (const brix_list_tag* c = d->components; c != nullptr; c = c->next) {
                switch (c->tag) {
                case BRIX_REGISTER:
                    emit_register(static_cast<const brix_register_tag*>(c->data), b, suffix, d,
                                  names, walk);
                    break;
                case BRIX_VREGISTER:
                    brix_warn("WARNING: BRX C Model is not yet supported for virtual registers. "
                              "Ignoring virtual register '%s' ...\n",
                              static_cast<const brix_vregister_tag*>(c->data)->name);
                    break;
                case BRIX_REGFILE:
                    brix_warn("WARNING: BRX C Model is not yet supported for regfiles. Ignoring "
                              "regfile '%s' ...\n",
                              static_cast<const brix_regfile_tag*>(c->data)->name);
                    break;
                case BRIX_MEMORY:
                    emit_memory(static_cast<const brix_memory_tag*>(c->data), b, suffix, d, walk);
                    break;
                default:
                    brix_error("Error: Invalid component found in BRIX Block '%s'...", type->name);
                }
            }
            all_block_sizes.emplace(size_key(suffix, d->name), static_cast<uint32_t>(walk.size));
        });
    all_blocks.insert(suffix);
}

// The offsets that a block or subsystem instance takes in a system domain of `u` bytes: its
// size in its own domain, times the words of this domain that one of its words spans.
template <class Instance, class Domain>
uint32_t instance_size(const Instance* inst, const std::unordered_map<std::string, uint32_t>& sizes,
                       uint32_t u) {
    const auto found = sizes.find(size_key(suffix_of(inst->type), inst->domain));
    uint32_t size = found != sizes.end() ? found->second : 0;
    const auto w = static_cast<uint32_t>(
        instance_domain<Domain>(inst->type->domains, inst->type->name, inst->domain).bytes);
    if (w > u) {
        size *= (w - 1) / u + 1;
    }
    return size;
}

template <class Instance>
void emit_system_addr(const Instance* inst, c_buffers& b, const addr_macro& m,
                      const std::string& parent, c_offset_walk& walk, uint32_t size) {
    const brix_placement p =
        brix_place(walk, inst->offset, true, inst->array_size, inst->increment, size);
    const std::string stride =
        inst->increment != nullptr ? std::string(inst->increment) : "0x" + hex(size);
    emit_addr_macro(b, m, inst->name, parent, is_array(inst->array_size), p.offset, stride);
}

void emit_system_level_macros(const brix_system_type_tag* type, c_buffers& b, const char* domain) {
    if (domain == nullptr && count_nodes(type->domains) > 1) {
        brix_error("Error: System '%s' - For systems having multiple domains, you must specify "
                   "the domain you want to instantiate.\n",
                   type->name);
    }
    const std::string parent = suffix_of(type);
    for_each_domain<const brix_system_domain_tag>(
        type->domains, [&](const brix_system_domain_tag* d) {
            if (!visits(d->name, domain)) {
                return;
            }
            const uint32_t u = static_cast<uint32_t>(d->bytes);
            c_offset_walk walk;
            for (const brix_list_tag* c = d->components; c != nullptr; c = c->next) {
                if (c->tag == BRIX_BLOCK) {
                    const auto* blk = static_cast<const brix_block_tag*>(c->data);
                    const uint32_t size = instance_size<brix_block_tag, brix_block_domain_tag>(
                        blk, all_block_sizes, u);
                    emit_system_addr(blk, b, block_addr, parent, walk, size);
                } else if (c->tag == BRIX_SYSTEM) {
                    const auto* sys = static_cast<const brix_system_tag*>(c->data);
                    const uint32_t size = instance_size<brix_system_tag, brix_system_domain_tag>(
                        sys, all_system_sizes, u);
                    emit_system_addr(sys, b, subsystem_addr, parent, walk, size);
                } else {
                    brix_error("Error: Invalid System Component found.\n");
                }
            }
            all_system_sizes.emplace(size_key(parent, d->name), static_cast<uint32_t>(walk.size));
        });
}

void emit_system(const brix_system_type_tag* type, c_buffers& b, const char* domain, bool is_top) {
    if (is_top) {
        settle_top_domain<brix_system_domain_tag>(
            type->domains, type->name, domain, b,
            "Error: System '%s' - Couldn't find domain '%s' in it.\n",
            "Error: System '%s' - Has multiple domains. So, you must specify the 'domain' you "
            "want to instantiate.\n");
    }
    for_each_component<const brix_system_domain_tag>(
        type->domains, [&](const brix_system_domain_tag* d, const brix_list_tag* c) {
            if (!visits(d->name, domain)) {
                return;
            }
            if (c->tag == BRIX_BLOCK) {
                const auto* blk = static_cast<const brix_block_tag*>(c->data);
                if (all_blocks.count(suffix_of(blk->type)) == 0) {
                    emit_block(blk->type, b, blk->domain, false);
                }
            } else if (c->tag == BRIX_SYSTEM) {
                const auto* sys = static_cast<const brix_system_tag*>(c->data);
                if (all_systems.count(suffix_of(sys->type)) == 0) {
                    emit_system(sys->type, b, sys->domain, false);
                }
            } else {
                brix_error("Error: Invalid System Component found.\n");
            }
        });
    emit_system_level_macros(type, b, domain);
    all_systems.insert(suffix_of(type));
}

// Opens the header of `name` in the working directory; -o does not rename it.
const brix_symrec* init(const char* name) {
    const brix_symrec* sym = lookup_design_top(name);
    top = name;
    const std::string file_name = "brx_" + top + ".h";
    brx_model_fp = brix_open_output(file_name);
    if (brx_model_fp == nullptr) {
        brix_error("Error: Failed to open output file '%s' for writing...", file_name);
    }
    uc_top = top;
    std::transform(uc_top.begin(), uc_top.end(), uc_top.begin(),
                   [](unsigned char c) { return static_cast<char>(toupper(c)); });
    all_blocks.clear();
    all_systems.clear();
    all_block_sizes.clear();
    all_system_sizes.clear();
    return sym;
}

void cleanup() {
    brix_close_output(brx_model_fp);
    all_blocks.clear();
    all_systems.clear();
    all_block_sizes.clear();
    all_system_sizes.clear();
}

// `language`: 0 the pure C model, 1 the interface to a SystemVerilog model, 2 to an HX model.
void emit_c_api(const char* name, int language, const char* domain) {
    const brix_symrec* sym = init(name);
    c_buffers b;
    if (sym->kind == BRIX_BLOCK_TYPE) {
        emit_block(static_cast<const brix_block_type_tag*>(sym->data), b, domain, true);
    } else {
        emit_system(static_cast<const brix_system_type_tag*>(sym->data), b, domain, true);
    }
    brix_emit("#ifndef __BRX_%s_H__\n#define __BRX_%s_H__\n\n\n", uc_top, uc_top);
    switch (language) {
    case 0:
        brix_emit("#define QVT_BRX_PURE_C_MODEL\n");
        break;
    case 1:
        brix_emit("#ifndef QVT_BRX_PURE_C_MODEL\n#define QVT_BRX_C_INTF_FOR_SV_MODEL\n#endif\n");
        break;
    case 2:
        brix_emit("#ifndef QVT_BRX_PURE_C_MODEL\n#define QVT_BRX_C_INTF_FOR_HX_MODEL\n#endif\n");
        break;
    default:
        brix_error("Error: C interface requested for unsupported language.\n");
    }
    brix_emit("\n\n#include \"qvt_brx.h\"\n");
    brix_emit("\n%s\n\n\n", b.sizes.str());
    if (language == 0) {
        brix_emit("%s\n", b.model.str());
    } else {
        brix_emit("#ifdef QVT_BRX_PURE_C_MODEL%s\n\n#else\n\n%s\n#endif\n", b.model.str(),
                  b.ifc.str());
    }
    brix_emit("#endif\n");
    cleanup();
}

} // namespace
} // namespace brix_c

void emit_c_brx_model(const char* top, const char* top_domain) {
    brix_c::gen_brx_c_model = 1;
    brix_c::emit_c_api(top, 0, top_domain);
}

void emit_brx_c_ifc_for_sv_model(const char* top, const char* top_domain) {
    brix_c::gen_brx_c_ifc = 1;
    brix_c::gen_brx_c_model = 1;
    brix_c::emit_c_api(top, 1, top_domain);
}

void emit_brx_c_ifc_for_hx_model(const char* top, const char* top_domain) {
    brix_c::gen_brx_c_ifc = 1;
    brix_c::gen_brx_c_model = 1;
    brix_c::emit_c_api(top, 2, top_domain);
}
