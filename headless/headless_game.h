// A game with no window: a board, a view, chance and a word list, and the events that a window
// would deliver.
#pragma once

#include "game/board.h"
#include "game/game.h"
#include "headless/headless_platform.h"
#include "headless/recording_view.h"
#include "headless/referee.h"
#include "headless/word_list_file.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class HeadlessGame;

// What a player does in one step; its word in a script is "Text1:4" or the like.
struct Event {
    std::string word;
    bool waits = false; // for the next repaint, or for the end of the next event if there is none
    std::function<void(HeadlessGame& game)> run;
};

class HeadlessGame {
public:
    explicit HeadlessGame(
        std::filesystem::path wordList, HeadlessPlatform chance = HeadlessPlatform());

    std::unique_ptr<Board> boardInHeap = std::make_unique<Board>();
    Board& board = *boardInHeap;
    RecordingView view;
    HeadlessPlatform platform;
    Game game;

    // Told what happens as it happens: the calls of the view, "refused Text1:1", "end", and
    // "fault: " with what went wrong.
    std::function<void(const std::string& what)> tell;

    // Plays on; after the end of the program it is started again. After a fault nothing is played.
    void Play(const Event& event);

    // The same for the words of a script, "Text1:4 Command3". Throws ScriptError.
    void Play(std::string_view events);

    // Delivers a click, as a step of an event; 0 for a single control. False when it is refused.
    bool Click(std::string_view control, std::int16_t index = 0);

    // From here on the game is held to its rules, at every event and every repaint.
    void Check() { referee_.emplace(board); }

    // From here on games read these bytes as their word list, or find none.
    void UseList(const std::string& bytes);
    void UseNoList();

    bool Started() const { return board.Frame4.Visible; }
    const std::string& FirstFault() const { return fault_; }
    bool Ended() const { return ended_; } // the program, by the last event

private:
    void StartProgram();
    void RunPending();
    void OnCall(const std::string& call);
    void Tell(const std::string& what);

    std::optional<WordListFile> list_;
    std::optional<Referee> referee_;
    std::deque<Event> pending_;
    std::string fault_;
    bool ended_ = false;
};
