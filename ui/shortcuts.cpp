#include "ui/shortcuts.h"

#include "ui/news.h"

namespace {

// Browsers keep F3, F5 to F7, F11 and F12 for themselves.
constexpr Shortcut shortcuts[] = {
    {Key::F2, "Command6"},   // "Mix Letters"
    {Key::F4, "Command15"},  // "Rotate Swap Letters"
    {Key::F8, "Command7"},   // "Make A Guess"
    {Key::F9, "Command13"},  // "Pass"
    {Key::F10, "Command14"}, // "Jumble"
};

constexpr Telling tellings[] = {
    {Key::F2, AllRowsOf},
    {Key::F4, ScoresAndBonusOf},
    {Key::F8, HiddenWordsOf},
};

} // namespace

std::span<const Shortcut> Shortcuts()
{
    return shortcuts;
}

std::span<const Telling> Tellings()
{
    return tellings;
}
