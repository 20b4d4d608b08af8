// The real view: message boxes over the window, and the end of the process.
#pragma once

#include "game/game_view.h"

class MainWindow;

class QtView : public GameView {
public:
    // The window that the game is played in; it has to be named before the first message.
    void PlayIn(MainWindow& window) { window_ = &window; }

    void ShowMessage(const std::string& text, const std::string& title = StandardTitle) override;
    Answer AskYesNo(const std::string& text, const std::string& title) override;
    void RefreshWindow() override;
    [[noreturn]] void EndProgram() override;

private:
    MainWindow* window_ = nullptr;
};
