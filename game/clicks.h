// Every click that the window can deliver, and the handler that it fires.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

struct Board;
struct Game;

struct Click {
    std::string_view Control; // the control's name; one row for all the boxes of a row
    int Boxes; // how many boxes bear that name, numbered from 1; 0 for a single control
    bool (*OnView)(const Board& board, std::int16_t Index); // false while its frame is hidden
    bool (*Enabled)(const Board& board, std::int16_t Index);
    // False while the handler would return with nothing done and nothing said. It tells, and keeps
    // no click away.
    bool (*Works)(const Board& board, std::int16_t Index);
    void (*Handler)(Game& game, std::int16_t Index);
};

std::span<const Click> Clicks();

// The row of that control, or nullptr when clicks on it do nothing.
const Click* FindClick(std::string_view control);

// Runs the control's handler, unless it is disabled or out of view. False when nothing ran.
// Index is the number of the box, 0 for a single control.
bool Deliver(Game& game, const Click& click, std::int16_t Index);
