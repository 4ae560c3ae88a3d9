// The paths of the settings in a property's configuration. from_bond fills them from the description of the
// field, the owner of the record adds its own, and factories and views read them.
#pragma once

#include <string_view>

namespace tiv::properties::path {

// Editor: its kind (QString), the values offered (NamedValues), and how a value is matched to an entry (IsEqual).
inline constexpr std::string_view editorKind = "editor.kind";
inline constexpr std::string_view editorEntries = "editor.entries";
inline constexpr std::string_view editorIsEqual = "editor.is_equal";
inline constexpr std::string_view editorNames = "editor.names";  // NamedValues: texts of values not offered
inline constexpr std::string_view editorExplanations =
    "editor.explanations";  // NamedValues: shown as tooltips
inline constexpr std::string_view editorValidatorKind = "editor.validator.kind";
inline constexpr std::string_view editorValidatorPrecision = "editor.validator.precision";

// Validator: the same for the values that are accepted.
inline constexpr std::string_view validatorKind = "validator.kind";
inline constexpr std::string_view validatorEntries = "validator.entries";
inline constexpr std::string_view validatorIsEqual = "validator.is_equal";
inline constexpr std::string_view validatorPrecision = "validator.precision";  // int: decimal places

// Below the branch that a maker of validators receives.
inline constexpr std::string_view validator = "validator";
inline constexpr std::string_view kind = "kind";
inline constexpr std::string_view entries = "entries";
inline constexpr std::string_view isEqual = "is_equal";
inline constexpr std::string_view precision = "precision";

}  // namespace tiv::properties::path
