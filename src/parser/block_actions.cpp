#include "parser/block_actions.hpp"

#include <cstring>
#include <string>
#include <type_traits>

#include "driver/options.hpp"
#include "parser/action_support.hpp"
#include "parser/actions.hpp"
#include "parser/parse_state.hpp"
#include "parser/scope.hpp"
#include "semantic/model_copy.hpp"

namespace {

// Messages of the tests at the end of a domain; the named forms take the container's and
// the domain's name, the others the container's alone.
struct domain_end_messages {
    const char* bytes_missing;
    const char* bytes_missing_named;
    const char* bytes_invalid;
    const char* bytes_invalid_named;
    const char* empty;
    const char* empty_named;
};

// Messages of the hdl path tests of a block, system or regfile instance.
struct path_messages {
    const char* missing;
    const char* missing_array;
    const char* concatenation;
    const char* percent_d_in_scalar;
    const char* array_without_percent_d;
};

struct block_traits {
    using type_t = brix_block_type_tag;
    using domain_t = brix_block_domain_tag;
    using instance_t = brix_block_tag;
    static constexpr int TYPE = BRIX_BLOCK_TYPE;
    static constexpr int DOMAIN = BRIX_BLOCK_DOMAIN;
    static constexpr int INSTANCE = BRIX_BLOCK;
    static type_t*& tmp_type() { return tmp_block_type; }
    static domain_t*& tmp_domain() { return tmp_block_domain; }
    static instance_t*& tmp_instance() { return tmp_block; }
    static char*& tmp_type_name() { return tmp_block_type_name; }
    static char& with_domain_spec() { return parsing_block_with_domain_spec; }
    static char& without_domain_spec() { return parsing_block_without_domain_spec; }
    static type_t*& all_types() { return all_block_types; }
    static type_t* copy_type(const type_t* t) { return copy_block_type(t); }
    static int exists_domain(const char* type, const char* domain) {
        return exists_block_domain(type, domain);
    }
    static void refuse_domain_name(const char* type, const char* domain) {
        if (lookup_local_symbol(domain) != nullptr) {
            brix_yyerror("Error: Block '%s' - Multiple definition of the symbol '%s' in same "
                         "scope.",
                         type, domain);
        }
    }

    static constexpr const char* no_domain =
        "Error: Block '%s' - A block must have at least one domain specified. Either explicitly "
        "or by default. This block doesn't satisfy this requirement.";
    static constexpr const char* single_named =
        "Error: Block Domain '%s' - Single domain block must not explicitly use 'domain' spec to "
        "define the domain.";
    static constexpr const char* property_after_domain =
        "Error: Block '%s' - You have already defined a domain in this block. So, all block "
        "properties (after that in this block) must be inside a domain spec.";
    static constexpr const char* domain_after_property =
        "Error: Block '%s' - By using one of the block properties in it, you have already "
        "specified this block to have default/single domain. So, you cannot have more domain "
        "definitions here. \n\nPlease check BRIX Language Specification for more details.";
    static constexpr const char* bytes_twice =
        "Error: Block '%s' - Multiple definition of 'bytes' found.";
    static constexpr const char* endian_invalid = "Error: Block '%s' - Invalid 'endian' specified.";
    static constexpr const char* endian_invalid_named =
        "Error: Block '%s' - Domain '%s' - Invalid 'endian' specified.";
    static constexpr const char* attributes_twice =
        "Error: Block '%s' - Multiple definition of 'attributes' found.";
    static constexpr domain_end_messages domain_end = {
        "Error: Block '%s' - All block domains must have 'bytes' specified in them. And 'bytes' "
        "must be a positive integer. This block domain doesn't satisfy this criterion.",
        "Error: Block '%s' - Domain '%s' - All block domains must have 'bytes' specified in "
        "them. And 'bytes' must be a positive integer. This block domain doesn't satisfy this "
        "criterion.",
        "Error: Block '%s' - All block domains must have 'bytes' specified in them. And 'bytes' "
        "must be a positive integer. This block domain doesn't satisfy this criterion.",
        "Error: Block '%s' - Domain '%s' - All block domains must have 'bytes' specified in "
        "them. And 'bytes' must be a positive integer. This block domain doesn't satisfy this "
        "criterion.",
        "Error: Block '%s' - A block cannot be empty. It must have at least one component "
        "defined/instantiated in it.",
        "Error: Block '%s' - Domain '%s - A block domain cannot be empty. It must have at least "
        "one component defined/instantiated in it.",
    };
    // An inline block in a system.
    static constexpr domain_end_messages inline_end = {
        "Error: Block '%s' - Mandatory property 'bytes' not specified.",
        "Error: Block '%s' - Domain '%s' - Mandatory property 'bytes' not specified.",
        "Error: Block '%s' - Invalid 'bytes' specified.",
        "Error: Block '%s' - Domain '%s' - Invalid 'bytes' specified.",
        "Error: Block '%s' - Empty Block.",
        "Error: Block '%s' - Domain '%s' - Empty Block Domain.",
    };

