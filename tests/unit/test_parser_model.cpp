// Pure descriptions parsed into the model: defaults, stored texts and the copy rules.
#include "parser_test_support.hpp"

#include <string>
#include <vector>

using namespace brix_test;

namespace {

template <class T> T* global(const char* name, int kind) {
    const brix_symrec* sym = lookup_global_symbol(name);
    EXPECT_NE(sym, nullptr) << name;
    EXPECT_EQ(sym->kind, kind) << name;
    return static_cast<T*>(sym->data);
}
brix_register_type_tag* reg(const char* name) {
    return global<brix_register_type_tag>(name, BRIX_REGISTER_TYPE);
}

template <class T = brix_field_tag> std::vector<T*> items(const brix_list_tag* list) {
    std::vector<T*> out;
    for (; list != nullptr; list = list->next) {
        out.push_back(static_cast<T*>(list->data));
    }
    return out;
}

std::vector<std::string> attribute_names(const brix_attribute* a) {
    std::vector<std::string> names;
    for (; a != nullptr; a = a->next) {
        names.push_back(std::string(a->name) + "=" + a->value);
    }
    return names;
}

unsigned spec_bits(const brix_cvr_spec_tag* s) {
    return s->addr_map | s->reg_bits << 2 | s->field_vals << 4;
}

TEST(ParserModel, FieldDefaultsAndGlobalFields) {
    parse_pure("field x\nfield y { bits 4 access ro hard_reset 0x1F soft_reset 16 }\n");
    const auto* x = global<brix_field_type_tag>("x", BRIX_FIELD_TYPE);
    EXPECT_EQ(x->bits, 1u);
    EXPECT_STREQ(x->access, "rw");
    EXPECT_EQ(x->hard_reset, nullptr);
    const auto* y = global<brix_field_type_tag>("y", BRIX_FIELD_TYPE);
    EXPECT_EQ(y->bits, 4u);
    EXPECT_STREQ(y->access, "ro");
    EXPECT_STREQ(y->hard_reset, "'h1F");
    EXPECT_STREQ(y->soft_reset, "16");
}

TEST(ParserModel, ResetWordIsHardReset) {
    parse_pure("field f { reset 0x10 hard_reset 8'h3 }");
    EXPECT_STREQ(global<brix_field_type_tag>("f", BRIX_FIELD_TYPE)->hard_reset, "8'h3");
    parse_pure("field f { reset 0x10 }");
    EXPECT_STREQ(global<brix_field_type_tag>("f", BRIX_FIELD_TYPE)->hard_reset, "'h10");
}

TEST(ParserModel, RegisterDefaultsAndDerivedBytes) {
    parse_pure("register r { field a { bits 9 } }\n"
               "register s { field a @4 { bits 2 } field b @0 { bits 2 } }\n"
               "register t { bytes 4 noise no left_to_right field a { bits 8 } field b @1 }");
    const auto* r = reg("r");
    EXPECT_EQ(r->bytes, 2);
    EXPECT_STREQ(r->noise, "ro");
    EXPECT_EQ(r->left_to_right, -1);
    EXPECT_EQ(r->is_shared, -1);
    EXPECT_EQ(r->scope_prefix, nullptr);
    EXPECT_EQ(spec_bits(r->cvr_used), 63u);
    EXPECT_EQ(r->cvr_spec, nullptr);
    EXPECT_EQ(reg("s")->bytes, 1);
    const auto* t = reg("t");
    EXPECT_EQ(t->bytes, 4);
    EXPECT_STREQ(t->noise, "no");
    EXPECT_EQ(t->left_to_right, 1);
    const auto fields = items(t->fields);
    ASSERT_EQ(fields.size(), 2u);
    EXPECT_STREQ(fields[1]->offset, "1");
}

TEST(ParserModel, ThreeFormsOfAFieldInstance) {
    parse_pure("field parity { bits 1 access ro hard_reset 0x1 cover +f }\n"
               "register status { bytes 2 field ready (ctl.rdy) @0 { bits 1 access ro } "
               "field parity = p0 (ctl.par) @8 field parity @9 field plain field unused { bits 3 } "
               "}");
    const auto* def = global<brix_field_type_tag>("parity", BRIX_FIELD_TYPE);
    const auto fields = items(reg("status")->fields);
    ASSERT_EQ(fields.size(), 5u);
    // Inline: a type of its own, named like the instance.
    EXPECT_STREQ(fields[0]->name, "ready");
    EXPECT_STREQ(fields[0]->type->name, "ready");
    EXPECT_STREQ(fields[0]->type->access, "ro");
    EXPECT_STREQ(fields[0]->hdl_path->path, "ctl.rdy");
    // `=`: a copy of the global definition under the new name.
    EXPECT_STREQ(fields[1]->name, "p0");
    EXPECT_NE(fields[1]->type, def);
    EXPECT_STREQ(fields[1]->type->hard_reset, "'h1");
    EXPECT_EQ(fields[1]->type->hard_reset, def->hard_reset); // strings stay shared
    EXPECT_NE(fields[1]->type->cvr_spec, def->cvr_spec);     // the spec is the copy's own
    EXPECT_EQ(spec_bits(fields[1]->type->cvr_spec), spec_bits(def->cvr_spec));
    // By name, with a definition: a copy too.
    EXPECT_STREQ(fields[2]->name, "parity");
    EXPECT_NE(fields[2]->type, def);
    EXPECT_STREQ(fields[2]->offset, "9");
    // By name, without a definition: a default one-bit field.
    EXPECT_STREQ(fields[3]->name, "plain");
    EXPECT_STREQ(fields[3]->type->name, "plain");
    EXPECT_EQ(fields[3]->type->bits, 1u);
    EXPECT_EQ(fields[4]->type->bits, 3u);
    for (const brix_field_tag* f : fields) {
        ASSERT_NE(f->cvr_used, nullptr);
        EXPECT_EQ(spec_bits(f->cvr_used), 63u);
    }
}

TEST(ParserModel, UnusedFieldsLeaveNoSymbolAndMayRepeat) {
    parse_pure("register r { field unused { bits 3 } field unused { bits 3 } field reserved "
               "field a }");
    EXPECT_EQ(items(reg("r")->fields).size(), 4u);
}

TEST(ParserModel, HdlPathTexts) {
    parse_pure("register r { field a (x[3:0].b) field b (m[%d].q) field c (top.r%d) "
               "field d vhdl_path = (u1:u2:sig) field e (lo, hi) field f (a%q) }");
    const auto fields = items(reg("r")->fields);
    EXPECT_STREQ(fields[0]->hdl_path->path, "x[3:0].b");
    EXPECT_STREQ(fields[1]->hdl_path->path, "m[%d].q");
    EXPECT_STREQ(fields[2]->hdl_path->path, "top.r%d");
    EXPECT_STREQ(fields[3]->hdl_path->path, "u1.u2.sig");
    EXPECT_EQ(fields[3]->hdl_path->is_vhdl, 1u);
    EXPECT_EQ(fields[0]->hdl_path->is_vhdl, 0u);
    ASSERT_NE(fields[4]->hdl_path->next, nullptr);
    EXPECT_STREQ(fields[4]->hdl_path->path, "lo");
    EXPECT_STREQ(fields[4]->hdl_path->next->path, "hi");
    EXPECT_EQ(fields[4]->hdl_path->next->next, nullptr);
    EXPECT_STREQ(fields[5]->hdl_path->path, "a%q");
}

TEST(ParserModel, ConstraintsDocsAttributesAndEnums) {
    parse_pure("field f { enum mode { idle, busy = 3, done } constraint c1 { x < 3; } "
               "constraint c2 {} doc {\ntext\n} doc {} }\n"
               "register r { attributes { a 1, b \"x\", c y } field f }");
    const auto* f = global<brix_field_type_tag>("f", BRIX_FIELD_TYPE);
    ASSERT_NE(f->constraints, nullptr);
    EXPECT_STREQ(f->constraints->name, "c1");
    EXPECT_STREQ(f->constraints->body, " x < 3; ");
    ASSERT_NE(f->constraints->next, nullptr);
    EXPECT_STREQ(f->constraints->next->name, "c2");
    EXPECT_EQ(f->constraints->next->body, nullptr);
    ASSERT_NE(f->doc, nullptr);
    EXPECT_EQ(f->doc->text, nullptr); // the later doc replaces the first
    ASSERT_NE(f->enum_type, nullptr);
    EXPECT_STREQ(f->enum_type->name, "mode");
    const auto names = items<brix_enum_name_declaration>(f->enum_type->names);
    ASSERT_EQ(names.size(), 3u);
    EXPECT_STREQ(names[1]->name, "busy");
    EXPECT_STREQ(names[1]->value, "3");
    EXPECT_EQ(names[2]->value, nullptr);
    // Enum names of a global field stand in the global scope.
    EXPECT_EQ(lookup_global_symbol("idle")->kind, BRIX_ENUM_NAME);
    EXPECT_EQ(attribute_names(reg("r")->attributes),
              (std::vector<std::string>{"c=y", "b=x", "a=1"}));
}

TEST(ParserModel, CoverSpecsAndCoverpoints) {
    target_language = const_cast<char*>("sv");
    parse_pure("register r { cover +a+b+f field mode { bits 2 enum { idle, busy } "
               "coverpoint { bins lo = { idle } bins mid[] = { [idle:3], 5 } "
               "bins chunks[4] = { [0:15] } bins rest = default } } field en cross mode en "
               "{ label mx } cross mx en }\n"
               "field g { cover -f }");
    target_language = nullptr;
    const auto* r = reg("r");
    EXPECT_EQ(spec_bits(r->cvr_spec), 1u | 1u << 2 | 1u << 4);
    EXPECT_EQ(spec_bits(global<brix_field_type_tag>("g", BRIX_FIELD_TYPE)->cvr_spec),
              3u | 3u << 2 | 0u << 4);
    const auto* mode = items(r->fields)[0]->type;
    ASSERT_NE(mode->coverpoint, nullptr);
    const auto bins = items<brix_cvr_bin>(mode->coverpoint->bins);
    ASSERT_EQ(bins.size(), 4u);
    EXPECT_STREQ(bins[0]->name, "lo");
    EXPECT_EQ(bins[0]->num_bins, -1);
    EXPECT_EQ(bins[1]->auto_bins, 1u);
    EXPECT_EQ(bins[2]->num_bins, 4);
    EXPECT_EQ(bins[3]->values, nullptr);
    const auto mid = items<brix_cvr_bin_value>(bins[1]->values);
    ASSERT_EQ(mid.size(), 2u);
    EXPECT_EQ(mid[0]->kind, 3);
    const auto* range = static_cast<brix_cvr_bin_range*>(mid[0]->value);
    EXPECT_EQ(range->low->kind, 1);
    EXPECT_STREQ(static_cast<char*>(range->high->value), "3");
    EXPECT_EQ(mid[1]->kind, 2);
    const auto crosses = items<brix_cross>(r->crosses);
    ASSERT_EQ(crosses.size(), 2u);
    EXPECT_STREQ(crosses[0]->label, "mx");
    EXPECT_EQ(crosses[1]->label, nullptr);
    EXPECT_STREQ(static_cast<char*>(crosses[1]->items->data), "mx");
}

TEST(ParserModel, VirtualRegisterFieldsShareTheVregisterScope) {
    parse_pure("field g { bits 4 }\n"
               "virtual register v { field a { bits 4 enum { e0 } } field g = b field b2 "
               "cross a b }");
    const auto* v = global<brix_vregister_type_tag>("v", BRIX_VREGISTER_TYPE);
    EXPECT_EQ(v->bytes, 2); // 4 + 4 + 1 bits
    const auto fields = items(v->fields);
    ASSERT_EQ(fields.size(), 3u);
    EXPECT_EQ(fields[0]->cvr_used, nullptr);
    EXPECT_STREQ(fields[1]->name, "b");
    EXPECT_EQ(fields[1]->type->bits, 4u);
}

TEST(ParserModel, MemoriesWithUnitsAndInitials) {
    parse_pure("memory ram { size 4k bits 32 access rw initial 0x55 ++ }\n"
               "memory rom { size 2 K bits 8 access ro initial addr noise no }\n"
               "memory buf { shared (top.mem) size 1M bits 64 initial 5 initial 7 -- }\n"
               "memory big { size 3G bits 1 }");
    const auto* ram = global<brix_memory_type_tag>("ram", BRIX_MEMORY_TYPE);
    EXPECT_EQ(ram->size, 4096u);
    EXPECT_EQ(ram->bits, 32u);
    EXPECT_STREQ(ram->noise, "ro");
    EXPECT_STREQ(ram->initial->value, "0x55");
    EXPECT_EQ(ram->initial->increment, 1);
    EXPECT_EQ(spec_bits(ram->cvr_used), 63u);
    const auto* rom = global<brix_memory_type_tag>("rom", BRIX_MEMORY_TYPE);
    EXPECT_EQ(rom->size, 2048u);
    EXPECT_STREQ(rom->initial->value, "addr");
    EXPECT_STREQ(rom->noise, "no");
    const auto* buf = global<brix_memory_type_tag>("buf", BRIX_MEMORY_TYPE);
    EXPECT_EQ(buf->size, 1048576u);
    EXPECT_EQ(buf->is_shared, 1);
    EXPECT_STREQ(buf->hdl_path->path, "top.mem");
    EXPECT_STREQ(buf->initial->value, "7");
    EXPECT_EQ(buf->initial->decrement, 1);
    EXPECT_EQ(global<brix_memory_type_tag>("big", BRIX_MEMORY_TYPE)->size, 3221225472u);
}

TEST(ParserModel, RegfilesCopyUnsharedAndShareSharedWithinNone) {
    parse_pure("register ctl { field f { bits 8 } }\n"
               "register sh { shared (top.sh) field f }\n"
               "regfile ch { register ctl (ctl_q) @0 register ctl = c2[2] (c%d) @1 +2 "
               "register sh @4 read register in (i) @5 { field g } }");
    const auto* ch = global<brix_regfile_type_tag>("ch", BRIX_REGFILE_TYPE);
    const auto regs = items<brix_register_tag>(ch->registers);
    ASSERT_EQ(regs.size(), 4u);
    const auto* ctl = reg("ctl");
    EXPECT_STREQ(regs[0]->name, "ctl");
    EXPECT_NE(regs[0]->type, ctl);
    EXPECT_NE(regs[0]->type->fields, ctl->fields);
    EXPECT_EQ(regs[0]->type->cvr_used, ctl->cvr_used);
    EXPECT_NE(regs[1]->type, regs[0]->type);
    EXPECT_STREQ(regs[1]->name, "c2");
    EXPECT_EQ(regs[1]->array_size, 2);
    EXPECT_STREQ(regs[1]->increment, "2");
    EXPECT_STREQ(regs[1]->hdl_path->path, "c%d");
    // Outside a block there is no map of shared copies: a shared type is copied too.
    EXPECT_NE(regs[2]->type, reg("sh"));
    EXPECT_STREQ(regs[2]->rw_flag, "read");
    EXPECT_STREQ(regs[3]->type->name, "in");
    EXPECT_STREQ(regs[3]->type->scope_prefix, "ch");
    EXPECT_EQ(regs[3]->array_size, -1);
}

TEST(ParserModel, HashLinesOnlyGiveAnEmptyModel) {
    parse_pure("BRIX_HASHLINE 1 a.brix\nBRIX_HASHLINE 2 a.brix\n");
    EXPECT_EQ(all_block_types, nullptr);
    EXPECT_EQ(lookup_global_symbol("a"), nullptr);
    EXPECT_EQ(brix_src_file_linenum, 2u);
}

TEST(ParserModel, LongDescriptionsParseInLinearTime) {
    // Many definitions in one scope, many fields in one register, and a deep hdl path
    // that fills most of the parser's stack.
    std::string text;
    for (int i = 0; i < 20000; ++i) {
        text += "register r" + std::to_string(i) + " { field f }\n";
    }
    text += "register wide {";
    for (int i = 0; i < 20000; ++i) {
        text += " field f" + std::to_string(i) + " { bits 1 }";
    }
    text += " }\nregister deep { field f (a";
    for (int i = 0; i < 3000; ++i) {
        text += ".b";
    }
    text += ") }\n";
    parse_pure(text.c_str());
    EXPECT_EQ(reg("wide")->bytes, 2500);
    EXPECT_EQ(std::string(items(reg("deep")->fields)[0]->hdl_path->path).size(), 1 + 3000 * 2u);
}

TEST(ParserModel, TooDeepAPathOverflowsTheParserStack) {
    std::string text = "register deep { field f (a";
    for (int i = 0; i < 6000; ++i) {
        text += ".b";
    }
    text += ") }\n";
    const child_result r = parse_in_child(text);
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err, "\nparser stack overflow (BRIX File:  Line: 0)\n");
}

