// The operations of the program `bench`, by what they are about.
#pragma once

#include "bench/operations.h"

namespace bench {

std::vector<Operation> tableOperations();      // EchoData without its inspector
std::vector<Operation> inspectorOperations();  // and with it
std::vector<Operation> projectOperations();    // the project database
std::vector<Operation> peerOperations();       // what plain Qt takes for the same

}  // namespace bench