    static constexpr const char* undefined_in_domain =
        "Error: Trying to instantiate undefined block type '%s'.";
    static constexpr const char* no_such_domain =
        "Error: Block '%s' - Non-existent block domain '%s' specified.";
    static constexpr const char* undefined =
        "Error: Trying to instantiate from undefined block type '%s'.";
    static constexpr const char* array_sizes_differ =
        "Error: Block '%s' - Array size specification of multiple domain instantiations of a "
        "block instance must be same.";
    static constexpr const char* must_name_domain =
        "Error: Block '%s' - For blocks having multiple domains, you must explicitly specify the "
        "domain you want to instantiate.";
    static constexpr path_messages path_in_domain = {
        "Warning: Block '%s' - hdl_path not specified.",
        "Warning: Block Array '%s' - Mandatory hdl_path not specified.",
        "Error: Block '%s' - Block hdl_path cannot have concatenation.",
        "Error: Block '%s' - hdl_path for non-array construct cannot have '%%d'.",
        "Error: Block Array '%s' - Invalid hdl_path. hdl_path of an array must have '%%d' in "
        "it.\n\nPlease check BRIX Language Reference Manual.",
    };
    static constexpr path_messages path = {
        "Warning: Block '%s' - hdl_path not specified.",
        "Warning: Block Array '%s' - hdl_path not specified.",
        "Error: Block '%s' - Block hdl_path cannot have concatenation.",
        "Error: Block '%s' - hdl_path for non-array construct cannot have '%%d'.",
        "Error: Block Array '%s' - Invalid hdl_path specified. hdl_path of an array must have "
        "'%%d' in it.\n\nPlease check BRIX Language Reference Manual.",
    };
};

struct system_traits {
    using type_t = brix_system_type_tag;
    using domain_t = brix_system_domain_tag;
    using instance_t = brix_system_tag;
    static constexpr int TYPE = BRIX_SYSTEM_TYPE;
    static constexpr int DOMAIN = BRIX_SYSTEM_DOMAIN;
    static constexpr int INSTANCE = BRIX_SYSTEM;
    static type_t*& tmp_type() { return tmp_system_type; }
    static domain_t*& tmp_domain() { return tmp_system_domain; }
    static instance_t*& tmp_instance() { return tmp_system; }
    static char*& tmp_type_name() { return tmp_system_type_name; }
    static char& with_domain_spec() { return parsing_system_with_domain_spec; }
    static char& without_domain_spec() { return parsing_system_without_domain_spec; }
    static type_t*& all_types() { return all_system_types; }
    static type_t* copy_type(const type_t* t) { return copy_system_type(t); }
    static int exists_domain(const char* type, const char* domain) {
        return exists_system_domain(type, domain);
    }
    static void refuse_domain_name(const char* /*type*/, const char* domain) {
        refuse_defined_here(domain, "Error: Multiple definition of the symbol '%s' in same scope.");
    }

    static constexpr const char* no_domain = "Error: System '%s' - Empty System.";
    static constexpr const char* single_named =
        "Error: System Domain '%s' - Single domain system must not explicitly use 'domain' spec "
        "to define the domain.";
    static constexpr const char* property_after_domain =
        "Error: System '%s' - You have already defined a domain in this system. So, you cannot "
        "define this system preperty here. You must define it inside a domain spec.";
    static constexpr const char* domain_after_property =
        "Error: System '%s' - By using one of the system properties in it, you have already "
        "specified this system to have default/single domain. So, you cannot have more domain "
        "definitions here.\n\nPlease check BRIX Language Specification for more details.";
    static constexpr const char* bytes_twice =
        "Error: System '%s' - Multiple definition of 'bytes' found.";
    static constexpr const char* endian_invalid =
        "Error: System '%s' - Invalid 'endian' specified.";
    static constexpr const char* endian_invalid_named =
        "Error: System '%s' - Domain '%s' - Invalid 'endian' specified.";
    static constexpr const char* attributes_twice =
        "Error: System '%s' - Multiple definition of 'attributes' found.";
    static constexpr domain_end_messages domain_end = {
        "Error: System '%s' - Mandatory property 'bytes' not specified.",
        "Error: System '%s' - Domain '%s' - Mandatory property 'bytes' not specified.",
        "Error: System '%s' - Invalid 'bytes' specified.",
        "Error: System '%s' - Domain '%s' - Invalid 'bytes' specified.",
        "Error: System '%s' - Empty System.",
        "Error: System '%s' - Domain '%s' - Empty System Domain.",
    };
    // An inline system ends as a domain of a system does.
    static constexpr domain_end_messages inline_end = domain_end;

