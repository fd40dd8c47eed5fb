#include "batch/step.h"

#include "core/camera_types.h"
#include "core/modMain.h"

namespace halvenmoor {

namespace {

using Kind = Step::Kind;

struct Words {
    std::string_view first;
    std::string_view rest;
};

Words FirstWord(std::string_view text) {
    const std::size_t blank = text.find(' ');
    if (blank == std::string_view::npos) return {text, ""};
    return {text.substr(0, blank), text.substr(blank + 1)};
}

std::optional<Step> Alone(Kind kind, std::string_view rest) {
    return rest.empty() ? std::optional(Step{.kind = kind}) : std::nullopt;
}

std::optional<Step> Switch(Kind kind, std::string_view wanted, int number = 0) {
    if (wanted != "on" && wanted != "off") return std::nullopt;
    return Step{.kind = kind, .on = wanted == "on", .number = number};
}

std::optional<int> Number(std::string_view digit, int lowest) {
    const bool isType = digit.size() == 1 && digit[0] >= '0' + lowest && digit[0] <= '0' + kLastType;
    return isType ? std::optional(digit[0] - '0') : std::nullopt;
}

std::optional<Step> ParseAuto(std::string_view words) {
    const auto [digit, wanted] = FirstWord(words);
    const auto type = Number(digit, kFirstType);
    return type ? Switch(Kind::Auto, wanted, *type) : std::nullopt;
}

std::optional<Step> ParseMove(std::string_view words) {
    const auto [digit, name] = FirstWord(words);
    const auto target = Number(digit, 0);
    if (!target) return std::nullopt;
    return Step{.kind = Kind::Move, .number = *target, .name = std::string(name)};
}

/// The old and the new name, with a tab between them.
std::optional<Step> ParseRename(std::string_view names) {
    const std::size_t tab = names.find('\t');
    if (tab == std::string_view::npos) return std::nullopt;
    return Step{.kind = Kind::Rename,
                .name = std::string(names.substr(0, tab)),
                .newName = std::string(names.substr(tab + 1))};
}

std::optional<Step> ParseExport(std::string_view words) {
    const auto [mode, path] = FirstWord(words);
    if (mode == "replace" && path.empty()) return Step{.kind = Kind::Export, .number = kReplaceFile};
    if (path.empty()) return std::nullopt;
    if (mode == "save-as")
        return Step{.kind = Kind::Export, .number = kSaveFileAs, .name = std::string(path)};
    if (mode == "append")
        return Step{.kind = Kind::Export, .number = kAppendToFile, .name = std::string(path)};
    return std::nullopt;
}

std::optional<Step> ParseImport(std::string_view source) {
    if (source == "ov2") return Step{.kind = Kind::Import, .number = 1};
    if (source == "txt") return Step{.kind = Kind::Import, .number = 2};
    return std::nullopt;
}

}  // namespace

std::optional<Step> ParseStep(std::string_view text) {
    const auto [word, rest] = FirstWord(text);
    if (word == "demo") return Switch(Kind::Demo, rest);
    if (word == "save-results") return Switch(Kind::SaveResults, rest);
    if (word == "auto") return ParseAuto(rest);
    if (word == "language") return Step{.kind = Kind::Language, .name = std::string(rest)};
    if (word == "classify") return Alone(Kind::Classify, rest);
    if (word == "reload") return Alone(Kind::Reload, rest);
    if (word == "move") return ParseMove(rest);
    if (word == "rename") return ParseRename(rest);
    if (word == "export") return ParseExport(rest);
    if (word == "import") return ParseImport(rest);
    if (word == "lists") return Alone(Kind::Lists, rest);
    if (word == "results" && rest == "json") return Step{.kind = Kind::ResultsJson};
    if (word == "results") return Alone(Kind::Results, rest);
    return std::nullopt;
}

}  // namespace halvenmoor
