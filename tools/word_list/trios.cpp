#include "tools/word_list/trios.h"

#include "tools/word_list/letter_set_bound.h"

#include <algorithm>
#include <atomic>
#include <functional>
#include <limits>
#include <mutex>
#include <numeric>
#include <random>
#include <thread>

namespace {

constexpr int startsOfAClimb = 8;

LetterCounts LettersOf(const std::vector<LetterGroup>& groups, const GroupTrio& places)
{
    return groups[places[0]].letters + groups[places[1]].letters + groups[places[2]].letters;
}

// The largest trios so far. Trios are offered from several threads.
class Ranking {
public:
    Ranking(const std::vector<LetterGroup>& groups, std::size_t howMany)
        : groups_(groups)
        , howMany_(howMany)
    {
    }

    // What a trio has to make more than to enter.
    int Bar() const { return bar_.load(std::memory_order_relaxed); }

    void Offer(const GroupTrio& places, const LetterCounts& letters, int makes)
    {
        if (makes <= Bar())
            return;
        std::optional<Trio> trio = MakeTrio(groups_, places);
        if (!trio)
            return;
        trio->makes = makes;
        const std::lock_guard lock(mutex_);
        const auto sameLetters
            = [&](const Trio& other) { return other.letters.atLeast == letters.atLeast; };
        if (std::any_of(trios_.begin(), trios_.end(), sameLetters))
            return;
        const auto larger = [&](const Trio& other) { return other.makes < makes; };
        trios_.insert(std::find_if(trios_.begin(), trios_.end(), larger), std::move(*trio));
        if (trios_.size() > howMany_)
            trios_.pop_back();
        if (trios_.size() == howMany_)
            bar_.store(trios_.back().makes, std::memory_order_relaxed);
    }

    std::vector<Trio> Take() { return std::move(trios_); }

private:
    const std::vector<LetterGroup>& groups_;
    std::size_t howMany_;
    std::mutex mutex_;
    std::vector<Trio> trios_;
    std::atomic<int> bar_ = 0;
};

// A trio to start from; the list has words with three different first letters.
GroupTrio DrawTrio(const std::vector<LetterGroup>& groups, std::mt19937& draw)
{
    GroupTrio places;
    std::string firstLetters;
    for (std::size_t& place : places) {
        const auto isNew = [&](const std::string& word) {
            return firstLetters.find(word.front()) == std::string::npos;
        };
        for (place = draw() % groups.size();; place = (place + 1) % groups.size()) {
            const std::vector<std::string>& words = groups[place].words;
            const auto word = std::find_if(words.begin(), words.end(), isNew);
            if (word != words.end()) {
                firstLetters += word->front();
                break;
            }
        }
    }
    return places;
}

// Walks from a random trio, one word at a time, as long as `isBetter` likes another trio more.
// Every trio on the way is shown to `visit`, with its letters and what it makes.
template <typename IsBetter, typename Visit>
void Climb(
    const std::vector<LetterGroup>& groups, std::mt19937& draw, IsBetter isBetter, Visit visit)
{
    GroupTrio best = DrawTrio(groups, draw);
    int bestMakes = CountMade(groups, LettersOf(groups, best));
    for (bool moved = true; moved;) {
        moved = false;
        for (std::size_t slot = 0; slot < best.size(); ++slot) {
            GroupTrio places = best;
            for (places[slot] = 0; places[slot] < groups.size(); ++places[slot]) {
                if (!MakeTrio(groups, places))
                    continue;
                const LetterCounts letters = LettersOf(groups, places);
                const int makes = CountMade(groups, letters);
                visit(places, letters, makes);
                if (isBetter(makes, bestMakes)) {
                    best = places;
                    bestMakes = makes;
                    moved = true;
                }
            }
        }
    }
}

// The search over all trios. Each trio is looked at once, with its groups in the order of the
// search: the first group is the one with the fewest partners left, so that little is left to try.
class LargestSearch {
public:
    LargestSearch(const std::vector<LetterGroup>& groups, Ranking& ranking)
        : groups_(groups)
        , bound_(groups)
        , ranking_(ranking)
        , order_(groups.size())
    {
        for (const LetterGroup& group : groups)
            sets_.push_back(bound_.CommonSet(group.letters));
        std::iota(order_.begin(), order_.end(), 0);
        const std::vector<std::size_t> partners = CountPartners();
        std::stable_sort(order_.begin(), order_.end(),
            [&](std::size_t left, std::size_t right) { return partners[left] < partners[right]; });
    }