    static constexpr const char* undefined_in_domain =
        "Error: Trying to instantiate undefined system type '%s'.";
    static constexpr const char* no_such_domain =
        "Error: System '%s' - Non-existent system domain '%s' specified.";
    static constexpr const char* undefined =
        "Error: Trying to instantiate from undefined system type '%s'.";
    static constexpr const char* array_sizes_differ =
        "Error: System '%s' - Array size specification of multiple domain instantiations of a "
        "system instance must be same.";
    static constexpr const char* must_name_domain =
        "Error: System '%s' - For systems having multiple domains, you must explicitly specify "
        "the domain you want to instantiate.";
    static constexpr path_messages path_in_domain = {
        "Warning: System '%s' - hdl_path not specified.",
        "Warning: System Array '%s' - Mandatory hdl_path not specified.",
        "Error: System '%s' - System hdl_path cannot have concatenation.",
        "Error: System '%s' - hdl_path for non-array construct cannot have '%%d'.",
        "Error: System Array '%s' - Invalid hdl_path. hdl_path of an array must have '%%d' in "
        "it.\n\nPlease check BRIX Language Reference Manual.",
    };
    static constexpr path_messages path = {
        "Warning: System '%s' - hdl_path not specified.",
        "Warning: System Array '%s' - hdl_path not specified.",
        "Error: System '%s' - System hdl_path cannot have concatenation.",
        "Error: System '%s' - hdl_path for non-array construct cannot have '%%d'.",
        "Error: System Array '%s' - Invalid hdl_path specified. hdl_path of an array must have "
        "'%%d' in it.\n\nPlease check BRIX Language Reference Manual.",
    };
};

constexpr path_messages regfile_path = {
    "Warning: Regfile '%s' - hdl_path not specified.",
    "Warning: Regfile Array '%s' - hdl_path not specified.",
    "Error: Regfile '%s' - Regfile hdl_path cannot have concatenation.",
    "Error: Regfile '%s' - hdl_path for non-array construct cannot have '%%d'.",
    "Error: Regfile Array '%s' - Invalid hdl_path specified. hdl_path of an array must have "
    "'%%d' in it.\n\nPlease check BRIX Language Reference Manual.",
};

// Runs `f` with the traits of the kind of container: BRIX_BLOCK or BRIX_SYSTEM.
template <class F> void with_traits(int kind, F f) {
    if (kind == BRIX_SYSTEM) {
        f(system_traits{});
    } else {
        f(block_traits{});
    }
}

// Path tests of a block, system or regfile instance, for backdoor generation only. An
// array without a path always warns; a scalar only when not quiet.
void check_instance_path(const brix_hdl_path_tag* path, int array_size, const char* name,
                         const path_messages& m) {
    if (!brix_gen_backdoor) {
        return;
    }
    if (path == nullptr) {
        if (array_size >= 2) {
            brix_yywarn(m.missing_array, name);
        } else if (!brix_quiet_mode) {
            brix_yywarn(m.missing, name);
        }
        return;
    }
    const bool has_percent_d = std::strstr(path->path, "%d") != nullptr;
    if (array_size < 2) {
        if (path->next != nullptr) {
            brix_yyerror(m.concatenation, name);
        }
        if (has_percent_d) {
            brix_yyerror(m.percent_d_in_scalar, name);
        }
    } else if (!has_percent_d) {
        brix_yyerror(m.array_without_percent_d, name);
    }
}

// `bytes` and components of a finished domain. `named_bytes` and `named_empty` pick the
// message forms with a domain name.
template <class Domain>
void check_domain_end(const domain_end_messages& m, const char* type_name, const Domain* d,
                      bool named_bytes, bool named_empty) {
    if (d->bytes == -1) {
        brix_yyerror(named_bytes ? m.bytes_missing_named : m.bytes_missing, type_name, d->name);
    }
    if (d->bytes < 1) {
        brix_yyerror(named_bytes ? m.bytes_invalid_named : m.bytes_invalid, type_name, d->name);
    }
    if (d->components == nullptr) {
        brix_yyerror(named_empty ? m.empty_named : m.empty, type_name, d->name);
    }
}

template <class Domain> Domain* new_domain_with_cvr_used() {
    auto* d = brix_new_record<Domain>();
    if constexpr (std::is_same_v<Domain, brix_block_domain_tag>) {
        initialize_block_domain_defaults(d);
    } else {
        initialize_system_domain_defaults(d);
    }
    d->cvr_used = new_all_unsaid_cvr_spec();
    return d;
}

template <class Type> Type* new_container_type(char* name) {
    auto* t = brix_new_record<Type>();
    if constexpr (std::is_same_v<Type, brix_block_type_tag>) {
        initialize_block_type_defaults(t);
    } else {
        initialize_system_type_defaults(t);
    }
    t->name = name;
    return t;
}

// Appends a completed type to its list of all types. The tail is remembered while the
// head stays the same, so that a big description is not walked once per type.
template <class Type> void join_all_types(Type*& head, Type* type) {
    static Type* known_head = nullptr;
    static Type* tail = nullptr;
    if (head == nullptr) {
        head = type;
    } else {
        if (head != known_head || tail == nullptr) {
            tail = head;
        }
        while (tail->next != nullptr) {
            tail = tail->next;
        }
        tail->next = type;
    }
    known_head = head;
    tail = type;
}

template <class K> void finish_container_type(typename K::type_t* type) {
    join_all_types(K::all_types(), type);
    set_cvr_used_if_null(type->cvr_used);
    if constexpr (K::TYPE == BRIX_SYSTEM_TYPE) {
        check_system_data_consistency(type);
    }
}

int domain_count(const brix_list_tag* domains) {
    int count = 0;
    for (; domains != nullptr; domains = domains->next) {
        ++count;
    }
    return count;
}

bool same_prefix(const char* a, const char* b) {
    return (a == nullptr && b == nullptr) ||
           (a != nullptr && b != nullptr && std::strcmp(a, b) == 0);
}

// The key of a definition in the per-system map of multi-domain instantiations.
char* definition_key(const char* scope_prefix, const char* name) {
    if (scope_prefix == nullptr) {
        return brix_strdup(name);
    }
    return brix_strdup((std::string(scope_prefix) + "_" + name).c_str());
}

} // namespace

