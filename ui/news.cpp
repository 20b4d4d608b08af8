#include "ui/news.h"

#include "game/moving_letters.h"
#include "game/numbers.h"
#include "game/rows.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto noMoreSwaps = ", no more swaps this go"_L1;

QString Text(const std::string& text)
{
    return QString::fromStdString(text);
}

int Differing(const LetterRow& one, const LetterRow& other)
{
    int boxes = 0;
    for (int box = 1; box <= lettersPerWord; ++box)
        boxes += one(box).Text != other(box).Text ? 1 : 0;
    return boxes;
}

// "p, empty, a": letter by letter, so that no reader takes them for a word.
QString Letters(const LetterRow& row, int first, int last, const QString& forNone)
{
    QStringList letters;
    for (int box = first; box <= last; ++box)
        letters += row(box).Text.empty() ? forNone : Text(row(box).Text);
    return letters.join(u", "_s);
}

QStringList NewRow(const QString& name, const LetterRow& told, const LetterRow& now)
{
    if (Differing(told, now) == 0)
        return {};
    return {name + u": "_s + Letters(now, 1, lettersPerWord, u"empty"_s)};
}

// The hand lifts a letter, or puts down the one that it holds; "" when the letters have moved in
// another way.
QString MoveOfHand(const Heard& told, const Heard& now)
{
    const bool lifts = told.HeldLetter.empty();
    if (lifts == now.HeldLetter.empty())
        return {};
    const Heard& with = lifts ? now : told;
    const QString held = Text(with.HeldLetter);
    const int swapped = Differing(told.SwapLetters, now.SwapLetters);
    LetterRow before = told.Text1;
    before(with.HeldIndex).Text = lifts ? "" : with.HeldLetter;
    const int moved = Differing(before, now.Text1);
    if (lifts)
        return moved + swapped == 0 ? held + u" in your hand"_s : QString();

    const QString come = Text(now.Text1(with.HeldIndex).Text);
    if (told.CanSwap && !now.CanSwap && moved == swapped && moved <= 1)
        return come + u" for "_s + held + noMoreSwaps;
    if (swapped != 0)
        return {};
    if (moved == 0)
        return held + u" back in its place"_s;
    return moved == 2 ? held + u" and "_s + come + u" change places"_s : QString();
}

// Letters are lifted to be laid out, or placed: "k, 3 of 6". "" when that is not what happens.
QString LayingOut(const Heard& told, const Heard& now)
{
    const bool goesOn = HoldsLetters(told.Text2);
    if (!goesOn && !HoldsLetters(now.Text2) && now.LayOutNext == told.LayOutNext)
        return {};
    const int first = goesOn ? told.LayOutNext : 1;
    const int last = now.LayOutNext - 1;
    if (!goesOn && last == 0)
        return u"All six letters lifted, to be laid out"_s;
    if (last < first)
        return {};
    const QString placed = Letters(now.Text1, first, last, u"empty"_s) + u", %1 of 6"_s.arg(last);
    return last < lettersPerWord ? placed : placed + u". Your row: "_s + Text(Spell(now.Text1));
}

QStringList NewRows(const Heard& told, const Heard& now)
{
    return NewRow(u"Your letters"_s, told.Text1, now.Text1)
        + NewRow(u"Swap letters"_s, told.SwapLetters, now.SwapLetters)
        + NewRow(u"The computer's letters"_s, told.MyLetters, now.MyLetters);
}

QStringList Moves(const Heard& told, const Heard& now)
{
    if (const QString hand = MoveOfHand(told, now); !hand.isEmpty())
        return {hand};
    if (const QString laid = LayingOut(told, now); !laid.isEmpty())
        return {laid};
    QStringList moves = NewRows(told, now);
    if (!now.HeldLetter.empty() && now.HeldLetter != told.HeldLetter)
        moves += Text(now.HeldLetter) + u" in your hand"_s;
    if (now.RedLetterTurns && !told.RedLetterTurns)
        moves += u"Red letter "_s + Text(now.SwapLetters(1).Text) + u" turns with yours"_s
            + (told.CanSwap ? noMoreSwaps : ""_L1);
    else if (told.CanSwap && !now.CanSwap)
        moves += noMoreSwaps.sliced(2);
    return moves;
}

