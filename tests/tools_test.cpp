// The tools as they are called: what they print, errors among it, and their status.

#include "headless/word_list_file.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <sys/wait.h>

namespace {

struct Call {
    const char* tool;
    const char* options; // "LIST" for the word list of the game, "FILE" for a file of these bytes:
    std::string bytes;
    int status;
    std::string prints; // with the file as "FILE"
};

void Replace(std::string& text, const std::string& from, const std::string& to)
{
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
        text.replace(at, from.size(), to);
}

void Expect(const Call& call)
{
    const WordListFile file(call.bytes);
    std::string command
        = "'" QUORVEL_TOOLS_FOLDER + std::string(call.tool) + "' " + call.options + " 2>&1";
    Replace(command, "LIST", "'" QUORVEL_WORD_LIST "'");
    Replace(command, "FILE", file.Path().string());
    std::FILE* const pipe = popen(command.c_str(), "r");
    ASSERT_NE(pipe, nullptr);
    std::string prints;
    for (int letter = 0; (letter = std::fgetc(pipe)) != EOF;)
        prints += static_cast<char>(letter);
    const int ended = pclose(pipe);
    Replace(prints, file.Path().string(), "FILE");
    EXPECT_EQ(prints, call.prints) << command;
    EXPECT_TRUE(WIFEXITED(ended) && WEXITSTATUS(ended) == call.status) << command << ended;
}

TEST(Tools, PrintAndEndAsTheyShould)
{
    const std::string board = "board hidden=planet/garden/simple you=garden me=planet level:1 "
                              "panel:no frames:yes swap=simpl";
    const std::string fault
        = "> fault: the letters are not those of the hidden words: you=ardeng "
          "me=planet swap=simplx up=...... held= you:0 me:0 bonus:0 | you=ardeng\n";
    const Call calls[] = {
        {"replay/replay", "LIST FILE", "== turned\n" + board + "e\ndo Command4\n> not played\n", 0,
            "\n== turned\n" + board + "e\ndo Command4\n= you=ardeng\n"},
        {"replay/replay", "LIST - <FILE", "check\n" + board + "x\ndo Command4\n== another\ncheck\n",
            1, "check\n" + board + "x\ndo Command4\n" + fault + "\n== another\ncheck\n"},
        {"replay/replay", "LIST FILE", "check\ndo Comand4\n", 2,
            "FILE:2: Comand4: no such event\n"},
        {"replay/replay", "LIST FILE.none", "", 2, "cannot read FILE.none\n"},
        {"replay/replay", "LIST", "", 2, "usage: replay WORD_LIST SCRIPT\n"},
        {"search/random_sessions", "LIST 2 7", "", 0, ""},
        {"search/random_sessions", "LIST 2 -7", "", 2,
            "\"-7\" is not a number from 0 to 4294967295\n"},
        {"word_list/check_word_list", "LIST", "", 0,
            "It keeps the rules: 6967 words of six letters.\nIts largest game finds 2000 words, of "
            "2000 that a game has room for: beyond, thumps, garlic.\n"},
        {"word_list/check_word_list", "FILE", "planet\ngarden\nsimple\n", 1,
            "Its records, without the last, have fewer than three first letters: add words with "
            "other "
            "ones, in front of the last.\n"},
        {"word_list/check_word_list", "FILE FILE", "", 2, "usage: check_word_list [--fit] FILE\n"},
        {"word_list/check_word_list", "FILE.none", "", 1, "no word list to read: FILE.none\n"},
        {"word_list/check_word_list", "--fit FILE", "3 planet\n1 garden\n1 simple\npetals\n", 0,
            "No word has to leave: the largest game fits.\nIt keeps the rules: 4 words of six "
            "letters.\nIts largest game finds 4 words, of 2000 that a game has room for: garden, "
            "simple, planet.\nplanet\ngarden\nsimple\npetals\n"},
        {"word_list/check_word_list", "--fit FILE", "9999 planet\n10000 garden\n5simple\n", 1,
            "Record 2, \"10000 garden\", has 12 letters and not six.\n"
            "Record 3, \"5simple\", has 7 letters and not six.\n"
            "Its records, without the last, have fewer than three first letters: add words with "
            "other "
            "ones, in front of the last.\n"},
    };
    for (const Call& call : calls)
        Expect(call);
}

} // namespace
