#include "headless/headless_game.h"

#include "game/clicks.h"
#include "game/start_of_game.h"
#include "headless/script.h"

#include <sstream>
#include <utility>

HeadlessGame::HeadlessGame(std::filesystem::path wordList, HeadlessPlatform chance)
    : platform(std::move(chance))
    , game{board, view, platform, std::move(wordList)}
{
    view.during = [this](const std::string& call) { OnCall(call); };
    Form_Load(game);
}

void HeadlessGame::StartProgram()
{
    board = Board{};
    view.answers.clear();
    pending_.clear();
    ended_ = false;
    if (referee_)
        referee_->Begin();
    Form_Load(game);
}

void HeadlessGame::Play(const Event& event)
{
    if (!fault_.empty())
        return;
    if (event.waits) {
        pending_.push_back(event);
        return;
    }
    if (ended_)
        StartProgram();
    try {
        try {
            event.run(*this);
            RunPending();
            if (referee_)
                referee_->AfterEvent();
        } catch (const ProgramEnded&) {
            ended_ = true;
            Tell("end");
            if (referee_)
                referee_->AtEnd(view.calls.back());
        }
    } catch (const Fault& fault) {
        fault_ = fault.text;
        Tell("fault: " + fault_);
    }
}

void HeadlessGame::Play(std::string_view events)
{
    std::istringstream words{std::string(events)};
    for (std::string word; words >> word;)
        Play(ReadEvent(word));
}

bool HeadlessGame::Click(std::string_view control, std::int16_t index)
{
    const ::Click& click = *FindClick(control);
    if (!click.OnView(board, index) || !click.Enabled(board, index)
        || (referee_ && referee_->Forbids(control))) {
        std::string refused("refused ");
        refused.append(control).append(index > 0 ? 1 : 0, ':');
        Tell(index > 0 ? refused + std::to_string(index) : refused);
        return false;
    }
    if (!referee_)
        return Deliver(game, click, index);
    const int repaints = referee_->BeforeClick(control);
    Deliver(game, click, index);
    referee_->AfterClick(control, repaints);
    return true;
}

void HeadlessGame::UseList(const std::string& bytes)
{
    game.lexicon = list_.emplace(bytes).Path();
}

void HeadlessGame::UseNoList()
{
    UseList("");
    std::filesystem::remove(game.lexicon);
}

void HeadlessGame::RunPending()
{
    while (!pending_.empty()) {
        const Event event = std::move(pending_.front());
        pending_.pop_front();
        event.run(*this);
    }
}

void HeadlessGame::OnCall(const std::string& call)
{
    Tell(call);
    if (referee_)
        referee_->OnCall(call);
    if (call != "repaint")
        return;
    const bool interrupted = !pending_.empty();
    RunPending();
    if (referee_)
        referee_->Interrupted(interrupted);
}

void HeadlessGame::Tell(const std::string& what)
{
    if (tell)
        tell(what);
}
