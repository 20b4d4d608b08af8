// Holds a game to the rules that reach from one event to another, and to those of every board.
#pragma once

#include "headless/board_check.h"

#include <string>
#include <string_view>

struct Board;

class Referee {
public:
    explicit Referee(const Board& board)
        : board_(board)
    {
    }

    // The program starts.
    void Begin();

    // Around a click that is delivered; clicks can stand one inside the other. The first returns
    // what the second takes: the repaints so far.
    int BeforeClick(std::string_view control);
    void AfterClick(std::string_view control, int repaintsBefore);

    // A letter of the words before that is bought while the next game starts stays in its box. This
    // is known, and the referee asks not to try it.
    bool Forbids(std::string_view control) const;

    // A call of the view, and whether events ran inside it.
    void OnCall(const std::string& call);
    void Interrupted(bool interrupted) { interrupted_ = interrupted; }

    void AfterEvent() const;
    void AtEnd(const std::string& lastCall) const;

private:
    void Require(bool holds, const std::string& rule) const; // throws Fault
    bool InLedger(const std::string& word, int slots) const;

    const Board& board_;
    int depth_ = 0; // clicks under way, one inside the other
    int repaints_ = 0;
    bool interrupted_ = false; // the last repaint let an event through
    bool exchanged_ = false;   // this go's exchange is used or given up
};
