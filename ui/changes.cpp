#include "ui/changes.h"

#include "game/board.h"
#include "ui/news.h"
#include "ui/part.h"

namespace {

// The boxes of the row that hold another letter now.
std::vector<const Part*> Differing(const char* row, const LetterRow& before, const LetterRow& now)
{
    std::vector<const Part*> boxes;
    for (int box = 1; box <= lettersPerWord; ++box) {
        if (before(box).Text != now(box).Text)
            boxes.push_back(&FindPart(row, box));
    }
    return boxes;
}

} // namespace

std::vector<const Part*> ChangedByComputer(const Board& before, const Board& now)
{
    std::vector<const Part*> changed;
    if (now.Frame1.Visible || BeginsGame(before, now))
        return changed;
    if (now.MyScore.Text != before.MyScore.Text) {
        changed.push_back(&FindPart("MyScore"));
        changed.push_back(&FindPart("List1"));
    }
    const auto mine = Differing("MyLetters", before.MyLetters, now.MyLetters);
    const auto swap = Differing("SwapLetters", before.SwapLetters, now.SwapLetters);
    if (mine.size() == 1 && swap.size() == 1) {
        changed.push_back(mine.front());
        changed.push_back(swap.front());
    }
    return changed;
}
