// The settings of a property beside a std::map. A line is an operation: one character, then a path.
//
//     #a.b     sets the path to the number of the line
//     "a.b     sets it to a text
//     *a.b     sets it to a list
//     ?a.b     asks for it, as does every other first character
#include "properties/definitions/configuration.h"

#include "fuzz/target.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

namespace {

using namespace tiv::properties;
using Naive = std::map<std::string, Setting>;
using fuzz::require;

// Whether no name between dots is empty.
bool isPath(const std::string& path) {
    bool named = false;
    for (const char c : path) {
        if (c == '.' && !named) return false;
        named = c != '.';
    }
    return named;
}

template <class T>
void compare(const T* found, const Setting* expected) {
    const T* value = expected ? std::get_if<T>(expected) : nullptr;
    require((found != nullptr) == (value != nullptr), "found under another type");
    require(!found || *found == *value, "another value");
}

// Asks for the path as a whole, through a branch, and through a branch of that.
template <class T>
void compare(const Configuration& configuration, const std::string& path, const Setting* expected) {
    compare(configuration.get<T>(path), expected);
    const auto dot = path.find('.');
    if (dot == std::string::npos) return;
    const Branch branch = configuration.branch(path.substr(0, dot));
    compare(branch.get<T>(path.substr(dot + 1)), expected);
    const auto next = path.find('.', dot + 1);
    if (next == std::string::npos) return;
    const Branch inner = branch.branch(path.substr(dot + 1, next - dot - 1));
    compare(inner.get<T>(path.substr(next + 1)), expected);
}

void compare(const Configuration& configuration, const Naive& naive, const std::string& path) {
    const auto found = naive.find(path);
    const Setting* expected = found == naive.end() ? nullptr : &found->second;
    compare<int>(configuration, path, expected);
    compare<QString>(configuration, path, expected);
    compare<NamedValues>(configuration, path, expected);
}

void set(Configuration& configuration, Naive& naive, const std::string& path, const Setting& value) {
    const std::string refusal = "Not a setting's path: \"" + path + '"';
    try {
        configuration.set(path, value);
        require(isPath(path), "not refused");
        naive.insert_or_assign(path, value);
    } catch (const std::invalid_argument& e) {
        require(!isPath(path), "refused");
        require(std::strcmp(e.what(), refusal.c_str()) == 0, "refused otherwise");  // up to a NUL
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Configuration configuration;
    Naive naive;
    int number = 0;
    const std::uint8_t* end = data + size;
    while (data != end) {
        const std::uint8_t* lineEnd = std::find(data, end, '\n');
        std::string path(data, lineEnd);
        data = lineEnd == end ? end : lineEnd + 1;
        if (path.empty()) continue;
        const char operation = path.front();
        path.erase(0, 1);
        ++number;
        if (operation == '#') set(configuration, naive, path, number);
        if (operation == '"') set(configuration, naive, path, QString::number(number));
        if (operation == '*')
            set(configuration, naive, path, std::make_shared<const std::vector<NamedValue>>());
        compare(configuration, naive, path);
    }
    for (const auto& known : naive) compare(configuration, naive, known.first);
    return 0;
}
