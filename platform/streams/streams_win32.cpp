#include "platform/streams/streams.h"

namespace tiv::streams {

void reserveClosed() {}  // the numbers of closed streams are not used for other files

}  // namespace tiv::streams
