#include "parser/actions.hpp"

#include <cstring>
#include <string>
#include <unordered_map>
#include <utility>

#include "driver/options.hpp"
#include "parser/action_support.hpp"
#include "parser/parse_state.hpp"
#include "parser/scope.hpp"
#include "semantic/model_copy.hpp"

namespace {
bool is_unused_or_reserved(const char* name) {
    return std::strcmp(name, "unused") == 0 || std::strcmp(name, "reserved") == 0;
}

// Appends to a list of records linked through `next`.
template <class T> void append_linked(T*& head, T* item) {
    static std::unordered_map<const T*, T*> tails;
    if (head == nullptr) {
        head = item;
    } else {
        brix_link_at_tail(head, item, tails);
    }
}

std::string joined(std::initializer_list<const char*> parts) {
    std::string s;
    for (const char* p : parts) {
        if (p != nullptr) {
            s += p;
        }
    }
    return s;
}

// A piece of a path, freed once joined into the next.
char* concat(std::initializer_list<const char*> parts) {
    return brix_strdup(joined(parts).c_str());
}

brix_hdl_path_tag* tmp_hdl_path_tail = nullptr;

// A global definition starts as a record with defaults under a name still free here, and
// becomes visible only once complete, under a copy of its name.
template <class T> void begin_global_definition(T*& record, char* name, void (*init)(T*)) {
    refuse_defined_here(name, MULTIPLE_DEFINITION);
    record = brix_new_record<T>();
    init(record);
    record->name = name;
}

template <class T> void end_global_definition(T*& record, int kind) {
    create_and_insert_symrec(current_scope, brix_strdup(record->name), kind, record);
    record = nullptr;
}
} // namespace

// Display names ----------------------------------------------------------------------

const char* register_type_display_name() {
    return either(tmp_register_type != nullptr ? tmp_register_type->name : nullptr,
                  tmp_register_type_name);
}
const char* vregister_type_display_name() {
    return either(tmp_vregister_type != nullptr ? tmp_vregister_type->name : nullptr,
                  tmp_vregister_type_name);
}
const char* memory_type_display_name() {
    return either(tmp_memory_type != nullptr ? tmp_memory_type->name : nullptr,
                  tmp_memory_type_name);
}
const char* regfile_type_display_name() {
    return either(tmp_regfile_type != nullptr ? tmp_regfile_type->name : nullptr,
                  tmp_regfile_type_name);
}
const char* field_type_display_name() {
    return either(tmp_field_type != nullptr ? tmp_field_type->name : nullptr, tmp_field_type_name);
}

// Scopes -----------------------------------------------------------------------------

void open_definition_scope(const char* name) {
    std::string scope_name = current_scope->name == nullptr
                                 ? std::string(name)
                                 : std::string(current_scope->name) + "_" + name;
    switch_to_scope(create_child_scope(current_scope, std::move(scope_name)));
}

void close_definition_scope() {
    close_scope();
}

// hdl paths --------------------------------------------------------------------------

void begin_vhdl_path() {
    if (brix_gen_backdoor && brix_backdoor_top_path == nullptr) {
        brix_yyerror("Error: For generating VHDL Backdoor code, you must specify the DUT toppath "
                     "using option '-p'...\n");
    }
    tmp_parsing_vhdl_path = 1;
}

void refuse_verilog_colon() {
    if (!tmp_parsing_vhdl_path) {
        brix_yyerror("Error: ':' cannot be used for specifying Verilog hdl_path.\n");
    }
}

char* hdl_path_piece(const char* lead, char* ident, char* rest) {
    char* piece = concat({lead, ident, rest});
    brix_free(ident);
    brix_free(rest);
    return piece;
}

char* hdl_path_subscript(char* text, char* rest) {
    char* piece = concat({"[", text, "]", rest});
    brix_free(text);
    brix_free(rest);
    return piece;
}

char* hdl_path_range(char* low, char* high) {
    char* piece = concat({low, ":", high});
    brix_free(low);
    brix_free(high);
    return piece;
}

char* hdl_path_percent_subscript(char* ident) {
    if (std::strcmp(ident, "d") != 0) {
        brix_yyerror("Error: Unsupported hdl_path format.");
    }
    brix_free(ident);
    return brix_strdup("%d");
}

char* join_hdl_path_identifier(char* ident, char* rest) {
    // A whole path stays with the model.
    char* path = brix_arena_strdup(joined({ident, rest}).c_str());
    brix_free(ident);
    brix_free(rest);
    if (const char* first = std::strstr(path, "%d");
        first != nullptr && std::strstr(first + 2, "%d") != nullptr) {
        brix_yyerror("Error: Only one '%%d' is currently supported in a hdl_path.");
    }
    return path;
}

