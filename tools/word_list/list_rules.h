// What a word list has to keep to, for the game to play with it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

// The records of the list as the game reads them. Throws LexiconError when it cannot be read.
std::vector<std::string> ReadRecords(const std::filesystem::path& list);

// What is wrong with the records, a sentence each; none when the list keeps the rules.
std::vector<std::string> FindFaults(const std::vector<std::string>& records);
