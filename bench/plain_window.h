// The floor for the window: as many controls of the toolkit's own kinds, in the same places and
// with the same captions, in the desktop's font and colours, with no game in it.
#pragma once

#include <memory>

class QWidget;

// The level panel is on view.
std::unique_ptr<QWidget> MakePlainWindow();

// The frames of a game are on view, or the level panel.
void ShowPlainGame(const QWidget& window, bool game);
