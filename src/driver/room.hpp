// The run's own stack, and the way out of a crash.
#pragma once

// Runs `run` on a stack of its own, big enough for scripts that a description builds nested
// far deeper than the usual stack allows (Tcl's parser recurses once per level of brackets),
// and returns its result. A run that still overflows that stack ends with a message and
// status 1; any other crash first removes the temporary file. The program stays single
// threaded: the caller's thread only waits.
int brix_run_with_room(int (*run)(int, char**), int argc, char** argv);
