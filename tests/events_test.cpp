// Whatever the player does, in whatever order: no letter is lost, no rule broken, nothing stops.

#include "events.h"
#include "game/clicks.h"
#include "test_game.h"
#include "tools/self_play/seeded_platform.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <malloc.h>
#include <random>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Chance = std::mt19937;
using Words = std::vector<std::string>;

// Lists on which the rules come to their corners. List 0 is the game's own.
const Words tinyLists[] = {
    {"planet", "garden", "simple"},           // often no third first letter is left to draw
    {"aaaaaa", "baaaaa", "caaaaa", "caaaaa"}, // twelve equal letters can face the computer
    {"stream", "master", "tamers", "altars", "remast", "artsal"}, // the same letters again
    {"gardens", "planet", "garden", "simple", "eaglet", "impels", "nested", "letter", "simple"},
    {"", "planet", "garden", "simple", "******", "eaglet", "gender", "impels", "nested", "simple"},
};

std::filesystem::path ListPath(std::size_t list)
{
    static std::vector<std::unique_ptr<WordListFile>> files;
    for (std::size_t made = files.size(); made < std::size(tinyLists); ++made)
        files.push_back(std::make_unique<WordListFile>(Lines(tinyLists[made])));
    return list == 0 ? QUORVEL_WORD_LIST : files[list - 1]->Path();
}

struct Session {
    explicit Session(const Words& words) // "0", "1", "Option1:1", ...: list, seed, events
        : platform(static_cast<std::uint32_t>(std::stoul(words[1])))
        , player(ListPath(std::stoul(words[0])), platform)
    {
        alarm(20); // nothing keeps the player waiting
        for (std::size_t at = 2; at < words.size() && fault.empty(); ++at)
            fault = player.Play(words[at]);
        alarm(0);
    }
    SeededPlatform platform;
    EventPlayer player;
    std::string fault;
};

// Plays in a process of its own, so that a crash or a hang shrinks like any fault.
bool Fails(const Words& session) noexcept
{
    const pid_t child = fork();
    if (child == 0)
        _exit(Session(session).fault.empty() ? 0 : 1);
    int status = 0;
    waitpid(child, &status, 0);
    return status != 0;
}

std::string Join(const Words& words)
{
    std::string line;
    for (const std::string& word : words)
        line += word + " ";
    return line;
}

// Leaves out whatever the fault does not need: halves first, in the end single events.
std::string Shrink(Words session)
{
    for (std::size_t size = session.size() / 2; size > 0; size /= 2) {
        for (std::size_t at = 2; at < session.size();) {
            Words fewer(session.begin(), session.begin() + static_cast<std::ptrdiff_t>(at));
            for (std::size_t behind = at + size; behind < session.size(); ++behind)
                fewer.push_back(session[behind]);
            if (Fails(fewer))
                session = fewer;
            else
                at += size;
        }
    }
    return "It shrinks to:\n" + Join(session);
}

std::string DrawEvent(Chance& chance, bool patient)
{
    const std::string box = ":" + std::to_string(chance() % 6 + 1);
    const std::string guess = "Text" + std::to_string(chance() % 3 + 6) + box + "=";
    std::string text(chance() % 40 == 0 ? 5000 : chance() % 4, ' ');
    switch (chance() % 40) {
    case 0:
        return "Check1=" + std::to_string(chance() % 2);
    case 1:
        return patient ? "yes" : "right";
    case 2:
        return chance() % 3 == 0 && !patient ? "no" : "yes";
    case 3:
        for (char& letter : text)
            letter = static_cast<char>('!' + chance() % 222);
        return guess + text;
    default:
        const char* const often[] = {"Text1", "Text1", "Text2", "Text2", "SwapLetters", "Command1"};
        const std::string control(chance() % 4 == 0 ? often[chance() % std::size(often)]
                                                    : Clicks()[chance() % Clicks().size()].Control);
        return FindClick(control)->Boxes == 0 ? control : control + box;
    }
}

