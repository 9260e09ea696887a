// The errors and warnings of blocks, systems, their domains and the instances in them.
#include "parser_test_support.hpp"

#include <string>

using namespace brix_test;

namespace {

// Definitions that the cases instantiate: fields with paths, so that the backdoor cases
// warn about nothing else.
const std::string defs = "register r { field f (x) } register r2 { field f (x) } "
                         "register sh { shared field f (x) } memory m { size 4 bits 8 } "
                         "memory sm { shared (top.mem) size 4 bits 8 } regfile rf { register r } "
                         "virtual register w { field a } ";
const std::string two_domains =
    defs + "block b2 { domain h { bytes 4 register r } domain g { bytes 4 register r2 } } ";
const std::string sys_defs = two_domains + "block b { bytes 4 register r } ";

void expect_error_after(const std::string& prefix,
                        std::initializer_list<std::pair<std::string, std::string>> cases) {
    for (const auto& [text, message] : cases) {
        const std::string description = prefix + text;
        expect_errors({{description.c_str(), message.c_str()}});
    }
}

TEST(BlockErrors, DomainsAndBlockProperties) {
    const std::string bytes_message =
        "All block domains must have 'bytes' specified in them. And 'bytes' must be a positive "
        "integer. This block domain doesn't satisfy this criterion.";
    expect_error_after(
        defs,
        {
            {"block r { bytes 4 register r }",
             "Error: Symbol 'r' already exists in the global scope."},
            {"block b { doc { x } cover +a }",
             "Error: Block 'b' - A block must have at least one domain specified. Either "
             "explicitly "
             "or by default. This block doesn't satisfy this requirement."},
            {"block b { domain d { bytes 4 register r } }",
             "Error: Block Domain 'd' - Single domain block must not explicitly use 'domain' spec "
             "to "
             "define the domain."},
            {"block b { domain d { bytes 4 register r } bytes 4 }",
             "Error: Block 'b' - You have already defined a domain in this block. So, all block "
             "properties (after that in this block) must be inside a domain spec."},
            {"block b { bytes 4 register r @0 domain d { bytes 4 register r2 @0 } }",
             "Error: Block 'b' - By using one of the block properties in it, you have already "
             "specified this block to have default/single domain. So, you cannot have more domain "
             "definitions here. \n\nPlease check BRIX Language Specification for more details."},
            // `attributes` stands at block level as a block property: it opens the default domain.
            {"block b { attributes { a 1 } domain d1 { bytes 4 register r } }",
             "Error: Block 'b' - By using one of the block properties in it, you have already "
             "specified this block to have default/single domain. So, you cannot have more domain "
             "definitions here. \n\nPlease check BRIX Language Specification for more details."},
            {"block b { domain d { bytes 4 register r } domain d { bytes 4 register r2 } }",
             "Error: Block 'b' - Multiple definition of the symbol 'd' in same scope."},
            {"block b { domain d { bytes 4 register r } domain r { bytes 4 register r2 } }",
             "Error: Block 'b' - Multiple definition of the symbol 'r' in same scope."},
            {"block b { register r }", "Error: Block 'b' - " + bytes_message},
            {"block b { bytes 0 register r }", "Error: Block 'b' - " + bytes_message},
            {"block b { domain d1 { register r } domain d2 { bytes 4 register r2 } }",
             "Error: Block 'b' - Domain 'd1' - " + bytes_message},
            {"block b { bytes 4 }",
             "Error: Block 'b' - A block cannot be empty. It must have at least one component "
             "defined/instantiated in it."},
            {"block b { domain d1 { bytes 4 } domain d2 { bytes 4 register r2 } }",
             "Error: Block 'b' - Domain 'd1 - A block domain cannot be empty. It must have at "
             "least "
             "one component defined/instantiated in it."},
            {"block b { domain d1 { } }", "Error: Empty Block Domain found."},
            {"block b { bytes 4 bytes 4 }",
             "Error: Block 'b' - Multiple definition of 'bytes' found."},
            {"block b { endian middle }", "Error: Block 'b' - Invalid 'endian' specified."},
            {"block b { domain d { endian middle } }",
             "Error: Block 'b' - Domain 'd' - Invalid 'endian' specified."},
            {"block b { attributes { a 1 } attributes { b 2 } }",
             "Error: Block 'b' - Multiple definition of 'attributes' found."},
            {"block b { cover +a bytes 4 register r doc { x } cover -b }",
             "Multiple 'cover' statements are not allowed in the same scope/context."},
            {"block b { domain d { cover +a cover -a } }",
             "Multiple 'cover' statements are not allowed in the same scope/context."},
        });
}

TEST(BlockErrors, RegisterInstances) {
    expect_error_after(
        defs,
        {
            {"block b { bytes 4 register r[1] }",
             "Error: An array with a subscript less than or equal to one doesn't make sense. In "
             "this "
             "case, '1' has been used as the array subscript."},
            {"block b { bytes 4 register zz }",
             "Error: Undefined Register 'zz' - Trying to instantiate it."},
            {"block b { bytes 4 register r register zz = r }",
             "Error: Undefined Register 'zz' - Trying to instantiate it."},
            {"block b { bytes 4 register r register r }",
             "Error: Multiple definition of symbol 'r' in same scope."},
            {"block b { bytes 4 register r register r2 = r }",
             "Error: Multiple definition of symbol 'r' in same scope."},
            {"block b { bytes 4 register r register r { field g } }",
             "Error: Symbol 'r' already defined in the current scope."},
            {"block b { bytes 4 register r = r0 (a) @0 read }",
             "Error: Register 'r0' - Unsharable register - Trying to use read/write shared access "
             "flag while instantiating it."},
            {"block b { bytes 4 register sh (p) }",
             "Error: Register 'sh' - hdl_path specified for shared register instantiation. For "
             "shared "
             "registers, 'hdl_path' is always picked from the shared register definition."},
            {"block b { bytes 4 register l { left_to_right field a @1 } }",
             "Error: First field (a) of a left_to_right register (l) cannot have bit-offset "
             "specified."},
            {"block b { bytes 4 register q { bytes 1 } }",
             "Error: Register q - A register must have at least one field."},
            {"block b { bytes 4 register q { field a { access ro constraint c { } } } }",
             "Error: Register q (Field a) - A read-only field cannot have constraint."},
            {"block b { bytes 4 register q { shared field a } }",
             "Error: Register 'q' - Inline registers cannot be shared."},
            {"block b { bytes 4 register q { bytes 1 field a { bits 9 } } }",
             "Error: Register 'q' - Summation of all its field sizes (considering offsets, if "
             "any)is "
             "more than the 'bytes' specified for this register."},
        });
    option_guard guard;
    brix_gen_backdoor = 1;
    brix_quiet_mode = 1; // the definitions above warn of their own missing paths
    expect_error_after(
        defs, {
                  {"block b { bytes 4 register r[2] (p%d, q) }",
                   "Error: Register 'r' - '%d' is mandatory in hdl_path of array constructs."},
                  {"block b { bytes 4 register r (p%d) }",
                   "Error: Register 'r' - Non-array registers cannot have '%d' in their hdl_path."},
                  {"block b { bytes 4 register r = r0 (p, q) }",
                   "Error: register (r0) having hdl_path specified in its field (f) cannot have "
                   "concatenation expresiion in its own hdl_path."},
              });
}

TEST(BlockErrors, VirtualRegisterInstances) {
    expect_error_after(
        defs,
        {
            {"block b { bytes 4 virtual register l { left_to_right field a @1 } }",
             "Error: First field (a) of a left_to_right vregister (l) cannot have bit-offset "
             "specified."},
            {"block b { bytes 4 virtual register v { bytes 1 } }",
             "Error: Virtual Register 'v' - No fields in it."},
            {"block b { bytes 4 virtual register v { } }", "Error: Empty Virtual Register found."},
            {"block b { bytes 4 virtual register v { bytes 1 field a { bits 9 } } }",
             "Error: Virtual Register 'v' - Summation of all its field sizes (considering offsets, "
             "if "
             "any)is more than the 'bytes' specified for this vregister."},
            {"block b { bytes 4 virtual register zz = z0 }",
             "Error: Undefined Virtual Register 'zz' - Trying to instantiate it."},
            {"block b { bytes 4 register r virtual register w = r }",
             "Error: Multiple definition of symbol 'r' in same scope."},
            {"block b { bytes 4 memory m virtual register w = w0 [4] m @none }",
             "Error: For Virtual Registers, @none is not allowed as offset."},
            {"block b { bytes 4 memory m virtual register w = w0 m @0 }",
             "Error: For Static Virtual Registers, it is mandatory to have all of 'ArraySize', "
             "'MemoryName' and 'Offset' specfied."},
            {"block b { bytes 4 memory m virtual register w = w0 [4] m }",
             "Error: For Static Virtual Registers, it is mandatory to have all of 'ArraySize', "
             "'MemoryName' and 'Offset' specfied."},
            // The memory must stand before the virtual register that it holds.
            {"block b { bytes 4 virtual register w = w0 [4] m @0 memory m }",
             "Error: Undefined memory 'm' used in Static Virtual Register instantiation."},
        });
}

TEST(BlockErrors, RegfileAndMemoryInstances) {
    expect_error_after(
        defs,
        {
            {"block b { bytes 4 regfile zz }",
             "Error: Regfile 'zz' - Trying to instantiate an undefined regfile."},
            {"block b { bytes 4 regfile rf regfile rf }",
             "Error: Multiple definition of symbol 'rf' in same scope."},
            {"block b { bytes 4 regfile rf regfile rf { register r } }",
             "Error: Symbol 'rf' already defined in the current scope."},
            {"block b { bytes 4 regfile q { doc { x } } }",
             "Error: Regfile 'q' - No registers in it."},
            {"block b { bytes 4 memory zz }",
             "Error: Memory 'zz' - Trying to instantiate an undefined memory."},
            {"block b { bytes 4 memory m memory zz = m }",
             "Error: Undefined Memory 'zz' - Trying to instantiate it."},
            {"block b { bytes 4 memory m memory m }",
             "Error: Multiple definition of symbol 'm' in same scope."},
            {"block b { bytes 4 memory m memory m { size 1 bits 1 } }",
             "Error: Symbol 'm' already defined in the current scope."},
            // The concatenation test on a memory runs without the backdoor flag as well.
            {"block b { bytes 4 memory m (p, q) }", "Error: Memory 'm' - hdl_path specification in "
                                                    "concatenation format is not support for "
                                                    "memories."},
            {"block b { bytes 4 memory q { shared size 4 bits 8 } }",
             "Error: Memory 'q' - 'shared' property specified for inline memory."},
            {"block b { bytes 4 memory q { size 4 } }",
             "Error: Memory 'q' - Mandatory property 'bits' not specified or invalid value "
             "specified."},
            {"block b { bytes 4 memory m write }",
             "Error: Memory 'm' - Unsharable memory - Trying to use read/write shared access flag "
             "while instantiating it."},
            {"block b { bytes 4 memory sm (p) }",
             "Error: Memory 'sm' - hdl_path specified for shared memory instantiation. For shared "
             "memories, 'hdl_path' is always picked from the shared memory definition."},
        });
    option_guard guard;
    brix_gen_backdoor = 1;
    brix_quiet_mode = 1; // the definitions above warn of their own missing paths
    expect_error_after(
        defs, {
                  {"block b { bytes 4 regfile rf (p, q) }",
                   "Error: Regfile 'rf' - Regfile hdl_path cannot have concatenation."},
                  {"block b { bytes 4 regfile rf = f0 (p%d) }",
                   "Error: Regfile 'f0' - hdl_path for non-array construct cannot have '%d'."},
                  {"block b { bytes 4 regfile rf[2] (p) }",
                   "Error: Regfile Array 'rf' - Invalid hdl_path specified. hdl_path of an array "
                   "must have "
                   "'%d' in it.\n\nPlease check BRIX Language Reference Manual."},
                  {"block b { bytes 4 memory m (p%d) }",
                   "Error: Memory 'm' - '%d is not supported in memory hdl_path."},
              });
}

TEST(BlockErrors, CoverRightBehindAnInstanceIsASyntaxError) {
    const std::string expected =
        "\nsyntax error, unexpected COVER_SPEC, expecting '=' (BRIX File: t.brix Line: 7)\n";
    EXPECT_EQ(parse_at_line_7(defs + "block b { bytes 4 register r @0 cover +a }").err, expected);
    EXPECT_EQ(parse_at_line_7(defs + "block b { bytes 4 memory m cover +a }").err, expected);
    // Before the instance, or behind an inline body, it is the domain's own.
    EXPECT_EQ(parse_at_line_7(defs + "block b { bytes 4 cover +a register r @0 }").status, 0);
    EXPECT_EQ(parse_at_line_7(defs + "block b { bytes 4 register q { field a } cover +a }").status,
              0);
}

TEST(SystemErrors, DomainsAndSystemProperties) {
    expect_error_after(
        sys_defs,
        {
            {"system b { bytes 4 block b2.h }",
             "Error: Symbol 'b' already exists in the global scope."},
            {"system s { doc { x } }", "Error: System 's' - Empty System."},
            {"system s { domain d { bytes 4 block b } }",
             "Error: System Domain 'd' - Single domain system must not explicitly use 'domain' "
             "spec "
             "to define the domain."},
            {"system s { domain d { bytes 4 block b } endian big }",
             "Error: System 's' - You have already defined a domain in this system. So, you cannot "
             "define this system preperty here. You must define it inside a domain spec."},
            {"system s { bytes 4 block b domain d { bytes 4 block b2.h } }",
             "Error: System 's' - By using one of the system properties in it, you have already "
             "specified this system to have default/single domain. So, you cannot have more domain "
             "definitions here.\n\nPlease check BRIX Language Specification for more details."},
            {"system s { domain d { bytes 4 block b } domain d { bytes 4 block b2.h } }",
             "Error: Multiple definition of the symbol 'd' in same scope."},
            {"system s { block b }",
             "Error: System 's' - Mandatory property 'bytes' not specified."},
            {"system s { bytes 0 block b }", "Error: System 's' - Invalid 'bytes' specified."},
            {"system s { domain d1 { block b } domain d2 { bytes 4 block b2.h } }",
             "Error: System 's' - Domain 'd1' - Mandatory property 'bytes' not specified."},
            {"system s { domain d1 { bytes 0 block b } domain d2 { bytes 4 block b2.h } }",
             "Error: System 's' - Domain 'd1' - Invalid 'bytes' specified."},
            {"system s { bytes 4 }", "Error: System 's' - Empty System."},
            {"system s { domain d1 { bytes 4 } domain d2 { bytes 4 block b2.h } }",
             "Error: System 's' - Domain 'd1' - Empty System Domain."},
            {"system s { domain d { } }", "Error: Empty System Domain found."},
            {"system s { bytes 4 bytes 4 }",
             "Error: System 's' - Multiple definition of 'bytes' found."},
            {"system s { endian middle }", "Error: System 's' - Invalid 'endian' specified."},
            {"system s { domain d { endian middle } }",
             "Error: System 's' - Domain 'd' - Invalid 'endian' specified."},
            {"system s { attributes { a 1 } attributes { b 2 } }",
             "Error: System 's' - Multiple definition of 'attributes' found."},
            {"system s { cover +a cover +b }",
             "Multiple 'cover' statements are not allowed in the same scope/context."},
        });
}

TEST(SystemErrors, BlockAndSystemInstances) {
    const std::string sub =
        sys_defs +
        "system sub { bytes 4 block b } "
        "system ss { domain p { bytes 4 block b = x } domain q { bytes 4 block b = y } } ";
    expect_error_after(
        sub,
        {
            {"system s { bytes 4 block zz.h }",
             "Error: Trying to instantiate undefined block type 'zz'."},
            {"system s { bytes 4 block b2.nope }",
             "Error: Block 'b2' - Non-existent block domain 'nope' specified."},
            // A block of the default domain alone has no domain to name.
            {"system s { bytes 4 block b.h }",
             "Error: Block 'b' - Non-existent block domain 'h' specified."},
            {"system s { bytes 4 system zz.p }",
             "Error: Trying to instantiate undefined system type 'zz'."},
            {"system s { bytes 4 system ss.nope }",
             "Error: System 'ss' - Non-existent system domain 'nope' specified."},
            {"system s { bytes 4 system sub.p }",
             "Error: System 'sub' - Non-existent system domain 'p' specified."},
            {"system s { bytes 4 block zz }",
             "Error: Trying to instantiate from undefined block type 'zz'."},
            {"system s { bytes 4 block zz = z0 }",
             "Error: Trying to instantiate from undefined block type 'zz'."},
            {"system s { bytes 4 system zz }",
             "Error: Trying to instantiate from undefined system type 'zz'."},
            {"system s { bytes 4 block b block b }",
             "Error: Multiple definition of symbol 'b' in same scope."},
            {"system s { bytes 4 block b block b = b }",
             "Error: Multiple definition of symbol 'b' in same scope."},
            {"system s { bytes 4 block b = x block b2.h = x }",
             "Error: Multiple definition of symbol 'x' in same scope."},
            {"system s { domain d1 { bytes 4 block b2.h = x[2] } domain d2 { bytes 4 block b2.g = "
             "x "
             "} }",
             "Error: Block 'x' - Array size specification of multiple domain instantiations of a "
             "block instance must be same."},
            {"system s { domain d1 { bytes 4 system ss.p = x } domain d2 { bytes 4 system ss.q = "
             "x[2] } }",
             "Error: System 'x' - Array size specification of multiple domain instantiations of a "
             "system instance must be same."},
            {"system s { bytes 4 block b2 }", "Error: Block 'b2' - For blocks having multiple "
                                              "domains, you must explicitly specify the "
                                              "domain you want to instantiate."},
            {"system s { bytes 4 block b2 = x }", "Error: Block 'b2' - For blocks having multiple "
                                                  "domains, you must explicitly specify the "
                                                  "domain you want to instantiate."},
            {"system s { bytes 4 system ss }", "Error: System 'ss' - For systems having multiple "
                                               "domains, you must explicitly specify "
                                               "the domain you want to instantiate."},
            {"system s { bytes 4 block q { register r } }",
             "Error: Block 'q' - Mandatory property 'bytes' not specified."},
            {"system s { bytes 4 block q { bytes 0 register r } }",
             "Error: Block 'q' - Invalid 'bytes' specified."},
            {"system s { bytes 4 block q { bytes 4 } }", "Error: Block 'q' - Empty Block."},
            // In a named system domain the message names the inline block's own domain, which
            // has no name.
            {"system s { domain d1 { bytes 4 block q { bytes 4 } } domain d2 { bytes 4 block b } }",
             "Error: Block 'q' - Domain '' - Empty Block Domain."},
            {"system s { bytes 4 block q { } }", "Error: Empty Block Domain found."},
            {"system s { bytes 4 system q { block b } }",
             "Error: System 'q' - Mandatory property 'bytes' not specified."},
            {"system s { bytes 4 system q { bytes 4 } }", "Error: System 'q' - Empty System."},
        });
}

TEST(SystemErrors, PathsUnderTheBackdoor) {
    option_guard guard;
    brix_gen_backdoor = 1;
    brix_quiet_mode = 1; // the definitions warn of their own missing paths
    const std::string sub =
        sys_defs +
        "system ss { domain p { bytes 4 block b = x } domain q { bytes 4 block b = y } } ";
    expect_error_after(
        sub,
        {
            {"system s { bytes 4 block b (p, q) }",
             "Error: Block 'b' - Block hdl_path cannot have concatenation."},
            {"system s { bytes 4 block b2.h = x (p%d) }",
             "Error: Block 'x' - hdl_path for non-array construct cannot have '%d'."},
            {"system s { bytes 4 block b2.h = x[2] (p) }",
             "Error: Block Array 'x' - Invalid hdl_path. hdl_path of an array must have '%d' in "
             "it.\n\nPlease check BRIX Language Reference Manual."},
            {"system s { bytes 4 block b[2] (p) }",
             "Error: Block Array 'b' - Invalid hdl_path specified. hdl_path of an array must have "
             "'%d' in it.\n\nPlease check BRIX Language Reference Manual."},
            {"system s { bytes 4 system ss.p = x (p, q) }",
             "Error: System 'x' - System hdl_path cannot have concatenation."},
            {"system s { bytes 4 system ss.p (p%d) }",
             "Error: System 'ss' - hdl_path for non-array construct cannot have '%d'."},
            {"system s { bytes 4 system ss.p[2] (p) }",
             "Error: System Array 'ss' - Invalid hdl_path. hdl_path of an array must have '%d' in "
             "it.\n\nPlease check BRIX Language Reference Manual."},
            {"system s { bytes 4 system q[2] (p) { bytes 4 block b (x) } }",
             "Error: System Array 'q' - Invalid hdl_path specified. hdl_path of an array must have "
             "'%d' in it.\n\nPlease check BRIX Language Reference Manual."},
        });
}

// Warnings: the place, the run goes on, and which of them -q silences.
struct warning_case {
    std::string description;
    std::string warning;
    bool quiet_silences;
};

void expect_warnings(const std::string& prefix, std::initializer_list<warning_case> cases) {
    option_guard guard;
    for (const warning_case& c : cases) {
        brix_quiet_mode = 0;
        const child_result loud = parse_at_line_7(prefix + c.description);
        EXPECT_EQ(loud.status, 0) << c.description;
        EXPECT_EQ(loud.err, at(c.warning, "t.brix", 7)) << c.description;
        brix_quiet_mode = 1;
        const child_result quiet = parse_at_line_7(prefix + c.description);
        EXPECT_EQ(quiet.status, 0) << c.description;
        EXPECT_EQ(quiet.err, c.quiet_silences ? "" : loud.err) << c.description;
    }
}

TEST(BlockWarnings, DomainOffsetsAlwaysWarn) {
    expect_warnings(
        defs,
        {
            {"block b { domain d1 @0x10 { bytes 4 register r } domain d2 { bytes 4 register r2 } }",
             "Warning: Domain 'd1' - Offset specification for a domain is not yet "
             "supported...Ignoring offset 0x10.",
             false},
            {"block b { bytes 4 register r } system s { domain d1 @none { bytes 4 block b = x } "
             "domain d2 { bytes 4 block b = y } }",
             "Warning: Domain 'd1' - Offset specification for a domain is not yet "
             "supported...Ignoring offset none.",
             false},
        });
}

TEST(BlockWarnings, MissingPathsUnderTheBackdoor) {
    option_guard guard;
    brix_gen_backdoor = 1;
    // Every path given here, so that only the instance under test lacks one.
    const std::string with_paths =
        "register r { field f (x) } regfile rf0 { register r (p) } memory m { size 4 bits 8 } "
        "block b { bytes 4 register r (p) } "
        "block b2 { domain h { bytes 4 register r (p) } domain g { bytes 4 register r = r1 (q) } } "
        "system ss { domain p { bytes 4 block b = x (p) } domain q { bytes 4 block b = y (q) } } ";
    expect_warnings(
        with_paths,
        {
            {"block n { bytes 4 register r }", "Warning: hdl_path not specified for register 'r'.",
             true},
            {"block n { bytes 4 regfile rf0 = rf2 }",
             "Warning: Regfile 'rf2' - hdl_path not specified.", true},
            {"block n { bytes 4 regfile rf0[2] }",
             "Warning: Regfile Array 'rf0' - hdl_path not specified.", false},
            {"block n { bytes 4 memory m }", "Warning: Memory 'm' - hdl_path not specified.", true},
            {"system n { bytes 4 block b }", "Warning: Block 'b' - hdl_path not specified.", true},
            {"system n { bytes 4 block b[2] }",
             "Warning: Block Array 'b' - hdl_path not specified.", false},
            {"system n { bytes 4 block b2.h[2] }",
             "Warning: Block Array 'b2' - Mandatory hdl_path not specified.", false},
            {"system n { bytes 4 system ss.p = x }",
             "Warning: System 'x' - hdl_path not specified.", true},
            {"system n { bytes 4 system ss.p = x[2] }",
             "Warning: System Array 'x' - Mandatory hdl_path not specified.", false},
            {"system n { bytes 4 system x[2] { bytes 4 block b (p) } }",
             "Warning: System Array 'x' - hdl_path not specified.", false},
        });
}

} // namespace
