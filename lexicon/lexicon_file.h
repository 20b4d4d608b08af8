// The sequential reader of the word list: one text field after another, from the first to the last.
//
// A record ends at a comma or at the end of a line (LF, CRLF or CR), which is consumed with it.
// Blanks in front of it are skipped; blanks behind it belong to it. A record that opens with a
// double quotation mark runs to the next one, or to the end of the file; behind the closing mark,
// blanks and one comma or line end are consumed. A byte order mark in front of the file is skipped.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <vector>

// The word list cannot serve: it cannot be read, or it breaks what the game relies on.
class LexiconError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class LexiconFile {
public:
    explicit LexiconFile(std::filesystem::path path);

    // Opens the file at its first record. Throws LexiconError when it is missing, is no regular
    // file (a pipe or a device could keep the game waiting), is larger than four million bytes or
    // cannot be opened or read.
    void Open();

    // True when no byte is left. Throws LexiconError when the file cannot be read.
    bool AtEnd() { return next_ >= whole_ && !ReadOn(); }

    // The next record, in place until the next call. Throws LexiconError past the end of the file
    // or when it cannot be read.
    std::string_view ReadRecord();

    void Close();

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    bool ReadOn();
    std::string_view ReadQuoted(const char* begin);

    std::filesystem::path path_;
    std::unique_ptr<std::FILE, Closer> file_;

    // The one buffer. It is searched no further than the last line end in it, or the end of the
    // file, where a sentinel stands: a record needs no bound, for it always ends before.
    std::vector<char> buffer_;
    std::size_t next_ = 0;
    std::size_t whole_ = 0;
    std::size_t filled_ = 0;
};
