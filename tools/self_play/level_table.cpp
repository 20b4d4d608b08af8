// The levels, measured: plays the same games at every level and prints what they come to.
//
//   level_table WORD_LIST PLOT.svg         prints the table, and one number for all that was played
//   level_table WORD_LIST LEVEL SEED       prints the story of one of these games, line by line
#include "headless/fingerprint.h"
#include "tools/self_play/level_measures.h"
#include "tools/self_play/levels_plot.h"
#include "tools/self_play/played_game.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <string>

namespace {

constexpr std::int16_t levels = 6;
constexpr std::uint32_t games = 500;
constexpr int mostGoes = 1000;

void PrintTable(std::span<const LevelGames> played, std::span<const LevelMeasures> measures)
{
    std::puts("| Level | Words per 100 goes | Ahead of the next level by | Points per go "
              "| Fruitless goes | Games with a claim | Goes until it, mean | median "
              "| The player's words per 100 goes |");
    std::puts("|--:|--:|--:|--:|--:|--:|--:|--:|--:|");
    for (std::size_t place = 0; place < measures.size(); ++place) {
        const LevelMeasures& level = measures[place];
        std::string ahead;
        if (place + 1 < measures.size()) {
            const Lead lead = MeasureLead(played[place], played[place + 1]);
            char text[40];
            std::snprintf(
                text, sizeof text, "%.1f ± %.1f", lead.wordsPer100Goes, 2 * lead.standardError);
            ahead = text;
        }
        std::printf("| %zu | %.1f | %s | %.1f | %.1f %% | %d of %u | %.1f | %d | %.1f |\n",
            place + 1, level.wordsPer100Goes, ahead.c_str(), level.pointsPerGo,
            100 - level.wordsPer100Goes, level.claims, games, level.meanUntilClaim, level.median,
            level.wordsOfPlayerPer100Goes);
    }
}

void MeasureLevels(const std::filesystem::path& lexicon, const std::filesystem::path& plot)
{
    const SimplePlayer player(lexicon);
    Fingerprint fingerprint;
    const Story story = [&fingerprint](const std::string& line) { fingerprint.Add(line); };
    std::vector<LevelGames> played;
    std::vector<LevelMeasures> measures;
    for (std::int16_t level = 1; level <= levels; ++level) {
        LevelGames& ofLevel = played.emplace_back();
        for (std::uint32_t seed = 1; seed <= games; ++seed)
            ofLevel.push_back(PlayGame(lexicon, player, level, seed, mostGoes, story));
        measures.push_back(Measure(ofLevel));
    }
    PrintTable(played, measures);
    std::printf("\nFingerprint of all moves, messages and boards: `%016llx`\n",
        static_cast<unsigned long long>(fingerprint.Value()));
    std::ofstream out(plot);
    DrawLevels(out, measures);
    if (!out.flush())
        throw std::runtime_error("cannot write " + plot.string());
}

void TellGame(const std::filesystem::path& lexicon, int level, int seed)
{
    PlayGame(lexicon, SimplePlayer(lexicon), static_cast<std::int16_t>(level),
        static_cast<std::uint32_t>(seed), mostGoes,
        [](const std::string& line) { std::puts(line.c_str()); });
}

} // namespace

int main(int argc, char** argv)
{
    try {
        if (argc == 3)
            MeasureLevels(argv[1], argv[2]);
        else if (argc == 4)
            TellGame(argv[1], std::stoi(argv[2]), std::stoi(argv[3]));
        else
            throw std::invalid_argument("usage: level_table WORD_LIST (PLOT.svg | LEVEL SEED)");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