std::vector<std::string> constraint_names(const brix_constraint_tag* c) {
    std::vector<std::string> names;
    for (; c != nullptr; c = c->next) {
        names.push_back(c->name);
    }
    return names;
}

TEST(ParserModel, InterleavedConstraintListsKeepSourceOrder) {
    // The register's list grows between the lists of its fields, and a second register
    // starts while the first one's list is long.
    parse_pure("register r { constraint a { } field f { constraint f1 { } constraint f2 { } } "
               "constraint b { } field g { constraint g1 { } } constraint c { } }\n"
               "register q { constraint q1 { } field h { constraint h1 { } } constraint q2 { } }\n"
               "block bb { domain d1 { bytes 4 constraint x1 { } "
               "register i @0 { constraint i1 { } field k } constraint x2 { } } "
               "domain d2 { bytes 4 constraint y1 { } register j @0 { field k } "
               "constraint y2 { } } }");
    const auto* r = global<brix_register_type_tag>("r", BRIX_REGISTER_TYPE);
    EXPECT_EQ(constraint_names(r->constraints), (std::vector<std::string>{"a", "b", "c"}));
    const auto* f = static_cast<brix_field_tag*>(r->fields->data);
    const auto* g = static_cast<brix_field_tag*>(r->fields->next->data);
    EXPECT_EQ(constraint_names(f->type->constraints), (std::vector<std::string>{"f1", "f2"}));
    EXPECT_EQ(constraint_names(g->type->constraints), (std::vector<std::string>{"g1"}));
    const auto* q = global<brix_register_type_tag>("q", BRIX_REGISTER_TYPE);
    EXPECT_EQ(constraint_names(q->constraints), (std::vector<std::string>{"q1", "q2"}));
    const auto* bb = global<brix_block_type_tag>("bb", BRIX_BLOCK_TYPE);
    const auto* d1 = static_cast<brix_block_domain_tag*>(bb->domains->data);
    const auto* d2 = static_cast<brix_block_domain_tag*>(bb->domains->next->data);
    EXPECT_EQ(constraint_names(d1->constraints), (std::vector<std::string>{"x1", "x2"}));
    EXPECT_EQ(constraint_names(d2->constraints), (std::vector<std::string>{"y1", "y2"}));
    const auto* i = static_cast<brix_register_tag*>(d1->components->data);
    EXPECT_EQ(constraint_names(i->type->constraints), (std::vector<std::string>{"i1"}));
}

TEST(Scopes, HashOfVeryLongNamesWrapsLikeA32BitWord) {
    // 300000 times 122 squared passes 2^32; the sum keeps its low 8 bits (128), 128 % 109.
    const child_result hashes = run_in_child([] {
        std::printf("%u %u", brix_symbol_hash(std::string(300000, 'z').c_str()),
                    brix_symbol_hash(std::string(200000, 'z').c_str()));
    });
    EXPECT_EQ(hashes.out, "19 0");
    EXPECT_EQ(hashes.err, "");
    const std::string name(300000, 'z');
    const child_result r = parse_in_child("field " + name + " { bits 2 }");
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.err, "");
}

} // namespace
