#include "ui/part.h"

#include "game/clicks.h"
#include "ui/places.h"
#include "ui/roster.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

std::vector<Part> MakeParts()
{
    std::size_t count = 0;
    for (const Control& row : Roster()) {
        const auto [first, last] = row.Boxes.value_or(BoxNumbers());
        count += static_cast<std::size_t>(last - first + 1);
    }
    std::vector<Part> parts;
    parts.reserve(count); // parts point to their frames
    for (const Control& row : Roster()) {
        const Part* frame = nullptr;
        for (const Part& part : parts)
            frame = std::string_view(part.Row->Name) == row.In ? &part : frame;
        const auto [first, last] = row.Boxes.value_or(BoxNumbers());
        for (int number = first; number <= last; ++number)
            parts.push_back({&row, number, frame, FindField(row.Name), FindClick(row.Name)});
    }
    return parts;
}

// The flag of view of a field that has one.
struct ReadView {
    const Board& board;

    bool operator()(Frame Board::* frame) const { return (board.*frame).Visible; }
    bool operator()(Label Board::* label) const { return (board.*label).Visible; }
    bool operator()(Panel Board::* panel) const { return (board.*panel).Visible; }
    template <typename Other> bool operator()(Other Board::* /*field*/) const { return true; }
};

bool StandsIn(const Part& part, const Part& frame)
{
    return &part == &frame || (part.Frame != nullptr && StandsIn(*part.Frame, frame));
}

// The backing of the level panel is the larger of the two, and both have one centre.
bool IsBelowPanel(const Part& part, const Board& board)
{
    static const Part& panel = FindPart("Frame1");
    static const Part& backing = FindPart("Command2");
    return board.Command2.Visible && &part != &backing && !StandsIn(part, panel)
        && Contains(PlaceInTwips(backing, board), PlaceInTwips(part, board));
}

} // namespace

std::span<const Part> Parts()
{
    static const std::vector<Part> parts = MakeParts();
    return parts;
}

const Part& FindPart(std::string_view name, int number)
{
    for (const Part& part : Parts())
        if (name == part.Row->Name && number == part.Number)
            return part;
    std::string text = "there is no control ";
    text.append(name).append(" with a box ").append(std::to_string(number)).append("\n");
    std::fputs(text.c_str(), stderr);
    std::abort();
}

std::size_t IndexOf(const Part& part)
{
    return static_cast<std::size_t>(&part - Parts().data());
}

std::string NameOf(const Part& part)
{
    const std::string name = part.Row->Name;
    return part.Row->Boxes ? name + "(" + std::to_string(part.Number) + ")" : name;
}

const LetterBox* BoxOf(const Part& part, const Board& board)
{
    const auto* row = part.Shows == nullptr ? nullptr : std::get_if<LetterRow Board::*>(part.Shows);
    return row == nullptr ? nullptr : &(board.**row)(part.Number);
}

// What can be clicked is asked of the table of clicks; the other boxes have a flag of their own.
bool IsEnabled(const Part& part, const Board& board)
{
    if (part.Clicked != nullptr)
        return part.Clicked->Enabled(board, static_cast<std::int16_t>(part.Number));
    const LetterBox* box = BoxOf(part, board);
    return box == nullptr || box->Enabled;
}

bool HasFlagOfView(const Part& part)
{
    return part.Shows != nullptr
        && (std::holds_alternative<Frame Board::*>(*part.Shows)
            || std::holds_alternative<Label Board::*>(*part.Shows)
            || std::holds_alternative<Panel Board::*>(*part.Shows));
}

bool IsShown(const Part& part, const Board& board)
{
    return part.Shows == nullptr || std::visit(ReadView{board}, *part.Shows);
}

bool IsOnView(const Part& part, const Board& board)
{
    return IsShown(part, board) && (part.Frame == nullptr || IsOnView(*part.Frame, board));
}

bool IsInSight(const Part& part, const Board& board)
{
    return IsOnView(part, board) && !IsBelowPanel(part, board);
}

bool IsInReach(const Part& part, const Board& board)
{
    return IsEnabled(part, board) && IsInSight(part, board);
}
