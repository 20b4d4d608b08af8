// Where messages, frames and the window stand, in pixels worked out by hand: of a board at full
// scale, 15 twips to the pixel, and of others.

#include "game/board.h"
#include "ui/column.h"
#include "ui/message.h"
#include "ui/part.h"
#include "ui/window_size.h"

#include <gtest/gtest.h>

void PrintTo(const PixelRect& rect, std::ostream* out)
{
    *out << rect.Left << ',' << rect.Top << ' ' << rect.Width << 'x' << rect.Height;
}

namespace {

constexpr Scale full{1.0 / 15, 0, 0};
const Message says = Statement("", "");
const Message ends{"", "", true};
const Message harmless{"", "", true, true};

TEST(Places, OfAMessage)
{
    struct Row {
        const Message& message;
        PixelSize size;
        PixelPoint pointer;
        Scale scale;
        PixelRect place;
    };
    const PixelPoint over{130, 245};
    const Row rows[] = {
        {says, {151, 104}, over, full, {57, 240, 151, 104}},
        {says, {151, 105}, over, full, {489, 49, 151, 105}},
        {says, {250, 20}, over, full, {440, 49, 250, 20}},
        {ends, {151, 20}, over, full, {489, 49, 151, 20}},
        {ends, {151, 20}, {208, 245}, full, {57, 240, 151, 20}},
        {ends, {151, 20}, {130, 260}, full, {57, 240, 151, 20}},
        {harmless, {151, 20}, over, full, {57, 240, 151, 20}},
        {says, {298, 20}, over, {2.0 / 15, 30, 7}, {146, 487, 298, 20}},
    };
    const Board board;
    for (const auto& [message, size, pointer, scale, place] : rows)
        EXPECT_EQ(PlaceOfMessage(
                      message, board, scale, [&](int) { return size; }, pointer),
            place)
            << size.Width << 'x' << size.Height;
}

TEST(Places, OfTheLevelPanelBesideTheBoard)
{
    Board board;
    board.Frame1.Left = 150, board.Frame1.Top = 300;
    board.Frame1.Width = 3000, board.Frame1.Height = 1500;
    EXPECT_EQ(
        PlaceInWindow(FindPart("Frame1"), board, {2.0 / 15, 30, 7}), (PixelRect{50, 47, 400, 200}));
    EXPECT_EQ(PlaceInWindow(FindPart("Command1"), board, {1.0 / 15, 30, 7}),
        (PixelRect{128, 107, 41, 33}));
}

// At every scale: first and last lines are rounded, and not sizes.
TEST(Places, OfNeighboursShareALine)
{
    const Board board;
    for (const double factor : {0.75, 1.0, 1.3, 1.58, 2.0, 2.9}) {
        const Scale scale{factor / 15, 0, 0};
        for (int box = 1; box < 6; ++box) {
            const PixelRect one = PlaceOf(FindPart("Text1", box), board, scale);
            EXPECT_EQ(one.Left + one.Width - LineWidth(scale),
                PlaceOf(FindPart("Text1", box + 1), board, scale).Left)
                << factor;
        }
    }
}

// One frame below the other, on a narrow screen.
TEST(Places, InAColumn)
{
    const std::tuple<const char*, double, double> rows[]
        = {{"Frame3", 187.5, 0}, {"Frame4", 127.5, 1860}, {"Frame5", 127.5, 6600},
            {"Frame2", 187.5, 8700}, {"Frame9", 30, 13680}, {"Frame7", 2025, 13680}};
    for (const auto& [name, left, top] : rows) {
        const TwipRect place = PlaceInColumn(FindPart(name));
        EXPECT_EQ(std::pair(place.Left, place.Top), std::pair(left, top)) << name;
    }
    EXPECT_EQ(WidthOfColumn(), 3990);
    EXPECT_EQ(HeightOfColumn(), 18765);
}

// A desktop that gives the window sizes of its own. With borders of 8 and 30 the one size is 656 by
// 469 within them; a wish is told as "656x469 again 100", and the board's own room by its scale.
class SizeOfTheWindow : public testing::Test {
protected:
    Board board;
    WindowSize size{board};
    Desktop desktop{
        .Window = {656, 469}, .Borders = {8, 30}, .Screen = {1600, 1000}, .Place = {50, 60}};

