// random_sessions WORD_LIST SESSIONS [SEED]: plays so many random sessions of a thousand events.
//
// A session that fails is printed as a script, which `replay` plays again. Status 0 when nothing
// broke, 1 when something did, 2 for a wrong call.

#include "headless/script_error.h"
#include "tools/search/sessions.h"

#include <cstdio>
#include <exception>

int main(int argc, char* argv[])
try {
    Demand(argc == 3 || argc == 4, "usage: random_sessions WORD_LIST SESSIONS [SEED]");
    const auto seed = argc == 4 ? ReadNumber<std::uint32_t>(argv[3], 0, UINT32_MAX) : 1;
    const std::string script = SearchSessions(ReadNumber(argv[2], 1, 1'000'000), seed,
        [argv](const std::string& played) { return Fails(argv[1], played); });
    std::fputs(script.c_str(), stdout);
    return script.empty() ? 0 : 1;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
