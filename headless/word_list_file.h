// A word list in a file that goes with it.
#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

class WordListFile {
public:
    // Games run side by side, and from several builds.
    explicit WordListFile(const std::string& bytes)
        : path_(std::filesystem::temp_directory_path()
              / ("words." + std::to_string(std::random_device{}()) + ".txt"))
    {
        Write(bytes);
    }
    ~WordListFile()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    WordListFile(const WordListFile&) = delete;
    WordListFile& operator=(const WordListFile&) = delete;

    void Write(const std::string& bytes) const { std::ofstream(path_, std::ios::binary) << bytes; }
    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};
