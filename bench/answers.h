// Compares the game's answers with those of the plain form.
#pragma once

#include <string>

// What the two disagree about, or "" when they agree.
std::string FirstWrongAnswer();
