// The controls as window.txt tells of them by hand, and their tables, held against one another.
// What is missing or otherwise is named.

#include "game/board.h"
#include "game/clicks.h"
#include "headless/board_text.h"
#include "headless/played_game.h"
#include "ui/look.h"
#include "ui/part.h"
#include "ui/places.h"
#include "ui/roster.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>

namespace {

std::string FileText(const std::filesystem::path& path)
{
    std::stringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

std::string ColourName(const Colour& colour)
{
    constexpr std::pair<int, const char*> colours[] = {{0x000000, "black"}, {0xC04000, "brick"},
        {0xC00000, "dark red"}, {0xFFC080, "pale orange"}, {0xFF8000, "orange"},
        {0xFFFFFF, "white"}, {0xFFFF00, "yellow"}, {0xFFC0FF, "lilac"}, {0x80FFFF, "pale cyan"},
        {0x80FF80, "pale green"}, {0xFFFF80, "pale yellow"}, {0xFF0000, "red"},
        {0x4A3E36, "umber"}};
    for (const auto& [number, name] : colours)
        if (number == (colour.Red * 256 + colour.Green) * 256 + colour.Blue)
            return name;
    return "no colour of the game";
}

std::string FontName(const Lettering& font)
{
    if (font.Name == Face::Plain)
        return "desktop";
    const bool heavy = font.Name == Face::ArialBlack;
    const char* face = heavy || font.Name == Face::SansSerif ? "sans " : "serif ";
    return face + std::to_string(std::lround(font.Points * 96 / 72))
        + (font.Bold || heavy ? " bold" : "");
}

// One control in the form of window.txt, with what a screen reader says always told.
std::string Told(const Part& part, const Board& board)
{
    const Control& row = *part.Row;
    const Look look = LookOf(part, board);
    const TwipRect at = PlaceInFrame(part);
    std::ostringstream told;
    told << "in " << (part.Frame == nullptr ? "window" : part.Frame->Row->Name);
    if (at.Width > 0)
        told << " at " << at.Left << ',' << at.Top << ' ' << at.Width << 'x' << at.Height;
    told << "; says \"" << look.Text << "\"; heard \"" << look.Name << "\"; in "
         << FontName(row.Font) << (row.Background || row.Text ? "; with " : "")
         << (row.Background ? ColourName(*row.Background) : "")
         << (row.Background && row.Text ? ", " : "") << (row.Text ? ColourName(*row.Text) : "")
         << "; tip \"" << row.ToolTip << '"';
    return told.str();
}

// The same of each box in a line of window.txt.
void ReadLine(const std::string& line, std::map<std::string, std::string>& told)
{
    static const std::regex form(
        R"re((\w+)((?: \d)*) in (\w+)(?: at (\d+),(\d+)(?: (by|down) (\d+))?)re"
        R"re(( \d+x\d+)| placed by the board)(?:; says "([^"]*)")?)re"
        R"re((?:; heard "([^"]*)")?(; in [^;]*(?:; with [^;]*)?))re"
        R"re((?:; tip "([^"]*)")?)re");
    std::smatch part;
    ASSERT_TRUE(std::regex_match(line, part, form)) << line;
    std::string boxes = std::regex_replace(part.str(2), std::regex(" "), "");
    const bool single = boxes.empty();
    if (single)
        boxes = "0";
    for (std::size_t k = 0; k < boxes.size(); ++k) {
        const std::string number(1, boxes[k]);
        const auto filled = [&](const std::string& text, const std::string& shown) {
            const std::string own = std::regex_replace(text, std::regex("#"), number);
            return std::regex_replace(own, std::regex("@"), shown);
        };
        const std::string says = part.str(9);
        const bool letters = boxes.size() > 1 && says.size() == boxes.size();
        const std::string text = letters ? std::string(1, says[k]) : filled(says, "");
        const std::string heard = part[10].matched
            ? filled(part.str(10), std::regex_replace(text, std::regex("^ "), ""))
            : text;
        std::string at;
        if (part[4].matched) {
            const int step = part[7].matched ? std::stoi(part.str(7)) * (boxes[k] - boxes[0]) : 0;
            const bool down = part.str(6) == "down";
            at = " at " + std::to_string(std::stoi(part.str(4)) + (down ? 0 : step)) + ','
                + std::to_string(std::stoi(part.str(5)) + (down ? step : 0)) + part.str(8);
        }
        told[part.str(1) + (single ? "" : ':' + number)] = "in " + part.str(3) + at + "; says \""
            + text + "\"; heard \"" + heard + '"' + part.str(11) + "; tip \"" + part.str(12) + '"';
    }
}

TEST(Roster, IsAsItsTextSays)
{
    std::map<std::string, std::string> byHand;
    std::istringstream lines(FileText(QUORVEL_WINDOW_TEXT));
    for (std::string line; std::getline(lines, line);)
        if (!line.starts_with('#'))
            ReadLine(line, byHand);
    Board board;
    SetBoard(board,
        "hidden=marten/lineup/feeder you=planet swap=simple me=garnet up=garden used=simple "
        "you:120 me:50 level:1 panel:yes frames:yes go:yes shown=marten/lineup/feeder");
    std::map<std::string, std::string> shown;
    for (const Part& part : Parts())
        shown[ScriptName(part)] = Told(part, board);
    for (const auto& [name, text] : byHand)
        EXPECT_EQ(shown[name], text) << name;
    for (const auto& [name, text] : shown)
        EXPECT_TRUE(byHand.contains(name)) << name << " is not in window.txt: " << text;
}

// What can be clicked has a click, a stop of the Tab key and a case; what shows the board a field.
TEST(Roster, EveryControlHasItsRows)
{
    std::string cases;
    for (const auto& file : std::filesystem::directory_iterator(QUORVEL_CASES))
        cases += file.is_regular_file() ? FileText(file.path()) : "";
    for (const Click& click : Clicks()) {
        EXPECT_TRUE(
            std::ranges::any_of(Parts(), [&](auto& part) { return part.Clicked == &click; }))
            << click.Control << " has no row in the roster";
        EXPECT_TRUE(
            std::regex_search(cases, std::regex("do.* ~?" + std::string(click.Control) + "\\b")))
            << click.Control << " is clicked in no case";
    }
    for (const Part& part : Parts()) {
        const Control& row = *part.Row;
        const bool clicked = row.Is == Kind::LetterTile || row.Is == Kind::Option
            || (row.Is == Kind::Button && *row.Caption != '\0');
        const bool boxed = row.Is != Kind::Button && row.Is != Kind::Frame && row.Is != Kind::Label;
        const bool stops = boxed ? row.Is != Kind::ShownBox : clicked;
        const auto walked = std::ranges::count(
            TabOrder(), row.Name, [](const char* name) { return std::string_view(name); });
        EXPECT_EQ(part.Clicked != nullptr, clicked) << ScriptName(part) << " and its click";
        EXPECT_EQ(walked, stops) << ScriptName(part) << " and its place in the Tab order";
        EXPECT_TRUE(!boxed || part.Shows != nullptr) << ScriptName(part) << " shows no field";
    }
}

// Neighbours share a line of 15 twips and no more, and frames hold what is in them.
TEST(Roster, NoControlLiesOnAnother)
{
    for (const Part& one : Parts()) {
        const TwipRect at = PlaceInFrame(one);
        if (one.Frame != nullptr && one.Frame->Row->At.Width > 0) {
            const TwipRect frame = PlaceInFrame(*one.Frame);
            EXPECT_TRUE(Contains({0, 0, frame.Width, frame.Height}, at))
                << ScriptName(one) << " leaves its frame";
        }
        for (const Part& other : Parts().first(IndexOf(one))) {
            const TwipRect next = PlaceInFrame(other);
            const double wide = std::min(at.Left + at.Width, next.Left + next.Width)
                - std::max(at.Left, next.Left);
            const double high
                = std::min(at.Top + at.Height, next.Top + next.Height) - std::max(at.Top, next.Top);
            EXPECT_TRUE(one.Frame != other.Frame || std::min(wide, high) <= 15)
                << ScriptName(one) << " lies on " << ScriptName(other);
        }
    }
}

} // namespace