void append_hdl_path(char* path) {
    auto* item = brix_new_record<brix_hdl_path_tag>();
    initialize_hdl_path_defaults(item);
    item->path = path;
    if (tmp_hdl_path == nullptr) {
        tmp_hdl_path = item;
    } else {
        tmp_hdl_path_tail->next = item;
    }
    tmp_hdl_path_tail = item;
}

brix_hdl_path_tag* take_hdl_path(bool vhdl) {
    brix_hdl_path_tag* head = tmp_hdl_path;
    tmp_hdl_path = nullptr;
    tmp_hdl_path_tail = nullptr;
    if (vhdl) {
        tmp_parsing_vhdl_path = 0;
        head->is_vhdl = 1;
        if (head->next != nullptr) {
            brix_yyerror("Error: Concatentation of 'vhdl_path' is not supported.");
        }
    } else {
        head->is_vhdl = 0;
    }
    return head;
}

bool any_path_has_percent_d(const brix_hdl_path_tag* path) {
    for (; path != nullptr; path = path->next) {
        if (std::strstr(path->path, "%d") != nullptr) {
            return true;
        }
    }
    return false;
}

char* check_offset_word(char* word) {
    if (std::strcmp(word, "none") != 0) {
        brix_yyerror("Error: Unsupported offset '%s'.", word);
    }
    return word;
}

int array_subscript(char* text) {
    const int size = decimal(text);
    if (size < 2) {
        brix_yyerror("Error: An array with a subscript less than or equal to one doesn't make "
                     "sense. In this case, '%d' has been used as the array subscript.",
                     size);
    }
    brix_free(text);
    return size;
}

char* rewrite_hex_reset(char* number) {
    // Reset values are printed in the `'h` form.
    if (number[0] == '0' && number[1] == 'x') {
        number[0] = '\'';
        number[1] = 'h';
    }
    return number;
}

// Owned items ------------------------------------------------------------------------

void begin_constraint(brix_constraint_tag*& owner_list) {
    auto* constraint = brix_new_record<brix_constraint_tag>();
    initialize_constraint_defaults(constraint);
    append_linked(owner_list, constraint);
    tmp_constraint = constraint;
}

void name_constraint(char* name) {
    refuse_defined_here(name, MULTIPLE_DEFINITION);
    tmp_constraint->name = name;
}

void begin_doc(brix_doc*& owner_doc) {
    auto* doc = brix_new_record<brix_doc>();
    initialize_doc_defaults(doc);
    owner_doc = doc;
    tmp_doc = doc;
}

void add_attribute(char* name, char* value) {
    auto* attribute = brix_new_record<brix_attribute>();
    *attribute = {name, value, tmp_attr_list};
    tmp_attr_list = attribute;
}

void take_attributes(brix_attribute*& target) {
    target = tmp_attr_list;
    tmp_attr_list = nullptr;
}

void refuse_second_attributes(const brix_attribute* existing, const char* message,
                              const char* name) {
    if (existing != nullptr) {
        brix_yyerror(message, name);
    }
}

void add_enum_name(char* name, char* value) {
    refuse_defined_here(name, ALREADY_DEFINED);
    auto* declaration = brix_new_record<brix_enum_name_declaration>();
    initialize_enum_name_declaration(declaration);
    declaration->name = name;
    declaration->value = value;
    create_and_insert_symrec(current_scope, name, BRIX_ENUM_NAME, name);
    append_node(tmp_enum_name_list, BRIX_ENUM_NAME_DECL, declaration);
}

void store_cvr_spec(brix_cvr_spec_tag*& target, char* text) {
    if (target != nullptr) {
        brix_yyerror("Multiple 'cover' statements are not allowed in the same scope/context.");
    }
    target = get_cvr_spec(text);
    brix_free(text);
}

// Global fields and field properties -------------------------------------------------

void begin_global_field_type(char* name) {
    refuse_defined_here(name, MULTIPLE_DEFINITION);
    if (is_unused_or_reserved(name)) {
        brix_yyerror("Error: You cannot have global 'unused' or 'reserved' field types.");
    }
    tmp_field_type = brix_new_record<brix_field_type_tag>();
    initialize_field_type_defaults(tmp_field_type);
    tmp_field_type->name = name;
}

void end_global_field_type() {
    create_and_insert_symrec(current_scope, tmp_field_type->name, BRIX_FIELD_TYPE, tmp_field_type);
    tmp_field_type = nullptr;
}

namespace {
// `unused` and `reserved` fields only take their width.
void refuse_on_unused_or_reserved(const char* property) {
    if (parsing_unused_or_reserved_field) {
        const std::string message = std::string("Error: Field property '") + property +
                                    "' cannot be specified for 'unused'/'reserved' fields.";
        brix_yyerror(message.c_str());
    }
}
} // namespace

