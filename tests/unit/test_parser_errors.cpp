// Every error and warning of the field, register, memory, regfile and coverage rules, with
// its exact text and the place in the user's file.
#include "parser_test_support.hpp"

using namespace brix_test;

namespace {

TEST(ParserErrors, HdlPathsAndOffsets) {
    expect_errors({
        {"register r { field a (x[%q]) }", "Error: Unsupported hdl_path format."},
        {"register r { field a (a%d.b%d) }",
         "Error: Only one '%d' is currently supported in a hdl_path."},
        {"register r { field a (a:b) }",
         "Error: ':' cannot be used for specifying Verilog hdl_path.\n"},
        {"register r { field a vhdl_path = (a, b) }",
         "Error: Concatentation of 'vhdl_path' is not supported."},
        {"register r { field a @foo }", "Error: Unsupported offset 'foo'."},
    });
    option_guard guard;
    brix_gen_backdoor = 1;
    expect_errors({{"register r { field a vhdl_path = (a) }",
                    "Error: For generating VHDL Backdoor code, you must specify the DUT toppath "
                    "using option '-p'...\n"}});
}

TEST(ParserErrors, FieldDefinitionsAndProperties) {
    expect_errors({
        {"field f { enum { a, a } }", "Error: Symbol 'a' already defined in the current scope."},
        {"field f field f", "Error: Multiple definition of symbol 'f' in same scope."},
        {"field unused", "Error: You cannot have global 'unused' or 'reserved' field types."},
        {"field f { access xx }", "Error: Field 'f' - Invalid field access 'xx' specified."},
        {"register r { field a { access bad } }",
         "Error: Field 'a' - Invalid field access 'bad' specified."},
        {"field f { cover +f cover -b }",
         "Multiple 'cover' statements are not allowed in the same scope/context."},
        {"field g field f { constraint g { } }",
         "Error: Multiple definition of symbol 'g' in same scope."},
    });
    for (const char* property : {"access", "hard_reset", "soft_reset", "constraint", "doc"}) {
        const std::string body = std::string(property) == "access"       ? "access rw"
                                 : std::string(property) == "constraint" ? "constraint c { }"
                                 : std::string(property) == "doc"        ? "doc { }"
                                                                  : std::string(property) + " 1";
        const std::string text = "register r { field reserved { " + body + " } }";
        const std::string message = std::string("Error: Field property '") + property +
                                    "' cannot be specified for 'unused'/'reserved' fields.";
        expect_errors({{text.c_str(), message.c_str()}});
    }
}

TEST(ParserErrors, FieldInstances) {
    expect_errors({
        {"virtual register v { field a field g = a }",
         "Error: Multiple definition of symbol 'a' in same scope."},
        {"field g register r { field g = unused }",
         "Error: 'reserved'/'unused' fields cannot be instantiated from globally defined field "
         "types"},
        {"register x { field f } register r { field x }",
         "Error: Global definition/symbol 'x' is not a Field Type."},
        {"register r { field a = b }", "Error: Undefined Field 'a' - Trying to instantiate it."},
        {"register r { field a field a }",
         "Error: Symbol 'a' already defined in the current scope."},
        {"field g register r { field g field g }",
         "Error: Multiple definition of symbol 'g' in same scope."},
    });
}

TEST(ParserErrors, Registers) {
    expect_errors({
        {"field r register r { field a }",
         "Error: Multiple definition of symbol 'r' in same scope."},
        {"register r { }", "Error: Empty Register found."},
        {"register r { bytes 1 bytes 2 field a }",
         "Error: Register 'r' - Multiple definition of 'bytes' found."},
        {"register r { noise wo field a }", "Error: Register 'r' - Invalid noise 'wo' specified."},
        {"register r { attributes { a 1 } attributes { b 2 } field a }",
         "Error: Register 'r' - Multiple definition of 'attributes' found."},
        {"register r { cover +a cover +b field a }",
         "Multiple 'cover' statements are not allowed in the same scope/context."},
        {"register r { bytes 1 }", "Error: Register r - A register must have at least one field."},
        {"register r { field a { access ro constraint c { } } }",
         "Error: Register r (Field a) - A read-only field cannot have constraint."},
        {"register r { bytes 1 field a { bits 9 } }",
         "Error: Register 'r' - Summation of all field sizes (considering offsets, if any) has "
         "been found to be more than the specified register 'bytes'."},
        {"register r { left_to_right field a @1 { bits 1 } }",
         "Error: First field (a) of a left_to_right register (r) cannot have bit-offset "
         "specified."},
    });
    EXPECT_EQ(parse_in_child("register r { left_to_right field a field b @1 }").status, 0);
    EXPECT_EQ(parse_in_child("field g { access ro constraint c { } } register r { field g }").err,
              at("Error: Register r (Field g) - A read-only field cannot have constraint.", "", 0));
}

TEST(ParserErrors, FieldLanguagesMustNotMixUnderTheBackdoor) {
    option_guard guard;
    brix_gen_backdoor = 1;
    char top[] = "top";
    brix_backdoor_top_path = top;
    expect_errors({{"register r { field a (x) field b vhdl_path = (y) }",
                    "Error: Register 'r' - All fields of a register must be implemented in either "
                    "Verilog or VHDL, but not a mix of both."}});
    brix_backdoor_top_path = nullptr;
}

TEST(ParserErrors, VirtualRegisters) {
    expect_errors({
        {"register v { field a } virtual register v { field a }",
         "Error: Multiple definition of symbol 'v' in same scope."},
        {"virtual register v { }", "Error: Empty Virtual Register found."},
        {"virtual register v { bytes 1 bytes 1 field a }",
         "Error: Virtual Register 'v' - Multiple definition of 'bytes' found."},
        {"virtual register v { bytes 1 }", "Error: Virtual Register 'v' - No fields in it."},
        {"virtual register v { bytes 1 field a { bits 9 } }",
         "Error: Virtual Register 'v' - Summation of all field sizes (considering offsets, if "
         "any) has been found to be more than the specified vregister 'bytes'."},
        {"virtual register v { left_to_right field a @0 }",
         "Error: First field (a) of a left_to_right vregister (v) cannot have bit-offset "
         "specified."},
    });
    // Read-only fields with constraints are a register's concern only.
    EXPECT_EQ(
        parse_in_child("virtual register v { field a { access ro constraint c { } } }").status, 0);
}

TEST(ParserErrors, Memories) {
    expect_errors({
        {"register m { field a } memory m { size 1 bits 1 }",
         "Error: Multiple definition of symbol 'm' in same scope."},
        {"memory m { }", "Error: Empty Memory found."},
        {"memory m { size 4 }",
         "Error: Memory 'm' - Mandatory property 'bits' not specified or invalid value "
         "specified."},
        {"memory m { size 0 bits 8 }",
         "Error: Memory 'm' - Mandatory property 'size' not specified or invalid value "
         "specified."},
        {"memory m { size 1 size 2 bits 8 }",
         "Error: Memory 'm' - Multiple definition of 'size' found."},
        {"memory m { bits 1 bits 2 }", "Error: Memory 'm' - Multiple definition of 'bits' found."},
        {"memory m { size 2q bits 8 }",
         "Error: Memory 'm' - Invalid memory size unit 'q' specified."},
        {"memory m { access wo }", "Error: Memory 'm' - Invalid 'access' specified."},
        {"memory m { noise yes }", "Error: Memory 'm' - Invalid 'noise' specified."},
        {"memory m { initial zero }", "Error: Memory 'm' - Invalid 'initial' specified."},
        {"memory m { shared (a, b) }",
         "Error: hdl_path specification in concatenation format is not support for memories."},
        {"memory m { attributes { a 1 } attributes { a 1 } }",
         "Error: Memory 'm' - Multiple definition of 'attributes' found."},
        {"memory m { cover +a cover +a }",
         "Multiple 'cover' statements are not allowed in the same scope/context."},
    });
    // A zero `bits` is no value: a later one is no second definition.
    EXPECT_EQ(parse_in_child("memory m { bits 0 bits 8 size 1 }").status, 0);
}

TEST(ParserErrors, RegfilesAndRegisterInstances) {
    expect_errors({
        {"field f regfile f { register a }",
         "Error: Multiple definition of symbol 'f' in same scope."},
        {"regfile f { }", "Error: Empty Regfile found."},
        {"regfile f { doc { text } }", "Error: Regfile 'f' - Doesn't have any register in it."},
        {"regfile f { register a }",
         "Error: In Regfile 'f' - Trying to instantiate undefined register 'a'."},
        {"register a { field x } regfile f { register a register a }",
         "Error: Multiple definition of symbol 'a' in same scope."},
        {"register a { field x } regfile f { register a register a { field y } }",
         "Error: Symbol 'a' already defined in the current scope."},
        {"register a { field x } regfile f { register a read }",
         "Error: Register 'a' - Trying to use read/write shared access flag while instantiating "
         "this register even though it is unshareable."},
        {"register s { shared field x } regfile f { register s (p) }",
         "Error: Register 's' - hdl_path specified for shared register instantiation. For shared "
         "registers, 'hdl_path' is always picked from the shared register definition."},
        {"regfile f { register l { left_to_right field a @1 } }",
         "Error: First field (a) of a left_to_right register (l) cannot have bit-offset "
         "specified."},
        {"regfile f { register a[1] { field x } }",
         "Error: An array with a subscript less than or equal to one doesn't make sense. In this "
         "case, '1' has been used as the array subscript."},
        {"regfile f { register a { shared field x } }",
         "Error: Register 'a' - Inline registers cannot be shared."},
        {"regfile f { register a { bytes 1 field x { bits 9 } } }",
         "Error: Register 'a' - Summation of all its field sizes (considering offsets, if any)is "
         "more than the 'bytes' specified for this register."},
        {"register a { field x } regfile f { register a register zz = a }",
         "Error: Undefined Register 'zz' - Trying to instantiate it."},
        {"register a { field x } regfile f { register a register a = a }",
         "Error: Multiple definition of symbol 'a' in same scope."},
    });
    // An unshared register may have its own path.
    EXPECT_EQ(parse_in_child("register a { field x } regfile f { register a (p) }").status, 0);
}

TEST(ParserErrors, RegisterInstancePathsUnderTheBackdoor) {
    option_guard guard;
    brix_gen_backdoor = 1;
    expect_errors({
        {"register a { field x (p) } regfile f { register a (q, r) }",
         "Error: register (a) having hdl_path specified in its field (x) cannot have "
         "concatenation expresiion in its own hdl_path."},
        {"register a { field x (p) } regfile f { register a (q%d) }",
         "Error: Register 'a' - Non-array registers cannot have '%d' in their hdl_path."},
        {"register a { field x (p) } regfile f { register a[2] (q%d, r) }",
         "Error: Register 'a' - '%d' is mandatory in hdl_path of array constructs."},
    });
    EXPECT_EQ(parse_in_child("register a { field x } regfile f { register a[2] (q%d) }").status, 0);
}

TEST(ParserErrors, Coverpoints) {
    option_guard guard;
    target_language = const_cast<char*>("sv");
    expect_errors({
        {"register r { field a field b { coverpoint { bins x = { a } } } }",
         "Error: Un-defined symbol/var/const 'a' used."},
        {"field a field b { coverpoint { bins x = { [a:3] } } }",
         "Error: 'a' - Only 'enum' or integral consts are supported here."},
        {"field f { coverpoint { bins x[2] = default } }",
         "For default bin, usage of '[2]' construct is not supported.\n"},
        {"field f { coverpoint { bins x[] = default } }",
         "For default bin, usage of '[]' construct is not supported.\n"},
        {"field f { coverpoint { bins x[0] = default } }",
         "Field 'f' - Values for 'bins' missing."},
        {"register r { field f { coverpoint { BRIX_HASHLINE 7 t.brix\n } } }",
         "Error: Field 'f' - No 'bins' specified."},
    });
    target_language = const_cast<char*>("hx");
    expect_errors({{"field f { coverpoint { bins x[2] = { [0:7] } } }",
                    "We don't support '[<n_bins>]' form of coverage bin specification in "
                    "'hx'...\n"}});
    EXPECT_EQ(parse_in_child("field f { coverpoint { bins x[] = { 1 } } }").status, 0);
}

TEST(ParserErrors, Crosses) {
    expect_errors({
        {"register r { field a cross a }",
         "Error: Register 'r' - For a 'cross', at least 2 cross_items must be specified."},
        {"virtual register v { field a cross a }",
         "Error: Register 'v' - For a 'cross', at least 2 cross_items must be specified."},
        {"register r { field a cross a b }",
         "Error: Field/CrossPoint 'b' must be defined before it can be used in a cross "
         "specification."},
    });
}

TEST(ParserErrors, SyntaxErrorsNameTheTokens) {
    expect_errors({
        {"register r { field a { bits x } }",
         "\nsyntax error, unexpected IDENTIFIER, expecting DECIMAL_INT"},
        {"memory m { size 1 bits 8 initial x ++ }",
         "\nsyntax error, unexpected INC_OP, expecting '}'"},
        {"register r { field a (b.) }", "\nsyntax error, unexpected ')', expecting IDENTIFIER"},
        {"field f { enum { a b } }", "\nsyntax error, unexpected IDENTIFIER, expecting ',' or '}'"},
    });
    // The end of the input stands behind the last newline.
    EXPECT_EQ(parse_in_child("BRIX_HASHLINE 7 t.brix\nregister r\n").err,
              "\nsyntax error, unexpected $end, expecting '{' (BRIX File: t.brix Line: 8)\n");
    // With no token at all the input is refused too.
    EXPECT_EQ(parse_in_child("").err, "\nsyntax error, unexpected $end (BRIX File:  Line: 0)\n");
}

TEST(ParserErrors, CoverSpecTextIsCheckedPairByPair) {
    const child_result r = run_in_child([] { get_cvr_spec("+a+q"); });
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.err.rfind("Error: Invalid 'cover' specification...please check. (BRIX File:", 0),
              0u);
    const brix_cvr_spec_tag* spec = get_cvr_spec("+a-a");
    EXPECT_EQ(spec->addr_map, 0u);
    EXPECT_EQ(spec->reg_bits, 3u);
    EXPECT_EQ(get_cvr_spec(nullptr), nullptr);
}

