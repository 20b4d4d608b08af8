#include "ui/news.h"

#include "game/board.h"
#include "game/hidden_words.h"
#include "game/moving_letters.h"
#include "game/numbers.h"
#include "game/rows.h"

namespace {

constexpr const char* noMoreSwaps = "no more swaps this go";

void Add(News& news, const News& more)
{
    news.insert(news.end(), more.begin(), more.end());
}

// With single blanks between its words, and none around them.
std::string Tidied(const std::string& text)
{
    std::string tidied;
    bool ended = false; // a word, by a blank
    for (const char letter : text) {
        const bool blank = letter == ' ';
        if (!blank && !tidied.empty() && ended)
            tidied += ' ';
        if (!blank)
            tidied += letter;
        ended = blank;
    }
    return tidied;
}

int Differing(const LetterRow& one, const LetterRow& other)
{
    int boxes = 0;
    for (int box = 1; box <= lettersPerWord; ++box)
        boxes += one(box).Text != other(box).Text ? 1 : 0;
    return boxes;
}

// "p, empty, a": letter by letter, so that no reader takes them for a word.
std::string Letters(const LetterRow& row, int first, int last, const std::string& forNone)
{
    std::string letters;
    for (int box = first; box <= last; ++box)
        letters += (box > first ? ", " : "") + (row(box).Text.empty() ? forNone : row(box).Text);
    return letters;
}

struct NamedRow {
    LetterRow Board::* Row;
    const char* Name;
    const char* Within;
};

constexpr NamedRow namedRows[] = {
    {&Board::Text1, "Your letters", "your row"},
    {&Board::SwapLetters, "Swap letters", "the swap row"},
    {&Board::MyLetters, "The computer's letters", "the computer's row"},
};

std::string Whole(const NamedRow& row, const Board& board)
{
    return std::string(row.Name) + ": " + Letters(board.*row.Row, 1, lettersPerWord, "empty");
}

News NewRow(const NamedRow& named, const Board& told, const Board& now)
{
    const LetterRow& before = told.*named.Row;
    const LetterRow& row = now.*named.Row;
    const int differing = Differing(before, row);
    if (differing == 0)
        return {};
    int box = 1;
    while (before(box).Text == row(box).Text)
        ++box;
    if (differing == 1 && !row(box).Text.empty() && !before(box).Text.empty())
        return {row(box).Text + " for " + before(box).Text + " in " + named.Within};
    return {Whole(named, now)};
}

// The hand lifts a letter, or puts down the one that it holds; "" when the letters have moved in
// another way.
std::string MoveOfHand(const Board& told, const Board& now)
{
    const bool lifts = told.HeldLetter.empty();
    if (lifts == now.HeldLetter.empty())
        return "";
    const Board& with = lifts ? now : told;
    const std::string& held = with.HeldLetter;
    const int swapped = Differing(told.SwapLetters, now.SwapLetters);
    LetterRow before = told.Text1;
    before(with.HeldIndex).Text = lifts ? "" : held;
    const int moved = Differing(before, now.Text1);
    if (lifts)
        return moved + swapped == 0 ? held + " in your hand" : "";

    const std::string& come = now.Text1(with.HeldIndex).Text;
    if (told.SwapLetters(1).Enabled && !now.SwapLetters(1).Enabled && moved == swapped
        && moved <= 1)
        return come + " for " + held + ", " + noMoreSwaps;
    if (swapped != 0)
        return "";
    if (moved == 0)
        return held + " back in its place";
    if (moved != 2)
        return "";
    return come.empty() ? held + " in the empty box" : held + " and " + come + " change places";
}

// Letters are lifted to be laid out, or placed: "k, 3 of 6". "" when that is not what happens.
std::string LayingOut(const Board& told, const Board& now)
{
    const bool goesOn = HoldsLetters(told.Text2);
    if (!goesOn && !HoldsLetters(now.Text2) && now.LayOutNext == told.LayOutNext)
        return "";
    const int first = goesOn ? told.LayOutNext : 1;
    const int last = now.LayOutNext - 1;
    if (!goesOn && last == 0)
        return "All six letters lifted, to be laid out";
    if (HoldsLetters(now.Text2) && last == told.LayOutNext - 2)
        return told.Text1(last + 1).Text + " taken back, " + std::to_string(last) + " of 6";
    if (last < first)
        return "";
    const std::string placed
        = Letters(now.Text1, first, last, "empty") + ", " + std::to_string(last) + " of 6";
    return last < lettersPerWord ? placed : placed + ". Your row: " + Spell(now.Text1);
}

News NewRows(const Board& told, const Board& now)
{
    News news;
    for (const NamedRow& row : namedRows)
        Add(news, NewRow(row, told, now));
    return news;
}

News Moves(const Board& told, const Board& now)
{
    if (const std::string hand = MoveOfHand(told, now); !hand.empty())
        return {hand};
    if (const std::string laid = LayingOut(told, now); !laid.empty())
        return {laid};
    News moves = NewRows(told, now);
    if (!now.HeldLetter.empty() && now.HeldLetter != told.HeldLetter)
        moves.push_back(now.HeldLetter + " in your hand");
    const bool swapsEnd = told.SwapLetters(1).Enabled && !now.SwapLetters(1).Enabled;
    if (RedLetterTurnsToo(now) && !RedLetterTurnsToo(told))
        moves.push_back("Red letter " + now.SwapLetters(1).Text + " turns with yours"
            + (swapsEnd ? std::string(", ") + noMoreSwaps : ""));
    else if (swapsEnd)
        moves.emplace_back(noMoreSwaps);
    return moves;
}

// What is shown of the hidden words and was not, before a game has begun: told is nullptr then.
News NewLetters(const Board* told, const Board& now)
{
    News news;
    for (const HiddenWord& word : hiddenWords) {
        const LetterRow& row = now.*word.Shown;
        const LetterRow before = told == nullptr ? LetterRow() : told->*word.Shown;
        const int found = Differing(before, row);
        if (found == 0)
            continue;
        std::string letters = "Hidden word " + std::to_string(word.Number);
        int box = 1;
        while (before(box).Text == row(box).Text)
            ++box;
        if (found == 1)
            letters += ", letter " + std::to_string(box) + ": " + row(box).Text;
        if (!HasEmptyBox(row))
            letters += ": " + Spell(row);
        else if (found > 1)
            letters += ": " + Letters(row, 1, lettersPerWord, "blank");
        news.push_back(letters);
    }
    return news;
}

// True when a letter of the hidden words that was known is another one now.
bool Replaced(const Board& told, const Board& now)
{
    for (const HiddenWord& word : hiddenWords) {
        for (int box = 1; box <= lettersPerWord; ++box) {
            const std::string& known = (told.*word.Shown)(box).Text;
            if (!known.empty() && known != (now.*word.Shown)(box).Text)
                return true;
        }
    }
    return false;
}

} // namespace

