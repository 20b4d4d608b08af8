// Makes the widgets of the roster.
#pragma once

#include "ui/controls.h"

// Makes every control of the roster, in its order, with its colours, words, neighbours and Tab
// order, and with its rows in the tables of fields and clicks. Places and fonts come with the
// scale of the window.
Controls BuildControls(QWidget& window);
