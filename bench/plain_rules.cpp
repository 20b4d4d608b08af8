#include "bench/plain_rules.h"

#include "game/board.h"
#include "game/rows.h"

#include <cmath>
#include <fstream>
#include <utility>

namespace plain {

namespace {

void SortLetters(std::string& letters)
{
    bool exchanged = true;
    while (exchanged) {
        exchanged = false;
        for (std::size_t k = 0; k + 1 < letters.size(); ++k) {
            if (letters[k] > letters[k + 1]) {
                std::swap(letters[k], letters[k + 1]);
                exchanged = true;
            }
        }
    }
}

bool IsUsed(const Board& board, const std::string& word)
{
    bool used = false;
    for (int slot = 0; slot <= board.UsedCount; ++slot) {
        if (board.UsedWords(slot) == word)
            used = true;
    }
    return used;
}

std::string SearchForWord(const Board& board)
{
    std::string row = Spell(board.MyLetters);
    SortLetters(row);
    const int divisor = board.Level > 1 ? board.Level * 2 : 1;
    const auto span = std::lrint(static_cast<double>(board.CandidateCount) / divisor);
    for (int k = 1; k <= span; ++k) {
        std::string sorted = board.Candidates(k);
        SortLetters(sorted);
        const bool used = IsUsed(board, board.Candidates(k));
        if (sorted == row && !used)
            return board.Candidates(k);
    }
    return "";
}

} // namespace

std::pair<int, std::string> CountWords(const std::filesystem::path& list)
{
    std::ifstream file(list);
    int count = 0;
    std::string last;
    for (std::string word; std::getline(file, word);) {
        last = word;
        ++count;
    }
    return {count, last};
}

std::vector<std::string> CollectCandidates(
    const std::filesystem::path& list, int wordCount, const std::string& pool)
{
    std::vector<std::string> candidates;
    std::ifstream file(list);
    for (int read = 0; read < wordCount; ++read) {
        std::string letters = pool;
        std::string word;
        std::getline(file, word);
        int matches = 0;
        for (std::size_t k = 0; k < 6 && k < word.size(); ++k) {
            bool found = false;
            for (std::size_t j = 0; j < letters.size(); ++j) {
                if (!found && letters[j] == word[k]) {
                    letters = letters.substr(0, j) + "*" + letters.substr(j + 1);
                    ++matches;
                    found = true;
                }
            }
        }
        if (matches == 6)
            candidates.push_back(word);
    }
    return candidates;
}

std::string SearchAllExchanges(Board& board)
{
    for (int i = 1; i <= 6; ++i) {
        for (int j = 1; j <= 6; ++j) {
            std::swap(board.MyLetters(i).Text, board.SwapLetters(j).Text);
            std::string word = SearchForWord(board);
            std::swap(board.MyLetters(i).Text, board.SwapLetters(j).Text);
            if (!word.empty())
                return word;
        }
    }
    return "";
}

} // namespace plain
