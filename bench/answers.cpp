#include "bench/answers.h"

#include "bench/plain_rules.h"
#include "bench/scenes.h"
#include "game/computer_go.h"
#include "game/rows.h"
#include "game/start_of_game.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/passes.h"

namespace {

bool LookupsAgree(const std::filesystem::path& list, const std::string& word)
{
    LexiconFile lexicon(list);
    lexicon.Open();
    return FindWord(lexicon, word) == plain::FindWord(list, word);
}

// Starts the game with both, with the same draws.
bool StartsAgree(Scene& scene, Scene& scenePlain)
{
    std::vector<std::string> candidates;
    plain::StartGame(scenePlain.game, candidates);
    Command1_Click(scene.game);
    const Board& board = scene.board;
    if (static_cast<std::size_t>(board.CandidateCount) != candidates.size()
        || board.WordCount != scenePlain.board.WordCount
        || Spell(board.Text1) != Spell(scenePlain.board.Text1))
        return false;
    return std::equal(candidates.begin(), candidates.end(), board.Candidates.begin());
}

// Plays the computer's goes until its claim, at the level of the board.
bool GoesAgree(Scene& scene)
{
    Board& board = scene.board;
    for (int go = 0; go < 30 && !board.Frame1.Visible; ++go) {
        const std::string word = plain::SearchAllExchanges(board);
        board.Check1 = 0;
        scene.view.lastMessage.clear();
        Command8_Click(scene.game);
        if (!board.Frame1.Visible
            && scene.view.lastMessage != (word.empty() ? "" : "My Word:" + word))
            return false;
    }
    return true;
}

} // namespace

std::string FirstWrongAnswer()
{
    for (std::uint32_t seed = 1; seed <= 60; ++seed) {
        Scene scene(shippedList, std::make_unique<SameGameAgain>(seed));
        Scene scenePlain(shippedList, std::make_unique<SameGameAgain>(seed));
        scene.board.Level = static_cast<std::int16_t>(1 + seed % 6);
        const std::string game = " of seed " + std::to_string(seed);
        if (!StartsAgree(scene, scenePlain))
            return "the start" + game;
        if (!LookupsAgree(shippedList, scene.board.HiddenWords(1))
            || !LookupsAgree(shippedList, Spell(scene.board.Text1)))
            return "a lookup" + game;
        if (!GoesAgree(scene))
            return "a go" + game;
    }

    const MadeList list(WorstStartWords());
    Scene scene(list.Path(), std::make_unique<WorstStartChance>());
    Scene scenePlain(list.Path(), std::make_unique<WorstStartChance>());
    if (!StartsAgree(scene, scenePlain) || scene.board.CandidateCount != 300)
        return "the worst start";

    const auto worst = WorstGo();
    Command8_Click(worst->game);
    if (worst->board.ComputerScored)
        return "the worst go";
    return "";
}
