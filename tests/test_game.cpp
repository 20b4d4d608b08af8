#include "test_game.h"

#include "game/numbers.h"
#include "game/rows.h"

#include <algorithm>
#include <fstream>
#include <sstream>

WordListFile::WordListFile(const std::string& bytes)
{
    static int made = 0;
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = test ? std::string(test->test_suite_name()) + "." + test->name() : "list";
    std::ranges::replace(name, '/', '.');
    path_ = std::filesystem::path(testing::TempDir()) / (name + std::to_string(++made) + ".txt");
    Write(bytes);
}

WordListFile::~WordListFile()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void WordListFile::Write(const std::string& bytes) const
{
    std::ofstream(path_, std::ios::binary) << bytes;
}

std::string Lines(const std::vector<std::string>& words)
{
    std::string lines;
    for (const std::string& word : words)
        lines += word + "\n";
    return lines;
}

namespace {

std::string Letters(const LetterRow& row)
{
    std::string letters;
    for (const LetterBox& box : row)
        letters += box.Text.empty() ? "." : box.Text;
    if (std::ranges::none_of(row, &LetterBox::Enabled))
        std::ranges::transform(
            letters, letters.begin(), [](unsigned char c) { return std::toupper(c); });
    return letters;
}

std::string Sorted(std::string letters)
{
    std::ranges::sort(letters);
    return letters;
}

} // namespace

void SetRow(LetterRow& row, const std::string& letters)
{
    for (int i = 1; i <= 6; ++i) {
        const char letter = letters[static_cast<std::size_t>(i) - 1];
        row(i).Enabled = std::isupper(static_cast<unsigned char>(letter)) == 0;
        row(i).Text = letter == '.' ? "" : std::string(1, static_cast<char>(std::tolower(letter)));
    }
}

std::string Line(const Board& board)
{
    std::ostringstream line;
    line << "you=" << Letters(board.Text1) << " me=" << Letters(board.MyLetters)
         << " swap=" << Letters(board.SwapLetters);
    if (HoldsLetters(board.Text2))
        line << " up=" << Letters(board.Text2);
    if (board.HeldFlag)
        line << " held=" << board.HeldLetter << board.HeldIndex;
    line << " you:" << board.YourScore.Text << " me:" << board.MyScore.Text;
    return line.str();
}

void SetBoard(Board& board, const std::string& line)
{
    std::istringstream words(line);
    for (std::string word; words >> word;) {
        const std::size_t mark = word.find_first_of("=:");
        const std::string key = word.substr(0, mark + 1);
        const std::string value = word.substr(mark + 1);
        if (key == "you=")
            SetRow(board.Text1, value);
        else if (key == "me=")
            SetRow(board.MyLetters, value);
        else if (key == "swap=")
            SetRow(board.SwapLetters, value);
        else if (key == "up=")
            SetRow(board.Text2, value);
        else if (key == "you:")
            board.YourScore.Text = value;
        else if (key == "me:")
            board.MyScore.Text = value;
        else
            ADD_FAILURE() << "not a part of a board: " << word;
    }
}

testing::AssertionResult BoardIsOk(const Board& board)
{
    const auto bad = [&board](const char* what) {
        return testing::AssertionFailure() << what << ": " << Line(board);
    };
    const std::string hidden = board.HiddenWords(1) + board.HiddenWords(2) + board.HiddenWords(3);
    const std::string dealt = Spell(board.MyLetters) + Spell(board.Text1) + Spell(board.Text2)
        + Spell(board.SwapLetters) + board.HeldLetter;
    if (Sorted(hidden) != Sorted(dealt))
        return bad("the letters are not those of the hidden words");
    if (board.HeldFlag != (board.HeldIndex != 0) || board.HeldLetter.size() > board.HeldFlag)
        return bad("the held letter contradicts itself");
    const auto count = static_cast<std::size_t>(board.List1.ListCount());
    if (board.Text9.Text != PaddedForm(10.0 * static_cast<double>(count))
        && !(count == 0 && board.Text9.Text == "0"))
        return bad("the bonus is not ten times the used words");
    if (static_cast<std::size_t>(board.UsedCount) != std::min<std::size_t>(count, 250))
        return bad("the ledger and the used words differ in length");
    for (int slot = 1; slot <= board.UsedCount; ++slot) {
        if (board.UsedWords(slot) != board.List1.Words()[static_cast<std::size_t>(slot) - 1])
            return bad("the ledger and the used words differ");
    }
    if (board.CandidateCount < 300 || board.CandidateCount > 2000)
        return bad("too few candidates or too many");
    if (board.FruitlessSwaps < 0 || board.FruitlessSwaps > 4)
        return bad("the fruitless goes are miscounted");
    if (NumberOf(board.YourScore.Text) < 0 || NumberOf(board.MyScore.Text) < 0)
        return bad("a score is below zero");
    for (int k = 1; k <= 3; ++k) {
        const LetterRow& shown = k == 1 ? board.Word1 : k == 2 ? board.Word2 : board.Word3;
        for (int i = 1; i <= 6; ++i) {
            if (!shown(i).Text.empty()
                && shown(i).Text[0] != board.HiddenWords(k)[static_cast<std::size_t>(i) - 1])
                return bad("a bought letter is wrong");
        }
    }
    return testing::AssertionSuccess();
}
