#include "tools/search/sessions.h"

#include "game/board.h"
#include "game/clicks.h"
#include "headless/fingerprint.h"
#include "headless/script.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <iterator>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace {

using Player = std::function<bool(const std::string& script)>;

constexpr int eventsOfSession = 1000;

const char* const smallLists[] = {
    "list planet garden simple",                      // often no third first letter is left to draw
    "list aaaaaa baaaaa caaaaa caaaaa",               // twelve equal letters can face the computer
    "list stream master tamers altars remast artsal", // words of the same letters
    "list gardens planet garden simple eaglet impels nested letter simple",
    "list _ planet garden simple ****** eaglet gender impels nested simple",
    "list планет กขฃคฅฆ 𐐨𐐩𐐪𐐫𐐬𐐭 платен ฆฅคฃขก 𐐭𐐨𐐩𐐪𐐫𐐬 ланกขฃ _", // two, three and four bytes
};

// Draws of one event or one session. Each has its own, so that a change of one moves no other.
class Chance {
public:
    Chance(std::uint32_t seed, int session, int event)
        : state_(Spread(Spread(Spread(seed) + static_cast<std::uint64_t>(session))
              + static_cast<std::uint64_t>(event)))
    {
    }

    // 0 to below the count.
    int Below(int count)
    {
        state_ = Spread(state_ + 1);
        return static_cast<int>((state_ >> 33) % static_cast<std::uint64_t>(count));
    }

    // Every control has a lot, and the highest wins: a new control takes events from the others and
    // leaves the rest as they were.
    const Click& DrawClick()
    {
        state_ = Spread(state_ + 1);
        return *std::ranges::max_element(Clicks(), {}, [this](const Click& click) {
            Fingerprint name;
            name.Add(click.Control);
            return Spread(state_ ^ name.Value());
        });
    }

private:
    static std::uint64_t Spread(std::uint64_t bits)
    {
        for (const int shift : {32, 29, 32})
            bits = (bits ^ (bits >> shift)) * 0x9E3779B97F4A7C15;
        return bits;
    }

    std::uint64_t state_;
};

struct Session {
    std::string header;
    std::vector<std::string> events;

    std::string Text() const
    {
        std::string text = header + "do";
        for (const std::string& event : events)
            text += " " + event;
        return text + "\n";
    }
};

std::string DrawTyping(Chance& chance, const std::string& box)
{
    std::string text;
    for (int size = chance.Below(40) == 0 ? 5000 : chance.Below(4); size > 0; --size)
        text += static_cast<char>('!' + chance.Below(222));
    return "Text" + std::to_string(6 + chance.Below(3)) + box + "=" + text;
}

// A patient player neither gives in nor knows the words.
std::string DrawEvent(Chance& chance, bool patient)
{
    const std::string box{':', static_cast<char>('1' + chance.Below(lettersPerWord))};
    const int kind = chance.Below(40);
    if (kind == 0)
        return "Check1=" + std::to_string(chance.Below(2));
    if (kind == 1)
        return patient ? "yes" : "right";
    if (kind == 2)
        return chance.Below(3) == 0 && !patient ? "no" : "yes";
    if (kind == 3)
        return DrawTyping(chance, box);
    const char* const often[] = {"Text1", "Text1", "Text2", "Text2", "SwapLetters", "Command1"};
    const Click& click
        = kind < 13 ? *FindClick(often[chance.Below(std::size(often))]) : chance.DrawClick();
    return std::string(click.Control) + (click.Boxes > 0 ? box : "");
}

// Half of the sessions are on the game's own list. In some words are rare, in some the rule.
Session DrawSession(std::uint32_t seed, int number)
{
    Chance chance(seed, number, 0);
    Session session{"check\n", {}};
    if (chance.Below(2) == 0)
        session.header += smallLists[chance.Below(std::size(smallLists))] + std::string("\n");
    session.header += "seed " + std::to_string(chance.Below(1 << 24)) + "\n";
    const int wordsInHundred = std::array{2, 10, 70}[static_cast<std::size_t>(chance.Below(3))];
    const bool patient = chance.Below(2) == 0;
    for (int event = 1; event <= eventsOfSession; ++event) {
        Chance own(seed, number, event);
        const bool waits = own.Below(8) == 0;
        std::string drawn = DrawEvent(own, patient);
        if (own.Below(100) < wordsInHundred)
            drawn = "word:" + std::to_string(own.Below(1000));
        else if (event % 100 == 1)
            drawn = "Option1:" + std::to_string(1 + own.Below(levels));
        if (drawn == "Command10" && (patient || own.Below(4) != 0))
            session.events.emplace_back("no");
        session.events.push_back((waits ? "~" : "") + drawn);
    }
    return session;
}

// Leaves out whatever the fault does not need: halves first, in the end single events.
Session Shrink(Session session, const Player& fails)
{
    for (auto size = std::ssize(session.events) / 2; size > 0; size /= 2) {
        for (std::ptrdiff_t at = 0; at < std::ssize(session.events);) {
            Session fewer = session;
            const auto from = fewer.events.begin() + at;
            fewer.events.erase(from, from + std::min(size, fewer.events.end() - from));
            if (!fewer.events.empty() && fails(fewer.Text()))
                session = fewer;
            else
                at += size;
        }
    }
    return session;
}

} // namespace

bool Fails(const std::filesystem::path& wordList, const std::string& script)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(20); // nothing keeps the player waiting
        const auto fails = [&]() noexcept {
            HeadlessGame game(wordList);
            RunScript(game, script);
            return !game.FirstFault().empty();
        };
        _exit(fails() ? 1 : 0);
    }
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        throw std::system_error(errno, std::generic_category(), "a session could not be played");
    return status != 0;
}

std::string SearchSessions(int sessions, std::uint32_t seed, const Player& fails)
{
    for (int number = 1; number <= sessions; ++number) {
        const Session session = DrawSession(seed, number);
        if (fails(session.Text()))
            return Shrink(session, fails).Text();
    }
    return "";
}
