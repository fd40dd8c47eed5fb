#pragma once

#include "platform/headless/services.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace halvenmoor::fakes {

class FixedProgramInfo : public headless::HeadlessProgramInfo {
public:
    using HeadlessProgramInfo::HeadlessProgramInfo;

    bool HasPreviousInstance = false;
    int RaisedPreviousInstance = 0;

    bool PreviousInstance() override { return HasPreviousInstance; }
    void ActivatePreviousInstance() override { ++RaisedPreviousInstance; }
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

/// Keeps what the dialogs asked.
class WatchedFileDialogs : public headless::PreparedFileDialogs {
public:
    std::vector<platform::FileDialog> Asked;

    std::optional<std::string> AskSavePath(const platform::FileDialog& dialog) override {
        Asked.push_back(dialog);
        return PreparedFileDialogs::AskSavePath(dialog);
    }
    std::optional<std::string> AskOpenPath(const platform::FileDialog& dialog) override {
        Asked.push_back(dialog);
        return PreparedFileDialogs::AskOpenPath(dialog);
    }
};

/// Keeps the paths of what would have been opened.
class BrowserLog : public platform::Browser {
public:
    std::vector<std::string> Opened;

    void Open(const std::string& path) override { Opened.push_back(path); }
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

}  // namespace halvenmoor::fakes
