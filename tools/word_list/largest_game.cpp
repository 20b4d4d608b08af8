#include "tools/word_list/largest_game.h"

#include "lexicon/letters.h"
#include "lexicon/limits.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <numeric>
#include <string_view>
#include <utility>

namespace {

constexpr int hiddenLetters = 3 * lettersPerWord;

using Letter = std::size_t; // letters are numbered from 0
using WordLetters = std::array<Letter, lettersPerWord>;
using LetterCounts = std::vector<int>;

std::vector<WordLetters> NumberLetters(const Words& words)
{
    std::map<char32_t, Letter> numbers;
    std::vector<WordLetters> all;
    for (std::string_view word : words) {
        for (Letter& letter : all.emplace_back())
            letter = numbers.try_emplace(TakeFirstLetter(word), numbers.size()).first->second;
    }
    return all;
}

// Looks for three words with three first letters that together hold all the letters that are
// missing, and of none more than there is room for.
class TrioSearch {
public:
    using Trio = std::vector<const WordLetters*>;

    explicit TrioSearch(const std::vector<WordLetters>& words)
        : words_(words)
    {
        for (const WordLetters& word : words) {
            WordLetters sorted = word;
            std::ranges::sort(sorted);
            anagrams_[sorted].push_back(&word);
        }
    }

    // Fewer than three words when there are no such three.
    Trio Find(LetterCounts missing, LetterCounts room)
    {
        missing_ = std::move(missing);
        room_ = std::move(room);
        anyLetters_ = hiddenLetters - std::accumulate(missing_.begin(), missing_.end(), 0);
        for (Letter letter = 0; letter < room_.size(); ++letter)
            room_[letter] = std::min(room_[letter], missing_[letter] + anyLetters_);
        fitting_.clear();
        holders_.assign(room_.size(), {});
        for (const WordLetters& word : words_) {
            if (!Take(word))
                continue;
            PutBack(word.begin(), word.end());
            fitting_.push_back(&word);
            for (const Letter letter : word) {
                if (holders_[letter].empty() || holders_[letter].back() != &word)
                    holders_[letter].push_back(&word);
            }
        }
        trio_.clear();
        Complete();
        return trio_;
    }

private:
    bool Complete()
    {
        if (trio_.size() == 3)
            return std::ranges::all_of(missing_, [](int count) { return count <= 0; });
        for (const WordLetters* word : NextWords()) {
            const auto startsAlike
                = [word](const WordLetters* other) { return other->front() == word->front(); };
            if (std::ranges::any_of(trio_, startsAlike) || !Take(*word))
                continue;
            trio_.push_back(word);
            if (Complete())
                return true;
            trio_.pop_back();
            PutBack(word->begin(), word->end());
        }
        return false;
    }

    // One of these has to be next: a word of just the letters that are missing, if it is the last,
    // and else one with the missing letter that the fewest hold.
    const Trio& NextWords() const
    {
        if (anyLetters_ == 0 && trio_.size() == 2) {
            WordLetters last{};
            auto* end = last.begin();
            for (Letter letter = 0; letter < missing_.size(); ++letter)
                end = std::fill_n(end, missing_[letter], letter);
            const auto words = anagrams_.find(last);
            return words == anagrams_.end() ? none_ : words->second;
        }
        const Trio* next = &fitting_;
        for (Letter letter = 0; letter < missing_.size(); ++letter) {
            if (missing_[letter] > 0 && holders_[letter].size() < next->size())
                next = &holders_[letter];
        }
        return *next;
    }

    // False, and nothing is taken, when there is no room for the word.
    bool Take(const WordLetters& word)
    {
        for (const Letter& letter : word) {
            if (room_[letter] == 0) {
                PutBack(word.begin(), &letter);
                return false;
            }
            --room_[letter];
            --missing_[letter];
        }
        return true;
    }

    void PutBack(const Letter* begin, const Letter* end)
    {
        for (; begin != end; ++begin) {
            ++room_[*begin];
            ++missing_[*begin];
        }
    }

    const std::vector<WordLetters>& words_;
    std::map<WordLetters, Trio> anagrams_; // by their letters in order
    const Trio none_;
    LetterCounts missing_;
    LetterCounts room_;
    int anyLetters_ = 0; // of the 18, those that may be any that there is room for
    Trio fitting_;
    std::vector<Trio> holders_; // of each letter, among those that fit
    Trio trio_;
};

// Gathers the 18 letters one by one: one more of some letter is taken or, on the way back, none.
// Turns back where the candidates can no longer become more than the bar.
class LargeGameSearch {
public:
    LargeGameSearch(
        const Words& words, std::size_t bar, const std::function<std::size_t(LargeGame)>& found)
        : words_(words)
        , bar_(bar)
        , found_(found)
        , letters_(NumberLetters(words))
        , trios_(letters_)
    {
    }

