#include "lexicon/lexicon_file.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

namespace {

constexpr std::size_t firstBufferSize = 65536; // a list of 9000 six-letter words at one read
// A dozen times what 32767 records of six letters take. A damaged disk can show a file of any size,
// and the longest record of one has to fit in memory.
constexpr std::uintmax_t largestFile = 4'000'000;

constexpr char sentinel = ','; // ends a field, and makes no line end with a CR in front of it
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool EndsField(char letter)
{
    return letter == ',' || letter == '\n' || letter == '\r';
}

// CR and LF together are one line end.
const char* BehindSeparator(const char* separator)
{
    return separator + (separator[0] == '\r' && separator[1] == '\n' ? 2 : 1);
}

} // namespace

LexiconFile::LexiconFile(std::filesystem::path path)
    : path_(std::move(path))
{
}

void LexiconFile::Open()
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path_, error))
        throw LexiconError("no such word list: " + path_.string());
    if (std::filesystem::file_size(path_, error) > largestFile)
        throw LexiconError("too large for a word list: " + path_.string());
    file_.reset(std::fopen(path_.string().c_str(), "rb"));
    if (!file_)
        throw LexiconError("cannot open the word list " + path_.string());
    std::setvbuf(file_.get(), nullptr, _IONBF, 0); // the buffer below is the only one
    if (buffer_.empty())
        buffer_.resize(firstBufferSize);
    next_ = whole_ = filled_ = 0;
    if (ReadOn() && std::string_view(buffer_.data(), whole_).starts_with(byteOrderMark))
        next_ = byteOrderMark.size();
}

std::string_view LexiconFile::ReadRecord()
{
    if (AtEnd())
        throw LexiconError("read past the end of the word list");
    const char* begin = buffer_.data() + next_;
    while (*begin == ' ')
        ++begin;
    if (*begin == '"')
        return ReadQuoted(begin + 1);
    const char* end = begin;
    while (!EndsField(*end))
        ++end;
    next_ = static_cast<std::size_t>(BehindSeparator(end) - buffer_.data());
    return {begin, end};
}

void LexiconFile::Close()
{
    file_.reset();
}

// Reads on until more whole lines, or the rest of the file, stand behind next_; what is before it
// goes. False when the file has no more. The buffer grows only for a line longer than itself.
bool LexiconFile::ReadOn()
{
    if (!file_)
        throw LexiconError("the word list is not open");
    next_ = std::min(next_, filled_); // it has gone behind the sentinel with the last record
    std::memmove(buffer_.data(), buffer_.data() + next_, filled_ - next_);
    const std::size_t wholeBefore = whole_ - next_;
    filled_ -= next_;
    next_ = 0;
    std::size_t got = 0;
    do {
        if (filled_ + 1 == buffer_.size())
            buffer_.resize(2 * buffer_.size());
        const std::size_t room = buffer_.size() - filled_ - 1;
        got = std::fread(buffer_.data() + filled_, 1, room, file_.get());
        if (got == 0 && std::ferror(file_.get()) != 0)
            throw LexiconError("cannot read the word list " + path_.string());
        filled_ += got;
        whole_ = std::string_view(buffer_.data(), filled_).rfind('\n') + 1;
    } while (got != 0 && whole_ <= wholeBefore);
    if (got == 0)
        whole_ = filled_; // the last line needs no end
    buffer_[filled_] = sentinel;
    return whole_ != wholeBefore;
}

// `begin` is behind the opening mark.
std::string_view LexiconFile::ReadQuoted(const char* begin)
{
    next_ = static_cast<std::size_t>(begin - buffer_.data());
    const auto rest = [this] { return std::string_view(buffer_.data() + next_, whole_ - next_); };
    while (rest().find('"') == std::string_view::npos && ReadOn()) { }
    const std::string_view record = rest().substr(0, rest().find('"'));
    const char* behind = record.data() + record.size();
    if (record.size() != rest().size())
        ++behind;
    while (*behind == ' ')
        ++behind;
    if (EndsField(*behind))
        behind = BehindSeparator(behind);
    next_ = static_cast<std::size_t>(behind - buffer_.data());
    return record;
}
