// Any bytes as a word list: the reader and its passes against plain ones that take all the time
// they need.

#include "lexicon/letters.h"
#include "lexicon/lexicon_file.h"
#include "lexicon/passes.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

using Records = std::vector<std::u32string>;

std::string Utf8(std::u32string_view letters)
{
    std::string bytes;
    const auto add = [&bytes](char32_t byte) { bytes += static_cast<char>(byte); };
    for (const char32_t letter : letters) {
        const int more = letter < 0x80 ? 0 : letter < 0x800 ? 1 : letter < 0x10000 ? 2 : 3;
        add(more == 0 ? letter : (0xFF00U >> (more + 1) & 0xFFU) | letter >> 6 * more);
        for (int k = more - 1; k >= 0; --k)
            add(0x80U | (letter >> 6 * k & 0x3FU));
    }
    return bytes;
}

// Takes for a letter what comes out the same when it is written again.
std::optional<std::u32string> PlainlyFromUtf8(std::string_view bytes)
{
    std::u32string letters;
    while (!bytes.empty()) {
        char32_t letter = 0;
        std::size_t size = 0;
        bool found = false;
        while (!found && ++size <= std::min<std::size_t>(4, bytes.size())) {
            const auto byte = static_cast<unsigned char>(bytes[size - 1]);
            letter = size == 1 ? byte
                    & (byte < 0x80        ? 0x7FU
                            : byte < 0xE0 ? 0x1FU
                            : byte < 0xF0 ? 0xFU
                                          : 7U)
                               : letter << 6U | (byte & 0x3FU);
            found = letter < 0x110000 && (letter < 0xD800 || letter > 0xDFFF)
                && Utf8({&letter, 1}) == bytes.substr(0, size);
        }
        if (!found)
            return {};
        letters += letter;
        bytes.remove_prefix(size);
    }
    return letters;
}

std::optional<std::u32string> PlainlyFromWindows1252(std::string_view bytes)
{
    constexpr std::u32string_view upper = U"€?‚ƒ„…†‡ˆ‰Š‹Œ?Ž??‘’“”•–—˜™š›œ?žŸ";
    std::u32string letters;
    for (const char byte : bytes) {
        const auto number = static_cast<unsigned char>(byte);
        const bool special = number >= 0x80 && number < 0xA0;
        letters += special ? upper[number - 0x80U] : char32_t{number};
        if (special && letters.back() == U'?')
            return {};
    }
    return letters;
}

// Nothing when the bytes are no text.
std::optional<Records> PlainlyRead(std::string_view bytes)
{
    if (bytes.starts_with("\xEF\xBB\xBF"))
        bytes.remove_prefix(3);
    auto decoded = PlainlyFromUtf8(bytes);
    if (!decoded)
        decoded = PlainlyFromWindows1252(bytes);
    if (!decoded || decoded->find(U'\0') != std::u32string::npos)
        return {};
    Records records;
    std::u32string_view text = *decoded;
    const auto skip = [&](std::size_t count) { text.remove_prefix(std::min(text.size(), count)); };
    const auto skipBlanks = [&] { skip(text.find_first_not_of(U' ')); };
    while (!text.empty()) {
        skipBlanks();
        const bool quoted = text.starts_with(U'"');
        skip(quoted);
        const std::size_t end = text.find_first_of(quoted ? U"\"" : U",\r\n");
        records.emplace_back(text.substr(0, end));
        skip(end);
        skip(quoted);
        if (quoted)
            skipBlanks();
        const bool ended = text.starts_with(U',') || text.starts_with(U'\n');
        skip(text.starts_with(U"\r\n") ? 2 : ended || text.starts_with(U'\r'));
    }
    return records;
}

bool PlainlySpells(std::u32string letters, const std::u32string& word)
{
    int matches = 0;
    for (const char32_t letter : word.substr(0, 6)) {
        const std::size_t at = letters.find(letter);
        if (at != std::u32string::npos) {
            letters[at] = U'*';
            ++matches;
        }
    }
    return matches == 6;
}

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

bool CanRead(LexiconFile& lexicon)
{
    try {
        lexicon.Open();
        return true;
    } catch (const LexiconError&) {
        return false;
    }
}

void ComparePasses(LexiconFile& lexicon, Records plain)
{
    const WordCount counted = CountWords(lexicon);
    Require(static_cast<std::size_t>(counted.records) == plain.size());
    Require(counted.last == Utf8(plain.back()));
    const auto picked = PickRandomWord(lexicon, counted.records, 0.5F);
    Require(picked.has_value() == (plain.size() >= 2));
    Require(!picked || *picked == Utf8(plain[plain.size() / 2 - 1]));
    lexicon.Open();
    Require(FindWord(lexicon, Utf8(plain.front())));

    // The last letters of the list, as many as a game has.
    std::u32string pool;
    for (std::size_t k = plain.size(); k > 0 && pool.size() < 18; --k)
        pool += plain[k - 1].substr(0, 18 - pool.size());
    std::vector<std::string> spelled(plain.size());
    spelled.resize(
        static_cast<std::size_t>(CollectCandidates(lexicon, counted.records, Utf8(pool), spelled)));
    std::erase_if(plain, [&](const auto& record) { return !PlainlySpells(pool, record); });
    Require(std::ranges::equal(spelled, plain, {}, {}, Utf8));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    static const std::filesystem::path path = std::filesystem::temp_directory_path()
        / ("lexicon_file_fuzz." + std::to_string(getpid()));
    std::ofstream(path, std::ios::binary) << bytes;
    const auto plain = PlainlyRead(bytes);
    LexiconFile lexicon(path);
    Require(CanRead(lexicon) == plain.has_value());
    if (!plain)
        return 0;

    for (const std::u32string& record : *plain) {
        const std::string_view read = lexicon.ReadRecord();
        Require(read == Utf8(record) && CountLetters(read) == record.size());
    }
    Require(lexicon.AtEnd());
    if (!plain->empty() && plain->size() <= 2000)
        ComparePasses(lexicon, *plain);
    return 0;
}
