#include "ui/controls.h"

#include "ui/roster.h"

#include <QWidget>

#include <algorithm>

const BuiltControl& FindControl(const Controls& controls, std::string_view name, int number)
{
    const auto found = std::ranges::find_if(controls, [=](const BuiltControl& control) {
        return name == control.Row->Name && control.Number == number;
    });
    if (found == controls.end())
        qFatal("there is no control %s with a box %d", std::string(name).c_str(), number);
    return *found;
}

void StopOverWrongKind(const BuiltControl& control)
{
    qFatal("%s is of another kind", qPrintable(control.Widget->objectName()));
}