void field_set_bits(char* number) {
    tmp_field_type->bits = static_cast<uint32_t>(brix_str_to_dec(10, number));
    brix_free(number);
}

void field_set_access(char* word) {
    refuse_on_unused_or_reserved("access");
    if (!is_one_of(word, {"rw", "ro", "wo", "w1", "ru", "w1c", "rc", "a1", "a0", "dc", "other",
                          "user0", "user1", "user2", "user3"})) {
        brix_yyerror("Error: Field '%s' - Invalid field access '%s' specified.",
                     field_type_display_name(), word);
    }
    tmp_field_type->access = word;
}

void field_set_hard_reset(char* number, bool deprecated_word) {
    refuse_on_unused_or_reserved(deprecated_word ? "reset" : "hard_reset");
    if (deprecated_word) {
        brix_yywarn(
            "\n Warning: Usage of 'reset' in field definition is deprecated."
            "                     Its support will be removed shortly in future releases."
            "                     So, please use semantically equivalent 'hard_reset' instead of "
            "'reset'\n");
    }
    tmp_field_type->hard_reset = rewrite_hex_reset(number);
}

void field_set_soft_reset(char* number) {
    refuse_on_unused_or_reserved("soft_reset");
    tmp_field_type->soft_reset = rewrite_hex_reset(number);
}

void field_begin_constraint() {
    refuse_on_unused_or_reserved("constraint");
    begin_constraint(tmp_field_type->constraints);
}

void field_begin_doc() {
    refuse_on_unused_or_reserved("doc");
    begin_doc(tmp_field_type->doc);
}

void field_set_enum(char* name) {
    auto* enum_type = brix_new_record<brix_enum_type>();
    initialize_enum_type(enum_type);
    enum_type->name = name;
    enum_type->names = tmp_enum_name_list;
    tmp_field_type->enum_type = enum_type;
    tmp_enum_name_list = nullptr;
}

void field_set_cover(char* text) {
    store_cvr_spec(tmp_field_type->cvr_spec, text);
    if (tmp_field_type->cvr_spec->addr_map != 3) {
        brix_yywarn("Warning: Address map coverage specification is not supported at field "
                    "level.");
    }
}

// Field instances --------------------------------------------------------------------

namespace {
void warn_field_without_path(const brix_hdl_path_tag* path, const char* name) {
    if (brix_gen_backdoor && path == nullptr && !brix_quiet_mode) {
        brix_yywarn("Warning: hdl_path not specified for field '%s'.", name);
    }
}

brix_list_tag*& fields_of_current_owner(bool in_register) {
    return in_register ? tmp_register_type->fields : tmp_vregister_type->fields;
}

void insert_field_symbol_unless_unused(char* name) {
    if (!is_unused_or_reserved(name)) {
        create_and_insert_symrec(current_scope, name, BRIX_FIELD, tmp_field);
    }
}

void copy_global_field_type(const char* ident) {
    const brix_symrec* sym = global_symbol_of_kind(ident, BRIX_FIELD_TYPE);
    if (sym == nullptr) {
        brix_yyerror("Error: Undefined Field '%s' - Trying to instantiate it.", ident);
    }
    tmp_field->type = copy_field_type(static_cast<const brix_field_type_tag*>(sym->data));
}

void name_inline_field(char* ident) {
    refuse_defined_here(ident, ALREADY_DEFINED);
    // Names are never changed in place, so the inline type can share its instance's.
    tmp_field->name = ident;
    tmp_field->type->name = ident;
    insert_field_symbol_unless_unused(ident);
}
} // namespace

void begin_field_instance(char* ident, bool own_scope) {
    tmp_field = brix_new_record<brix_field_tag>();
    initialize_field_defaults(tmp_field);
    tmp_field_type_name = ident;
    parsing_unused_or_reserved_field = is_unused_or_reserved(ident) ? 1 : 0;
    if (own_scope) {
        switch_to_scope(create_child_scope(current_scope, ident));
    }
}

void field_instance_renamed(char* name, brix_hdl_path_tag* path, char* offset, char* cover) {
    refuse_defined_here(name, MULTIPLE_DEFINITION);
    if (is_unused_or_reserved(name)) {
        brix_yyerror("Error: 'reserved'/'unused' fields cannot be instantiated from globally "
                     "defined field types");
    }
    create_and_insert_symrec(current_scope, name, BRIX_FIELD, tmp_field);
    tmp_field->name = name;
    tmp_field->hdl_path = path;
    tmp_field->offset = offset;
    warn_field_without_path(path, name);
    if (cover != nullptr) {
        tmp_field->cvr_spec = get_cvr_spec(cover);
    }
    tmp_field_type_name = nullptr;
}

void field_instance_place(brix_hdl_path_tag* path, char* offset) {
    tmp_field->hdl_path = path;
    warn_field_without_path(path, tmp_field_type_name);
    tmp_field->offset = offset;
}

