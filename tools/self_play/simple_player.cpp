#include "tools/self_play/simple_player.h"

#include "game/board.h"
#include "game/rows.h"
#include "lexicon/lexicon_file.h"

#include <algorithm>

namespace {

constexpr int wordsOfTheListToOneKnown = 8;
constexpr char taken = '*';

std::int16_t BoxNumber(std::size_t place)
{
    return static_cast<std::int16_t>(place + 1);
}

// The clicks that exchange a letter where the word needs it, and lay the word out and submit it.
// None when the word is out of reach.
std::vector<Move> MovesFor(const Board& board, const std::string& word)
{
    std::string own = Spell(board.Text1);
    std::vector<Move> layOut;
    std::size_t missing = word.size();
    for (std::size_t k = 0; k < word.size(); ++k) {
        const std::size_t place = own.find(word[k]);
        layOut.push_back({"Text2", BoxNumber(place)});
        if (place != std::string::npos)
            own[place] = taken;
        else if (missing == word.size())
            missing = k;
        else
            return {};
    }

    std::vector<Move> moves;
    if (missing != word.size()) {
        const std::size_t spare = own.find_first_not_of(taken);
        const std::size_t wanted = Spell(board.SwapLetters).find(word[missing]);
        if (wanted == std::string::npos)
            return {};
        moves = {{"Text1", BoxNumber(spare)}, {"SwapLetters", BoxNumber(wanted)}};
        layOut[missing].index = BoxNumber(spare);
    }
    moves.push_back({"Command9"}); // "Lay Out Word"
    moves.insert(moves.end(), layOut.begin(), layOut.end());
    moves.push_back({"Command3"}); // "Submit Word"
    return moves;
}

} // namespace

SimplePlayer::SimplePlayer(const std::filesystem::path& lexicon)
{
    LexiconFile file(lexicon);
    file.Open();
    for (int record = 0; !file.AtEnd(); ++record) {
        const std::string_view word = file.ReadRecord();
        if (record % wordsOfTheListToOneKnown == 0)
            vocabulary_.emplace_back(word);
    }
}

std::vector<Move> SimplePlayer::PlanGo(const Board& board) const
{
    const std::vector<std::string>& used = board.List1.Words();
    for (const std::string& word : vocabulary_) {
        std::vector<Move> moves = MovesFor(board, word);
        if (!moves.empty() && std::ranges::find(used, word) == used.end())
            return moves;
    }
    return {{"Command13"}}; // "Pass"
}
