#include "ui/roster.h"

#include <algorithm>

namespace {

constexpr Colour Black{0, 0, 0};
constexpr Colour Brick{192, 64, 0};
constexpr Colour DarkRed{192, 0, 0};
constexpr Colour PaleOrange{255, 192, 128};
constexpr Colour Orange{255, 128, 0};
constexpr Colour White{255, 255, 255};
constexpr Colour Yellow{255, 255, 0};
constexpr Colour Lilac{255, 192, 255};
constexpr Colour PaleCyan{128, 255, 255};
constexpr Colour PaleGreen{128, 255, 128};
constexpr Colour PaleYellow{255, 255, 128};
constexpr Colour Red{255, 0, 0};
// Pale orange letters need a dark ground to be read on, and a quiet one: it is no colour of the
// game.
constexpr Colour Umber{74, 62, 54};

constexpr Lettering Times(double points, bool bold = true)
{
    return {Face::TimesNewRoman, points, bold};
}

constexpr Lettering Hobbit(double points, bool bold)
{
    return {Face::HobbitSF, points, bold};
}

constexpr BoxNumbers Six{1, 6};
constexpr const char* SwapHint = "Click a yellow box, then a lilac box to swap.";
constexpr const char* GuessHint = "Enter your guess in these boxes.";

// A row of six boxes to guess in.
constexpr Control GuessRow(const char* name, int top, const char* spoken)
{
    return {.Is = Kind::GuessBox,
        .Name = name,
        .Boxes = Six,
        .In = "Frame8",
        .At = {480, top, 375, 375},
        .Next = {.Right = 480},
        .Font = Times(12),
        .ToolTip = GuessHint,
        .Spoken = spoken,
        .SpokenHelp = "Type a letter"};
}

// Neighbours in a hidden word: of those shown from the start, or of the four that are for sale. The
// boxes stand in the roster as they stand in the word, and so are read aloud in that order.
constexpr Control WordBoxes(const char* name, BoxNumbers boxes, int top, const char* spoken)
{
    const bool shown = boxes.First == 1 || boxes.First == 4;
    return {.Is = Kind::LetterTile,
        .Name = name,
        .Boxes = boxes,
        .In = "Frame2",
        .At = {360 + 480 * (boxes.First - 1), top, 495, 570},
        .Next = {.Right = 480},
        .Font = Times(18),
        .Background = shown ? Orange : PaleOrange,
        .Spoken = spoken,
        .SpokenWhenEmpty = ": buy for 100 points",
        .SpokenWhenFilled = ", shown, not for sale"};
}

constexpr Control LevelOption(int box, int top, const char* caption)
{
    return {.Is = Kind::Option,
        .Name = "Option1",
        .Boxes = BoxNumbers{box, box},
        .In = "Frame1",
        .At = {240, top, 855, 255},
        .Caption = caption,
        .Background = Brick,
        .Text = White,
        .SpokenHelp = "Level 1 is the strongest computer, Level 6 the weakest"};
}

constexpr Control PlainButton(const char* name, const char* in, Place at, const char* caption,
    Lettering font, const char* spokenHelp, const char* spoken = "")
{
    return {.Is = Kind::Button,
        .Name = name,
        .In = in,
        .At = at,
        .Caption = caption,
        .Font = font,
        .Spoken = spoken,
        .SpokenHelp = spokenHelp};
}

constexpr Control GameFrame(
    const char* name, const char* in, Place at, const char* caption, Lettering font)
{
    return {.Is = Kind::Frame, .Name = name, .In = in, .At = at, .Caption = caption, .Font = font};
}

constexpr Control CentredLabel(const char* name, const char* in, Place at, const char* caption,
    Lettering font, std::optional<BoxNumbers> boxes = {})
{
    return {.Is = Kind::Label,
        .Name = name,
        .Boxes = boxes,
        .In = in,
        .At = at,
        .Caption = caption,
        .Font = font};
}

constexpr Control roster[] = {
    // The player's letters, and all that the player does with them.
    GameFrame("Frame4", "", {120, 0, 3735, 4695}, "Your Letters + Score", Hobbit(9.75, true)),
    {.Is = Kind::Frame,
        .Name = "Frame6",
        .In = "Frame4",
        .At = {120, 240, 3375, 975},
        .Spoken = "Letters to lay out"},
    {.Is = Kind::LetterTile,
        .Name = "Text2",
        .Boxes = Six,
        .In = "Frame6",
        .At = {600, 240, 375, 315},
        .Next = {.Right = 360},
        .Font = Times(11.25),
        .Spoken = "Letter to lay out %1 of 6",
        .SpokenHelp = "Puts this letter in the next box of your letters"},
    PlainButton("Command9", "Frame6", {720, 600, 1935, 255}, "Lay Out Word", Times(9.75),
        "Lifts all your letters, to be put back in the order you click them"),
    {.Is = Kind::LetterTile,
        .Name = "Text1",
        .Boxes = Six,
        .In = "Frame4",
        .At = {120, 1200, 495, 525},
        .Next = {.Right = 480},
        .Font = Times(18),
        .Background = Yellow,
        .ToolTip = "Click any two boxes to swap ",
        .Spoken = "Your letter %1 of 6",
        .SpokenHelp = "Takes this letter in your hand, or puts the one in your hand here"},
    {.Is = Kind::LetterTile,
        .Name = "SwapLetters",
        .Boxes = BoxNumbers{1, 1},
        .In = "Frame4",
        .At = {3000, 1200, 495, 525},
        .Font = Times(18),
        .Background = Lilac,
        .Text = Red,
        .ToolTip = SwapHint,
        .Spoken = "Swap letter %1 of 6, red",
        .SpokenHelp = "Exchanges this letter with the one in your hand"},
    PlainButton("Command4", "Frame4", {120, 1800, 375, 315}, "<", {Face::ArialBlack, 14.25},
        "Moves each of your letters one box to the left", "Turn left"),
    PlainButton("Command6", "Frame4", {480, 1800, 2175, 315}, "Mix Letters", Times(9.75),
        "Puts your letters in another order"),
    PlainButton("Command5", "Frame4", {2640, 1800, 375, 315}, ">", {Face::ArialBlack, 14.25},
        "Moves each of your letters one box to the right", "Turn right"),
    PlainButton("Command16", "Frame4", {3000, 1800, 495, 315}, "+", {Face::SansSerif, 13.5},
        "Turning your letters then runs through the red letter; ends swapping for this go",
        "Take in the red letter"),
    PlainButton("Command15", "Frame4", {120, 2160, 3375, 255}, "Rotate Swap Letters", Times(9.75),
        "Moves each swap letter on by one box"),
    {.Is = Kind::Label,
        .Name = "Label5",
        .In = "Frame4",
        .At = {120, 2520, 3495, 495},
        .Caption = "YOUR GO",
        .Font = Times(18),
        .Background = PaleYellow,
        .Text = Red},
    {.Is = Kind::ShownBox,
        .Name = "YourScore",
        .In = "Frame4",
        .At = {1080, 3120, 1575, 375},
        .Font = {Face::BaskervilleOldFace, 18, true},
        .Spoken = "Your score"},
    GameFrame("Frame10", "Frame4", {120, 3600, 3495, 975}, "These buttons end your go",
        Hobbit(9.75, false)),
    {.Is = Kind::Button,
        .Name = "Command3",
        .In = "Frame10",
        .At = {120, 240, 1695, 315},
        .Caption = "Submit Word",
        .Font = Times(9.75),
        .Heavy = true,
        .SpokenHelp = "Plays your six letters as a word and ends your go"},
    PlainButton("Command13", "Frame10", {1800, 240, 1575, 315}, "Pass", Times(9.75),
        "Ends your go and leaves the letters as they are"),
    PlainButton("Command14", "Frame10", {120, 600, 3255, 315}, "Jumble", Times(9.75),
        "Deals all the letters again and ends your go"),

    // The computer's letters.
    GameFrame("Frame5", "", {120, 4800, 3735, 2055}, "My Letters + Score", Hobbit(9.75, false)),
    {.Is = Kind::ShownBox,
        .Name = "MyLetters",
        .Boxes = Six,
        .In = "Frame5",
        .At = {360, 360, 495, 570},
        .Next = {.Right = 480},
        .Font = Times(18),
        .Background = PaleCyan,
        .Spoken = "The computer's letter %1 of 6"},
    {.Is = Kind::ShownBox,
        .Name = "MyScore",
        .In = "Frame5",
        .At = {1080, 1320, 1575, 375},
        .Font = {Face::BaskervilleOldFace, 18, true},
        .Spoken = "The computer's score"},

    // The swap row.
    {.Is = Kind::Frame,
        .Name = "Frame3",
        .At = {3960, 0, 3615, 1815},
        .Caption = "Swap Letters",
        .Font = Hobbit(9.75, true),
        .ToolTip = SwapHint},
    {.Is = Kind::Label,
        .Name = "Label3",
        .In = "Frame3",
        .At = {120, 600, 3375, 375},
        .Caption = "One swap, then a six-letter word",
        .Font = Times(11.25),
        .Background = Umber,
        .Text = PaleOrange},
    {.Is = Kind::LetterTile,
        .Name = "SwapLetters",
        .Boxes = BoxNumbers{2, 6},
        .In = "Frame3",
        .At = {360, 1200, 495, 495},
        .Next = {.Right = 600},
        .Font = Times(18),
        .Background = Lilac,
        .ToolTip = SwapHint,
        .Spoken = "Swap letter %1 of 6"},

    // The hidden words.
    GameFrame(
        "Frame2", "", {3960, 1920, 3615, 4935}, "The Words (Buy Letters)", Hobbit(9.75, true)),
    WordBoxes("Word1", {1, 1}, 360, "Hidden word 1, letter %1 of 6"),
    WordBoxes("Word1", {2, 3}, 360, "Hidden word 1, letter %1 of 6"),
    WordBoxes("Word1", {4, 4}, 360, "Hidden word 1, letter %1 of 6"),
    WordBoxes("Word1", {5, 6}, 360, "Hidden word 1, letter %1 of 6"),
    WordBoxes("Word2", {1, 1}, 960, "Hidden word 2, letter %1 of 6"),
    WordBoxes("Word2", {2, 3}, 960, "Hidden word 2, letter %1 of 6"),
    WordBoxes("Word2", {4, 4}, 960, "Hidden word 2, letter %1 of 6"),
    WordBoxes("Word2", {5, 6}, 960, "Hidden word 2, letter %1 of 6"),
    WordBoxes("Word3", {1, 1}, 1560, "Hidden word 3, letter %1 of 6"),
    WordBoxes("Word3", {2, 3}, 1560, "Hidden word 3, letter %1 of 6"),
    WordBoxes("Word3", {4, 4}, 1560, "Hidden word 3, letter %1 of 6"),
    WordBoxes("Word3", {5, 6}, 1560, "Hidden word 3, letter %1 of 6"),
    PlainButton("Command7", "Frame2", {360, 2160, 1935, 375}, "Make A Guess", Times(12),
        "Names all three hidden words as you have typed them"),
    PlainButton("Command10", "Frame2", {2280, 2160, 975, 375}, "Give In", Times(9.75),
        "Resigns the game and shows the three words"),
    CentredLabel("Label1", "Frame2", {120, 2520, 3255, 255},
        "To Buy A Letter - Click On Square Above", Times(8.25)),
    CentredLabel(
        "Label2", "Frame2", {600, 2760, 2415, 255}, "Cost 100 Points per letter", Times(8.25)),
    {.Is = Kind::Frame,
        .Name = "Frame8",
        .In = "Frame2",
        .At = {120, 3000, 3375, 1815},
        .Caption = "Enter 3 Word Guess Here",
        .Font = Times(12),
        .Text = Red},
    CentredLabel("Label4", "Frame8", {120, 360, 375, 375}, "1)", Times(14.25), BoxNumbers{0, 0}),
    CentredLabel("Label4", "Frame8", {120, 840, 375, 375}, "2)", Times(14.25), BoxNumbers{1, 1}),
    CentredLabel("Label4", "Frame8", {120, 1320, 375, 375}, "3)", Times(14.25), BoxNumbers{2, 2}),
    GuessRow("Text6", 360, "Guess at word 1, letter %1 of 6"),
    GuessRow("Text7", 840, "Guess at word 2, letter %1 of 6"),
    GuessRow("Text8", 1320, "Guess at word 3, letter %1 of 6"),

    // The bonus and the words played.
    GameFrame("Frame9", "", {7680, 0, 1935, 1695}, "Bonus Score", Hobbit(8.25, false)),
    {.Is = Kind::ShownBox,
        .Name = "Text9",
        .In = "Frame9",
        .At = {240, 360, 1455, 375},
        .Font = Times(14.25),
        .Background = PaleGreen,
        .Spoken = "Bonus of the next word"},
    {.Is = Kind::Check,
        .Name = "Check1",
        .In = "Frame9",
        .At = {120, 1080, 1695, 255},
        .Caption = "Show Responses",
        .SpokenHelp = "Tells you of every deal and of the computer's swaps"},
    GameFrame("Frame7", "", {7680, 1800, 1935, 5055}, "Used Words", Hobbit(9.75, true)),
    {.Is = Kind::List,
        .Name = "List1",
        .In = "Frame7",
        .At = {120, 360, 1695, 4350},
        .Spoken = "Used Words",
        .SpokenHelp = "The words both sides have played, the newest last"},

    // The level panel, above everything else.
    {.Is = Kind::Button,
        .Name = "Command2",
        .Background = DarkRed,
        .Text = White,
        .Spoken = "Border of the level panel"},
    {.Is = Kind::Frame,
        .Name = "Frame1",
        .Caption = "Choose Level",
        .Font = Times(12),
        .Background = Brick,
        .Text = PaleOrange},
    LevelOption(1, 360, "Level 1"),
    LevelOption(2, 720, "Level 2"),
    LevelOption(3, 1080, "Level 3"),
    LevelOption(4, 1440, "Level 4"),
    LevelOption(5, 1800, "Level 5"),
    LevelOption(6, 2160, "Level 6"),
    {.Is = Kind::Button,
        .Name = "Command1",
        .In = "Frame1",
        .At = {1320, 1200, 615, 495},
        .Caption = "OK",
        .Font = {Face::NapaSF, 14.25, true},
        .Background = PaleOrange,
        .Text = Black,
        .SpokenHelp = "Starts a game at the chosen level"},
};

// In the order in which a go is played: the swap, the word, its end; then the hidden words. What is
// read alone comes last.
constexpr const char* tabOrder[]
    = {"Option1", "Command1", "Text1", "SwapLetters", "Command15", "Command4", "Command6",
        "Command5", "Command16", "Command9", "Text2", "Command3", "Command13", "Command14", "Word1",
        "Word2", "Word3", "Text6", "Text7", "Text8", "Command7", "Command10", "Check1", "List1"};

} // namespace

std::span<const Control> Roster()
{
    return roster;
}

std::span<const char* const> TabOrder()
{
    return tabOrder;
}

Reach ReachOfFrames()
{
    Reach reach;
    for (const Control& row : roster) {
        if (*row.In != '\0')
            continue;
        reach.Right = std::max(reach.Right, row.At.Left + row.At.Width);
        reach.Down = std::max(reach.Down, row.At.Top + row.At.Height);
    }
    return reach;
}
