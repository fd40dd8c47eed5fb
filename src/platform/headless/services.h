#pragma once

#include "base/text/trim.h"
#include "platform/services.h"
#include "platform/version.h"

#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

namespace halvenmoor::headless {

/// A program that does not ask whether it runs twice, before a screen that nobody sees.
class HeadlessProgramInfo : public platform::ProgramInfo {
public:
    explicit HeadlessProgramInfo(std::string programFolder) : programFolder_(std::move(programFolder)) {}

    bool PreviousInstance() override { return false; }
    void ActivatePreviousInstance() override {}
    std::string ProgramFolder() const override { return programFolder_; }
    char Separator() const override { return '/'; }
    platform::ProgramVersion Version() const override { return kVersion; }
    platform::ScreenSize Screen() const override { return {1280, 1024}; }

private:
    std::string programFolder_;
};

/// A clock by which no wait takes time: it moves on only by the waits that are skipped.
class SkippingClock : public platform::Clock {
public:
    explicit SkippingClock(double secondsSinceMidnight = 0) : seconds_(secondsSinceMidnight) {}

    double TimeOfDay() override { return seconds_; }

    /// Moves on by so many seconds, across midnight too.
    void Skip(double seconds) { seconds_ = std::fmod(seconds_ + seconds, kSecondsPerDay); }

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

/// Takes a line that tells the user what went wrong, without a line end.
using Tell = std::function<void(const std::string&)>;

/// Tells each message as a line, behind its title.
class ToldMessages : public platform::MessageBox {
public:
    explicit ToldMessages(Tell tell) : tell_(std::move(tell)) {}

    void Show(const std::string& text, const std::string& title) override {
        tell_((title + ": ").append(text::Trim(text)));
    }

private:
    Tell tell_;
};

/// Answers the next file dialog with a path given before, and cancels all others.
class PreparedFileDialogs : public platform::FileDialogs {
public:
    std::optional<std::string> Answer;

    std::optional<std::string> AskSavePath(const platform::FileDialog&) override { return Take(); }
    std::optional<std::string> AskOpenPath(const platform::FileDialog&) override { return Take(); }

private:
    std::optional<std::string> Take() { return std::exchange(Answer, std::nullopt); }
};

/// Opens nothing.
class NoBrowser : public platform::Browser {
public:
    void Open(const std::string&) override {}
};

/// A desktop without colours.
class ColorlessTheme : public platform::Theme {
public:
    std::optional<forms::Color> SystemColor(int) const override { return std::nullopt; }
    bool IsThemed() const override { return false; }
    std::optional<forms::Color> GroupBoxTextColor() const override { return std::nullopt; }
};

}  // namespace halvenmoor::headless
