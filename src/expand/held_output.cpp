// Tcl's stdout channel is line buffered, so on its own it makes one write to descriptor 1
// for every line of the pure text. A thin channel stacked on it takes what Tcl hands down
// at each of those points and holds it, and writes it to the channel below in big pieces.
// What reaches the file is the same, and in the same place: the held bytes go down before
// anything else can write to descriptor 1 (stdio, a child process started by `exec` or
// `open` in any interpreter, a seek, the end of the channel, the end of the run) and
// whenever the script could see the file (its own `flush`, an `open`).
#include "expand/expand.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <string>
#if BRIX_TCL_PRIVATE
#include <tclInt.h>
#include <tclIO.h>
#endif

namespace {

constexpr std::size_t held_limit = std::size_t{1} << 20;

Tcl_Channel below = nullptr;
std::string held;
// Once the descriptor has been handed out (to a child process), every write goes straight
// down, as without this channel.
bool write_through = false;

// Writes all of it, or ends the run: the pure description must not lose a byte.
int write_down(const char* bytes, int count) {
    for (int done = 0; done < count;) {
        const int written = Tcl_WriteRaw(below, bytes + done, count - done);
        if (written <= 0) {
            brix_pure_write_failed(written < 0 ? Tcl_GetErrno() : 0);
        }
        done += written;
    }
    return count;
}

void release() {
    if (held.empty()) {
        return;
    }
    // Taken out first, so that the way out after a failed write finds nothing to write.
    std::string out;
    out.swap(held);
    write_down(out.data(), static_cast<int>(out.size()));
    out.clear();
    held.swap(out);
}

int held_close(ClientData, Tcl_Interp*) {
    release();
    return 0;
}

int held_input(ClientData, char*, int, int* error) {
    *error = EINVAL;
    return -1;
}

int held_output(ClientData, const char* bytes, int count, int*) {
    if (write_through) {
        return write_down(bytes, count);
    }
    held.append(bytes, static_cast<std::size_t>(count));
    if (held.size() >= held_limit) {
        release();
    }
    return count;
}

ClientData below_data() {
    return Tcl_GetChannelInstanceData(below);
}
const Tcl_ChannelType* below_type() {
    return Tcl_GetChannelType(below);
}

Tcl_WideInt held_wide_seek(ClientData, Tcl_WideInt offset, int mode, int* error) {
    release();
    if (Tcl_DriverWideSeekProc* seek = Tcl_ChannelWideSeekProc(below_type())) {
        return seek(below_data(), offset, mode, error);
    }
    if (Tcl_DriverSeekProc* seek = Tcl_ChannelSeekProc(below_type())) {
        return seek(below_data(), static_cast<long>(offset), mode, error);
    }
    *error = EINVAL;
    return -1;
}

int held_seek(ClientData data, long offset, int mode, int* error) {
    return static_cast<int>(held_wide_seek(data, offset, mode, error));
}

int held_set_option(ClientData, Tcl_Interp* interp, const char* name, const char* value) {
    if (Tcl_DriverSetOptionProc* set = Tcl_ChannelSetOptionProc(below_type())) {
        return set(below_data(), interp, name, value);
    }
    return Tcl_BadChannelOption(interp, name, nullptr);
}

int held_get_option(ClientData, Tcl_Interp* interp, const char* name, Tcl_DString* value) {
    if (Tcl_DriverGetOptionProc* get = Tcl_ChannelGetOptionProc(below_type())) {
        return get(below_data(), interp, name, value);
    }
    return name == nullptr ? TCL_OK : Tcl_BadChannelOption(interp, name, nullptr);
}

void held_watch(ClientData, int mask) {
    if (Tcl_DriverWatchProc* watch = Tcl_ChannelWatchProc(below_type())) {
        watch(below_data(), mask);
    }
}

int held_get_handle(ClientData, int direction, ClientData* handle) {
    return Tcl_GetChannelHandle(below, direction, handle);
}

int held_block_mode(ClientData, int mode) {
    if (Tcl_DriverBlockModeProc* block = Tcl_ChannelBlockModeProc(below_type())) {
        return block(below_data(), mode);
    }
    return 0;
}

int held_handler(ClientData, int mask) {
    return mask;
}

int held_truncate(ClientData, Tcl_WideInt length) {
    release();
    if (Tcl_DriverTruncateProc* truncate = Tcl_ChannelTruncateProc(below_type())) {
        return truncate(below_data(), length);
    }
    return EINVAL;
}

const Tcl_ChannelType held_channel_type = {
    "held",    TCL_CHANNEL_VERSION_5, held_close,      held_input,   held_output,
    held_seek, held_set_option,       held_get_option, held_watch,   held_get_handle,
    nullptr,   held_block_mode,       nullptr,         held_handler, held_wide_seek,
    nullptr,   held_truncate,
};

// Tcl's commands through which a script can see the file or hand descriptor 1 to a child
// process, in every interpreter that the script makes.
enum class watched { exec, open, flush, interp };
struct watched_command {
    watched kind;
    Tcl_ObjCmdProc* proc;
    ClientData data;
};

void watch_interp(Tcl_Interp* interp);

bool names_subcommand(int objc, Tcl_Obj* const objv[], const char* name) {
    return objc > 1 && strcmp(Tcl_GetString(objv[1]), name) == 0;
}

// Runs Tcl's own command. What is held goes down before the script can read the file
// (`open` of it) or a child process can write to it, and from a child's start on nothing
// is held, as the child may go on writing; a `flush` by the script lets it down too.
int run_watched(ClientData data, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    const watched_command& cmd = *static_cast<const watched_command*>(data);
    if (cmd.kind == watched::exec || cmd.kind == watched::open) {
        release();
        write_through = write_through || cmd.kind == watched::exec ||
                        (objc > 1 && Tcl_GetString(objv[1])[0] == '|');
    }
    const int status = cmd.proc(cmd.data, interp, objc, objv);
    if (cmd.kind == watched::flush) {
        release();
    } else if (cmd.kind == watched::interp && status == TCL_OK &&
               names_subcommand(objc, objv, "create")) {
        if (Tcl_Interp* child = Tcl_GetSlave(interp, Tcl_GetStringResult(interp))) {
            watch_interp(child);
        }
    }
    return status;
}

void forget_watched(ClientData data) {
    delete static_cast<watched_command*>(data);
}

void watch_command(Tcl_Interp* interp, const char* name, watched kind) {
    Tcl_CmdInfo info;
    if (Tcl_GetCommandInfo(interp, name, &info) == 0 || info.objProc == nullptr ||
        info.objProc == run_watched) {
        return;
    }
    Tcl_CreateObjCommand(interp, name, run_watched,
                         new watched_command{kind, info.objProc, info.objClientData},
                         forget_watched);
}

void watch_interp(Tcl_Interp* interp) {
    watch_command(interp, "::exec", watched::exec);
    watch_command(interp, "::open", watched::open);
    watch_command(interp, "::flush", watched::flush);
    watch_command(interp, "::tcl::chan::flush", watched::flush);
    watch_command(interp, "::interp", watched::interp);
}

} // namespace

