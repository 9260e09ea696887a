// HX models of what no description can reach through the parser (a bin of the `[n]`
// form) and of an odd corner kept from the SystemVerilog side (one named domain).
#include "gen_sv_builder.hpp"

using namespace brix_build;

namespace {

using hx_test = generator_test;

brix_cvr_spec_tag* models_on() {
    brix_cvr_spec_tag* spec = new_all_unsaid_cvr_spec();
    spec->field_vals = 1;
    spec->addr_map = 1;
    return spec;
}

brix_cvr_bin* bin(const char* name, int32_t num_bins, const char* value) {
    auto* b = record(initialize_cvr_bin);
    b->name = s(name);
    b->num_bins = num_bins;
    auto* v = brix_new_record<brix_cvr_bin_value>();
    v->kind = 2;
    v->value = s(value);
    b->values = list_of(BRIX_CVR_BIN_VALUE, {v});
    return b;
}

TEST_F(hx_test, count_form_bin_leaves_only_its_tabs_and_counts_nothing) {
    brix_field_tag* f = field("pick", 8);
    f->type->coverpoint = brix_new_record<brix_cvr_pnt>();
    f->type->coverpoint->bins = list_of(BRIX_CVR_BIN, {bin("some", 4, "1"), bin("one", 0, "2")});
    block_type("b", {domain(nullptr, 4, nullptr, {reg("r", reg_type("t", 4, {f}))})})->cvr_spec =
        models_on();
    ask_models("f");
    EXPECT_TRUE(holds(generate("b", "hx"), "\t\tsample pick_value(pick.value) {\n"
                                           "\t\t\t\t\t\tstate one ( 2 );\n"
                                           "\t\t\tcov_weight = 1;\n"
                                           "\t\t}\n"));
}

TEST_F(hx_test, single_named_domain_declares_its_name_and_builds_the_plain_group) {
    block_type("b", {domain("d", 4, nullptr, {reg("r", reg_type("t", 4, {field("f", 1)}), "0x0")})})
        ->cvr_spec = models_on();
    ask_models("a");
    const std::string text = generate("b", "hx");
    EXPECT_TRUE(holds(text, "\tevent cvr_d_addr_map;\n\n"
                            "\tcoverage_group d_addr_map {\n"
                            "\t\tsample_event = sync(ANY, cvr_d_addr_map) async;\n"
                            "\t\tcumulative = 0;\n"));
    EXPECT_TRUE(holds(text, "\ttask new (string name) {\n\t\tthis.addr_map = new();\n\t}\n"));
    EXPECT_TRUE(holds(text, "\t\ttrigger(this.cvr_addr_map);\n"));
}

} // namespace