// Global blocks and systems ----------------------------------------------------------

void begin_global_container(int kind, char* name) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        refuse_defined_here(name, "Error: Symbol '%s' already exists in the global scope.");
        K::tmp_type() = new_container_type<typename K::type_t>(name);
        K::with_domain_spec() = 0;
        K::without_domain_spec() = 0;
    });
}

void open_container_body(int kind) {
    if (kind == BRIX_SYSTEM) {
        open_definition_scope(tmp_system_type->name);
        tmp_instantiated_blk_or_sys_with_multiple_doms = new brix_str2voidptr_map;
        return;
    }
    tmp_shared_regs = new brix_str2voidptr_map;
    tmp_shared_mems = new brix_str2voidptr_map;
    open_definition_scope(tmp_block_type->name);
}

namespace {
void drop_map(brix_str2voidptr_map*& map) {
    free_str2voidptr_map(*map, 1);
    delete map;
    map = nullptr;
}
} // namespace

void container_body_before_close(int kind) {
    close_definition_scope();
    if (kind == BRIX_SYSTEM) {
        drop_map(tmp_instantiated_blk_or_sys_with_multiple_doms);
        return;
    }
    drop_map(tmp_shared_regs);
    drop_map(tmp_shared_mems);
}

void end_global_container(int kind) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        typename K::type_t* type = K::tmp_type();
        if (type->domains == nullptr) {
            brix_yyerror(K::no_domain, type->name);
        }
        const auto* first = static_cast<const typename K::domain_t*>(type->domains->data);
        if (type->domains->next == nullptr && first->name != nullptr) {
            brix_yyerror(K::single_named, first->name);
        }
        if (K::without_domain_spec()) {
            check_domain_end(K::domain_end, type->name, K::tmp_domain(), false, false);
            K::tmp_domain() = nullptr;
        }
        finish_container_type<K>(type);
        create_and_insert_symrec(current_scope, brix_strdup(type->name), K::TYPE, type);
        K::tmp_type() = nullptr;
    });
}

void before_container_level_property(int kind) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        typename K::type_t* type = K::tmp_type();
        if (K::with_domain_spec() == 1) {
            brix_yyerror(K::property_after_domain, type->name);
        }
        if (type->domains == nullptr) {
            K::tmp_domain() = new_domain_with_cvr_used<typename K::domain_t>();
            type->domains = create_brix_list_node(K::DOMAIN, K::tmp_domain());
            K::without_domain_spec() = 1;
        }
    });
}

void begin_container_domain(int kind) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        if (K::without_domain_spec()) {
            brix_yyerror(K::domain_after_property, K::tmp_type()->name);
        }
        K::tmp_domain() = brix_new_record<typename K::domain_t>();
        if constexpr (K::TYPE == BRIX_BLOCK_TYPE) {
            initialize_block_domain_defaults(K::tmp_domain());
        } else {
            initialize_system_domain_defaults(K::tmp_domain());
        }
    });
}

void name_container_domain(int kind, char* name, char* offset) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        K::refuse_domain_name(K::tmp_type()->name, name);
        create_and_insert_symrec(current_scope, name, K::DOMAIN, nullptr);
        K::tmp_domain()->name = name;
        K::tmp_domain()->offset = offset;
        if (offset != nullptr) {
            brix_yywarn("Warning: Domain '%s' - Offset specification for a domain is not yet "
                        "supported...Ignoring offset %s.",
                        name, offset);
        }
    });
}

void end_container_domain(int kind) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        typename K::domain_t* d = K::tmp_domain();
        set_cvr_used_if_null(d->cvr_used);
        check_domain_end(K::domain_end, K::tmp_type()->name, d, true, true);
        append_node(K::tmp_type()->domains, K::DOMAIN, d);
        K::with_domain_spec() = 1;
        K::tmp_domain() = nullptr;
    });
}

void container_set_bytes(int kind, char* number) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        if (K::tmp_domain()->bytes != -1) {
            brix_yyerror(K::bytes_twice, K::tmp_type()->name);
        }
        K::tmp_domain()->bytes = decimal(number);
        brix_free(number);
    });
}

void container_set_endian(int kind, char* word) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        typename K::domain_t* d = K::tmp_domain();
        if (!is_one_of(word, {"no", "little", "big", "fifo_ls", "fifo_ms"})) {
            brix_yyerror(d->name != nullptr ? K::endian_invalid_named : K::endian_invalid,
                         K::tmp_type()->name, d->name);
        }
        d->endian = word;
    });
}

void refuse_second_container_attributes(int kind) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        refuse_second_attributes(K::tmp_type()->attributes, K::attributes_twice,
                                 K::tmp_type()->name);
    });
}

