#include "platform/streams/streams.h"

#include <fcntl.h>
#include <unistd.h>

namespace tiv::streams {

void reserveClosed() {
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (fcntl(stream, F_GETFD) != -1) continue;
        // The lowest free number is this one. It is opened for the direction in which nobody uses it.
        [[maybe_unused]] const int opened = open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

}  // namespace tiv::streams
