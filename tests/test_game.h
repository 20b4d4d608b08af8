// A game with no window: a board, a scripted view, scripted draws and a word list of the test's
// own.
#pragma once

#include "board_text.h"
#include "game/board.h"
#include "game/game.h"
#include "scripted_platform.h"
#include "scripted_view.h"

#include <initializer_list>
#include <memory>
#include <string>

// A word list in a file that goes with it.
class WordListFile {
public:
    explicit WordListFile(const std::string& bytes);
    ~WordListFile();
    WordListFile(const WordListFile&) = delete;
    WordListFile& operator=(const WordListFile&) = delete;

    void Write(const std::string& bytes) const;
    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

// One word a line.
std::string Lines(const std::vector<std::string>& words);

class TestGame : public testing::Test {
protected:
    explicit TestGame(const std::string& words = "planet\ngarden\nsimple\n")
        : list(words)
    {
    }

    void TearDown() override
    {
        EXPECT_TRUE(platform.draws.empty()) << "draws that no rule took";
        EXPECT_TRUE(view.answers.empty()) << "answers to no question";
    }

    WordListFile list;
    std::unique_ptr<Board> boardInHeap = std::make_unique<Board>();
    Board& board = *boardInHeap;
    ScriptedView view;
    ScriptedPlatform platform;
    Game game{board, view, platform, list.Path()};

    // Runs a handler; true when it ended the program.
    template <typename Handler> bool Ends(Handler handler)
    {
        try {
            handler();
            return false;
        } catch (const ProgramEnded&) {
            return true;
        }
    }
};
