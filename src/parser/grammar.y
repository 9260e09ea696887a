/* Grammar of the pure description. The actions build the model; their checks live in
   actions.cpp, in the order in which the rules below call them. */
%code requires {
#include "parser/block_actions.hpp"
#include "parser/model.hpp"
}

%code top {
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>

#include "driver/diag.hpp"
#include "parser/actions.hpp"
#include "parser/parse_state.hpp"
#include "parser/parser.hpp"

// Bison's own texts, as this program has always shown them.
static const char* brix_bison_text(const char* text) {
    return std::strcmp(text, "memory exhausted") == 0 ? "parser stack overflow" : text;
}
#define YY_(Msgid) brix_bison_text(Msgid)
#define YYINITDEPTH 200
#define YYMAXDEPTH 10000
}

%define parse.error custom

%union {
    char* str;
    int num;
    brix_hdl_path_tag* path;
    brix_list_tag* list;
    brix_cvr_bin_value* bin_value;
    brix_saved_system_vars* saved;
}

/* Declared in this order: the order fixes the token numbers. */
%token ENUM BYTES
%token <str> DOC_BODY
%token WRITE RESET HARD_RESET SOFT_RESET ACCESS BITS INC_OP READ ENDIAN
%token <str> DECIMAL_INT STRING_LIT
%token SIZE CONSTRAINT REGISTER VIRTUAL BLOCK
%token <str> CONSTRAINT_BODY IDENTIFIER
%token FIELD
%token <str> NUMBER
%token NOISE DOMAIN SHARED MEMORY MEM_INITIAL DOC REGFILE SYSTEM DEC_OP LEFT_TO_RIGHT HASHLINE
%token LINENUM FILENAME CROSS LABEL COVER
%token <str> COVER_SPEC
%token COVERPOINT BINS DEFAULT ATTRIBUTES ATTR_VALUE VHDL_PATH
/* Single characters stand for themselves; listing them here fixes their order in the
   "expecting" part of a syntax error. */
%token '.' ':' '%' '[' ']' ',' '@' '=' '{' '}' '(' ')' '+'
/* A well-formed hash line, read by the scanner as a whole. It stands wherever HASHLINE
   does and shows as HASHLINE in a syntax error. */
%token WHOLE_HASHLINE

%type <str> hdl_path_identifier hdl_path_identifier_contd hdl_path_array_subscript
%type <str> offset offset_value increment number optional_identifier enum_const_initializer
%type <str> cover_spec memsize memsize_unit read_write_flag optional_number
%type <num> field_declaration field_declaration_continued mem_inc_dec_op
%type <num> array_subscript_spec register_declaration register_declaration_continued
%type <num> bins_specification_contd1 vregister_declaration regfile_declaration
%type <num> regfile_declaration_continued memory_declaration memory_declaration_continued
%type <str> rename
%type <path> hdl_path
%type <list> cross_id_list
%type <bin_value> bins_value bin_id_or_num_value

/* A `cover` right behind an instance that ends without braces is taken as the start of the
   instance's own clause: the shift is preferred over ending the instance. */
%expect 15

%%

brix_global_entries
    : brix_global_entry
    | brix_global_entries brix_global_entry
    | WHOLE_HASHLINE
    | brix_global_entries WHOLE_HASHLINE
    ;

brix_global_entry
    : global_field_definition
    | global_register_definition
    | global_vregister_definition
    | global_memory_definition
    | global_regfile_definition
    | global_block_definition
    | global_system_definition
    | hash_line_declaration
    ;

/* A hash line stands as a whole entry or property wherever the rule below does. A whole
   one is an element of each list by itself, which takes the parser two steps where the
   rule takes four. */
hash_line_declaration
    : HASHLINE LINENUM { tmpbrixflag_first_line_read_after_hashline = 0; } FILENAME
    ;

/* hdl paths ---------------------------------------------------------------------------- */

hdl_path
    : '(' hdl_path_list ')' { $$ = take_hdl_path(false); }
    | VHDL_PATH { begin_vhdl_path(); } '=' '(' hdl_path_list ')' { $$ = take_hdl_path(true); }
    | %empty { $$ = nullptr; }
    ;

hdl_path_list
    : hdl_path_identifier { append_hdl_path($1); }
    | hdl_path_list ',' hdl_path_identifier { append_hdl_path($3); }
    ;

