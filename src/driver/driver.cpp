#include "driver/driver.hpp"

#include "driver/diag.hpp"
#include "driver/options.hpp"
#include "expand/expand.hpp"
#include "gen_c/gen_c.hpp"
#include "gen_hx/gen_hx.hpp"
#include "gen_plan/gen_plan.hpp"
#include "gen_sv/gen_sv.hpp"
#include "parser/parser.hpp"
#include "semantic/semantic.hpp"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <tcl.h>
#include <unistd.h>

namespace {
constexpr int version_major = 1;
constexpr int version_minor = 13;
constexpr int version_patch = 1;

const char* const help_text[] = {
    "\nUsage:\n======\n",
    "brixgen -h\n",
    "brixgen -v\n",
    "brixgen -l <lang> -t <top> [-top_domain <domainname>] [-I <dir1>:...:<dirN>] "
    "[(-e|-ext_ud)] [-b] [-q] <BRIX-file>\n",
    "\n",
    "Where\n",
    "       <lang>                   = Target Language. Currently, supported are 'sv' and "
    "'hx'.\n",
    "       <top>                    = Name of top-level block/system\n",
    "                                  of your BRIX spec.\n",
    "Options:\n",
    "        -h          : prints this help message.\n\n",
    "        -v          : prints brixgen version info.\n\n",
    "        -t  topname : name of top-level block or sytem in the BRIX file\n\n",
    "        -l  sv|hx   : specifies target language of the BRX Model.\n\n",
    "        -o fname    : Output file name. By default, uses brx_topname.\n",
    "                      A language-appropriate suffix will be automatically appended.\n\n",
    "        -b          : triggers/activates backdoor code generation.\n",
    "                      By default, backdoor code is not generated.\n\n",
    "        -c  b|a|f   : generate the specified coverage models.\n",
    "                        b: bit-level\n",
    "                        a: address map\n",
    "                        f: field values\n",
    "                      Multiple coverage models can be specified at the same time\n\n",
    "        -q          : executes brixgen in quiet mode where all warnings are\n",
    "                      suppressed.\n\n",
    "        -e, -ext_ud : Add undefined (external) constraint declarations in block and system "
    "classes.\n\n",
    "        -I <dir1>:...:<dirN>\n",
    "                    : list of folders to sequentially search 'source'd BRIX files.\n\n",
    "\n",
};

// A fault of the command line: its message, the help text, status 1.
[[noreturn]] void usage_error(const char* message, const char* arg = nullptr) {
    if (arg != nullptr) {
        fprintf(stderr, message, arg);
    } else {
        fputs(message, stderr);
    }
    show_brixgen_help();
    exit(1);
}

[[noreturn]] void usage_error_char(const char* message, int c) {
    fprintf(stderr, message, c);
    show_brixgen_help();
    exit(1);
}

void print_banner() {
    fputs("\nMarsdale QVT Brix Layer Code Generator\n"
          "Copyright (c) Marsdale. All rights reserved.\n"
          "Use, copying and distribution are subject to the terms of your license.\n"
          "\n",
          stdout);
    fflush(stdout);
}

// The language test of the top-domain check: exactly the one letter "c".
bool language_is_c(const char* lang) {
    return lang != nullptr && lang[0] == 'c' && lang[1] == '\0';
}
} // namespace

void show_brixgen_help() {
    for (const char* piece : help_text) {
        fputs(piece, stderr);
    }
}

char* get_absolute_path(const char* path) {
    if (path[0] == '/') {
        return strdup(path);
    }
    char cwd[5000];
    if (getcwd(cwd, sizeof cwd) == nullptr) {
        fputs("Error: Failed to execute 'getcwd'...\n", stderr);
        exit(1);
    }
    const std::size_t size = strlen(cwd) + strlen(path) + 2;
    char* result = static_cast<char*>(malloc(size));
    snprintf(result, size, "%s/%s", cwd, path);
    return result;
}

void brix_name_pure_file() {
    const time_t now = time(nullptr);
    struct tm utc {};
    if (now != static_cast<time_t>(-1) && gmtime_r(&now, &utc) != nullptr) {
        snprintf(pure_brix_file, sizeof pure_brix_file,
                 "/tmp/qvt_%4d%02d%02d%02d%02d%02d_%d_pure_brix", utc.tm_year + 1900,
                 utc.tm_mon + 1, utc.tm_mday, utc.tm_hour, utc.tm_min, utc.tm_sec,
                 static_cast<int>(getpid()));
    } else {
        snprintf(pure_brix_file, sizeof pure_brix_file, "/tmp/qvt_%d_pure_brix",
                 static_cast<int>(getpid()));
    }
}

