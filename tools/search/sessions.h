// Sessions of random events, drawn from a seed, on the game's own word list and on lists that bring
// the rules to their corners. A session that fails shrinks to the few events that it takes.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

// The word lists of the sessions: number 0 is the game's own, the others are small and stand in
// files that go with this.
class SessionLists {
public:
    explicit SessionLists(std::filesystem::path ownList);
    ~SessionLists();
    SessionLists(const SessionLists&) = delete;
    SessionLists& operator=(const SessionLists&) = delete;

    const std::filesystem::path& Path(std::size_t list) const { return paths_.at(list); }

private:
    std::vector<std::filesystem::path> paths_;
};

struct SearchResult {
    std::string fault; // "" when nothing broke; else what did, and the session that does it
    std::map<std::string, long> counts; // of events, messages and deeds
};

// Plays random sessions until so many events have run or something breaks. The session under way
// stands in session_under_way.txt, which a crash leaves behind.
SearchResult SearchSessions(const SessionLists& lists, long events, std::uint32_t seed);

// Plays one session: the number of a list, a seed and the events, with blanks between them. It is
// played in a process of its own first, so that a crash or a hang shrinks as well.
SearchResult PlaySession(const SessionLists& lists, const std::string& session);
