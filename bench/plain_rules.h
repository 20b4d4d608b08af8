// The rules of the word list and of the computer's search once more, step by step and with no
// thought of speed: the yardstick for the timings, and a second opinion on the answers. One word a
// line, and one byte a letter.
#pragma once

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

struct Board;

namespace plain {

// The number of words, and the last of them.
std::pair<int, std::string> CountWords(const std::filesystem::path& list);

std::vector<std::string> CollectCandidates(
    const std::filesystem::path& list, int wordCount, const std::string& pool);

// The word that the computer finds on its go, "" when there is none. The rows come back as they
// were.
std::string SearchAllExchanges(Board& board);

} // namespace plain
