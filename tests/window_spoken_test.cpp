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
        EXPECT_FALSE(control->text(QAccessible::Name).isEmpty())
            << control->object()->objectName().toStdString() << " "
            << control->object()->metaObject()->className();
        for (int child = 0; child < control->childCount(); ++child)
            found += self(self, control->child(child));
        return found;
    };
    EXPECT_GE(walk(walk, QAccessible::queryAccessibleInterface(&window)), 10);
    Play("Option1(3); Command1; me=planet you=garden swap=WINDOW");
    EXPECT_GE(walk(walk, QAccessible::queryAccessibleInterface(&window)), 90);
    EXPECT_EQ(Spoken("SwapLetters(1)"), "Swap letter 1, red: w, not available");
    EXPECT_EQ(Spoken("MyLetters(2)"), "The computer's letter 2: l");
    EXPECT_EQ(Spoken("Word2(5)"), "Hidden word 2, letter 5, costs 100 points");
    const auto* words = QAccessible::queryAccessibleInterface(Named("Frame2"));
    for (int box = 1; box <= 6; ++box)
        EXPECT_TRUE(words->child(box - 1)
                ->text(QAccessible::Name)
                .contains(QString("1, letter %1").arg(box)));
    EXPECT_EQ(Spoken("YourScore"), "Your score: 0");
}

} // namespace
