// Numbers at the beginning of a text, compared with the C library's reading of the same digits.

#include "base/text/numbers.h"

#include "base/failure.h"
#include "fuzz/property.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

using namespace halvenmoor;
using fuzz::Require;

namespace {

/// What the C library reads of the characters that a decimal number can have, without any blanks.
double SlowNumber(std::string text) {
    const auto isBlank = [](char character) {
        return character == ' ' || character == '\t' || character == '\n';
    };
    text.erase(std::remove_if(text.begin(), text.end(), isBlank), text.end());
    text = text.substr(0, text.find_first_not_of("0123456789+-.eEdD"));
    const auto isExponentMark = [](char character) { return character == 'd' || character == 'D'; };
    std::replace_if(text.begin(), text.end(), isExponentMark, 'e');
    return std::strtod(text.c_str(), nullptr);
}

void ReadsWhatItWrites(double number) {
    const std::string written = text::GeneralNumber(number, ".");
    Require(text::IsNumericText(written, "."), "a number as text is numeric");
    Require(text::GeneralNumber(text::LeadingNumber(written), ".") == written, "a number reads back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(fuzz::Text(data, size));
    const double number = text::LeadingNumber(text);
    Require(!std::isnan(number), "there is always a number");
    if (text.find('&') == std::string::npos) {
        Require(number == SlowNumber(text), "the number is the one of the C library");
    }
    if (text::IsNumericText(text, ".")) {
        Require(text.find_first_not_of("0123456789+-.eEdD") == std::string::npos,
                "a numeric text has no more");
        Require(text.find_first_of("0123456789") != std::string::npos, "a numeric text has a digit");
        std::string withComma = text;
        std::replace(withComma.begin(), withComma.end(), '.', ',');
        Require(text::IsNumericText(withComma, ","), "another separator makes no difference");
    }
    if (std::isfinite(number)) ReadsWhatItWrites(number);
    return 0;
}
