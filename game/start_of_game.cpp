#include "game/start_of_game.h"

#include "game/board.h"
#include "game/chance.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/hidden_words.h"
#include "game/numbers.h"
#include "game/questions.h"
#include "game/rows.h"
#include "lexicon/letters.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/passes.h"

#include <cstdint>
#include <exception>

namespace {

// A list can allow three first letters and yet make them so rare that no draw would meet them while
// a player waits. So many bytes are read in about a second; a game is given up after them, unless
// at least one try in a thousand succeeds. Then one of the first twenty thousand will.
constexpr std::uint64_t bytesToDrawFrom = 2'000'000'000;
constexpr std::uint64_t bytesAnOpeningCosts = 10'000; // in the same time
constexpr double fairChance = 0.001;
constexpr std::uint64_t mostTries = 20'000;

void ClearLastGame(Board& board)
{
    board.WordCount = 0;
    for (const HiddenWord& word : hiddenWords)
        Empty(board.*word.Guess);
    for (const HiddenWord& word : hiddenWords)
        Empty(board.*word.Shown);
    board.List1.Clear();
    for (std::string& word : board.UsedWords)
        word.clear();
    board.UsedCount = 0;
    board.CandidateCount = 0;
    board.Text9.Text = PlainForm(0);
}

// A try can succeed when the records that a position reaches have three first letters, or have two
// and the word that position 0 keeps brings the third.
bool TryCanSucceed(const std::u32string& drawable, std::string_view currentWord)
{
    if (drawable.size() == 2 && !currentWord.empty())
        return drawable.find(TakeFirstLetter(currentWord)) == std::u32string::npos;
    return drawable.size() >= 3;
}

bool FirstLettersDiffer(const Board& board)
{
    const std::string_view first = LetterOf(board.HiddenWords(1), 1);
    const std::string_view second = LetterOf(board.HiddenWords(2), 1);
    const std::string_view third = LetterOf(board.HiddenWords(3), 1);
    return first != second && first != third && second != third;
}

void DrawThreeWords(Game& game, LexiconFile& lexicon)
{
    Board& board = game.board;
    for (int slot = 1; slot <= 3; ++slot) {
        const float draw = game.platform.DrawRandom();
        if (const auto picked = PickRandomWord(lexicon, board.WordCount, draw))
            board.CurrentWord = *picked;
        if (CountLetters(board.CurrentWord) != lettersPerWord)
            throw LexiconError("a drawn record is not six letters long");
        board.HiddenWords(slot) = board.CurrentWord;
    }
}

void DrawHiddenWords(Game& game, LexiconFile& lexicon, const std::u32string& drawable)
{
    const Board& board = game.board;
    bool fair = false;
    for (std::uint64_t tries = 1; TryCanSucceed(drawable, board.CurrentWord); ++tries) {
        DrawThreeWords(game, lexicon);
        if (FirstLettersDiffer(board))
            return;
        if (lexicon.BytesRead() + 3 * tries * bytesAnOpeningCosts < bytesToDrawFrom)
            continue;
        fair = fair || ChanceOfThreeFirstLetters(lexicon, board.WordCount) >= fairChance;
        if (!fair || tries >= mostTries)
            break;
    }
    throw LexiconError("the word list gives no three words with different first letters");
}

// A short block of words is repeated until the computer has enough entries to look through.
void FillCandidates(Board& board, LexiconFile& lexicon)
{
    // A click that ran inside the repaint may have begun a game of its own and left its words here.
    board.CandidateCount = 0;
    do {
        const std::int16_t found = CollectCandidates(lexicon, board.WordCount, HiddenLetters(board),
            {board.Candidates.begin() + board.CandidateCount, board.Candidates.end()});
        if (found == 0)
            throw LexiconError("the letters can make no word of the word list");
        board.CandidateCount = static_cast<std::int16_t>(board.CandidateCount + found);
    } while (board.CandidateCount < fewestCandidates);
}

void RevealLetters(Board& board)
{
    const auto reveal = [&board](LetterRow& row, int number) {
        for (const int k : {1, 4})
            row(k).Text = LetterOf(board.HiddenWords(number), k);
    };
    for (const HiddenWord& word : hiddenWords)
        reveal(board.*word.Shown, word.Number);
    for (const HiddenWord& word : hiddenWords)
        reveal(board.*word.Guess, word.Number);
}

void StartGame(Game& game)
{
    Board& board = game.board;
    LexiconFile lexicon(game.lexicon);
    const WordCount counted = CountWords(lexicon);
    board.WordCount = counted.records;
    board.CurrentWord = counted.last;
    DrawHiddenWords(game, lexicon, counted.firstLetters);
    DealLetters(game);
    FillCandidates(board, lexicon);
    board.Caption += "   No. Of words with these letters: " + PaddedForm(board.CandidateCount);
    RevealLetters(board);
    for (Frame* frame : GameFrames(board))
        frame->Visible = true;
    board.Check1 = 1;
}

} // namespace

// The window is made.
void Form_Load(Game& game)
{
    Board& board = game.board;
    for (Frame* frame : {&board.Frame2, &board.Frame3, &board.Frame4, &board.Frame5, &board.Frame7})
        frame->Visible = false;
    CentreLevelPanel(board);
    Empty(board.Text2);
}

// "Level 1" to "Level 6"
void Option1_Click(Game& game, std::int16_t Index)
{
    game.board.Level = Index;
}

// "OK" on the level panel
void Command1_Click(Game& game)
{
    Board& board = game.board;
    game.platform.SeedRandom(game.platform.ClockSeconds());
    ClearLastGame(board);
    if (board.Level == 0)
        return;
    board.Frame1.Visible = false;
    board.Command2.Visible = false;
    game.view.RefreshWindow();
    board.Caption = "Quorvel - Level:" + PaddedForm(board.Level);
    try {
        StartGame(game);
    } catch (const std::exception&) {
        ShowLexiconMessage(game);
        game.view.EndProgram();
    }
}

void DealLetters(Game& game)
{
    Board& board = game.board;
    std::string pool = HiddenLetters(board);
    std::string jumbled;
    while (!pool.empty())
        jumbled += TakeLetter(game.platform, pool);
    for (int i = 1; i <= lettersPerWord; ++i) {
        board.MyLetters(i).Text = LetterOf(jumbled, i);
        board.Text1(i).Text = LetterOf(jumbled, lettersPerWord + i);
        board.SwapLetters(i).Text = LetterOf(jumbled, 2 * lettersPerWord + i);
    }
    board.HeldLetter.clear();
    board.HeldIndex = 0;
    board.HeldFlag = false;
    if (board.Check1 == 1)
        game.view.ShowMessage("Letters Jumbled");
    Empty(board.Text2);
    Enable(board.SwapLetters);
    board.FruitlessSwaps = 0;
}

void CentreLevelPanel(Board& board)
{
    for (Panel* panel : {&board.Frame1, &board.Command2}) {
        panel->Left = board.WindowWidth / 2 - panel->Width / 2;
        panel->Top = board.WindowHeight / 2 - panel->Height / 2;
    }
}

void OfferAnotherGame(Game& game)
{
    Board& board = game.board;
    if (Ask(game, anotherGame) == Answer::No)
        game.view.EndProgram();
    CentreLevelPanel(board);
    board.Frame1.Visible = true;
    board.Command2.Visible = true;
    board.MyScore.Text = PlainForm(0);
    board.YourScore.Text = PlainForm(0);
}

void ShowLexiconMessage(Game& game)
{
    game.view.ShowMessage("The file Lexicon.txt must be in the C:\\ Directory (Folder)");
}
