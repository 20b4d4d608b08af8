// What happens in a script, in the form of a case: "> " and what the window is asked for, after "|"
// what the board shows by then that it did not show before; "= " and what a line has changed since.
#pragma once

#include "headless/script.h"

#include <string>
#include <utility>
#include <vector>

class Transcript {
public:
    // Listens to the game, which must not outlive it.
    explicit Transcript(HeadlessGame& game);

    // Runs a line of a script and returns what happened.
    std::vector<std::string> Run(const ScriptLine& line);

private:
    std::string Differences(); // the parts of the board that are not as they were last told

    HeadlessGame& game_;
    std::vector<std::string> lines_;
    std::vector<std::pair<std::string, std::string>> told_;
};
