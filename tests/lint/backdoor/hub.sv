// The design behind tests/golden/hx_backdoor/shared_register_regfile_array: the regfile
// array is indexed at run time, so it is an array of records rather than of instances.
module hub_dut;
    typedef struct {
        logic [31:0] cfg_q;
    } hub_pair_t;
    logic [31:0] mbox_q;
    hub_pair_t rf[2];
endmodule
