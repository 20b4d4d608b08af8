#include "lexicon/letters.h"

#include <algorithm>
#include <bit>
#include <cassert>

namespace {

// The number of bytes of the letter that a text begins with, which its first byte tells: as many as
// it has ones in front, or one if it has none.
std::size_t SizeOfFirst(std::string_view text)
{
    const auto ones = std::countl_one(static_cast<unsigned char>(text.front()));
    return std::min(text.size(), static_cast<std::size_t>(std::max(ones, 1)));
}

} // namespace

std::size_t CountLetters(std::string_view text)
{
    return text.size()
        - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), ContinuesLetter));
}

std::string_view LetterOf(std::string_view text, int k)
{
    assert(k >= 1 && static_cast<std::size_t>(k) <= CountLetters(text));
    for (; k > 1; --k)
        text.remove_prefix(SizeOfFirst(text));
    return text.substr(0, SizeOfFirst(text));
}

char32_t TakeLongFirstLetter(std::string_view& text)
{
    const std::size_t size = SizeOfFirst(text);
    char32_t letter = static_cast<unsigned char>(text.front()) & (0x7FU >> size);
    for (const char byte : text.substr(1, size - 1))
        letter = letter << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    text.remove_prefix(size);
    return letter;
}
