// Stand-in for the simulator's `$hdl_xmr`, with its arguments: the object that drives and
// the object that follows it, both as hierarchical names.
task automatic hdl_xmr(input string source, input string target);
endtask
