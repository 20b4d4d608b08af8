#include "game/numbers.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <limits>

double NumberOf(std::string_view text)
{
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    assert(read.ec == std::errc() && read.ptr == text.data() + text.size());
    return number;
}

double LeadingNumberOf(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::string PlainForm(double number)
{
    std::array<char, std::numeric_limits<double>::max_exponent10 + 3> digits; // a sign, all digits
    const auto written = std::to_chars(
        digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed, 0);
    return {digits.data(), written.ptr};
}

std::string PaddedForm(double number)
{
    std::string text = PlainForm(number);
    if (number >= 0)
        text.insert(text.begin(), ' ');
    return text;
}
