#include "platform/streams/streams.h"

#include <fcntl.h>
#include <unistd.h>

namespace tiv::streams {

void reserveClosed() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (fcntl(stream, F_GETFD) != -1) continue;
        // open() returns the lowest free number, which is this one. Reading from an input that is open for
        // writing, or the other way round, fails.
        [[maybe_unused]] const int opened = open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

}  // namespace tiv::streams
