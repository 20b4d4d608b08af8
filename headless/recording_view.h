// A window that nobody sees: it keeps every text in order and gives prepared answers.
#pragma once

#include "game/game_view.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

// Stands for the end of the process. Not a std::exception, so that no failure path swallows it.
struct ProgramEnded { };

class RecordingView : public GameView {
public:
    std::vector<std::string> calls; // "Quorvel2: Word Accepted", "New Game? Play Again", "repaint"
    std::deque<Answer> answers;     // a question that finds none is answered Yes
    std::function<void(const std::string& call)> during; // what happens while a call is up

    void ShowMessage(const std::string& text, const std::string& title) override
    {
        Keep(title + ": " + text);
    }

    Answer AskYesNo(const std::string& text, const std::string& title) override
    {
        Keep(title + "? " + text);
        if (answers.empty())
            return Answer::Yes;
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    void RefreshWindow() override { Keep("repaint"); }
    [[noreturn]] void EndProgram() override { throw ProgramEnded{}; }

private:
    void Keep(const std::string& call)
    {
        calls.push_back(call);
        if (during)
            during(call);
    }
};
