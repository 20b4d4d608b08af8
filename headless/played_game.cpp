#include "headless/played_game.h"

#include "game/hidden_words.h"
#include "lexicon/letters.h"
#include "ui/look.h"
#include "ui/part.h"
#include "ui/roster.h"
#include "ui/session.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view keyNames[]
    = {"Left", "Right", "Up", "Down", "Home", "End", "Tab", "Backtab", "Backspace", "Delete",
        "Escape", "Enter", "Space", "F1", "F2", "F4", "F8", "F9", "F10"};

constexpr int longerThanAnyPause = 60'000; // milliseconds

PlayedGame& Played(HeadlessGame& game)
{
    return dynamic_cast<PlayedGame&>(game);
}

Run ReadKey(const std::string& rest)
{
    Stroke stroke{rest.substr(rest.find('-') + 1)}; // from the start where there is none
    stroke.Held = rest.starts_with("held-");
    stroke.Shift = rest.starts_with("shift-");
    Demand(std::ranges::count(keyNames, stroke.Key) == 1
            && (stroke.Key == rest || stroke.Held || stroke.Shift),
        "no such key");
    return [=](HeadlessGame& game) { Played(game).PressKey(stroke); };
}

Run ReadTyping(const std::string& rest)
{
    Demand(!rest.empty(), "something must be typed");
    return [rest](HeadlessGame& game) {
        for (std::string_view left = rest; !left.empty();) {
            const std::string_view whole = left;
            TakeFirstLetter(left);
            const std::string letter(whole.substr(0, whole.size() - left.size()));
            Played(game).TypeLetter(letter == "_" ? " " : letter);
        }
    };
}

Run ReadPaste(const std::string& rest)
{
    return [rest](HeadlessGame& game) { Played(game).Paste(rest); };
}

Run ReadFocus(const std::string& rest)
{
    const Part& part = ReadPart(rest);
    return [&part](HeadlessGame& game) { Played(game).Focus(part); };
}

Run ReadMouse(const std::string& rest)
{
    const Part& part = ReadPart(rest);
    return [&part](HeadlessGame& game) { Played(game).PressMouse(part); };
}

Run ReadDrag(const std::string& rest)
{
    const Part& part = ReadPart(rest);
    return [&part](HeadlessGame& game) {
        if (!Played(game).BeginDrag(part))
            game.tell("no drag");
    };
}

Run ReadDrop(const std::string& rest)
{
    const Part* part = rest.empty() ? nullptr : &ReadPart(rest);
    return [part](HeadlessGame& game) { Played(game).EndDrag(part); };
}

Run ReadWalk(const std::string& rest)
{
    const Run press = ReadKey(rest);
    return [=](HeadlessGame& game) {
        std::vector<const Part*> stops;
        do {
            stops.push_back(Played(game).Focused());
            press(game);
        } while (std::ranges::count(stops, Played(game).Focused()) == 0);
        std::string walk = "walk";
        for (const Part* stop : stops)
            walk.append(" ").append(ScriptName(*stop)); // g++ 12 sees an overlap in a "+" here
        game.tell(walk + (Played(game).Focused() == stops.front() ? "" : ", not round"));
    };
}

// A word that stands alone.
template <auto run> Run ReadNothing(const std::string& rest)
{
    Demand(rest.empty(), "nothing may follow");
    return [](HeadlessGame& game) { run(Played(game)); };
}

void Listen(PlayedGame& game)
{
    game.tellsWhatIsSaid = true;
}

void OpenNoPages(PlayedGame& game)
{
    game.opensPages = false;
}

void TellHand(PlayedGame& game)
{
    game.tell("hand " + game.InSession().LetterInHand());
}

void TellRing(PlayedGame& game)
{
    game.tell(game.InSession().ShowsFocus() ? "ring" : "no ring");
}

void TellAnswer(PlayedGame& game)
{
    game.tell(game.InSession().TakesAnswer() ? "takes an answer" : "takes no answer yet");
}

