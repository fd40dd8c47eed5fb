#pragma once

#include "base/text/codepage.h"
#include "forms/color.h"

#include <optional>
#include <string>
#include <string_view>

namespace halvenmoor::platform {

struct ProgramVersion {
    int major = 0;
    int minor = 0;
};

/// A size in pixels.
struct ScreenSize {
    int width = 0;
    int height = 0;
};

/// What the host tells about the running program.
class ProgramInfo {
public:
    virtual ~ProgramInfo() = default;

    /// Whether another instance of this program was running for this user at the start.
    virtual bool PreviousInstance() = 0;
    /// Brings the other instance's window to the front, restored. Says nothing when there is none.
    virtual void ActivatePreviousInstance() = 0;
    /// The folder of the executable, without a separator at its end.
    virtual std::string ProgramFolder() const = 0;
    /// What stands between the folders of a path.
    virtual char Separator() const = 0;
    virtual ProgramVersion Version() const = 0;
    virtual ScreenSize Screen() const = 0;
};

class Clock {
public:
    virtual ~Clock() = default;

    /// Seconds since midnight, with fractions.
    virtual double TimeOfDay() = 0;
};

/// Named texts, kept per user across runs. Never fails: what cannot be read gives the default, what cannot be
/// stored holds for this run.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    virtual std::string GetSetting(std::string_view application, std::string_view section,
                                   std::string_view name, std::string_view defaultValue) = 0;
    virtual void SaveSetting(std::string_view application, std::string_view section, std::string_view name,
                             std::string_view value) = 0;
};

/// A message with the exclamation icon and an OK button, above the topmost window. Texts are UTF-8 and plain.
class MessageBox {
public:
    virtual ~MessageBox() = default;

    virtual void Show(const std::string& text, const std::string& title) = 0;
};

/// What a file dialog starts with. Texts are UTF-8, the folder is a path.
struct FileDialog {
    std::string title;
    std::string suggestedName;
    std::string folder;
    /// Pairs of description and pattern, separated by vertical bars.
    std::string filter;
    /// Appended to a name without one, without its point.
    std::string defaultExtension;
};

/// Dialogs of the main window. No path: the user cancelled.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;

    /// Asks before it accepts the path of a file that exists; the folder must exist.
    virtual std::optional<std::string> AskSavePath(const FileDialog& dialog) = 0;
    /// The file must exist.
    virtual std::optional<std::string> AskOpenPath(const FileDialog& dialog) = 0;
};

/// What the desktop shows documents with.
class Browser {
public:
    virtual ~Browser() = default;

    /// Opens the file of this path in a window of its own. Does nothing where the desktop has none for it.
    virtual void Open(const std::string& path) = 0;
};

/// The colours of the user's desktop, as plain colours.
class Theme {
public:
    virtual ~Theme() = default;

    /// The system colour of this number (forms/color.h); none for a number without a colour.
    virtual std::optional<forms::Color> SystemColor(int number) const = 0;
    virtual bool IsThemed() const = 0;
    /// The text colour of a themed group box; none where the theme does not tell.
    virtual std::optional<forms::Color> GroupBoxTextColor() const = 0;
};

/// The user's regional settings.
class Locale {
public:
    virtual ~Locale() = default;

    /// The single-byte code page that texts which are not UTF-8 are taken for.
    virtual const text::CodePage& CodePage() const = 0;
    /// UTF-8; one character.
    virtual std::string DecimalSeparator() const = 0;
    /// The bytes that the program's own UTF-8 texts have in a file.
    virtual std::string ToFileText(std::string_view utf8) const = 0;
};

}  // namespace halvenmoor::platform
