// Word lists that nobody would write, and lists that change while they are read: a game that keeps
// its rules, or the one message and the end.

#include "headless/headless_game.h"
#include "lexicon/lexicon_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <sys/stat.h>

namespace {

using Path = std::filesystem::path;

const std::string words = "planet\ngarden\nsimple\nnested\nsimple\n";
const std::string manyWords = [] {
    std::string bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += words;
    return bytes;
}();

// Starts a game and plays a few goes, on a list to which something happens at one of the draws: one
// stands before each pick of a hidden word, the eighteen of the deal between the last pick and the
// collecting of candidates. False when the message came instead of a game.
bool Starts(const Path& path, int draw = 0, const std::function<void()>& happening = nullptr)
{
    HeadlessGame game(path, HeadlessPlatform(1));
    game.Check();
    game.platform.onDraw = [&game, draw, &happening] {
        if (game.platform.taken == draw)
            happening();
    };
    game.Play("Option1:1 Command1");
    const bool started = !game.Ended();
    if (!started) {
        EXPECT_EQ(game.view.calls.back(),
            "Quorvel2: The file Lexicon.txt must be in the C:\\ Directory (Folder)");
    }
    game.Play("word:1 Command13 Command14");
    EXPECT_EQ(game.FirstFault(), "");
    return started;
}

TEST(HostileLists, StartAGameOrEndInTheMessage)
{
    struct Row {
        const char* list;
        std::string bytes;
        bool starts;
    };
    std::string longer;
    std::string binary;
    std::string utf16 = "\xFF\xFE";
    for (unsigned i = 1, value = 1; i <= 1000; ++i, value = value * 1664525 + 1013904223) {
        longer += std::string(i, static_cast<char>('a' + i % 26)) + "\n";
        binary += {static_cast<char>(value >> 24), static_cast<char>(value >> 16)};
    }
    for (const char letter : words)
        utf16 += {letter, '\0'};
    const Row rows[] = {
        {"one word", "planet\n", false},
        {"binary", binary, false},
        {"ten million letters in one line", std::string(10'000'000, 'x'), false},
        {"ten million, then words", std::string(10'000'000, 'x') + "\n" + words, false},
        {"only commas", std::string(20'000, ','), false},
        {"a quotation never closed", "\"" + manyWords, false},
        {"two first letters, then an empty line", "planet\ngarden\nplanet\n\n", false},
        {"words of 1 to 1000 letters", longer, false},
        {"UTF-16", utf16, false},
        {"UTF-8, seven bytes", "plan\xC3\xA8t\n\xC3\xA9tages\nv\xC3\xAAture\n", false},
        {"UTF-8, six bytes", "pl\xC3\xA8ts\nm\xC3\xAAles\n\xC3\xA9tage\nvois\xC3\xA9\nvois\xC3\xA9",
            true},
        {"no line end, commas and blanks", "planet,  garden,simple,nested, simple", true},
        {"capitals and small letters", "PLANET\nplanet\nGarden\nSIMPLE\nplanet", true},
        {"zeros for letters",
            std::string("a\0\0\0\0\0\nb\0\0\0\0\0\nc\0\0\0\0\0\nd\0\0\0\0\0\n", 28), true},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Starts(WordListFile(row.bytes).Path()), row.starts) << row.list;
    EXPECT_FALSE(Starts("/proc/self/mem")) << "a file that opens and cannot be read";
}

// What can come in the place of the list.
struct Change {
    const char* name;
    void (*make)(const Path& list);
    std::optional<bool> starts; // nothing where it depends on the draws, or on who plays
};

void Write(const Path& list, const std::string& bytes)
{
    std::ofstream(list) << bytes;
}

const Change changes[] = {
    {"nothing", [](const Path& list) { remove(list); }, false},
    {"fewer words", [](const Path& list) { Write(list, "planet\n"); }, false},
    {"more words", [](const Path& list) { Write(list, words + words); }, true},
    {"other words", [](const Path& list) { Write(list, "eaglet\nimpels\nsimple\ngarden\nsimple"); },
        {}},
    {"a hundred gigabytes", [](const Path& list) { resize_file(list, 100'000'000'000); }, false},
    {"a folder", [](const Path& list) { remove(list), create_directory(list); }, false},
    {"a named pipe", [](const Path& list) { remove(list), mkfifo(list.c_str(), 0600); }, false},
    {"no right to read it", [](const Path& list) { permissions(list, {}); }, {}},
};

TEST(HostileLists, ChangeBeforeTheStartOrBetweenItsPasses)
{
    for (const Change& change : changes) {
        SCOPED_TRACE(change.name);
        for (int draw = 0; draw <= 21; ++draw) {
            const WordListFile list(words);
            if (draw == 0)
                change.make(list.Path());
            const bool started = Starts(list.Path(), draw, [&] { change.make(list.Path()); });
            EXPECT_EQ(started, change.starts.value_or(started)) << "draw " << draw;
        }
    }
}

// The reader holds the first of the list when the rest of it goes.
TEST(HostileLists, CutShortInTheMiddleOfAPass)
{
    const WordListFile list(manyWords);
    LexiconFile lexicon(list.Path());
    lexicon.Open();
    EXPECT_EQ(lexicon.ReadRecord(), "planet");
    list.Write("");
    int records = 1;
    for (; !lexicon.AtEnd(); ++records)
        lexicon.ReadRecord();
    EXPECT_LT(records, 25'000);
    EXPECT_THROW(lexicon.ReadRecord(), LexiconError);
}

} // namespace
