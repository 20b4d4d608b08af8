#include "headless/board_text.h"

#include "game/board.h"
#include "game/clicks.h"
#include "game/hidden_words.h"
#include "game/rows.h"
#include "game/scoring.h"
#include "headless/script_error.h"
#include "lexicon/letters.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <sstream>

namespace {

std::string Replaced(std::string text, char from, char to)
{
    std::replace(text.begin(), text.end(), from, to);
    return text;
}

void Append(std::string& list, const std::string& piece, char mark)
{
    list += (list.empty() ? "" : std::string(1, mark)) + piece;
}

std::string RowText(const LetterRow& row)
{
    std::string text;
    for (const auto& [letters, enabled] : row) {
        if (letters.empty())
            text += enabled ? '.' : '-';
        else if (letters.size() == 1 && letters >= "a" && letters <= "z")
            text += enabled ? letters[0] : static_cast<char>(letters[0] - 'a' + 'A');
        else
            text += (enabled ? '(' : '[') + Replaced(letters, ' ', '_') + (enabled ? ')' : ']');
    }
    return text;
}

void SetRow(LetterRow& row, const std::string& text)
{
    std::size_t at = 0;
    for (LetterBox& box : row) {
        Demand(at < text.size(), "a row has six boxes");
        const char mark = text[at++];
        const bool capital = mark >= 'A' && mark <= 'Z';
        box.Enabled = mark != '-' && mark != '[' && !capital;
        box.Text.clear();
        if (mark == '(' || mark == '[') {
            const std::size_t end = text.find(mark == '(' ? ')' : ']', at);
            Demand(end != std::string::npos, "a bracket is not closed");
            box.Text = Replaced(text.substr(at, end - at), '_', ' ');
            at = end + 1;
        } else if (mark != '.' && mark != '-') {
            Demand(
                capital || (mark >= 'a' && mark <= 'z'), std::string("no mark of a row: ") + mark);
            box.Text = static_cast<char>(capital ? mark - 'A' + 'a' : mark);
        }
    }
    Demand(at == text.size(), "a row has six boxes");
}

// A word of "Used Words" as "planet", so many made-up ones as "49".
std::string UsedText(const Board& board)
{
    std::string text;
    int madeUp = 0;
    for (const std::string& word : board.List1.Words())
        word.starts_with("word") ? void(++madeUp) : Append(text, word, ',');
    return madeUp == 0 ? text : std::to_string(madeUp) + (text.empty() ? "" : ",") + text;
}

void SetUsed(Board& board, const std::string& used)
{
    board.List1.Clear();
    board.UsedWords = {};
    board.UsedCount = 0;
    board.Text9.Text = "0";
    for (const std::string& word : Split(used, ',')) {
        const bool madeUp = !word.empty() && word[0] <= '9';
        NumberBox nobody;
        for (int k = madeUp ? ReadNumber(word, 1, 40000) : !word.empty(); k > 0; --k)
            ScoreWord(board, nobody, madeUp ? "word" + std::to_string(k) : word);
    }
}

void SetHeld(Board& board, const std::string& held)
{
    board.HeldFlag = !held.empty();
    board.HeldLetter = held.substr(0, held.empty() ? 0 : held.size() - 1);
    board.HeldIndex = board.HeldFlag
        ? ReadNumber<std::int16_t>(held.substr(held.size() - 1), 1, lettersPerWord)
        : std::int16_t{0};
}

void SetHidden(Board& board, const std::string& text)
{
    const std::vector<std::string> words = Split(text, '/');
    const auto isWord
        = [](const std::string& word) { return CountLetters(word) == lettersPerWord; };
    Demand(words.size() == 3 && std::all_of(words.begin(), words.end(), isWord),
        "three words of six letters have slashes between them");
    std::copy(words.begin(), words.end(), board.HiddenWords.begin());
}

// Words and how often they are repeated, as in "150*garden,planet"; a number alone is the count of
// the words that are there.
void SetCandidates(Board& board, const std::string& text)
{
    if (text.find_first_not_of("0123456789") == std::string::npos) {
        board.CandidateCount = ReadNumber<std::int16_t>(text, 0, mostCandidates);
        return;
    }
    const auto [times, repeated] = SplitTimes(text, mostCandidates);
    const std::vector<std::string> words = Split(repeated, ',');
    Demand(times * std::ssize(words) <= mostCandidates, "there are too many candidates");
    board.CandidateCount = 0;
    for (int time = 0; time < times; ++time)
        for (const std::string& word : words)
            board.Candidates(++board.CandidateCount) = word;
}

// The controls of the buttons that arrange letters, in the order of ArrangingButtons: the table of
// clicks tells which of them a flag disables.
std::vector<std::string> NamesOfArranging()
{
    std::vector<std::string> names;
    const auto board = std::make_unique<Board>();
    for (Button* button : ArrangingButtons(*board)) {
        button->Enabled = false;
        const auto click = std::find_if(Clicks().begin(), Clicks().end(),
            [&board](const Click& row) { return row.Boxes == 0 && !row.Enabled(*board, 0); });
        Demand(click != Clicks().end(), "a button of ArrangingButtons has no click");
        names.emplace_back(click->Control);
        button->Enabled = true;
    }
    return names;
}

const std::vector<std::string>& Arranging()
{
    static const std::vector<std::string> names = NamesOfArranging();
    return names;
}

std::string OffText(const Board& board)
{
    std::string off;
    std::string on = "arranging";
    long count = 0;
    for (const std::string& control : Arranging()) {
        if (FindClick(control)->Enabled(board, 0))
            on += "-" + control;
        else
            Append(off, control, ','), ++count;
    }
    return count * 2 > std::ssize(Arranging()) ? on : off;
}

void SetOff(Board& board, const std::string& off)
{
    const bool all = off.starts_with("arranging");
    const auto group = ArrangingButtons(board);
    for (Button* button : group)
        button->Enabled = !all;
    const std::vector<std::string> names = Split(off, all ? '-' : ',');
    for (std::size_t k = all ? 1 : 0; k < names.size() && !off.empty(); ++k) {
        const auto& controls = Arranging();
        const auto place = std::find(controls.begin(), controls.end(), names[k]) - controls.begin();
        Demand(place < std::ssize(controls), names[k] + " arranges no letters");
        group[static_cast<std::size_t>(place)]->Enabled = all;
    }
}

struct Part {
    const char* key;
    std::function<std::string(const Board&)> text;
    std::function<void(Board&, const std::string&)> set;
};

using RowsOfBoard = std::vector<LetterRow Board::*>;

RowsOfBoard OfHiddenWords(LetterRow Board::* HiddenWord::* row)
{
    RowsOfBoard rows;
    for (const HiddenWord& word : hiddenWords)
        rows.push_back(word.*row);
    return rows;
}

Part Rows(const char* key, const RowsOfBoard& rows)
{
    return {key,
        [rows](const Board& board) {
            std::string text;
            for (const auto row : rows)
                Append(text, RowText(board.*row), '/');
            return text;
        },
        [rows](Board& board, const std::string& text) {
            const std::vector<std::string> texts = Split(text, '/');
            Demand(texts.size() == rows.size(), "rows have slashes between them");
            for (std::size_t k = 0; k < rows.size(); ++k)
                SetRow(board.*rows[k], texts[k]);
        }};
}

// The rules read a padded number past one blank, "_10", and any other as it stands.
Part Number(const char* key, NumberBox Board::* box, bool mayBePadded = false)
{
    return {key, [box](const Board& board) { return Replaced((board.*box).Text, ' ', '_'); },
        [=](Board& board, const std::string& text) {
            const bool padded = mayBePadded && text.starts_with('_');
            ReadNumber<long long>(
                text.substr(padded ? 1 : 0), -1'000'000'000'000, 1'000'000'000'000);
            (board.*box).Text = Replaced(text, '_', ' ');
        }};
}

Part Count(const char* key, std::int16_t Board::* count, std::int16_t low, std::int16_t high)
{
    return {key, [count](const Board& board) { return std::to_string(board.*count); },
        [=](Board& board, const std::string& text) { board.*count = ReadNumber(text, low, high); }};
}

// Flags that go together: "yes", "no", or "part" when they do not.
template <typename... Owner> Part Visible(const char* key, Owner Board::*... owners)
{
    return {key,
        [=](const Board& board) {
            const int visible = (0 + ... + (board.*owners).Visible);
            return visible == sizeof...(owners) ? "yes" : visible == 0 ? "no" : "part";
        },
        [=](Board& board, const std::string& text) {
            Demand(text == "yes" || text == "no", "yes or no is wanted");
            (((board.*owners).Visible = text == "yes"), ...);
        }};
}

const Part parts[] = {
    Rows("you=", {&Board::Text1}),
    Rows("me=", {&Board::MyLetters}),
    Rows("swap=", {&Board::SwapLetters}),
    Rows("up=", {&Board::Text2}),
    {"held=",
        [](const Board& board) {
            return board.HeldLetter + (board.HeldFlag ? std::to_string(board.HeldIndex) : "");
        },
        SetHeld},
    Number("you:", &Board::YourScore),
    Number("me:", &Board::MyScore),
    Number("bonus:", &Board::Text9, true),
    {"used=", UsedText, SetUsed},
    Count("ledger:", &Board::UsedCount, 0, ledgerSlots),
    {"hidden=",
        [](const Board& board) {
            return board.HiddenWords(1) + "/" + board.HiddenWords(2) + "/" + board.HiddenWords(3);
        },
        SetHidden},
    Rows("shown=", OfHiddenWords(&HiddenWord::Shown)),
    Rows("guess=", OfHiddenWords(&HiddenWord::Guess)),
    Count("next:", &Board::LayOutNext, 0, lettersPerWord + 1),
    Count("fruitless:", &Board::FruitlessSwaps, 0, 4),
    Count("level:", &Board::Level, 0, levels),
    {"candidates=", [](const Board& board) { return std::to_string(board.CandidateCount); },
        SetCandidates},
    Count("responses:", &Board::Check1, 0, 1),
    {"off=", OffText, SetOff},
    Visible("go:", &Board::Label5),
    Visible("frames:", &Board::Frame2, &Board::Frame3, &Board::Frame4, &Board::Frame5,
        &Board::Frame7, &Board::Frame9),
    Visible("panel:", &Board::Frame1, &Board::Command2),
    {"caption=", [](const Board& board) { return Replaced(board.Caption, ' ', '_'); },
        [](Board& board, const std::string& text) { board.Caption = Replaced(text, '_', ' '); }},
};

const Part* PartCalled(std::string_view key)
{
    const auto is = [key](const Part& part) { return part.key == key; };
    const auto* part = std::find_if(std::begin(parts), std::end(parts), is);
    return part == std::end(parts) ? nullptr : part;
}

} // namespace

std::vector<std::pair<std::string, std::string>> PartsOf(const Board& board)
{
    std::vector<std::pair<std::string, std::string>> all;
    for (const Part& part : parts)
        all.emplace_back(part.key, part.text(board));
    return all;
}

void SetBoard(Board& board, const std::string& text)
{
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const std::string key = word.substr(0, word.find_first_of("=:") + 1);
        const Part* part = PartCalled(key);
        Demand(part != nullptr, word + ": no such part of a board");
        try {
            part->set(board, word.substr(key.size()));
        } catch (const ScriptError& error) {
            throw ScriptError(word + ": " + error.what());
        }
    }
    Demand(!board.Frame2.Visible || board.Level > 0, "a board on view needs its \"level:\"");
    // Letters above go on into the row, from its first box unless "next:" says where.
    const bool goesOn = board.LayOutNext >= 1 && board.LayOutNext <= lettersPerWord;
    if (HoldsLetters(board.Text2) && !goesOn)
        board.LayOutNext = 1;
}

std::string Line(const Board& board, std::initializer_list<const char*> keys)
{
    std::string line;
    for (const char* key : keys)
        Append(line, key + PartCalled(key)->text(board), ' ');
    return line;
}
