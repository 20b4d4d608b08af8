// event_search WORD_LIST EVENTS [SEED]: plays random sessions until so many events have run.
// event_search WORD_LIST --session "LIST SEED EVENT...": plays one, and shrinks it when it fails.
//
// Prints what happened how often. Status 0 when nothing broke, 1 when something did, 2 for a wrong
// call.

#include "tools/search/sessions.h"

#include <cstdio>
#include <exception>
#include <string_view>

int main(int argc, char* argv[])
try {
    if (argc < 3 || argc > 4) {
        std::fputs("event_search WORD_LIST EVENTS [SEED] | WORD_LIST --session SESSION\n", stderr);
        return 2;
    }
    const SessionLists lists(argv[1]);
    const bool one = argc == 4 && std::string_view(argv[2]) == "--session";
    const auto seed = [&] { return argc == 4 ? std::stoul(argv[3]) : 1; };
    const SearchResult result = one
        ? PlaySession(lists, argv[3])
        : SearchSessions(lists, std::stol(argv[2]), static_cast<std::uint32_t>(seed()));
    for (const auto& [what, count] : result.counts)
        std::printf("%ld\t%s\n", count, what.c_str());
    std::puts(result.fault.c_str());
    return result.fault.empty() ? 0 : 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "event_search: %s\n", error.what());
    return 2;
}
