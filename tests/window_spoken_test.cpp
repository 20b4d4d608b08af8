// What a screen reader says.
#include "window_fixture.h"

#include <QAbstractButton>
#include <QAccessible>

namespace {

TEST_F(Window, SpeaksOfEveryControl)
{
    const auto* whole = QAccessible::queryAccessibleInterface(&window);
    EXPECT_EQ(whole->role(), QAccessible::Window);
    // A screen reader sets what can be set without a click or a key.
    Named<QAbstractButton>("Option1:3")->toggle();
    Play("Command1 swap=WINDOW");
    Named<QAbstractButton>("Check1")->toggle();
    QAccessible::queryAccessibleInterface(Named("Text6:2"))->setText(QAccessible::Value, "x");
    window.ShowBoard();
    EXPECT_EQ(board.Check1, 0);
    EXPECT_EQ(board.Text6(2).Text, "x");
    EXPECT_EQ(Spoken("SwapLetters:1"), "Swap letter 1 of 6, red: w");
    EXPECT_EQ(Spoken("Word2:5"), "Hidden word 2, letter 5 of 6: buy for 100 points");
    // The boxes of a hidden word come one after the other.
    const auto* words = QAccessible::queryAccessibleInterface(Named("Frame2"));
    for (int box = 1; box <= 6; ++box)
        EXPECT_EQ(words->child(box - 1)->object(), Named("Word1:" + std::to_string(box)));
    // Help is said once a row, and tool tips do not step in for it; a hidden word needs none.
    for (const auto& [name, control] : controls) {
        const QString help = control.widget->accessibleDescription();
        const bool first = name.find(':') == std::string::npos || name.ends_with(":1");
        if (control.widget->focusPolicy() != Qt::NoFocus && !name.starts_with("Word")) {
            EXPECT_EQ(help.trimmed().isEmpty(), !first) << name;
        }
        EXPECT_FALSE(!first && help.isEmpty() && !control.widget->toolTip().isEmpty()) << name;
    }
}

TEST_F(Window, TellsWhatHappensOnceAndInOrder)
{
    QWidget* notice = nullptr;
    for (QWidget* part : window.findChildren<QWidget*>())
        if (QAccessible::queryAccessibleInterface(part)->role() == QAccessible::Notification)
            notice = part;
    ASSERT_NE(notice, nullptr);
    EXPECT_FALSE(notice->visibleRegion().isEmpty()) << "nothing is read of what is not on view";
    // Each row follows the one before it; "" is for what has no effect, and "ALL" for all letters.
    const std::pair<const char*, QString> rows[] = {
        {"key:Return", "Level 1 chosen"},
        {"key:Return",
            "Quorvel - Level: 1 No. Of words with these letters: 300. Hidden word 1: g, blank, "
            "blank, d, blank, blank. Hidden word 2: p, blank, blank, n, blank, blank. Hidden word "
            "3: s, blank, blank, p, blank, blank. ALL. Your go"},
        {"me=garden you=etplas swap=nimple", "ALL"},
        {"key:Return", "e in your hand"},
        {"key:Right key:Return", "e and t change places"},
        {"key:Return", "e in your hand"},
        {"key:Return", "e back in its place"},
        {"key:End key:Return", "s in your hand"},
        {"key:Tab key:Return", "n for s, no more swaps this go"},
        {"key:x", ""},
        {"key:p", "p, 1 of 6"},
        {"key:l", "l, 2 of 6"},
        {"key:a", "a, 3 of 6"},
        {"key:n", "n, 4 of 6"},
        {"key:e", "e, 5 of 6"},
        {"key:t", "t, 6 of 6. Your row: planet"},
        {"key:Return",
            "You played planet for 50 points. You have 50 points, the computer 0. Bonus of the "
            "next word: 10. ALL. Your go"},
        {"Command16", "Red letter a turns with yours, no more swaps this go"},
        {"Command5", "Your letters: a, a, m, s, l, e. Swap letters: e, l, p, n, e, t"},
        {"Command15", ""},
        {"you=garden Command9", "All six letters lifted, to be laid out"},
        {"Text2:6", "n, 1 of 6"},
        {"key:Escape", "g, a, r, d, e, 6 of 6. Your row: ngarde"},
        {"List1 key:Down", "planet"},
        {"you:250 Word1:2", "Hidden word 1, letter 2: a. You have 150 points, the computer 0"},
        {"Word1:2", ""},
        {"me=garden swap=esimpl Command13",
            "The computer played garden for 60 points. You have 150 points, the computer 60. Bonus "
            "of the next word: 20. ALL. Your go"},
        {"yes yes Command10",
            "Hidden word 1: g, blank, blank, d, blank, blank. Hidden word 2: p, blank, blank, n, "
            "blank, blank. Hidden word 3: s, blank, blank, p, blank, blank. Bonus of the next "
            "word: 0. ALL. Your go"},
        {"me=slanet swap=pgarde you=nimple me:1250 yes Command13",
            "The computer played planet. You have 150 points, the computer 200. Hidden word 1: "
            "garden. Hidden word 2: planet. Hidden word 3: simple"},
    };
    const auto letters = [](const char* name, const LetterRow& row) {
        QStringList texts;
        for (const LetterBox& box : row)
            texts += QString::fromStdString(box.Text);
        return name + texts.join(", ");
    };
    for (const auto& [steps, says] : rows) {
        notice->setAccessibleName(QString());
        Play(steps);
        const auto spoken = [notice] { return !notice->accessibleName().isEmpty(); };
        EXPECT_EQ(QTest::qWaitFor(spoken, says.isEmpty() ? 50 : 5000), !says.isEmpty()) << steps;
        QCoreApplication::processEvents();
        const QString all = letters("Your letters: ", board.Text1)
            + letters(". Swap letters: ", board.SwapLetters)
            + letters(". The computer's letters: ", board.MyLetters);
        const QString expected = QString(says).replace("ALL", all);
        ASSERT_EQ(notice->accessibleName().toStdString(), expected.toStdString()) << steps;
    }
}

} // namespace
