#include "gen_backdoor/backdoor.hpp"

#include <array>
#include <cstring>
#include <string>
#include <vector>

#include "driver/options.hpp"
#include "gen_model/gen_support.hpp"
#include "gen_backdoor/vhdl.hpp"

using namespace brix_gen;

namespace {

const brix_bkdr_templates& T() {
    return *brix_bkdr_lang;
}

bool is_read(brix_bkdr_dir dir) {
    return dir == brix_bkdr_dir::read;
}

// Access statements go to the language's statement stream, in brix_emit's format language,
// so that a path can serve as the format that takes an array index.
template <class... A> void out(const char* fmt, const A&... a) {
    const std::array<brix_arg, sizeof...(A)> v{brix_arg(a)...};
    brix_vemit_to(*T().statements_fp, fmt, brix_args{v.data(), v.size()});
}

void out_tabs(int n) {
    indent_code(n, *T().statements_fp);
}

void emit_tabs(int n) {
    indent_code(n, brx_model_fp);
}

// ---- The levels above the object ----------------------------------------------------

// One level of brix_hierarchy, whatever record it stands for.
struct bkdr_level {
    int tag;
    const char* name;
    int32_t array_size;
    brix_hdl_path_tag* hdl_path;
    const brix_tmp_info_for_mem_vhdl_bkdr* tmp_info;
};

template <class Rec> bkdr_level level_from(int tag, const Rec* r) {
    if constexpr (requires { r->tmp_info; }) {
        return {tag, r->name, r->array_size, r->hdl_path, r->tmp_info};
    } else {
        return {tag, r->name, r->array_size, r->hdl_path, nullptr};
    }
}

bkdr_level level_of(const brix_list_tag* node) {
    switch (node->tag) {
    case BRIX_SYSTEM:
        return level_from(node->tag, static_cast<const brix_system_tag*>(node->data));
    case BRIX_BLOCK:
        return level_from(node->tag, static_cast<const brix_block_tag*>(node->data));
    case BRIX_REGFILE:
        return level_from(node->tag, static_cast<const brix_regfile_tag*>(node->data));
    case BRIX_REGISTER:
        return level_from(node->tag, static_cast<const brix_register_tag*>(node->data));
    default:
        return {node->tag, nullptr, -1, nullptr, nullptr};
    }
}

bool holds(const brix_hdl_path_tag* path, const char* text) {
    return path != nullptr && strstr(path->path, text) != nullptr;
}

// An array level whose first path in the hierarchy's view holds the variable index:
// "[<name>]".
bool has_variable_index(const bkdr_level& l) {
    std::string index = "[";
    index += l.name;
    index += ']';
    return is_array(l.array_size) && holds(l.hdl_path, index.c_str());
}

// The level of the object being written, for as long as it is written. brix_hierarchy
// holds a view of the level's record: a copy whose paths are the backdoor's own, so that
// the walk reads the model and never rewrites it. An array whose path indexes with "[%d]"
// keeps the index at run time, through a member of the class named after the level, and
// its paths name that member in place of "%d".
template <class Rec> class hierarchy_level {
  public:
    hierarchy_level(int tag, const Rec* record) : view_(*record) {
        for (const brix_hdl_path_tag* p = record->hdl_path; p != nullptr; p = p->next) {
            texts_.emplace_back(p->path);
            paths_.push_back(*p);
        }
        for (size_t i = 0; i < paths_.size(); ++i) {
            paths_[i].path = texts_[i].data();
            paths_[i].next = i + 1 < paths_.size() ? &paths_[i + 1] : nullptr;
        }
        view_.hdl_path = paths_.empty() ? nullptr : paths_.data();
        if (is_array(view_.array_size) && holds(view_.hdl_path, "[%d]")) {
            index_with_member();
        }
        brix_list_push(&brix_hierarchy, create_brix_list_node(tag, &view_));
    }
    ~hierarchy_level() { destroy_brix_list(brix_list_pop(&brix_hierarchy)); }
    hierarchy_level(const hierarchy_level&) = delete;
    hierarchy_level& operator=(const hierarchy_level&) = delete;
    const Rec* view() const { return &view_; }

  private:
    void index_with_member() {
        for (const std::string& text : texts_) {
            if (text.find("%d") == std::string::npos) {
                brix_error("Error: Array '%s' - '%%d' is mandatory in hdl_path(s) of array "
                           "constructs.",
                           view_.name);
            }
        }
        for (size_t i = 0; i < texts_.size(); ++i) {
            texts_[i].replace(texts_[i].find("%d"), 2, view_.name);
            paths_[i].path = texts_[i].data();
        }
    }

    Rec view_;
    std::vector<std::string> texts_;
    std::vector<brix_hdl_path_tag> paths_;
};

std::string joined(const std::string* prefix, const std::string& path) {
    return prefix != nullptr ? *prefix + "." + path : path;
}

// ---- The object of a class ----------------------------------------------------------

bool is_shared(const brix_bkdr_object& o) {
    return (o.reg != nullptr ? o.reg->type->is_shared : o.mem->type->is_shared) == 1;
}

// A shared type's own path counts, else the instance's.
const brix_hdl_path_tag* register_path(const brix_register_tag* r) {
    return r->type->is_shared == 1 ? r->type->hdl_path : r->hdl_path;
}

const brix_hdl_path_tag* memory_path(const brix_memory_tag* m) {
    return m->type->is_shared == 1 ? m->type->hdl_path : m->hdl_path;
}

bool any_field_path(const brix_register_type_tag* t) {
    bool any = false;
    for_each_field(t->fields,
                   [&](const brix_field_tag* f) { any = any || f->hdl_path != nullptr; });
    return any;
}

bool has_backdoor(const brix_bkdr_object& o) {
    if (o.reg != nullptr) {
        return register_path(o.reg) != nullptr || any_field_path(o.reg->type);
    }
    return memory_path(o.mem) != nullptr;
}

// Read-only is the exact word here: "RO" or "ro " count as writable.
bool is_exactly_ro(const char* access) {
    return is_named(access, "ro");
}

// A register with a read-only field is written field by field, so it needs a writable
// field with a path; a read-only memory is not written at all.
bool is_writable(const brix_bkdr_object& o) {
    if (o.mem != nullptr) {
        return !is_exactly_ro(o.mem->type->access);
    }
    bool has_ro = false;
    bool has_writable_path = false;
    for_each_field(o.reg->type->fields, [&](const brix_field_tag* f) {
        const bool ro = is_exactly_ro(f->type->access);
        has_ro = has_ro || ro;
        has_writable_path = has_writable_path || (!ro && f->hdl_path != nullptr);
    });
    return !has_ro || has_writable_path;
}

// A memory is not on brix_hierarchy: its name follows the levels.
std::string class_name(const brix_bkdr_object& o) {
    std::string name = o.reg != nullptr ? "brx_reg_" : "brx_mem_";
    name += brix_top;
    for (const brix_list_tag* n = brix_hierarchy; n != nullptr; n = n->next) {
        name += "_";
        name += level_of(n).name;
    }
    if (o.mem != nullptr) {
        name += "_";
        name += o.mem->name;
    }
    return name + "_bkdr";
}

brix_str2int_map& shared_classes(const brix_bkdr_object& o) {
    return o.reg != nullptr ? all_emitted_shared_registers : all_emitted_shared_memories;
}

// The array levels that a class keeps an index for. A shared register has one class for
// all the elements of a regfile array, so the regfile gives none.
std::vector<const char*> index_members(const brix_bkdr_object& o) {
    std::vector<const char*> members;
    for (const brix_list_tag* n = brix_hierarchy; n != nullptr; n = n->next) {
        const bkdr_level l = level_of(n);
        if (is_array(l.array_size) && !(n->tag == BRIX_REGFILE && is_shared(o))) {
            members.push_back(l.name);
        }
    }
    return members;
}

// ---- Access statements --------------------------------------------------------------

// What a statement moves: the whole data word or a field's slice of it. A read assigns
// it, a write assigns from it.
void open_assignment(brix_bkdr_dir dir, const std::string& data) {
    if (is_read(dir)) {
        out("%s = ", data);
    }
}

void close_assignment(brix_bkdr_dir dir, const std::string& data) {
    if (is_read(dir)) {
        out(";\n");
    } else {
        out(" = %s;\n", data);
    }
}

std::string field_slice(long long msb, long long lsb) {
    return "data[" + std::to_string(static_cast<int>(msb)) + ":" +
           std::to_string(static_cast<int>(lsb)) + "]";
}

void out_top_path(const std::string* prefix) {
    if (prefix != nullptr) {
        out("`%s_TOP_PATH.%s.", uc_top, *prefix);
    } else {
        out("`%s_TOP_PATH.", uc_top);
    }
}

// A path is a format that takes the array index, when there is one.
void out_indexed_path(const char* path, long long index) {
    if (index >= 0) {
        out(path, static_cast<int>(index));
    } else {
        out(path);
    }
}

// The one place where an access reaches an object of a VHDL part of the design. Such an
// object is reached through a register of the connector module, named from `prefix` and
// `path`, `width` bits wide, over `memory_size` words for a memory (whose name keeps a
// fixed index). A whole register writes its statement before declaring the connector's
// register, fields and memories after: that order shows when the declaration stops the run.
void emit_vhdl_backdoor_access(brix_bkdr_dir dir, const std::string& data,
                               const std::string& prefix, const char* path, uint32_t width,
                               long long index, uint64_t memory_size, bool is_memory,
                               bool statement_first = false) {
    const bool write = !is_read(dir);
    const char* at = prefix.empty() ? nullptr : prefix.c_str();
    const std::vector<brix_bkdr_dimension> dims = backdoor_variable_dimensions(brix_hierarchy);
    const auto connect = [&] {
        emit_hdl_xmr_connection_code(at, path, width, index, static_cast<uint32_t>(memory_size),
                                     write, is_memory, dims);
    };
    if (!statement_first) {
        connect();
    }
    std::string name;
    create_tmpregname(name, at, path, index, write, dims, is_memory);
    open_assignment(dir, data);
    out("`%s_VHDL_BKDR_CONNECTOR.%s%s", uc_top, name, is_memory ? "[offset]" : "");
    close_assignment(dir, data);
    if (statement_first) {
        connect();
    }
}

// The field-by-field access. Bits without a path read as zero; read-only fields are not
// written but keep their place.
void emit_register_backdoor_code_with_fld_hdl_paths(brix_bkdr_dir dir, const brix_register_tag* reg,
                                                    long long index, int ind,
                                                    const std::string& path, bool vhdl) {
    const bool read = is_read(dir);
    out("begin\n");
    out_tabs(ind + 1);
    if (read) {
        out("data = `QVT_BRX_DATA_WIDTH'h0;\n");
    }
    const brix_field_layout layout = place_fields(reg->type->fields, reg->type->left_to_right);
    size_t i = 0;
    bool first = true;
    for_each_field(reg->type->fields, [&](const brix_field_tag* f) {
        const long long lsb = layout.lsb[i++];
        const brix_hdl_path_tag* h = f->hdl_path;
        if (h == nullptr || (!read && is_exactly_ro(f->type->access))) {
            return;
        }
        if (read || !first) {
            out_tabs(ind + 1);
        }
        first = false;
        const std::string slice =
            field_slice(wrapping_add(lsb, static_cast<long long>(f->type->bits) - 1), lsb);
        if (h->next == nullptr && (vhdl || h->is_vhdl)) {
            emit_vhdl_backdoor_access(dir, slice, path, h->path, f->type->bits, index, 0, false);
            return;
        }
        if (h->next != nullptr && h->is_vhdl) {
            brix_error("Error: Field '%s' - Concatenation of hdl_path in VHDL dut brix_hierarchy "
                       "is not supported.",
                       f->name);
        }
        open_assignment(dir, slice);
        if (h->next != nullptr) {
            out("{\n");
        }
        for (const brix_hdl_path_tag* p = h; p != nullptr; p = p->next) {
            if (h->next != nullptr) {
                out_tabs(ind + 2);
            }
            out("%s.", path);
            if (index >= 0 && strstr(p->path, "%d") != nullptr) {
                out(p->path, static_cast<int>(index));
            } else {
                out("%s", p->path);
            }
            if (h->next != nullptr) {
                out(p->next != nullptr ? ",\n" : "\n");
            }
        }
        if (h->next != nullptr) {
            out_tabs(ind + 1);
            out("}");
        }
        close_assignment(dir, slice);
    });
    out_tabs(ind);
    out("end\n");
}

// The statement that moves one register's data, or the field-by-field form when fields
// have paths of their own.
void emit_register_backdoor_data_stmt(brix_bkdr_dir dir, const brix_register_tag* reg,
                                      const brix_hdl_path_tag* path, int indent,
                                      const std::string* prefix, long long index, bool vhdl) {
    const std::string data = "data";
    if (path == nullptr || path->next == nullptr) {
        if (any_field_path(reg->type)) {
            const std::string own =
                path != nullptr ? brix_path_with_index(path->path, index) : std::string();
            std::string fields_at;
            if (fields_implemented_in_vhdl(reg) || vhdl) {
                vhdl = true;
                // The connector's names join the levels without a dot.
                fields_at = (prefix != nullptr ? *prefix : std::string()) + own;
            } else {
                fields_at = std::string("`") + uc_top + "_TOP_PATH";
                if (prefix != nullptr) {
                    fields_at += "." + *prefix;
                }
                if (path != nullptr) {
                    fields_at += "." + own;
                }
            }
            emit_register_backdoor_code_with_fld_hdl_paths(dir, reg, index, indent, fields_at,
                                                           vhdl);
            return;
        }
        if (vhdl) {
            emit_vhdl_backdoor_access(dir, data, prefix != nullptr ? *prefix : std::string(),
                                      path->path, static_cast<uint32_t>(reg->type->bytes) * 8,
                                      index, 0, false, true);
            return;
        }
        open_assignment(dir, data);
        out_top_path(prefix);
        out_indexed_path(path->path, index);
        close_assignment(dir, data);
        return;
    }
    if (path->is_vhdl) {
        brix_error("Error: Register '%s' - Concatenation of hdl_path in VHDL dut brix_hierarchy is "
                   "not supported.",
                   reg->name);
    }
    // A write's elements stand one tab left of a read's.
    open_assignment(dir, data);
    out("{\n");
    for (const brix_hdl_path_tag* p = path; p != nullptr; p = p->next) {
        out_tabs(is_read(dir) ? indent + 1 : indent);
        out_top_path(prefix);
        out_indexed_path(p->path, index);
        out(p->next != nullptr ? ",\n" : "\n");
    }
    out_tabs(indent);
    out("}");
    close_assignment(dir, data);
}

// The end of a walk: the register level, or the memory's statement.
struct bkdr_access {
    brix_bkdr_object obj;
    brix_bkdr_dir dir;
    bool vhdl;
};

void emit_register_level(const bkdr_access& a, int indent, const std::string* prefix) {
    const brix_register_tag* reg = a.obj.reg;
    const brix_hdl_path_tag* path = register_path(reg);
    if (reg->type->is_shared == 1 && path == nullptr && !any_field_path(reg->type)) {
        return;
    }
    const bool vhdl = a.vhdl || (path != nullptr && path->is_vhdl);
    if (!is_array(reg->array_size)) {
        emit_register_backdoor_data_stmt(a.dir, reg, path, indent, prefix, -1, vhdl);
        return;
    }
    out("case (%s)\n", reg->name);
    for (int i = 0; i < reg->array_size; ++i) {
        out_tabs(indent);
        out("%d:\t ", i);
        emit_register_backdoor_data_stmt(a.dir, reg, path, indent + 1, prefix, i, vhdl);
    }
    out_tabs(indent);
    out("endcase\n");
}

void emit_memory_level(const bkdr_access& a, const std::string* prefix) {
    const brix_memory_tag* mem = a.obj.mem;
    const brix_hdl_path_tag* path = memory_path(mem);
    if (mem->type->is_shared == 1 && path == nullptr) {
        return;
    }
    const std::string data = "data";
    if ((path == nullptr || !path->is_vhdl) && !a.vhdl) {
        open_assignment(a.dir, data);
        out_top_path(prefix);
        out("%s[offset]", path != nullptr ? path->path : nullptr);
        close_assignment(a.dir, data);
        return;
    }
    emit_vhdl_backdoor_access(a.dir, data, prefix != nullptr ? *prefix : std::string(),
                              path != nullptr ? path->path : nullptr, mem->type->bits, -1,
                              mem->type->size, true);
}

// The body of a task from `node` down: each level with a path adds it to the prefix; an
// array level whose path holds "%d" is settled here, one branch of a `case` per index.
void emit_backdoor_code(const bkdr_access& a, const brix_list_tag* node, int indent,
                        const std::string* prefix) {
    if (node == nullptr || node->tag == BRIX_REGISTER) {
        if (a.obj.reg != nullptr) {
            emit_register_level(a, indent, prefix);
        } else {
            emit_memory_level(a, prefix);
        }
        return;
    }
    if (node->tag != BRIX_SYSTEM && node->tag != BRIX_BLOCK && node->tag != BRIX_REGFILE) {
        return;
    }
    const bkdr_level l = level_of(node);
    // A shared register has one class for every regfile it is in, so no regfile's path fits.
    if (node->tag == BRIX_REGFILE && l.hdl_path != nullptr && is_shared(a.obj)) {
        if (is_read(a.dir)) {
            brix_warn("Warning: For shared register '%s', ignoring regfile's(%s) hdl_path '%s'.",
                      a.obj.reg->name, l.name, l.hdl_path->path);
        }
        emit_backdoor_code(a, node->next, indent, prefix);
        return;
    }
    if (is_array(l.array_size) && holds(l.hdl_path, "%d")) {
        out("case (%s)\n", l.name);
        for (int i = 0; i < l.array_size; ++i) {
            const std::string p = joined(prefix, brix_path_with_index(l.hdl_path->path, i));
            out_tabs(indent + 1);
            out("%d: ", i);
            emit_backdoor_code(a, node->next, indent + 1, &p);
        }
        out_tabs(indent);
        out(indent == 2 ? "endcase\n" : "   endcase\n");
        return;
    }
    if (l.hdl_path == nullptr) {
        emit_backdoor_code(a, node->next, indent, prefix);
        return;
    }
    const std::string p =
        joined(prefix, get_hdl_path_with_mem_bkdr_wrkaround(l.name, l.hdl_path, l.tmp_info));
    emit_backdoor_code(a, node->next, indent, &p);
}

// ---- Classes ------------------------------------------------------------------------

// The read and write methods; `writable` is false when the write can only answer an error.
void emit_backdoor_tasks(const brix_bkdr_object& o, bool writable) {
    const brix_bkdr_templates& t = T();
    if (t.emit_tasks_head != nullptr) {
        t.emit_tasks_head(o);
    }
    const char* const* heads = o.reg != nullptr ? t.reg_task_head : t.mem_task_head;
    for (const brix_bkdr_dir dir : {brix_bkdr_dir::read, brix_bkdr_dir::write}) {
        const int d = static_cast<int>(dir);
        brix_emit(heads[d]);
        if (!is_read(dir) && !writable) {
            brix_emit(t.task_error);
            continue;
        }
        brix_emit(t.task_body_open);
        t.emit_task_body(o, dir);
        brix_emit(t.task_ok_tail[d]);
    }
}

void emit_backdoor_class(const brix_bkdr_object& o) {
    const brix_bkdr_templates& t = T();
    if (is_shared(o)) {
        // One class serves every use of a shared object, named after the first.
        const std::string name = class_name(o);
        brix_str2int_map& map = shared_classes(o);
        if (get_str2int_map_value(map, name.c_str()) == 1) {
            return;
        }
        add_str2int_map_entry(map, brix_strdup(name.c_str()), 1);
        brix_emit(o.reg != nullptr ? t.shared_reg_class_head : t.shared_mem_class_head, name);
    } else {
        brix_emit(o.reg != nullptr ? t.reg_class_head : t.mem_class_head, brix_top);
        for (const brix_list_tag* n = brix_hierarchy; n != nullptr; n = n->next) {
            brix_emit(t.level_suffix, level_of(n).name);
        }
        if (o.reg != nullptr) {
            brix_emit(t.reg_class_head_tail);
        } else {
            brix_emit(t.mem_class_head_tail, o.mem->name);
        }
    }
    const std::vector<const char*> members = index_members(o);
    for (const char* m : members) {
        brix_emit(t.member_decl, m);
    }
    if (!members.empty()) {
        brix_emit(t.ctor_head);
        for (size_t i = 0; i < members.size(); ++i) {
            brix_emit(t.ctor_arg, members[i]);
            brix_emit(i + 1 < members.size() ? t.ctor_arg_sep : t.ctor_args_end);
        }
        for (const char* m : members) {
            brix_emit(t.ctor_assign, m, m);
        }
        brix_emit(t.ctor_tail);
    }
    emit_backdoor_tasks(o, is_writable(o));
    brix_emit(t.class_tail);
}

// ---- Constructor lines --------------------------------------------------------------

void emit_backdoor_instantiation(const brix_bkdr_object& o) {
    const brix_bkdr_templates& t = T();
    if (is_shared(o)) {
        // One object of a shared class is attached once.
        const std::string name = class_name(o);
        brix_str2int_map& map = shared_classes(o);
        const long long state = get_str2int_map_value(map, name.c_str());
        if (state == 2) {
            return;
        }
        if (state != 1) {
            brix_error(o.reg != nullptr
                           ? "Fatal Interal Error: Occurred while generating 'register' backdoor "
                             "code.\n\nPlease report to Marsdale Support.\n"
                           : "Fatal Interal Error: Occurred while generating 'memory' backdoor "
                             "code.\n\nPlease report to Marsdale Support.\n");
        }
        update_str2int_map(map, brix_strdup(name.c_str()));
    }
    int indent = 2;
    int loops = 0;
    std::string outer;    // the levels as a `foreach` names them
    std::string attached; // the levels as the attaching line names them
    for (const brix_list_tag* n = brix_hierarchy; n != nullptr; n = n->next) {
        const bkdr_level l = level_of(n);
        const std::string plain = std::string(".") + l.name;
        if (is_array(l.array_size)) {
            emit_tabs(indent);
            brix_emit(t.inst_foreach_head);
            brix_emit("%s", outer);
            brix_emit(t.inst_foreach_tail, l.name, loops);
            const std::string indexed = plain + "[i" + std::to_string(loops) + "]";
            outer += indexed;
            attached += indexed;
            ++indent;
            ++loops;
        } else if (l.tmp_info != nullptr) {
            // An expanded element is attached by its array's name and its index.
            outer += plain;
            attached +=
                std::string(".") + l.tmp_info->name + "[" + std::to_string(l.tmp_info->index) + "]";
        } else {
            outer += plain;
            attached += plain;
        }
    }
    if (loops == 0) {
        emit_tabs(indent);
        brix_emit(t.inst_begin);
        ++indent;
    }
    emit_tabs(indent);
    brix_emit("%s bkdr = new", class_name(o));
    const std::vector<const char*> members = index_members(o);
    if (!members.empty()) {
        brix_emit("(");
        for (size_t i = 0; i < members.size(); ++i) {
            brix_emit(i + 1 < members.size() ? "i%d, " : "i%d", static_cast<int>(i));
        }
        brix_emit(")");
    }
    brix_emit(";\n");
    emit_tabs(indent);
    brix_emit("this%s", attached);
    if (o.mem != nullptr) {
        brix_emit(".%s", o.mem->name);
    }
    brix_emit(".set_backdoor(bkdr);\n");
    for (int i = 0; i < loops; ++i) {
        --indent;
        emit_tabs(indent);
        brix_emit(t.inst_end);
    }
    if (loops == 0) {
        emit_tabs(indent - 1);
        brix_emit(t.inst_end);
    }
}

// ---- Elements of arrays that a memory of a VHDL part cannot index at run time ---------

template <class Rec, class F> void expand_level(Rec* r, F& leaf);

// Each element of such an array gets a class and a constructor line of its own.
template <class F> void for_each_expanded_element(F& leaf) {
    for (brix_list_tag* n = brix_hierarchy; n != nullptr; n = n->next) {
        if ((n->tag == BRIX_SYSTEM || n->tag == BRIX_BLOCK) && has_variable_index(level_of(n))) {
            if (n->tag == BRIX_SYSTEM) {
                expand_level(static_cast<brix_system_tag*>(n->data), leaf);
            } else {
                expand_level(static_cast<brix_block_tag*>(n->data), leaf);
            }
            return;
        }
    }
    leaf();
}

template <class Rec, class F> void expand_level(Rec* r, F& leaf) {
    brix_tmp_info_for_mem_vhdl_bkdr info{r->name, r->array_size, r->hdl_path->path};
    const std::string text = info.hdl_path;
    const size_t open = text.find('[');
    const size_t close = text.find(']', open);
    const std::string head = text.substr(0, open);
    const std::string tail = close != std::string::npos ? text.substr(close + 1) : std::string();
    r->array_size = -1;
    r->tmp_info = &info;
    for (int i = 0; i < info.array_size; ++i) {
        info.index = i;
        std::string mark = "X";
        mark += std::to_string(i);
        mark += 'X';
        std::string name = info.name + mark;
        std::string path = head + mark + tail;
        r->name = name.data();
        r->hdl_path->path = path.data();
        for_each_expanded_element(leaf);
    }
    r->name = info.name;
    r->array_size = info.array_size;
    r->hdl_path->path = info.hdl_path;
    r->tmp_info = nullptr;
}

bool wants_mixed_form(const brix_memory_tag* mem) {
    const brix_hdl_path_tag* path = memory_path(mem);
    return path != nullptr && path->is_vhdl && has_bkdr_array_ancestor(brix_hierarchy);
}

// ---- Walks through the design -------------------------------------------------------

// What a walk writes at each leaf: the classes, or the constructor lines.
struct bkdr_pass {
    void (*reg)(const brix_register_tag*);
    void (*regfile)(const brix_regfile_tag*);
    void (*mem)(const brix_memory_tag*);
    bool writes_classes;
};

const bkdr_pass class_pass{emit_register_backdoor, emit_regfile_backdoor,
                           emit_memory_backdoor_plain_or_mixed, true};
const bkdr_pass instantiation_pass{emit_register_backdoor_instantiations,
                                   emit_regfile_backdoor_instantiations,
                                   emit_memory_backdoor_instantiations_plain_or_mixed, false};

// An instance with a domain stands for that domain of its type only.
template <class Domain, class F>
void for_each_component_of_instance(const brix_list_tag* domains, const char* domain, F f) {
    for_each_component<Domain>(domains, [&](const Domain* d, const brix_list_tag* c) {
        if (domain == nullptr || is_named(d->name, domain)) {
            f(c);
        }
    });
}

void walk_regfile(const brix_regfile_tag* f, const bkdr_pass& pass) {
    hierarchy_level level(BRIX_REGFILE, f);
    for (const brix_list_tag* n = f->type->registers; n != nullptr; n = n->next) {
        pass.reg(static_cast<const brix_register_tag*>(n->data));
    }
}

void walk_block(brix_block_tag* b, const bkdr_pass& pass) {
    hierarchy_level level(BRIX_BLOCK, b);
    for_each_component_of_instance<brix_block_domain_tag>(
        b->type->domains, b->domain, [&](const brix_list_tag* c) {
            switch (c->tag) {
            case BRIX_REGISTER:
                pass.reg(static_cast<const brix_register_tag*>(c->data));
                break;
            case BRIX_REGFILE:
                pass.regfile(static_cast<const brix_regfile_tag*>(c->data));
                break;
            case BRIX_MEMORY:
                pass.mem(static_cast<const brix_memory_tag*>(c->data));
                break;
            default:
                if (pass.writes_classes) {
                    brix_error("Error: Invalid component found in BRIX Block '%s'...",
                               b->type->name);
                }
            }
        });
}

void walk_system(brix_system_tag* s, const bkdr_pass& pass) {
    hierarchy_level level(BRIX_SYSTEM, s);
    for_each_component_of_instance<brix_system_domain_tag>(
        s->type->domains, s->domain, [&](const brix_list_tag* c) {
            if (c->tag == BRIX_BLOCK) {
                walk_block(static_cast<brix_block_tag*>(c->data), pass);
            } else if (c->tag == BRIX_SYSTEM) {
                walk_system(static_cast<brix_system_tag*>(c->data), pass);
            }
        });
}

} // namespace