void begin_inline_field_type() {
    tmp_field_type = brix_new_record<brix_field_type_tag>();
    initialize_field_type_defaults(tmp_field_type);
    tmp_field_type->name = tmp_field_type_name;
}

void end_inline_field_type() {
    tmp_field->type = tmp_field_type;
    tmp_field_type = nullptr;
    tmp_field_type_name = nullptr;
}

void field_instance_cover(char* cover) {
    if (cover != nullptr) {
        tmp_field->cvr_spec = get_cvr_spec(cover);
    }
    tmp_field_type_name = nullptr;
}

void finish_field_instance(char* ident, int form, bool in_register) {
    if (in_register) {
        close_definition_scope();
    }
    if (form == 2) {
        const brix_symrec* sym = lookup_global_symbol(ident);
        if (sym != nullptr && sym->kind != BRIX_FIELD_TYPE) {
            brix_yyerror("Error: Global definition/symbol '%s' is not a Field Type.", ident);
        }
        if (sym == nullptr) {
            tmp_field->type = brix_new_record<brix_field_type_tag>();
            initialize_field_type_defaults(tmp_field->type);
            name_inline_field(ident);
        } else {
            copy_global_field_type(ident);
            tmp_field->name = ident;
            refuse_defined_here(ident, MULTIPLE_DEFINITION);
            insert_field_symbol_unless_unused(ident);
        }
    } else if (form == 1) {
        name_inline_field(ident);
    } else {
        copy_global_field_type(ident);
    }
    if (in_register) {
        set_cvr_used_if_null(tmp_field->cvr_used);
    }
    append_node(fields_of_current_owner(in_register), BRIX_FIELD, tmp_field);
    tmp_field = nullptr;
}

// Registers --------------------------------------------------------------------------

namespace {
brix_register_type_tag* new_register_type(char* name) {
    auto* type = brix_new_record<brix_register_type_tag>();
    initialize_register_type_defaults(type);
    type->name = name;
    return type;
}

bool register_has_field(const brix_register_type_tag* type) {
    return type->fields != nullptr;
}
} // namespace

void begin_global_register_type(char* name) {
    begin_global_definition(tmp_register_type, name, initialize_register_type_defaults);
}

void register_set_bytes(char* number) {
    if (tmp_register_type->bytes != -1) {
        brix_yyerror("Error: Register '%s' - Multiple definition of 'bytes' found.",
                     register_type_display_name());
    }
    tmp_register_type->bytes = decimal(number);
    brix_free(number);
}

void register_set_noise(char* word) {
    if (!is_one_of(word, {"rw", "ro", "no"})) {
        brix_yyerror("Error: Register '%s' - Invalid noise '%s' specified.",
                     register_type_display_name(), word);
    }
    tmp_register_type->noise = word;
}

void register_set_shared(brix_hdl_path_tag* path) {
    tmp_register_type->is_shared = 1;
    tmp_register_type->hdl_path = path;
}

void check_register_field_languages() {
    if (!brix_gen_backdoor) {
        return;
    }
    int expected = -1;
    for (const brix_list_tag* n = tmp_register_type->fields; n != nullptr; n = n->next) {
        const auto* field = static_cast<const brix_field_tag*>(n->data);
        if (field->hdl_path == nullptr) {
            continue;
        }
        const int is_vhdl = field->hdl_path->is_vhdl;
        if (expected == -1) {
            expected = is_vhdl;
        } else if (is_vhdl != expected) {
            brix_yyerror("Error: Register '%s' - All fields of a register must be implemented in "
                         "either Verilog or VHDL, but not a mix of both.",
                         register_type_display_name());
        }
    }
}

void register_type_before_close() {
    if (!register_has_field(tmp_register_type)) {
        brix_yyerror("Error: Register %s - A register must have at least one field.",
                     register_type_display_name());
    }
    for (const brix_list_tag* n = tmp_register_type->fields; n != nullptr; n = n->next) {
        const auto* field = static_cast<const brix_field_tag*>(n->data);
        if (std::strcmp(field->type->access, "ro") == 0 && field->type->constraints != nullptr) {
            brix_yyerror("Error: Register %s (Field %s) - A read-only field cannot have "
                         "constraint.",
                         register_type_display_name(), field->name);
        }
    }
    close_definition_scope();
}

namespace {
void refuse_register_without_fields() {
    if (!register_has_field(tmp_register_type)) {
        brix_yyerror("Error: Register '%s' - No fields in it.", register_type_display_name());
    }
}
} // namespace