hdl_path_identifier
    : IDENTIFIER hdl_path_identifier_contd { $$ = join_hdl_path_identifier($1, $2); }
    ;

hdl_path_identifier_contd
    : %empty { $$ = nullptr; }
    | '.' IDENTIFIER hdl_path_identifier_contd { $$ = hdl_path_piece(".", $2, $3); }
    | ':' IDENTIFIER hdl_path_identifier_contd {
          refuse_verilog_colon();
          $$ = hdl_path_piece(".", $2, $3);
      }
    | '%' IDENTIFIER hdl_path_identifier_contd { $$ = hdl_path_piece("%", $2, $3); }
    | '[' hdl_path_array_subscript ']' hdl_path_identifier_contd {
          $$ = hdl_path_subscript($2, $4);
      }
    ;

hdl_path_array_subscript
    : DECIMAL_INT ':' DECIMAL_INT { $$ = hdl_path_range($1, $3); }
    | '%' IDENTIFIER { $$ = hdl_path_percent_subscript($2); }
    ;

/* Offsets, increments, numbers --------------------------------------------------------- */

offset
    : '@' offset_value { $$ = $2; }
    | %empty { $$ = nullptr; }
    ;

offset_value
    : IDENTIFIER { $$ = check_offset_word($1); }
    | number
    ;

increment
    : '+' number { $$ = $2; }
    | %empty { $$ = nullptr; }
    ;

number
    : DECIMAL_INT
    | NUMBER
    ;

rename
    : '=' IDENTIFIER { $$ = $2; }
    | %empty { $$ = nullptr; }
    ;

optional_identifier
    : IDENTIFIER
    | %empty { $$ = nullptr; }
    ;

array_subscript_spec
    : '[' DECIMAL_INT ']' { $$ = array_subscript($2); }
    | %empty { $$ = -1; }
    ;

read_write_flag
    : READ { $$ = brix_strdup("read"); }
    | WRITE { $$ = brix_strdup("write"); }
    | %empty { $$ = nullptr; }
    ;

cover_spec
    : COVER '=' COVER_SPEC { $$ = $3; }
    | %empty { $$ = nullptr; }
    ;

/* Fields ------------------------------------------------------------------------------- */

global_field_definition
    : FIELD IDENTIFIER { begin_global_field_type($2); } field_body { end_global_field_type(); }
    ;

field_body
    : '{' field_properties '}'
    | %empty
    ;

field_properties
    : nonempty_field_properties
    | %empty
    ;

nonempty_field_properties
    : field_property
    | nonempty_field_properties field_property
    | WHOLE_HASHLINE
    | nonempty_field_properties WHOLE_HASHLINE
    ;

field_property
    : BITS DECIMAL_INT { field_set_bits($2); }
    | ENUM optional_identifier '{' { tmp_enum_name_list = nullptr; } enum_name_declarations '}' {
          field_set_enum($2);
      }
    | COVERPOINT '{' bins_specifications '}' { end_coverpoint(); }
    | ACCESS IDENTIFIER { field_set_access($2); }
    | RESET number { field_set_hard_reset($2, true); }
    | HARD_RESET number { field_set_hard_reset($2, false); }
    | SOFT_RESET number { field_set_soft_reset($2); }
    | { field_begin_constraint(); } constraint_definition
    | { field_begin_doc(); } doc_specification
    | COVER COVER_SPEC { field_set_cover($2); }
    | hash_line_declaration
    ;

enum_name_declarations
    : enum_name_declaration
    | enum_name_declarations ',' enum_name_declaration
    ;

enum_name_declaration
    : IDENTIFIER enum_const_initializer { add_enum_name($1, $2); }
    ;

enum_const_initializer
    : '=' DECIMAL_INT { $$ = $2; }
    | %empty { $$ = nullptr; }
    ;

/* Field instances: 0 for the `=` form, 1 for an inline type, 2 for the name alone. */
field_declaration
    : '=' IDENTIFIER hdl_path offset cover_spec {
          field_instance_renamed($2, $3, $4, $5);
          $$ = 0;
      }
    | hdl_path offset { field_instance_place($1, $2); } field_declaration_continued { $$ = $4; }
    ;

field_declaration_continued
    : '{' { begin_inline_field_type(); } field_properties '}' {
          end_inline_field_type();
          $$ = 1;
      }
    | cover_spec {
          field_instance_cover($1);
          $$ = 2;
      }
    ;