void emit_backdoor_access_code(const brix_bkdr_object& o, brix_bkdr_dir dir) {
    emit_backdoor_code({o, dir, false}, brix_hierarchy, 2, nullptr);
}

std::vector<const char*> backdoor_index_members(const brix_bkdr_object& o) {
    return index_members(o);
}

std::string backdoor_class_name(const brix_bkdr_object& o) {
    return class_name(o);
}

void emit_register_backdoor(const brix_register_tag* reg) {
    const brix_bkdr_object o{reg, nullptr};
    if (!has_backdoor(o)) {
        return;
    }
    hierarchy_level level(BRIX_REGISTER, reg);
    emit_backdoor_class({level.view(), nullptr});
}

void emit_register_backdoor_instantiations(const brix_register_tag* reg) {
    const brix_bkdr_object o{reg, nullptr};
    if (!has_backdoor(o)) {
        return;
    }
    hierarchy_level level(BRIX_REGISTER, reg);
    emit_backdoor_instantiation({level.view(), nullptr});
}

void emit_regfile_backdoor(const brix_regfile_tag* regfile) {
    walk_regfile(regfile, class_pass);
}

void emit_regfile_backdoor_instantiations(const brix_regfile_tag* regfile) {
    walk_regfile(regfile, instantiation_pass);
}

