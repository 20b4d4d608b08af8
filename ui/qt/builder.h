// Makes the widgets of the window from the roster.
#pragma once

#include "ui/qt/controls.h"

Controls BuildControls(QWidget& window);
