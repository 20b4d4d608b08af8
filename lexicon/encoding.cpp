#include "lexicon/encoding.h"

#include "lexicon/letters.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace {

// What the bytes 0x80 to 0x9F of Windows-1252 stand for; 0 for nothing. All others stand for the
// code point of their own number.
constexpr std::array<char16_t, 32> windowsLetters{0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020,
    0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0, 0, 0x2018, 0x2019, 0x201C, 0x201D,
    0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178};

bool BeginsWithEightOfAscii(std::string_view bytes)
{
    if (bytes.size() < 8)
        return false;
    std::uint64_t eight = 0;
    std::memcpy(&eight, bytes.data(), 8);
    return (eight & 0x8080808080808080U) == 0;
}

// The size of the letter that the bytes begin with; 0 when they begin with none.
std::size_t SizeOfLetter(std::string_view bytes)
{
    struct Letters {
        char32_t first;
        char32_t last;
    };
    constexpr std::array<Letters, 5> ofSize{
        {{}, {0, 0x7F}, {0x80, 0x7FF}, {0x800, 0xFFFF}, {0x10000, 0x10FFFF}}};
    const auto first = static_cast<unsigned char>(bytes[0]);
    if (first >= 0xC2 && first <= 0xDF) // most letters beyond ASCII, in most alphabets
        return bytes.size() >= 2 && ContinuesLetter(bytes[1]) ? 2 : 0;
    // A first byte has as many ones in front as its letter has bytes, or none if it has one.
    const auto ones = static_cast<std::size_t>(std::countl_one(first));
    const std::size_t size = ones == 0 ? 1 : ones;
    if (ones == 1 || size >= ofSize.size() || size > bytes.size())
        return 0;
    std::string_view text = bytes.substr(0, size);
    if (!std::all_of(text.begin() + 1, text.end(), ContinuesLetter))
        return 0;
    const char32_t letter = TakeFirstLetter(text);
    const bool surrogate = letter >= 0xD800 && letter <= 0xDFFF;
    return letter < ofSize[size].first || letter > ofSize[size].last || surrogate ? 0 : size;
}

void Append(std::string& text, char16_t letter)
{
    const auto add = [&text](unsigned byte) { text += static_cast<char>(byte); };
    if (letter < 0x80) {
        add(letter);
        return;
    }
    if (letter < 0x800) {
        add(0xC0U | letter >> 6U);
    } else {
        add(0xE0U | letter >> 12U);
        add(0x80U | (letter >> 6U & 0x3FU));
    }
    add(0x80U | (letter & 0x3FU));
}

} // namespace

bool IsUtf8(std::string_view bytes)
{
    for (;;) {
        while (BeginsWithEightOfAscii(bytes))
            bytes.remove_prefix(8);
        if (bytes.empty())
            return true;
        const std::size_t size = SizeOfLetter(bytes);
        if (size == 0)
            return false;
        bytes.remove_prefix(size);
    }
}

std::optional<std::string> Utf8OfWindows1252(std::string_view bytes)
{
    std::string text;
    for (const char byte : bytes) {
        const auto number = static_cast<unsigned char>(byte);
        const bool listed = number >= 0x80 && number <= 0x9F;
        const char16_t letter = listed ? windowsLetters[number - 0x80U] : number;
        if (listed && letter == 0)
            return {};
        Append(text, letter);
    }
    return text;
}