void emit_memory_backdoor(const brix_memory_tag* mem) {
    const brix_bkdr_object o{nullptr, mem};
    if (has_backdoor(o)) {
        emit_backdoor_class(o);
    }
}

void emit_memory_backdoor_instantiations(const brix_memory_tag* mem) {
    const brix_bkdr_object o{nullptr, mem};
    if (has_backdoor(o)) {
        emit_backdoor_instantiation(o);
    }
}

void emit_memory_backdoor_mixed(const brix_memory_tag* mem) {
    auto leaf = [&] { emit_memory_backdoor(mem); };
    for_each_expanded_element(leaf);
}

void emit_memory_backdoor_instantiations_mixed(const brix_memory_tag* mem) {
    auto leaf = [&] { emit_memory_backdoor_instantiations(mem); };
    for_each_expanded_element(leaf);
}

void emit_memory_backdoor_plain_or_mixed(const brix_memory_tag* mem) {
    if (wants_mixed_form(mem)) {
        emit_memory_backdoor_mixed(mem);
    } else {
        emit_memory_backdoor(mem);
    }
}

void emit_memory_backdoor_instantiations_plain_or_mixed(const brix_memory_tag* mem) {
    if (wants_mixed_form(mem)) {
        emit_memory_backdoor_instantiations_mixed(mem);
    } else {
        emit_memory_backdoor_instantiations(mem);
    }
}

