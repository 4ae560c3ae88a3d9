// What a call throws, for rows of failures:
//
//     EXPECT_EQ(failureOf([&] { transaction.erase(1); }), "Unknown key.");
#pragma once

#include <stdexcept>
#include <string>

namespace test {

// The text of the exception; empty when nothing was thrown. Other exceptions pass.
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
