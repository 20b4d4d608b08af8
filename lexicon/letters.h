// A letter is one Unicode code point. Texts are UTF-8 throughout the game, and this is the one
// place where letters are taken out of them. Nothing is composed and no case is folded here: a
// letter and a combining accent after it are two letters.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

std::size_t CountLetters(std::string_view text);

// Letter number k of a text that has it, counted from 1, in place.
std::string_view LetterOf(std::string_view text, int k);

// The bytes that the letters are made of, each as one of 64 bits: what has the same letters has the
// same bits. No branch depends on the letters.
inline std::uint64_t BitsOf(std::string_view text)
{
    std::uint64_t bits = 0;
    for (const char byte : text)
        bits |= std::uint64_t{1} << (static_cast<unsigned char>(byte) % 64U);
    return bits;
}

// The bytes that are not the first of their letter.
constexpr bool ContinuesLetter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// For a letter of more than two bytes.
char32_t TakeLongFirstLetter(std::string_view& text);

// Takes the first letter off a text that is not empty; gives its code point.
inline char32_t TakeFirstLetter(std::string_view& text)
{
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80) {
        text.remove_prefix(1);
        return first;
    }
    if (first >= 0xE0 || text.size() < 2)
        return TakeLongFirstLetter(text);
    const auto second = static_cast<unsigned char>(text[1]);
    text.remove_prefix(2);
    return (first & 0x1FU) << 6U | (second & 0x3FU);
}