void emit_block_backdoor(brix_block_tag* block) {
    walk_block(block, class_pass);
}

void emit_system_backdoor(brix_system_tag* system) {
    walk_system(system, class_pass);
}

void emit_block_backdoor_instantiations(brix_block_tag* block) {
    walk_block(block, instantiation_pass);
}

void emit_system_backdoor_instantiations(brix_system_tag* system) {
    walk_system(system, instantiation_pass);
}

std::vector<brix_bkdr_dimension> backdoor_variable_dimensions(const brix_list_tag* hierarchy) {
    std::vector<brix_bkdr_dimension> dims;
    for (const brix_list_tag* n = hierarchy; n != nullptr; n = n->next) {
        if (n->tag != BRIX_SYSTEM && n->tag != BRIX_BLOCK && n->tag != BRIX_REGFILE &&
            n->tag != BRIX_REGISTER) {
            continue;
        }
        const bkdr_level l = level_of(n);
        if (has_variable_index(l)) {
            dims.push_back({l.name, l.array_size});
        }
    }
    return dims;
}

bool has_bkdr_array_ancestor(const brix_list_tag* hierarchy) {
    return !backdoor_variable_dimensions(hierarchy).empty();
}

bool fields_implemented_in_vhdl(const brix_register_tag* reg) {
    if (reg == nullptr || reg->type == nullptr) {
        return false;
    }
    bool vhdl = false;
    for_each_field(reg->type->fields, [&](const brix_field_tag* f) {
        vhdl = vhdl || (f->hdl_path != nullptr && f->hdl_path->is_vhdl);
    });
    return vhdl;
}

