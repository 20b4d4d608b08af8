// The sequential reader of the word list: one text field after another, from the first to the last.
//
// The file is UTF-8 or, if it is not valid as a whole, Windows-1252; records are given in UTF-8. A
// byte order mark in front is skipped. A record ends at a comma or at the end of a line (LF, CRLF
// or CR), which is consumed with it. Blanks in front of it are skipped; blanks after it belong to
// it. A record that opens with a double quotation mark runs to the next one, or to the end of the
// file; after the closing mark, blanks and one comma or line end are consumed.
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
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

    // Reads the file whole; the first record comes next. Throws LexiconError when it is missing, is
    // no regular file (a pipe or a device could keep the game waiting), is larger than four million
    // bytes, cannot be opened or read, or is no text: a byte of it is zero, as in UTF-16, or stands
    // for nothing in Windows-1252.
    void Open();

    bool AtEnd() const { return next_ == end_; }

    // The next record, in place until the file is opened again or closed. Throws LexiconError past
    // the end.
    std::string_view ReadRecord();

    void Close();

    // The bytes that all openings so far have read.
    std::uint64_t BytesRead() const { return bytesRead_; }

private:
    std::string_view ReadQuoted(const char* begin);

    std::filesystem::path path_;
    std::vector<char> bytes_;
    std::string translated_; // from Windows-1252
    std::uint64_t bytesRead_ = 0;
    const char* next_ = nullptr;
    const char* end_ = nullptr;
};
