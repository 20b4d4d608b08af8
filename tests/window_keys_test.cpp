// Typing, keys and the focus.
#include "window_fixture.h"

#include "game/rows.h"
#include "ui/roster.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTextBrowser>

#include <set>

namespace {

// The texts of the three rows, a dot for an empty box.
std::string Guess(const Board& board)
{
    std::string guess;
    for (const LetterRow* row : {&board.Text6, &board.Text7, &board.Text8}) {
        for (const LetterBox& box : *row)
            guess += box.Text.empty() ? "." : box.Text;
        guess += row == &board.Text8 ? "" : "/";
    }
    return guess;
}

TEST_F(Window, TakesGuesses)
{
    struct Row {
        QString steps;
        const char* guess;
        QString focused;
    };
    // The words are planet, garden and simple, of which letters 1 and 4 are shown.
    const Row rows[] = {
        {"Text6(2); key l; key a", "plan../g...../s.....", "Text6(4)"},
        {"key Backspace", "pl.n../g...../s.....", "Text6(3)"},
        {"key a; key n; key e; key Backspace", "plan../g...../s.....", "Text6(5)"},
        {"key Backspace", "pl.n../g...../s.....", "Text6(3)"},
        {"key Backspace; key Backspace", "p..n../g...../s.....", "Text6(2)"},
        {"Text6(1); key q", "q..n../g...../s.....", "Text6(2)"},
        {"Text6(1); Text6(1); key p; key End; key x", "p..n.x/g...../s.....", "Text7(1)"},
        {"key Right; paste arden", "p..n.x/garden/s.....", "Text8(1)"},
        {"key End; key Left; paste lest", "p..n.x/garden/s...lest", "Text8(6)"},
        {"key Home; key Up; key Up; key Right", "p..n.x/garden/s...lest", "Text6(2)"},
    };
    Play(start);
    Play("shown=p..n../g...../s..... guess=p..n../g...../s.....");
    const std::string line = Line(board);
    for (const Row& row : rows) {
        for (const QString& step : row.steps.split("; ")) {
            if (!step.startsWith("paste ")) {
                Play(step);
                continue;
            }
            QApplication::clipboard()->setText(step.mid(6));
            QTest::keySequence(window.focusWidget(), QKeySequence::Paste);
        }
        EXPECT_EQ(Guess(board), row.guess) << row.steps.toStdString();
        EXPECT_EQ(Focused(), row.focused) << row.steps.toStdString();
    }
    Compose("e\u0301"); // one letter that two keys compose
    EXPECT_EQ(board.Text6(2).Text, "\u00e9");
    EXPECT_EQ(Focused(), "Text6(3)");
    EXPECT_EQ(Line(board), line);
    EXPECT_TRUE(messages.empty());

    Play("Check1");
    EXPECT_EQ(board.Check1, 0);
    Play("Command9; Text1(1)"); // an empty box of the player's row, while laying out
    EXPECT_FALSE(board.HeldFlag);
}

TEST_F(Window, TakesATypedWord)
{
    struct Row {
        const char* why;
        QString steps;
        const char* you;
        const char* up;
        QString focused;
    };
    const Row rows[] = {
        {"a letter lifts the others", "key p", "P-----", ".lanet", "Text2(2)"},
        {"the first of two", "you=planen; key n", "N-----", "pla.en", "Text2(1)"},
        {"a letter that is not there lifts nothing", "key x; key Space", ".lanet", "......",
            "Text1(1)"},
        {"nor does it place one", "key p; key p; key x", "P-----", ".lanet", "Text2(2)"},
        {"a whole word", "key T; key e; key n; key a; key l; key p", "tenalp", "......",
            "Command3"},
        {"a slip is mended", "key t; key e; key n; key a; key l; key p; key p", "P-----", "tenal.",
            "Text2(1)"},
        {"what is left goes back in order", "key t; key Escape", "tplane", "......", "Text2(1)"},
        {"from a button and from the list", "Command14; you=planet; key p; List1; key t", "PT----",
            ".lane.", "Text2(2)"},
        {"not with a letter in the hand", "Text1(3); key p", "pl.net", "......", "Text1(3)"},
        {"not with Lay Out Word disabled", "off=Command9; key p", "planet", "......", "Text1(1)"},
        {"not while the computer plays", "go:no; key p", "planet", "......", "Text1(1)"},
        {"not on the level panel", "panel:yes; key p", "planet", "......", "Option1(1)"},
        {"not by a command", "key Ctrl+P; key Alt+P; key Meta+P", "planet", "......", "Text1(1)"},
    };
    Play(start + "; Check1");
    for (const Row& row : rows) {
        Play("panel:no go:yes off= held= up=...... you=planet swap=simple; Text1(1); Text1(1)");
        Play(row.steps);
        const auto parts = PartsOf(board);
        EXPECT_EQ(parts[0].second, row.you) << row.why;
        EXPECT_EQ(parts[3].second, row.up) << row.why;
        EXPECT_EQ(Focused(), row.focused) << row.why;
        EXPECT_TRUE(messages.empty()) << row.why;
        messages.clear();
    }

    // Letters that keys compose, held keys, and AltGr.
    Play("panel:no go:yes off= held= up=...... you=pl(\u00e9)net; Text1(1); Text1(1)");
    Compose("E\u0301");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_N, Qt::NoModifier, "n", true);
    QCoreApplication::sendEvent(window.focusWidget(), &held);
    QTest::keyClick(window.focusWidget(), Qt::Key_P, Qt::GroupSwitchModifier);
    EXPECT_EQ(Spell(board.Text1), "\u00e9p");
}