/* Constraints, documentation, attributes ----------------------------------------------- */

constraint_definition
    : CONSTRAINT IDENTIFIER { name_constraint($2); } '{' constraint_body '}' {
          tmp_constraint = nullptr;
      }
    ;

constraint_body
    : CONSTRAINT_BODY { tmp_constraint->body = $1; }
    | %empty
    ;

doc_specification
    : DOC '{' doc_text '}' { tmp_doc = nullptr; }
    ;

doc_text
    : DOC_BODY { tmp_doc->text = $1; }
    | %empty
    ;

attribute_list
    : attribute_specification
    | attribute_list ',' attribute_specification
    ;

attribute_specification
    : IDENTIFIER IDENTIFIER { add_attribute($1, $2); }
    | IDENTIFIER DECIMAL_INT { add_attribute($1, $2); }
    | IDENTIFIER STRING_LIT { add_attribute($1, $2); }
    ;

/* Registers ---------------------------------------------------------------------------- */

global_register_definition
    : REGISTER IDENTIFIER { begin_global_register_type($2); }
      '{' { open_definition_scope($2); }
      register_properties { register_type_before_close(); }
      '}' { end_global_register_type(); }
    ;

register_properties
    : nonempty_register_properties { check_register_field_languages(); }
    | %empty { brix_yyerror("Error: Empty Register found."); }
    ;

nonempty_register_properties
    : register_property
    | nonempty_register_properties register_property
    | WHOLE_HASHLINE
    | nonempty_register_properties WHOLE_HASHLINE
    ;

register_property
    : BYTES DECIMAL_INT { register_set_bytes($2); }
    | LEFT_TO_RIGHT { tmp_register_type->left_to_right = 1; }
    | FIELD IDENTIFIER { begin_field_instance($2, true); } field_declaration {
          finish_field_instance($2, $4, true);
      }
    | { begin_constraint(tmp_register_type->constraints); } constraint_definition
    | NOISE IDENTIFIER { register_set_noise($2); }
    | SHARED hdl_path { register_set_shared($2); }
    | ATTRIBUTES {
          refuse_second_attributes(tmp_register_type->attributes,
                                   "Error: Register '%s' - Multiple definition of 'attributes' "
                                   "found.",
                                   register_type_display_name());
      }
      '{' attribute_list '}' { take_attributes(tmp_register_type->attributes); }
    | { begin_doc(tmp_register_type->doc); } doc_specification
    | CROSS cross_id_list { begin_cross($2, register_type_display_name()); } cross_spec_body {
          end_cross($2, tmp_register_type->crosses);
      }
    | COVER COVER_SPEC { store_cvr_spec(tmp_register_type->cvr_spec, $2); }
    | hash_line_declaration
    ;

/* Virtual registers -------------------------------------------------------------------- */

global_vregister_definition
    : VIRTUAL REGISTER IDENTIFIER { begin_global_vregister_type($3); }
      '{' { open_definition_scope($3); }
      vregister_properties { close_definition_scope(); }
      '}' { end_global_vregister_type(); }
    ;

vregister_properties
    : nonempty_vregister_properties
    | %empty { brix_yyerror("Error: Empty Virtual Register found."); }
    ;

nonempty_vregister_properties
    : vregister_property
    | nonempty_vregister_properties vregister_property
    | WHOLE_HASHLINE
    | nonempty_vregister_properties WHOLE_HASHLINE
    ;

vregister_property
    : BYTES DECIMAL_INT { vregister_set_bytes($2); }
    | LEFT_TO_RIGHT { tmp_vregister_type->left_to_right = 1; }
    | FIELD IDENTIFIER { begin_field_instance($2, false); } field_declaration {
          finish_field_instance($2, $4, false);
      }
    | { begin_doc(tmp_vregister_type->doc); } doc_specification
    | CROSS cross_id_list { begin_cross($2, vregister_type_display_name()); } cross_spec_body {
          end_cross($2, tmp_vregister_type->crosses);
      }
    | COVER COVER_SPEC { vregister_set_cover($2); }
    | hash_line_declaration
    ;

/* Coverage: crosses and coverpoints ---------------------------------------------------- */

cross_id_list
    : IDENTIFIER { $$ = create_brix_list_node(BRIX_IDENTIFIER, $1); }
    | cross_id_list IDENTIFIER {
          add_to_brix_list_end($1, BRIX_IDENTIFIER, $2);
          $$ = $1;
      }
    ;

