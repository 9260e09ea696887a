#include "map/map_cli.hpp"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <tcl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "driver/diag.hpp"
#include "driver/driver.hpp"
#include "expand/expand.hpp"
#include "map/map_outputs.hpp"
#include "parser/parser.hpp"
#include "semantic/semantic.hpp"

namespace {

const char* const usage_text =
    "usage: brixmap check -t TOP [-I DIR1:...:DIRN] [-b] [-c b|a|f] [-q] [--werror] DESCRIPTION\n"
    "       brixmap json|md|html|c -t TOP [-I DIR1:...:DIRN] [-o FILE] [-q] DESCRIPTION\n"
    "       brixmap ipxact -t TOP [-I DIR1:...:DIRN] [-o FILE] [-q] [--vendor V] [--library L]\n"
    "                      [--name N] [--version V] DESCRIPTION\n"
    "       brixmap --help | --version\n";

const char* const help_text =
    "\n"
    "Commands:\n"
    "  check      report mistakes of the description, one finding a line, on stdout\n"
    "  json       write the resolved register map as JSON (default file TOP.json)\n"
    "  md         write a Markdown reference of the map (default file TOP.md)\n"
    "  html       write a self-contained HTML page of the map (default file TOP.html)\n"
    "  ipxact     write an IP-XACT (IEEE 1685-2014) component (default file TOP.xml)\n"
    "  c          write a C header of addresses and fields (default file TOP.h)\n"
    "\n"
    "Options:\n"
    "  -t TOP     the top-level block or system\n"
    "  -I DIRS    folders, joined by ':', to search for 'source'd files\n"
    "  -o FILE    output file; '-' is standard output\n"
    "  -b         check for a run with backdoor classes (brixgen -b)\n"
    "  -c LETTERS check for a run with these coverage models (brixgen -c)\n"
    "  -q         no warnings from reading the description\n"
    "  --werror   warnings count as errors\n"
    "  --vendor, --library, --name, --version\n"
    "             the IP-XACT component's identity (default local, brix, TOP, 1.0)\n";

[[noreturn]] void usage_error(const std::string& message) {
    fprintf(stderr, "brixmap: %s\n%s", message.c_str(), usage_text);
    exit(2);
}

struct map_options {
    std::string command;
    const char* top = nullptr;
    const char* output = nullptr;
    const char* description = nullptr;
    map_check_options check;
    ipxact_vlnv vlnv;
};

void add_coverage(const char* letters) {
    for (const char* p = letters; *p != '\0'; ++p) {
        if (!brix_take_coverage_model(*p)) {
            usage_error(std::string("unknown coverage model '") + *p + "'");
        }
    }
}

const char* value_of(int argc, char** argv, int& i) {
    if (i + 1 >= argc) {
        usage_error(std::string("option ") + argv[i] + " needs a value");
    }
    return argv[++i];
}

// The option that names a part of the IP-XACT identity, if `arg` is one.
std::string* vlnv_part(map_options& o, std::string_view arg) {
    if (o.command != "ipxact") {
        return nullptr;
    }
    return arg == "--vendor"    ? &o.vlnv.vendor
           : arg == "--library" ? &o.vlnv.library
           : arg == "--name"    ? &o.vlnv.name
           : arg == "--version" ? &o.vlnv.version
                                : nullptr;
}

void read_option(int argc, char** argv, int& i, map_options& o) {
    const std::string_view arg = argv[i];
    const bool check = o.command == "check";
    if (arg == "-t") {
        if (o.top != nullptr) {
            usage_error("-t given twice");
        }
        o.top = value_of(argc, argv, i);
    } else if (arg == "-I") {
        brix_add_include_dir(value_of(argc, argv, i));
    } else if (arg == "-o" && !check) {
        o.output = value_of(argc, argv, i);
    } else if (arg == "-b" && check) {
        o.check.backdoor = true;
        brix_gen_backdoor = 1;
    } else if (arg == "-c" && check) {
        add_coverage(value_of(argc, argv, i));
        o.check.field_values = brix_cvr_field_vals == 1;
    } else if (arg == "-q") {
        brix_quiet_mode = 1;
    } else if (arg == "--werror" && check) {
        o.check.werror = true;
    } else if (std::string* part = vlnv_part(o, arg)) {
        *part = value_of(argc, argv, i);
    } else if (arg.size() > 1 && arg[0] == '-') {
        usage_error("unknown option '" + std::string(arg) + "' for " + o.command);
    } else if (o.description != nullptr) {
        usage_error("more than one description: '" + std::string(arg) + "'");
    } else {
        o.description = argv[i];
    }
}

map_options read_command_line(int argc, char** argv) {
    if (argc < 2) {
        usage_error("no command given");
    }
    const std::string_view first = argv[1];
    if (first == "--help" || first == "-h") {
        fputs(usage_text, stdout);
        fputs(help_text, stdout);
        exit(0);
    }
    if (first == "--version") {
        printf("brixmap %s\n", BRIX_VERSION);
        exit(0);
    }
    if (first != "check" && first != "json" && first != "md" && first != "html" &&
        first != "ipxact" && first != "c") {
        usage_error("unknown command '" + std::string(first) + "'");
    }
    map_options o;
    o.command = first;
    for (int i = 2; i < argc; ++i) {
        read_option(argc, argv, i, o);
    }
    if (o.top == nullptr) {
        usage_error("no top given (-t TOP)");
    }
    if (o.description == nullptr) {
        usage_error("no description file given");
    }
    return o;
}

// The same stages as brixgen, up to the checked model; errors end the run as there. What
// the description's script prints goes to stderr, so that stdout carries the output alone.
void read_description(const map_options& o) {
    // The map and its checks describe the SystemVerilog model; the grammar takes a few
    // decisions by the target language.
    target_language = strdup("sv");
    fflush(stdout);
    const int saved_stdout = dup(STDOUT_FILENO);
    dup2(STDERR_FILENO, STDOUT_FILENO);
    brix_read_model(o.description, o.top);
    fflush(stdout);
    dup2(saved_stdout, STDOUT_FILENO);
    close(saved_stdout);
    fclose(yyin);
    yyin = nullptr;
    unlink(pure_brix_file);
    pure_brix_file[0] = '\0';
}

int write_failed(const std::string& name, int error) {
    if (name == "-") {
        fprintf(stderr, "Error: Failed to write standard output (%s).\n", strerror(error));
    } else {
        fprintf(stderr, "Error: Failed to write file '%s' (%s).\n", name.c_str(), strerror(error));
    }
    return 1;
}

// The regular file being written, removed if the run ends before it is whole: the map is
// resolved while its JSON is written, and a fatal error there exits from inside.
std::string partial_output;

void remove_partial_output() {
    if (!partial_output.empty()) {
        unlink(partial_output.c_str());
        partial_output.clear();
    }
}

// Writes an output whole or not at all: a failed write or close is an error, and the
// regular file it was going to is removed (a device or pipe is left as it is).
template <class Write> int write_output(const std::string& name, Write&& write) {
    const bool to_stdout = name == "-";
    FILE* f = to_stdout ? stdout : fopen(name.c_str(), "w");
    if (f == nullptr) {
        return write_failed(name, errno);
    }
    struct stat st {};
    if (!to_stdout && fstat(fileno(f), &st) == 0 && S_ISREG(st.st_mode)) {
        partial_output = name;
        atexit(remove_partial_output);
    }
    errno = 0;
    write(f);
    int error = ferror(f) != 0 ? (errno != 0 ? errno : EIO) : 0;
    if ((to_stdout ? fflush(f) : fclose(f)) != 0 && error == 0) {
        error = errno != 0 ? errno : EIO;
    }
    if (error == 0) {
        partial_output.clear();
        return 0;
    }
    remove_partial_output();
    return write_failed(name, error);
}

int run_check(const resolved_map& map, const map_check_options& options) {
    const map_check_result r = map_check(map, options);
    const int failed =
        write_output("-", [&](FILE* f) { fwrite(r.findings.data(), 1, r.findings.size(), f); });
    fprintf(stderr, "brixmap: %d error%s, %d warning%s, %d note%s\n", r.errors,
            r.errors == 1 ? "" : "s", r.warnings, r.warnings == 1 ? "" : "s", r.notes,
            r.notes == 1 ? "" : "s");
    return failed != 0 || r.errors > 0 ? 1 : 0;
}

} // namespace

