// A game with no window: a board, a view, chance and a word list, and the events that a window
// would deliver.
#pragma once

#include "game/board.h"
#include "game/game.h"
#include "headless/headless_platform.h"
#include "headless/recording_view.h"
#include "headless/word_list_file.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct Click;
class HeadlessGame;

enum class When {
    Now,
    InRepaint, // in the next, or at the end of the next event if there is none
    InMessage, // while the next message is open
};

// What a player does in one step.
struct Event {
    std::function<void(HeadlessGame& game)> run;
    When when = When::Now;
};

class HeadlessGame {
public:
    // With a view it is asked in place of the recording one.
    explicit HeadlessGame(std::filesystem::path wordList,
        HeadlessPlatform chance = HeadlessPlatform(), GameView* shown = nullptr);
    virtual ~HeadlessGame() = default;
    HeadlessGame(const HeadlessGame&) = delete;
    HeadlessGame& operator=(const HeadlessGame&) = delete;

    std::unique_ptr<Board> boardInHeap = std::make_unique<Board>();
    Board& board = *boardInHeap;
    RecordingView view;
    HeadlessPlatform platform;
    Game game;

    // Told what happens as it happens: the calls of the view, "refused Text1:1", "end", and
    // "fault: " with what went wrong.
    std::function<void(const std::string& what)> tell = [](const std::string& /*what*/) { };

    // Plays on; after the end of the program it is started again. After a fault nothing is played.
    void Play(const Event& event);

    // Steps of an event: a click, 0 for a single control, which tells when it is refused; a text
    // that is in a box of the guess now; "Show Responses".
    void Click(std::string_view control, std::int16_t index = 0);
    virtual void Type(std::string_view row, int index, const std::string& text);
    virtual void Tick(bool ticked);

    // A go of the computer alone, which no click begins.
    virtual void PlayComputersGo();

    // Sets parts of the board: see board_text.h.
    virtual void Set(const std::string& parts);

    // All that a script tells of the game: the parts of the board.
    virtual std::vector<std::pair<std::string, std::string>> Parts() const;

    // From here on the game is held to its rules, at every event and every repaint: to those of
    // every board and to those that reach from one event to another.
    void Check() { checked_ = true; }

    // From here on games read these bytes as their word list, or find none.
    void UseList(const std::string& bytes);
    void UseNoList();

    bool Ended() const { return ended_; } // the program, by the last event
    const std::string& FirstFault() const { return fault_; }

protected:
    virtual void StartProgram();
    virtual void DeliverClick(const ::Click& click, std::int16_t index);
    virtual void AfterEvent() { }

    // What waits for a repaint is given up, as front ends do when a message opens.
    void GiveUpWaiting()
    {
        std::erase_if(pending_, [](const Event& event) { return event.when == When::InRepaint; });
    }

private:
    void RunPending(When when);
    void OnCall(const std::string& call);

    void Fail(const std::string& fault);
    void Require(bool holds, const std::string& rule) const; // throws Fault
    void CheckBoard() const;
    void CheckCall(const std::string& call) const;
    bool InLedger(const std::string& word, int slots) const;

    std::optional<WordListFile> list_;
    std::deque<Event> pending_;
    std::string fault_;
    bool ended_ = false;

    bool checked_ = false;
    int depth_ = 0; // clicks under way, one inside the other
    int repaints_ = 0;
    bool interrupted_ = false; // the last repaint let an event through
    bool exchanged_ = false;   // this go's exchange is used or given up
};
