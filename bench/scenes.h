// What the timings are taken on: word lists, boards, and a window and a chance that cost nothing.
#pragma once

#include "game/board.h"
#include "game/game.h"
#include "game/game_view.h"
#include "headless/headless_platform.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

extern const std::filesystem::path shippedList;

// A list of the bench's own, in a file that goes with it.
class MadeList {
public:
    explicit MadeList(const std::vector<std::string>& words);
    ~MadeList();
    MadeList(const MadeList&) = delete;
    MadeList& operator=(const MadeList&) = delete;

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

// So many words that are not in any dictionary, no two of them equal; at most 32767.
std::vector<std::string> MadeWords(int count);

// 32767 records, of which the last but three to the last but one are the hidden words, and the
// only ones that their letters make. The others come as close to being made as they can.
std::vector<std::string> WorstStartWords();

// Answers no question and shows nothing, but keeps the text of the last message.
class QuietView : public GameView {
public:
    std::string lastMessage;

    void ShowMessage(const std::string& text, const std::string& /*title*/) override
    {
        lastMessage = text;
    }
    Answer AskYesNo(const std::string& /*text*/, const std::string& /*title*/) override
    {
        return Answer::Yes;
    }
    void RefreshWindow() override { }
    [[noreturn]] void EndProgram() override;
};

// The clock stands still, so that every start of a game is the same one.
class SameGameAgain : public HeadlessPlatform {
public:
    explicit SameGameAgain(std::uint32_t seed)
        : HeadlessPlatform(seed)
        , seed_(static_cast<float>(seed))
    {
    }
    float ClockSeconds() override { return seed_; }

private:
    float seed_;
};

// Draws the three hidden words of the worst start, and then always 0.
class WorstStartChance : public Platform {
public:
    float DrawRandom() override;
    void SeedRandom(float /*seed*/) override { draws_ = 0; }
    float ClockSeconds() override { return 0; }

private:
    int draws_ = 0;
};

// A game that is ready to start at Level 1.
struct Scene {
    Scene(std::filesystem::path list, std::unique_ptr<Platform> chanceOfScene);

    std::unique_ptr<Platform> chance;
    std::unique_ptr<Board> boardInHeap = std::make_unique<Board>();
    Board& board = *boardInHeap;
    QuietView view;
    Game game;
};

// The computer is on the go at Level 1 with 2000 candidates and 250 used words, among them every
// word that one of its exchanges makes; "Show Responses" is off.
std::unique_ptr<Scene> WorstGo();

// Undoes the exchange that the go has ended with.
void TakeBackGo(Scene& worstGo);
