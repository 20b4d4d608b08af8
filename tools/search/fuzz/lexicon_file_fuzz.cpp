// Any bytes as a word list: the reader and its passes against plain ones that take all the time
// they need.

#include "lexicon/lexicon_file.h"
#include "lexicon/passes.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

using Records = std::vector<std::string>;

Records PlainlyRead(std::string_view bytes)
{
    Records records;
    const auto skip
        = [&](std::size_t count) { bytes.remove_prefix(std::min(bytes.size(), count)); };
    const auto skipBlanks = [&] { skip(bytes.find_first_not_of(' ')); };
    skip(bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0);
    while (!bytes.empty()) {
        skipBlanks();
        const bool quoted = bytes.starts_with('"');
        skip(quoted);
        const std::size_t end = bytes.find_first_of(quoted ? "\"" : ",\r\n");
        records.emplace_back(bytes.substr(0, end));
        skip(end);
        skip(quoted);
        if (quoted)
            skipBlanks();
        const bool ended = bytes.starts_with(',') || bytes.starts_with('\n');
        skip(bytes.starts_with("\r\n") ? 2 : ended || bytes.starts_with('\r'));
    }
    return records;
}

bool PlainlySpells(std::string letters, const std::string& word)
{
    int matches = 0;
    for (const char letter : word.substr(0, 6)) {
        const std::size_t at = letters.find(letter);
        if (at != std::string::npos) {
            letters[at] = '*';
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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    // The first byte can put the end of the reader's buffer between any two of the others.
    std::string bytes(reinterpret_cast<const char*>(data), size);
    if (size > 1 && data[0] % 4 == 1)
        bytes.replace(0, 1, std::string(64 * 1024 - data[0], 'x'));
    static const std::filesystem::path path = std::filesystem::temp_directory_path()
        / ("lexicon_file_fuzz." + std::to_string(getpid()));
    std::ofstream(path, std::ios::binary) << bytes;
    const Records plain = PlainlyRead(bytes);
    LexiconFile lexicon(path);

    Records records;
    lexicon.Open();
    while (!lexicon.AtEnd())
        records.emplace_back(lexicon.ReadRecord());
    Require(records == plain);

    if (plain.empty() || plain.size() > 2000)
        return 0;
    std::int16_t count = 0;
    std::string word;
    CountWords(lexicon, count, word);
    Require(static_cast<std::size_t>(count) == plain.size() && word == plain.back());
    PickRandomWord(lexicon, count, 0.5F, word);
    Require(word == plain[count < 2 ? 0 : plain.size() / 2 - 1]);
    lexicon.Open();
    Require(FindWord(lexicon, word));

    const std::string pool = bytes.substr(bytes.size() - std::min<std::size_t>(bytes.size(), 18));
    Records spelled(plain.size());
    std::int16_t found = 0;
    CollectCandidates(lexicon, count, pool, spelled, found);
    spelled.resize(static_cast<std::size_t>(found));
    Require(std::erase_if(records, [&](const auto& r) { return !PlainlySpells(pool, r); })
            + spelled.size()
        == plain.size());
    Require(spelled == records);
    return 0;
}
