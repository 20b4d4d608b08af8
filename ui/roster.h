// The controls of the window as one table: what each is called, shows and says, and where it
// stands.
#pragma once

#include <optional>
#include <span>

enum class Kind {
    Frame,      // a titled frame that holds other controls
    ShownBox,   // shows a letter or a number and takes no click
    LetterTile, // shows a letter and takes clicks
    GuessBox,   // the player types here
    Button,
    Option,
    Check,
    List,
    Label,
};

// Twips, 1440 to the inch, counted from the client area of the window or from the control's frame.
struct Place {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
};

struct Step {
    int Right = 0;
    int Down = 0;
};

struct BoxNumbers {
    int First = 0;
    int Last = 0;
};

enum class Face {
    Plain,
    TimesNewRoman,
    HobbitSF,
    BaskervilleOldFace,
    ArialBlack,
    NapaSF,
    SansSerif
};

struct Lettering {
    Face Name = Face::Plain; // the desktop's own, in its own size
    double Points = 0;
    bool Bold = false;
};

struct Colour {
    int Red = 0;
    int Green = 0;
    int Blue = 0;
};

struct Control {
    Kind Is;
    const char* Name;
    std::optional<BoxNumbers> Boxes = {}; // those of this line; none for a single control
    const char* In = "";                  // the frame it stands in; "" for the window itself
    Place At = {}; // of the first of its boxes; the others follow by the step
    Step Next = {};
    const char* Caption = "";
    Lettering Font = {};
    std::optional<Colour> Background = {}; // none: as the desktop has it
    std::optional<Colour> Text = {};       // none on a named background: black
    const char* ToolTip = "";
    bool Heavy = false; // a button with a heavier edge

    // What a screen reader says: the name, where %1 stands for the number of the box, then for a
    // box its letter and an ending, or the one that stands for no letter; and what the control
    // does, which the first box says for all.
    const char* Spoken = "";
    const char* SpokenWhenEmpty = ", empty";
    const char* SpokenWhenFilled = "";
    const char* SpokenHelp = "";
};

// Which kinds draw their edge themselves, in lines as wide as the scale of the board asks for.
constexpr bool HasDrawnEdge(Kind kind)
{
    return kind == Kind::ShownBox || kind == Kind::LetterTile || kind == Kind::GuessBox
        || kind == Kind::Button;
}

// All controls, each standing above those before it. A frame comes before what it holds.
std::span<const Control> Roster();

// The order in which the Tab key walks the controls. Controls with boxes stand for all of them.
std::span<const char* const> TabOrder();

// How far the frames reach to the right and down, in twips.
struct Reach {
    int Right = 0;
    int Down = 0;
};
Reach ReachOfFrames();
