// Stand-in for the run-time library's interface, for linting generated models only.
// It declares the classes, methods, constants and macros that generated text calls, with
// the argument types those calls need; the bodies do nothing.
`ifndef QVT_BRX_SV
`define QVT_BRX_SV

`ifndef QVT_BRX_ADDR_WIDTH
`define QVT_BRX_ADDR_WIDTH 64
`endif
`ifndef QVT_BRX_DATA_WIDTH
`define QVT_BRX_DATA_WIDTH 64
`endif

package qvt_brx;
    // Coverage models, combined with `|`.
    localparam int NO_COVERAGE = 0;
    localparam int ADDR_MAP = 1;
    localparam int REG_BITS = 2;
    localparam int FIELD_VALS = 4;
    localparam int ALL_COVERAGE = 7;

    // Field and memory access words.
    localparam int RW = 0;
    localparam int RO = 1;
    localparam int WO = 2;
    localparam int W1 = 3;
    localparam int RU = 4;
    localparam int W1C = 5;
    localparam int RC = 6;
    localparam int A1 = 7;
    localparam int A0 = 8;
    localparam int DC = 9;
    localparam int OTHER = 10;
    localparam int USER0 = 11;
    localparam int USER1 = 12;
    localparam int USER2 = 13;
    localparam int USER3 = 14;

    // Byte order of an interface.
    localparam int LITTLE_ENDIAN = 0;
    localparam int BIG_ENDIAN = 1;
    localparam int LITTLE_FIFO = 2;
    localparam int BIG_FIFO = 3;
    localparam int NO_ENDIAN = 4;
endpackage

// The answer of a backdoor access.
package qvt_rw;
    typedef enum int {
        IS_OK,
        ERROR
    } status_e;
endpackage

// Direct access to a register or a memory through its paths in the design.
virtual class qvt_brx_reg_backdoor;
    pure virtual task read(output qvt_rw::status_e status,
                           output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
                           input int scenario_id, input int stream_id);
    pure virtual task write(output qvt_rw::status_e status,
                            input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
                            input int scenario_id, input int stream_id);
endclass

virtual class qvt_brx_mem_backdoor;
    pure virtual task read(output qvt_rw::status_e status,
                           input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
                           output bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
                           input int scenario_id, input int stream_id);
    pure virtual task write(output qvt_rw::status_e status,
                            input bit [`QVT_BRX_ADDR_WIDTH-1:0] offset,
                            input bit [`QVT_BRX_DATA_WIDTH-1:0] data, input int data_id,
                            input int scenario_id, input int stream_id);
endclass

typedef class qvt_brx_block;

// What the lint puts in place of a covergroup, which the front end cannot read: a handle
// that is built with a name and sampled.
class qvt_brx_covergroup;
    function new(string name = "");
    endfunction
    function void sample();
    endfunction
endclass

typedef class qvt_brx_sys;

// What every node of a model can do.
virtual class qvt_brx_node;
    protected string m_name;
    function string get_fullname();
        return m_name;
    endfunction
    function void set_attribute(string name, string value);
        m_name = {m_name, name, value};
    endfunction
    function void Xadd_constraintsX(string name);
        m_name = {m_name, name};
    endfunction
    function bit can_cover(int model);
        return model != 0;
    endfunction
    function bit is_cover_on(int model);
        return model != 0;
    endfunction
endclass

// Registers and memories: one object may be mapped into several domains of a block.
virtual class qvt_brx_mapped extends qvt_brx_node;
    function void add_domain(bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain,
                             bit [1:0] rights, bit unmapped);
    endfunction
endclass

class qvt_brx_reg extends qvt_brx_mapped;
    qvt_brx_reg_backdoor backdoor; // kept so that a test can reach it
    function void set_backdoor(qvt_brx_reg_backdoor backdoor);
        this.backdoor = backdoor;
    endfunction
    function new(qvt_brx_block parent, string name, int n_bits,
                 bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, string domain, int cvr,
                 bit [1:0] rights, bit unmapped, int coverage);
        m_name = name;
    endfunction
endclass

class qvt_brx_field;
    rand logic [`QVT_BRX_DATA_WIDTH-1:0] value;
    function new(qvt_brx_reg parent, string name, int n_bits, int access,
                 logic [`QVT_BRX_DATA_WIDTH-1:0] hard_reset,
                 logic [`QVT_BRX_DATA_WIDTH-1:0] soft_reset, int lsb, bit constrained, int cvr);
    endfunction
endclass

class qvt_brx_mem extends qvt_brx_mapped;
    qvt_brx_mem_backdoor backdoor;
    function void set_backdoor(qvt_brx_mem_backdoor backdoor);
        this.backdoor = backdoor;
    endfunction
    function new(qvt_brx_block parent, string name, int access,
                 bit [`QVT_BRX_ADDR_WIDTH-1:0] size, int n_bits,
                 bit [`QVT_BRX_ADDR_WIDTH-1:0] base_address, string domain, int cvr,
                 bit [1:0] rights, bit unmapped, int coverage);
        m_name = name;
    endfunction
endclass

class qvt_brx_vreg extends qvt_brx_node;
    function new(qvt_brx_block parent, string name, int unsigned n_bits,
                 bit [`QVT_BRX_ADDR_WIDTH-1:0] offset, qvt_brx_mem mem, longint unsigned size,
                 int unsigned incr);
        m_name = name;
    endfunction
endclass

class qvt_brx_vfield;
    rand logic [`QVT_BRX_DATA_WIDTH-1:0] value;
    function new(qvt_brx_vreg parent, string name, int n_bits, int lsb);
    endfunction
endclass

class qvt_brx_block extends qvt_brx_node;
    // The name of each domain, by its index.
    string domains[int];
    function new(qvt_brx_sys parent, string name, string type_name, int bytes, int endian,
                 integer base_addr, string domain, int cover_on, int coverage);
        m_name = name;
    endfunction
    function void add_domain(int bytes, int endian, string domain);
    endfunction
    function void Xlock_modelX();
    endfunction
endclass

class qvt_brx_sys extends qvt_brx_block;
    function new(qvt_brx_sys parent, string name, string type_name, int bytes, int endian,
                 integer base_addr, string domain, int cover_on, int coverage);
        super.new(parent, name, type_name, bytes, endian, base_addr, domain, cover_on, coverage);
    endfunction
    function void register_block(qvt_brx_block block, string domain, string sys_domain,
                                 bit [`QVT_BRX_ADDR_WIDTH-1:0] offset);
    endfunction
    function void register_subsys(qvt_brx_sys subsys, string domain, string sys_domain,
                                  bit [`QVT_BRX_ADDR_WIDTH-1:0] offset);
    endfunction
endclass

`endif
