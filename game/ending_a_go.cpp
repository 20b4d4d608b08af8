#include "game/ending_a_go.h"

#include "game/board.h"
#include "game/computer_go.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/rows.h"
#include "game/scoring.h"
#include "game/start_of_game.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/passes.h"

#include <exception>

namespace {

// Meant: slots 0 to 50 only, however many words the ledger holds. The player can score a later word
// again.
bool StandsInFirstFiftySlots(const Board& board, const std::string& word)
{
    for (int slot = 0; slot <= 50; ++slot) {
        if (board.UsedWords(slot) == word)
            return true;
    }
    return false;
}

// "YOUR GO" leaves the screen before the work that keeps the player waiting.
void HideYourGo(Game& game)
{
    game.board.Label5.Visible = false;
    game.view.RefreshWindow();
}

enum class LookUp { Found, NotFound, Failed };

// Leaves the word list open, unless it cannot be read.
LookUp LookUpWord(LexiconFile& lexicon, const std::string& word)
{
    try {
        lexicon.Open();
        return FindWord(lexicon, word) ? LookUp::Found : LookUp::NotFound;
    } catch (const std::exception&) {
        lexicon.Close();
        return LookUp::Failed;
    }
}

void AcceptWord(Game& game, const std::string& word)
{
    game.view.ShowMessage("Word Accepted");
    ScoreWord(game.board, game.board.YourScore, word);
    DealLetters(game);
    Command8_Click(game);
}

} // namespace

// "Submit Word"
void Command3_Click(Game& game)
{
    Board& board = game.board;
    if (HasEmptyBox(board.Text1)) {
        game.view.ShowMessage("You can't submit an incomplete word");
        return;
    }
    const std::string word = Spell(board.Text1);
    if (StandsInFirstFiftySlots(board, word)) {
        game.view.ShowMessage("Word Has Been Used");
        return;
    }
    HideYourGo(game);
    LexiconFile lexicon(game.lexicon);
    switch (LookUpWord(lexicon, word)) {
    case LookUp::Found:
        AcceptWord(game, word);
        lexicon.Close();
        break;
    case LookUp::NotFound:
        game.view.ShowMessage("Word Not In DataBase");
        lexicon.Close();
        board.Command16.Enabled = true;
        Command8_Click(game);
        break;
    case LookUp::Failed:
        ShowLexiconMessage(game);
        board.Label5.Visible = true;
        break;
    }
}

// "Pass": the go changes hands, the letters stay where they are.
void Command13_Click(Game& game)
{
    HideYourGo(game);
    Command8_Click(game);
    EnableArranging(game.board);
}

// "Jumble": the go changes hands after a new deal.
void Command14_Click(Game& game)
{
    HideYourGo(game);
    DealLetters(game);
    game.board.Command16.Enabled = true;
    Command8_Click(game);
    EnableArranging(game.board);
}
