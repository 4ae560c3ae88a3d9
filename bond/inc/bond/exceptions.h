/// \file
/// What reading a settings string throws. A host that loads strings of unknown origin catches
/// bond::Exception (or std::exception): the settings are unchanged when one of these is thrown.
///
/// Header-only, so that host and library share one type.
#pragma once

#include <stdexcept>
#include <string>

/// The wire format of settings strings.
namespace bond {

/// A settings string cannot be read; what() is the reason.
class Exception : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// The content is wrong. Texts:
///
///     JSON parser error: <message> at offset <bytes>
///     Max recursion depth exceeded     records or containers nested deeper than 64
///     Unknown data type found          a value of a wire type that does not exist
class CoreException : public Exception {
 public:
    using Exception::Exception;
};

/// The bytes end too early. Text:
///
///     Read out of bounds: <n> bytes requested, offset: <position>, length: <bytes>
class StreamException : public Exception {
 public:
    using Exception::Exception;
};

}  // namespace bond
