// The levels, measured: plays the same games at every level and prints what they come to.
//
//   level_table WORD_LIST DATA         prints the table and one number for all that was played, and
//                                      writes what levels.gnuplot draws
//   level_table WORD_LIST LEVEL SEED   prints the story of one of these games, line by line
#include "game/board.h"
#include "headless/fingerprint.h"
#include "headless/script_error.h"
#include "tools/self_play/played_game.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <fstream>
#include <numeric>

namespace {

constexpr std::uint32_t games = 500;
constexpr int mostGoes = 1000;

// The games of one level, one a seed, in the order of the seeds.
using LevelGames = std::vector<PlayedGame>;

template <typename Field> double Sum(const LevelGames& played, Field field)
{
    const auto add = [field](double sum, const PlayedGame& game) { return sum + game.*field; };
    return std::accumulate(played.begin(), played.end(), 0.0, add);
}

template <typename Field> double PerGo(const LevelGames& played, Field field)
{
    return Sum(played, field) / Sum(played, &PlayedGame::goes);
}

// By how many words per hundred goes one level is ahead of another on the same seeds, and twice the
// standard error of that. Games differ in length, so a rate is all words over all goes. What one
// game adds to its error is the number of words by which the game strays from the rate, over the
// mean length of a game; both levels begin a seed with the same letters, so the error is that of
// the differences.
std::string Lead(const LevelGames& ahead, const LevelGames& behind)
{
    const auto stray = [](const LevelGames& played, std::size_t place) {
        const PlayedGame& game = played[place];
        return (game.words - PerGo(played, &PlayedGame::words) * game.goes)
            / (Sum(played, &PlayedGame::goes) / games);
    };
    double squares = 0;
    for (std::size_t place = 0; place < games; ++place)
        squares += std::pow(stray(ahead, place) - stray(behind, place), 2);
    char text[40];
    std::snprintf(text, sizeof text, "%.1f ± %.1f",
        100 * (PerGo(ahead, &PlayedGame::words) - PerGo(behind, &PlayedGame::words)),
        200 * std::sqrt(squares / (games - 1) / games));
    return text;
}

// The goes of the games that the computer's claim ended, the fewest first.
std::vector<int> GoesUntilClaim(const LevelGames& played)
{
    std::vector<int> goes;
    for (const PlayedGame& game : played) {
        if (game.claimed)
            goes.push_back(game.goes);
    }
    std::ranges::sort(goes);
    return goes;
}

// A level's row of the table and its line of the data.
void Print(int level, const LevelGames& played, const std::string& lead, std::ostream& data)
{
    const double words = 100 * PerGo(played, &PlayedGame::words);
    const std::vector<int> goes = GoesUntilClaim(played);
    const std::size_t claims = goes.size();
    if (claims == 0)
        throw std::runtime_error("no game ended with a claim");
    std::printf("| %d | %.1f | %s | %.1f | %.1f %% | %zu of %u | %.1f | %d | %.1f |\n", level,
        words, lead.c_str(), PerGo(played, &PlayedGame::points), 100 - words, claims, games,
        std::accumulate(goes.begin(), goes.end(), 0.0) / static_cast<double>(claims),
        goes[claims / 2], 100 * PerGo(played, &PlayedGame::wordsOfPlayer));
    data << level << " " << words << " " << goes[claims / 4] << " " << goes[claims / 2] << " "
         << goes[claims * 3 / 4] << "\n";
}

void MeasureLevels(const std::filesystem::path& lexicon, const std::string& dataFile)
{
    const SimplePlayer player(lexicon);
    Fingerprint fingerprint;
    const Story story = [&fingerprint](const std::string& line) { fingerprint.Add(line); };
    std::vector<LevelGames> played(levels);
    for (std::int16_t level = 1; level <= levels; ++level) {
        for (std::uint32_t seed = 1; seed <= games; ++seed)
            played[static_cast<std::size_t>(level) - 1].push_back(
                PlayGame(lexicon, player, level, seed, mostGoes, story));
    }
    std::puts("| Level | Words per 100 goes | Ahead of the next level by | Points per go "
              "| Fruitless goes | Games with a claim | Goes until the claim, mean | median "
              "| The player's words per 100 goes |\n|--:|--:|--:|--:|--:|--:|--:|--:|--:|");
    std::ofstream data(dataFile);
    for (std::size_t k = 0; k < levels; ++k)
        Print(static_cast<int>(k) + 1, played[k],
            k + 1 < levels ? Lead(played[k], played[k + 1]) : "", data);
    if (!data.flush())
        throw std::runtime_error("cannot write " + dataFile);
    std::printf("\nFingerprint of all moves, messages and boards: `%016llx`\n",
        static_cast<unsigned long long>(fingerprint.Value()));
}

} // namespace

int main(int argc, char** argv)
try {
    Demand(argc == 3 || argc == 4, "usage: level_table WORD_LIST (DATA | LEVEL SEED)");
    if (argc == 3) {
        MeasureLevels(argv[1], argv[2]);
    } else {
        PlayGame(argv[1], SimplePlayer(argv[1]), ReadNumber<std::int16_t>(argv[2], 1, levels),
            ReadNumber<std::uint32_t>(argv[3], 0, (1U << 24) - 1), mostGoes,
            [](const std::string& line) { std::puts(line.c_str()); });
    }
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