cross_spec_body
    : '{' cross_spec_body_elements '}'
    | %empty
    ;

cross_spec_body_elements
    : cross_spec_body_element
    | cross_spec_body_elements cross_spec_body_element
    | WHOLE_HASHLINE
    | cross_spec_body_elements WHOLE_HASHLINE
    ;

cross_spec_body_element
    : LABEL IDENTIFIER { tmp_label = $2; }
    | hash_line_declaration
    ;

bins_specifications
    : bins_specification
    | bins_specifications bins_specification
    | WHOLE_HASHLINE
    | bins_specifications WHOLE_HASHLINE
    ;

bins_specification
    : BINS IDENTIFIER { begin_bin($2); } bins_specification_contd1 { end_bin($4 == 1); }
    | hash_line_declaration
    ;

bins_specification_contd1
    : '[' optional_number ']' { bin_brackets($2); } '=' bins_value_spec { $$ = 1; }
    | '=' bins_value_spec { $$ = 0; }
    ;

optional_number
    : DECIMAL_INT
    | %empty { $$ = nullptr; }
    ;

bins_value_spec
    : '{' bins_value_list '}'
    | DEFAULT { bin_default_checks(); }
    ;

bins_value_list
    : bins_value { add_bin_value($1); }
    | bins_value_list ',' bins_value { add_bin_value($3); }
    ;

bins_value
    : IDENTIFIER { $$ = bin_enum_value($1); }
    | DECIMAL_INT { $$ = bin_number_value($1); }
    | '[' bin_id_or_num_value ':' bin_id_or_num_value ']' { $$ = bin_range_value($2, $4); }
    ;

bin_id_or_num_value
    : IDENTIFIER { $$ = bin_enum_value($1); }
    | DECIMAL_INT { $$ = bin_number_value($1); }
    ;

/* Memories ----------------------------------------------------------------------------- */

global_memory_definition
    : MEMORY IDENTIFIER {
          begin_global_memory_type($2);
          open_definition_scope($2);
      }
      '{' memory_properties '}' { end_global_memory_type(); }
    ;

memory_properties
    : nonempty_memory_properties
    | %empty { brix_yyerror("Error: Empty Memory found."); }
    ;

nonempty_memory_properties
    : memory_property
    | nonempty_memory_properties memory_property
    | WHOLE_HASHLINE
    | nonempty_memory_properties WHOLE_HASHLINE
    ;

memory_property
    : SIZE { memory_check_no_size(); } memsize memsize_unit { memory_set_size($3, $4); }
    | BITS DECIMAL_INT { memory_set_bits($2); }
    | ACCESS IDENTIFIER { memory_set_access($2); }
    | MEM_INITIAL { memory_begin_initial(); } mem_initial_value { memory_end_initial(); }
    | NOISE IDENTIFIER { memory_set_noise($2); }
    | SHARED hdl_path { memory_set_shared($2); }
    | { begin_doc(tmp_memory_type->doc); } doc_specification
    | ATTRIBUTES {
          refuse_second_attributes(tmp_memory_type->attributes,
                                   "Error: Memory '%s' - Multiple definition of 'attributes' "
                                   "found.",
                                   memory_type_display_name());
      }
      '{' attribute_list '}' { take_attributes(tmp_memory_type->attributes); }
    | COVER COVER_SPEC { memory_set_cover($2); }
    | hash_line_declaration
    ;

memsize
    : NUMBER
    | DECIMAL_INT
    ;

memsize_unit
    : IDENTIFIER { $$ = memory_size_unit($1); }
    | %empty { $$ = nullptr; }
    ;

mem_initial_value
    : number mem_inc_dec_op { memory_initial_number($1, $2); }
    | IDENTIFIER { memory_initial_word($1); }
    ;

mem_inc_dec_op
    : INC_OP { $$ = 1; }
    | DEC_OP { $$ = -1; }
    | %empty { $$ = 0; }
    ;

/* Register files ----------------------------------------------------------------------- */

global_regfile_definition
    : REGFILE IDENTIFIER { begin_global_regfile_type($2); }
      '{' { open_definition_scope($2); }
      regfile_properties { close_definition_scope(); }
      '}' { end_global_regfile_type(); }
    ;

