#include "platform/streams/streams.h"

namespace tiv::streams {

void reserveClosed() {}  // Windows does not reuse the numbers of closed streams

}  // namespace tiv::streams