Run ReadWait(const std::string& rest)
{
    const int milliseconds = ReadNumber(rest, 1, 60'000);
    return [milliseconds](HeadlessGame& game) { Played(game).Wait(milliseconds); };
}

std::string TextOf(const Look& look)
{
    std::string text = look.Text.empty() ? "." : look.Text;
    std::ranges::replace(text, '\n', ',');
    text += look.Faint.empty() ? "" : "?" + look.Faint;
    text += look.Above.empty() ? "" : "/" + look.Above;
    constexpr const char* edges[] = {"", "^", "#", "v"};
    text += edges[static_cast<int>(look.Border)];
    constexpr const char* marks[] = {"", "=", "%", ">", "-", "'"};
    text += marks[static_cast<int>(look.Marked)];
    return text + (look.Faded ? "~" : "") + (look.Clear ? "&" : "") + (look.Chosen ? "*" : "")
        + (look.OnView ? "" : "!");
}

// Of all the boxes that have the name, in their order.
Run ReadLook(const std::string& rest)
{
    const auto named = [rest](const Part& part) { return rest == part.Row->Name; };
    Demand(std::ranges::any_of(Parts(), named), "no such control");
    return [=](HeadlessGame& game) {
        std::string looks = "look " + rest;
        for (const Part& part : Parts()) {
            if (named(part))
                looks.append(" ").append(TextOf(Played(game).InSession().LookOf(part)));
        }
        game.tell(looks);
    };
}

Run ReadName(const std::string& rest)
{
    const Part& part = ReadPart(rest);
    return [&part](HeadlessGame& game) {
        const Look look = Played(game).InSession().LookOf(part);
        game.tell("name " + look.Name + (look.Help.empty() ? "" : "; help " + look.Help));
    };
}

constexpr EventWord words[] = {
    {"key", ReadKey},
    {"type", ReadTyping},
    {"paste", ReadPaste},
    {"focus", ReadFocus},
    {"walk", ReadWalk},
    {"mouse", ReadMouse},
    {"drag", ReadDrag},
    {"drop", ReadDrop},
    {"wait", ReadWait},
    {"listen", ReadNothing<Listen>},
    {"hand", ReadNothing<TellHand>},
    {"ring", ReadNothing<TellRing>},
    {"answer", ReadNothing<TellAnswer>},
    {"no-pages", ReadNothing<OpenNoPages>},
    {"look", ReadLook},
    {"name", ReadName},
};

} // namespace

std::string ScriptName(const Part& part)
{
    const std::string name = part.Row->Name;
    return part.Row->Boxes ? name + ":" + std::to_string(part.Number) : name;
}

const Part& ReadPart(const std::string& name)
{
    const auto part = std::ranges::find(Parts(), name, ScriptName);
    Demand(part != Parts().end(), name + ": no such control");
    return *part;
}

EventWords PlayersWords()
{
    return words;
}

bool PlayedGame::BeginDrag(const Part& part)
{
    return InSession().BeginDrag(part);
}

void PlayedGame::EndDrag(const Part* part)
{
    InSession().EndDrag(part);
}

void PlayedGame::Set(const std::string& parts)
{
    HeadlessGame::Set(parts);
    InSession().Show();
    muted_ = true;
    Wait(longerThanAnyPause);
    muted_ = false;
}

void PlayedGame::PlayComputersGo()
{
    HeadlessGame::PlayComputersGo();
    InSession().Show();
}

std::vector<std::pair<std::string, std::string>> PlayedGame::Parts() const
{
    auto parts = HeadlessGame::Parts();
    if (tellsFocus)
        parts.emplace_back("focus=", Focused() == nullptr ? "none" : ScriptName(*Focused()));
    return parts;
}

void PlayedGame::Wait(int milliseconds)
{
    now_ += milliseconds;
    WakeIfDue();
}

void PlayedGame::Say(const std::string& text)
{
    if (tellsWhatIsSaid && !muted_)
        tell("says " + text);
}

bool PlayedGame::OpenHowToPlay()
{
    if (opensPages)
        tell("how to play");
    return opensPages;
}

Answer PlayedGame::AnswerMessage(const Message& message)
{
    Answer answer = Answer::Yes;
    if (message.Asks)
        answer = view.AskYesNo(message.Text, message.Title);
    else
        view.ShowMessage(message.Text, message.Title);
    if (!InSession().TakesAnswer())
        Wait(longerThanAnyPause);
    return answer;
}

void PlayedGame::WakeIfDue()
{
    if (!wakeAt_ || *wakeAt_ > now_)
        return;
    wakeAt_.reset();
    InSession().Wake();
}
