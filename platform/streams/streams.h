// The standard streams of a command-line program.
#pragma once

namespace tiv::streams {

// Call it first in main(). A standard stream that the caller has closed ("<&-") fails from then on with EBADF.
// Otherwise the next file that the program opens gets its number, and is read or written in its place.
void reserveClosed();

}  // namespace tiv::streams
