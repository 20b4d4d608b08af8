#include "board_text.h"

#include "game/numbers.h"
#include "game/rows.h"
#include "game/scoring.h"

#include <algorithm>
#include <span>
#include <sstream>

namespace {

std::string Blanks(std::string text, char from, char to)
{
    std::ranges::replace(text, from, to);
    return text;
}

std::string BoxText(const LetterBox& box)
{
    if (box.Text.empty())
        return box.Enabled ? "." : "-";
    const auto letter = static_cast<unsigned char>(box.Text[0]);
    if (box.Text.size() != 1 || std::islower(letter) == 0)
        return "(" + Blanks(box.Text, ' ', '_') + ")";
    return {box.Enabled ? box.Text[0] : static_cast<char>(std::toupper(letter))};
}

std::string RowText(const LetterRow& row)
{
    std::string text;
    for (const LetterBox& box : row)
        text += BoxText(box);
    return text;
}

void SetRow(LetterRow& row, const std::string& text)
{
    std::size_t at = 0;
    for (LetterBox& box : row) {
        const char mark = text.at(at++);
        box.Enabled = mark != '-' && std::isupper(static_cast<unsigned char>(mark)) == 0;
        box.Text = mark == '.' || mark == '-'
            ? ""
            : std::string(1, static_cast<char>(std::tolower(mark)));
        if (mark == '(') {
            const std::size_t end = text.find(')', at);
            box.Text = Blanks(text.substr(at, end - at), '_', ' ');
            at = end + 1;
        }
    }
}

std::vector<std::string> Split(const std::string& text, char mark)
{
    std::vector<std::string> pieces;
    std::istringstream stream(text);
    for (std::string piece; std::getline(stream, piece, mark);)
        pieces.push_back(piece);
    return pieces;
}

std::string Joined(const std::vector<std::string>& pieces)
{
    std::string text;
    for (const std::string& piece : pieces)
        text += (text.empty() ? "" : ",") + piece;
    return text;
}

template <typename Flags> std::string YesNo(const Flags& flags)
{
    const auto visible = [](const auto* flag) { return *flag; };
    return std::ranges::all_of(flags, visible) ? "yes"
        : std::ranges::none_of(flags, visible) ? "no"
                                               : "part";
}

template <typename BoardType> auto GameFrames(BoardType& board)
{
    return std::array{&board.Frame2.Visible, &board.Frame3.Visible, &board.Frame4.Visible,
        &board.Frame5.Visible, &board.Frame7.Visible, &board.Frame9.Visible};
}

template <typename BoardType> auto PanelParts(BoardType& board)
{
    return std::array{&board.Frame1.Visible, &board.Command2.Visible};
}

template <LetterRow Board::*... rows> std::string RowsText(const Board& board)
{
    std::string text;
    ((text += (text.empty() ? "" : "/") + RowText(board.*rows)), ...);
    return text;
}

template <LetterRow Board::*... rows> void SetRows(Board& board, const std::string& text)
{
    const std::vector<std::string> pieces = Split(text, '/');
    std::size_t at = 0;
    (SetRow(board.*rows, pieces.at(at++)), ...);
}

template <NumberBox Board::*box> std::string NumberText(const Board& board)
{
    return Blanks((board.*box).Text, ' ', '_');
}

template <NumberBox Board::*box> void SetNumber(Board& board, const std::string& text)
{
    (board.*box).Text = Blanks(text, '_', ' ');
}

template <std::int16_t Board::*count> std::string CountText(const Board& board)
{
    return std::to_string(board.*count);
}

template <std::int16_t Board::*count> void SetCount(Board& board, const std::string& text)
{
    board.*count = static_cast<std::int16_t>(std::stoi(text));
}

struct ButtonName {
    Button Board::*button;
    const char* name;
};
const ButtonName buttonNames[] = {{&Board::Command4, "<"}, {&Board::Command5, ">"},
    {&Board::Command6, "Mix"}, {&Board::Command9, "LayOut"}, {&Board::Command16, "+"}};

std::string OffText(const Board& board)
{
    std::vector<std::string> off;
    for (const auto& [button, name] : buttonNames)
        if (!(board.*button).Enabled)
            off.emplace_back(name);
    return Joined(off);
}

void SetOff(Board& board, const std::string& off)
{
    const std::vector<std::string> names = Split(off, ',');
    for (const auto& [button, name] : buttonNames)
        (board.*button).Enabled = std::ranges::find(names, name) == names.end();
}

std::string HeldText(const Board& board)
{
    return board.HeldFlag ? board.HeldLetter + std::to_string(board.HeldIndex) : board.HeldLetter;
}

void SetHeld(Board& board, const std::string& held)
{
    board.HeldFlag = !held.empty();
    board.HeldLetter = held.substr(0, held.size() > 1 ? 1 : 0);
    board.HeldIndex = static_cast<std::int16_t>(held.empty() ? 0 : held.back() - '0');
}

// The words of "Used Words"; made-up ones are only counted, as in "49,planet".
std::string UsedText(const Board& board)
{
    std::vector<std::string> pieces;
    bool counting = false;
    for (const std::string& word : board.List1.Words()) {
        const bool madeUp = word.starts_with("word");
        if (madeUp && counting)
            pieces.back() = std::to_string(std::stoi(pieces.back()) + 1);
        else
            pieces.push_back(madeUp ? "1" : word);
        counting = madeUp;
    }
    return Joined(pieces);
}

void SetUsed(Board& board, const std::string& used)
{
    board.List1.Clear();
    for (std::string& word : board.UsedWords)
        word.clear();
    board.UsedCount = 0;
    for (const std::string& word : Split(used, ',')) {
        const bool count = std::isdigit(static_cast<unsigned char>(word[0])) != 0;
        for (int k = count ? std::stoi(word) : 1; k > 0; --k) {
            board.List1.AddItem(count ? "word" + std::to_string(k) : word);
            AddUsedWord(board, board.List1.Words().back());
        }
    }
    board.Text9.Text = used.empty() ? "0" : PaddedForm(10.0 * board.List1.ListCount());
}

// Words and how often they are repeated, as in "garden,planet*150".
void SetCandidates(Board& board, const std::string& text)
{
    const std::size_t star = text.find('*');
    const int times = star == std::string::npos ? 1 : std::stoi(text.substr(star + 1));
    board.CandidateCount = 0;
    for (int time = 0; time < times; ++time)
        for (const std::string& word : Split(text.substr(0, star), ','))
            board.Candidates(++board.CandidateCount) = word;
}

void SetHidden(Board& board, const std::string& words)
{
    for (int slot = 1; slot <= 3; ++slot)
        board.HiddenWords(slot) = Split(words, '/').at(static_cast<std::size_t>(slot) - 1);
}

struct Part {
    const char* key;
    std::string (*text)(const Board& board);
    void (*set)(Board& board, const std::string& text);
};

const Part parts[] = {
    {"you=", RowsText<&Board::Text1>, SetRows<&Board::Text1>},
    {"me=", RowsText<&Board::MyLetters>, SetRows<&Board::MyLetters>},
    {"swap=", RowsText<&Board::SwapLetters>, SetRows<&Board::SwapLetters>},
    {"up=", RowsText<&Board::Text2>, SetRows<&Board::Text2>},
    {"held=", HeldText, SetHeld},
    {"you:", NumberText<&Board::YourScore>, SetNumber<&Board::YourScore>},
    {"me:", NumberText<&Board::MyScore>, SetNumber<&Board::MyScore>},
    {"bonus:", NumberText<&Board::Text9>, SetNumber<&Board::Text9>},
    {"used=", UsedText, SetUsed},
    {"ledger:", CountText<&Board::UsedCount>, nullptr},
    {"hidden=",
        [](const Board& board) {
            return board.HiddenWords(1) + "/" + board.HiddenWords(2) + "/" + board.HiddenWords(3);
        },
        SetHidden},
    {"shown=", RowsText<&Board::Word1, &Board::Word2, &Board::Word3>,
        SetRows<&Board::Word1, &Board::Word2, &Board::Word3>},
    {"guess=", RowsText<&Board::Text6, &Board::Text7, &Board::Text8>,
        SetRows<&Board::Text6, &Board::Text7, &Board::Text8>},
    {"next:", CountText<&Board::LayOutNext>, SetCount<&Board::LayOutNext>},
    {"fruitless:", CountText<&Board::FruitlessSwaps>, SetCount<&Board::FruitlessSwaps>},
    {"level:", CountText<&Board::Level>, SetCount<&Board::Level>},
    {"candidates=", CountText<&Board::CandidateCount>, SetCandidates},
    {"responses:", CountText<&Board::Check1>, SetCount<&Board::Check1>},
    {"off=", OffText, SetOff},
    {"go:", [](const Board& board) { return YesNo(std::array{&board.Label5.Visible}); },
        [](Board& board, const std::string& text) { board.Label5.Visible = text == "yes"; }},
    {"frames:", [](const Board& board) { return YesNo(GameFrames(board)); },
        [](Board& board, const std::string& text) {
            for (bool* flag : GameFrames(board))
                *flag = text == "yes";
        }},
    {"panel:", [](const Board& board) { return YesNo(PanelParts(board)); },
        [](Board& board, const std::string& text) {
            for (bool* flag : PanelParts(board))
                *flag = text == "yes";
        }},
    {"caption=", [](const Board& board) { return Blanks(board.Caption, ' ', '_'); },
        [](Board& board, const std::string& text) { board.Caption = Blanks(text, '_', ' '); }},
};

std::string Sorted(std::string letters)
{
    std::ranges::sort(letters);
    return letters;
}

} // namespace

