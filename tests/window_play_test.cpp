// The window in every state of a game, and at each of its ends. After each step it has to show the
// board as it is then; here stands what else comes of the step.
#include "window_fixture.h"

#include "game/rows.h"
#include "lexicon/letters.h"
#include "ui/program.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QScreen>

namespace {

TEST_F(Window, PlaysFromGameToGame)
{
    Play({
        {"OK with no level, and the border of the panel", "Command1 Command2 key:Return",
            "panel:yes frames:no go:yes level:0"},
        {"a game", "Option1:1 Command1 you=planet swap=simple",
            "panel:no frames:yes go:yes responses:1"},
        {"a swap, and none with an empty hand", "SwapLetters:3 Text1:2 SwapLetters:3",
            "you=pmanet swap=SILPLE"},
        {"a turn with the red letter", "Command16 Command5",
            "you=spmane swap=TILPLE off=Command16"},
        {"laying out", "Command9 Text2:6 Text2:5 Text2:4 Text2:3 Text2:2 Text2:2",
            "you=ENAMP- up=s..... off=arranging"},
        {"a word, with responses", "Text2:1 Check1=1 you=planet Command3",
            "go:yes you:50 bonus:_10 used=planet off=",
            {"Quorvel2: Word Accepted", "Quorvel2: Letters Jumbled", "Computer Swap: I have"}},
        {"a letter is bought", "Check1=0 you:100 Word1:1 Word1:2", "you:0 responses:0"},
        {"a right guess while laying out", "you:300 me:500 Command9 yes right Command7",
            "panel:yes frames:no off=arranging",
            {"Quorvel2: CORRECT!! Well Done", "Quorvel2: You win with a Score Of: 600",
                "New Game? Play Again"}},
        {"the next game ticks the box and keeps the flags", "Command1",
            "panel:no frames:yes off=arranging responses:1 used="},
        {"Pass gives them back", "Check1=0 Command13", "off= go:yes"},
        {"the computer claims", "me=sardeg swap=nimpln you:100 me:1200 yes Command13",
            "panel:yes frames:yes go:yes off=",
            {"Word Found: My Word:garden",
                "Quorvel2: I now know all three words But You Still WIN!!",
                "New Game? Play Again"}},
        {"another level, by Enter", "Option1:4 key:Return", "panel:no level:4"},
        {"not given in, then given in", "Command16 no Command10 yes yes Command10",
            "panel:no off=Command16",
            {"Do I win?? ", "Do I win?? Do You Resign? and Make Me The Winner!!",
                "Quorvel2: The Words Were: ", "New Game? Play Again?",
                "Quorvel2: Letters Jumbled"}},
    });
}

TEST_F(Window, PlaysInAnyAlphabet)
{
    const char* const lists[] = {"bücher\ngarten\nsilber\ngarten\n",
        "b\xFC\x63her\ngarten\nsilber\ngarten\n", "взгляд\nптичка\nчайник\nвзгляд\n"};
    for (const char* bytes : lists) {
        UseList(bytes);
        Play("Option1:1 Command1 Check1=0");
        // A word that is laid out by its letters, and submitted.
        const std::string word = board.HiddenWords(1);
        const std::string second(LetterOf(word, 2));
        for (int k = 1; k <= 6; ++k)
            board.Text1(k).Text = LetterOf(word, k);
        Play("Command6 Command4");
        Named("Command3")->setFocus();
        for (const uint letter : QString::fromStdString(word).toUcs4())
            TypeLetter(letter);
        EXPECT_EQ(Spell(board.Text1), word);
        EXPECT_EQ(Spoken("Text1:2"), "Your letter 2 of 6: " + second);
        Play("key:Return you:100 Word1:2 yes right Command7");
        EXPECT_EQ(view.calls.end()[-3], "Quorvel2: CORRECT!! Well Done") << word;
        EXPECT_EQ(Named<QAbstractButton>("Word1:2")->text().toStdString(), second);
    }
}

TEST_F(Window, EndsTheProcessWhenThePlayerWantsNoMore)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    mayEnd = true;
    Play("Option1:1 Command1");
    for (const char* last : {"yes no Command10", "no right Command7",
             "no me=slanet swap=pgarde you=nimple me:1250 Command13"})
        EXPECT_EXIT(Play(last), testing::ExitedWithCode(0), "") << last;
    EXPECT_EXIT(window.close(), testing::ExitedWithCode(0), "");
}

TEST_F(Window, DrawsAtItsMomentsAlone)
{
    const auto yourGoOnScreen = [this] {
        const QPoint at
            = Named("Label5")->mapTo(&window, QPoint(4, 4)) * window.devicePixelRatioF();
        return QApplication::primaryScreen()->grabWindow(window.winId()).toImage().pixelColor(at)
            == QColor(255, 255, 128);
    };
    Play("Option1:1 Command1");
    QCoreApplication::processEvents();
    EXPECT_TRUE(yourGoOnScreen());

    // The label has gone before the slow work starts, and a click that was waiting has run by then.
    for (const bool waiting : {false, true}) {
        const std::string before = Spoken("SwapLetters:2");
        bool drawn = false;
        const auto clickNext = [&] { QTimer::singleShot(0, &window, [&] { Press("Command15"); }); };
        if (waiting)
            QObject::connect(Named<QAbstractButton>("Command14"), &QAbstractButton::released,
                &window, clickNext, Qt::SingleShotConnection);
        platform.onDraw = [&] {
            EXPECT_TRUE(drawn || !yourGoOnScreen());
            EXPECT_TRUE(drawn || (Spoken("SwapLetters:2") != before) == waiting);
            drawn = true;
        };
        Play("Command14");
        platform.onDraw = nullptr;
        EXPECT_TRUE(drawn);
    }
    // While a message is open the board shows as it is at that moment, and nothing answers.
    bool opened = false;
    whileOpen = [&](const QWidget& /*box*/) {
        const auto before = PartsOf(board);
        for (const char* control : {"Command15", "Text1:1", "Check1", "Text6:2"})
            Press(control);
        QTest::keyClick(window.windowHandle(), 'x');
        EXPECT_EQ(PartsOf(board), before);
        EXPECT_FALSE(board.Label5.Visible);
        ExpectBoardOnView("an open message");
        opened = true;
    };
    Play("Command14");
    EXPECT_TRUE(opened);
}

TEST_F(Window, KeepsTheNewestWordInSight)
{
    Play("Option1:1 Command1 used=60");
    const auto* words = Named<QListWidget>("List1");
    EXPECT_TRUE(
        words->viewport()->rect().contains(words->visualItemRect(words->item(59)).center()));
}

// With the word list that stands beside it, chance and the clock of the machine, and messages over
// its window.
TEST(Program, IsPutTogether)
{
    Program program;
    const QWidget* over = nullptr;
    QTimer closing;
    QObject::connect(&closing, &QTimer::timeout, &closing, [&over] {
        if (QWidget* box = QApplication::activeModalWidget())
            over = box->parentWidget(), box->close();
    });
    closing.start(0);
    program.view.ShowMessage("of no game");
    EXPECT_EQ(over, &program.window);
    ASSERT_TRUE(std::filesystem::exists(program.game.lexicon)) << "it would end the program";
    for (auto* button : program.window.findChildren<QAbstractButton*>())
        if (button->text() == "Level 6" || button->text() == "OK")
            button->click();
    EXPECT_TRUE(program.window.windowTitle().startsWith("Quorvel - Level: 6   No. Of words"));
    EXPECT_GT(program.board.WordCount, 5000);

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

} // namespace
