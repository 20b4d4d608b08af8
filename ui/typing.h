// A word is typed: a letter key clicks for the player what a hand would click, and writes nothing.
#pragma once

#include <functional>
#include <string>
#include <vector>

struct Board;
struct Part;

// A typed letter in UTF-8: as it was typed, and then in its other cases.
using TypedLetter = std::vector<std::string>;

// Delivers a click as the player's own would be.
using Clicker = std::function<void(const Part& part)>;

// While it is the player's go, with no level to choose.
bool CanType(const Board& board);

// The letter lays out the player's letters, if that is not under way, and puts the first tile that
// bears it in its place. Returns where the focus belongs, or nullptr where nothing has been placed.
const Part* TypeLetter(const Board& board, const TypedLetter& letter, const Clicker& click);

// Puts the letters that wait in their places, from the left.
void PlaceTheRest(const Board& board, const Clicker& click);
