// What a screen reader says.
#include "window_fixture.h"

#include <QAccessible>

namespace {

TEST_F(Window, SpeaksOfEveryControl)
{
    const auto walk = [](const auto& self, QAccessibleInterface* control) -> int {
        if (control->state().invisible)
            return 0;
        int found = 1;
        const QString name = control->text(QAccessible::Name);
        EXPECT_FALSE(name.contains('%')) << name.toStdString();
        EXPECT_TRUE(!name.isEmpty() || control->role() == QAccessible::Notification)
            << control->object()->objectName().toStdString() << " "
            << control->object()->metaObject()->className();
        for (int child = 0; child < control->childCount(); ++child)
            found += self(self, control->child(child));
        return found;
    };
    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&window);
    EXPECT_EQ(whole->role(), QAccessible::Window);
    EXPECT_GE(walk(walk, whole), 10);
    Play("Option1(3); Command1; me=planet you=garden swap=WINDOW");
    EXPECT_GE(walk(walk, whole), 90);
    const std::pair<const char*, const char*> names[]
        = {{"SwapLetters(1)", "Swap letter 1 of 6, red: w"},
            {"MyLetters(2)", "The computer's letter 2 of 6: l"},
            {"Word2(5)", "Hidden word 2, letter 5 of 6: buy for 100 points"},
            {"Text7(5)", "Guess at word 2, letter 5 of 6"}, {"YourScore", "Your score: 0"}};
    for (const auto& [control, name] : names)
        EXPECT_EQ(Spoken(control), name);
    EXPECT_TRUE(Spoken("Word2(4)").ends_with(", shown, not for sale"));
    const auto* words = QAccessible::queryAccessibleInterface(Named("Frame2"));
    for (int box = 1; box <= 6; ++box)
        EXPECT_TRUE(words->child(box - 1)
                ->text(QAccessible::Name)
                .contains(QString("1, letter %1").arg(box)));
    // Help is said once a row, and tool tips do not step in for it.
    const auto help = [this](const char* control) {
        return QAccessible::queryAccessibleInterface(Named(control))
            ->text(QAccessible::Description)
            .trimmed();
    };
    for (const char* row : {"Text1", "SwapLetters", "Text2", "Text6", "Option1"}) {
        EXPECT_FALSE(help(qPrintable(QString(row) + "(1)")).isEmpty()) << row;
        EXPECT_TRUE(help(qPrintable(QString(row) + "(2)")).isEmpty()) << row;
    }
}

TEST_F(Window, TellsWhatHappensOnceAndInOrder)
{
    QWidget* notice = nullptr;
    for (QWidget* part : window.findChildren<QWidget*>())
        if (QAccessible::queryAccessibleInterface(part)->role() == QAccessible::Notification)
            notice = part;
    ASSERT_NE(notice, nullptr);
    // Each row follows the one before it; "" is for what has no effect.
    struct {
        const char* steps;
        const char* says;
    } const rows[] = {
        {"key Return", "Level 1 chosen"},
        {"key Return",
            "Quorvel - Level: 1 No. Of words with these letters: 300. Hidden word 1: g, blank, "
            "blank, d, blank, blank. Hidden word 2: s, blank, blank, p, blank, blank. Hidden word "
            "3: p, blank, blank, n, blank, blank. Your letters: e, l, r, t, a, g. Swap letters: i, "
            "p, l, e, a, p. The computer's letters: n, e, n, s, m, d. Your go"},
        {"me=garden you=etplas swap=nimple",
            "Your letters: e, t, p, l, a, s. Swap letters: n, i, m, p, l, e. The computer's "
            "letters: g, a, r, d, e, n"},
        {"key Return", "e in your hand"},
        {"key Right; key Return", "e and t change places"},
        {"key Return", "e in your hand"},
        {"key Return", "e back in its place"},
        {"key End; key Return", "s in your hand"},
        {"key Tab; key Return", "n for s, no more swaps this go"},
        {"key x", ""},
        {"key p", "p, 1 of 6"},
        {"key l", "l, 2 of 6"},
        {"key a", "a, 3 of 6"},
        {"key n", "n, 4 of 6"},
        {"key e", "e, 5 of 6"},
        {"key t", "t, 6 of 6. Your row: planet"},
        {"key Return",
            "You played planet for 50 points. You have 50 points, the computer 0. Bonus of the "
            "next word: 10. Your letters: d, r, e, l, a, p. Swap letters: p, e, a, t, n, l. The "
            "computer's letters: e, i, m, n, g, s. Your go"},
        {"Command16", "Red letter p turns with yours, no more swaps this go"},
        {"Command5", "Your letters: p, d, r, e, l, a"},
        {"Command15", ""},
        {"you:250; Word1(2)", "Hidden word 1, letter 2: a. You have 150 points, the computer 0"},
        {"Word1(2)", ""},
        {"me=garden swap=esimpl; Command13",
            "The computer played garden for 60 points. You have 150 points, the computer 60. Bonus "
            "of the next word: 20. Your letters: t, l, e, e, e, p. Swap letters: m, a, n, r, d, p. "
            "The computer's letters: g, n, s, l, i, a. Your go"},
    };
    for (const auto& [steps, says] : rows) {
        notice->setAccessibleName(QString());
        Play(steps);
        const auto spoken = [notice] { return !notice->accessibleName().isEmpty(); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return spoken() || *says == '\0'; })) << steps;
        QCoreApplication::processEvents();
        EXPECT_EQ(notice->accessibleName().toStdString(), says) << steps;
    }
}

} // namespace
