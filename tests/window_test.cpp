// What only a real window can show: painting at once, messages that are modal, input under way,
// screens, what a screen reader finds, and the program as it is put together.
#include "window_fixture.h"

#include "game/board.h"
#include "game/rows.h"
#include "headless/board_text.h"
#include "ui/places.h"
#include "ui/qt/box_look.h"
#include "ui/qt/program.h"
#include "ui/qt/used_words_list.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QDesktopServices>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointingDevice>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QToolTip>
#include <QWindow>

namespace {

TEST_F(Window, DrawsAtItsMomentsAlone)
{
    const auto yourGoOnScreen = [this] {
        const QPoint at = Named("Label5").mapTo(&window, QPoint(4, 4)) * window.devicePixelRatioF();
        return window.screen()->grabWindow(window.winId()).toImage().pixelColor(at)
            == QColor(255, 255, 128);
    };
    Play("Option1:1 Command1");
    QCoreApplication::processEvents();
    EXPECT_TRUE(yourGoOnScreen());
    // The label has gone before the slow work starts.
    int draws = 0;
    platform.onDraw = [&] { EXPECT_TRUE(draws++ > 0 || !yourGoOnScreen()); };
    Play("Command14");
    EXPECT_GT(draws, 0);
}

TEST_F(Window, KeepsMouseAndKeysFromWhatIsBelowAMessage)
{
    Play("Option1:1 Command1");
    bool opened = false;
    whileOpen = [&](QWidget& /*box*/) {
        const auto before = PartsOf(board);
        for (const char* control : {"Command15", "Text1:1", "Check1", "Text6:2"})
            PressMouse(ReadPart(control));
        QTest::keyClick(window.windowHandle(), 'x');
        EXPECT_EQ(PartsOf(board), before);
        opened = true;
    };
    Play("Command14");
    EXPECT_TRUE(opened);
}

// It is wide enough for its title and stays on the screen, and Escape is no answer where that would
// end the program.
TEST_F(Window, OpensMessagesThatCanBeReadAndAnswered)
{
    window.move(0, window.screen()->size().height() - 300);
    std::string titles;
    whileOpen = [&](QWidget& box) {
        titles += box.windowTitle().toStdString();
        for (const auto* button : box.findChildren<QPushButton*>())
            titles += button->isDefault() ? '/' + button->text().toStdString() + ' ' : "";
        EXPECT_GE(box.findChild<QLabel*>("text")->width(), 170);
        EXPECT_TRUE(window.screen()->geometry().contains(box.frameGeometry()));
        if (box.windowTitle() == "New Game") {
            Wait(1000);
            QTest::keyClick(&box, Qt::Key_Escape);
            EXPECT_TRUE(box.isVisible());
            EXPECT_TRUE(box.property(rings).toBool()) << "it is answered by keys now";
        }
    };
    Play("Option1:1 Command1 Command7 yes yes Command10");
    EXPECT_EQ(titles, "Quorvel2/OK Do I win?/No Quorvel2/OK New Game/Yes Quorvel2/OK ");
}

// Part of what is in a box is erased: the focus stays.
TEST_F(Window, EditsWithinABox)
{
    Play("Option1:1 Command1");
    for (const auto& [key, cursor, text] :
        {std::tuple("Backspace", 3, "ab"), {"Delete", 0, "bc"}}) {
        Set("guess=.....(abc)/....../......");
        Play("focus:Text6:6");
        Named<QLineEdit>("Text6:6").setCursorPosition(cursor);
        Play(std::string("key:") + key);
        EXPECT_EQ(board.Text6(6).Text, text);
        EXPECT_EQ(Focused(), &ReadPart("Text6:6")) << key;
    }
}

TEST_F(Window, DragsLetters)
{
    struct Row {
        const char* from;
        const char* to;
        const char* after;
    };
    const Row rows[] = {
        {"Text1:2", "SwapLetters:3", "you=pmanet swap=SILPLE"},
        {"SwapLetters:3", "Text1:2", "you=pmanet swap=SILPLE"},
        {"Text1:2", "Text1:5", "you=peanlt swap=simple"},
        {"Text1:2", "YourScore", "you=planet swap=simple"},
        {"Text1:2", "Text1:2", "you=p.anet swap=simple"}, // a shaky click stays one
    };
    Play("Option1:1 Command1");
    for (const auto& [from, to, after] : rows) {
        Set("you=planet swap=simple");
        Play("wait:5000");
        const QPoint middle = Named(to).mapTo(&window, Named(to).rect().center());
        QTest::mousePress(
            window.windowHandle(), Qt::LeftButton, {}, Named(from).mapTo(&window, QPoint(3, 3)));
        QTest::mouseMove(window.windowHandle(), middle);
        EXPECT_EQ(InSession().LetterInHand().empty(), from == std::string_view(to));
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, middle);
        EXPECT_EQ(Line(board, {"you=", "swap="}), after) << from << " to " << to;
    }
    // By a finger, above which the letter can be seen.
    Set("you=planet held=");
    const std::unique_ptr<QPointingDevice> device(QTest::createTouchDevice());
    const QPoint at = Named("Text1:5").mapTo(&window, QPoint(9, 9));
    QTest::touchEvent(window.windowHandle(), device.get())
        .press(0, Named("Text1:2").mapTo(&window, QPoint(3, 3)));
    QTest::touchEvent(window.windowHandle(), device.get()).move(0, at);
    const QWidget* hand
        = window.findChildren<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly).back();
    EXPECT_EQ(hand->pos(), at - QPoint(hand->width() / 2, 2 * hand->height()));
    QTest::touchEvent(window.windowHandle(), device.get()).release(0, at);
    EXPECT_EQ(Line(board, {"you="}), "you=peanlt");

    const QPoint corner(window.width() - 1, window.height() - 1);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, at);
    QTest::mouseMove(window.windowHandle(), corner);
    EXPECT_TRUE(window.rect().contains(hand->geometry()));
    QEvent leaves(QEvent::WindowDeactivate); // another window takes the pointer
    QCoreApplication::sendEvent(&window, &leaves);
    EXPECT_EQ(Line(board, {"you=", "held="}), "you=peanlt held=");
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, corner);
}

