// The controls of the window: each line of the roster with the widgets made for it.
#pragma once

#include "ui/binding.h"

#include <string_view>
#include <vector>

class QWidget;
struct Click;
struct Control;

struct BuiltControl {
    const Control* Row;             // in the roster
    int Number;                     // of the box; 0 for a single control
    QWidget* Widget;                // owned by the window; its objectName is the name: "Text1(3)"
    const Field* Shows = nullptr;   // of the board; nullptr when what it shows never changes
    const Click* Clicked = nullptr; // nullptr when a click on it does nothing
    bool HasFont = false;           // at the present scale
};

using Controls = std::vector<BuiltControl>;

// The widget of a control, or of one of its boxes. A name that is not in the roster, or a widget of
// another class, is a mistake of ours and stops the program with that name.
template <typename Widget = QWidget> Widget& As(const BuiltControl& control);
template <typename Widget = QWidget>
Widget& Find(const Controls& controls, std::string_view name, int number = 0);

const BuiltControl& FindControl(const Controls& controls, std::string_view name, int number = 0);
[[noreturn]] void StopOverWrongKind(const BuiltControl& control);

// Whether the board has the control enabled, and has it on view as far as the control's own flag
// says: the frames around it have flags of theirs.
bool IsEnabled(const BuiltControl& control, const Board& board);
bool IsOnView(const BuiltControl& control, const Board& board);

template <typename Widget> Widget& As(const BuiltControl& control)
{
    auto* widget = dynamic_cast<Widget*>(control.Widget);
    if (widget == nullptr)
        StopOverWrongKind(control);
    return *widget;
}

template <typename Widget> Widget& Find(const Controls& controls, std::string_view name, int number)
{
    return As<Widget>(FindControl(controls, name, number));
}
