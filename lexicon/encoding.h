// The encodings that a word list can be written in.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// Whether all of the bytes are UTF-8. A surrogate, a letter written longer than it need be, and one
// beyond U+10FFFF are not.
bool IsUtf8(std::string_view bytes);

// The UTF-8 of a text in Windows-1252; nothing when it has one of the five bytes that stand for
// nothing there.
std::optional<std::string> Utf8OfWindows1252(std::string_view bytes);
