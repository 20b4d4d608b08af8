#include "lexicon/lexicon_file.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace {

constexpr std::size_t firstBufferSize = 65536; // a list of 9000 six-letter words at one read
constexpr char sentinel = '\n';
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

constexpr auto endsField = [] {
    std::array<bool, 256> table{};
    table[','] = table['\n'] = table['\r'] = true;
    return table;
}();

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
    file_.reset(std::fopen(path_.string().c_str(), "rb"));
    if (!file_)
        throw LexiconError("cannot open the word list " + path_.string());
    std::setvbuf(file_.get(), nullptr, _IONBF, 0); // the buffer below is the only one
    if (buffer_.empty())
        buffer_.resize(firstBufferSize);
    kept_ = next_ = filled_ = 0;
    while (filled_ < byteOrderMark.size() && Refill()) { }
    if (std::string_view(buffer_.data(), filled_).starts_with(byteOrderMark))
        next_ = byteOrderMark.size();
}

bool LexiconFile::AtEnd()
{
    kept_ = next_;
    return next_ == filled_ && !Refill();
}

std::string_view LexiconFile::ReadRecord()
{
    if (AtEnd())
        throw LexiconError("read past the end of the word list");
    SkipBlanks();
    if (next_ != filled_ && buffer_[next_] == '"')
        return ReadQuoted();
    const std::size_t end = FindFieldEnd(next_);
    const std::size_t length = end - kept_;
    next_ = end;
    ConsumeSeparator();
    return {buffer_.data() + kept_, length};
}

void LexiconFile::Close()
{
    file_.reset();
}

// Reads on behind the bytes that are still needed, which move to the front of the buffer; the
// buffer grows only for a record longer than itself. False at the end of the file.
bool LexiconFile::Refill()
{
    if (!file_)
        throw LexiconError("the word list is not open");
    std::memmove(buffer_.data(), buffer_.data() + kept_, filled_ - kept_);
    next_ -= kept_;
    filled_ -= kept_;
    kept_ = 0;
    if (filled_ + 1 == buffer_.size())
        buffer_.resize(2 * buffer_.size());
    const std::size_t room = buffer_.size() - filled_ - 1;
    const std::size_t got = std::fread(buffer_.data() + filled_, 1, room, file_.get());
    if (got == 0 && std::ferror(file_.get()) != 0)
        throw LexiconError("cannot read the word list " + path_.string());
    filled_ += got;
    buffer_[filled_] = sentinel;
    return got != 0;
}

// The place of the first byte from `at` on that ends a field, or of the end of the file. A refill
// moves the record to the front of the buffer, and the place with it.
std::size_t LexiconFile::FindFieldEnd(std::size_t at)
{
    for (;;) {
        while (!endsField[static_cast<unsigned char>(buffer_[at])])
            ++at;
        if (at != filled_)
            return at;
        const std::size_t length = at - kept_;
        const bool more = Refill();
        at = kept_ + length;
        if (!more)
            return at;
    }
}

void LexiconFile::SkipBlanks()
{
    do {
        while (next_ != filled_ && buffer_[next_] == ' ')
            ++next_;
        kept_ = next_;
    } while (next_ == filled_ && Refill());
}

// One comma or line end, if one stands here; CR and LF together are one line end.
void LexiconFile::ConsumeSeparator()
{
    if (next_ == filled_ && !Refill())
        return;
    const char first = buffer_[next_];
    if (!endsField[static_cast<unsigned char>(first)])
        return;
    ++next_;
    if (first == '\r' && (next_ != filled_ || Refill()) && buffer_[next_] == '\n')
        ++next_;
}

std::string_view LexiconFile::ReadQuoted()
{
    kept_ = ++next_;
    std::size_t length = 0;
    for (;;) {
        const char* begin = buffer_.data() + kept_;
        const char* end = buffer_.data() + filled_;
        const char* mark = std::find(begin + length, end, '"');
        length = static_cast<std::size_t>(mark - begin);
        next_ = kept_ + length;
        if (mark != end)
            break;
        if (!Refill())
            return {buffer_.data() + kept_, length};
    }
    ++next_;
    while ((next_ != filled_ || Refill()) && buffer_[next_] == ' ')
        ++next_;
    ConsumeSeparator();
    return {buffer_.data() + kept_, length};
}
