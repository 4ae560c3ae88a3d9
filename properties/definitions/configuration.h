// The settings of one property: how it is edited and what it accepts. A tree addressed by
// dot-separated paths; from_bond fills it, the editor and validator factories read a branch of it:
//
//     configuration.set("editor.kind", QString("named_value_list"));
//     Branch editor = configuration.branch("editor");
//     editor.get<QString>("kind");                         // "named_value_list"
//     editor.branch("validator").get<int>("precision");    // null: not set
#pragma once

#include <QString>
#include <QVariant>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tiv::properties {

// One value that a list editor offers, with the text that it is offered under.
struct NamedValue {
    QString text;
    QVariant value;
};

using NamedValues = std::shared_ptr<const std::vector<NamedValue>>;
// Matches a property's current value to an entry.
using IsEqual = bool (*)(const QVariant&, const QVariant&);
using Setting = std::variant<int, QString, NamedValues, IsEqual>;

class Configuration;

// One branch of a configuration, which must outlive it.
class Branch {
 public:
    Branch(const Configuration& configuration, std::string path);
    // The setting at `path` below this branch, or null when it is absent or of another type.
    template <class T>
    const T* get(std::string_view path) const;
    Branch branch(std::string_view path) const;

 private:
    const Configuration* configuration_;
    std::string path_;
};

// A flat list of full paths: for a handful of settings it is faster and smaller than a tree of nodes.
class Configuration {
 public:
    Configuration() = default;
    // A setting that this one does not have is read from `base`, which is kept alive.
    explicit Configuration(std::shared_ptr<const Configuration> base) : base_(std::move(base)) {}
    // Throws std::invalid_argument `Not a setting's path: "<path>"` when a name between dots is empty.
    void set(std::string_view path, Setting value);
    template <class T>
    const T* get(std::string_view path) const {
        const Setting* setting = find(path);
        return setting ? std::get_if<T>(setting) : nullptr;
    }
    Branch branch(std::string_view path) const { return {*this, std::string(path)}; }

 private:
    struct Leaf {
        std::string path;
        Setting value;
    };
    const Setting* find(std::string_view path) const;

    std::shared_ptr<const Configuration> base_;
    std::vector<Leaf> leaves_;
};

template <class T>
const T* Branch::get(std::string_view path) const {
    return configuration_->get<T>(path_ + '.' + std::string(path));
}

}  // namespace tiv::properties