void take_container_attributes(int kind) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        take_attributes(K::tmp_type()->attributes);
    });
}

// Virtual register instances ---------------------------------------------------------

void begin_vregister_instance(char* ident) {
    tmp_vregister = brix_new_record<brix_vregister_tag>();
    initialize_vregister_defaults(tmp_vregister);
    tmp_vregister_type_name = ident;
}

void vregister_instance_renamed(char* name) {
    refuse_defined_here(name, MULTIPLE_DEFINITION);
    create_and_insert_symrec(current_scope, name, BRIX_VREGISTER, tmp_vregister);
    tmp_vregister->name = name;
}

void vregister_static_placement(int array_size, char* memory, char* offset, char* increment) {
    tmp_vregister->array_size = array_size;
    tmp_vregister->memory = memory;
    tmp_vregister->offset = offset;
    tmp_vregister->increment = increment;
    if (offset != nullptr && std::strcmp(offset, "none") == 0) {
        brix_yyerror("Error: For Virtual Registers, @none is not allowed as offset.");
    }
    if (array_size == -1 || offset == nullptr) {
        brix_yyerror("Error: For Static Virtual Registers, it is mandatory to have all of "
                     "'ArraySize', 'MemoryName' and 'Offset' specfied.");
    }
    if (lookup_local_symbol(memory) == nullptr) {
        brix_yyerror("Error: Undefined memory '%s' used in Static Virtual Register instantiation.",
                     memory);
    }
    tmp_vregister->is_dynamic = 0;
}

void vregister_dynamic_placement() {
    tmp_vregister->is_dynamic = 1;
}

void vregister_instance_cover(char* cover) {
    if (cover != nullptr) {
        tmp_vregister->cvr_spec = get_cvr_spec(cover);
    }
    tmp_vregister_type_name = nullptr;
}

void begin_inline_vregister_type() {
    tmp_vregister_type = brix_new_record<brix_vregister_type_tag>();
    initialize_vregister_type_defaults(tmp_vregister_type);
    tmp_vregister_type->name = tmp_vregister_type_name;
    tmp_vregister_type->scope_prefix = current_scope_prefix();
    open_definition_scope(tmp_vregister_type_name);
}

void inline_vregister_before_close() {
    close_definition_scope();
    if (tmp_vregister_type->fields == nullptr) {
        brix_yyerror("Error: Virtual Register '%s' - No fields in it.",
                     vregister_type_display_name());
    }
    if (!valid_bytes(tmp_vregister_type)) {
        brix_yyerror("Error: Virtual Register '%s' - Summation of all its field sizes (considering "
                     "offsets, if any)is more than the 'bytes' specified for this vregister.",
                     vregister_type_display_name());
    }
    tmp_vregister->type = tmp_vregister_type;
    tmp_vregister_type = nullptr;
    tmp_vregister_type_name = nullptr;
}

void finish_vregister_instance(char* ident, int form) {
    if (form == 0) {
        const brix_symrec* def = global_symbol_of_kind(ident, BRIX_VREGISTER_TYPE);
        if (def == nullptr) {
            brix_yyerror("Error: Undefined Virtual Register '%s' - Trying to instantiate it.",
                         ident);
        }
        tmp_vregister->type =
            copy_vregister_type(static_cast<const brix_vregister_type_tag*>(def->data));
    } else {
        refuse_defined_here(ident, ALREADY_DEFINED);
        tmp_vregister->name = ident;
        tmp_vregister->type->name = brix_strdup(ident);
        create_and_insert_symrec(current_scope, ident, BRIX_VREGISTER, tmp_vregister);
    }
    check_left_to_right_first_field(tmp_vregister->type, VREGISTER_LEFT_TO_RIGHT);
    append_node(tmp_block_domain->components, BRIX_VREGISTER, tmp_vregister);
    tmp_vregister = nullptr;
}

// Regfile instances ------------------------------------------------------------------

void begin_regfile_instance(char* ident) {
    tmp_regfile = brix_new_record<brix_regfile_tag>();
    initialize_regfile_defaults(tmp_regfile);
    tmp_regfile_type_name = ident;
}

namespace {
void set_regfile_placement(int array_size, brix_hdl_path_tag* path, char* offset,
                           const char* name) {
    tmp_regfile->array_size = array_size;
    tmp_regfile->hdl_path = path;
    tmp_regfile->offset = offset;
    check_instance_path(path, array_size, name, regfile_path);
}
} // namespace

void regfile_instance_renamed(char* name, int array_size, brix_hdl_path_tag* path, char* offset) {
    refuse_defined_here(name, MULTIPLE_DEFINITION);
    tmp_regfile->name = name;
    set_regfile_placement(array_size, path, offset, name);
}

void regfile_instance_renamed_end(char* increment, char* cover) {
    tmp_regfile->increment = increment;
    tmp_regfile->cvr_spec = get_cvr_spec(cover);
    create_and_insert_symrec(current_scope, tmp_regfile->name, BRIX_REGFILE, tmp_regfile);
    tmp_regfile_type_name = nullptr;
}

