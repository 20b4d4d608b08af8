#include "test_game.h"

#include <fstream>
#include <random>

WordListFile::WordListFile(const std::string& bytes)
{
    // Tests run side by side, and from several builds.
    const std::string name = "words." + std::to_string(std::random_device{}());
    path_ = std::filesystem::path(testing::TempDir()) / (name + ".txt");
    Write(bytes);
}

WordListFile::~WordListFile()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void WordListFile::Write(const std::string& bytes) const
{
    std::ofstream(path_, std::ios::binary) << bytes;
}

std::string Lines(const std::vector<std::string>& words)
{
    std::string lines;
    for (const std::string& word : words)
        lines += word + "\n";
    return lines;
}
