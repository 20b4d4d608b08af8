#include "tools/self_play/played_game.h"

#include "game/scoring.h"
#include "headless/board_text.h"
#include "headless/headless_game.h"
#include "headless/spelling.h"
#include "lexicon/lexicon_file.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr int wordsOfTheListToOneKnown = 8;

// The clicks of one whole go: the first word that the player knows and can make, or "Pass".
std::vector<Move> PlanGo(const SimplePlayer& player, const Board& board)
{
    const std::vector<std::string>& used = board.List1.Words();
    for (const std::string& word : player.Vocabulary()) {
        std::vector<Move> moves = MovesFor(board, word);
        if (!moves.empty() && std::ranges::find(used, word) == used.end())
            return moves;
    }
    return {{"Command13"}};
}

// The letters and scores, without what the boxes tell beside them.
std::string PlainLine(const Board& board)
{
    std::string line = Line(board, {"you=", "me=", "swap=", "you:", "me:", "bonus:"});
    for (char& letter : line) {
        if (letter == '_')
            letter = ' ';
        else if (letter >= 'A' && letter <= 'Z')
            letter = static_cast<char>(letter - 'A' + 'a');
    }
    return line;
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

PlayedGame PlayGame(const std::filesystem::path& lexicon, const SimplePlayer& player,
    std::int16_t level, std::uint32_t seed, int mostGoes, const Story& story)
{
    PlayedGame played;
    NumberBox points;
    HeadlessGame game(lexicon, HeadlessPlatform(seed));
    const Board& board = game.board;
    game.tell = [&](const std::string& what) {
        if (what == "end")
            return;
        story(what);
        played.wordsOfPlayer += what == "Quorvel2: Word Accepted";
        played.claimed |= what == "New Game? Play Again";
        if (what.starts_with("Word Found: ")) {
            ++played.words;
            AddPoints(board, points);
        }
    };
    game.view.answers.push_back(Answer::No); // to another game
    const auto play = [&](const Move& move) {
        story("click " + std::string(move.control) + " " + std::to_string(move.index));
        game.Play({[&move](HeadlessGame& own) { own.Click(move.control, move.index); }});
    };
    play({"Option1", level});
    play({"Command1"}); // "OK"
    if (game.Ended())
        throw std::runtime_error(game.view.calls.back());
    story(board.Caption);
    played.candidates = board.CandidateCount;
    while (played.goes < mostGoes && !game.Ended()) {
        story(PlainLine(board));
        ++played.goes;
        for (const Move& move : PlanGo(player, board))
            play(move);
    }
    story(PlainLine(board));
    played.points = std::stod(points.Text);
    return played;
}