void regfile_instance_place(int array_size, brix_hdl_path_tag* path, char* offset,
                            char* increment) {
    set_regfile_placement(array_size, path, offset, tmp_regfile_type_name);
    tmp_regfile->increment = increment;
}

void regfile_instance_cover(char* cover) {
    tmp_regfile->cvr_spec = get_cvr_spec(cover);
}

void begin_inline_regfile_type() {
    tmp_regfile_type = brix_new_record<brix_regfile_type_tag>();
    initialize_regfile_type_defaults(tmp_regfile_type);
    tmp_regfile_type->name = tmp_regfile_type_name;
    tmp_regfile_type->scope_prefix = current_scope_prefix();
    open_definition_scope(tmp_regfile_type_name);
}

void inline_regfile_before_close() {
    close_definition_scope();
    if (tmp_regfile_type->registers == nullptr) {
        brix_yyerror("Error: Regfile '%s' - No registers in it.", regfile_type_display_name());
    }
    tmp_regfile->type = tmp_regfile_type;
    tmp_regfile_type = nullptr;
}

void finish_regfile_instance(char* ident, int form) {
    if (form == 1) {
        refuse_defined_here(ident, ALREADY_DEFINED);
        tmp_regfile->name = ident;
        tmp_regfile->type->name = brix_strdup(ident);
        create_and_insert_symrec(current_scope, ident, BRIX_REGFILE, tmp_regfile);
    } else {
        const brix_symrec* def = global_symbol_of_kind(ident, BRIX_REGFILE_TYPE);
        if (def == nullptr) {
            brix_yyerror("Error: Regfile '%s' - Trying to instantiate an undefined regfile.",
                         ident);
        }
        tmp_regfile->type = copy_regfile_type(static_cast<const brix_regfile_type_tag*>(def->data));
        if (tmp_regfile->name == nullptr) {
            tmp_regfile->name = ident;
            refuse_defined_here(ident, MULTIPLE_DEFINITION);
            create_and_insert_symrec(current_scope, ident, BRIX_REGFILE, tmp_regfile);
        }
    }
    tmp_regfile_type_name = nullptr;
    append_node(tmp_block_domain->components, BRIX_REGFILE, tmp_regfile);
    tmp_regfile = nullptr;
}

// Memory instances -------------------------------------------------------------------

void begin_memory_instance(char* ident) {
    tmp_memory = brix_new_record<brix_memory_tag>();
    initialize_memory_defaults(tmp_memory);
    tmp_memory_type_name = ident;
}

namespace {
// A memory has no array form: its path is one path, and with backdoor generation it must
// be there without "%d".
void set_memory_path(brix_hdl_path_tag* path, const char* name) {
    tmp_memory->hdl_path = path;
    if (path != nullptr && path->next != nullptr) {
        brix_yyerror("Error: Memory '%s' - hdl_path specification in concatenation format is not "
                     "support for memories.",
                     name);
    }
    if (!brix_gen_backdoor) {
        return;
    }
    if (path == nullptr) {
        if (!brix_quiet_mode) {
            brix_yywarn("Warning: Memory '%s' - hdl_path not specified.", name);
        }
    } else if (any_path_has_percent_d(path)) {
        brix_yyerror("Error: Memory '%s' - '%%d is not supported in memory hdl_path.", name);
    }
}

void set_memory_flags(char* rw_flag, char* cover) {
    tmp_memory->rw_flag = rw_flag;
    if (cover != nullptr) {
        tmp_memory->cvr_spec = get_cvr_spec(cover);
    }
}

// A name already taken is allowed for a shared memory placed again; otherwise an error.
void refuse_taken_memory_name(const brix_symrec* existing, const brix_memory_type_tag* definition,
                              const char* name) {
    if (!shared_instance_allowed<brix_memory_tag>(existing, BRIX_MEMORY, definition->is_shared,
                                                  definition->name)) {
        brix_yyerror(MULTIPLE_DEFINITION, name);
    }
}
} // namespace

void memory_instance_renamed(char* name, brix_hdl_path_tag* path, char* offset) {
    if (const brix_symrec* existing = lookup_local_symbol(name)) {
        const brix_symrec* def = global_symbol_of_kind(tmp_memory_type_name, BRIX_MEMORY_TYPE);
        if (def == nullptr) {
            brix_yyerror("Error: Undefined Memory '%s' - Trying to instantiate it.",
                         tmp_memory_type_name);
        }
        refuse_taken_memory_name(existing, static_cast<const brix_memory_type_tag*>(def->data),
                                 name);
    }
    tmp_memory->name = name;
    set_memory_path(path, name);
    tmp_memory->offset = offset;
}

void memory_instance_renamed_end(char* rw_flag, char* cover) {
    set_memory_flags(rw_flag, cover);
    // Inserted even when a shared instance of this name stands already.
    create_and_insert_symrec(current_scope, tmp_memory->name, BRIX_MEMORY, tmp_memory);
    tmp_memory_type_name = nullptr;
}

void memory_instance_place(brix_hdl_path_tag* path, char* offset) {
    set_memory_path(path, tmp_memory_type_name);
    tmp_memory->offset = offset;
}

