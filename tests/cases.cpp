#include "cases.h"

#include "headless/transcript.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

const char* const beginningOfCases
    = "board hidden=planet/garden/simple you=garden me=planet "
      "swap=simple level:1 panel:no frames:yes candidates=300*zzzzzz\n"
      "list planet garden simple\n";

void PrintTo(const Case& held, std::ostream* out)
{
    *out << held.name;
}

std::string NameOf(const Case& held)
{
    std::string name = held.name;
    for (char& letter : name)
        letter = std::isalnum(static_cast<unsigned char>(letter)) != 0 ? letter : '_';
    return name;
}

std::vector<Case> ReadCases(const std::string& folder, EventWords more)
{
    std::vector<Case> cases;
    for (const auto& entry : std::filesystem::directory_iterator(QUORVEL_CASES + folder)) {
        if (entry.is_directory())
            continue;
        std::ifstream stream(entry.path());
        try {
            for (Script& script : ReadScripts(stream, entry.path().filename().string(), more)) {
                script.name.insert(0, entry.path().stem().string() + ": ");
                cases.push_back({std::move(script)});
            }
        } catch (const ScriptError& error) { // a case of its own, that does not hold
            cases.push_back({{error.what(), {{error.what(), nullptr}}}});
        }
    }
    std::ranges::sort(cases, {}, &Case::name);
    return cases;
}

void ExpectToHold(HeadlessGame& game, const Case& held)
{
    RunScript(game, beginningOfCases);
    Transcript transcript(game);
    std::string happened;
    std::string expected;
    for (const ScriptLine& line : held.lines) {
        expected += line.text + "\n";
        if (!line.run)
            continue;
        happened += line.text + "\n";
        for (const std::string& told : transcript.Run(line))
            happened += told + "\n";
    }
    EXPECT_EQ(happened, expected) << "== " << held.name << "\n" << happened;
    EXPECT_EQ(game.platform.draws.size(), 0U) << "draws that no rule took";
    EXPECT_TRUE(game.view.answers.empty()) << "answers to no question";
}
