// What the rules ask of a window.
#pragma once

#include <string>

inline constexpr const char* StandardTitle = "Quorvel2";

enum class Answer { Yes, No };

class GameView {
public:
    virtual ~GameView() = default;

    // Shows the text in a modal box with OK; returns when the player has pressed it.
    virtual void ShowMessage(const std::string& text, const std::string& title = StandardTitle) = 0;

    // Shows the text in a modal box with Yes and No; returns the player's answer.
    virtual Answer AskYesNo(const std::string& text, const std::string& title) = 0;

    // Repaints from the board and runs the pending input: a pending click runs inside this call.
    virtual void RefreshWindow() = 0;

    // Ends the process at once, with nothing saved.
    [[noreturn]] virtual void EndProgram() = 0;
};
