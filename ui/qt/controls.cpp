#include "ui/qt/controls.h"

#include <QWidget>

void StopOverWrongKind(const BuiltControl& control)
{
    qFatal("%s is of another kind", qPrintable(control.Widget->objectName()));
}

const Part* PartOf(const Controls& controls, const QWidget* widget)
{
    for (const BuiltControl& control : controls)
        if (control.Widget == widget)
            return control.Is;
    return nullptr;
}