std::string get_hdl_path_with_mem_bkdr_wrkaround(const char* name, const brix_hdl_path_tag* path,
                                                 const brix_tmp_info_for_mem_vhdl_bkdr* info) {
    if (path == nullptr) {
        return std::string();
    }
    if (name == nullptr || info == nullptr) {
        return path->path;
    }
    static const char* const corrupt = "Error - get_hdl_path_with_mem_bkdr_wrkaround(...) - "
                                       "Internal data structure corruption, please report.\n";
    const char* c = path->path;
    const char* o = info->hdl_path;
    std::string result;
    while (*c != '\0' && *c == *o) {
        result += *c++;
        ++o;
    }
    if (*c == '\0' && *o == '\0') {
        return result;
    }
    if (*c != 'X' && *o != '[') {
        brix_error(corrupt);
    }
    // The present text holds "X<index>X" where the saved one holds "[<name>]".
    result += '[';
    for (++c; *c != '\0' && *c != 'X'; ++c) {
        result += *c;
    }
    result += ']';
    if (*c == 'X') {
        ++c;
    }
    const char* close = strchr(o, ']');
    o = close != nullptr ? close + 1 : o + strlen(o);
    for (; *c != '\0' && *o != '\0'; ++c, ++o) {
        if (*c != *o) {
            brix_error(corrupt);
        }
        result += *c;
    }
    return result;
}