void memory_instance_flags(char* rw_flag, char* cover) {
    set_memory_flags(rw_flag, cover);
}

void begin_inline_memory_type() {
    tmp_memory_type = brix_new_record<brix_memory_type_tag>();
    initialize_memory_type_defaults(tmp_memory_type);
    tmp_memory_type->name = tmp_memory_type_name;
    tmp_memory_type->scope_prefix = current_scope_prefix();
}

void inline_memory_before_close() {
    check_memory_type_complete();
    if (tmp_memory_type->is_shared == 1) {
        brix_yyerror("Error: Memory '%s' - 'shared' property specified for inline memory.",
                     memory_type_display_name());
    }
    tmp_memory->type = tmp_memory_type;
    tmp_memory_type = nullptr;
}

void finish_memory_instance(char* ident, int form) {
    if (form == 0) {
        const brix_symrec* def = global_symbol_of_kind(ident, BRIX_MEMORY_TYPE);
        if (def == nullptr) {
            brix_yyerror("Error: Memory '%s' - Trying to instantiate an undefined memory.", ident);
        }
        auto* definition = static_cast<brix_memory_type_tag*>(def->data);
        tmp_memory->type = definition;
        if (tmp_memory->name == nullptr) {
            tmp_memory->name = ident;
            if (const brix_symrec* existing = lookup_local_symbol(ident)) {
                refuse_taken_memory_name(existing, definition, ident);
            } else {
                create_and_insert_symrec(current_scope, ident, BRIX_MEMORY, tmp_memory);
            }
        }
        tmp_memory->type = resolve_instance_type(definition, tmp_shared_mems, copy_memory_type);
        const bool shared = tmp_memory->type->is_shared == 1;
        if (tmp_memory->rw_flag != nullptr && !shared) {
            brix_yyerror("Error: Memory '%s' - Unsharable memory - Trying to use read/write shared "
                         "access flag while instantiating it.",
                         tmp_memory->name);
        }
        if (tmp_memory->hdl_path != nullptr && shared) {
            brix_yyerror("Error: Memory '%s' - hdl_path specified for shared memory instantiation. "
                         "For shared memories, 'hdl_path' is always picked from the shared memory "
                         "definition.",
                         tmp_memory->name);
        }
    } else {
        refuse_defined_here(ident, ALREADY_DEFINED);
        tmp_memory->name = ident;
        tmp_memory->type->name = brix_strdup(ident);
        create_and_insert_symrec(current_scope, ident, BRIX_MEMORY, tmp_memory);
    }
    tmp_memory_type_name = nullptr;
    append_node(tmp_block_domain->components, BRIX_MEMORY, tmp_memory);
    tmp_memory = nullptr;
}

// Block and system instances ---------------------------------------------------------

void begin_block_instance(char* ident) {
    tmp_block = brix_new_record<brix_block_tag>();
    initialize_block_defaults(tmp_block);
    tmp_block_type_name = ident;
}

brix_saved_system_vars* begin_system_instance(char* ident) {
    auto* saved = new brix_saved_system_vars{tmp_system_domain, tmp_system_type, tmp_system,
                                             tmp_instantiated_blk_or_sys_with_multiple_doms,
                                             tmp_system_type_name};
    tmp_system_domain = nullptr;
    tmp_system_type = nullptr;
    tmp_system = brix_new_record<brix_system_tag>();
    initialize_system_defaults(tmp_system);
    // A fresh map: a domain-qualified system instance never finds the copy of an earlier one.
    tmp_instantiated_blk_or_sys_with_multiple_doms = new brix_str2voidptr_map;
    tmp_system_type_name = ident;
    return saved;
}

void container_instance_in_domain(int kind, char* domain, char* rename, int array_size,
                                  brix_hdl_path_tag* path, char* offset) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        const char* type_name = K::tmp_type_name();
        const brix_symrec* def = global_symbol_of_kind(type_name, K::TYPE);
        if (def == nullptr) {
            brix_yyerror(K::undefined_in_domain, type_name);
        }
        if (!K::exists_domain(type_name, domain)) {
            brix_yyerror(K::no_such_domain, type_name, domain);
        }
        auto* inst = K::tmp_instance();
        inst->domain = domain;
        inst->name = rename != nullptr ? rename : K::tmp_type_name();
        inst->array_size = array_size;

        // One copy of the definition per system, whatever the instance.
        const auto* definition = static_cast<const typename K::type_t*>(def->data);
        char* key = definition_key(definition->scope_prefix, definition->name);
        brix_str2voidptr_map& copies = *tmp_instantiated_blk_or_sys_with_multiple_doms;
        if (void* hit = get_str2voidptr_map_value(copies, key)) {
            inst->type = static_cast<typename K::type_t*>(hit);
            brix_free(key);
        } else {
            inst->type = K::copy_type(definition);
            add_str2voidptr_map_entry(copies, key, inst->type);
        }

        if (const brix_symrec* existing = lookup_local_symbol(inst->name)) {
            if (existing->kind != K::INSTANCE) {
                brix_yyerror(MULTIPLE_DEFINITION, inst->name);
            }
            const auto* other = static_cast<const typename K::instance_t*>(existing->data);
            if (std::strcmp(other->type->name, inst->type->name) != 0 ||
                !same_prefix(other->type->scope_prefix, inst->type->scope_prefix)) {
                brix_yyerror(MULTIPLE_DEFINITION, inst->name);
            }
            if (other->array_size != array_size) {
                brix_yyerror(K::array_sizes_differ, inst->name);
            }
        } else {
            create_and_insert_symrec(current_scope, inst->name, K::INSTANCE, inst);
        }
        inst->hdl_path = path;
        check_instance_path(path, array_size, inst->name, K::path_in_domain);
        inst->offset = offset;
    });
}

