// What the rules ask of a view, passed on to the session that the game is played in.
#pragma once

#include "game/game_view.h"

class Session;

class View : public GameView {
public:
    // Has to be named before the first message.
    void PlayIn(Session& session) { session_ = &session; }

    void ShowMessage(const std::string& text, const std::string& title = StandardTitle) override;
    Answer AskYesNo(const std::string& text, const std::string& title) override;
    void RefreshWindow() override;
    [[noreturn]] void EndProgram() override;

private:
    Session* session_ = nullptr;
};
