// Any bytes as a word list: a game that holds its rules for a few goes, or the one message and the
// end.

#include "tools/search/event_player.h"
#include "tools/self_play/seeded_platform.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <unistd.h>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static const std::filesystem::path path = std::filesystem::temp_directory_path()
        / ("start_of_game_fuzz." + std::to_string(getpid()));
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    SeededPlatform platform(static_cast<std::uint32_t>(size));
    EventPlayer player(path, platform);
    const std::string fault = player.Play("Option1:1 Command1 word:1 Command13 ~Text1:3 Command14 "
                                          "word:8 Command3 Command10 word:3 right Command7");
    if (fault.empty())
        return 0;
    std::fprintf(stderr, "%s\n", fault.c_str());
    std::abort();
}