void end_global_register_type() {
    refuse_register_without_fields();
    if (!valid_bytes(tmp_register_type)) {
        brix_yyerror("Error: Register '%s' - Summation of all field sizes (considering offsets, if "
                     "any) has been found to be more than the specified register 'bytes'.",
                     register_type_display_name());
    }
    check_left_to_right_first_field(tmp_register_type, REGISTER_LEFT_TO_RIGHT);
    set_cvr_used_if_null(tmp_register_type->cvr_used);
    end_global_definition(tmp_register_type, BRIX_REGISTER_TYPE);
}

// Virtual registers ------------------------------------------------------------------

void begin_global_vregister_type(char* name) {
    begin_global_definition(tmp_vregister_type, name, initialize_vregister_type_defaults);
}

void vregister_set_bytes(char* number) {
    if (tmp_vregister_type->bytes != -1) {
        brix_yyerror("Error: Virtual Register '%s' - Multiple definition of 'bytes' found.",
                     vregister_type_display_name());
    }
    tmp_vregister_type->bytes = decimal(number);
    brix_free(number);
}

void vregister_set_cover(char* text) {
    if (tmp_vregister_type->cvr_spec != nullptr) {
        brix_yyerror("Multiple 'cover' statements are not allowed in the same scope/context.");
    }
    tmp_vregister_type->cvr_spec = get_cvr_spec(text);
    brix_yywarn("Warning: Functional Coverage of virtual registers is not supported. Ignoring "
                "cover directive '%s'...",
                text);
    brix_free(text);
}

void end_global_vregister_type() {
    if (tmp_vregister_type->fields == nullptr) {
        brix_yyerror("Error: Virtual Register '%s' - No fields in it.",
                     vregister_type_display_name());
    }
    if (!valid_bytes(tmp_vregister_type)) {
        brix_yyerror("Error: Virtual Register '%s' - Summation of all field sizes (considering "
                     "offsets, if any) has been found to be more than the specified vregister "
                     "'bytes'.",
                     vregister_type_display_name());
    }
    check_left_to_right_first_field(tmp_vregister_type, VREGISTER_LEFT_TO_RIGHT);
    end_global_definition(tmp_vregister_type, BRIX_VREGISTER_TYPE);
}

// Crosses ----------------------------------------------------------------------------

void begin_cross(const brix_list_tag* items, const char* owner_name) {
    if (items == nullptr) {
        brix_yyerror("Error: Register '%s' - List of cross items must be specified.", owner_name);
    }
    if (items->next == nullptr) {
        brix_yyerror("Error: Register '%s' - For a 'cross', at least 2 cross_items must be "
                     "specified.",
                     owner_name);
    }
    for (const brix_list_tag* n = items; n != nullptr; n = n->next) {
        const auto* item = static_cast<const char*>(n->data);
        if (lookup_local_symbol(item) == nullptr) {
            brix_yyerror("Error: Field/CrossPoint '%s' must be defined before it can be used in a "
                         "cross specification.",
                         item);
        }
    }
    tmp_label = nullptr;
}

void end_cross(brix_list_tag* items, brix_list_tag*& crosses) {
    auto* cross = brix_new_record<brix_cross>();
    cross->items = items;
    cross->label = nullptr;
    if (tmp_label != nullptr) {
        cross->label = tmp_label;
        create_and_insert_symrec(current_scope, tmp_label, BRIX_LABEL, tmp_label);
        tmp_label = nullptr;
    }
    append_node(crosses, BRIX_CROSS, cross);
}

// Coverpoints ------------------------------------------------------------------------

void begin_bin(char* name) {
    tmp_bin_spec = brix_new_record<brix_cvr_bin>();
    initialize_cvr_bin(tmp_bin_spec);
    tmp_bin_spec->name = name;
}

void bin_brackets(char* number) {
    if (number == nullptr) {
        tmp_bin_spec->auto_bins = 1;
        return;
    }
    if (target_language == nullptr || std::strcmp(target_language, "sv") != 0) {
        brix_yyerror("We don't support '[<n_bins>]' form of coverage bin specification in "
                     "'%s'...\n",
                     either(target_language, ""));
    }
    tmp_bin_spec->num_bins = decimal(number);
    brix_free(number);
}

void bin_default_checks() {
    if (tmp_bin_spec->num_bins > 0) {
        brix_yyerror("For default bin, usage of '[%d]' construct is not supported.\n",
                     tmp_bin_spec->num_bins);
    }
    if (tmp_bin_spec->auto_bins) {
        brix_yyerror("For default bin, usage of '[]' construct is not supported.\n");
    }
}

void add_bin_value(brix_cvr_bin_value* value) {
    append_node(tmp_bin_values, BRIX_CVR_BIN_VALUE, value);
}

namespace {
brix_cvr_bin_value* new_bin_value(int kind, void* value) {
    auto* bin_value = brix_new_record<brix_cvr_bin_value>();
    initialize_cvr_bin_value(bin_value);
    bin_value->kind = kind;
    bin_value->value = value;
    return bin_value;
}
} // namespace

