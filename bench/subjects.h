// The operations of the program `bench`, by subject.
#pragma once

#include "bench/operations.h"

namespace bench {

std::vector<Operation> tableOperations();      // EchoData without its inspector
std::vector<Operation> inspectorOperations();  // EchoData with its inspector
std::vector<Operation> projectOperations();    // the project database
std::vector<Operation> peerOperations();       // the same work with plain Qt
std::vector<Holding> inspectorHoldings();
std::vector<Holding> peerHoldings();

}  // namespace bench
