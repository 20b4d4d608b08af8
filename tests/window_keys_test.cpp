// Typing, keys and the focus.
#include "window_fixture.h"

#include "ui/roster.h"

#include <QLineEdit>

namespace {

TEST_F(Window, TakesWhatIsTypedAndCallsNoHandler)
{
    Play(start);
    const std::string line = Line(board);
    Play("Text6(2); key x; key Y");
    EXPECT_EQ(board.Text6(2).Text + board.Text6(3).Text, "xy");
    EXPECT_EQ(Focused(), "Text6(4)");
    // Backspace takes a letter away, then goes back from the empty box.
    Play("key Backspace; key Backspace");
    EXPECT_EQ(board.Text6(4).Text, "");
    EXPECT_EQ(Focused(), "Text6(3)");
    // A click into a filled box and a letter replace what stands there; a second click does not.
    Play("Text6(1); key q; Text7(4); Text7(4); key w");
    EXPECT_EQ(board.Text6(1).Text, "q");
    EXPECT_EQ(board.Text7(4).Text.size(), 2U);
    // A box takes any text.
    Play("Text7(2)");
    QTest::keyClicks(Named("Text7(2)"), "two words");
    Named<QLineEdit>("Text7(3)")->insert(QString::fromUtf8("\u00e9"));
    EXPECT_EQ(board.Text7(2).Text, "two words");
    EXPECT_EQ(board.Text7(3).Text, "\u00e9");
    Play("Text6(6); key Right");
    EXPECT_EQ(Focused(), "Text7(1)");
    QInputMethodEvent composed;
    composed.setCommitString("z");
    QCoreApplication::sendEvent(window.focusWidget(), &composed);
    EXPECT_EQ(Focused(), "Text7(2)");
    EXPECT_EQ(Line(board), line);
    EXPECT_TRUE(messages.empty());

    Play("Check1");
    EXPECT_EQ(board.Check1, 0);
    Play("Command9; Text1(1)"); // an empty box of the player's row, while laying out
    EXPECT_FALSE(board.HeldFlag);
}

TEST_F(Window, IsPlayedByKeyboard)
{
    EXPECT_EQ(Focused(), "Option1(1)");
    Play("key Down; key Space; key Down");
    EXPECT_EQ(board.Level, 3);
    Play("key Return");
    EXPECT_EQ(Focused(), "Text1(1)");
    const auto walk = [this] {
        QStringList order;
        do {
            order.push_back(Focused());
            Play("key Tab");
        } while (Focused() != order.front() && order.size() < 99);
        return order;
    };
    // Every box to guess in is a stop, and of a row to click only the first.
    QStringList stops;
    for (const QString name : TabOrder()) {
        if (Named(name + "(1)") == nullptr)
            stops.push_back(name);
        else if (Named<QLineEdit>(name + "(1)") == nullptr)
            stops.push_back(name + "(1)");
        else
            for (int box = 1; box <= 6; ++box)
                stops.push_back(QString("%1(%2)").arg(name).arg(box));
    }
    stops.removeIf([this](const QString& name) { return !Named(name)->isVisible(); });
    QStringList order = walk();
    EXPECT_EQ(order.join(' ').toStdString(), stops.join(' ').toStdString());

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
    EXPECT_EQ(Spoken("Text1(2)"), "Your letter 2, empty, p is in your hand");
    Play("key Right; key Left; key Left; key Left; key Space");
    EXPECT_EQ(board.HeldIndex, 0);
    EXPECT_EQ(Spoken("Text1(1)"), "Your letter 1: p");
    // Tab comes back to the box that was left, and lost focus goes to where play goes on.
    Play("key Tab");
    EXPECT_EQ(Focused(), "Command4");
    Play("key Shift+Tab");
    EXPECT_EQ(Focused(), "Text1(1)");
    Play("Command9");
    EXPECT_EQ(Focused(), "Text2(1)");
    answers = "y";
    Play("Text6=#1; Text7=#2; Text8=#3; Command7");
    EXPECT_EQ(Focused(), "Option1(3)");
    // Tab leaves out what the level panel covers wholly, on a board that is still in play.
    answers = "y";
    Play("Command1; Text1(1); me=slanet swap=pgarde you=nimple me:1250; Command13");
    order = walk();
    EXPECT_TRUE(order.contains("Word1(4)") && order.contains("Command7"));
    EXPECT_FALSE(order.contains("Word1(1)") || order.contains("Text6(3)"));
    Named("Word1(4)")->setFocus();
    Play("key Left");
    EXPECT_EQ(Focused(), "Word1(4)");
}

} // namespace
