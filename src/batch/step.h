#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace halvenmoor {

/// One step of a batch, as something that a user does or asks. packaging/halvenmoor-batch.1 lists them all.
struct Step {
    enum class Kind {
        Demo,
        SaveResults,
        Auto,
        Language,
        Classify,
        Reload,
        Move,
        Rename,
        Export,
        Import,
        Lists,
        Results,
        ResultsJson,
    };

    Kind kind;
    /// What a check box is to be.
    bool on = false;
    /// A type, where 0 is the unclassified list, the mode of an export, or the source of an import, by the
    /// numbers of their controls.
    int number = 0;
    /// An entry, a language, or the path of an export.
    std::string name{};
    std::string newName{};
};

/// Nothing for a text that is no step.
std::optional<Step> ParseStep(std::string_view text);

}  // namespace halvenmoor