brix_cvr_bin_value* bin_enum_value(char* ident) {
    const brix_symrec* sym = lookup_local_symbol(ident);
    if (sym == nullptr) {
        brix_yyerror("Error: Un-defined symbol/var/const '%s' used.", ident);
    }
    if (sym->kind != BRIX_ENUM_NAME) {
        brix_yyerror("Error: '%s' - Only 'enum' or integral consts are supported here.", ident);
    }
    return new_bin_value(1, ident);
}

brix_cvr_bin_value* bin_number_value(char* number) {
    return new_bin_value(2, number);
}

brix_cvr_bin_value* bin_range_value(brix_cvr_bin_value* low, brix_cvr_bin_value* high) {
    auto* range = brix_new_record<brix_cvr_bin_range>();
    *range = {low, high};
    return new_bin_value(3, range);
}

void end_bin(bool bracket_form) {
    tmp_bin_spec->values = tmp_bin_values;
    tmp_bin_values = nullptr;
    if (bracket_form && tmp_bin_spec->values == nullptr) {
        brix_yyerror("Field '%s' - Values for 'bins' missing.", field_type_display_name());
    }
    append_node(tmp_bin_spec_list, BRIX_CVR_BIN, tmp_bin_spec);
    tmp_bin_spec = nullptr;
}

void end_coverpoint() {
    if (tmp_bin_spec_list == nullptr) {
        brix_yyerror("Error: Field '%s' - No 'bins' specified.", field_type_display_name());
    }
    auto* point = brix_new_record<brix_cvr_pnt>();
    initialize_cvr_pnt(point);
    point->bins = tmp_bin_spec_list;
    tmp_field_type->coverpoint = point;
    tmp_bin_spec_list = nullptr;
}

// Memories ---------------------------------------------------------------------------

void begin_global_memory_type(char* name) {
    begin_global_definition(tmp_memory_type, name, initialize_memory_type_defaults);
}

void memory_check_no_size() {
    if (tmp_memory_type->size != 0) {
        brix_yyerror("Error: Memory '%s' - Multiple definition of 'size' found.",
                     memory_type_display_name());
    }
}

char* memory_size_unit(char* word) {
    const char* factor = nullptr;
    if (is_one_of(word, {"k", "K"})) {
        factor = "1024";
    } else if (is_one_of(word, {"m", "M"})) {
        factor = "1048576";
    } else if (is_one_of(word, {"g", "G"})) {
        factor = "1073741824";
    } else {
        brix_yyerror("Error: Memory '%s' - Invalid memory size unit '%s' specified.",
                     memory_type_display_name(), word);
    }
    brix_free(word);
    return brix_strdup(factor);
}

void memory_set_size(char* number, char* unit) {
    uint64_t size = to_dec(number);
    if (unit != nullptr) {
        size *= to_dec(unit);
    }
    tmp_memory_type->size = size;
    brix_free(number);
}

void memory_set_bits(char* number) {
    if (tmp_memory_type->bits != 0) {
        brix_yyerror("Error: Memory '%s' - Multiple definition of 'bits' found.",
                     memory_type_display_name());
    }
    tmp_memory_type->bits = static_cast<uint32_t>(brix_str_to_dec(10, number));
    brix_free(number);
}

void memory_set_access(char* word) {
    if (!is_one_of(word, {"rw", "ro"})) {
        brix_yyerror("Error: Memory '%s' - Invalid 'access' specified.",
                     memory_type_display_name());
    }
    tmp_memory_type->access = word;
}

void memory_begin_initial() {
    tmp_mem_initial = brix_new_record<brix_mem_initial>();
    initialize_mem_initial_defaults(tmp_mem_initial);
}

void memory_initial_number(char* number, int op) {
    tmp_mem_initial->value = number;
    tmp_mem_initial->increment = op == 1 ? 1 : 0;
    tmp_mem_initial->decrement = op == -1 ? 1 : 0;
}

void memory_initial_word(char* word) {
    if (!is_one_of(word, {"x", "addr"})) {
        brix_yyerror("Error: Memory '%s' - Invalid 'initial' specified.",
                     memory_type_display_name());
    }
    tmp_mem_initial->value = word;
}

void memory_end_initial() {
    tmp_memory_type->initial = tmp_mem_initial;
    tmp_mem_initial = nullptr;
}

void memory_set_noise(char* word) {
    if (!is_one_of(word, {"rw", "ro", "unused", "no"})) {
        brix_yyerror("Error: Memory '%s' - Invalid 'noise' specified.", memory_type_display_name());
    }
    tmp_memory_type->noise = word;
}

void memory_set_shared(brix_hdl_path_tag* path) {
    tmp_memory_type->is_shared = 1;
    tmp_memory_type->hdl_path = path;
    if (path != nullptr && path->next != nullptr) {
        brix_yyerror("Error: hdl_path specification in concatenation format is not support for "
                     "memories.");
    }
}

