// A game in any alphabet: typed, bought, guessed.

#include "game/rows.h"
#include "headless/headless_game.h"
#include "lexicon/letters.h"

#include <gtest/gtest.h>

namespace {

struct List {
    const char* name;
    std::string bytes; // of the words, the first of them again at the end
    std::string words[3];
};

const List lists[] = {
    {"UTF-8", "bücher\ngarten\nsilber\nbücher\n", {"bücher", "garten", "silber"}},
    {"Windows-1252", "b\xFC\x63her\ngarten\nsilber\nb\xFC\x63her\n",
        {"bücher", "garten", "silber"}},
    {"Cyrillic", "взгляд\nчайник\nдорога\nвзгляд\n", {"взгляд", "чайник", "дорога"}},
    {"four bytes a letter", "\U00010428\U00010429\U0001042A\U0001042B\U0001042Cr,garten,silber,x",
        {"\U00010428\U00010429\U0001042A\U0001042B\U0001042Cr", "garten", "silber"}},
};

TEST(Letters, MakeAGameInAnyAlphabet)
{
    for (const List& list : lists) {
        SCOPED_TRACE(list.name);
        HeadlessGame game("", HeadlessPlatform(7));
        game.Check();
        game.UseList(list.bytes);
        // The hidden words are those three, and the deal leaves them as they are.
        for (const int position : {1, 2, 3})
            game.platform.draws.push_back(DrawOf(position + 1, 4));
        game.platform.draws.insert(game.platform.draws.end(), 18, 0);
        game.Play("Option1:1 Command1 Check1=0");
        const Board& board = game.board;
        EXPECT_EQ(Spell(board.MyLetters), list.words[0]);
        EXPECT_EQ(Spell(board.Text1), list.words[1]);
        EXPECT_EQ(Spell(board.SwapLetters), list.words[2]);
        EXPECT_EQ(board.Text6(4).Text, LetterOf(list.words[0], 4));

        game.platform.draws.assign(18, 0); // after the word, the same deal again
        game.Play("Command9 Text2:1 Text2:2 Text2:3 Text2:4 Text2:5 Text2:6 Command3");
        EXPECT_EQ(board.YourScore.Text, "50");
        ASSERT_EQ(board.List1.Words(), (std::vector{list.words[1], list.words[0]}))
            << "the computer plays what stands in its row";

        game.Play("word:2 word:1");
        game.board.YourScore.Text = "100";
        game.Play("Word1:2");
        EXPECT_EQ(board.Word1(2).Text, LetterOf(list.words[0], 2));
        std::string guess;
        for (int word = 0; word < 3; ++word)
            for (int k = 1; k <= 6; ++k)
                guess += "Text" + std::to_string(6 + word) + ":" + std::to_string(k) + "="
                    + std::string(LetterOf(list.words[word], k)) + " ";
        game.Play(guess + "Command7");
        EXPECT_EQ(game.view.calls.end()[-3], "Quorvel2: CORRECT!! Well Done");
        EXPECT_EQ(game.FirstFault(), "");
    }
}

} // namespace
