// Makes the widgets of the roster and puts them in their places.
#pragma once

#include <vector>

class QWidget;
struct Control;

struct BuiltControl {
    const Control* Row; // in the roster
    int Number;         // of the box; 0 for a single control
    QWidget* Widget;    // owned by the window; its objectName is the control's name: "Text1(3)"
};

// Makes every control of the roster, in its order, with its colours, words and Tab order.
std::vector<BuiltControl> BuildControls(QWidget& window);

// Gives every control its place and its font, at so many pixels to the twip. Where the level panel
// stands is for the board to say; it has its size before this is called, for its caption to fit in.
void PlaceControls(const std::vector<BuiltControl>& controls, double pixelsPerTwip);
