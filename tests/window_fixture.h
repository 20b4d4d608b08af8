// The real window, clicked and typed in as players do it, and its message boxes answered.
#pragma once

#include "game/board.h"
#include "headless/board_text.h"
#include "headless/headless_game.h"
#include "ui/main_window.h"
#include "ui/qt_view.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <vector>

// One step after another of a game that is played in the window, as the rows of a table.
struct Row {
    const char* why;
    const char* steps;                      // see Play
    const char* then;                       // parts of the board, and "focus=Text1:2"
    std::vector<const char*> messages = {}; // how each begins; none: as they come
};

// The letter, number or caption of a control; of a list the first line.
std::string TextOf(const QWidget& widget);

// A game without a window gets one. What is played in it by script goes through mouse and keys.
class Window : public testing::Test, protected QtView, public HeadlessGame {
protected:
    Window();
    void SetUp() override;

    // Ends the process for real, but a test that does not look for it fails.
    [[noreturn]] void EndProgram() override;
    bool mayEnd = false;

    MainWindow window{game};

    // Controls as a person finds them: by caption and place, which window.txt gives to the names.
    struct Found {
        QWidget* widget = nullptr;
        QRect place;       // in pixels at full scale, in its frame; none where the board says
        std::string shows; // number, letter or caption, and
        std::string looks; // what else window.txt has of it
    };
    std::map<std::string, Found> controls; // "Command3", "Text1:2"
    template <typename T = QWidget> T* Named(const std::string& name) const
    {
        return dynamic_cast<T*>(controls.at(name).widget);
    }
    std::string Focused() const;
    void DropFocus() const
    {
        if (QWidget* focused = window.focusWidget())
            focused->clearFocus();
    }
    std::string Spoken(const char* name) const
    {
        return Named(name)->accessibleName().toStdString();
    }

    // Presses the mouse at the place of the control, whatever stands there.
    void Press(const std::string& name);

    // Words: the name of any control is pressed; "key:Right" is a key, "paste:arden" a pasted text,
    // "you=planet" or "me:50" a part of the board; and all events of scripts. After each of them
    // the window has to show the board.
    void Play(const std::string& words);
    void Play(const std::vector<Row>& rows);

    // Typing into what has the focus: text as an input method gives it, and a letter by its key or,
    // where it has none, decomposed.
    void Compose(const QString& letters) const;
    void TypeLetter(char32_t letter) const;

    // All that the controls show of the board, and which of them are on view and in play.
    void ExpectBoardOnView(const std::string& when) const;

    void Click(std::string_view control, std::int16_t index) override;
    void Type(std::string_view row, int index, const std::string& text) override;
    void Tick(bool ticked) override;

    // A box is on view: from the answers of the recording view it gets the next.
    virtual void AnswerBox(QMessageBox& box);
    std::function<void(QWidget& box)> whileOpen; // what happens while it is

private:
    void FindControls();
    void Activate();

    QTimer answerer_;
    std::set<std::pair<int, int>> corners_; // lower right, of the boxes
    QPointer<QMessageBox> met_;             // was on view when it was last looked for
};
