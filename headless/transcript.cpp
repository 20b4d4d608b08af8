#include "headless/transcript.h"

#include "headless/board_text.h"

Transcript::Transcript(HeadlessGame& game)
    : game_(game)
    , told_(game.Parts())
{
    game.tell = [this](const std::string& what) {
        const std::string differences = Differences();
        lines_.push_back("> " + what + (differences.empty() ? "" : " |" + differences));
    };
}

std::vector<std::string> Transcript::Run(const ScriptLine& line)
{
    lines_.clear();
    if (line.run)
        line.run(game_);
    const std::string differences = Differences();
    if (line.text.starts_with("do ") && !differences.empty())
        lines_.push_back("=" + differences);
    return std::move(lines_);
}

std::string Transcript::Differences()
{
    std::string differences;
    auto parts = game_.Parts();
    for (std::size_t k = 0; k < parts.size(); ++k) {
        if (parts[k] != told_[k])
            differences += " " + parts[k].first + parts[k].second;
    }
    told_ = std::move(parts);
    return differences;
}