TEST_F(Window, FocusGoesWherePlayGoesOn)
{
    struct Row {
        const char* why;
        QString steps;
        QString focused;
    };
    const Row rows[] = {
        {"after a start", start, "Text1(1)"},
        {"after a swap", "Text1(2); SwapLetters(3)", "Text1(1)"},
        {"after a word", "you=planet; Command3", "Text1(1)"},
        {"after a refused one", "up=......; Text1(2); Command3", "Command3"},
        {"after a pass", "Command13", "Text1(1)"},
        {"after a guess with a gap, down the columns", "guess=pl.net/g.rden/simple; Command7",
            "Text7(2)"},
        {"while all yellow boxes are disabled",
            "held= you=------ up=.lanet; Command14; Text1(4); "
            "Command9; key Tab; Text2(3)",
            "Text2(3)"},
        {"after giving in", "Command10", "Text1(1)"},
    };
    for (const Row& row : rows) {
        answers = "yy";
        Play(row.steps);
        EXPECT_EQ(Focused(), row.focused) << row.why;
    }
}

TEST_F(Window, MessagesStandInOnePlaceAndCoverNothingInPlay)
{
    std::set<std::pair<int, int>> corners;
    whileOpen = [&] {
        const QWidget& box = *QApplication::activeModalWidget();
        corners.insert({box.geometry().right(), box.geometry().bottom()});
        for (const QWidget* widget : window.findChildren<QWidget*>(QRegularExpression(
                 "^(Text[129]|MyLetters|SwapLetters|Word[123]|YourScore|MyScore|Label5)"))) {
            const QRect place(widget->mapToGlobal(QPoint()), widget->size());
            EXPECT_FALSE(place.intersects(box.frameGeometry()))
                << widget->objectName().toStdString() << " under " << messages.back();
        }
    };
    answers = "nyy";
    Play(start + "; you=planet; Command3; Command13; Command7; Command10; Command10");
    list.Write("");
    EXPECT_GT(messages.size(), 6U);
    EXPECT_EQ(corners.size(), 1U);
}

// The controls that a key comes to, from the one that has the focus until it is there again.
QStringList Walk(const QWidget& window, Qt::Key key)
{
    QStringList stops;
    do {
        stops.push_back(window.focusWidget()->objectName());
        QTest::keyClick(window.focusWidget(), key);
    } while (window.focusWidget()->objectName() != stops.front() && stops.size() < 99);
    return stops;
}

TEST_F(Window, IsWalkedByKeys)
{
    Play(start);
    QStringList stops; // of a row only the first box
    for (const QString name : TabOrder())
        stops.push_back(Named(name) == nullptr ? name + "(1)" : name);
    stops.removeIf([this](const QString& name) { return !Named(name)->isVisible(); });
    EXPECT_EQ(Walk(window, Qt::Key_Tab).join(' ').toStdString(), stops.join(' ').toStdString());
    // No arrow key ends anywhere for good: each of them leads back from every stop.
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down})
        EXPECT_LT(Walk(window, key).size(), 99) << key << " stays at " << Focused().toStdString();

    // Tab leaves out what the level panel covers wholly, on a board that is still in play.
    answers = "y";
    Play("me=slanet swap=pgarde you=nimple me:1250; Command13");
    const QStringList order = Walk(window, Qt::Key_Tab);
    EXPECT_TRUE(order.contains("Word1(4)") && order.contains("Command7"));
    EXPECT_FALSE(order.contains("Word1(1)") || order.contains("Text6(3)"));
    Named("Word1(4)")->setFocus();
    Play("key Left");
    EXPECT_EQ(Focused(), "Word1(4)");
}

TEST_F(Window, IsPlayedByKeyboard)
{
    EXPECT_EQ(Focused(), "Option1(1)");
    Play("key Down");
    EXPECT_EQ(board.Level, 1) << "the level in focus comes first";
    Play("key Down; key Down");
    EXPECT_EQ(board.Level, 3);
    Play("key Return");
    EXPECT_EQ(Focused(), "Text1(1)");

    board.Text1(2).Text = "p";
    Play("key Right; key Enter");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier, "\r", true);
    QKeyEvent released(QEvent::KeyRelease, Qt::Key_Enter, Qt::KeypadModifier, "\r");
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier, "\r");
    for (QKeyEvent* event : {&held, &released, &again}) {
        event->setTimestamp(7);
        QCoreApplication::sendEvent(window.focusWidget(), event);
    }
    EXPECT_EQ(board.HeldIndex, 2);
    EXPECT_EQ(Spoken("Text1(2)"), "Your letter 2 of 6, empty, p is in your hand");
    Play("key Right; key Left; key Left; key Left; key Space");
    EXPECT_EQ(board.HeldIndex, 0);
    EXPECT_EQ(Spoken("Text1(1)"), "Your letter 1 of 6: p");
    // Tab comes back to the box that was left, and lost focus goes to where play goes on.
    Play("key Tab");
    EXPECT_EQ(Focused(), "SwapLetters(1)");
    Play("key Shift+Tab");
    EXPECT_EQ(Focused(), "Text1(1)");
    Play("Command9");
    EXPECT_EQ(Focused(), "Text2(1)");
    answers = "y";
    Play("Text6=#1; Text7=#2; Text8=#3; Command7");
    EXPECT_EQ(Focused(), "Option1(3)");
}

TEST_F(Window, OpensThePageThatTellsHowToPlay)
{
    QTextBrowser browser; // in place of the desktop's
    QDesktopServices::setUrlHandler("file", &browser, "setSource");
    Play("key F1");
    EXPECT_EQ(browser.documentTitle(), "How to play Quorvel2");
    browser.setSource(QUrl());
    Play(start + "; Text6(2); key F1");
    EXPECT_TRUE(browser.toPlainText().contains("Submit Word"));
    QDesktopServices::unsetUrlHandler("file");
}

} // namespace
