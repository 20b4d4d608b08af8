// How three plain models of a person fare, level by level, and what the games are like. For lists
// whose letters are of one byte.
//
//   people WORD_LIST DATA   prints two tables, and writes the shares that levels.gnuplot draws
#include "game/board.h"
#include "game/buying_letters.h"
#include "game/hidden_words.h"
#include "game/numbers.h"
#include "game/rows.h"
#include "headless/headless_game.h"
#include "headless/spelling.h"
#include "lexicon/letters.h"
#include "lexicon/lexicon_file.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <fstream>
#include <map>
#include <random>
#include <set>

namespace {

constexpr std::uint32_t openings = 1000;
constexpr std::uint32_t games = 200; // of each person at each level
constexpr int mostGoes = 300;

using Words = std::vector<std::string>;
using Trios = std::vector<std::array<std::string, 3>>;

struct Person {
    double knows;        // what part of the list, from its front
    double finds;        // in what part of the goes the person sees a word that is there
    bool buys;           // a letter with every hundred points, as long as more answers are left
    std::size_t guesses; // when so few answers are left, tries them all
};

constexpr Person people[] = {
    {0.25, 0.2, false, 1},    // beginner
    {0.75, 1.0 / 3, true, 3}, // common player
    {1, 1, true, 3},          // expert
};

std::string Sorted(std::string letters)
{
    std::ranges::sort(letters);
    return letters;
}

bool Shows(const LetterRow& shown, const std::string& word)
{
    for (int k = 1; k <= lettersPerWord; ++k) {
        if (!shown(k).Text.empty() && shown(k).Text != LetterOf(word, k))
            return false;
    }
    return true;
}

// The answers that the person knows: three words with the letters shown, of just the 18 letters.
Trios FindAnswers(const Board& board, const Words& known)
{
    std::array<Words, 3> fitting;
    std::map<std::string, Words> thirds;
    for (const std::string& word : known) {
        for (std::size_t k = 0; k < 3; ++k) {
            if (Shows(board.*hiddenWords[k].Shown, word))
                fitting[k].push_back(word);
        }
    }
    for (const std::string& word : fitting[2])
        thirds[Sorted(word)].push_back(word);
    const std::string all = Sorted(HiddenLetters(board));
    Trios answers;
    for (const std::string& first : fitting[0]) {
        for (const std::string& second : fitting[1]) {
            const std::string two = Sorted(first + second);
            std::string rest;
            std::ranges::set_difference(all, two, std::back_inserter(rest));
            const auto third = thirds.find(rest);
            if (rest.size() != lettersPerWord || third == thirds.end())
                continue;
            for (const std::string& word : third->second)
                answers.push_back({first, second, word});
        }
    }
    return answers;
}

struct Outcome {
    bool won = false;
    int goes = 0;
};

class PersonsGame {
public:
    PersonsGame(const std::filesystem::path& list, const Words& words, const Person& person,
        std::int16_t level, std::uint32_t seed)
        : person_(person)
        , luck_(seed)
        , game_(list, HeadlessPlatform(seed))
    {
        const auto count = static_cast<double>(words.size()) * person.knows;
        known_.assign(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(count));
        game_.view.answers.push_back(Answer::No); // to another game
        Click({"Option1", level});
        Click({"Command1"}); // "OK"
    }

    const Board& TheBoard() const { return game_.board; }

    Outcome Play()
    {
        Outcome outcome;
        while (!game_.Ended() && outcome.goes < mostGoes) {
            BuyAndGuess();
            if (game_.Ended())
                break;
            ++outcome.goes;
            TakeGo();
        }
        outcome.won = std::ranges::any_of(game_.view.calls, [](const std::string& call) {
            return call.find("You win") != std::string::npos
                || call.find("You Still WIN") != std::string::npos;
        });
        return outcome;
    }

private:
    void Click(const Move& move)
    {
        game_.Play({[&move](HeadlessGame& own) { own.Click(move.control, move.index); }});
    }

