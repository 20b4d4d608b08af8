// The rules, as cases in text: see the first lines of cases/moving_letters.txt for how to read
// them. A case that fails shows what happened in the same form.

#include "board_text.h"
#include "game/clicks.h"
#include "game/computer_go.h"
#include "game/rows.h"
#include "test_game.h"

#include <fstream>
#include <sstream>

namespace {

struct Case {
    std::string name;
    std::vector<std::string> lines;
};

void PrintTo(const Case& rule, std::ostream* out)
{
    *out << rule.name;
}

std::vector<Case> ReadCases()
{
    std::vector<Case> cases;
    for (const char* file :
        {"moving_letters", "computer_go", "ending_a_go", "ending_a_game", "start_of_game"}) {
        std::ifstream stream(std::string(QUORVEL_CASES) + file + ".txt");
        for (std::string line; std::getline(stream, line);) {
            if (line.starts_with("== "))
                cases.push_back({std::string(file) + ": " + line.substr(3), {}});
            else if (!line.empty() && line[0] != '#')
                cases.back().lines.push_back(line);
        }
    }
    return cases;
}

// "0", "<1" for just below 1, "2/6" for the draw that gives 2 out of 6, "18*0" for 18 of them.
void AddDraws(ScriptedPlatform& platform, const std::string& text)
{
    const std::size_t star = text.find('*');
    const int times = star == std::string::npos ? 1 : std::stoi(text);
    const std::string draw = star == std::string::npos ? text : text.substr(star + 1);
    const std::size_t slash = draw.find('/');
    platform.Play(times,
        draw == "<1" ? justBelowOne
            : slash == std::string::npos
            ? std::stof(draw)
            : DrawOf(std::stoi(draw), std::stoi(draw.substr(slash + 1))));
}

class Rules : public TestGame, public testing::WithParamInterface<Case> {
protected:
    Rules()
    {
        SetBoard(board,
            "hidden=planet/garden/simple you=garden me=planet swap=simple level:1 panel:no "
            "frames:yes "
            "candidates=zzzzzz*300");
        view.during = [this](const std::string& call) {
            Tell("> " + call);
            if (call == "refresh" && !nested_.empty())
                Do(std::exchange(nested_, ""));
        };
        Differences();
    }

    // One line of a case; what it leads to goes into the transcript.
    void Run(const std::string& line)
    {
        std::istringstream words(line.substr(line.find(' ') + 1));
        const bool sets = line.starts_with("board ");
        if (sets)
            SetBoard(board, line.substr(6));
        for (std::string word; !sets && words >> word;) {
            if (line.starts_with("draws "))
                AddDraws(platform, word);
            else if (line.starts_with("list "))
                listed_ += word == "none" ? "" : word + "\n";
            else if (!Ends([&] { Do(word); }))
                continue;
            else
                Tell("> end");
        }
        if (line.starts_with("list "))
            list.Write(std::exchange(listed_, ""));
        if (line == "list none")
            std::filesystem::remove(list.Path());
        const std::string differences = Differences();
        if (line.starts_with("do ") && !differences.empty())
            transcript.push_back("=" + differences);
    }

    std::vector<std::string> transcript;

private:
    void Do(const std::string& event)
    {
        const std::size_t mark = event.find(':');
        const auto index = mark == std::string::npos ? 0 : std::stoi(event.substr(mark + 1));
        if (event[0] == '~')
            nested_ = event.substr(1);
        else if (event == "yes" || event == "no")
            view.answers.push_back(event == "yes" ? Answer::Yes : Answer::No);
        else if (event == "computer")
            Command8_Click(game);
        else if (!Deliver(
                     game, *FindClick(event.substr(0, mark)), static_cast<std::int16_t>(index)))
            Tell("> refused " + event);
    }

    void Tell(const std::string& call)
    {
        const std::string differences = Differences();
        transcript.push_back(call + (differences.empty() ? "" : " |" + differences));
    }

    // The parts of the board that are not as they were last told.
    std::string Differences()
    {
        std::string differences;
        auto parts = PartsOf(board);
        for (std::size_t k = 0; k < parts.size(); ++k)
            if (told_.empty() || parts[k] != told_[k])
                differences += " " + parts[k].first + parts[k].second;
        told_ = std::move(parts);
        return differences;
    }

    std::vector<std::pair<std::string, std::string>> told_;
    std::string nested_;
    std::string listed_;
};

TEST_P(Rules, Hold)
{
    std::vector<std::string> expected;
    std::string happened;
    for (const std::string& line : GetParam().lines) {
        if (line[0] == '>' || line[0] == '=') {
            expected.push_back(line);
            continue;
        }
        const std::size_t before = transcript.size();
        Run(line);
        happened += line + "\n";
        for (std::size_t k = before; k < transcript.size(); ++k)
            happened += transcript[k] + "\n";
    }
    EXPECT_EQ(transcript, expected) << "== " << GetParam().name << "\n" << happened;
}

INSTANTIATE_TEST_SUITE_P(Cases, Rules, testing::ValuesIn(ReadCases()), [](const auto& row) {
    std::string name = row.param.name;
    for (char& letter : name)
        letter = std::isalnum(static_cast<unsigned char>(letter)) != 0 ? letter : '_';
    return name;
});

} // namespace
