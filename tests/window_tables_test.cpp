// The tables of the controls, held against one another: the roster, the clicks, the fields of the
// board and the Tab order. A row that is missing fails here by its name; one of the wrong kind
// stops the window with its name.
#include "window_fixture.h"

#include "game/clicks.h"
#include "game/rows.h"
#include "ui/binding.h"
#include "ui/roster.h"

#include <algorithm>
#include <set>

namespace {

using Names = std::multiset<std::string>; // "Command3", "Text1:2"

// The controls of these kinds, which have a caption if they are buttons.
Names OfKinds(std::initializer_list<Kind> kinds)
{
    Names names;
    for (const Control& row : Roster()) {
        const bool backing = row.Is == Kind::Button && *row.Caption == '\0';
        if (std::ranges::count(kinds, row.Is) == 0 || backing)
            continue;
        const auto [first, last] = row.Boxes.value_or(BoxNumbers());
        for (int box = first; box <= last; ++box)
            names.insert(row.Name + (row.Boxes ? ":" + std::to_string(box) : ""));
    }
    return names;
}

// The control, or all of its boxes.
void Add(Names& names, std::string_view control, int boxes)
{
    for (int box = std::min(boxes, 1); box <= boxes; ++box)
        names.insert(std::string(control) + (box > 0 ? ":" + std::to_string(box) : ""));
}

TEST(Tables, EveryControlHasItsRows)
{
    Names clicked;
    for (const Click& click : Clicks())
        Add(clicked, click.Control, click.Boxes);
    EXPECT_EQ(clicked, OfKinds({Kind::LetterTile, Kind::Option, Kind::Button}));

    Names shown;
    for (const auto& [control, field] : BoundFields())
        if (!std::holds_alternative<Panel Board::*>(field)
            && !std::holds_alternative<Frame Board::*>(field)
            && !std::holds_alternative<Label Board::*>(field))
            Add(shown, control, field.index() == 0 || control == "Option1" ? 6 : 0);
    EXPECT_EQ(shown,
        OfKinds({Kind::LetterTile, Kind::ShownBox, Kind::GuessBox, Kind::Option, Kind::Check,
            Kind::List}));

    Names walked;
    const Names takeFocus = OfKinds(
        {Kind::LetterTile, Kind::GuessBox, Kind::Option, Kind::Button, Kind::Check, Kind::List});
    for (const std::string control : TabOrder())
        Add(walked, control, takeFocus.contains(control) ? 0 : 6);
    EXPECT_EQ(walked, takeFocus);
}

TEST_F(Window, NoControlLiesOnAnother)
{
    for (const auto& [name, one] : controls) {
        for (const auto& [otherName, other] : controls) {
            const bool neighbours = one.widget->parentWidget() == other.widget->parentWidget();
            // Neighbours share a line. The level panel lies over the board.
            const QRect shared = one.place & other.place;
            EXPECT_TRUE(
                name == otherName || !neighbours || std::min(shared.width(), shared.height()) <= 1)
                << name << " lies on " << otherName;
        }
    }
}

TEST_F(Window, ShowsEachFlag)
{
    Play("Option1:1 Command1");
    std::vector<std::pair<std::string, bool*>> flags;
    for (const auto& [name, field] : BoundFields()) {
        if (const auto* frame = std::get_if<Frame Board::*>(&field))
            flags.emplace_back(name, &(board.**frame).Visible);
        else if (const auto* row = std::get_if<LetterRow Board::*>(&field))
            flags.emplace_back(name, &(board.**row)(3).Enabled);
    }
    for (Button* button : ArrangingButtons(board))
        flags.emplace_back("a button", &button->Enabled);
    for (const auto& [name, flag] : flags) {
        *flag = false;
        window.ShowBoard();
        ExpectBoardOnView(name);
        const auto disabled = std::ranges::count_if(controls, [](const auto& control) {
            return !control.second.widget->isEnabledTo(control.second.widget->parentWidget());
        });
        EXPECT_EQ(disabled, name.starts_with("Frame") ? 0 : 1) << name;
        *flag = true;
    }
}

} // namespace
