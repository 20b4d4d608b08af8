// What people write by hand is checked: a word that says nothing is named, with what is wrong.
#pragma once

#include <charconv>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
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

// "18*X" is eighteen times X, and X alone is once. Throws ScriptError for more than `most`.
inline std::pair<int, std::string> SplitTimes(const std::string& text, int most)
{
    const std::size_t star = text.find('*');
    if (star == std::string::npos || text.find_first_of("0123456789") != 0)
        return {1, text};
    return {ReadNumber(std::string_view(text).substr(0, star), 1, most), text.substr(star + 1)};
}
