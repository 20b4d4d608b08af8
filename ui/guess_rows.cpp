#include "ui/guess_rows.h"

#include "game/hidden_words.h"
#include "lexicon/letters.h"
#include "ui/look.h"
#include "ui/part.h"
#include "ui/roster.h"

#include <iterator>
#include <utility>

namespace {

constexpr int rows = static_cast<int>(std::size(hiddenWords));

int RowOf(const Part& box)
{
    return FindGuessed(box.Row->Name)->Number - 1;
}

// The box of that row and number in the order of typing, or nullptr.
const Part* BoxAt(int row, int number)
{
    if (number < 1)
        return BoxAt(row - 1, lettersPerWord);
    if (number > lettersPerWord)
        return BoxAt(row + 1, 1);
    return row >= 0 && row < rows ? &FindPart(hiddenWords[row].GuessControl, number) : nullptr;
}

const Part* Before(const Part& box)
{
    return box.Number == 1 && RowOf(box) == 0 ? nullptr : BoxAt(RowOf(box), box.Number - 1);
}

const Part* After(const Part& box)
{
    return box.Number == lettersPerWord && RowOf(box) == rows - 1
        ? nullptr
        : BoxAt(RowOf(box), box.Number + 1);
}

} // namespace

GuessRows::GuessRows(Board& board)
    : board_(board)
{
}

std::string& GuessRows::TextOf(const Part& box) const
{
    return (board_.*hiddenWords[RowOf(box)].Guess)(box.Number).Text;
}

// Where the letter that the hidden word shows stands in the box, it is known to be right: it is
// passed on the way back, and not erased.
bool GuessRows::IsKnown(const Part& box) const
{
    const Look look = LookOf(box, board_);
    return !look.Above.empty() && look.Text == look.Above;
}

// The box that a letter goes to when typing has run on into this one.
const Part* GuessRows::PastKnown(const Part& box, const std::string& letter) const
{
    const Part* at = &box;
    while (at != nullptr && IsKnown(*at) && TextOf(*at) != letter)
        at = After(*at);
    return at == nullptr || !IsInSight(*at, board_) ? &box : at;
}

const Part* GuessRows::Write(const Part& box, const std::string& text, Edit edit)
{
    const Part* at = &box;
    if (std::exchange(steppedInto_, nullptr) == &box && edit == Edit::Typed
        && CountLetters(text) == 1)
        at = PastKnown(box, text);
    std::string_view rest = text;
    while (CountLetters(rest) > 1 && at->Number < lettersPerWord) {
        const std::string_view whole = rest;
        TakeFirstLetter(rest);
        TextOf(*at) = whole.substr(0, whole.size() - rest.size());
        at = After(*at);
    }
    TextOf(*at) = rest;
    if (edit == Edit::Erased || text.empty())
        return nullptr;
    if (const Part* next = After(*at); next != nullptr && IsInSight(*next, board_))
        return next;
    return at != &box && IsInSight(*at, board_) ? at : nullptr;
}

// Goes back to the letter typed last and takes it away.
const Part* GuessRows::EraseBefore(const Part& box)
{
    const Part* at = Before(box);
    while (at != nullptr && IsKnown(*at))
        at = Before(*at);
    if (at == nullptr || !IsInSight(*at, board_))
        return nullptr;
    TextOf(*at).clear();
    return at;
}

// Left and Right leave a box at the ends of what is in it, and run on from row to row.
GuessRows::Move GuessRows::Press(const Part& box, const KeyPress& key)
{
    const bool stepped = std::exchange(steppedInto_, nullptr) == &box;
    const auto to = [this](const Part* next) -> Move {
        return next != nullptr && IsInSight(*next, board_) ? Move{true, next} : Move{};
    };
    switch (key.Is) {
    case Key::Backspace:
        if (stepped || TextOf(box).empty())
            return {true, EraseBefore(box)};
        return {};
    case Key::Left:
        return key.AtStart ? to(Before(box)) : Move{};
    case Key::Right:
        return key.AtEnd ? to(After(box)) : Move{};
    case Key::Up:
        return RowOf(box) > 0 ? to(BoxAt(RowOf(box) - 1, box.Number)) : Move{};
    case Key::Down:
        return RowOf(box) < rows - 1 ? to(BoxAt(RowOf(box) + 1, box.Number)) : Move{};
    default:
        return {};
    }
}

const Part* GuessRows::Gap(const Part* after) const
{
    for (const Part* box = after == nullptr ? BoxAt(0, 1) : After(*after); box != nullptr;
        box = After(*box)) {
        if (TextOf(*box).empty())
            return box;
    }
    return nullptr;
}
