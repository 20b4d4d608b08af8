// A player of scripts: every event that the window can deliver, and a look at the board after each.
//
// A script is one line of words:
//   Text1:4 Command3    a click on a box or a button; refused where the window refuses it
//   Text6:2=ab_c        typed into a box of the guess rows; "_" stands for a blank
//   Check1=0            the tick is taken away, or set with 1
//   word:7              the clicks that spell and submit a word; the number picks the word
//   right               the hidden words, typed into the guess rows
//   ~Text1:4            any of these while the next handler runs: inside its RefreshWindow, or
//                       behind it when there is none
//   yes no              an answer laid by for a question; a question that finds none gets Yes
#pragma once

#include "game/board.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/platform.h"

#include <deque>
#include <map>
#include <string>

class EventPlayer : private GameView {
public:
    EventPlayer(std::filesystem::path lexicon, Platform& platform);

    // Plays on from where the last script ended. When the program ends it is started again.
    // Returns the first fault, "" when there is none, and plays nothing behind a fault.
    std::string Play(const std::string& script);

    Board board;
    std::map<std::string, long> counts; // of clicks, messages and deeds; "events" is those that ran
                                        // a handler or changed a box

private:
    void ShowMessage(const std::string& text, const std::string& title) override;
    Answer AskYesNo(const std::string& text, const std::string& title) override;
    void RefreshWindow() override;
    [[noreturn]] void EndProgram() override;

    void StartProgram();
    void Do(const std::string& event);
    void RunPending();
    void Click(const std::string& control, int index = 0);
    void SubmitWord(int pick);
    void ShowCall(const std::string& call);
    void Require(bool holds, const std::string& rule);
    void Check();

    Game game_;
    std::string failure_;
    std::deque<Answer> answers_;
    std::deque<std::string> pending_;
    std::string lastCall_; // of the window
    int depth_ = 0;        // handlers under way, one inside the other
    long refreshes_ = 0;
    bool interrupted_ = false; // the last RefreshWindow let an event through
    bool exchanged_ = false;   // this go's exchange is used or given up
};