bool BeginsGame(const Board& before, const Board& now)
{
    if (now.Frame1.Visible)
        return false;
    return before.Frame1.Visible || !before.Frame2.Visible || now.Caption != before.Caption
        || Replaced(before, now);
}

News PlayedSince(const Board& before, const Board& now, const std::string& messages)
{
    const std::vector<std::string>& words = now.List1.Words();
    if (words.size() <= before.List1.Words().size())
        return {};
    const bool yours = now.YourScore.Text != before.YourScore.Text;
    const auto points = [&](NumberBox Board::* score) {
        return NumberOf((now.*score).Text) - NumberOf((before.*score).Text);
    };
    std::string played = yours ? "You played" : "The computer played";
    if (messages.find(words.back()) == std::string::npos)
        played += " " + words.back();
    // Where the bonus has not risen yet the computer claims the game, and its score is another.
    if (now.Text9.Text != before.Text9.Text)
        played
            += " for " + PlainForm(points(yours ? &Board::YourScore : &Board::MyScore)) + " points";
    return {played};
}

std::string ScoresOf(const Board& board)
{
    return "You have " + board.YourScore.Text + " points, the computer " + board.MyScore.Text;
}

std::string ScoresAndBonusOf(const Board& board)
{
    return ScoresOf(board) + ". Bonus of the next word: " + Tidied(board.Text9.Text);
}

std::string AllRowsOf(const Board& board)
{
    std::string text;
    for (const NamedRow& row : namedRows)
        text += (text.empty() ? "" : ". ") + Whole(row, board);
    return text;
}

std::string HiddenWordsOf(const Board& board)
{
    std::string text;
    for (const HiddenWord& word : hiddenWords)
        text += (text.empty() ? "Hidden word " : ". Hidden word ") + std::to_string(word.Number)
            + ": " + Letters(board.*word.Shown, 1, lettersPerWord, "blank");
    return text;
}

News NewsSince(const Board& told, const Board& now, bool afterGo)
{
    if (now.Frame1.Visible && now.Level != told.Level)
        return {"Level " + std::to_string(now.Level) + " chosen"};
    if (!now.Frame2.Visible)
        return {};
    if (now.Frame1.Visible && !told.Frame1.Visible)
        return NewLetters(&told, now);
    News news;
    const bool begins = BeginsGame(told, now);
    const bool newGo = afterGo || begins;
    if (now.Caption != told.Caption)
        news.push_back(Tidied(now.Caption));
    if (!newGo)
        Add(news, Moves(told, now));
    if (!begins)
        Add(news, NewLetters(&told, now));
    if (newGo && now.Label5.Visible)
        news.emplace_back("Your go");
    if (now.YourScore.Text != told.YourScore.Text || now.MyScore.Text != told.MyScore.Text)
        news.push_back(ScoresOf(now));
    if (now.Text9.Text != told.Text9.Text)
        news.push_back("Bonus of the next word: " + Tidied(now.Text9.Text));
    if (newGo)
        Add(news, NewRows(told, now));
    if (begins)
        Add(news, NewLetters(nullptr, now));
    return news;
}
