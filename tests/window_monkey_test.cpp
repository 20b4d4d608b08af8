// A monkey at the real window: clicks, keys and answers without sense, from a seed. The number of
// its events can be raised with QUORVEL_MONKEY_EVENTS.
#include "window_fixture.h"

#include "headless/board_check.h"
#include "headless/board_text.h"

#include <QAbstractButton>
#include <QWindow>

#include <random>

namespace {

class Monkey : public Window {
protected:
    Monkey() { game.lexicon = QUORVEL_WORD_LIST; }

    void Begin(unsigned seed)
    {
        chance_.seed(seed);
        platform = HeadlessPlatform(seed);
    }

    // One event; then the board keeps its rules, and the window shows it.
    void Act()
    {
        window.activateWindow();
        const int kind = Number(100);
        if (kind < 65) {
            const BuiltControl& control = window.Parts()[Index(window.Parts().size())];
            PressAt(control.Widget->mapTo(&window, control.Widget->rect().center()));
        } else if (kind < 75) {
            PressAt({Number(window.width()), Number(window.height())});
        } else if (kind < 96 && window.focusWidget() != nullptr) {
            QTest::keyClick(window.focusWidget(), keys[Number(std::size(keys))],
                Number(8) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        } else if (kind < 98) {
            window.setWindowState(states[Number(std::size(states))]);
        } else if (!board.HiddenWords(3).empty()) {
            Set("guess=" + board.HiddenWords(1) + "/" + board.HiddenWords(2) + "/"
                + board.HiddenWords(3));
        }
        if (board.CandidateCount > 0) {
            ASSERT_EQ(FindFault(board), "") << Line(board);
        }
        Wait(Number(1000)); // and what is said is said
        ExpectShown("random");
        ASSERT_FALSE(HasFailure());
    }

    // The window manager closes the window, in the middle of whatever is up.
    void CloseWindow()
    {
        window.mayEnd = closing_ = true;
        QTimer::singleShot(Number(4), &window, [this] { window.close(); });
        while (true)
            Act();
    }

    void AnswerBox(QWidget& box) override
    {
        if (Number(3) == 0) // the window is out of reach meanwhile
            PressAt({Number(window.width()), Number(window.height())});
        Wait(Number(500));
        ExpectShown("a message");
        const auto buttons = box.findChildren<QAbstractButton*>();
        if (box.windowTitle() == "New Game" && !closing_)
            QTest::mouseClick(buttons.front(), Qt::LeftButton); // "Yes"
        else if (Number(2) == 0)
            QTest::keyClick(&box, Number(2) == 0 ? Qt::Key_Return : Qt::Key_Escape);
        else
            QTest::mouseClick(buttons[Number(buttons.size())], Qt::LeftButton);
    }

private:
    static constexpr Qt::Key keys[] = {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Space, Qt::Key_Return,
        Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Escape, Qt::Key_Backspace,
        Qt::Key_Delete, Qt::Key_A, Qt::Key_E, Qt::Key_S, Qt::Key_1};
    static constexpr Qt::WindowState states[]
        = {Qt::WindowNoState, Qt::WindowMaximized, Qt::WindowMinimized, Qt::WindowFullScreen};

    template <typename Count> int Number(Count below)
    {
        return static_cast<int>(chance_() % static_cast<unsigned>(below));
    }

    std::size_t Index(std::size_t below) { return chance_() % below; }

    void PressAt(QPoint at)
    {
        const auto button = Number(10) == 0 ? Qt::RightButton : Qt::LeftButton;
        for (int clicks = Number(10) == 0 ? 2 : 1; clicks > 0; --clicks)
            QTest::mouseClick(window.windowHandle(), button, {}, at);
    }

    std::minstd_rand chance_;
    bool closing_ = false;
};

TEST_F(Monkey, BreaksNothing)
{
    const int events = qEnvironmentVariableIsSet("QUORVEL_MONKEY_EVENTS")
        ? qEnvironmentVariableIntValue("QUORVEL_MONKEY_EVENTS")
        : 1500;
    Begin(20);
    int games = 0;
    std::string words;
    for (int event = 1; event <= events && !HasFatalFailure(); ++event) {
        SCOPED_TRACE(event);
        Act();
        games += board.HiddenWords(1) != std::exchange(words, board.HiddenWords(1));
    }
    EXPECT_GT(games, 3) << "it gets into games and out of them";
}

TEST_F(Monkey, ClosesTheWindowAtAnyMoment)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (unsigned seed = 1; seed <= 8; ++seed) {
        const auto closing = [&] {
            Begin(seed);
            for (unsigned event = 0; event < 40 * seed; ++event)
                Act();
            CloseWindow();
        };
        EXPECT_EXIT(closing(), testing::ExitedWithCode(0), "") << seed;
    }
}

} // namespace
