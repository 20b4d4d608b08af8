// The real window, clicked and typed in as players do it, and its message boxes answered.

#include "game/board.h"
#include "test_game.h"
#include "ui/main_window.h"
#include "ui/qt_view.h"
#include "ui/roster.h"
#include "ui/system_platform.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <set>

namespace {

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
    Window()
    {
        view.PlayIn(window);
        QObject::connect(&answerer, &QTimer::timeout, &answerer, [this] { AnswerMessage(); });
        answerer.start(0);
        window.show();
        QApplication::setActiveWindow(&window);
        QCoreApplication::processEvents();
    }

    WordListFile list{"planet\ngarden\nsimple\nplanet\n"};
    std::unique_ptr<Board> boardInHeap = std::make_unique<Board>();
    Board& board = *boardInHeap;
    SteadyPlatform platform;
    EndingView view;
    Game game{board, view, platform, list.Path()};
    MainWindow window{game};

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
    void Click(const QString& name)
    {
        QWidget* widget = Named(name);
        ASSERT_NE(widget, nullptr) << name.toStdString();
        // The left edge of the level panel's backing is all that shows of it.
        const QPoint at = name == "Command2" ? QPoint(3, 40) : widget->rect().center();
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&window, at));
    }

    // Steps with semicolons between: "Command1" is a click, "Text6=#1" typing hidden word 1 from
    // the first box of a row on, "key Right" a key, "you=planet me:50" a
    // change of the board.
    void Play(const QString& steps)
    {
        for (const QString& step : steps.split("; ")) {
            QApplication::setActiveWindow(&window); // as it is again after a message
            if (step.startsWith("key "))
                QTest::keySequence(window.focusWidget(), QKeySequence(step.mid(4)));
            else if (step.startsWith("Text") && step.contains('='))
                Type(step.section('=', 0, 0), step.section('=', 1));
            else if (step.contains('=') || step.contains(':'))
                SetBoard(board, step.toStdString()), window.ShowBoard();
            else
                Click(step);
        }
    }

    // The level panel, the six game frames and "YOUR GO" on view; the swap row, "+" and the rest of
    // what arranges letters enabled: 1 is yes, 0 is no and ? is some of them only.
    std::string State() const
    {
        const auto all = [this](const char* names, bool (QWidget::*test)() const) {
            std::set<bool> found;
            for (const QWidget* widget : window.findChildren<QWidget*>(QRegularExpression(names)))
                found.insert((widget->*test)());
            return found.size() != 1 ? "?" : *found.begin() ? "1" : "0";
        };
        const auto shown = &QWidget::isVisible;
        const auto enabled = &QWidget::isEnabled;
        return std::string(all("^(Frame1|Command2)$", shown)) + all("^Frame[234579]$", shown)
            + (Named("Label5")->isHidden() ? "0 " : "1 ") + all("^SwapLetters", enabled)
            + all("^Command16$", enabled) + all("^(Text1|Command[4569]$)", enabled);
    }

private:
    void Type(const QString& row, const QString& text)
    {
        Named(row + "(1)")->setFocus(Qt::TabFocusReason);
        const std::string word = board.HiddenWords(text.mid(1).toInt());
        for (const char letter : word)
            QTest::keyClick(window.focusWidget(), letter);
    }

    void AnswerMessage()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        EXPECT_EQ(box->icon(), QMessageBox::NoIcon);
        messages.push_back((box->windowTitle() + ": " + box->text()).toStdString());
        if (whileOpen)
            whileOpen();
        auto button = QMessageBox::Ok;
        if (box->button(button) == nullptr) {
            ASSERT_FALSE(answers.empty()) << "no answer is prepared for: " << messages.back();
            QTest::keyClick(box, Qt::Key_Escape);
            EXPECT_FALSE(box->close()); // neither is an answer
            EXPECT_EQ(box->standardButton(box->defaultButton()), QMessageBox::Yes);
            button = answers.front() == 'y' ? QMessageBox::Yes : QMessageBox::No;
            answers.erase(0, 1);
        }
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    }
};

const QString start = "Option1(1); Command1";

TEST_F(Window, EverythingHasItsPlaceAndNoCaptionIsClipped)
{
    Play(start);
    ASSERT_EQ(window.frameSize(), QSize(664, 499));
    std::map<std::string, QRect> frames;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const std::string name = widget->objectName().toStdString();
        if (name.empty() || name.starts_with("qt_") || name.starts_with("Command2"))
            continue;
        const QRect place(widget->mapTo(&window, QPoint()), widget->size());
        EXPECT_TRUE(window.rect().contains(place)) << name;
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << name;
        if (widget->parentWidget() == &window && name != "Frame1")
            frames[name] = place;
        if (const QString caption = widget->property("text").toString(); caption.size() > 1) {
            const QFontMetrics metrics(widget->font());
            EXPECT_LE(metrics.horizontalAdvance(caption), widget->width()) << name;
            EXPECT_GE(widget->font().pixelSize(), 9) << name;
        }
    }
    ASSERT_EQ(frames.size(), 6U);
    for (const auto& [left, right] :
        {std::pair{"Frame2", "Frame3"}, {"Frame4", "Frame5"}, {"Frame7", "Frame9"}}) {
        EXPECT_EQ(frames[left].left(), frames[right].left());
        EXPECT_EQ(frames[left].width(), frames[right].width());
    }
    for (const auto& [name, place] : frames) {
        EXPECT_LE(place.right() + 1, ReachRight / 15) << name;
        EXPECT_LE(place.bottom() + 1, ReachDown / 15) << name;
        for (const auto& [other, otherPlace] : frames)
            EXPECT_TRUE(name == other || !place.intersects(otherPlace)) << name << " " << other;
    }
    EXPECT_EQ(Named("List1")->font().pixelSize(), 14); // the desktop's
    EXPECT_TRUE(Named("Command4")->font().bold());     // in a face that has no black
    EXPECT_EQ(Named("Text1(6)")->geometry().right(), Named("SwapLetters(1)")->geometry().left());
}

