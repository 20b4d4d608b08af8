#include "game/start_of_game.h"

#include "game/board.h"
#include "game/chance.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/numbers.h"
#include "game/rows.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/passes.h"

#include <exception>

namespace {

constexpr std::size_t wordLength = 6;

// A long list can allow three first letters and yet make them so rare that no draw would meet them
// while a player waits. A try reads the list about one and a half times, so that the drawing ends
// after some seconds; a list of a few hundred words is never given up, however lopsided it is.
constexpr int mostRecordsDrawnFrom = 1'000'000'000;

void ClearLastGame(Board& board)
{
    board.WordCount = 0;
    for (LetterRow* row :
        {&board.Text6, &board.Text7, &board.Text8, &board.Word1, &board.Word2, &board.Word3})
        Empty(*row);
    board.List1.Clear();
    for (std::string& word : board.UsedWords)
        word.clear();
    board.UsedCount = 0;
    board.CandidateCount = 0;
    board.Text9.Text = "0";
}

// A try can succeed when the records that a position reaches have three first letters, or have two
// and the word that position 0 keeps brings the third.
bool TryCanSucceed(const FirstLetters& drawable, const std::string& currentWord)
{
    if (drawable.count() == 2 && !currentWord.empty())
        return !drawable.test(static_cast<unsigned char>(currentWord.front()));
    return drawable.count() >= 3;
}

bool FirstLettersDiffer(const Board& board)
{
    const char first = board.HiddenWords(1).front();
    const char second = board.HiddenWords(2).front();
    const char third = board.HiddenWords(3).front();
    return first != second && first != third && second != third;
}

void DrawHiddenWords(Game& game, LexiconFile& lexicon, const FirstLetters& drawable)
{
    Board& board = game.board;
    for (int drawnFrom = 0; drawnFrom < mostRecordsDrawnFrom; drawnFrom += board.WordCount) {
        if (!TryCanSucceed(drawable, board.CurrentWord))
            break;
        for (int slot = 1; slot <= 3; ++slot) {
            PickRandomWord(lexicon, board.WordCount, game.platform.DrawRandom(), board.CurrentWord);
            if (board.CurrentWord.size() != wordLength)
                throw LexiconError("a drawn record is not six letters long");
            board.HiddenWords(slot) = board.CurrentWord;
        }
        if (FirstLettersDiffer(board))
            return;
    }
    throw LexiconError("the word list gives no three words with different first letters");
}

std::string HiddenLetters(const Board& board)
{
    return board.HiddenWords(1) + board.HiddenWords(2) + board.HiddenWords(3);
}

// A short block of words is repeated until the computer has enough entries to look through.
void FillCandidates(Board& board, LexiconFile& lexicon)
{
    // A click that ran inside the repaint may have begun a game of its own and left its words here.
    board.CandidateCount = 0;
    do {
        const std::int16_t before = board.CandidateCount;
        CollectCandidates(lexicon, board.WordCount, HiddenLetters(board),
            {board.Candidates.begin(), board.Candidates.end()}, board.CandidateCount);
        if (board.CandidateCount == before)
            throw LexiconError("the letters can make no word of the word list");
    } while (board.CandidateCount < fewestCandidates);
}

void RevealLetters(Board& board)
{
    const auto reveal = [](LetterRow& row, const std::string& word) {
        for (const int k : {1, 4})
            row(k).Text = LetterOf(word, k);
    };
    reveal(board.Word1, board.HiddenWords(1));
    reveal(board.Word2, board.HiddenWords(2));
    reveal(board.Word3, board.HiddenWords(3));
    reveal(board.Text6, board.HiddenWords(1));
    reveal(board.Text7, board.HiddenWords(2));
    reveal(board.Text8, board.HiddenWords(3));
}

void StartGame(Game& game)
{
    Board& board = game.board;
    LexiconFile lexicon(game.lexicon);
    const FirstLetters drawable = CountWords(lexicon, board.WordCount, board.CurrentWord);
    DrawHiddenWords(game, lexicon, drawable);
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
    for (int i = 1; i <= 6; ++i) {
        board.MyLetters(i).Text = LetterOf(jumbled, i);
        board.Text1(i).Text = LetterOf(jumbled, i + 6);
        board.SwapLetters(i).Text = LetterOf(jumbled, i + 12);
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
    if (game.view.AskYesNo("Play Again", "New Game") == Answer::No)
        game.view.EndProgram();
    CentreLevelPanel(board);
    board.Frame1.Visible = true;
    board.Command2.Visible = true;
    board.MyScore.Text = "0";
    board.YourScore.Text = "0";
}

void ShowLexiconMessage(Game& game)
{
    game.view.ShowMessage("The file Lexicon.txt must be in the C:\\ Directory (Folder)");
}
