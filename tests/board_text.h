// A board as text, for tests to set and failures to show:
//   you=planet me=garden swap=SIMPLE held=x3 you:120 me:50 bonus:_10 used=simple,planet
// In a row a dot is an empty box, a capital is a letter in a disabled box, "-" an empty disabled
// box, and parentheses hold any other text. A "_" stands for a blank. What is not named keeps its
// value.
#pragma once

#include "game/board.h"
#include "tools/search/board_rules.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

// Every part of the board, as in {"you=", "planet"}.
std::vector<std::pair<std::string, std::string>> PartsOf(const Board& board);

void SetBoard(Board& board, const std::string& parts);

// All that always holds between two handlers of a started game; the failure text says what does
// not.
testing::AssertionResult BoardIsOk(const Board& board);