    void Run()
    {
        std::vector<std::thread> threads;
        for (unsigned k = 0; k < std::max(1U, std::thread::hardware_concurrency()); ++k)
            threads.emplace_back([this] { TakeFirstGroups(); });
        for (std::thread& thread : threads)
            thread.join();
    }

private:
    bool CanBePair(std::size_t left, std::size_t right) const
    {
        return bound_.ForTwoWords(sets_[left] | sets_[right]) > ranking_.Bar();
    }

    std::vector<std::size_t> CountPartners() const
    {
        std::vector<std::size_t> partners(groups_.size());
        for (std::size_t left = 0; left < groups_.size(); ++left) {
            for (std::size_t right = left; right < groups_.size(); ++right) {
                if (CanBePair(left, right)) {
                    ++partners[left];
                    ++partners[right];
                }
            }
        }
        return partners;
    }

    void TakeFirstGroups()
    {
        for (std::size_t k = next_++; k < order_.size(); k = next_++)
            TryAllWith(k);
    }

    void TryAllWith(std::size_t k)
    {
        const std::size_t first = order_[k];
        std::vector<std::size_t> partners;
        std::vector<std::uint32_t> sets; // beside each other, for the innermost loop
        for (; k < order_.size(); ++k) {
            if (CanBePair(first, order_[k])) {
                partners.push_back(order_[k]);
                sets.push_back(sets_[order_[k]]);
            }
        }
        for (std::size_t i = 0; i < partners.size(); ++i) {
            if (!CanBePair(first, partners[i]))
                continue;
            const std::uint32_t pair = sets_[first] | sets[i];
            for (std::size_t j = i; j < partners.size(); ++j) {
                if (bound_.ForThreeWords(pair | sets[j]) > ranking_.Bar())
                    Try({first, partners[i], partners[j]});
            }
        }
    }

    void Try(const GroupTrio& places)
    {
        const LetterCounts letters = LettersOf(groups_, places);
        if (bound_.ForLetters(letters) > ranking_.Bar())
            ranking_.Offer(places, letters, CountMade(groups_, letters));
    }

    const std::vector<LetterGroup>& groups_;
    LetterSetBound bound_;
    Ranking& ranking_;
    std::vector<std::size_t> order_;
    std::vector<std::uint32_t> sets_;
    std::atomic<std::size_t> next_ = 0;
};

} // namespace

std::optional<Trio> MakeTrio(const std::vector<LetterGroup>& groups, const GroupTrio& places)
{
    for (const std::string& first : groups[places[0]].words) {
        for (const std::string& second : groups[places[1]].words) {
            if (first.front() == second.front())
                continue;
            for (const std::string& third : groups[places[2]].words) {
                if (third.front() != first.front() && third.front() != second.front())
                    return Trio{{first, second, third}, LettersOf(groups, places)};
            }
        }
    }
    return std::nullopt;
}

std::vector<Trio> LargestTrios(const std::vector<LetterGroup>& groups, std::size_t howMany)
{
    Ranking ranking(groups, howMany);
    std::mt19937 draw(1);
    for (int start = 0; start < startsOfAClimb; ++start) {
        Climb(groups, draw, std::greater<int>{},
            [&](const GroupTrio& places, const LetterCounts& letters, int makes) {
                ranking.Offer(places, letters, makes);
            });
    }
    LargestSearch(groups, ranking).Run();
    return ranking.Take();
}

Trio SmallTrio(const std::vector<LetterGroup>& groups)
{
    Trio smallest;
    smallest.makes = std::numeric_limits<int>::max();
    std::mt19937 draw(1);
    for (int start = 0; start < startsOfAClimb; ++start) {
        Climb(groups, draw, std::less<int>{},
            [&](const GroupTrio& places, const LetterCounts&, int makes) {
                if (makes >= smallest.makes)
                    return;
                smallest = *MakeTrio(groups, places);
                smallest.makes = makes;
            });
    }
    return smallest;
}
