// Times the rules against their yardsticks and prints one table. Before that, the plain form has to
// give the same answers.
#include "bench/answers.h"
#include "bench/plain_rules.h"
#include "bench/ratio_table.h"
#include "bench/scenes.h"
#include "game/computer_go.h"
#include "game/start_of_game.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/passes.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <memory>

namespace {

using benchmark::DoNotOptimize;
using std::to_string;

// No pass can be faster than this: reads the bytes of a list and counts its line ends.
std::ptrdiff_t CountLineEnds(const std::filesystem::path& list)
{
    static std::vector<char> buffer(65536);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(
        std::fopen(list.string().c_str(), "rb"), std::fclose);
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    std::ptrdiff_t lines = 0;
    while (const std::size_t got = std::fread(buffer.data(), 1, buffer.size(), file.get()))
        lines += std::count(buffer.data(), buffer.data() + got, '\n');
    return lines;
}

void TimePasses(std::vector<Timing>& timings)
{
    static LexiconFile lexicon(shippedList);
    static const std::int16_t wordCount = CountWords(lexicon).records;
    static std::string word;
    const std::string records = to_string(wordCount) + " records";
    const auto floor = [] { DoNotOptimize(CountLineEnds(shippedList)); };

    timings.push_back({.what = "Count pass",
        .work = records,
        .game = [] { DoNotOptimize(CountWords(lexicon)); },
        .plain = [] { plain::CountWords(shippedList, word); },
        .floor = floor});

    constexpr float middle = 0.5F;
    timings.push_back({.what = "Pick from the middle",
        .work = to_string(wordCount / 2) + " records",
        .game = [] { DoNotOptimize(PickRandomWord(lexicon, wordCount, middle)); },
        .plain = [] { plain::PickRandomWord(shippedList, wordCount, middle, word); }});

    static const std::string pool = "planetgardensimple";
    static std::vector<std::string> candidates(2000);
    const std::int16_t count = CollectCandidates(lexicon, wordCount, pool, candidates);
    timings.push_back({.what = "Candidate pass",
        .work = records + ", " + to_string(count) + " words found",
        .game = [] { CollectCandidates(lexicon, wordCount, pool, candidates); },
        .plain =
            [] {
                static std::vector<std::string> found;
                found.clear();
                plain::CollectCandidates(shippedList, wordCount, pool, found);
            },
        .floor = floor});
}

Timing TimeStart(const std::string& what, const std::shared_ptr<Scene>& scene)
{
    Command1_Click(scene->game);
    return {.what = what,
        .work = to_string(scene->board.WordCount) + " records, "
            + to_string(scene->board.CandidateCount) + " candidates",
        .game = [scene] { Command1_Click(scene->game); },
        .plain =
            [scene] {
                static std::vector<std::string> candidates;
                plain::StartGame(scene->game, candidates);
            }};
}

void TimeStarts(std::vector<Timing>& timings)
{
    timings.push_back(TimeStart("Start of a game",
        std::make_shared<Scene>(shippedList, std::make_unique<SameGameAgain>(7))));

    static const MadeList list(WorstStartWords());
    Timing worst = TimeStart("Worst start of a game",
        std::make_shared<Scene>(list.Path(), std::make_unique<WorstStartChance>()));
    worst.floor = [] {
        constexpr int passes = 1 + 3 + 100; // the count, the picks from its end, the candidates
        for (int pass = 0; pass < passes; ++pass)
            DoNotOptimize(CountLineEnds(list.Path()));
    };
    timings.push_back(worst);
}

Timing TimeLookup(int records)
{
    const auto list = std::make_shared<MadeList>(MadeWords(records));
    return {.what = "Word not in a list of " + to_string(records),
        .work = to_string(records) + " records",
        .game =
            [list] {
                LexiconFile lexicon(list->Path());
                lexicon.Open();
                DoNotOptimize(FindWord(lexicon, "planet"));
            },
        .plain = [list] { DoNotOptimize(plain::FindWord(list->Path(), "planet")); },
        .floor = [list] { DoNotOptimize(CountLineEnds(list->Path())); }};
}

void TimeLookups(std::vector<Timing>& timings)
{
    constexpr std::array listLengths = {1000, 2000, 4000, 8000, 16000, 32767};
    std::ranges::transform(listLengths, std::back_inserter(timings), TimeLookup);
}

void TimeGoAndDeal(std::vector<Timing>& timings)
{
    const std::shared_ptr<Scene> go = WorstGo();
    timings.push_back({.what = "Worst go of the computer",
        .work = to_string(36 * go->board.CandidateCount) + " candidates looked at, "
            + to_string(go->board.UsedCount) + " used words",
        .game =
            [go] {
                Command8_Click(go->game);
                TakeBackGo(*go);
            },
        .plain = [go] { DoNotOptimize(plain::SearchAllExchanges(go->board)); }});

    const auto deal = std::make_shared<Scene>(shippedList, std::make_unique<SameGameAgain>(1));
    Command1_Click(deal->game);
    timings.push_back(
        {.what = "Deal", .work = "18 draws", .game = [deal] { DealLetters(deal->game); }});
}

} // namespace

int main(int argc, char** argv)
{
    if (const std::string wrong = FirstWrongAnswer(); !wrong.empty()) {
        std::fprintf(stderr, "the game and its plain form disagree: %s\n", wrong.c_str());
        return 1;
    }

    // Repeated in a random order, so that what else the machine does falls on all alike.
    std::vector<std::string> arguments{argv[0], "--benchmark_repetitions=9",
        "--benchmark_min_time=0.05", "--benchmark_enable_random_interleaving=true"};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    std::vector<char*> pointers;
    std::ranges::transform(arguments, std::back_inserter(pointers),
        [](std::string& argument) { return argument.data(); });
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return 1;

    std::vector<Timing> timings;
    TimePasses(timings);
    TimeStarts(timings);
    TimeLookups(timings);
    TimeGoAndDeal(timings);
    RatioTable table(timings);
    benchmark::RunSpecifiedBenchmarks(&table);
    benchmark::Shutdown();
    return 0;
}
