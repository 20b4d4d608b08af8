// A board as text, to set one and to show one:
//   you=planet me=garden swap=SIMPLE held=x3 you:120 me:50 bonus:_10 used=simple,planet
// In a row a dot is an empty box, a capital is a letter in a disabled box, "-" an empty disabled
// box; parentheses hold any other text, brackets that of a disabled box. A "_" stands for a blank.
// "off=" names the disabled buttons that arrange letters: "arranging" all of them,
// "arranging-Command16" all but that one. What is not named keeps its value.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

struct Board;

// Every part of the board, as in {"you=", "planet"}.
std::vector<std::pair<std::string, std::string>> PartsOf(const Board& board);

// Throws ScriptError for a part that is unknown or malformed, where the parts before it are set by
// then, and for a board on view with no level.
void SetBoard(Board& board, const std::string& parts);

// These parts as one line.
std::string Line(const Board& board,
    std::initializer_list<const char*> keys
    = {"you=", "me=", "swap=", "up=", "held=", "you:", "me:", "bonus:"});
