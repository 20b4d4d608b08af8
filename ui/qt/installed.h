// What stands beside the program, and where: in a build tree, in an installed prefix, in a package.
#pragma once

#include <filesystem>

std::filesystem::path PlaceOfWordList();

// Shows the page that tells how the game is played, by whatever the desktop opens pages with. False
// where the page is missing or nothing opens it.
bool OpenHowToPlay();
