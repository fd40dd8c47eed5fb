// Numbers at the beginning of a text, compared with the C library's reading of the same digits.

#include "core/text/numbers.h"

#include "core/failure.h"
#include "fuzz/property.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

using namespace halvenmoor;
using fuzz::Require;

namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// The decimal number that the text begins with, in the C library's form; without any blanks.
std::string DecimalPrefix(const std::string& text) {
    std::size_t at = 0;
    const auto skipSign = [&] { at += at < text.size() && (text[at] == '-' || text[at] == '+') ? 1 : 0; };
    const auto skipDigits = [&] {
        while (at < text.size() && IsDigit(text[at])) ++at;
    };
    skipSign();
    skipDigits();
    if (at < text.size() && text[at] == '.') ++at;
    skipDigits();
    std::string prefix = text.substr(0, at);
    if (at < text.size() && std::string("EeDd").find(text[at]) != std::string::npos) {
        ++at;
        const std::size_t exponent = at;
        skipSign();
        skipDigits();
        prefix += "e" + text.substr(exponent, at - exponent);
    }
    return prefix;
}

double SlowNumber(std::string text) {
    const auto isBlank = [](char character) {
        return character == ' ' || character == '\t' || character == '\n';
    };
    text.erase(std::remove_if(text.begin(), text.end(), isBlank), text.end());
    return std::strtod(DecimalPrefix(text).c_str(), nullptr);
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
