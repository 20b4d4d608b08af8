#include "ui/focus.h"

#include "game/board.h"
#include "ui/news.h"
#include "ui/part.h"
#include "ui/roster.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace {

// All boxes of the row in its order, wherever in the roster they stand; a single control alone.
std::vector<const Part*> RowOf(std::string_view name)
{
    std::vector<const Part*> row;
    for (const Part& part : Parts()) {
        if (name == part.Row->Name)
            row.push_back(&part);
    }
    std::sort(row.begin(), row.end(),
        [](const Part* one, const Part* other) { return one->Number < other->Number; });
    return row;
}

// Where the Tab key stops in the row: at its stop, or at the first in sight to the right of a stop
// that something covers. nullptr where the stop, or all that follows, is out of reach.
const Part* StopIn(std::string_view name, const TabStops& stops, const Board& board)
{
    bool passed = false;
    for (const Part* part : RowOf(name)) {
        passed = passed || stops.IsAt(*part, board);
        if (passed && IsInReach(*part, board))
            return part;
    }
    return nullptr;
}

int FirstFilled(const LetterRow& row)
{
    for (int box = 1; box <= lettersPerWord; ++box) {
        if (!row(box).Text.empty())
            return box;
    }
    return 0;
}

bool SwapMade(const Outcome& outcome)
{
    return outcome.Before.HeldFlag && !outcome.After.HeldFlag
        && outcome.Before.SwapLetters(1).Enabled && !outcome.After.SwapLetters(1).Enabled;
}

bool GameBegun(const Outcome& outcome)
{
    return BeginsGame(outcome.Before, outcome.After);
}

bool GoHandedOver(const Outcome& outcome)
{
    return outcome.GoWentOver;
}

// What calls for the focus to go where play goes on.
constexpr bool (*callsForPlay[])(const Outcome& outcome) = {GameBegun, GoHandedOver, SwapMade};

} // namespace

void TabStops::Came(const Part& part)
{
    boxes_[part.Row->Name] = part.Number;
}

// Of the levels it is the chosen one.
bool TabStops::IsAt(const Part& part, const Board& board) const
{
    if (!part.Row->Boxes)
        return true;
    if (part.Row->Is == Kind::Option && board.Level != 0)
        return part.Number == board.Level;
    const auto stop = boxes_.find(part.Row->Name);
    return part.Number == (stop == boxes_.end() ? 1 : stop->second);
}

const Part* StepByTab(const Part* from, bool onwards, const TabStops& stops, const Board& board)
{
    const auto order = TabOrder();
    const auto count = static_cast<std::ptrdiff_t>(order.size());
    const auto here = std::find_if(order.begin(), order.end(), [from](const char* name) {
        return from != nullptr && name == std::string_view(from->Row->Name);
    });
    std::ptrdiff_t place = here == order.end() ? (onwards ? -1 : count) : here - order.begin();
    for (std::ptrdiff_t step = 0; step < count; ++step) {
        place = (place + (onwards ? 1 : count - 1)) % count;
        const Part* next = StopIn(order[static_cast<std::size_t>(place)], stops, board);
        if (next != nullptr && next != from)
            return next;
    }
    return nullptr;
}

const Part* WalkRow(const Part& from, Key key, const Board& board)
{
    if (key != Key::Left && key != Key::Right && key != Key::Home && key != Key::End)
        return nullptr;
    std::vector<const Part*> row = RowOf(from.Row->Name);
    if (key == Key::Left || key == Key::Home)
        std::reverse(row.begin(), row.end());
    const bool nearest = key == Key::Left || key == Key::Right;
    const Part* to = nullptr;
    for (auto part = std::find(row.begin(), row.end(), &from) + 1; part != row.end(); ++part) {
        if (IsInReach(**part, board) && (!nearest || to == nullptr))
            to = *part;
    }
    return to;
}

const Part& WherePlayGoesOn(const Board& board)
{
    if (board.Frame1.Visible)
        return FindPart("Option1", std::max<int>(board.Level, 1));
    if (board.Text1(1).Enabled)
        return FindPart("Text1", 1);
    if (const int laidOut = FirstFilled(board.Text2); laidOut != 0)
        return FindPart("Text2", laidOut);
    return FindPart("Command13"); // "Pass"
}

bool StaysInPlay(const Part* focused, const Board& board)
{
    if (focused == nullptr || !IsOnView(*focused, board) || !IsEnabled(*focused, board))
        return false;
    return !board.Frame1.Visible || focused->Frame == &FindPart("Frame1");
}

bool EndsGoOrBeginsGame(const Outcome& outcome)
{
    return GameBegun(outcome) || GoHandedOver(outcome);
}

bool CallsForPlay(const Outcome& outcome)
{
    return std::any_of(std::begin(callsForPlay), std::end(callsForPlay),
        [&](auto happened) { return happened(outcome); });
}

// "Make A Guess" leaves the game open where words are missing or wrong.
bool CallsForGuess(const Outcome& outcome)
{
    return outcome.Clicked.Row == FindPart("Command7").Row && outcome.After.Frame2.Visible
        && !outcome.After.Frame1.Visible;
}