void memory_set_cover(char* text) {
    store_cvr_spec(tmp_memory_type->cvr_spec, text);
    if (tmp_memory_type->cvr_spec->reg_bits != 3) {
        brix_yywarn("Warning: RegBits Coverage is not supported for memories. Ignoring...");
    }
    if (tmp_memory_type->cvr_spec->field_vals != 3) {
        brix_yywarn("Warning: Field Value Coverage is not supported for memories. Ignoring...");
    }
}

void end_global_memory_type() {
    close_definition_scope();
    check_memory_type_complete();
    end_global_definition(tmp_memory_type, BRIX_MEMORY_TYPE);
}

void check_memory_type_complete() {
    if (tmp_memory_type->bits == 0) {
        brix_yyerror("Error: Memory '%s' - Mandatory property 'bits' not specified or invalid "
                     "value specified.",
                     memory_type_display_name());
    }
    if (tmp_memory_type->size == 0) {
        brix_yyerror("Error: Memory '%s' - Mandatory property 'size' not specified or invalid "
                     "value specified.",
                     memory_type_display_name());
    }
    set_cvr_used_if_null(tmp_memory_type->cvr_used);
}

// Register files and register instances ----------------------------------------------

void begin_global_regfile_type(char* name) {
    begin_global_definition(tmp_regfile_type, name, initialize_regfile_type_defaults);
}

void end_global_regfile_type() {
    if (tmp_regfile_type->registers == nullptr) {
        brix_yyerror("Error: Regfile '%s' - Doesn't have any register in it.",
                     regfile_type_display_name());
    }
    end_global_definition(tmp_regfile_type, BRIX_REGFILE_TYPE);
}

namespace {
// Path tests of a register instance; they apply to backdoor generation only.
void check_register_instance_path(const brix_hdl_path_tag* path, int array_size, const char* name) {
    if (!brix_gen_backdoor) {
        return;
    }
    if (path == nullptr) {
        if (!brix_quiet_mode) {
            brix_yywarn("Warning: hdl_path not specified for register '%s'.", name);
        }
        return;
    }
    if (array_size < 2) {
        if (any_path_has_percent_d(path)) {
            brix_yyerror("Error: Register '%s' - Non-array registers cannot have '%%d' in their "
                         "hdl_path.",
                         name);
        }
        return;
    }
    for (const brix_hdl_path_tag* p = path; p != nullptr; p = p->next) {
        if (std::strstr(p->path, "%d") == nullptr) {
            brix_yyerror("Error: Register '%s' - '%%d' is mandatory in hdl_path of array "
                         "constructs.",
                         name);
        }
    }
}

void set_register_placement(int array_size, brix_hdl_path_tag* path, char* offset,
                            char* increment) {
    tmp_register->array_size = array_size;
    tmp_register->hdl_path = path;
    tmp_register->offset = offset;
    tmp_register->increment = increment;
}
} // namespace

void begin_register_instance(char* ident) {
    tmp_register = brix_new_record<brix_register_tag>();
    initialize_register_defaults(tmp_register);
    tmp_register_type_name = ident;
}

void register_instance_renamed(char* name, int array_size, brix_hdl_path_tag* path, char* offset,
                               char* increment) {
    if (const brix_symrec* existing = lookup_local_symbol(name)) {
        const brix_symrec* def = global_symbol_of_kind(tmp_register_type_name, BRIX_REGISTER_TYPE);
        if (def == nullptr) {
            brix_yyerror("Error: Undefined Register '%s' - Trying to instantiate it.",
                         tmp_register_type_name);
        }
        const auto* type = static_cast<const brix_register_type_tag*>(def->data);
        if (!shared_instance_allowed<brix_register_tag>(existing, BRIX_REGISTER, type->is_shared,
                                                        type->name)) {
            brix_yyerror(MULTIPLE_DEFINITION, name);
        }
    } else {
        create_and_insert_symrec(current_scope, name, BRIX_REGISTER, tmp_register);
    }
    tmp_register->name = name;
    set_register_placement(array_size, path, offset, increment);
    check_register_instance_path(path, array_size, name);
}

void register_instance_place(int array_size, brix_hdl_path_tag* path, char* offset,
                             char* increment) {
    set_register_placement(array_size, path, offset, increment);
    check_register_instance_path(path, array_size, tmp_register_type_name);
}

void register_instance_flags(char* rw_flag, char* cover) {
    tmp_register->rw_flag = rw_flag;
    if (cover != nullptr) {
        tmp_register->cvr_spec = get_cvr_spec(cover);
    }
    tmp_register_type_name = nullptr;
}

