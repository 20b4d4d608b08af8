// The controls of the window: each part with the widget made for it.
#pragma once

#include "ui/part.h"

#include <vector>

class QWidget;

struct BuiltControl {
    const Part* Is;
    QWidget* Widget;      // owned by the window; its objectName is that of the part: "Text1(3)"
    bool HasFont = false; // at the present scale
};

// In the order of Parts().
using Controls = std::vector<BuiltControl>;

// The widget, which has to be of that class: another is a mistake of ours and stops the program
// with the name of the control.
template <typename Widget> Widget& As(const BuiltControl& control);
[[noreturn]] void StopOverWrongKind(const BuiltControl& control);

// The part that the widget is made for, or nullptr.
const Part* PartOf(const Controls& controls, const QWidget* widget);

template <typename Widget> Widget& As(const BuiltControl& control)
{
    auto* widget = dynamic_cast<Widget*>(control.Widget);
    if (widget == nullptr)
        StopOverWrongKind(control);
    return *widget;
}
