#include "game/numbers.h"

#include <array>
#include <cassert>
#include <cstdio>
#include <cstdlib>
#include <limits>

double NumberOf(std::string_view text)
{
    const std::string digits(text);
    char* end = nullptr;
    const double number = std::strtod(digits.c_str(), &end);
    assert(!digits.empty() && digits.front() != ' ' && *end == '\0');
    return number;
}

double LeadingNumberOf(std::string_view text)
{
    return std::strtod(std::string(text).c_str(), nullptr);
}

std::string PlainForm(double number)
{
    std::array<char, std::numeric_limits<double>::max_exponent10 + 3> digits; // a sign, an end
    const int written = std::snprintf(digits.data(), digits.size(), "%.0f", number);
    return {digits.data(), static_cast<std::size_t>(written)};
}

std::string PaddedForm(double number)
{
    std::string text = PlainForm(number);
    if (number >= 0)
        text.insert(text.begin(), ' ');
    return text;
}
