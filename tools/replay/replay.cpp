// replay WORD_LIST SCRIPT: plays a script, see headless/script.h, and prints what happened, in the
// form of a test case. "-" for a script at the standard input.
//
// Status 0 when no fault came to light, 1 when one did, 2 for a wrong call or a malformed script.

#include "headless/transcript.h"

#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>

int main(int argc, char* argv[])
try {
    Demand(argc == 3, "usage: replay WORD_LIST SCRIPT");
    const std::string name = argv[2];
    std::ifstream file(name);
    Demand(name == "-" || file.is_open(), "cannot read " + name);
    int status = 0;
    for (const Script& script : ReadScripts(name == "-" ? std::cin : file, name)) {
        if (!script.name.empty())
            std::printf("\n== %s\n", script.name.c_str());
        HeadlessGame game(argv[1]);
        Transcript transcript(game);
        for (const ScriptLine& line : script.lines) {
            if (!line.run)
                continue;
            std::puts(line.text.c_str());
            for (const std::string& told : transcript.Run(line))
                std::puts(told.c_str());
        }
        status |= static_cast<int>(!game.FirstFault().empty());
    }
    return status;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 2;
}
