// Makes the widgets of the roster and puts them in their places.
#pragma once

#include <vector>

class QWidget;
struct Control;

struct BuiltControl {
    const Control* Row;    // in the roster
    int Number;            // of the box; 0 for a single control
    QWidget* Widget;       // owned by the window; its objectName is the control's name: "Text1(3)"
    bool Lettered = false; // has its font
};

// Makes every control of the roster, in its order, with its colours, words and Tab order.
std::vector<BuiltControl> BuildControls(QWidget& window);

// Gives every control its place, at so many pixels to the twip; its font has to be given anew.
// Where the level panel stands is for the board to say.
void PlaceControls(std::vector<BuiltControl>& controls, double pixelsPerTwip);

// Gives the controls on view their fonts, as large as their captions fit in with. Looking for fonts
// is most of the work before the window first shows, so the board's wait until it is on view.
void LetterControls(std::vector<BuiltControl>& controls, double pixelsPerTwip);
