#include "test_game.h"

#include <algorithm>
#include <fstream>

WordListFile::WordListFile(const std::string& bytes)
{
    static int made = 0;
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = test ? std::string(test->test_suite_name()) + "." + test->name() : "list";
    std::ranges::replace(name, '/', '.');
    path_ = std::filesystem::path(testing::TempDir()) / (name + std::to_string(++made) + ".txt");
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