TEST(ParserWarnings, ShownWithThePlaceAndTheRunGoesOn) {
    struct warning_case {
        const char* description;
        std::string err;
    };
    const std::string cover_a =
        at("Warning: Address map coverage specification is not supported at field level.", "t.brix",
           7);
    const warning_case cases[] = {
        {"field f { cover +a }", cover_a},
        {"virtual register v { cover +b-f field a }",
         at("Warning: Functional Coverage of virtual registers is not supported. Ignoring cover "
            "directive '+b-f'...",
            "t.brix", 7)},
        {"memory m { size 1 bits 1 cover +b-f }",
         at("Warning: RegBits Coverage is not supported for memories. Ignoring...", "t.brix", 7) +
             at("Warning: Field Value Coverage is not supported for memories. Ignoring...",
                "t.brix", 7)},
    };
    for (const warning_case& c : cases) {
        const child_result r =
            parse_in_child(std::string("BRIX_HASHLINE 7 t.brix\n") + c.description + "\n");
        EXPECT_EQ(r.status, 0) << c.description;
        EXPECT_EQ(r.err, c.err) << c.description;
    }
    // -q silences none of these.
    option_guard guard;
    brix_quiet_mode = 1;
    EXPECT_EQ(parse_in_child("BRIX_HASHLINE 7 t.brix\nfield f { cover +a }").err, cover_a);
}

TEST(ParserWarnings, MissingPathsUnderTheBackdoorUnlessQuiet) {
    option_guard guard;
    brix_gen_backdoor = 1;
    const char* text = "BRIX_HASHLINE 7 t.brix\nregister a { field x (p) field y }\n"
                       "BRIX_HASHLINE 9 t.brix\nregfile f { register a }";
    const child_result r = parse_in_child(text);
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(r.err, at("Warning: hdl_path not specified for field 'y'.", "t.brix", 7) +
                         at("Warning: hdl_path not specified for register 'a'.", "t.brix", 9));
    brix_quiet_mode = 1;
    EXPECT_EQ(parse_in_child(text).err, "");
}

} // namespace
