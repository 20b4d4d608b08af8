// The window in every state of a game, and at each of its ends.
#include "window_fixture.h"

#include "ui/program.h"

#include "game/rows.h"
#include "lexicon/letters.h"

#include <QAbstractButton>
#include <QListWidget>
#include <QScreen>

namespace {

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

// The letters of the word as boxes of a row.
std::string Row(const std::string& word)
{
    std::string row;
    for (int k = 1; k <= 6; ++k)
        row += "(" + std::string(LetterOf(word, k)) + ")";
    return row;
}

TEST_F(Window, PlaysInAnyAlphabet)
{
    const char* const lists[] = {"bücher\ngarten\nsilber\ngarten\n",
        "b\xFC\x63her\ngarten\nsilber\ngarten\n", "взгляд\nптичка\nчайник\nвзгляд\n"};
    for (const char* bytes : lists) {
        list.Write(bytes);
        messages.clear();
        answers = "y";
        Play(start + "; Check1");
        // A word that is laid out by its letters, and submitted.
        const std::string word = board.HiddenWords(1);
        const QString second = QString::fromStdString(std::string(LetterOf(word, 2)));
        Play("you=" + QString::fromStdString(Row(word)) + "; Command6; Command4");
        Named("Command3")->setFocus();
        for (const uint letter : QString::fromStdString(word).toUcs4())
            TypeLetter(letter);
        EXPECT_EQ(Spell(board.Text1), word);
        EXPECT_EQ(Spoken("Text1(2)"), ("Your letter 2 of 6: " + second).toStdString());
        Play("key Return");
        ASSERT_FALSE(messages.empty());
        EXPECT_EQ(messages.front(), "Quorvel2: Word Accepted");
        // A letter that is bought, and the words that are guessed.
        Play("you:100; Word1(2)");
        EXPECT_EQ(Named<QAbstractButton>("Word1(2)")->text(), second);
        EXPECT_EQ(Spoken("Word1(2)"),
            "Hidden word 1, letter 2 of 6: " + second.toStdString() + ", shown, not for sale");
        messages.clear();
        Play("Text6=#1; Text7=#2; Text8=#3; Command7");
        ASSERT_FALSE(messages.empty());
        EXPECT_EQ(messages.front(), "Quorvel2: CORRECT!! Well Done");
        EXPECT_EQ(answers, "");
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
}

TEST_F(Window, KeepsTheNewestWordInSight)
{
    Play(start);
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

// With the word list that stands beside it, its own clock and chance, and messages over its window.
TEST(Program, IsPutTogether)
{
    Program program;
    program.window.show();
    const auto click
        = [&](const char* name) { program.window.findChild<QAbstractButton*>(name)->click(); };
    int messages = 0;
    QTimer answerer;
    QObject::connect(&answerer, &QTimer::timeout, [&] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            ++messages, box->button(QMessageBox::Ok)->click();
    });
    answerer.start(0);
    click("Option1(6)");
    click("Command1");
    EXPECT_TRUE(program.window.windowTitle().startsWith("Quorvel - Level: 6   No. Of words"));
    EXPECT_GT(program.board.WordCount, 5000);
    click("Command14");
    EXPECT_GE(messages, 2) << "of the deal and of the computer's go";
}

} // namespace
