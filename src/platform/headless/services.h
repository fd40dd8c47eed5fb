#pragma once

#include "platform/services.h"
#include "platform/version.h"

#include <cmath>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace halvenmoor::headless {

class FixedProgramInfo : public platform::ProgramInfo {
public:
    explicit FixedProgramInfo(std::string programFolder) : programFolder_(std::move(programFolder)) {}

    bool HasPreviousInstance = false;
    int RaisedPreviousInstance = 0;

    bool PreviousInstance() override { return HasPreviousInstance; }
    void ActivatePreviousInstance() override { ++RaisedPreviousInstance; }
    std::string ProgramFolder() const override { return programFolder_; }
    char Separator() const override { return '/'; }
    platform::ProgramVersion Version() const override { return kVersion; }
    platform::ScreenSize Screen() const override { return {1280, 1024}; }

private:
    std::string programFolder_;
};

/// A clock that moves only when it is told to.
class ManualClock : public platform::Clock {
public:
    explicit ManualClock(double secondsSinceMidnight = 0) : seconds_(secondsSinceMidnight) {}

    double TimeOfDay() override { return seconds_; }

    /// Moves on by so many seconds, across midnight too.
    void Advance(double seconds) { seconds_ = std::fmod(seconds_ + seconds, kSecondsPerDay); }

private:
    static constexpr double kSecondsPerDay = 86400;

    double seconds_;
};

/// A settings store that lasts as long as the object; empty at first.
class MemorySettings : public platform::SettingsStore {
public:
    std::string GetSetting(std::string_view application, std::string_view section, std::string_view name,
                           std::string_view defaultValue) override {
        const auto found = values_.find(Key(application, section, name));
        return found == values_.end() ? std::string(defaultValue) : found->second;
    }

    void SaveSetting(std::string_view application, std::string_view section, std::string_view name,
                     std::string_view value) override {
        values_.insert_or_assign(Key(application, section, name), std::string(value));
    }

private:
    using Key = std::tuple<std::string, std::string, std::string>;

    std::map<Key, std::string> values_;
};

/// Keeps the messages that would have been shown.
class MessageLog : public platform::MessageBox {
public:
    struct Message {
        std::string text;
        std::string title;
    };

    std::vector<Message> Messages;

    void Show(const std::string& text, const std::string& title) override {
        Messages.push_back({text, title});
    }
};

/// Answers file dialogs with paths given before, and cancels when there is none left.
class ScriptedFileDialogs : public platform::FileDialogs {
public:
    std::deque<std::string> Answers;
    std::vector<platform::FileDialog> Asked;

    std::optional<std::string> AskSavePath(const platform::FileDialog& dialog) override {
        return Answer(dialog);
    }
    std::optional<std::string> AskOpenPath(const platform::FileDialog& dialog) override {
        return Answer(dialog);
    }

private:
    std::optional<std::string> Answer(const platform::FileDialog& dialog) {
        Asked.push_back(dialog);
        if (Answers.empty()) return std::nullopt;
        std::string answer = std::move(Answers.front());
        Answers.pop_front();
        return answer;
    }
};

class FixedTheme : public platform::Theme {
public:
    std::map<int, forms::Color> Colors{{forms::kHighlightNumber, forms::Rgb(0, 0, 128)},
                                       {forms::kButtonFaceNumber, forms::Rgb(192, 192, 192)},
                                       {forms::kButtonShadowNumber, forms::Rgb(128, 128, 128)},
                                       {forms::kButtonTextNumber, forms::Rgb(0, 0, 0)},
                                       {forms::kButtonHighlightNumber, forms::Rgb(254, 254, 254)}};
    bool Themed = false;
    std::optional<forms::Color> GroupBoxText;

    std::optional<forms::Color> SystemColor(int number) const override {
        const auto found = Colors.find(number);
        return found == Colors.end() ? std::nullopt : std::optional(found->second);
    }
    bool IsThemed() const override { return Themed; }
    std::optional<forms::Color> GroupBoxTextColor() const override { return GroupBoxText; }
};

class FixedLocale : public platform::Locale {
public:
    int CodePageNumber = 1252;
    std::string Separator = ".";

    const text::CodePage& CodePage() const override { return text::WindowsCodePage(CodePageNumber); }
    std::string DecimalSeparator() const override { return Separator; }
    std::string ToFileText(std::string_view utf8) const override { return std::string(utf8); }
};

}  // namespace halvenmoor::headless
