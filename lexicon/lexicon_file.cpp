#include "lexicon/lexicon_file.h"

#include "lexicon/encoding.h"
#include "lexicon/regular_file.h"

#include <algorithm>
#include <bit>
#include <cstdio>
#include <cstring>
#include <utility>

namespace {

// Several times what the most records of six letters take. A damaged disk can show a file of any
// size.
constexpr std::size_t largestFile = 4'000'000;
constexpr std::size_t firstBuffer = 65536; // a list of 9000 six-letter words

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool EndsField(char letter)
{
    return letter == ',' || letter == '\n' || letter == '\r';
}

// Where the field ends that begins here: at a separator, or at the end of the text. Eight bytes are
// looked at together, since a branch for each costs more than all else that a pass does.
const char* EndOfField(const char* at, const char* end)
{
    constexpr std::uint64_t ones = 0x0101010101010101;
    while (std::endian::native == std::endian::little && end - at >= 8) {
        std::uint64_t eight = 0;
        std::memcpy(&eight, at, 8);
        // The upper bit of each byte that is no greater than a comma, and perhaps of some after it.
        std::uint64_t low = (eight - ones * (',' + 1)) & ~eight & (ones * 0x80);
        for (; low != 0; low &= low - 1) {
            const char* found = at + std::countr_zero(low) / 8;
            if (EndsField(*found))
                return found;
        }
        at += 8;
    }
    return std::find_if(at, end, EndsField);
}

// What comes after the separator that stands here. CR and LF together are one.
const char* AfterSeparator(const char* at, const char* end)
{
    const bool two = *at == '\r' && end - at >= 2 && at[1] == '\n';
    return at + (two ? 2 : 1);
}

} // namespace

LexiconFile::LexiconFile(std::filesystem::path path)
    : path_(std::move(path))
{
}

void LexiconFile::Open()
{
    Close();
    const File file = OpenRegularFile(path_);
    if (!file)
        throw LexiconError("no word list to read: " + path_.string());
    std::setvbuf(file.get(), nullptr, _IONBF, 0); // all of it is read at once
    std::size_t size = 0;
    do {
        if (size == bytes_.size())
            bytes_.resize(std::max(firstBuffer, 2 * size));
        size += std::fread(bytes_.data() + size, 1, bytes_.size() - size, file.get());
    } while (size == bytes_.size() && size <= largestFile);
    if (std::ferror(file.get()) != 0)
        throw LexiconError("cannot read the word list " + path_.string());
    if (size > largestFile)
        throw LexiconError("too large for a word list: " + path_.string());
    bytesRead_ += size;

    std::string_view text(bytes_.data(), size);
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    if (text.find('\0') != std::string_view::npos)
        throw LexiconError("the word list is no text: " + path_.string());
    if (!IsUtf8(text)) {
        auto translated = Utf8OfWindows1252(text);
        if (!translated)
            throw LexiconError("neither UTF-8 nor Windows-1252: " + path_.string());
        text = translated_ = *std::move(translated);
    }
    next_ = text.data();
    end_ = next_ + text.size();
}

std::string_view LexiconFile::ReadRecord()
{
    if (AtEnd())
        throw LexiconError("read past the end of the word list");
    const char* begin = next_;
    while (begin != end_ && *begin == ' ')
        ++begin;
    if (begin != end_ && *begin == '"')
        return ReadQuoted(begin + 1);
    const char* end = EndOfField(begin, end_);
    next_ = end == end_ ? end : AfterSeparator(end, end_);
    return {begin, static_cast<std::size_t>(end - begin)};
}

void LexiconFile::Close()
{
    next_ = end_ = nullptr;
}

// `begin` is after the opening mark.
std::string_view LexiconFile::ReadQuoted(const char* begin)
{
    const char* end = std::find(begin, end_, '"');
    const char* after = end == end_ ? end : end + 1;
    while (after != end_ && *after == ' ')
        ++after;
    next_ = after != end_ && EndsField(*after) ? AfterSeparator(after, end_) : after;
    return {begin, static_cast<std::size_t>(end - begin)};
}
