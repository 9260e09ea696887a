#include "gen_backdoor/vhdl.hpp"

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "driver/diag.hpp"
#include "driver/options.hpp"

std::string brix_hdlxmr_reg_defns;
std::string brix_hdlxmr_initial_block;

namespace {

const char* null_if_empty(const char* s) {
    return s != nullptr && *s != '\0' ? s : nullptr;
}

// Writes one `$hdl_xmr` line for each element of the arrays that the register spans: the
// first array varies slowest. `level` counts the arrays already fixed.
void emit_brix_hdlxmr_initial_block(const std::vector<brix_bkdr_dimension>& dims, size_t level,
                                    const std::string& xmr_path, const std::string& tmp_name,
                                    bool is_write) {
    if (brix_backdoor_top_path == nullptr) {
        brix_error(
            "Error: 'brixgen' option '-p' is mandatory for VHDL Backdoor code generation.\n");
    }
    if (level < dims.size()) {
        const brix_bkdr_dimension& d = dims[level];
        const std::string index = std::string("[") + d.name + "]";
        const size_t at = xmr_path.find(index);
        if (at == std::string::npos) {
            brix_error("ERROR: Internal - emit_brix_hdlxmr_initial_block(...) - %s - %s - "
                       "In-consistent data structures found.\n",
                       xmr_path, index);
        }
        for (int i = 0; i < d.array_size; ++i) {
            const std::string n = std::to_string(i);
            emit_brix_hdlxmr_initial_block(dims, level + 1,
                                           xmr_path.substr(0, at + 1) + n +
                                               xmr_path.substr(at + index.size() - 1),
                                           tmp_name + "[" + n + "]", is_write);
        }
        return;
    }
    // The first argument is the source: the design drives the register on a read, and the
    // register drives the design on a write.
    const std::string design = std::string(brix_backdoor_top_path) + "." + xmr_path;
    std::string connector;
    if (brix_vhdl_backdoor_top_path != nullptr) {
        connector = std::string(brix_vhdl_backdoor_top_path) + ".";
    }
    connector += tmp_name;
    brix_hdlxmr_initial_block += "\t\t$hdl_xmr(\"";
    brix_hdlxmr_initial_block += is_write ? connector : design;
    brix_hdlxmr_initial_block += "\", \"";
    brix_hdlxmr_initial_block += is_write ? design : connector;
    brix_hdlxmr_initial_block += "\");\n";
}

} // namespace

std::string brix_path_with_index(const char* path, long long index) {
    std::string s = path;
    const size_t at = s.find("%d");
    if (index >= 0 && at != std::string::npos) {
        s.replace(at, 2, std::to_string(index));
    }
    return s;
}

bool emit_vhdl_path(const char* path, std::string& out, bool keep_index) {
    bool bracket = false;
    for (const char* c = path; *c != '\0'; ++c) {
        if (*c == '.') {
            out += "__";
        } else if (*c == '[') {
            bracket = true;
            const char* close = strchr(c, ']');
            const char* end = close != nullptr ? close : c + strlen(c);
            if (keep_index) {
                out += 'X';
                out.append(c + 1, end);
                out += 'X';
            }
            if (close == nullptr) {
                break;
            }
            c = close;
        } else {
            out += *c;
        }
    }
    return bracket;
}

bool create_tmpregname(std::string& out, const char* prefix, const char* path, long long index,
                       bool is_write, const std::vector<brix_bkdr_dimension>& dims,
                       bool keep_index) {
    bool bracket = false;
    if (prefix != nullptr) {
        out += "__";
        bracket = emit_vhdl_path(prefix, out, keep_index);
    }
    if (path != nullptr) {
        out += "__";
        // "[%d]" is an index of the array, which the name drops; any other "%d" names an
        // element of its own.
        const char* d = strstr(path, "%d");
        const bool as_is = d == nullptr || d == path || d[-1] == '[';
        const std::string p = as_is ? std::string(path) : brix_path_with_index(path, index);
        bracket = emit_vhdl_path(p.c_str(), out, keep_index) || bracket;
    }
    out += is_write ? "__op" : "__ip";
    if (bracket) {
        for (const brix_bkdr_dimension& d : dims) {
            out += "[";
            out += d.name;
            out += "]";
        }
    }
    return bracket;
}

void emit_hdl_xmr_connection_code(const char* prefix, const char* path, uint32_t width,
                                  long long index, uint32_t memory_size, bool is_write,
                                  bool keep_index, const std::vector<brix_bkdr_dimension>& dims) {
    prefix = null_if_empty(prefix);
    path = null_if_empty(path);
    std::string tmp;
    const bool bracket = create_tmpregname(tmp, prefix, path, index, is_write, {}, keep_index);
    brix_hdlxmr_reg_defns += "\treg[" + std::to_string(static_cast<int64_t>(width) - 1) + ":0] ";
    brix_hdlxmr_reg_defns += tmp;
    if (bracket) {
        for (const brix_bkdr_dimension& d : dims) {
            brix_hdlxmr_reg_defns += "[0:" + std::to_string(d.array_size - 1) + "]";
        }
    }
    if (memory_size != 0) {
        brix_hdlxmr_reg_defns +=
            "[0:" + std::to_string(static_cast<int64_t>(memory_size) - 1) + "]";
    }
    brix_hdlxmr_reg_defns += ";\n";
    if (prefix == nullptr && path == nullptr) {
        return;
    }
    const std::string p = path != nullptr ? brix_path_with_index(path, index) : std::string();
    std::string xmr_path;
    if (prefix != nullptr && path != nullptr) {
        xmr_path = std::string(prefix) + "." + p;
    } else {
        xmr_path = prefix != nullptr ? std::string(prefix) : p;
    }
    emit_brix_hdlxmr_initial_block(bracket ? dims : std::vector<brix_bkdr_dimension>{}, 0, xmr_path,
                                   tmp, is_write);
}

void emit_vhdl_bkdr_connection_module(const char* top) {
    if (brix_hdlxmr_reg_defns.empty() || brix_hdlxmr_initial_block.empty()) {
        return;
    }
    // The connector goes beside the model whatever name the model was given.
    const std::string name = std::string("brx_vhdl_bkdrs_") + top + ".v";
    FILE* fp = brix_open_output(name);
    if (fp == nullptr) {
        brix_error("Error: Failed to open output file '%s' for writing...", name);
    }
    fprintf(fp, "module brx_%s_vhdl_bkdr_connector;\n", top);
    fputs(brix_hdlxmr_reg_defns.c_str(), fp);
    fputs("\n\tinitial begin\n", fp);
    fputs(brix_hdlxmr_initial_block.c_str(), fp);
    fputs("\tend\nendmodule\n", fp);
    brix_close_output(fp);
}
