// The connector between the backdoor classes and the VHDL parts of a design. A class cannot
// reach into VHDL by a hierarchical reference, so it reaches a plain Verilog register of a
// generated connector module instead, and a `$hdl_xmr` line of that module ties the register
// to the VHDL object. Both target languages share the connector.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// An array level above the object indexed at run time: a class keeps a member of this name.
struct brix_bkdr_dimension {
    const char* name;
    int32_t array_size;
};

// The connector's register declarations, one a line, and its `$hdl_xmr` lines. They are
// filled while the backdoor classes are written and end up in the connector module.
extern std::string brix_hdlxmr_reg_defns;
extern std::string brix_hdlxmr_initial_block;

// A path with its first "%d" replaced by the index; an index below 0 leaves it as it is.
std::string brix_path_with_index(const char* path, long long index);

// Appends the path to `out` with "." as "__" and an index "[...]" dropped, or kept as
// "X...X" with `keep_index`. True when the path held a "[".
bool emit_vhdl_path(const char* path, std::string& out, bool keep_index);

// Appends the name of a connector register to `out`: "__" + prefix, "__" + path, then "__op"
// for a write or "__ip" for a read. When a "[" was seen, which it returns, the run-time
// indices `dims` follow, as a class addresses the register; the declaration passes none.
bool create_tmpregname(std::string& out, const char* prefix, const char* path, long long index,
                       bool is_write, const std::vector<brix_bkdr_dimension>& dims,
                       bool keep_index);

// Declares the connector register for prefix.path, `width` bits wide, over `memory_size`
// words when that is not 0, and adds its `$hdl_xmr` lines, one for each element of the
// arrays `dims` that a bracketed path spans.
void emit_hdl_xmr_connection_code(const char* prefix, const char* path, uint32_t width,
                                  long long index, uint32_t memory_size, bool is_write,
                                  bool keep_index, const std::vector<brix_bkdr_dimension>& dims);

// Writes the connector module of the objects of `top` reached in VHDL, if there are any.
void emit_vhdl_bkdr_connection_module(const char* top);