int brixmap_main(int argc, char** argv) {
    brix_ignore_file_size_signal();
    Tcl_FindExecutable(argv[0]);
    const map_options o = read_command_line(argc, argv);
    read_description(o);
    const bool json = o.command == "json";
    const std::string name =
        o.output != nullptr ? o.output : std::string(o.top) + (json ? ".json" : ".md");
    if (json) {
        return write_output(name, [&](FILE* f) { map_json(o.top, f); });
    }
    const resolved_map map = resolve_map(o.top);
    if (o.command == "check") {
        return run_check(map, o.check);
    }
    if (o.command == "md") {
        return write_output(name, [&](FILE* f) { map_markdown(map, f); });
    }
    std::string extension = "." + o.command;
    map_written out;
    if (o.command == "html") {
        out.text = map_html(map);
    } else if (o.command == "ipxact") {
        out.text = map_ipxact(map, o.vlnv);
        extension = ".xml";
    } else {
        out = map_c_header(map);
        extension = ".h";
    }
    if (!out.error.empty()) {
        fprintf(stderr, "brixmap: %s\n", out.error.c_str());
        return 1;
    }
    return write_output(o.output != nullptr ? o.output : std::string(o.top) + extension,
                        [&](FILE* f) { fwrite(out.text.data(), 1, out.text.size(), f); });
}
