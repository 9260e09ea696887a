// Command line of brixmap: reads a description as brixgen does and writes one output about
// the map of its top.
#pragma once

int brixmap_main(int argc, char** argv);