regfile_properties
    : nonempty_regfile_properties
    | %empty { brix_yyerror("Error: Empty Regfile found."); }
    ;

nonempty_regfile_properties
    : regfile_property
    | nonempty_regfile_properties regfile_property
    | WHOLE_HASHLINE
    | nonempty_regfile_properties WHOLE_HASHLINE
    ;

regfile_property
    : REGISTER IDENTIFIER { begin_register_instance($2); } register_declaration {
          finish_register_instance_in_regfile($2, $4);
      }
    | { begin_constraint(tmp_regfile_type->constraints); } constraint_definition
    | { begin_doc(tmp_regfile_type->doc); } doc_specification
    | COVER COVER_SPEC { store_cvr_spec(tmp_regfile_type->cvr_spec, $2); }
    | hash_line_declaration
    ;

/* Register instances, in a regfile or a block: 0 without an inline body, 1 with one. */
register_declaration
    : '=' IDENTIFIER array_subscript_spec hdl_path offset increment {
          register_instance_renamed($2, $3, $4, $5, $6);
      }
      read_write_flag cover_spec {
          register_instance_flags($8, $9);
          $$ = 0;
      }
    | array_subscript_spec hdl_path offset increment {
          register_instance_place($1, $2, $3, $4);
      }
      register_declaration_continued { $$ = $6; }
    ;

register_declaration_continued
    : '{' { begin_inline_register_type(); } register_properties {
          inline_register_before_close();
      }
      '}' { $$ = 1; }
    | read_write_flag cover_spec {
          register_instance_flags($1, $2);
          $$ = 0;
      }
    ;


/* Blocks ------------------------------------------------------------------------------- */

global_block_definition
    : BLOCK IDENTIFIER { begin_global_container(BRIX_BLOCK, $2); }
      '{' { open_container_body(BRIX_BLOCK); }
      block_or_domain_properties { container_body_before_close(BRIX_BLOCK); }
      '}' { end_global_container(BRIX_BLOCK); }
    ;

block_or_domain_properties
    : block_or_domain_property
    | block_or_domain_properties block_or_domain_property
    | WHOLE_HASHLINE
    | block_or_domain_properties WHOLE_HASHLINE
    ;

/* `doc` and `cover` at block level belong to the block type and open no default domain. */
block_or_domain_property
    : { before_container_level_property(BRIX_BLOCK); } block_property
    | block_domain_definition
    | COVER COVER_SPEC { store_cvr_spec(tmp_block_type->cvr_spec, $2); }
    | { begin_doc(tmp_block_type->doc); } doc_specification
    | hash_line_declaration
    ;

block_domain_definition
    : DOMAIN { begin_container_domain(BRIX_BLOCK); }
      IDENTIFIER offset { name_container_domain(BRIX_BLOCK, $3, $4); }
      '{' domain_block_properties '}' { end_container_domain(BRIX_BLOCK); }
    ;

domain_block_properties
    : nonempty_domain_block_properties
    | %empty { brix_yyerror("Error: Empty Block Domain found."); }
    ;

nonempty_domain_block_properties
    : nonempty_domain_block_property
    | nonempty_domain_block_properties nonempty_domain_block_property
    | WHOLE_HASHLINE
    | nonempty_domain_block_properties WHOLE_HASHLINE
    ;

nonempty_domain_block_property
    : nonempty_block_property
    | COVER COVER_SPEC { store_cvr_spec(tmp_block_domain->cvr_spec, $2); }
    ;

nonempty_block_property
    : block_property
    | hash_line_declaration
    ;

block_property
    : BYTES DECIMAL_INT { container_set_bytes(BRIX_BLOCK, $2); }
    | ENDIAN IDENTIFIER { container_set_endian(BRIX_BLOCK, $2); }
    | REGISTER IDENTIFIER { begin_register_instance($2); } register_declaration {
          finish_register_instance_in_block($2, $4);
      }
    | VIRTUAL REGISTER IDENTIFIER { begin_vregister_instance($3); } vregister_declaration {
          finish_vregister_instance($3, $5);
      }
    | REGFILE IDENTIFIER { begin_regfile_instance($2); } regfile_declaration {
          finish_regfile_instance($2, $4);
      }
    | MEMORY IDENTIFIER { begin_memory_instance($2); } memory_declaration {
          finish_memory_instance($2, $4);
      }
    | ATTRIBUTES { refuse_second_container_attributes(BRIX_BLOCK); }
      '{' attribute_list '}' { take_container_attributes(BRIX_BLOCK); }
    | { begin_constraint(tmp_block_domain->constraints); } constraint_definition
    ;