namespace {
// The interpreter's table of channels by name, once looked up: it lives as long as the
// interpreter. Null until then, and again for each new interpreter.
Tcl_HashTable* channel_table = nullptr;
} // namespace

void brix_hold_tcl_stdout() {
    channel_table = nullptr;
    const Tcl_Channel out = Tcl_GetStdChannel(TCL_STDOUT);
    if (out == nullptr) {
        return;
    }
    below = out;
    held.clear();
    write_through = false;
    Tcl_StackChannel(brixgen_interp, &held_channel_type, nullptr, TCL_WRITABLE, out);
    watch_interp(brixgen_interp);
}

void brix_release_tcl_stdout() {
    if (below != nullptr) {
        release();
    }
}

#if BRIX_TCL_PRIVATE
Tcl_Channel brix_stdout_channel(int* mode) {
    // What Tcl_GetChannel does for "stdout", with the table kept.
    const auto* std_out = reinterpret_cast<const Channel*>(Tcl_GetStdChannel(TCL_STDOUT));
    if (brix_tcl_internals && channel_table != nullptr && std_out != nullptr) {
        if (Tcl_HashEntry* entry = Tcl_FindHashEntry(channel_table, std_out->state->channelName)) {
            Channel* bottom = static_cast<Channel*>(Tcl_GetHashValue(entry))->state->bottomChanPtr;
            *mode = bottom->state->flags & (TCL_READABLE | TCL_WRITABLE);
            return reinterpret_cast<Tcl_Channel>(bottom);
        }
    }
    // Not found sets the interpreter's result as it does.
    const Tcl_Channel found = Tcl_GetChannel(brixgen_interp, "stdout", mode);
    channel_table = static_cast<Tcl_HashTable*>(Tcl_GetAssocData(brixgen_interp, "tclIO", nullptr));
    return found;
}

