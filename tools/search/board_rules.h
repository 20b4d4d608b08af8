// What always holds on the board of a started game, between any two handlers.
#pragma once

#include <string>

struct Board;

// What is wrong with the board, "" when nothing is.
std::string FindFault(const Board& board);

// The rows, the held letter and the scores as one line, a dot for an empty box:
// "you=planet me=garden swap=si.ple up=...... held=m3 you:120 me:50".
std::string Line(const Board& board);