/* Instances in a block: 0 without an inline body, 1 with one. */
vregister_declaration
    : '=' IDENTIFIER { vregister_instance_renamed($2); }
      vregister_declaration_continued_0 cover_spec {
          vregister_instance_cover($5);
          $$ = 0;
      }
    | vregister_declaration_continued_0 vregister_declaration_continued_1 { $$ = 1; }
    ;

vregister_declaration_continued_0
    : array_subscript_spec IDENTIFIER offset increment {
          vregister_static_placement($1, $2, $3, $4);
      }
    | %empty { vregister_dynamic_placement(); }
    ;

vregister_declaration_continued_1
    : '{' { begin_inline_vregister_type(); }
      vregister_properties { inline_vregister_before_close(); } '}'
    ;

regfile_declaration
    : '=' IDENTIFIER array_subscript_spec hdl_path offset {
          regfile_instance_renamed($2, $3, $4, $5);
      }
      increment cover_spec {
          regfile_instance_renamed_end($7, $8);
          $$ = 0;
      }
    | array_subscript_spec hdl_path offset increment {
          regfile_instance_place($1, $2, $3, $4);
      }
      regfile_declaration_continued { $$ = $6; }
    ;

regfile_declaration_continued
    : '{' { begin_inline_regfile_type(); } regfile_properties { inline_regfile_before_close(); }
      '}' { $$ = 1; }
    | cover_spec {
          regfile_instance_cover($1);
          $$ = 0;
      }
    ;

memory_declaration
    : '=' IDENTIFIER hdl_path offset { memory_instance_renamed($2, $3, $4); }
      read_write_flag cover_spec {
          memory_instance_renamed_end($6, $7);
          $$ = 0;
      }
    | hdl_path offset { memory_instance_place($1, $2); } memory_declaration_continued {
          $$ = $4;
      }
    ;

memory_declaration_continued
    : '{' { begin_inline_memory_type(); } memory_properties { inline_memory_before_close(); }
      '}' { $$ = 1; }
    | read_write_flag cover_spec {
          memory_instance_flags($1, $2);
          $$ = 0;
      }
    ;

/* Systems ------------------------------------------------------------------------------ */

global_system_definition
    : SYSTEM IDENTIFIER { begin_global_container(BRIX_SYSTEM, $2); }
      '{' { open_container_body(BRIX_SYSTEM); }
      system_or_domain_properties { container_body_before_close(BRIX_SYSTEM); }
      '}' { end_global_container(BRIX_SYSTEM); }
    ;

system_or_domain_properties
    : system_or_domain_property
    | system_or_domain_properties system_or_domain_property
    | WHOLE_HASHLINE
    | system_or_domain_properties WHOLE_HASHLINE
    ;

system_or_domain_property
    : { before_container_level_property(BRIX_SYSTEM); } system_property
    | system_domain_definition
    | { begin_doc(tmp_system_type->doc); } doc_specification
    | COVER COVER_SPEC { store_cvr_spec(tmp_system_type->cvr_spec, $2); }
    | hash_line_declaration
    ;

system_domain_definition
    : DOMAIN { begin_container_domain(BRIX_SYSTEM); }
      IDENTIFIER offset { name_container_domain(BRIX_SYSTEM, $3, $4); }
      '{' domain_system_properties '}' { end_container_domain(BRIX_SYSTEM); }
    ;

domain_system_properties
    : nonempty_domain_system_properties
    | %empty { brix_yyerror("Error: Empty System Domain found."); }
    ;

nonempty_domain_system_properties
    : nonempty_domain_system_property
    | nonempty_domain_system_properties nonempty_domain_system_property
    | WHOLE_HASHLINE
    | nonempty_domain_system_properties WHOLE_HASHLINE
    ;

nonempty_domain_system_property
    : nonempty_system_property
    | COVER COVER_SPEC { store_cvr_spec(tmp_system_domain->cvr_spec, $2); }
    ;

nonempty_system_property
    : system_property
    | hash_line_declaration
    ;

