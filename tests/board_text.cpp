#include "board_text.h"

#include "game/numbers.h"
#include "game/scoring.h"

#include <algorithm>
#include <functional>
#include <sstream>

namespace {

std::string Replaced(std::string text, char from, char to)
{
    std::ranges::replace(text, from, to);
    return text;
}

std::vector<std::string> Split(const std::string& text, char mark)
{
    std::vector<std::string> pieces;
    std::istringstream stream(text);
    for (std::string piece; std::getline(stream, piece, mark);)
        pieces.push_back(piece);
    return pieces;
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
            text += enabled ? letters[0] : static_cast<char>(std::toupper(letters[0]));
        else
            text += '(' + Replaced(letters, ' ', '_') + ')';
    }
    return text;
}

void SetRow(LetterRow& row, const std::string& text)
{
    std::size_t at = 0;
    for (LetterBox& box : row) {
        const char mark = text.at(at++);
        box.Enabled = mark != '-' && (mark < 'A' || mark > 'Z');
        box.Text = mark == '.' || mark == '-'
            ? ""
            : std::string(1, static_cast<char>(std::tolower(mark)));
        if (mark == '(') {
            const std::size_t end = text.find(')', at);
            box.Text = Replaced(text.substr(at, end - at), '_', ' ');
            at = end + 1;
        }
    }
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
        const bool madeUp = word[0] <= '9';
        for (int k = madeUp ? std::stoi(word) : 1; k > 0; --k) {
            NumberBox nobody;
            ScoreWord(board, nobody, madeUp ? "word" + std::to_string(k) : word);
        }
    }
}

struct Part {
    const char* key;
    std::function<std::string(const Board&)> text;
    std::function<void(Board&, const std::string&)> set;
};

Part Rows(const char* key, std::vector<LetterRow Board::*> rows)
{
    return {key,
        [rows](const Board& board) {
            std::string text;
            for (const auto row : rows)
                Append(text, RowText(board.*row), '/');
            return text;
        },
        [rows](Board& board, const std::string& text) {
            for (std::size_t k = 0; k < rows.size(); ++k)
                SetRow(board.*rows[k], Split(text, '/').at(k));
        }};
}

Part Number(const char* key, NumberBox Board::* box)
{
    return {key, [box](const Board& board) { return Replaced((board.*box).Text, ' ', '_'); },
        [box](Board& board, const std::string& text) {
            (board.*box).Text = Replaced(text, '_', ' ');
        }};
}

Part Count(const char* key, std::int16_t Board::* count)
{
    return {key, [count](const Board& board) { return std::to_string(board.*count); },
        [count](Board& board, const std::string& text) {
            board.*count = static_cast<std::int16_t>(std::stoi(text));
        }};
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
            (((board.*owners).Visible = text == "yes"), ...);
        }};
}

// The buttons that are disabled.
Part Off(const char* key, std::vector<std::pair<std::string, Button Board::*>> buttons)
{
    return {key,
        [buttons](const Board& board) {
            std::string off;
            for (const auto& [name, button] : buttons)
                if (!(board.*button).Enabled)
                    Append(off, name, ',');
            return off;
        },
        [buttons](Board& board, const std::string& text) {
            const std::vector<std::string> off = Split(text, ',');
            for (const auto& [name, button] : buttons)
                (board.*button).Enabled = std::ranges::find(off, name) == off.end();
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
        [](Board& board, const std::string& held) {
            board.HeldFlag = !held.empty();
            board.HeldLetter = held.substr(0, held.size() / 2);
            board.HeldIndex = static_cast<std::int16_t>(held.empty() ? 0 : held.back() - '0');
        }},
    Number("you:", &Board::YourScore),
    Number("me:", &Board::MyScore),
    Number("bonus:", &Board::Text9),
    {"used=", UsedText, SetUsed},
    Count("ledger:", &Board::UsedCount),
    {"hidden=",
        [](const Board& board) {
            return board.HiddenWords(1) + "/" + board.HiddenWords(2) + "/" + board.HiddenWords(3);
        },
        [](Board& board, const std::string& words) {
            std::ranges::copy(Split(words, '/'), board.HiddenWords.begin());
        }},
    Rows("shown=", {&Board::Word1, &Board::Word2, &Board::Word3}),
    Rows("guess=", {&Board::Text6, &Board::Text7, &Board::Text8}),
    Count("next:", &Board::LayOutNext),
    Count("fruitless:", &Board::FruitlessSwaps),
    Count("level:", &Board::Level),
    // Words and how often they are repeated, as in "garden,planet*150".
    {"candidates=", [](const Board& board) { return std::to_string(board.CandidateCount); },
        [](Board& board, const std::string& text) {
            const std::vector<std::string> halves = Split(text + "*1", '*');
            board.CandidateCount = 0;
            for (int times = std::stoi(halves[1]); times > 0; --times)
                for (const std::string& word : Split(halves[0], ','))
                    board.Candidates(++board.CandidateCount) = word;
        }},
    Count("responses:", &Board::Check1),
    Off("off=",
        {{"<", &Board::Command4}, {">", &Board::Command5}, {"Mix", &Board::Command6},
            {"LayOut", &Board::Command9}, {"+", &Board::Command16}}),
    Visible("go:", &Board::Label5),
    Visible("frames:", &Board::Frame2, &Board::Frame3, &Board::Frame4, &Board::Frame5,
        &Board::Frame7, &Board::Frame9),
    Visible("panel:", &Board::Frame1, &Board::Command2),
    {"caption=", [](const Board& board) { return Replaced(board.Caption, ' ', '_'); }, nullptr},
};

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
        const auto* part = std::ranges::find(parts, key, &Part::key);
        if (part == std::end(parts) || !part->set)
            ADD_FAILURE() << "not a part of a board that can be set: " << word;
        else
            part->set(board, word.substr(key.size()));
    }
}

testing::AssertionResult BoardIsOk(const Board& board)
{
    const std::string fault = FindFault(board);
    if (fault.empty())
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << fault << ": " << Line(board);
}
