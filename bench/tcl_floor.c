/* The object-evaluation floor: plain Tcl evaluating a description whose keywords are C
 * object commands. Each command keeps its words (as a list append, like the procedure
 * floor) and evaluates a body word with Tcl_EvalObjEx, so that bodies are compiled once
 * and run as bytecode. What brixgen adds on top of this is its own cost.
 *
 *   tcl_floor FILE
 */
#include <stdio.h>
#include <string.h>
#include <tcl.h>

static Tcl_Obj* words;

static int evaluates(const char* cmd) {
    static const char* const plain[] = {"doc", "constraint", "enum", "attributes", "bins"};
    for (size_t i = 0; i < sizeof plain / sizeof plain[0]; i++)
        if (strcmp(cmd, plain[i]) == 0)
            return 0;
    return 1;
}

static int keyword(ClientData data, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    Tcl_ListObjAppendElement(NULL, words, Tcl_NewListObj(objc, objv));
    if (data == NULL || objc < 3)
        return TCL_OK;
    Tcl_Obj* last = objv[objc - 1];
    int len;
    const char* text = Tcl_GetStringFromObj(last, &len);
    if (len != 0 && strpbrk(text, " \t\n") == NULL)
        return TCL_OK;
    return Tcl_EvalObjEx(interp, last, 0);
}

int main(int argc, char** argv) {
    static const char* const cmds[] = {
        "system",        "block",  "register",   "virtual",    "field",      "bits",
        "attributes",    "doc",    "constraint", "bytes",      "size",       "endian",
        "left_to_right", "access", "reset",      "hard_reset", "soft_reset", "initial",
        "noise",         "shared", "memory",     "regfile",    "domain",     "cover",
        "cross",         "label",  "enum",       "coverpoint", "bins"};
    if (argc != 2) {
        fprintf(stderr, "usage: tcl_floor FILE\n");
        return 2;
    }
    Tcl_FindExecutable(argv[0]);
    Tcl_Interp* interp = Tcl_CreateInterp();
    words = Tcl_NewListObj(0, NULL);
    Tcl_IncrRefCount(words);
    for (size_t i = 0; i < sizeof cmds / sizeof cmds[0]; i++)
        Tcl_CreateObjCommand(interp, cmds[i], keyword, evaluates(cmds[i]) ? interp : NULL, NULL);
    Tcl_SetVar(interp, "file", argv[1], 0);
    /* Array subscripts protected as brixgen protects them, then the script evaluated. */
    const char* run = "set f [open $file]; set text [read $f]; close $f\n"
                      "regsub -all {\\[([0-9:%d]*)\\]} $text {\\\\[\\1\\\\]} text\n"
                      "eval $text";
    if (Tcl_Eval(interp, run) != TCL_OK) {
        fprintf(stderr, "%s\n", Tcl_GetStringResult(interp));
        return 1;
    }
    return 0;
}
