// The fonts of the controls: which face stands in for one that is missing, and how large it is.
#pragma once

#include "ui/qt/controls.h"

#include <QFont>

// Gives the controls on view their fonts, as large as their captions fit in with. Looking for fonts
// is most of the work before the window first shows, so the board's wait until it is on view.
void GiveFonts(Controls& controls, double pixelsPerTwip);

// The serif of the board at that size, for what stands beside it.
QFont BoardFont(double points, double pixelsPerTwip);
