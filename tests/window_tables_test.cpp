// The tables of the controls, held against one another: the roster, the clicks, the fields of the
// board and the Tab order. A row that is missing or of the wrong kind fails here by its name.
#include "window_fixture.h"

#include "game/clicks.h"
#include "game/rows.h"
#include "ui/binding.h"
#include "ui/roster.h"

#include <algorithm>
#include <set>

namespace {

struct Listed {
    Kind is = Kind::Frame;
    bool captioned = false;
    std::set<int> boxes; // empty for a single control
};

std::map<std::string_view, Listed> Names()
{
    std::map<std::string_view, Listed> names;
    for (const Control& row : Roster()) {
        const auto [place, first] = names.try_emplace(row.Name);
        Listed& listed = place->second;
        EXPECT_TRUE(first || (row.Boxes && listed.is == row.Is)) << row.Name << " stands twice";
        listed.is = row.Is;
        listed.captioned = *row.Caption != '\0';
        if (!row.Boxes)
            continue;
        for (int box = row.Boxes->First; box <= row.Boxes->Last; ++box)
            EXPECT_TRUE(listed.boxes.insert(box).second) << row.Name << " " << box;
    }
    return names;
}

bool TakesClicks(const Listed& control)
{
    return control.is == Kind::LetterTile || control.is == Kind::Option
        || (control.is == Kind::Button && control.captioned);
}

bool TakesFocus(const Listed& control)
{
    return TakesClicks(control) || control.is == Kind::GuessBox || control.is == Kind::Check
        || control.is == Kind::List;
}

// The boxes of a control that is not single, 1 to so many.
std::set<int> Boxes(int count)
{
    std::set<int> boxes;
    for (int box = 1; box <= count; ++box)
        boxes.insert(box);
    return boxes;
}

TEST(Tables, EveryClickHasItsControlAndEveryControlItsClick)
{
    std::map<std::string_view, Listed> names = Names();
    for (const Click& click : Clicks()) {
        const auto control = names.find(click.Control);
        ASSERT_TRUE(control != names.end())
            << click.Control << " is not in the roster, or clicked twice";
        EXPECT_TRUE(TakesClicks(control->second)) << click.Control << " takes no clicks";
        EXPECT_EQ(control->second.boxes, Boxes(click.Boxes)) << click.Control;
        names.erase(control);
    }
    for (const auto& [name, control] : names)
        EXPECT_FALSE(TakesClicks(control)) << name << " has no row in the table of clicks";
}

TEST(Tables, EveryFieldHasAControlThatCanShowIt)
{
    // In the order of the field's alternatives; the panels are the level panel and its backing.
    const std::vector<Kind> shows[] = {
        {Kind::LetterTile, Kind::ShownBox, Kind::GuessBox},
        {Kind::ShownBox},
        {Kind::Frame},
        {Kind::Label},
        {Kind::Frame, Kind::Button},
        {Kind::List},
        {Kind::Check, Kind::Option},
    };
    static_assert(std::size(shows) == std::variant_size_v<Field>);
    std::map<std::string_view, Listed> names = Names();
    for (const auto& [name, field] : BoundFields()) {
        const auto control = names.find(name);
        ASSERT_TRUE(control != names.end()) << name << " is not in the roster, or bound twice";
        const Kind kind = control->second.is;
        EXPECT_TRUE(std::ranges::count(shows[field.index()], kind)) << name << " cannot show it";
        const bool six = field.index() == 0 || kind == Kind::Option;
        EXPECT_EQ(control->second.boxes, Boxes(six ? 6 : 0)) << name;
        names.erase(control);
    }
    for (const auto& [name, control] : names)
        EXPECT_TRUE(
            control.is == Kind::Frame || control.is == Kind::Button || control.is == Kind::Label)
            << name << " shows no field of the board";
}

TEST(Tables, TabComesToAllThatTakesTheFocus)
{
    std::map<std::string_view, Listed> names = Names();
    for (const std::string_view name : TabOrder()) {
        const auto control = names.find(name);
        ASSERT_TRUE(control != names.end()) << name << " is not in the roster, or walked twice";
        EXPECT_TRUE(TakesFocus(control->second)) << name;
        names.erase(control);
    }
    for (const auto& [name, control] : names)
        EXPECT_FALSE(TakesFocus(control)) << name << " is not in the Tab order";
}

TEST(Tables, NoControlLiesOnAnother)
{
    struct Box {
        std::string name;
        std::string_view in;
        QRect place; // in twips
    };
    std::vector<Box> boxes;
    for (const Control& row : Roster()) {
        const auto [first, last] = row.Boxes.value_or(BoxNumbers());
        for (int step = 0; step <= last - first; ++step)
            boxes.push_back({std::string(row.Name) + " " + std::to_string(first + step), row.In,
                {row.At.Left + step * row.Next.Right, row.At.Top + step * row.Next.Down,
                    row.At.Width, row.At.Height}});
    }
    for (const Box& box : boxes) {
        for (const Box& other : boxes) {
            if (&box == &other || box.in != other.in)
                continue;
            // Neighbours share a line. The level panel has no place here: it lies over the board.
            const QRect shared = box.place & other.place;
            EXPECT_LE(std::min(shared.width(), shared.height()), 15)
                << box.name << " lies on " << other.name;
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
        EXPECT_LE(disabled, 1) << name;
        EXPECT_EQ(disabled == 0, name.starts_with("Frame")) << name;
        *flag = true;
    }
}

} // namespace
