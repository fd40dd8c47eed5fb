#include "ui/language/cNamesClass.h"

#include "base/text/compare.h"
#include "base/text/decode.h"
#include "base/text/lettercase.h"
#include "ui/language/profile.h"

#include <array>
#include <optional>

namespace halvenmoor {

namespace {

std::string Replaced(std::string text, std::string_view what, std::string_view with) {
    for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
        text.replace(at, what.size(), with);
    }
    return text;
}

std::string WithFirstRaised(const std::string& utf8) {
    std::u32string characters = text::Decode(utf8, text::WindowsCodePage(1252));
    if (!characters.empty()) characters.front() = text::UpperCase(characters.front());
    return text::EncodeUtf8(characters);
}

}  // namespace

cNamesClass::TextProperty::TextProperty(cNamesClass& names, std::string_view key, std::string_view builtIn,
                                        Case letterCase)
    : names_(names), entryKey_(key), entryDefault_(builtIn), entryCase_(letterCase) {
    names.texts_.push_back(this);
}

std::string cNamesClass::LabelTypeDescription(int type) const {
    const std::array<const TextProperty*, 5> descriptions{&LabelType1Description, &LabelType2Description,
                                                          &LabelType3Description, &LabelType4Description,
                                                          &LabelType5Description};
    return (*descriptions.at(static_cast<std::size_t>(type - 1)))();
}

std::string cNamesClass::LookupText(const TextProperty& entry) const {
    if (enabled_) {
        const std::optional<std::string> raw = ReadProfileValue(
            fileSystem_, path_ + language_ + ".ini", section_, entry.entryKey_, locale_.CodePage());
        const std::string shown = NormaliseText(raw.value_or(""), entry.entryCase_);
        // A text that consists of marks only has nothing to show either.
        if (!shown.empty()) return shown;
    }
    return NormaliseText(entry.entryDefault_, entry.entryCase_);
}

std::string NormaliseText(std::string_view raw, cNamesClass::Case letterCase) {
    std::string text = Replaced(std::string(raw), "\"", "");
    text = Replaced(std::move(text), "&", "");
    while (text.find("##") != std::string::npos) text = Replaced(std::move(text), "##", "#");
    // An ampersand in front of a letter keeps it small in proper case, a blank behind the ampersand raises
    // it.
    text = Replaced(std::move(text), " #", " &");
    text = Replaced(std::move(text), "#", "& ");
    if (letterCase == cNamesClass::Case::Proper) text = text::ProperCase(text);
    text = Replaced(std::move(text), "& ", "&");
    text = Replaced(std::move(text), "&", "");
    return WithFirstRaised(text);
}

std::string CountOf(int count, const std::string& word) {
    return std::to_string(count) + " " + word + "(s)";
}

}  // namespace halvenmoor