TEST_F(Window, HoldsItsSize)
{
    // The panel stands where it was centred on the window as first built.
    EXPECT_EQ(Named("Frame1")->pos(), QPoint(294, 144));
    const QPoint panel = Named("Frame1")->pos();
    for (const QSize size : {QSize(900, 700), QSize(300, 200)}) {
        window.resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(window.frameSize(), QSize(664, 499));
        EXPECT_EQ(board.WindowWidth, 664 * 15);
        EXPECT_EQ(board.WindowHeight, 499 * 15);
    }
    // A window manager that gives another size all the same is not fought.
    window.showMinimized();
    window.showMaximized();
    window.showNormal();
    window.windowHandle()->resize(900, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(board.WindowWidth, window.frameSize().width() * 15);
    EXPECT_EQ(Named("Frame1")->pos(), panel);
}

TEST_F(Window, ShowsEveryStateOfTheGame)
{
    struct Row {
        const char* state;
        QString steps;
        const char* answers;
        const char* expected;
    };
    const Row rows[] = {
        {"program start", "Command1; Command2; key Return", "", "101 111"},
        {"player's go", start, "", "011 111"},
        {"nothing in the hand", "SwapLetters(3)", "", "011 111"},
        {"after an exchange", "Text1(2); SwapLetters(3)", "", "011 011"},
        {"after +", "Command16", "", "011 001"},
        {"laying out after +", "Command9", "", "011 000"},
        {"five laid out", "Text2(6); Text2(5); Text2(4); Text2(3); Text2(2); Text2(2)", "",
            "011 000"},
        {"laid out", "Text2(1)", "", "011 011"},
        {"after the computer's go", "Command13", "", "011 111"},
        {"right guess, laying out", "Command9; Text6=#1; Text7=#2; Text8=#3; Command7", "y",
            "101 100"},
        {"second game carries the flags on", "Command1", "", "011 100"},
        {"Pass gives them back", "Command13", "", "011 111"},
        {"claim", "me=slanet swap=pgarde you=nimple me:1250; Command13", "y", "111 111"},
        {"third game, by Enter", "key Return", "", "011 111"},
        {"given in", "Command16; Command10", "yy", "011 101"},
    };
    for (const Row& row : rows) {
        answers = row.answers;
        Play(row.steps);
        EXPECT_EQ(State(), row.expected) << row.state;
        EXPECT_EQ(answers, "") << row.state;
    }
}

TEST_F(Window, PlaysToEachEndOfAGame)
{
    Play(start + "; Check1; you=planet; Command3");
    EXPECT_EQ(messages.front(), "Quorvel2: Word Accepted");
    EXPECT_EQ(Spoken("YourScore"), "Your score: 50");
    EXPECT_EQ(Named<QListWidget>("List1")->item(0)->text(), "planet");

    struct Row {
        QString steps;
        const char* answers;
        std::vector<std::string> messages; // how each begins
    };
    const Row rows[] = {
        {"you:300 me:500; Text6=#1; Text7=#2; Text8=#3; Command7", "y",
            {"Quorvel2: CORRECT!! Well Done", "Quorvel2: You win with a Score Of: 600",
                "New Game: Play Again"}},
        {"Command1; Check1; me=sardeg swap=nimpln you:100 me:1200; Command13", "y",
            {"Word Found: My Word:garden",
                "Quorvel2: I now know all three words But You Still WIN!!",
                "New Game: Play Again"}},
        {"Command1; Command10; Command10", "nyy",
            {"Do I win?: Do You Resign? and Make Me The Winner!!",
                "Do I win?: ", "Quorvel2: The Words Were: ", "New Game: Play Again?",
                "Quorvel2: Letters Jumbled"}},
    };
    for (const Row& row : rows) {
        messages.clear();
        answers = row.answers;
        Play(row.steps);
        ASSERT_EQ(messages.size(), row.messages.size()) << row.messages.back();
        for (std::size_t i = 0; i < messages.size(); ++i)
            EXPECT_TRUE(messages[i].starts_with(row.messages[i])) << messages[i];
    }
}

TEST_F(Window, EndsTheProcessWhenThePlayerWantsNoMore)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const std::pair<QString, const char*> lastGames[] = {
        {"Command10", "yn"},
        {"Text6=#1; Text7=#2; Text8=#3; Command7", "n"},
        {"me=slanet swap=pgarde you=nimple me:1250; Command13", "n"},
    };
    view.mayEnd = true;
    Play(start);
    for (const auto& [steps, prepared] : lastGames) {
        answers = prepared;
        EXPECT_EXIT(Play(steps), testing::ExitedWithCode(0), "");
    }
    EXPECT_EXIT(window.close(), testing::ExitedWithCode(0), "");
}

