// Sessions of random events, drawn from a seed, on the game's own word list and on lists that bring
// the rules to their corners.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

// Plays the script in a process of its own, so that a crash or a hang is a fault like any other.
bool Fails(const std::filesystem::path& wordList, const std::string& script);

// Plays so many sessions of a thousand events. Returns the script of the first that fails,
// shortened to the events that it takes; "" when nothing broke.
std::string SearchSessions(
    int sessions, std::uint32_t seed, const std::function<bool(const std::string& script)>& fails);