void begin_inline_register_type() {
    tmp_register_type = new_register_type(tmp_register_type_name);
    tmp_register_type->scope_prefix = current_scope_prefix();
    open_definition_scope(tmp_register_type_name);
}

void inline_register_before_close() {
    register_type_before_close();
    refuse_register_without_fields();
    if (tmp_register_type->is_shared == 1) {
        brix_yyerror("Error: Register '%s' - Inline registers cannot be shared.",
                     register_type_display_name());
    }
    if (!valid_bytes(tmp_register_type)) {
        brix_yyerror("Error: Register '%s' - Summation of all its field sizes (considering "
                     "offsets, if any)is more than the 'bytes' specified for this register.",
                     register_type_display_name());
    }
    set_cvr_used_if_null(tmp_register_type->cvr_used);
    tmp_register->type = tmp_register_type;
    tmp_register_type = nullptr;
    tmp_register_type_name = nullptr;
}

namespace {
// Tests that hold for a register instance wherever it stands, once its type is known.
void check_register_instance_type() {
    const brix_register_type_tag* type = tmp_register->type;
    check_left_to_right_first_field(type, REGISTER_LEFT_TO_RIGHT);
    const brix_hdl_path_tag* path = tmp_register->hdl_path;
    if (!brix_gen_backdoor || path == nullptr) {
        return;
    }
    if (path->next != nullptr) {
        for (const brix_list_tag* n = type->fields; n != nullptr; n = n->next) {
            const auto* field = static_cast<const brix_field_tag*>(n->data);
            if (field->hdl_path != nullptr) {
                brix_yyerror("Error: register (%s) having hdl_path specified in its field (%s) "
                             "cannot have concatenation expresiion in its own hdl_path.",
                             tmp_register->name, field->name);
            }
        }
    }
    if (tmp_register->array_size < 2 && any_path_has_percent_d(path)) {
        brix_yyerror("Error: Register '%s' - Non-array registers cannot have '%%d' in their "
                     "hdl_path.",
                     tmp_register->name);
    }
}
} // namespace

namespace {
// The register instance rules of a block and of a regfile differ in their messages, in
// the shared rule (a block's alone) and in the list that takes the instance.
void finish_register_instance(char* ident, int form, bool in_block) {
    if (form == 0) {
        const brix_symrec* def = global_symbol_of_kind(ident, BRIX_REGISTER_TYPE);
        if (def == nullptr) {
            if (in_block) {
                brix_yyerror("Error: Undefined Register '%s' - Trying to instantiate it.", ident);
            }
            brix_yyerror("Error: In Regfile '%s' - Trying to instantiate undefined register '%s'.",
                         regfile_type_display_name(), ident);
        }
        auto* definition = static_cast<brix_register_type_tag*>(def->data);
        if (tmp_register->name == nullptr) {
            tmp_register->name = ident;
            if (const brix_symrec* existing = lookup_local_symbol(ident)) {
                if (!in_block ||
                    !shared_instance_allowed<brix_register_tag>(
                        existing, BRIX_REGISTER, definition->is_shared, definition->name)) {
                    brix_yyerror(MULTIPLE_DEFINITION, ident);
                }
            } else {
                create_and_insert_symrec(current_scope, ident, BRIX_REGISTER, tmp_register);
            }
        }
        tmp_register->type = resolve_instance_type(definition, tmp_shared_regs, copy_register_type);
        const bool shared = tmp_register->type->is_shared == 1;
        if (tmp_register->rw_flag != nullptr && !shared) {
            if (in_block) {
                brix_yyerror("Error: Register '%s' - Unsharable register - Trying to use "
                             "read/write shared access flag while instantiating it.",
                             tmp_register->name);
            }
            brix_yyerror("Error: Register '%s' - Trying to use read/write shared access flag while "
                         "instantiating this register even though it is unshareable.",
                         tmp_register->name);
        }
        if (tmp_register->hdl_path != nullptr && shared) {
            brix_yyerror("Error: Register '%s' - hdl_path specified for shared register "
                         "instantiation. For shared registers, 'hdl_path' is always picked from "
                         "the shared register definition.",
                         tmp_register->name);
        }
    } else {
        refuse_defined_here(ident, ALREADY_DEFINED);
        tmp_register->name = ident;
        tmp_register->type->name = ident;
        create_and_insert_symrec(current_scope, ident, BRIX_REGISTER, tmp_register);
    }
    check_register_instance_type();
    append_node(in_block ? tmp_block_domain->components : tmp_regfile_type->registers,
                BRIX_REGISTER, tmp_register);
    tmp_register = nullptr;
}
} // namespace

void finish_register_instance_in_regfile(char* ident, int form) {
    finish_register_instance(ident, form, false);
}

void finish_register_instance_in_block(char* ident, int form) {
    finish_register_instance(ident, form, true);
}