TEST_F(Window, DrawsAtItsMomentsAlone)
{
    const auto yourGoOnScreen = [this] {
        const QPoint at = Named("Label5")->mapTo(&window, QPoint(4, 4));
        return window.screen()->grabWindow(window.winId()).toImage().pixelColor(at)
            == QColor(255, 255, 128);
    };
    Play(start);
    QCoreApplication::processEvents();
    EXPECT_TRUE(yourGoOnScreen());

    // The label has gone before the slow work starts, and a click that was waiting has run by then.
    for (const bool waiting : {false, true}) {
        const std::string before = Spoken("SwapLetters(2)");
        bool drawn = false;
        if (waiting)
            QTimer::singleShot(0, &window, [this] { Click("Command15"); });
        platform.onDraw = [&] {
            drawn = true;
            EXPECT_FALSE(yourGoOnScreen());
            EXPECT_EQ(Spoken("SwapLetters(2)") != before, waiting);
        };
        Play("Command14");
        EXPECT_TRUE(drawn);
    }
    // While a message is open the board shows as it is at that moment, and nothing answers.
    bool opened = false;
    whileOpen = [&] {
        const std::string line = Line(board);
        for (const char* control : {"Command15", "Text1(1)", "Check1", "Text6(2)"})
            Click(control);
        QTest::keyClick(window.windowHandle(), 'x');
        EXPECT_EQ(Line(board), line);
        EXPECT_EQ(State(), "010 111");
        EXPECT_EQ(board.Text6(2).Text, "");
        EXPECT_EQ(Named<QAbstractButton>("Text1(1)")->text().toStdString(), board.Text1(1).Text);
        opened = true;
    };
    Play("Command14");
    EXPECT_TRUE(opened);
    whileOpen = nullptr;

    // Words come to the list at the end of a click, and the newest is in sight.
    for (int word = 0; word < 60; ++word)
        board.List1.AddItem("word" + std::to_string(word));
    auto* words = Named<QListWidget>("List1");
    EXPECT_EQ(words->count(), 0);
    Play("Command6");
    ASSERT_EQ(words->count(), 60);
    EXPECT_TRUE(
        words->viewport()->rect().contains(words->visualItemRect(words->item(59)).center()));
}

TEST_F(Window, DrawsEdgesThatCanBeSeen)
{
    // At a scale that puts pixels between the dots of the screen a line is one dot all the same.
    QImage box(Named("Word1(2)")->size() * 1.5, QImage::Format_RGB32);
    box.setDevicePixelRatio(1.5);
    Named("Word1(2)")->render(&box);
    for (const int y : {0, box.height() - 1})
        EXPECT_NE(box.pixel(20, y), box.pixel(20, std::abs(y - 1))) << y;

    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    QApplication::setPalette(dark);
    const MainWindow onDark(game);
    for (const char* name : {"Text6(2)", "Check1", "List1"}) {
        auto* widget = onDark.findChild<QWidget*>(name);
        QImage drawn(widget->size(), QImage::Format_RGB32);
        drawn.fill(dark.color(QPalette::Window));
        widget->render(&drawn, QPoint(), QRegion(), QWidget::DrawChildren);
        EXPECT_GT(qGray(drawn.pixel(0, drawn.height() / 2)), 100) << name;
    }
    QApplication::setPalette(QPalette());
}

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
        } while (Focused() != order.front() && order.size() < 50);
        return order;
    };
    QStringList order = walk();
    ASSERT_EQ(order.size(), 37);
    order.erase(order.begin() + 15, order.begin() + 33); // the boxes to guess in
    EXPECT_EQ(order.join(' ').toStdString(),
        "Text1(1) Command4 Command6 Command5 Command16 Command15 Command9 Text2(1) SwapLetters(1) "
        "Command3 Command13 Command14 Word1(1) Word2(1) Word3(1) Command7 Command10 Check1 List1");

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
    EXPECT_EQ(order.size(), 36);
    EXPECT_TRUE(order.contains("Word1(4)") && order.contains("Command7"));
    EXPECT_FALSE(order.contains("Word1(1)") || order.contains("Text6(3)"));
    Named("Word1(4)")->setFocus();
    Play("key Left");
    EXPECT_EQ(Focused(), "Word1(4)");
}

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

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) // another one shows the tests on a display
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle(QStringLiteral("fusion"));
    const QApplication application(argc, argv);
    QFont desktop;
    desktop.setPixelSize(14);
    QApplication::setFont(desktop);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
