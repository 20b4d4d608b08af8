// The rules, as cases in text; headless/script.h tells how to read them. A case that fails shows
// what happened in the same form.

#include "headless/transcript.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace {

constexpr const char* beginning = "board hidden=planet/garden/simple you=garden me=planet "
                                  "swap=simple level:1 panel:no frames:yes candidates=300*zzzzzz\n"
                                  "list planet garden simple\n";

struct Case : Script { };

void PrintTo(const Case& rule, std::ostream* out)
{
    *out << rule.name;
}

std::vector<Case> ReadCases()
{
    std::vector<Case> cases;
    for (const auto& entry : std::filesystem::directory_iterator(QUORVEL_CASES)) {
        std::ifstream stream(entry.path());
        for (Script& rule : ReadScripts(stream, entry.path().filename().string())) {
            rule.name.insert(0, entry.path().stem().string() + ": ");
            cases.push_back({std::move(rule)});
        }
    }
    std::ranges::sort(cases, {}, &Case::name);
    return cases;
}

class Rules : public testing::TestWithParam<Case> { };

TEST_P(Rules, Hold)
{
    HeadlessGame game("");
    RunScript(game, beginning);
    Transcript transcript(game);
    std::string happened;
    std::string expected;
    for (const ScriptLine& line : GetParam().lines) {
        expected += line.text + "\n";
        if (!line.run)
            continue;
        happened += line.text + "\n";
        for (const std::string& told : transcript.Run(line))
            happened += told + "\n";
    }
    EXPECT_EQ(happened, expected) << "== " << GetParam().name << "\n" << happened;
    EXPECT_TRUE(game.platform.draws.empty()) << "draws that no rule took";
    EXPECT_TRUE(game.view.answers.empty()) << "answers to no question";
}

INSTANTIATE_TEST_SUITE_P(Cases, Rules, testing::ValuesIn(ReadCases()), [](const auto& row) {
    std::string name = row.param.name;
    for (char& letter : name)
        letter = std::isalnum(static_cast<unsigned char>(letter)) != 0 ? letter : '_';
    return name;
});

} // namespace
