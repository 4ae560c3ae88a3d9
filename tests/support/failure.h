// The text of the exception that a call throws:
//
//     EXPECT_EQ(failureOf([&] { transaction.erase(1); }), "Unknown key.");
#pragma once

#include <stdexcept>
#include <string>

namespace test {

// Returns an empty text when nothing was thrown. Exceptions of other types pass.
template <class Exception = std::runtime_error, class Call>
std::string failureOf(Call call) {
    try {
        call();
    } catch (const Exception& exception) {
        return exception.what();
    }
    return {};
}

}  // namespace test