QStringList NewLetters(const Heard& told, const Heard& now)
{
    QStringList news;
    for (int word = 1; word <= 3; ++word) {
        const LetterRow& row = now.Words(word);
        const int found = Differing(told.Words(word), row);
        if (found == 0)
            continue;
        QString letters = u"Hidden word %1"_s.arg(word);
        int box = 1;
        while (told.Words(word)(box).Text == row(box).Text)
            ++box;
        if (found == 1)
            letters += u", letter %1: "_s.arg(box) + Text(row(box).Text);
        if (!HasEmptyBox(row))
            letters += u": "_s + Text(Spell(row));
        else if (found > 1)
            letters += u": "_s + Letters(row, 1, lettersPerWord, u"blank"_s);
        news += letters;
    }
    return news;
}

// True when a letter of the hidden words that was known is another one now.
bool Replaced(const Heard& told, const Heard& now)
{
    for (int word = 1; word <= 3; ++word) {
        for (int box = 1; box <= lettersPerWord; ++box) {
            const std::string& known = told.Words(word)(box).Text;
            if (!known.empty() && known != now.Words(word)(box).Text)
                return true;
        }
    }
    return false;
}

// True when a game has begun: from the level panel, or right after the last one.
bool Begins(const Heard& told, const Heard& now)
{
    if (now.LevelPanel)
        return false;
    return told.LevelPanel || !told.GameFrames || now.Caption != told.Caption
        || Replaced(told, now);
}

} // namespace

Heard Hear(const Board& board)
{
    Heard heard;
    heard.MyLetters = board.MyLetters;
    heard.Text1 = board.Text1;
    heard.SwapLetters = board.SwapLetters;
    heard.Text2 = board.Text2;
    heard.Words(1) = board.Word1;
    heard.Words(2) = board.Word2;
    heard.Words(3) = board.Word3;
    heard.HeldLetter = board.HeldLetter;
    heard.HeldIndex = board.HeldIndex;
    heard.LayOutNext = board.LayOutNext;
    heard.Level = board.Level;
    heard.YourScore = board.YourScore.Text;
    heard.MyScore = board.MyScore.Text;
    heard.Bonus = board.Text9.Text;
    heard.Caption = board.Caption;
    heard.Played = board.List1.Words().size();
    heard.CanSwap = board.SwapLetters(1).Enabled;
    heard.RedLetterTurns = RedLetterTurnsToo(board);
    heard.YourGo = board.Label5.Visible;
    heard.LevelPanel = board.Frame1.Visible;
    heard.GameFrames = board.Frame2.Visible;
    return heard;
}

QStringList PlayedSince(const Heard& before, const Board& board)
{
    const std::vector<std::string>& words = board.List1.Words();
    if (words.size() <= before.Played)
        return {};
    const bool yours = board.YourScore.Text != before.YourScore;
    const double points = yours ? NumberOf(board.YourScore.Text) - NumberOf(before.YourScore)
                                : NumberOf(board.MyScore.Text) - NumberOf(before.MyScore);
    QString played = (yours ? u"You played "_s : u"The computer played "_s) + Text(words.back());
    // Where the bonus has not risen yet the computer claims the game, and its score is another.
    if (board.Text9.Text != before.Bonus)
        played += u" for %1 points"_s.arg(points);
    return {played};
}

QString ScoresOf(const Heard& heard)
{
    return u"You have "_s + Text(heard.YourScore) + u" points, the computer "_s
        + Text(heard.MyScore);
}

QStringList NewsSince(const Heard& told, const Heard& now, bool afterGo)
{
    if (now.LevelPanel && now.Level != told.Level)
        return {u"Level %1 chosen"_s.arg(now.Level)};
    if (!now.GameFrames)
        return {};
    if (now.LevelPanel && !told.LevelPanel)
        return NewLetters(told, now);
    QStringList news;
    const bool begins = Begins(told, now);
    if (now.Caption != told.Caption)
        news += Text(now.Caption).simplified();
    news += NewLetters(begins ? Heard() : told, now);
    if (now.YourScore != told.YourScore || now.MyScore != told.MyScore)
        news += ScoresOf(now);
    if (now.Bonus != told.Bonus)
        news += u"Bonus of the next word: "_s + Text(now.Bonus).trimmed();
    news += afterGo || begins ? NewRows(told, now) : Moves(told, now);
    if ((afterGo || begins) && now.YourGo)
        news += u"Your go"_s;
    return news;
}
