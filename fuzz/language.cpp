// A language file, and the marks of its texts.

#include "base/text/decode.h"
#include "fuzz/memory_platform.h"
#include "fuzz/property.h"
#include "ui/language/cNamesClass.h"
#include "ui/language/profile.h"

using namespace halvenmoor;
using fuzz::Require;

namespace {

std::optional<std::string> Read(fuzz::MemoryPlatform& platform, std::string_view text) {
    platform.memory.Put("/x.ini", text);
    platform.memory.ForgetCalls();
    return ReadProfileValue(platform.memory, "/x.ini", "Halvenmoor", "ButtonStart",
                            text::WindowsCodePage(1252));
}

void RequireShowable(const std::string& shown) {
    Require(text::IsValidUtf8(shown), "a text is UTF-8");
    Require(shown.find_first_of("\"&#") == std::string::npos, "no mark is shown");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fuzz::MemoryPlatform platform;
    const std::string text(fuzz::Text(data, size));
    // A value of this key first, so that most inputs get as far as the marks.
    for (const std::string& file : {text, "[Halvenmoor]\nButtonStart=" + text}) {
        const auto value = Read(platform, file);
        Require(value == Read(platform, file + "\r\n"), "the end of the last line makes no difference");
        if (!value) continue;
        Require(text::IsValidUtf8(*value), "a value is UTF-8");
        Require(text::CharacterCount(*value) <= kMaxProfileValue, "a value is cut");
        Require(!value->starts_with(' ') && !value->starts_with('\t'), "a value begins without white space");
        const std::string shown = NormaliseText(*value, cNamesClass::Case::AsWritten);
        RequireShowable(shown);
        RequireShowable(NormaliseText(*value, cNamesClass::Case::Proper));
        Require(NormaliseText(shown, cNamesClass::Case::AsWritten) == shown, "a text without marks stays");
    }
    return 0;
}
