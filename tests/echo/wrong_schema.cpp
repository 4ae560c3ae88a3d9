// Must not compile: each record has a fault, and the compiler must print its message.
#include "echo/src/program_data.h"

namespace tiv::echo::data {

struct Forgotten {
    OutPutType one = DEFAULT_OUTPUT, two = DEFAULT_OUTPUT;
};
constexpr auto forgotten = bond::record<Forgotten>("test.Forgotten", option("one", &Forgotten::one, "One"));

template <class Number>
struct Options {
    OutPutType one = DEFAULT_OUTPUT;
    Number two = {};
};
template <class Number>
struct Data {
    Options<Number> prop;
};
template <class Number>
constexpr auto describe(const Options<Number>*) {
    using O = Options<Number>;
    return bond::record<O>("test.Options", option("one", &O::one, "One"), bond::field("two", &O::two));
}

constexpr OptionNumber oneNumber[] = {1}, twoNumbers[] = {1, 2};
constexpr ServedType withoutNumber = serves<Data<OutPutType>>(EchoData::KST, oneNumber);
constexpr ServedType withoutLevel = serves<Data<int>>(EchoData::KST, twoNumbers);

}  // namespace tiv::echo::data
