#include "driver/room.hpp"

#include "driver/diag.hpp"

#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// Tcl's parser takes some 300 bytes of stack per level of brackets (more under the
// sanitizers); the pages are only touched as deep as a script goes.
constexpr std::size_t run_stack_size = std::size_t{1} << 30;
// Wide enough that no frame steps over it into other memory.
constexpr std::size_t guard_size = std::size_t{1} << 20;
constexpr std::size_t signal_stack_size = std::size_t{1} << 18;

constexpr int fatal_signals[] = {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};
struct sigaction previous_actions[NSIG];

// The lowest usable address of the run's stack; a fault in the guard below it is an
// overflow. Null when the run has no stack of its own.
const char* stack_low = nullptr;

void write_stderr(const char* text) {
    (void)!write(STDERR_FILENO, text, strlen(text));
}

// Only async-signal-safe calls here.
void on_fatal_signal(int sig, siginfo_t* info, void*) {
    if (pure_brix_file[0] != '\0') {
        unlink(pure_brix_file);
    }
    const char* at = static_cast<const char*>(info->si_addr);
    if (sig == SIGSEGV && stack_low != nullptr && at < stack_low && at >= stack_low - guard_size) {
        write_stderr("Error: The description nests too deeply: out of stack space.\n");
        // Not _exit: a sanitizer would first warn of the unwinding that a call declared
        // not to return implies, from the signal's stack across the run's.
        syscall(SYS_exit_group, 1);
    }
    if (sig != SIGABRT) {
        // An abort comes with its own words.
        char text[48] = "Fatal Error: stopped by signal ";
        std::size_t n = strlen(text);
        if (sig >= 10) {
            text[n++] = static_cast<char>('0' + sig / 10);
        }
        text[n++] = static_cast<char>('0' + sig % 10);
        text[n++] = '.';
        text[n++] = '\n';
        text[n] = '\0';
        write_stderr(text);
    }
    // The signal comes again as the faulting instruction runs again (an abort raises it
    // once more), and ends the process as it would have: by the earlier handler, which may
    // be a sanitizer's report, or by the default action.
    sigaction(sig, &previous_actions[sig], nullptr);
}

void install_fatal_signal_handlers() {
    struct sigaction action {};
    action.sa_sigaction = on_fatal_signal;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (const int sig : fatal_signals) {
        sigaction(sig, &action, &previous_actions[sig]);
    }
}

// A stack overflow leaves no room on the stack itself for the handler. One that a
// sanitizer has set up already serves as well, and stays its own to remove.
void give_signals_a_stack() {
    stack_t current{};
    if (sigaltstack(nullptr, &current) == 0 && (current.ss_flags & SS_DISABLE) == 0) {
        return;
    }
    stack_t stack{};
    stack.ss_sp = malloc(signal_stack_size);
    stack.ss_size = signal_stack_size;
    if (stack.ss_sp != nullptr) {
        sigaltstack(&stack, nullptr);
    }
}

struct run_call {
    int (*run)(int, char**);
    int argc;
    char** argv;
    int result;
};

void* run_on_this_thread(void* data) {
    auto* call = static_cast<run_call*>(data);
    pthread_attr_t attr;
    if (pthread_getattr_np(pthread_self(), &attr) == 0) {
        void* low = nullptr;
        std::size_t size = 0;
        if (pthread_attr_getstack(&attr, &low, &size) == 0) {
            stack_low = static_cast<const char*>(low);
        }
        pthread_attr_destroy(&attr);
    }
    give_signals_a_stack();
    call->result = call->run(call->argc, call->argv);
    return nullptr;
}

} // namespace

int brix_run_with_room(int (*run)(int, char**), int argc, char** argv) {
    install_fatal_signal_handlers();
    run_call call{run, argc, argv, 0};
    pthread_attr_t attr;
    pthread_attr_init(&attr);
    pthread_attr_setstacksize(&attr, run_stack_size);
    pthread_attr_setguardsize(&attr, guard_size);
    pthread_t thread;
    const bool started = pthread_create(&thread, &attr, run_on_this_thread, &call) == 0;
    pthread_attr_destroy(&attr);
    if (!started) {
        // No room to be had (an address space limit): the usual stack, still with the
        // clean-up on a crash.
        give_signals_a_stack();
        return run(argc, argv);
    }
    pthread_join(thread, nullptr);
    return call.result;
}
