// The standard streams of a command-line program.
#pragma once

namespace tiv::streams {

// Call it first in main(). From then on a standard stream that the caller has closed ("<&-") fails with EBADF.
// Otherwise the next file that the program opens would get its number, and be read or written in its place.
void reserveClosed();

}  // namespace tiv::streams
