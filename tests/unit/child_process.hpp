// Runs a piece of a test in a forked child: the program ends on errors, moves
// descriptors and keeps process-wide state, none of which may reach the test itself.
#pragma once

#include <cstdio>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace brix_test {

struct child_result {
    int status = -1;
    std::string out;
    std::string err;
};

inline std::string read_all(FILE* f) {
    std::string text;
    rewind(f);
    char buf[4096];
    for (size_t n; (n = fread(buf, 1, sizeof buf, f)) > 0;) {
        text.append(buf, n);
    }
    fclose(f);
    return text;
}

// Runs `body` in a child process and returns its exit status and both streams, so that a
// run that ends through the diagnostics can be compared byte for byte.
template <class F> child_result run_in_child(F body) {
    fflush(stdout);
    fflush(stderr);
    FILE* out = tmpfile();
    FILE* err = tmpfile();
    const pid_t pid = fork();
    if (pid == 0) {
        dup2(fileno(out), 1);
        dup2(fileno(err), 2);
        body();
        fflush(stdout);
        fflush(stderr);
        _exit(0);
    }
    int wstatus = 0;
    waitpid(pid, &wstatus, 0);
    child_result result;
    result.status = WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : 128 + WTERMSIG(wstatus);
    result.out = read_all(out);
    result.err = read_all(err);
    return result;
}

} // namespace brix_test
