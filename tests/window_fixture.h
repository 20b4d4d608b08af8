// The real window, played in by mouse, keys and a screen reader, and its messages answered. After
// every event, inside every repaint and while a message is open it is held to what ui/ says.
#pragma once

#include "headless/played_game.h"
#include "ui/qt/main_window.h"
#include "ui/session.h"
#include "ui/view.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

// Its clock is a script's, and what it says is told.
class PlayedWindow : public MainWindow {
public:
    PlayedWindow(Game& game, PlayedGame& played)
        : MainWindow(game)
        , played_(played)
    {
    }
    void Say(const std::string& text) override;
    void WakeAfter(int milliseconds) override { played_.WakeAfter(milliseconds); }
    std::int64_t Milliseconds() const override { return played_.Milliseconds(); }
    int DoubleClickMilliseconds() const override { return played_.DoubleClickMilliseconds(); }
    bool OpenHowToPlay() override { return played_.OpenHowToPlay(); }

    // Ends the process for real, but a test that does not look for it fails.
    [[noreturn]] void End() override;
    bool mayEnd = false;

private:
    PlayedGame& played_;
};

class WindowGame : protected View, public PlayedGame {
public:
    WindowGame();

    Session& InSession() override { return window.InSession(); }
    const Part* Focused() const override { return window.Focused(); }
    void Focus(const Part& part) override;
    void PressKey(const Stroke& stroke) override;
    void PressMouse(const Part& part) override;
    void TypeLetter(const std::string& letter) override;
    void Paste(const std::string& text) override;
    void Type(std::string_view row, int index, const std::string& text) override;
    void Tick(bool ticked) override;

    void RefreshWindow() override;
    void DeliverClick(const ::Click& click, std::int16_t index) override;
    void AfterEvent() override;

    PlayedWindow window{game, *this};

    template <typename Widget = QWidget> Widget& Named(const std::string& name) const
    {
        return As<Widget>(window.Parts()[IndexOf(ReadPart(name))]);
    }

    void Play(const std::string& words) { PlayEvents(*this, words, PlayersWords()); }

    // As an input method gives it, to what has the focus.
    void Compose(const QString& letters) const;

    // Each widget's text, state, look, place and words are what ui/ says. What is wrong with one of
    // them is told once.
    void ExpectShown(const std::string& when);

    // A message is on view: it is answered as the script has it.
    virtual void AnswerBox(QWidget& box);
    std::function<void(QWidget& box)> whileOpen; // what happens while it is

private:
    void Activate();

    QTimer answerer_;
    QPointer<QWidget> met_; // the message that has been told
    Answer answer_ = Answer::Yes;
};

class Window : public testing::Test, public WindowGame { };
