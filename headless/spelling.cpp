#include "headless/spelling.h"

#include "game/board.h"
#include "lexicon/letters.h"

#include <algorithm>

namespace {

template <typename Row, typename Test> std::int16_t FirstBox(const Row& row, Test test)
{
    const auto box = std::ranges::find_if(row, test, &LetterBox::Text);
    return box == row.end() ? std::int16_t{0} : static_cast<std::int16_t>(box - row.begin() + 1);
}

std::int16_t BoxOf(const LetterRow& row, const std::string& letter)
{
    return FirstBox(row, [&letter](const std::string& text) { return text == letter; });
}

} // namespace

std::vector<Move> MovesFor(const Board& board, const std::string& word)
{
    LetterRow own = board.Text1;
    std::vector<Move> layOut;
    std::string wanted;
    for (int k = 1; k <= lettersPerWord; ++k) {
        const std::string letter(LetterOf(word, k));
        const std::int16_t box = BoxOf(own, letter);
        layOut.push_back({"Text2", box});
        if (box != 0)
            own(box).Text.clear();
        else if (wanted.empty())
            wanted = letter;
        else
            return {};
    }

    std::vector<Move> moves;
    if (!wanted.empty()) {
        const std::int16_t spare = FirstBox(own, [](const auto& text) { return !text.empty(); });
        const std::int16_t swapped = BoxOf(board.SwapLetters, wanted);
        if (swapped == 0 || !board.SwapLetters(1).Enabled)
            return {};
        moves = {{"Text1", spare}, {"SwapLetters", swapped}};
        std::ranges::find(layOut, 0, &Move::index)->index = spare;
    }
    moves.push_back({"Command9"}); // "Lay Out Word"
    moves.insert(moves.end(), layOut.begin(), layOut.end());
    moves.push_back({"Command3"}); // "Submit Word"
    return moves;
}