    // Guesses only what would win, and nothing twice.
    void BuyAndGuess()
    {
        Board& board = game_.board;
        Trios answers = FindAnswers(board, known_);
        while (person_.buys && answers.size() > person_.guesses
            && NumberOf(board.YourScore.Text) >= 2 * letterPrice) {
            const auto box = static_cast<std::int16_t>(luck_() % lettersPerWord + 1);
            Click({hiddenWords[luck_() % 3].ShownControl, box});
            answers = FindAnswers(board, known_);
        }
        std::erase_if(answers, [this](const auto& answer) { return tried_.contains(answer); });
        const bool wouldWin = 2 * NumberOf(board.YourScore.Text) > NumberOf(board.MyScore.Text);
        if (answers.size() > person_.guesses || !wouldWin)
            return;
        for (const auto& answer : answers) {
            tried_.insert(answer);
            for (std::size_t row = 0; row < 3; ++row) {
                for (int k = 1; k <= lettersPerWord; ++k)
                    (board.*hiddenWords[row].Guess)(k).Text = LetterOf(answer[row], k);
            }
            Click({"Command7"}); // "Make A Guess"
            if (game_.Ended())
                return;
        }
    }

    void TakeGo()
    {
        std::vector<Move> moves;
        if (static_cast<double>(luck_())
            < person_.finds * static_cast<double>(std::mt19937::max())) {
            const Words& used = game_.board.List1.Words();
            for (const std::string& word : known_) {
                moves = MovesFor(game_.board, word);
                if (!moves.empty() && std::ranges::find(used, word) == used.end())
                    break;
                moves.clear();
            }
        }
        if (moves.empty())
            moves = {{"Command14"}}; // "Jumble"
        for (const Move& move : moves)
            Click(move);
    }

    const Person& person_;
    Words known_;
    std::mt19937 luck_; // what the chance of the game does not decide
    HeadlessGame game_;
    std::set<std::array<std::string, 3>> tried_;
};

void PrintPeople(const std::filesystem::path& list, const Words& words)
{
    std::puts("| Level | Beginner wins | goes | Common player wins | goes | Expert wins | goes |\n"
              "|--:|--:|--:|--:|--:|--:|--:|");
    for (std::int16_t level = 1; level <= levels; ++level) {
        std::printf("| %d |", level);
        for (const Person& person : people) {
            int wins = 0;
            std::vector<int> goes;
            for (std::uint32_t seed = 1; seed <= games; ++seed) {
                const Outcome outcome = PersonsGame(list, words, person, level, seed).Play();
                wins += outcome.won;
                goes.push_back(outcome.goes);
            }
            std::ranges::nth_element(goes, goes.begin() + games / 2);
            const double part = static_cast<double>(wins) / games;
            std::printf(" %.0f ± %.0f | %d |", 100 * part,
                200 * std::sqrt(part * (1 - part) / games), goes[games / 2]);
        }
        std::puts("");
    }
}

// How much of a game's different words each level looks at, and how many answers there are.
void PrintGames(const std::filesystem::path& list, const Words& words, std::ostream& data)
{
    int repeated = 0;
    int oneAnswer = 0;
    std::array<double, levels> shares{};
    for (std::uint32_t seed = 1; seed <= openings; ++seed) {
        const PersonsGame game(list, words, people[0], 1, seed);
        const Board& board = game.TheBoard();
        std::set<std::string> different;
        for (int k = 1; k <= board.CandidateCount; ++k)
            different.insert(board.Candidates(k));
        repeated += static_cast<int>(different.size()) < fewestCandidates;
        oneAnswer += FindAnswers(board, words).size() == 1;
        for (std::size_t k = 0; k < levels; ++k) {
            const int divisor = k == 0 ? 1 : 2 * (static_cast<int>(k) + 1);
            const double span = std::nearbyint(static_cast<double>(board.CandidateCount) / divisor);
            shares[k] += std::min(1.0, span / static_cast<double>(different.size())) / openings;
        }
    }
    std::printf("Of %u games %d repeat their words, and %d have one answer.\n\n"
                "| Level 1 | Level 2 | Level 3 | Level 4 | Level 5 | Level 6 |\n"
                "|--:|--:|--:|--:|--:|--:|\n|",
        openings, repeated, oneAnswer);
    for (std::size_t k = 0; k < levels; ++k) {
        std::printf(" %.2f |", shares[k]);
        data << k + 1 << " " << shares[k] << "\n";
    }
    std::puts("\n");
}

} // namespace

int main(int argc, char** argv)
try {
    if (argc != 3)
        throw std::invalid_argument("usage: people WORD_LIST DATA");
    Words words;
    LexiconFile file(argv[1]);
    for (file.Open(); !file.AtEnd();)
        words.emplace_back(file.ReadRecord());
    std::ofstream data(argv[2]);
    PrintGames(argv[1], words, data);
    if (!data.flush())
        throw std::runtime_error(std::string("cannot write ") + argv[2]);
    PrintPeople(argv[1], words);
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
