#include "properties/definitions/configuration.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace tiv::properties {
namespace {

bool isPath(std::string_view path) {
    return !path.empty() && path.front() != '.' && path.back() != '.' &&
           path.find("..") == std::string_view::npos;
}

}  // namespace

Branch::Branch(const Configuration& configuration, std::string path)
    : configuration_(&configuration), path_(std::move(path)) {}

Branch Branch::branch(std::string_view path) const {
    return {*configuration_, path_ + '.' + std::string(path)};
}

void Configuration::set(std::string_view path, Setting value) {
    if (!isPath(path)) throw std::invalid_argument("Not a setting's path: \"" + std::string(path) + '"');
    const auto leaf =
        std::find_if(leaves_.begin(), leaves_.end(), [&](const Leaf& l) { return l.path == path; });
    if (leaf != leaves_.end())
        leaf->value = std::move(value);
    else
        leaves_.push_back({std::string(path), std::move(value)});
}

const Setting* Configuration::find(std::string_view path) const {
    const auto leaf =
        std::find_if(leaves_.begin(), leaves_.end(), [&](const Leaf& l) { return l.path == path; });
    if (leaf != leaves_.end()) return &leaf->value;
    return base_ ? base_->find(path) : nullptr;
}

}  // namespace tiv::properties
