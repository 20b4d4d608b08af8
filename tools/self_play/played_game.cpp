#include "tools/self_play/played_game.h"

#include "game/board.h"
#include "game/clicks.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/rows.h"
#include "game/scoring.h"
#include "game/start_of_game.h"
#include "tools/self_play/seeded_platform.h"
#include "tools/self_play/simple_player.h"

#include <cassert>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace {

// Stands for the end of the program.
struct ProgramEnded { };

// A window that nobody sees. It answers No to another game, and counts what the messages tell.
class CountingView : public GameView {
public:
    CountingView(const Board& board, PlayedGame& played, const Story& story)
        : board_(board)
        , played_(played)
        , story_(story)
    {
    }

    void ShowMessage(const std::string& text, const std::string& title) override
    {
        story_(title + ": " + text);
        lastMessage_ = text;
        if (title == "Word Found") {
            ++played_.words;
            AddPoints(board_, points_);
        } else if (text == "Word Accepted") {
            ++played_.wordsOfPlayer;
        }
    }

    Answer AskYesNo(const std::string& text, const std::string& title) override
    {
        story_(title + "? " + text);
        played_.claimed = true;
        return Answer::No;
    }

    void RefreshWindow() override { story_("repaint"); }
    [[noreturn]] void EndProgram() override { throw ProgramEnded{}; }

    const std::string& LastMessage() const { return lastMessage_; }
    double Points() const { return std::stod(points_.Text); }

private:
    const Board& board_;
    PlayedGame& played_;
    const Story& story_;
    std::string lastMessage_;
    NumberBox points_;
};

std::string Line(const Board& board)
{
    return "you=" + Spell(board.Text1) + " me=" + Spell(board.MyLetters)
        + " swap=" + Spell(board.SwapLetters) + " you:" + board.YourScore.Text
        + " me:" + board.MyScore.Text + " bonus:" + board.Text9.Text;
}

void Play(Game& game, const Story& story, const Move& move)
{
    story("click " + std::string(move.control) + " " + std::to_string(move.index));
    const Click* click = FindClick(move.control);
    assert(click != nullptr);
    [[maybe_unused]] const bool ran = Deliver(game, *click, move.index);
    assert(ran);
}

} // namespace

PlayedGame PlayGame(const std::filesystem::path& lexicon, const SimplePlayer& player,
    std::int16_t level, std::uint32_t seed, int mostGoes, const Story& story)
{
    PlayedGame played;
    const auto board = std::make_unique<Board>();
    CountingView view(*board, played, story);
    SeededPlatform platform(seed);
    Game game{*board, view, platform, lexicon};
    try {
        Form_Load(game);
        Play(game, story, {"Option1", level});
        Play(game, story, {"Command1"}); // "OK"
        story(board->Caption);
        played.candidates = board->CandidateCount;
        while (played.goes < mostGoes) {
            story(Line(*board));
            ++played.goes;
            for (const Move& move : player.PlanGo(*board))
                Play(game, story, move);
        }
    } catch (const ProgramEnded&) {
        if (!played.claimed)
            throw std::runtime_error(view.LastMessage());
    }
    story(Line(*board));
    played.points = view.Points();
    return played;
}

void Fingerprint::Add(std::string_view line)
{
    constexpr std::uint64_t prime = 0x100000001B3;
    for (const char letter : line)
        value_ = (value_ ^ static_cast<unsigned char>(letter)) * prime;
    value_ = (value_ ^ '\n') * prime;
}

std::string Fingerprint::Text() const
{
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(value_));
    return digits;
}