TEST_F(Window, KeepsTheNewestWordInSight)
{
    Play("Option1:1 Command1");
    Set("used=60");
    const auto& words = Named<QListWidget>("List1");
    EXPECT_TRUE(words.viewport()->rect().contains(words.visualItemRect(words.item(59)).center()));
}

TEST_F(Window, PlaysInAnyAlphabet)
{
    const std::pair<const char*, const char*> rows[]
        = {{"bücher\ngarten\nsilber\ngarten\n", "bücher"},
            {"b\xFC\x63her\ngarten\nsilber\ngarten\n", "bücher"},
            {"взгляд\nптичка\nчайник\nвзгляд\n", "взгляд"},
            {"ภาษาไท\nกขคงจฉ\nชซดตถท\nกขคงจฉ\n", "ภาษาไท"}};
    for (const auto& [bytes, word] : rows) {
        UseList(bytes);
        platform = HeadlessPlatform(20);
        Play("Option1:1 Command1 Check1=0");
        std::string row;
        for (const uint letter : QString(word).toUcs4())
            row += "("
                + QString::fromUcs4(reinterpret_cast<const char32_t*>(&letter), 1).toStdString()
                + ")";
        Set("you=" + row);
        Play("focus:Command3 type:" + std::string(word));
        EXPECT_EQ(Spell(board.Text1), word);
        Play("yes right Command7");
        EXPECT_EQ(view.calls.end()[-3], "Quorvel2: CORRECT!! Well Done") << word;
        Play("Command1"); // the next game, for the next list
    }
}

// AltGr types, commands do not, and of a held Enter nothing more comes, whatever marks it.
TEST_F(Window, TellsKeysApart)
{
    Set("you=pl(\u00e9)net level:1 frames:yes panel:no");
    for (const char* command : {"Ctrl+P", "Alt+P", "Meta+P"})
        QTest::keySequence(window.focusWidget(), QKeySequence(command));
    EXPECT_EQ(Spell(board.Text1), "pl\u00e9net");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_N, Qt::NoModifier, "n", true);
    QCoreApplication::sendEvent(window.focusWidget(), &held);
    Compose("E\u0301");
    QTest::keyClick(window.focusWidget(), Qt::Key_P, Qt::GroupSwitchModifier);
    EXPECT_EQ(Spell(board.Text1), "\u00e9p");

    Set("you=planet up=......");
    Play("focus:Text1:2 key:Enter");
    QKeyEvent released(QEvent::KeyRelease, Qt::Key_Enter, Qt::KeypadModifier, "\r");
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier, "\r");
    for (QKeyEvent* event : {&released, &again}) {
        event->setTimestamp(7);
        QCoreApplication::sendEvent(window.focusWidget(), event);
        EXPECT_EQ(board.HeldIndex, 2);
    }
}

TEST_F(Window, IsReadAsItStands)
{
    Play("Option1:1 Command1");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->role(), QAccessible::Window);
    // The boxes of a hidden word come one after the other.
    const auto* words = QAccessible::queryAccessibleInterface(&Named("Frame2"));
    for (int box = 1; box <= 6; ++box)
        EXPECT_EQ(words->child(box - 1)->object(), &Named("Word1:" + std::to_string(box)));
    QWidget* notice = nullptr;
    for (QWidget* part : window.findChildren<QWidget*>())
        if (QAccessible::queryAccessibleInterface(part)->role() == QAccessible::Notification)
            notice = part;
    ASSERT_NE(notice, nullptr);
    EXPECT_FALSE(notice->visibleRegion().isEmpty()) << "nothing is read of what is not on view";
    Play("wait:5000 Text1:1 wait:5000");
    EXPECT_EQ(notice->accessibleName().toStdString(), board.HeldLetter + " in your hand");
    // A tool tip is shown, and not said where a box has no help of its own.
    QWidget& box = Named("Text1:2");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&box)->text(QAccessible::Description), "");
    QHelpEvent rests(QEvent::ToolTip, QPoint(), box.mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(&box, &rests);
    EXPECT_EQ(QToolTip::text(), "Click any two boxes to swap ");
}

