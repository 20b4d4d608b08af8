// The page that tells how the game is played.
#pragma once

// Shows the page that is installed with the game, by whatever the desktop opens pages with. Does
// nothing where the page is missing or nothing opens it.
void OpenHowToPlay();
