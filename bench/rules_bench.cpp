// Times the rules against their yardsticks and prints one table, for the shipped word list and for
// the same list in another alphabet. Before that, the plain form has to give the same answers.
//
// The other alphabet is Cyrillic, with one letter for each Latin one: all games are the same, and
// the plain form stays with one byte a letter.
#include "bench/plain_rules.h"
#include "bench/ratio_table.h"
#include "game/computer_go.h"
#include "game/rows.h"
#include "game/scoring.h"
#include "game/start_of_game.h"
#include "headless/headless_game.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/passes.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>

namespace {

using benchmark::DoNotOptimize;
using std::to_string;

std::string Latin(const std::string& text)
{
    return text;
}

std::string Cyrillic(const std::string& text)
{
    std::string letters;
    for (const char letter : text) {
        if (letter < 'a' || letter > 'z')
            letters += letter;
        else if (letter < 'q')
            letters += {'\xD0', static_cast<char>('\xB0' + (letter - 'a'))};
        else
            letters += {'\xD1', static_cast<char>('\x80' + (letter - 'q'))};
    }
    return letters;
}

struct Alphabet {
    const char* name; // as it stands in the table
    std::string (*spell)(const std::string& latin);
};

// A list in an alphabet, and in the Latin one for the plain form.
struct List {
    List(const std::string& bytes, const Alphabet& alphabet)
        : latin(bytes)
        , spelled(alphabet.spell(bytes))
    {
    }
    WordListFile latin;
    WordListFile spelled;
};

std::string ShippedWords()
{
    std::ifstream file(QUORVEL_WORD_LIST, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

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

void TimePasses(std::vector<Timing>& timings, const Alphabet& alphabet)
{
    const auto list = std::make_shared<List>(ShippedWords(), alphabet);
    const auto lexicon = std::make_shared<LexiconFile>(list->spelled.Path());
    const std::int16_t count = CountWords(*lexicon).records;
    const std::string records = to_string(count) + " records";
    const auto floor = [list] { DoNotOptimize(CountLineEnds(list->spelled.Path())); };
    const auto add = [&](const std::string& what, const std::string& work, const auto& ofGame,
                         const auto& ofPlain) {
        timings.push_back({what + alphabet.name, work, ofGame, ofPlain, floor});
    };
    add(
        "Count pass", records, [=] { DoNotOptimize(CountWords(*lexicon)); },
        [=] { DoNotOptimize(plain::CountWords(list->latin.Path())); });

    const std::string latinPool = "planetgardensimple";
    const std::string pool = alphabet.spell(latinPool);
    const auto slots = std::make_shared<std::vector<std::string>>(2000);
    add(
        "Candidate pass",
        records + ", " + to_string(CollectCandidates(*lexicon, count, pool, *slots)) + " found",
        [=] { CollectCandidates(*lexicon, count, pool, *slots); },
        [=] { DoNotOptimize(plain::CollectCandidates(list->latin.Path(), count, latinPool)); });
}

void SetRows(Board& board, const Alphabet& alphabet)
{
    constexpr const char* rows[] = {"aeinst", "eorlda"};
    for (int i = 1; i <= 6; ++i) {
        board.MyLetters(i).Text = alphabet.spell({rows[0][i - 1]});
        board.SwapLetters(i).Text = alphabet.spell({rows[1][i - 1]});
    }
    board.FruitlessSwaps = 0;
}

// The computer is on the go at Level 1 with 2000 candidates and 250 used words, among them every
// word that one of its exchanges makes; "Show Responses" is off.
std::shared_ptr<HeadlessGame> WorstGo(const Alphabet& alphabet)
{
    auto game = std::make_shared<HeadlessGame>(QUORVEL_WORD_LIST, HeadlessPlatform(1));
    Board& board = game->board;
    board.Level = 1;
    LexiconFile lexicon(QUORVEL_WORD_LIST);
    lexicon.Open();
    while (board.CandidateCount < mostCandidates)
        board.Candidates(++board.CandidateCount) = lexicon.ReadRecord();
    SetRows(board, {"", Latin});
    for (std::string word; !(word = plain::SearchAllExchanges(board)).empty();)
        AddUsedWord(board, word);
    for (int k = mostCandidates; board.UsedCount < ledgerSlots; --k)
        AddUsedWord(board, board.Candidates(k));
    const auto spell = [&alphabet](std::string& word) { word = alphabet.spell(word); };
    std::ranges::for_each(board.Candidates, spell);
    std::ranges::for_each(board.UsedWords, spell);
    SetRows(board, alphabet);
    return game;
}

void TimeGo(std::vector<Timing>& timings, const Alphabet& alphabet)
{
    const auto game = WorstGo(alphabet);
    const auto plainGame = WorstGo({"", Latin});
    timings.push_back({.what = std::string("Worst go of the computer") + alphabet.name,
        .work = to_string(36 * game->board.CandidateCount) + " candidates, "
            + to_string(game->board.UsedCount) + " used words",
        .game =
            [=] {
                Command8_Click(game->game);
                SetRows(game->board, alphabet);
            },
        .plain = [=] { DoNotOptimize(plain::SearchAllExchanges(plainGame->board)); }});
}

void TimeStart(std::vector<Timing>& timings, const Alphabet& alphabet)
{
    const auto list = std::make_shared<List>(ShippedWords(), alphabet);
    const auto game = std::make_shared<HeadlessGame>(list->spelled.Path(), HeadlessPlatform(7));
    const auto start = [=, list = list] {
        game->platform.clock = 7; // the same draws again
        game->board.Level = 1;
        game->board.Check1 = 0;
        game->view.calls.clear();
        Command1_Click(game->game);
    };
    start();
    timings.push_back({.what = std::string("Start of a game") + alphabet.name,
        .work = to_string(game->board.CandidateCount) + " candidates",
        .game = start});
}

// Plays the game of a seed, until the computer's claim, with the same game in Latin letters and the
// passes and goes of the plain form beside it.
bool Agrees(const List& list, const Alphabet& alphabet, std::uint32_t seed)
{
    HeadlessGame spelled(list.spelled.Path(), HeadlessPlatform(seed));
    HeadlessGame latin(list.latin.Path(), HeadlessPlatform(seed));
    Board& board = latin.board;
    for (HeadlessGame* game : {&spelled, &latin}) {
        game->board.Level = static_cast<std::int16_t>(1 + seed % 6);
        Command1_Click(game->game);
        game->board.Check1 = 0;
    }
    const auto candidates = plain::CollectCandidates(
        list.latin.Path(), plain::CountWords(list.latin.Path()).first, HiddenLetters(board));
    for (int k = 1; k <= board.CandidateCount; ++k) {
        const std::size_t repeated = static_cast<std::size_t>(k - 1) % candidates.size();
        if (board.Candidates(k) != candidates[repeated]
            || spelled.board.Candidates(k) != alphabet.spell(candidates[repeated]))
            return false;
    }
    for (int go = 0; go < 30 && !board.Frame1.Visible; ++go) {
        const std::string word = plain::SearchAllExchanges(board);
        const std::string call = word.empty() ? "" : "Word Found: My Word:" + word;
        for (HeadlessGame* game : {&spelled, &latin}) {
            game->view.calls = {""};
            Command8_Click(game->game);
            const std::string& shown = game->view.calls[game->view.calls.size() > 1 ? 1 : 0];
            if (alphabet.spell(shown) != alphabet.spell(call))
                return false;
        }
    }
    return spelled.board.CandidateCount == board.CandidateCount;
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<Timing> timings;
    for (const Alphabet& alphabet : {Alphabet{"", Latin}, Alphabet{", Cyrillic", Cyrillic}}) {
        const List list(ShippedWords(), alphabet);
        for (std::uint32_t seed = 1; seed <= 30; ++seed) {
            if (Agrees(list, alphabet, seed))
                continue;
            std::fprintf(stderr, "the plain form disagrees: seed %u%s\n", seed, alphabet.name);
            return 1;
        }
        TimePasses(timings, alphabet);
        TimeStart(timings, alphabet);
        TimeGo(timings, alphabet);
    }
    return PrintRatios(timings, argc, argv);
}
