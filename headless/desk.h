// A front end with no window: it holds what it was last shown, a focus, and where the cursor
// stands. A game on it stops with a fault where what it shows is not what ui/ says of the board.
#pragma once

#include "headless/played_game.h"
#include "ui/front_end.h"
#include "ui/look.h"
#include "ui/session.h"
#include "ui/view.h"
#include "ui/window_size.h"

class Desk : public PlayedGame, public FrontEnd {
public:
    explicit Desk(std::filesystem::path wordList, HeadlessPlatform chance = HeadlessPlatform());

    Session& InSession() override { return *session_; }
    const Part* Focused() const override { return focused_; }
    void Focus(const Part& part) override;
    void PressKey(const Stroke& stroke) override;
    void PressMouse(const Part& part) override;
    void TypeLetter(const std::string& letter) override;
    void Paste(const std::string& text) override;
    void Type(std::string_view row, int index, const std::string& text) override;
    void Tick(bool ticked) override;

protected:
    void StartProgram() override;
    void DeliverClick(const ::Click& click, std::int16_t index) override;
    void AfterEvent() override;
    void PaintNow() override;
    Answer Ask(const Message& message) override;
    void Say(const std::string& text) override { PlayedGame::Say(text); }
    std::int64_t Milliseconds() const override { return PlayedGame::Milliseconds(); }

private:
    void ShowBoard() override;
    void TakeOutOfPlay() override;
    [[noreturn]] void End() override { view.EndProgram(); }
    void WakeAfter(int milliseconds) override { PlayedGame::WakeAfter(milliseconds); }
    int DoubleClickMilliseconds() const override { return PlayedGame::DoubleClickMilliseconds(); }
    bool OpenHowToPlay() override { return PlayedGame::OpenHowToPlay(); }

    void StartSession();
    void CheckShown() const;
    bool IsAtText() const;
    std::string TextInFocus() const;
    void Write(const std::string& text, int cursor, Edit edit);
    void Insert(const std::string& text);
    void EditBy(const std::string& key);
    void WalkList(int step);

    View shown_;
    std::optional<WindowSize> size_;
    std::unique_ptr<Session> session_;
    std::vector<Look> looks_; // by the place in Parts()
    const Part* focused_ = nullptr;
    int cursor_ = 0;        // letters before it, in a box to type in
    bool selected_ = false; // all of them
    int word_ = -1;         // of "Used Words", that the focus is on
};
