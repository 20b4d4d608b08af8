// Sessions of random events, drawn from a seed, on the game's own word list and on lists that bring
// the rules to their corners.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

// Plays so many sessions of a thousand events, each in a process of its own, so that a crash or a
// hang is a fault like any other. Returns the script of the first that fails, shortened to the
// events that it takes; "" when nothing broke.
std::string SearchSessions(const std::filesystem::path& wordList, int sessions, std::uint32_t seed);
