#include "game/questions.h"

#include "game/game.h"

namespace {

constexpr Question questions[] = {resignation, nextGame, anotherGame};

} // namespace

std::span<const Question> Questions()
{
    return questions;
}

Answer Ask(Game& game, const Question& question)
{
    return game.view.AskYesNo(question.Text, question.Title);
}