    static std::string Told(const Wish& wish)
    {
        std::string told = wish.Size
            ? std::to_string(wish.Size->Width) + 'x' + std::to_string(wish.Size->Height)
            : "";
        return wish.AskAgainAfter == 0 ? told
                                       : told + " again " + std::to_string(wish.AskAgainAfter);
    }
    std::string Given(int width, int height)
    {
        desktop.Window = {width, height};
        return Told(size.Form_Resize(desktop));
    }
    std::string Later() { return Told(size.AskAgain(desktop)); }
    double Pixels() const { return size.Present().PixelsPerTwip * 15; }
};

TEST_F(SizeOfTheWindow, IsAskedForFourTimes)
{
    EXPECT_EQ(Given(656, 469), "");
    EXPECT_EQ(Given(700, 500), "656x469 again 100");
    EXPECT_EQ(Given(700, 500), "") << "it waits";
    EXPECT_EQ(Later(), "656x469 again 200");
    EXPECT_EQ(Given(656, 469), "") << "and has it";
    EXPECT_EQ(Later(), "");
    EXPECT_EQ(Given(1298, 930), "656x469 again 100");
    for (const char* wish : {"656x469 again 200", "656x469 again 400", "656x469 again 800", ""}) {
        EXPECT_EQ(Pixels(), 1);
        EXPECT_EQ(Later(), wish);
    }
    EXPECT_EQ(Pixels(), 2) << "the desktop has its way";
    EXPECT_EQ(board.WindowWidth, 9960);
    EXPECT_EQ(Given(700, 500), "656x469 again 100") << "of another size it is asked anew";
}

TEST_F(SizeOfTheWindow, IsTheRoomThatADesktopMeans)
{
    desktop.Place = {0, 60};
    EXPECT_EQ(Given(1592, 469), "") << "maximised from left to right";
    EXPECT_EQ(size.Present(), (Scale{469.0 / 6975, 469, 0}));
    desktop.Place = {50, 0};
    EXPECT_EQ(Given(656, 970), "") << "from top to bottom";
    EXPECT_EQ(Given(656, 900), "656x469 again 100");
    desktop.Fills = true;
    EXPECT_EQ(Given(1298, 1200), "");
    EXPECT_EQ(size.Present(), (Scale{2.0 / 15, 0, 135}));
    desktop.Fills = false, desktop.Minimised = true;
    EXPECT_EQ(Given(10, 10), "");
    desktop.Minimised = false, desktop.Screen = {498, 1000};
    EXPECT_EQ(Given(900, 700), "490x344 again 100") << "on a small screen all is smaller";
    EXPECT_EQ(Pixels(), 0.75);
}

TEST_F(SizeOfTheWindow, IsTakenUnaskedOrSpringsBackFromADrag)
{
    desktop.SaysSizeAlone = true;
    desktop.Borders = {};
    EXPECT_EQ(Given(649, 465), "");
    EXPECT_EQ(Given(1298, 930), "") << "given for good";
    EXPECT_EQ(Pixels(), 2);
    EXPECT_EQ(Given(649, 465), "");
    EXPECT_EQ(Given(660, 470), " again 300") << "perhaps a drag";
    EXPECT_EQ(Given(700, 500), " again 300");
    EXPECT_EQ(Later(), "649x465 again 100") << "it was one";
    EXPECT_EQ(Given(649, 465), "");
    EXPECT_EQ(Given(700, 500), " again 300") << "where it ended, it goes on";
    EXPECT_EQ(Given(649, 465), "");
    EXPECT_EQ(Given(660, 470), " again 300");
    EXPECT_EQ(Later(), "") << "one step is no drag";
    EXPECT_NEAR(Pixels(), 470 / 465.0, 1e-9);
}

} // namespace
