#include "headless/script.h"

#include "game/clicks.h"
#include "game/hidden_words.h"
#include "game/rows.h"
#include "headless/board_text.h"
#include "headless/spelling.h"
#include "lexicon/letters.h"

#include <algorithm>
#include <sstream>

namespace {

std::string WithBlanks(std::string text)
{
    std::ranges::replace(text, '_', ' ');
    return text;
}

void TypeHiddenWords(HeadlessGame& game)
{
    const Board& board = game.board;
    if (!board.Frame2.Visible || board.HiddenWords(1).empty())
        return;
    for (const HiddenWord& word : hiddenWords)
        for (int k = 1; k <= lettersPerWord; ++k)
            game.Type(
                word.GuessControl, k, std::string(LetterOf(board.HiddenWords(word.Number), k)));
}

// Submits the pick-th candidate, or the next that is in reach. Every eighth time it may be a used
// one.
void SubmitWord(HeadlessGame& game, int pick)
{
    const Board& board = game.board;
    if (board.HeldFlag)
        game.Click("Text1", board.HeldIndex);
    for (int k = 1; k <= board.CandidateCount && !HasEmptyBox(board.Text1); ++k) {
        const std::string word = board.Candidates((k + pick) % board.CandidateCount + 1);
        const std::vector<Move> moves = MovesFor(board, word);
        if (moves.empty() || (pick % 8 != 0 && std::ranges::count(board.UsedWords, word) != 0))
            continue;
        for (const Move& move : moves)
            game.Click(move.control, move.index);
        return;
    }
}

Run ReadTyping(const std::string& control, const std::string& box, const std::string& text)
{
    if (control == "Check1") {
        const int tick = ReadNumber(text, 0, 1);
        Demand(box.empty(), "Check1 has no boxes");
        return [tick](HeadlessGame& game) {
            if (game.board.Frame9.Visible)
                game.Tick(tick == 1);
        };
    }
    Demand(FindGuessed(control) != nullptr, "nothing can be typed into " + control);
    const int index = ReadNumber(box, 1, lettersPerWord);
    return [=](HeadlessGame& game) {
        if (game.board.Frame2.Visible)
            game.Type(control, index, WithBlanks(text));
    };
}

Run ReadClick(const std::string& control, const std::string& box, bool hasBox)
{
    const Click* click = FindClick(control);
    Demand(click != nullptr, "no such event");
    Demand(hasBox == (click->Boxes > 0),
        hasBox ? control + " has no boxes" : control + " needs the number of a box");
    const auto index = hasBox
        ? ReadNumber<std::int16_t>(box, 1, static_cast<std::int16_t>(click->Boxes))
        : std::int16_t{0};
    return [click, index](HeadlessGame& game) { game.Click(click->Control, index); };
}

template <auto run> Run ReadNothing(const std::string& rest)
{
    Demand(rest.empty(), "nothing may follow");
    return [](HeadlessGame& game) { run(game); };
}

template <Answer answer> void LayBy(HeadlessGame& game)
{
    game.view.answers.push_back(answer);
}

void PlayComputersGo(HeadlessGame& game)
{
    game.PlayComputersGo();
}

Run ReadPick(const std::string& rest)
{
    const int pick = ReadNumber(rest, 0, 9999);
    return [pick](HeadlessGame& game) { SubmitWord(game, pick); };
}

constexpr EventWord ownWords[] = {
    {"word", ReadPick},
    {"right", ReadNothing<TypeHiddenWords>},
    {"computer", ReadNothing<PlayComputersGo>},
    {"yes", ReadNothing<LayBy<Answer::Yes>>},
    {"no", ReadNothing<LayBy<Answer::No>>},
};

// What the word does: NAME, NAME:REST, NAME=TEXT or NAME:BOX=TEXT.
Run ReadDoing(const std::string& word, EventWords more)
{
    const std::size_t colon = std::min(word.find(':'), word.size());
    const std::string rest = word.substr(std::min(colon + 1, word.size()));
    for (const EventWords& words : {EventWords(ownWords), more}) {
        const auto known
            = std::ranges::find(words, std::string_view(word).substr(0, colon), &EventWord::name);
        if (known != words.end())
            return known->read(rest);
    }
    const std::size_t equals = std::min(word.find('='), word.size());
    const std::string name = word.substr(0, std::min(colon, equals));
    const std::string box = colon < equals ? word.substr(colon + 1, equals - colon - 1) : "";
    if (equals < word.size())
        return ReadTyping(name, box, word.substr(equals + 1));
    return ReadClick(name, box, colon < equals);
}

// "0", ".5", "<1", "2/6", with "18*" before it for eighteen of them.
Run ReadDraws(const std::string& word)
{
    const auto [times, draw] = SplitTimes(word, 1'000'000);
    const std::size_t slash = draw.find('/');
    float value = justBelowOne;
    if (slash != std::string::npos) {
        const int of = ReadNumber<int>(std::string_view(draw).substr(slash + 1), 1, largestCount);
        value = DrawOf(ReadNumber(std::string_view(draw).substr(0, slash), 1, of), of);
    } else if (draw != "<1") {
        value = ReadNumber<float>(draw, 0, justBelowOne);
    }
    return [count = static_cast<std::size_t>(times), value](HeadlessGame& game) {
        game.platform.draws.insert(game.platform.draws.end(), count, value);
    };
}

// Does what each of the words does.
Run ReadEach(const std::string& rest, const std::function<Run(const std::string& word)>& read)
{
    std::vector<Run> all;
    std::istringstream words(rest);
    for (std::string word; words >> word;) {
        try {
            all.push_back(read(word));
        } catch (const ScriptError& error) {
            throw ScriptError(word + ": " + error.what());
        }
    }
    Demand(!all.empty(), "something must follow");
    return [all](HeadlessGame& game) {
        for (const Run& run : all)
            run(game);
    };
}

Run ReadList(const std::string& rest)
{
    if (rest == "none")
        return [](HeadlessGame& game) { game.UseNoList(); };
    std::string bytes;
    std::istringstream words(rest);
    for (std::string word; words >> word;) {
        const auto [times, record] = SplitTimes(word, 40000);
        for (int time = 0; time < times; ++time)
            bytes += WithBlanks(record) + "\n";
    }
    return [bytes](HeadlessGame& game) { game.UseList(bytes); };
}

Run ReadBoard(const std::string& rest)
{
    const auto board = std::make_unique<Board>();
    board->Level = 1; // as a line before this one may have it
    SetBoard(*board, rest);
    return [rest](HeadlessGame& game) { game.Set(rest); };
}

Run ReadLine(const std::string& verb, const std::string& rest, EventWords more)
{
    if (verb == "do") {
        return ReadEach(rest, [more](const std::string& word) -> Run {
            return [event = ReadEvent(word, more)](HeadlessGame& game) { game.Play(event); };
        });
    }
    if (verb == "draws")
        return ReadEach(rest, ReadDraws);
    if (verb == "board")
        return ReadBoard(rest);
    if (verb == "list")
        return ReadList(rest);
    if (verb == "seed") {
        const auto seed = ReadNumber<std::uint32_t>(rest, 0, (1U << 24) - 1);
        return [seed](HeadlessGame& game) { game.platform = HeadlessPlatform(seed); };
    }
    Demand(verb == "check" && rest.empty(), "no such line: " + verb + " " + rest);
    return [](HeadlessGame& game) { game.Check(); };
}

} // namespace