bool brix_commands_run(unsigned* count) {
    if (!brix_tcl_internals) {
        return false;
    }
    *count = static_cast<unsigned>(reinterpret_cast<Interp*>(brixgen_interp)->cmdCount);
    return true;
}

bool brix_untraced(Tcl_Command command) {
    return brix_tcl_internals && reinterpret_cast<Interp*>(brixgen_interp)->tracePtr == nullptr &&
           reinterpret_cast<Command*>(command)->tracePtr == nullptr;
}

// The encoding's conversion costs more per write than all the rest of the write; Tcl_Write
// fills and flushes the channel's buffer as Tcl_WriteChars does, without it.
bool brix_passes_unconverted(Tcl_Channel out, bool ascii) {
    if (!ascii || !brix_tcl_internals) {
        return false;
    }
    static const Tcl_Encoding unchanged[] = {Tcl_GetEncoding(nullptr, "utf-8"),
                                             Tcl_GetEncoding(nullptr, "iso8859-1"),
                                             Tcl_GetEncoding(nullptr, "ascii")};
    const ChannelState* state = reinterpret_cast<Channel*>(out)->state;
    return state->outputTranslation == TCL_TRANSLATE_LF &&
           std::find(std::begin(unchanged), std::end(unchanged), state->encoding) !=
               std::end(unchanged);
}

// Tcl_Write of unconverted text on the holding channel, when its buffers are empty and it
// is line buffered, ends by handing all of a text with a newline in it down to
// held_output; so does an unbuffered channel with any text. Then the text goes to the held
// bytes here, without the channel's buffers and flush in between.
bool brix_hold_directly(Tcl_Channel out, std::string_view text) {
    if (below == nullptr || write_through) {
        return false;
    }
    // Tcl names a channel by the bottom of its stack and writes at the top.
    const ChannelState* state = reinterpret_cast<const Channel*>(out)->state;
    const Channel* chan = state->topChanPtr;
    constexpr int unusual = CHANNEL_NONBLOCKING | CHANNEL_CLOSED | CHANNEL_DEAD | CHANNEL_BLOCKED |
                            CHANNEL_INCLOSE | CHANNEL_CLOSEDWRITE | BG_FLUSH_SCHEDULED;
    const bool handed_down =
        (state->flags & CHANNEL_UNBUFFERED) != 0 ||
        ((state->flags & CHANNEL_LINEBUFFERED) != 0 && text.find('\n') != std::string_view::npos);
    const ChannelBuffer* current = state->curOutPtr;
    if (chan->typePtr != &held_channel_type || !handed_down || (state->flags & TCL_WRITABLE) == 0 ||
        (state->flags & unusual) != 0 || state->unreportedError != 0 ||
        state->unreportedMsg != nullptr || state->csPtrW != nullptr ||
        state->outQueueHead != nullptr ||
        (current != nullptr && current->nextAdded != current->nextRemoved)) {
        return false;
    }
    int error = 0;
    held_output(nullptr, text.data(), static_cast<int>(text.size()), &error);
    return true;
}
#else
Tcl_Channel brix_stdout_channel(int* mode) {
    return Tcl_GetChannel(brixgen_interp, "stdout", mode);
}
// Without the interpreter's state in view, a trace may be watching: every piece goes
// through an evaluated `puts`.
bool brix_untraced(Tcl_Command) {
    return false;
}
// Without the channel's state in view, every write converts.
bool brix_passes_unconverted(Tcl_Channel, bool) {
    return false;
}
bool brix_commands_run(unsigned*) {
    return false;
}
bool brix_hold_directly(Tcl_Channel, std::string_view) {
    return false;
}
#endif
