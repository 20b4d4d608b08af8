#include "bench/scenes.h"

#include "bench/plain_rules.h"
#include "game/scoring.h"
#include "lexicon/lexicon_file.h"

#include <cstdlib>
#include <fstream>
#include <utility>

namespace {

constexpr int mostRecords = 32767;
constexpr long long wordsOfFiveLetters = 26LL * 26 * 26 * 26 * 26;
const std::string hiddenWords[] = {"planet", "garden", "simple"};
const std::string rowOfWorstGo = "aeinst";
const std::string swapRowOfWorstGo = "eorlda";

void SetRow(LetterRow& row, const std::string& letters)
{
    for (int i = 1; i <= 6; ++i)
        row(i).Text = letters[static_cast<std::size_t>(i) - 1];
}

} // namespace

const std::filesystem::path shippedList = QUORVEL_WORD_LIST;

MadeList::MadeList(const std::vector<std::string>& words)
{
    static int made = 0;
    path_ = std::filesystem::temp_directory_path()
        / ("quorvel2-bench-" + std::to_string(std::rand()) + std::to_string(++made) + ".txt");
    std::ofstream file(path_);
    for (const std::string& word : words)
        file << word << '\n';
}

MadeList::~MadeList()
{
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

std::vector<std::string> MadeWords(int count)
{
    std::vector<std::string> words;
    for (int number = 0; number < count; ++number) {
        std::string word = "q     ";
        // The step shares no factor with 26^5, so no word comes twice.
        int digits = static_cast<int>(number * 7368787LL % wordsOfFiveLetters);
        for (std::size_t k = 1; k < word.size(); ++k, digits /= 26)
            word[k] = static_cast<char>('a' + digits % 26);
        words.push_back(word);
    }
    return words;
}

std::vector<std::string> WorstStartWords()
{
    // All of their letters are there, and only the last one is not there often enough.
    const std::string last = "gdrti";
    const std::string first = "aeelnnmpps";
    std::vector<std::string> words;
    for (std::size_t number = 0; words.size() < mostRecords - 4; ++number) {
        std::string word(6, last[number % last.size()]);
        for (std::size_t k = 0; k < 4; ++k)
            word[k] = first[(number / 7 + k * (1 + number % 2)) % first.size()];
        words.push_back(word);
    }
    words.insert(words.end(), std::begin(hiddenWords), std::end(hiddenWords));
    words.emplace_back("zzzzzz");
    return words;
}

void QuietView::EndProgram()
{
    std::abort();
}

float WorstStartChance::DrawRandom()
{
    ++draws_;
    if (draws_ > 3)
        return 0;
    // The picks are at positions 32764, 32765 and 32766.
    return (static_cast<float>(mostRecords - 4 + draws_) + 0.5F) / mostRecords;
}

Scene::Scene(std::filesystem::path list, std::unique_ptr<Platform> chanceOfScene)
    : chance(std::move(chanceOfScene))
    , game{board, view, *chance, std::move(list)}
{
    board.Level = 1;
}

std::unique_ptr<Scene> WorstGo()
{
    auto scene = std::make_unique<Scene>(shippedList, std::make_unique<SameGameAgain>(1));
    Board& board = scene->board;
    LexiconFile lexicon(shippedList);
    lexicon.Open();
    for (board.CandidateCount = 0; board.CandidateCount < 2000;)
        board.Candidates(++board.CandidateCount) = lexicon.ReadRecord();
    TakeBackGo(*scene);
    for (std::string word; !(word = plain::SearchAllExchanges(board)).empty();)
        AddUsedWord(board, word);
    for (int k = 2000; board.UsedCount < 250; --k)
        AddUsedWord(board, board.Candidates(k));
    return scene;
}

void TakeBackGo(Scene& worstGo)
{
    SetRow(worstGo.board.MyLetters, rowOfWorstGo);
    SetRow(worstGo.board.SwapLetters, swapRowOfWorstGo);
    worstGo.board.FruitlessSwaps = 0;
}