Event ReadEvent(const std::string& word, EventWords more)
{
    const When when = word.starts_with('~') ? When::InRepaint
        : word.starts_with('!')             ? When::InMessage
                                            : When::Now;
    const std::string rest = word.substr(when == When::Now ? 0 : 1);
    if (rest.starts_with('!') && when != When::Now)
        return {[event = ReadEvent(rest, more)](HeadlessGame& game) { game.Play(event); }, when};
    return {ReadDoing(rest, more), when};
}

void PlayEvents(HeadlessGame& game, const std::string& events, EventWords more)
{
    std::istringstream words(events);
    for (std::string word; words >> word;)
        game.Play(ReadEvent(word, more));
}

std::vector<Script> ReadScripts(std::istream& stream, const std::string& file, EventWords more)
{
    std::vector<Script> scripts;
    int number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        if (line.empty() || line.starts_with('#'))
            continue;
        if (line.starts_with("== ") || scripts.empty())
            scripts.emplace_back();
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::string verb = line.substr(0, blank);
        const std::string rest = line.substr(std::min(blank + 1, line.size()));
        try {
            if (verb == "==")
                scripts.back().name = rest;
            else
                scripts.back().lines.push_back(
                    {line, verb == ">" || verb == "=" ? nullptr : ReadLine(verb, rest, more)});
        } catch (const ScriptError& error) {
            throw ScriptError(file + ":" + std::to_string(number) + ": " + error.what());
        }
    }
    return scripts;
}

void RunScript(HeadlessGame& game, const std::string& text, EventWords more)
{
    std::istringstream stream(text);
    for (const Script& script : ReadScripts(stream, "script", more)) {
        for (const ScriptLine& line : script.lines)
            line.run ? line.run(game) : void();
    }
}