namespace {

// What the command line names besides the option flags.
struct run_request {
    char* top = nullptr;
    char* top_domain = nullptr;
    const char* description_file = nullptr;
};

// Takes a string option that may be given once.
void take_once(char*& slot, const char* twice_message) {
    if (slot != nullptr) {
        usage_error(twice_message);
    }
    slot = strdup(optarg);
}

void take_language(const char* lang) {
    if (target_language != nullptr) {
        usage_error("Error: <lang> can be specified only once.\n");
    }
    if (strcmp(lang, "sv") != 0 && strcmp(lang, "hx") != 0) {
        usage_error("Error: The specified target language '%s' is not supported.\n", lang);
    }
    target_language = strdup(lang);
}

void take_coverage_models(const char* letters) {
    for (const char* p = letters; *p != '\0'; ++p) {
        if (!brix_take_coverage_model(*p)) {
            usage_error_char("Error: Unknown coverage model '%c'.\n", *p);
        }
    }
}

void take_option(int c, run_request& run) {
    switch (c) {
    case 't':
        take_once(run.top, "Error: <top> can be specified only once.\n");
        break;
    case 'd':
        take_once(run.top_domain, "Error: <top_domain> can be specified only once.\n");
        break;
    case 'l':
        take_language(optarg);
        break;
    case 'c':
        take_coverage_models(optarg);
        break;
    case 'b':
        brix_gen_backdoor = 1;
        break;
    case 'e':
        brix_ext_ud = 1;
        break;
    case 'q':
        brix_quiet_mode = 1;
        break;
    case 'I':
        brix_add_include_dir(optarg);
        break;
    case 'o':
        ofile = optarg;
        break;
    case 'h':
        show_brixgen_help();
        exit(0);
    case 'v':
        printf("brixgen version %d.%d.%d (Requires BRX Version 1.9.0 or above)\n", version_major,
               version_minor, version_patch);
        exit(0);
    // The option string does not list g, p and P; these branches stay dormant.
    case 'g':
        brix_gen_c_interface = 1;
        break;
    case 'p':
        take_once(brix_backdoor_top_path,
                  "Error: <BRX Backdoor top_path> can be specified only once.\n");
        break;
    case 'P':
        take_once(brix_vhdl_backdoor_top_path,
                  "Error: <VHDL Backdoor Connector Instance Path> can be specified only once.\n");
        break;
    case '?':
        usage_error_char("Error: Unknown option character '%c' specified.\n", optopt);
    default:
        fprintf(stderr, "?? getopt returned character code 0%o ??\n", c);
        exit(1);
    }
}

// The checks of the whole command line, once every option is read.
void check_command_line(int argc, char** argv, const run_request& run) {
    if (target_language == nullptr) {
        usage_error("Error: You must specify the target language.\n");
    }
    if (brix_gen_c_interface && language_is_c(target_language)) {
        usage_error("Error: '-gen_c' option cannot be used with '-l c' option.\n");
    }
    if (run.top == nullptr) {
        usage_error("Error: You must specify the name of the top-level block/system of your "
                    "BRIX spec.\n");
    }
    if (optind >= argc) {
        usage_error("Error: You must specify the name of your top level BRIX file.\n");
    }
    if (optind + 1 < argc) {
        usage_error("Error: Too much command line arguments specified. '%s' is unexpected.\n",
                    argv[optind + 1]);
    }
    if (run.top_domain != nullptr && !language_is_c(target_language) && brix_gen_c_interface != 1) {
        usage_error("Error: '-top_domain' option can only be used with '-l c' or '-gen_c' "
                    "command line options.\n");
    }
}

run_request scan_command_line(int argc, char** argv) {
    run_request run;
    int c;
    while ((c = getopt(argc, argv, "c:t:d:l:bvheqI:o:")) != -1) {
        take_option(c, run);
    }
    check_command_line(argc, argv, run);
    run.description_file = argv[optind];
    return run;
}

void write_outputs(const run_request& run) {
    if (strcmp(target_language, "sv") == 0) {
        emit_sv_brx_model(run.top);
        if (brix_gen_c_interface) {
            emit_brx_c_ifc_for_sv_model(run.top, run.top_domain);
        }
    } else if (strcmp(target_language, "hx") == 0) {
        emit_hx_brx_model(run.top);
        if (brix_gen_c_interface) {
            emit_brx_c_ifc_for_hx_model(run.top, run.top_domain);
        }
    } else if (language_is_c(target_language)) {
        emit_c_brx_model(run.top, run.top_domain);
    }
    if (brix_cvr_reg_bits == 1 || brix_cvr_addr_map == 1 || brix_cvr_field_vals == 1) {
        emit_kpl_qvtp_model(run.top);
    }
}

} // namespace

void brix_add_include_dir(const char* value) {
    char* dir = get_absolute_path(value);
    if (brix_inc_dirs == nullptr) {
        brix_inc_dirs = dir;
        return;
    }
    const std::size_t size = strlen(brix_inc_dirs) + strlen(dir) + 2;
    char* joined = static_cast<char*>(malloc(size));
    snprintf(joined, size, "%s:%s", brix_inc_dirs, dir);
    free(brix_inc_dirs);
    free(dir);
    brix_inc_dirs = joined;
}

void brix_read_model(const char* description_file, const char* top) {
    brix_name_pure_file();
    expand_tcl_constructs(description_file, pure_brix_file);
    free(brix_inc_dirs);
    brix_inc_dirs = nullptr;

    yyin = fopen(pure_brix_file, "r");
    if (yyin == nullptr) {
        fprintf(stderr, "Error: Failed to open Pure BRIX file '%s' for reading...please check.\n",
                pure_brix_file);
        brix_exit(1);
    }
    // The pure description runs to tens of megabytes: read in big pieces, not stdio's
    // pages. The buffer is static, as the stream stays open to the end of the run.
    static char read_buffer[std::size_t{1} << 20];
    setvbuf(yyin, read_buffer, _IOFBF, sizeof read_buffer);
    // The scanner may still stand on another input of this process.
    brix_scanner_restart(yyin);
    initialize();
    yyparse();
    check_semantics(top);
}

void brix_ignore_file_size_signal() {
    // A file that outgrows the size limit gives its write an error to report; the
    // signal would end the run without a word.
    signal(SIGXFSZ, SIG_IGN);
}

int brix_main(int argc, char** argv) {
    print_banner();
    brix_ignore_file_size_signal();
    Tcl_FindExecutable(argv[0]);
    run_request run = scan_command_line(argc, argv);
    brix_read_model(run.description_file, run.top);
    write_outputs(run);

    free(target_language);
    target_language = nullptr;
    free(run.top);
    free(run.top_domain);
    fclose(yyin);
    yyin = nullptr;
    unlink(pure_brix_file);
    pure_brix_file[0] = '\0';
    return 0;
}
