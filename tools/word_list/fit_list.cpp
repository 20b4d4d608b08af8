#include "tools/word_list/fit_list.h"

#include <algorithm>
#include <string_view>
#include <tuple>
#include <utility>

namespace {

// A list far too long has more games that are too large than can be kept. Then as many are taken at
// a time as find so many candidates together, if they find the whole list.
constexpr std::size_t mostFound = 9'000'000;

std::vector<LargeGame> FindTooLarge(const KnownWords& list, std::size_t mostCandidates)
{
    std::vector<LargeGame> games;
    FindLargeGames(WordsOf(list), mostCandidates, [&](LargeGame game) {
        games.push_back(std::move(game));
        return games.size() < mostFound / list.size() ? mostCandidates : list.size();
    });
    return games;
}

// What becomes of the games that are too large, as words leave.
class Shrinking {
public:
    Shrinking(const KnownWords& list, std::size_t mostCandidates)
        : list_(list)
        , mostCandidates_(mostCandidates)
        , games_(FindTooLarge(list, mostCandidates))
        , finders_(list.size())
    {
        for (std::size_t game = 0; game < games_.size(); ++game) {
            candidates_.push_back(games_[game].candidates.size());
            for (const std::size_t word : games_[game].candidates)
                finders_[word].push_back(game);
        }
        for (const std::vector<std::size_t>& finders : finders_)
            tooLarge_.push_back(std::ssize(finders));
    }

    // The places of the words that have to leave, in order.
    std::vector<std::size_t> Run()
    {
        std::vector<std::size_t> leaving;
        for (std::size_t left = games_.size(); left > 0;) {
            const std::size_t next = NextToLeave();
            leaving.push_back(next);
            for (const std::size_t game : finders_[next]) {
                if (--candidates_[game] != mostCandidates_)
                    continue;
                --left;
                for (const std::size_t word : games_[game].candidates)
                    --tooLarge_[word];
            }
            tooLarge_[next] = 0; // or less, from now on
        }
        return leaving;
    }

private:
    std::size_t NextToLeave() const
    {
        const auto rank = [this](std::size_t word) {
            return std::tuple(tooLarge_[word] <= 0, -list_[word].rarity, -tooLarge_[word],
                std::string_view(list_[word].word));
        };
        std::size_t next = 0;
        for (std::size_t word = 1; word < list_.size(); ++word) {
            if (rank(word) < rank(next))
                next = word;
        }
        return next;
    }

    const KnownWords& list_;
    std::size_t mostCandidates_;
    std::vector<LargeGame> games_;
    std::vector<std::size_t> candidates_;           // left to each game
    std::vector<std::vector<std::size_t>> finders_; // of each word, the games
    std::vector<std::ptrdiff_t> tooLarge_;          // of each word, how many of them still are
};

} // namespace

Words WordsOf(const KnownWords& list)
{
    Words words;
    std::ranges::transform(list, std::back_inserter(words), &KnownWord::word);
    return words;
}

KnownWords LeaveWords(KnownWords& list, std::size_t mostCandidates)
{
    KnownWords left;
    for (;;) {
        const std::vector<std::size_t> leaving = Shrinking(list, mostCandidates).Run();
        if (leaving.empty())
            return left;
        for (const std::size_t word : leaving)
            left.push_back(std::exchange(list[word], {}));
        std::erase_if(list, [](const KnownWord& word) { return word.word.empty(); });
    }
}