// On screens of several sizes (screens.json): what is seen is what is clicked, and fits.
TEST_F(Window, FitsEveryScreen)
{
    Play("Option1:1 Command1");
    for (QScreen* screen : QApplication::screens()) {
        const QSizeF room = screen->size();
        for (const auto state : {Qt::WindowMaximized, Qt::WindowNoState, Qt::WindowFullScreen}) {
            SCOPED_TRACE(screen->name().toStdString() + " " + std::to_string(state));
            window.windowHandle()->setScreen(screen);
            window.setWindowState(state);
            QCoreApplication::processEvents();
            const double factor = std::min({1.0, room.width() / 664, room.height() / 499});
            EXPECT_EQ(window.frameSize(),
                state == Qt::WindowNoState ? (QSizeF(664, 499) * factor).toSize() : room.toSize());
            ExpectShown("another screen");
            EXPECT_NEAR(
                Named("Text1:1").font().pixelSize(), 24 * 15 * window.Present().PixelsPerTwip, 1);
            for (const BuiltControl& control : window.Parts()) {
                const QString caption = control.Widget->property("text").toString();
                EXPECT_TRUE(caption.size() < 2 || !control.Widget->isVisible()
                    || QFontMetrics(control.Widget->font()).horizontalAdvance(caption)
                        <= control.Widget->width())
                    << ScriptName(*control.Is);
            }
            Play("wait:500");
            PressMouse(ReadPart("Text1:2"));
            EXPECT_EQ(board.HeldIndex, 2);
            Play("Text1:2");
        }
    }
}

TEST_F(Window, HoldsItsSize)
{
    // The border of the level panel takes no focus.
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(288, 134));
    EXPECT_EQ(Focused(), &ReadPart("Option1:1"));
    for (const QSize size : {QSize(900, 700), QSize(300, 200)}) {
        window.resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(window.frameSize(), QSize(664, 499));
        EXPECT_EQ(Named("Frame1").geometry(), QRect(294, 144, 137, 241));
        EXPECT_EQ(Named("Command2").geometry(), QRect(286, 132, 153, 265));
    }
    // Its size is told to the board while a message is open too.
    whileOpen = [this](QWidget& /*box*/) { board.WindowWidth = 0, window.resize(650, 470); };
    Play("Option1:1 Command1 Command14");
    EXPECT_TRUE(QTest::qWaitFor([this] { return board.WindowWidth == 9960; }));
}

TEST_F(Window, EndsTheProcessWhenThePlayerWantsNoMore)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    window.mayEnd = true;
    Play("Option1:1 Command1");
    EXPECT_EXIT(Play("yes no Command10"), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(window.close(), testing::ExitedWithCode(0), "");
}

// With the word list that stands beside it, chance and the clock of the machine, its own clock, and
// messages over its window.
TEST(Program, IsPutTogether)
{
    Program program;
    program.window.show();
    EXPECT_FALSE(program.window.windowIcon().pixmap(64).isNull());
    const QWidget* over = nullptr;
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, &closing, [&over] {
        if (QWidget* box = QApplication::activeModalWidget())
            over = box->parentWidget(), box->close();
    });
    closing.start(0);
    QElapsedTimer open;
    open.start();
    program.view.ShowMessage("of no game");
    EXPECT_GE(open.elapsed(), 240) << "no answer counts before it can be read";
    EXPECT_EQ(over, &program.window);
    ASSERT_TRUE(std::filesystem::exists(program.game.lexicon)) << "it would end the program";
    const auto& controls = program.window.Parts();
    for (const char* name : {"Option1:6", "Command1"})
        As<QAbstractButton>(controls[IndexOf(ReadPart(name))]).click();
    EXPECT_TRUE(program.window.windowTitle().startsWith("Quorvel - Level: 6   No. Of words"));
    EXPECT_GT(program.board.WordCount, 5000);
    const auto* notice = program.window.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_TRUE(QTest::qWaitFor([notice] { return !notice->accessibleName().isEmpty(); }, 5000));

    SystemPlatform other;
    program.platform.SeedRandom(43200.5F);
    other.SeedRandom(43200.25F);
    EXPECT_NE(program.platform.DrawRandom(), other.DrawRandom()) << "a fraction gives another game";
    float most = 0;
    for (int draw = 0; draw < 200; ++draw)
        most = std::max(most, other.DrawRandom());
    EXPECT_GT(most, 0.9);
    EXPECT_LT(most, 1);
    EXPECT_LT(other.ClockSeconds(), 86400);
}

TEST(Program, OpensThePageThatTellsHowToPlay)
{
    Program program;
    QTextBrowser browser; // in place of the desktop's
    QDesktopServices::setUrlHandler("file", &browser, "setSource");
    EXPECT_TRUE(program.window.OpenHowToPlay());
    EXPECT_EQ(browser.documentTitle(), "How to play Quorvel2");
    EXPECT_TRUE(browser.toPlainText().contains("Submit Word"));
    QDesktopServices::unsetUrlHandler("file");
}

} // namespace
