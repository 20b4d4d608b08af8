// Any bytes as a word list: a game that holds its rules for a few goes, or the one message and the
// end.

#include "headless/script.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    HeadlessGame game("", HeadlessPlatform(static_cast<std::uint32_t>(size)));
    game.Check();
    game.UseList({reinterpret_cast<const char*>(data), size});
    PlayEvents(game,
        "Option1:1 Command1 word:1 Command13 ~Text1:3 Command14 word:8 Command3 Command10 "
        "word:3 right Command7");
    if (game.FirstFault().empty())
        return 0;
    std::fprintf(stderr, "%s\n", game.FirstFault().c_str());
    std::abort();
}
