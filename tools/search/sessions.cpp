#include "tools/search/sessions.h"

#include "game/clicks.h"
#include "tools/search/event_player.h"
#include "tools/self_play/seeded_platform.h"

#include <array>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Chance = std::mt19937;
using Words = std::vector<std::string>; // of a session: list, seed, events

// The session that is being played, for a crash to leave behind.
constexpr const char* crashScript = "session_under_way.txt";

const Words smallLists[] = {
    {"planet", "garden", "simple"},           // often no third first letter is left to draw
    {"aaaaaa", "baaaaa", "caaaaa", "caaaaa"}, // twelve equal letters can face the computer
    {"stream", "master", "tamers", "altars", "remast", "artsal"}, // the same letters again
    {"gardens", "planet", "garden", "simple", "eaglet", "impels", "nested", "letter", "simple"},
    {"", "planet", "garden", "simple", "******", "eaglet", "gender", "impels", "nested", "simple"},
};

SearchResult Play(const SessionLists& lists, const Words& session)
{
    SeededPlatform platform(static_cast<std::uint32_t>(std::stoul(session.at(1))));
    EventPlayer player(lists.Path(std::stoul(session.at(0))), platform);
    std::string fault;
    alarm(20); // nothing keeps the player waiting
    for (std::size_t at = 2; at < session.size() && fault.empty(); ++at)
        fault = player.Play(session[at]);
    alarm(0);
    return {fault, player.counts};
}

// Plays in a process of its own, so that a crash or a hang shrinks like any fault.
bool Fails(const SessionLists& lists, const Words& session)
{
    const pid_t child = fork();
    if (child == 0)
        _exit(Play(lists, session).fault.empty() ? 0 : 1);
    int status = 0;
    waitpid(child, &status, 0);
    return status != 0;
}

std::string Joined(const Words& words)
{
    std::string line;
    for (const std::string& word : words)
        line += word + " ";
    return line;
}

// Leaves out whatever the fault does not need: halves first, in the end single events.
Words Shrink(const SessionLists& lists, Words session)
{
    for (std::size_t size = session.size() / 2; size > 0; size /= 2) {
        for (std::size_t at = 2; at < session.size();) {
            Words fewer(session.begin(), session.begin() + static_cast<std::ptrdiff_t>(at));
            for (std::size_t behind = at + size; behind < session.size(); ++behind)
                fewer.push_back(session[behind]);
            if (Fails(lists, fewer))
                session = fewer;
            else
                at += size;
        }
    }
    return session;
}

std::string DrawEvent(Chance& chance, bool patient)
{
    const std::string box = ":" + std::to_string(chance() % 6 + 1);
    const std::string guess = "Text" + std::to_string(chance() % 3 + 6) + box + "=";
    std::string text(chance() % 40 == 0 ? 5000 : chance() % 4, ' ');
    switch (chance() % 40) {
    case 0:
        return "Check1=" + std::to_string(chance() % 2);
    case 1:
        return patient ? "yes" : "right";
    case 2:
        return chance() % 3 == 0 && !patient ? "no" : "yes";
    case 3:
        for (char& letter : text)
            letter = static_cast<char>('!' + chance() % 222);
        return guess + text;
    default:
        const char* const often[] = {"Text1", "Text1", "Text2", "Text2", "SwapLetters", "Command1"};
        const std::string control(chance() % 4 == 0 ? often[chance() % std::size(often)]
                                                    : Clicks()[chance() % Clicks().size()].Control);
        return FindClick(control)->Boxes == 0 ? control : control + box;
    }
}

// Half of the sessions are on the game's own list. In some words are rare, in some the rule; a
// patient player neither gives in nor knows the words.
Words DrawSession(Chance& chance)
{
    const std::size_t list = chance() % 2 == 0 ? 0 : chance() % std::size(smallLists) + 1;
    const unsigned wordsInHundred = std::array{2U, 10U, 70U}[chance() % 3];
    const bool patient = chance() % 2 == 0;
    Words session{std::to_string(list), std::to_string(chance() >> 8)};
    for (int event = 0; event < 1000; ++event) {
        std::string drawn = DrawEvent(chance, patient);
        if (chance() % 100 < wordsInHundred)
            drawn = "word:" + std::to_string(chance() % 1000);
        else if (event % 100 == 0)
            drawn = "Option1:" + std::to_string(chance() % 6 + 1);
        if (drawn == "Command10" && (patient || chance() % 4 != 0))
            session.emplace_back("no");
        session.push_back(chance() % 8 == 0 ? "~" + drawn : drawn);
    }
    return session;
}

} // namespace

SessionLists::SessionLists(std::filesystem::path ownList)
    : paths_{std::move(ownList)}
{
    for (const Words& words : smallLists) {
        paths_.push_back(std::filesystem::temp_directory_path()
            / ("session_list." + std::to_string(getpid()) + "." + std::to_string(paths_.size())));
        std::ofstream list(paths_.back(), std::ios::binary);
        for (const std::string& word : words)
            list << word << "\n";
    }
}

SessionLists::~SessionLists()
{
    std::error_code ignored;
    for (std::size_t list = 1; list < paths_.size(); ++list)
        std::filesystem::remove(paths_[list], ignored);
}

SearchResult SearchSessions(const SessionLists& lists, long events, std::uint32_t seed)
{
    Chance chance(seed);
    SearchResult all;
    while (all.counts["events"] < events) {
        const Words session = DrawSession(chance);
        std::ofstream(crashScript) << Joined(session);
        const SearchResult result = Play(lists, session);
        if (!result.fault.empty())
            return {result.fault + "\nIt shrinks to: " + Joined(Shrink(lists, session)), {}};
        for (const auto& [what, count] : result.counts)
            all.counts[what] += count;
    }
    std::filesystem::remove(crashScript);
    return all;
}

SearchResult PlaySession(const SessionLists& lists, const std::string& session)
{
    std::istringstream stream(session);
    const Words words{std::istream_iterator<std::string>(stream), {}};
    if (Fails(lists, words))
        return {"It shrinks to: " + Joined(Shrink(lists, words)), {}};
    return Play(lists, words);
}