system_property
    : BYTES DECIMAL_INT { container_set_bytes(BRIX_SYSTEM, $2); }
    | ENDIAN IDENTIFIER { container_set_endian(BRIX_SYSTEM, $2); }
    | BLOCK IDENTIFIER { begin_block_instance($2); } block_declaration {
          finish_block_instance();
      }
    | SYSTEM IDENTIFIER <saved>{ $$ = begin_system_instance($2); } system_declaration {
          finish_system_instance($3);
      }
    | ATTRIBUTES { refuse_second_container_attributes(BRIX_SYSTEM); }
      '{' attribute_list '}' { take_container_attributes(BRIX_SYSTEM); }
    | { begin_constraint(tmp_system_domain->constraints); } constraint_definition
    ;

/* Block and system instances: qualified by a domain of the definition, renamed with `=`,
   by the definition's name, or inline. */
block_declaration
    : '.' IDENTIFIER rename array_subscript_spec hdl_path offset {
          container_instance_in_domain(BRIX_BLOCK, $2, $3, $4, $5, $6);
      }
      increment cover_spec { container_instance_tail(BRIX_BLOCK, $8, $9); }
    | '=' IDENTIFIER array_subscript_spec hdl_path offset {
          container_instance_renamed(BRIX_BLOCK, $2, $3, $4, $5);
      }
      increment cover_spec { container_instance_tail(BRIX_BLOCK, $7, $8); }
    | array_subscript_spec hdl_path offset increment {
          container_instance_place(BRIX_BLOCK, $1, $2, $3, $4);
      }
      block_declaration_continued { container_instance_by_name_end(BRIX_BLOCK); }
    ;

block_declaration_continued
    : '{' { begin_inline_container_type(BRIX_BLOCK); }
      domain_block_properties { inline_container_before_close(BRIX_BLOCK); } '}'
    | cover_spec { container_instance_by_name(BRIX_BLOCK, $1); }
    ;

system_declaration
    : '.' IDENTIFIER rename array_subscript_spec hdl_path offset {
          container_instance_in_domain(BRIX_SYSTEM, $2, $3, $4, $5, $6);
      }
      increment cover_spec { container_instance_tail(BRIX_SYSTEM, $8, $9); }
    | '=' IDENTIFIER array_subscript_spec hdl_path offset {
          container_instance_renamed(BRIX_SYSTEM, $2, $3, $4, $5);
      }
      increment cover_spec { container_instance_tail(BRIX_SYSTEM, $7, $8); }
    | array_subscript_spec hdl_path offset increment {
          container_instance_place(BRIX_SYSTEM, $1, $2, $3, $4);
      }
      system_declaration_continued { container_instance_by_name_end(BRIX_SYSTEM); }
    ;

system_declaration_continued
    : '{' { begin_inline_container_type(BRIX_SYSTEM); }
      domain_system_properties { inline_container_before_close(BRIX_SYSTEM); } '}'
    | cover_spec { container_instance_by_name(BRIX_SYSTEM, $1); }
    ;

%%

namespace {
// The name under which a token shows in a syntax error.
const char* brix_token_name(yysymbol_kind_t symbol) {
    if (symbol == YYSYMBOL_YYEOF) {
        return "$end";
    }
    if (symbol == YYSYMBOL_YYUNDEF) {
        return "$undefined";
    }
    if (symbol == YYSYMBOL_WHOLE_HASHLINE) {
        return "HASHLINE";
    }
    return yysymbol_name(symbol);
}
} // namespace

// "syntax error, unexpected X, expecting A or B": the expected tokens are listed when
// there are at most four of them, and a state without a table of its own lists nothing.
static int yyreport_syntax_error(const yypcontext_t* ctx) {
    constexpr int max_expected = 4;
    if (yypact_value_is_default(yypact[+*ctx->yyssp])) {
        yyerror("syntax error");
    }
    std::string message = "syntax error, unexpected ";
    message += brix_token_name(yypcontext_token(ctx));
    // The whole hash line is always expected along with HASHLINE: it is not listed.
    yysymbol_kind_t expected[YYNTOKENS];
    const int all = yypcontext_expected_tokens(ctx, expected, YYNTOKENS);
    const int count = static_cast<int>(
        std::remove(expected, expected + all, YYSYMBOL_WHOLE_HASHLINE) - expected);
    if (count > 0 && count <= max_expected) {
        for (int i = 0; i < count; ++i) {
            message += i == 0 ? ", expecting " : " or ";
            message += brix_token_name(expected[i]);
        }
    }
    yyerror(message.c_str());
}