    void Run()
    {
        std::vector<WaitingWord> waiting;
        for (const WordLetters& word : letters_) {
            WaitingWord& units = waiting.emplace_back();
            for (const Letter letter : word) {
                const auto before = std::count(word.begin(), word.begin() + units.count, letter);
                units.units[units.count] = UnitOf(letter, before);
                ++units.count;
                taken_.resize(std::max(taken_.size(), letter + 1));
            }
        }
        room_.assign(taken_.size(), hiddenLetters);
        Decide(waiting, 0, hiddenLetters);
    }

private:
    // The first, the second ... of one letter are units of their own: "banana" waits for the first
    // "a", the second and the third. No word waits for a seventh.
    using Unit = std::uint16_t;
    static constexpr std::size_t unitsPerLetter = lettersPerWord + 1;

    struct WaitingWord {
        std::array<Unit, lettersPerWord> units;
        std::uint8_t count = 0;
    };

    static Unit UnitOf(Letter letter, std::ptrdiff_t before)
    {
        return static_cast<Unit>(letter * unitsPerLetter + static_cast<std::size_t>(before));
    }

    // Of the words that wait none waits for more units than there are places left.
    void Decide(const std::vector<WaitingWord>& waiting, std::size_t complete, int places)
    {
        const std::vector<std::size_t> shares = Shares(waiting);
        if (complete + MostToComplete(shares, places) <= bar_)
            return;
        if (waiting.empty()) {
            Offer();
            return;
        }
        const Letter letter = NextLetter(shares);
        const Unit unit = UnitOf(letter, taken_[letter]);
        std::vector<WaitingWord> with;
        std::vector<WaitingWord> without;
        std::size_t completeWith = complete;
        for (WaitingWord word : waiting) {
            auto* const end = word.units.begin() + word.count;
            auto* const place = std::find(word.units.begin(), end, unit);
            if (place == end)
                without.push_back(word);
            else
                *place = word.units[--word.count];
            if (word.count == 0)
                ++completeWith;
            else if (word.count < places)
                with.push_back(word);
        }
        ++taken_[letter];
        Decide(with, completeWith, places - 1);
        --taken_[letter];
        const int room = std::exchange(room_[letter], taken_[letter]);
        Decide(without, complete, places);
        room_[letter] = room;
    }

    static constexpr std::size_t wholeWord = 60; // can be shared evenly among one to six

    // Each word is shared out among the units that it waits for.
    std::vector<std::size_t> Shares(const std::vector<WaitingWord>& waiting) const
    {
        std::vector<std::size_t> shares(taken_.size() * unitsPerLetter);
        for (const WaitingWord& word : waiting) {
            for (std::size_t k = 0; k < word.count; ++k)
                shares[word.units[k]] += wholeWord / word.count;
        }
        return shares;
    }

    // So many units complete no more words than the largest of their shares add up to.
    static std::size_t MostToComplete(std::vector<std::size_t> shares, int places)
    {
        const auto end = shares.begin() + std::min<std::ptrdiff_t>(places, std::ssize(shares));
        std::ranges::nth_element(shares, end, std::greater<>{});
        return std::accumulate(shares.begin(), end, std::size_t{0}) / wholeWord;
    }

    // The one whose next unit has the largest share.
    Letter NextLetter(const std::vector<std::size_t>& shares) const
    {
        Letter next = 0;
        for (Letter letter = 1; letter < taken_.size(); ++letter) {
            if (shares[UnitOf(letter, taken_[letter])] > shares[UnitOf(next, taken_[next])])
                next = letter;
        }
        return next;
    }

    // No letter that is still open makes a difference to the candidates.
    void Offer()
    {
        const TrioSearch::Trio trio = trios_.Find(taken_, room_);
        if (trio.size() < 3)
            return;
        LargeGame game;
        for (std::size_t k = 0; k < trio.size(); ++k)
            game.hiddenWords[k] = words_[static_cast<std::size_t>(trio[k] - letters_.data())];
        for (std::size_t k = 0; k < letters_.size(); ++k) {
            const auto isTaken = [&](Letter letter) {
                return std::ranges::count(letters_[k], letter) <= taken_[letter];
            };
            if (std::ranges::all_of(letters_[k], isTaken))
                game.candidates.push_back(k);
        }
        bar_ = found_(std::move(game));
    }

    const Words& words_;
    std::size_t bar_;
    const std::function<std::size_t(LargeGame)>& found_;
    const std::vector<WordLetters> letters_;
    TrioSearch trios_;
    LetterCounts taken_;
    LetterCounts room_; // as many as are taken, where no more are to be
};

} // namespace

void FindLargeGames(
    const Words& words, std::size_t bar, const std::function<std::size_t(LargeGame)>& found)
{
    LargeGameSearch(words, bar, found).Run();
}

std::optional<LargeGame> FindLargestGame(const Words& words, std::size_t enough)
{
    std::optional<LargeGame> largest;
    FindLargeGames(words, 0, [&](LargeGame game) {
        largest = std::move(game);
        return largest->candidates.size() < enough ? largest->candidates.size() : words.size();
    });
    return largest;
}
