#include "game/numbers.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>

namespace {

constexpr double largest = 1LL << 53; // up to here a double holds every whole number

// The number that the text begins with, and where it ends.
std::pair<double, const char*> Read(std::string_view text)
{
    std::int64_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return {static_cast<double>(number), read.ptr};
}

} // namespace

double NumberOf(std::string_view text)
{
    const auto [number, end] = Read(text);
    assert(!text.empty() && end == text.data() + text.size() && std::abs(number) <= largest);
    return number;
}

double LeadingNumberOf(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return Read(text).first;
}

std::string PlainForm(double number)
{
    assert(std::abs(number) <= largest);
    return std::to_string(static_cast<std::int64_t>(number));
}

std::string PaddedForm(double number)
{
    std::string text = PlainForm(number);
    if (number >= 0)
        text.insert(text.begin(), ' ');
    return text;
}
