#include "expand/expand.hpp"

#include "driver/diag.hpp"

#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace {
// Creates the pure file exclusively and without following links, so that a file or
// link planted under the predictable name is neither followed nor truncated.
int create_pure_file(const char* pure_file) {
    const int fd = open(pure_file, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
    if (fd < 0) {
        // The name belongs to somebody else: leave it where it stands. pure_file may be
        // pure_brix_file itself, so keep a copy for the message.
        const std::string name = pure_file;
        pure_brix_file[0] = '\0';
        brix_error("Error: Failed to open temporary %d file '%s' for writing...\n", fd, name);
    }
    return fd;
}
} // namespace

void expand_tcl_constructs(const char* description_file, const char* pure_file) {
    (void)description_file;
    const int fd = create_pure_file(pure_file);
    close(fd);
}