namespace {
template <class K> const typename K::type_t* container_definition() {
    const brix_symrec* def = global_symbol_of_kind(K::tmp_type_name(), K::TYPE);
    if (def == nullptr) {
        brix_yyerror(K::undefined, K::tmp_type_name());
    }
    return static_cast<const typename K::type_t*>(def->data);
}

template <class K> void refuse_multi_domain_definition(const typename K::type_t* definition) {
    if (domain_count(definition->domains) > 1) {
        brix_yyerror(K::must_name_domain, definition->name);
    }
}
} // namespace

void container_instance_renamed(int kind, char* name, int array_size, brix_hdl_path_tag* path,
                                char* offset) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        const typename K::type_t* definition = container_definition<K>();
        auto* inst = K::tmp_instance();
        inst->name = name;
        inst->array_size = array_size;
        refuse_defined_here(name, MULTIPLE_DEFINITION);
        inst->type = K::copy_type(definition);
        create_and_insert_symrec(current_scope, name, K::INSTANCE, inst);
        refuse_multi_domain_definition<K>(definition);
        inst->hdl_path = path;
        check_instance_path(path, array_size, name, K::path);
        inst->offset = offset;
    });
}

void container_instance_tail(int kind, char* increment, char* cover) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        K::tmp_instance()->increment = increment;
        if (cover != nullptr) {
            K::tmp_instance()->cvr_spec = get_cvr_spec(cover);
        }
        K::tmp_type_name() = nullptr;
    });
}

void container_instance_place(int kind, int array_size, brix_hdl_path_tag* path, char* offset,
                              char* increment) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        char* name = K::tmp_type_name();
        refuse_defined_here(name, MULTIPLE_DEFINITION);
        auto* inst = K::tmp_instance();
        inst->name = name;
        inst->array_size = array_size;
        inst->hdl_path = path;
        check_instance_path(path, array_size, name, K::path);
        inst->offset = offset;
        inst->increment = increment;
        inst->cvr_spec = nullptr;
    });
}

void container_instance_by_name(int kind, char* cover) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        const typename K::type_t* definition = container_definition<K>();
        auto* inst = K::tmp_instance();
        inst->type = K::copy_type(definition);
        create_and_insert_symrec(current_scope, inst->name, K::INSTANCE, inst);
        refuse_multi_domain_definition<K>(definition);
        if (cover != nullptr) {
            inst->cvr_spec = get_cvr_spec(cover);
        }
    });
}

void container_instance_by_name_end(int kind) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        // A second symbol of the same name and record, as the by-name form has always made.
        K::tmp_type_name() = nullptr;
        create_and_insert_symrec(current_scope, K::tmp_instance()->name, K::INSTANCE,
                                 K::tmp_instance());
    });
}

void begin_inline_container_type(int kind) {
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        auto* type = new_container_type<typename K::type_t>(K::tmp_type_name());
        K::tmp_type() = type;
        K::tmp_instance()->type = type;
        K::tmp_domain() = new_domain_with_cvr_used<typename K::domain_t>();
        type->domains = create_brix_list_node(K::DOMAIN, K::tmp_domain());
        type->scope_prefix = current_scope_prefix();
        open_definition_scope(type->name);
    });
}

void inline_container_before_close(int kind) {
    close_definition_scope();
    with_traits(kind, [&](auto k) {
        using K = decltype(k);
        typename K::type_t* type = K::tmp_type();
        // An inline block picks its message on a missing component by the name of the
        // system domain around it.
        const bool named_empty = K::TYPE == BRIX_BLOCK_TYPE && tmp_system_domain != nullptr &&
                                 tmp_system_domain->name != nullptr;
        check_domain_end(K::inline_end, type->name, K::tmp_domain(), false, named_empty);
        finish_container_type<K>(type);
        K::tmp_type() = nullptr;
        K::tmp_domain() = nullptr;
    });
}

void finish_block_instance() {
    append_node(tmp_system_domain->components, BRIX_BLOCK, tmp_block);
    tmp_block_type = nullptr;
    tmp_block = nullptr;
}

void finish_system_instance(brix_saved_system_vars* saved) {
    tmp_system_type_name = saved->type_name;
    drop_map(tmp_instantiated_blk_or_sys_with_multiple_doms);
    tmp_instantiated_blk_or_sys_with_multiple_doms = saved->instantiated;
    append_node(saved->domain->components, BRIX_SYSTEM, tmp_system);
    tmp_system_domain = saved->domain;
    tmp_system_type = saved->type;
    tmp_system = saved->system;
    delete saved;
}
