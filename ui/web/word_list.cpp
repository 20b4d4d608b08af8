#include "ui/web/word_list.h"

#include "lexicon/regular_file.h"

#include <emscripten.h>

#include <cstddef>
#include <string_view>

namespace {

constexpr const char* path = "Lexicon.txt";

std::string_view wordList; // kept by the page as long as it is there

} // namespace

const char* WordListPath()
{
    return path;
}

File OpenRegularFile(const std::filesystem::path& asked)
{
    const bool there = wordList.data() != nullptr && asked == path;
    return {there ? fmemopen(const_cast<char*>(wordList.data()), wordList.size(), "r") : nullptr,
        std::fclose};
}

extern "C" EMSCRIPTEN_KEEPALIVE void HandOverWordList(const char* bytes, std::size_t size)
{
    wordList = {bytes, size};
}
