// A monkey at the real window: clicks, keys and answers without sense, from a seed. The number of
// its events can be raised with QUORVEL_MONKEY_EVENTS.

#include "game/board.h"
#include "game/game.h"
#include "headless/board_check.h"
#include "headless/board_text.h"
#include "headless/headless_platform.h"
#include "ui/main_window.h"
#include "ui/qt_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <random>

namespace {

class MonkeyView : public QtView {
public:
    bool mayEnd = false;

    [[noreturn]] void EndProgram() override { std::_Exit(mayEnd ? EXIT_SUCCESS : EXIT_FAILURE); }
};

class Monkey {
public:
    explicit Monkey(unsigned seed)
        : chance_(seed)
        , platform_(seed)
    {
        view.PlayIn(window_);
        QObject::connect(&answerer_, &QTimer::timeout, &answerer_, [this] { AnswerMessage(); });
        answerer_.start(0);
        window_.show();
        buttons_ = window_.findChildren<QAbstractButton*>();
    }

    // One event; then the board keeps its rules, and the window shows it.
    void Act()
    {
        window_.activateWindow();
        const int kind = Number(100);
        if (kind < 65) {
            const QWidget& button = *buttons_[Number(buttons_.size())];
            PressMouse(button.mapTo(&window_, button.rect().center()));
        } else if (kind < 75) {
            PressMouse({Number(window_.width()), Number(window_.height())});
        } else if (kind < 96 && window_.focusWidget() != nullptr) {
            QTest::keyClick(window_.focusWidget(), keys[Number(std::size(keys))],
                Number(8) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        } else if (kind < 98) {
            window_.setWindowState(states[Number(std::size(states))]);
        } else if (!board.HiddenWords(3).empty()) {
            SetBoard(board,
                "guess=" + board.HiddenWords(1) + "/" + board.HiddenWords(2) + "/"
                    + board.HiddenWords(3));
        }
        if (board.CandidateCount > 0) {
            ASSERT_EQ(FindFault(board), "") << Line(board);
        }
        for (int box = 1; box <= 6; ++box)
            ASSERT_EQ(ShownIn(QString("Text1(%1)").arg(box)), board.Text1(box).Text);
    }

    // The window manager closes the window, in the middle of whatever is up.
    void CloseWindow()
    {
        view.mayEnd = true;
        QTimer::singleShot(Number(4), &window_, [this] { window_.close(); });
        while (true)
            Act();
    }

private:
    std::unique_ptr<Board> boardInHeap_ = std::make_unique<Board>();

public:
    MonkeyView view;
    Board& board = *boardInHeap_;

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

    void PressMouse(QPoint at)
    {
        const auto button = Number(10) == 0 ? Qt::RightButton : Qt::LeftButton;
        for (int clicks = Number(10) == 0 ? 2 : 1; clicks > 0; --clicks)
            QTest::mouseClick(window_.windowHandle(), button, {}, at);
    }

    std::string ShownIn(const QString& name) const
    {
        return window_.findChild<QAbstractButton*>(name)->text().toStdString();
    }

    void AnswerMessage()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        if (Number(3) == 0) // the window is out of reach meanwhile
            PressMouse({Number(window_.width()), Number(window_.height())});
        if (box->windowTitle() == "New Game" && !view.mayEnd)
            QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        else if (Number(2) == 0)
            QTest::keyClick(box, Number(2) == 0 ? Qt::Key_Return : Qt::Key_Escape);
        else
            QTest::mouseClick(box->buttons()[Number(box->buttons().size())], Qt::LeftButton);
    }

    std::minstd_rand chance_;
    HeadlessPlatform platform_;
    Game game_{board, view, platform_, QUORVEL_WORD_LIST};
    MainWindow window_{game_};
    QTimer answerer_;
    QList<QAbstractButton*> buttons_;
};

TEST(Monkey, BreaksNothing)
{
    const int events = qEnvironmentVariableIsSet("QUORVEL_MONKEY_EVENTS")
        ? qEnvironmentVariableIntValue("QUORVEL_MONKEY_EVENTS")
        : 1500;
    Monkey monkey(20);
    int games = 0;
    std::string words;
    for (int event = 1; event <= events; ++event) {
        SCOPED_TRACE(event);
        monkey.Act();
        if (testing::Test::HasFatalFailure())
            return;
        games += monkey.board.HiddenWords(1) != std::exchange(words, monkey.board.HiddenWords(1));
    }
    EXPECT_GT(games, 3) << "it gets into games and out of them";
}

TEST(Monkey, ClosesTheWindowAtAnyMoment)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (unsigned seed = 1; seed <= 8; ++seed) {
        const auto closing = [seed] {
            Monkey monkey(seed);
            for (unsigned event = 0; event < 40 * seed; ++event)
                monkey.Act();
            monkey.CloseWindow();
        };
        EXPECT_EXIT(closing(), testing::ExitedWithCode(0), "") << seed;
    }
}

} // namespace