// Half of the sessions are on the game's own list. In some words are rare, in some the rule; a
// patient player neither gives in nor knows the words.
Words DrawSession(Chance& chance)
{
    const std::size_t list = chance() % 2 == 0 ? 0 : chance() % std::size(tinyLists) + 1;
    const unsigned wordsInHundred = std::array{2U, 10U, 70U}[chance() % 3];
    const bool patient = chance() % 2 == 0;
    Words session{std::to_string(list), std::to_string(chance() >> 8)};
    for (int event = 0; event < 1000; ++event) {
        std::string drawn = DrawEvent(chance, patient);
        if (chance() % 100 < wordsInHundred)
            drawn = "word:" + std::to_string(chance() % 1000);
        else if (event % 100 == 0)
            drawn = "Option1:" + std::to_string(chance() % 6 + 1);
        if (drawn == "Command10" && (patient || chance() % 4 != 0))
            session.emplace_back("no");
        session.push_back(chance() % 8 == 0 ? "~" + drawn : drawn);
    }
    return session;
}

std::string Setting(const char* name, const char* otherwise)
{
    const char* value = std::getenv(name);
    return value ? value : otherwise;
}

// QUORVEL_EVENTS is how many events, QUORVEL_EVENTS_SEED draws others; QUORVEL_EVENTS_SCRIPT is one
// session to play instead, and to shrink when it fails.
TEST(Events, BreakNoRule)
{
    ListPath(1);
    std::istringstream script(Setting("QUORVEL_EVENTS_SCRIPT", ""));
    const Words given{std::istream_iterator<std::string>(script), {}};
    ASSERT_TRUE(given.empty() || !Fails(given)) << Shrink(given);
    const long wanted = given.empty() ? std::stol(Setting("QUORVEL_EVENTS", "100000")) : 0;
    Chance chance(static_cast<unsigned>(std::stoul(Setting("QUORVEL_EVENTS_SEED", "1"))));
    const std::string file = "events_script.txt";
    std::map<std::string, long> counts;
    while (counts["events"] < wanted) {
        const Words drawn = DrawSession(chance);
        std::ofstream(file) << Join(drawn); // is left behind by a crash
        const Session session(drawn);
        ASSERT_EQ(session.fault, "") << Shrink(drawn);
        for (const auto& [what, count] : session.player.counts)
            counts[what] += count;
    }
    std::filesystem::remove(file);
    for (const auto& [what, count] : counts)
        std::cout << count << "\t" << what << "\n";
    for (const char* deed :
        {"Quorvel2: Word Accepted", "Quorvel2: Word Has Been Used", "Word Found: My Word",
            "letters bought", "exchanges", "Quorvel2: CORRECT!! Well Done", "words behind the 50th",
            "Quorvel2: I now know all three words I WIN!!", "events inside RefreshWindow"})
        EXPECT_TRUE(wanted < 100'000 || counts[deed] > 0) << "never happened: " << deed;
}

TEST(Events, ThousandGamesTakeNoMoreRoomThanTen)
{
    SeededPlatform platform(1);
    EventPlayer player(QUORVEL_WORD_LIST, platform);
    std::size_t inUse = 0;
    for (int game = 1; game <= 1000; ++game) {
        ASSERT_EQ(
            player.Play("Option1:6 Command1 word:1 word:3 Text1:2 Command14 right Command7"), "");
        if (game == 10)
            inUse = mallinfo2().uordblks;
    }
    EXPECT_EQ(player.counts["Quorvel2: CORRECT!! Well Done"], 1000);
    EXPECT_LE(mallinfo2().uordblks, inUse + 4096);
}

TEST(Events, ScoresAndGuessesOfAnySize)
{
    SeededPlatform platform(1);
    EventPlayer player(QUORVEL_WORD_LIST, platform);
    Board& board = player.board;
    player.Play("Option1:1 Command1 right");
    board.YourScore.Text = "3000000000";
    board.MyScore.Text = "5999999800";
    board.Text6(2).Text = std::string(1 << 20, 'x');
    board.Text7(3).Text = std::string("\0\n\x1B\x7F", 4);
    EXPECT_EQ(player.Play("Command7 Word1:2 Word2:3"), "");
    EXPECT_EQ(player.counts["Quorvel2: Sorry, but one or more of your words is wrong"], 1);
    EXPECT_EQ(board.YourScore.Text, "2999999800");
    player.Play("no Command7");
    EXPECT_EQ(player.counts["Quorvel2: I win with a Score Of"], 1);
}

} // namespace
