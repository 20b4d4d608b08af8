// Word lists that nobody would write, and lists that change while they are read: a game that keeps
// its rules, or the one message and the end.

#include "headless/script.h"
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
    PlayEvents(game, "Option1:1 Command1");
    const bool started = game.board.Frame4.Visible;
    EXPECT_EQ(game.Ended(), !started);
    if (!started) {
        EXPECT_EQ(game.view.calls.back(),
            "Quorvel2: The file Lexicon.txt must be in the C:\\ Directory (Folder)");
    }
    PlayEvents(game, "word:1 Command13 Command14");
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
    const Row rows[] = {
        {"one word", "planet\n", false},
        {"two first letters, then an empty line", "planet\ngarden\nplanet\n\n", false},
        {"six bytes for five letters", "plèts\nmêles\nétage\nvoisé\nvoisé", false},
        {"three first letters, if case counts", "planet\nPardon\ngarden\ngarden", true},
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
    {"other words", [](const Path& list) { Write(list, "zzzzzz\nxxxxxx\nvvvvvv\nkkkkkk\nzzzzzz"); },
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

// Different words, so many of which begin with "b", as many with "c" and the rest with "a".
std::string LopsidedList(int count, int others, std::size_t blanks)
{
    std::string bytes;
    for (int k = 0; k < count; ++k) {
        bytes.append(blanks, ' ');
        bytes += k < others ? 'b' : k < 2 * others ? 'c' : 'a';
        bytes += std::to_string(100'000 + k).substr(1) + "\n";
    }
    return bytes;
}

// Work is counted and not timed: no draw of a word reads the list more than once.
TEST(HostileLists, DrawingEndsAfterSoManyBytes)
{
    struct Row {
        const char* list;
        std::string bytes;
        bool starts;
        int mostDraws;
    };
    const Row rows[] = {
        {"one try in a thousand", LopsidedList(3000, 39, 0), true, 60'000},
        {"one in 180 million, in the largest file", LopsidedList(32'767, 1, 115), false, 600},
    };
    for (const Row& row : rows) {
        const WordListFile list(row.bytes);
        HeadlessGame game(list.Path(), HeadlessPlatform(1));
        PlayEvents(game, "Option1:1 Command1");
        EXPECT_EQ(game.board.Frame4.Visible, row.starts) << row.list;
        EXPECT_LE(game.platform.taken, row.mostDraws) << row.list;
    }
}

} // namespace
