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

constexpr std::string_view keyNames[] = {"Left", "Right", "Up", "Down", "Home", "End", "Tab",
    "Backtab", "Backspace", "Delete", "Escape", "Enter", "Space", "F1"};

PlayedGame& Played(HeadlessGame& game)
{
    return dynamic_cast<PlayedGame&>(game);
}

Run ReadKey(const std::string& rest)
{
    constexpr std::string_view mark = "held-";
    const bool held = rest.starts_with(mark);
    const std::string key = rest.substr(held ? mark.size() : 0);
    Demand(std::ranges::count(keyNames, key) == 1, "no such key");
    return [=](HeadlessGame& game) { Played(game).PressKey(key, held); };
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

Run ReadListen(const std::string& rest)
{
    Demand(rest.empty(), "nothing may follow");
    return [](HeadlessGame& game) { Played(game).tellsWhatIsSaid = true; };
}

Run ReadWait(const std::string& rest)
{
    const int milliseconds = ReadNumber(rest, 1, 60'000);
    return [milliseconds](HeadlessGame& game) { Played(game).Wait(milliseconds); };
}

std::string TextOf(const Look& look)
{
    std::string text = look.Text.empty() ? "." : look.Text;
    text += look.Faint.empty() ? "" : "?" + look.Faint;
    text += look.Above.empty() ? "" : "/" + look.Above;
    text += look.Border == Edge::Raised ? "^" : look.Border == Edge::OutOfPlay ? "#" : "";
    return text + (look.Faded ? "~" : "") + (look.Chosen ? "*" : "") + (look.OnView ? "" : "!");
}

// Of all the boxes that have the name, in their order.
Run ReadLook(const std::string& rest)
{
    const auto named = [rest](const Part& part) { return rest == part.Row->Name; };
    Demand(std::ranges::any_of(Parts(), named), "no such control");
    return [=](HeadlessGame& game) {
        std::string looks = "look " + rest;
        for (const Part& part : Parts())
            looks += named(part) ? " " + TextOf(LookOf(part, game.board)) : "";
        game.tell(looks);
    };
}

Run ReadName(const std::string& rest)
{
    const Part& part = ReadPart(rest);
    return [&part](HeadlessGame& game) { game.tell("name " + LookOf(part, game.board).Name); };
}

constexpr EventWord words[] = {
    {"key", ReadKey},
    {"type", ReadTyping},
    {"paste", ReadPaste},
    {"focus", ReadFocus},
    {"listen", ReadListen},
    {"wait", ReadWait},
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

void PlayedGame::Set(const std::string& parts)
{
    HeadlessGame::Set(parts);
    InSession().Show();
    const bool muted = std::exchange(muted_, true);
    InSession().Wake();
    wakeAt_.reset();
    muted_ = muted;
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

void PlayedGame::WakeIfDue()
{
    if (!wakeAt_ || *wakeAt_ > now_)
        return;
    wakeAt_.reset();
    InSession().Wake();
}
