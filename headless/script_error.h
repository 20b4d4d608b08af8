// What people write by hand is checked: a word that says nothing is named, with what is wrong.
#pragma once

#include <charconv>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

class ScriptError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

inline void Demand(bool holds, const std::string& otherwise)
{
    if (!holds)
        throw ScriptError(otherwise);
}

// The number that the whole text spells; throws ScriptError when it is not one from low to high.
template <typename Number> Number ReadNumber(std::string_view text, Number low, Number high)
{
    Number number{};
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = read.ec == std::errc() && read.ptr == text.data() + text.size();
    Demand(whole && number >= low && number <= high,
        std::string("\"").append(text).append("\" is not a number from ") + std::to_string(low)
            + " to " + std::to_string(high));
    return number;
}

// The pieces between the marks: one more than there are marks.
inline std::vector<std::string> Split(std::string_view text, char mark)
{
    std::vector<std::string> pieces;
    while (true) {
        const std::size_t end = text.find(mark);
        pieces.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}