std::vector<std::pair<std::string, std::string>> PartsOf(const Board& board)
{
    std::vector<std::pair<std::string, std::string>> all;
    for (const Part& part : parts)
        all.emplace_back(part.key, part.text(board));
    return all;
}

std::string Line(const Board& board)
{
    std::string line;
    for (const Part& part : std::span(parts).first(7))
        line += (line.empty() ? "" : " ") + (part.key + part.text(board));
    return line;
}

void SetBoard(Board& board, const std::string& text)
{
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const std::string key = word.substr(0, word.find_first_of("=:") + 1);
        const auto* part = std::ranges::find(parts, key, &Part::key);
        if (part == std::end(parts) || part->set == nullptr)
            ADD_FAILURE() << "not a part of a board that can be set: " << word;
        else
            part->set(board, word.substr(key.size()));
    }
}

testing::AssertionResult BoardIsOk(const Board& board)
{
    const auto letters
        = [](const std::string& word, int k) { return word[static_cast<std::size_t>(k) - 1]; };
    const std::string dealt = Spell(board.MyLetters) + Spell(board.Text1) + Spell(board.Text2)
        + Spell(board.SwapLetters) + board.HeldLetter;
    const auto& used = board.List1.Words();
    const auto count = static_cast<double>(board.List1.ListCount());
    bool ledgerIsList = board.UsedCount == std::min<int>(board.List1.ListCount(), 250);
    for (int slot = 1; ledgerIsList && slot <= board.UsedCount; ++slot)
        ledgerIsList = board.UsedWords(slot) == used[static_cast<std::size_t>(slot) - 1];
    bool shownAreHidden = true;
    for (const auto& [row, slot] :
        {std::pair(&board.Word1, 1), {&board.Word2, 2}, {&board.Word3, 3}})
        for (int k = 1; k <= 6; ++k)
            shownAreHidden &= (*row)(k).Text.empty()
                || (*row)(k).Text[0] == letters(board.HiddenWords(slot), k);
    const std::pair<bool, const char*> rules[] = {
        {Sorted(board.HiddenWords(1) + board.HiddenWords(2) + board.HiddenWords(3))
                == Sorted(dealt),
            "the letters are those of the hidden words"},
        {board.HeldFlag == (board.HeldIndex != 0) && board.HeldLetter.size() <= board.HeldFlag,
            "the held letter agrees with itself"},
        {board.Text9.Text == PaddedForm(10 * count) || (count == 0 && board.Text9.Text == "0"),
            "the bonus is ten times the used words"},
        {ledgerIsList, "the ledger is the list of used words, up to 250"},
        {board.CandidateCount >= 300 && board.CandidateCount <= 2000,
            "there are 300 to 2000 candidates"},
        {board.FruitlessSwaps >= 0 && board.FruitlessSwaps <= 4, "0 to 4 goes were fruitless"},
        {NumberOf(board.YourScore.Text) >= 0 && NumberOf(board.MyScore.Text) >= 0,
            "no score is below 0"},
        {shownAreHidden, "the letters shown are those of the hidden words"},
    };
    for (const auto& [holds, rule] : rules)
        if (!holds)
            return testing::AssertionFailure()
                << "it is not so that " << rule << ": " << Line(board);
    return testing::AssertionSuccess();
}
