// The real window, clicked and typed in as players do it, and its message boxes answered.
#pragma once

#include "game/board.h"
#include "game/game.h"
#include "headless/board_text.h"
#include "headless/word_list_file.h"
#include "ui/main_window.h"
#include "ui/qt_view.h"
#include "ui/system_platform.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

// Chance that is the same in every run, with a hook into the work between two paintings.
class SteadyPlatform : public SystemPlatform {
public:
    std::function<void()> onDraw;

    float DrawRandom() override
    {
        if (onDraw)
            std::exchange(onDraw, nullptr)();
        return SystemPlatform::DrawRandom();
    }
    float ClockSeconds() override { return 43200.5F; }
};

// Ends the process for real, but a test that does not look for it fails.
class EndingView : public QtView {
public:
    bool mayEnd = false;

    [[noreturn]] void EndProgram() override
    {
        if (mayEnd)
            QtView::EndProgram();
        std::_Exit(EXIT_FAILURE);
    }
};

class Window : public testing::Test {
protected:
    Window();

    WordListFile list{"planet\ngarden\nsimple\nplanet\n"};
    std::unique_ptr<Board> boardInHeap = std::make_unique<Board>();
    Board& board = *boardInHeap;
    SteadyPlatform platform;
    EndingView view;
    Game game{board, view, platform, list.Path()};
    MainWindow window{game};

    const QString start = "Option1(1); Command1"; // of a game, to Play

    std::vector<std::string> messages; // "Quorvel2: Word Accepted"
    std::string answers;               // to the questions, "y" or "n" each; a message gets its OK
    std::function<void()> whileOpen;   // what happens on the window while a message is open
    QTimer answerer;

    template <typename T = QWidget> T* Named(const QString& name) const
    {
        return window.findChild<T*>(name);
    }
    QString Focused() const { return window.focusWidget()->objectName(); }
    std::string Spoken(const char* name) const
    {
        return Named(name)->accessibleName().toStdString();
    }

    // Presses the mouse at the place of the control, whatever stands there.
    void Click(const QString& name);

    // Steps with semicolons between: "Command1" is a click, "Text6=#1" typing hidden word 1 from
    // the first box of a row on, "key Right" a key, "you=planet me:50" a change of the board.
    void Play(const QString& steps);

    // Typing into what has the focus: text as an input method gives it, and a letter by its key or,
    // where it has none, decomposed.
    void Compose(const QString& letters) const;
    void TypeLetter(char32_t letter);

    // The level panel, the six game frames and "YOUR GO" on view; the swap row, "+" and the rest of
    // what arranges letters enabled: 1 is yes, 0 is no and ? is some of them only.
    std::string State() const;

private:
    void Activate();
    void Type(const QString& row, const QString& text);
    void AnswerMessage();

    QPointer<QMessageBox> met_; // was on view when it was last looked for
};
