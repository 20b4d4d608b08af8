#include "ui/controls.h"

#include "game/clicks.h"
#include "ui/roster.h"

#include <QWidget>

#include <string>

const BuiltControl& FindControl(const Controls& controls, std::string_view name, int number)
{
    for (const BuiltControl& control : controls)
        if (name == control.Row->Name && control.Number == number)
            return control;
    qFatal("there is no control %s with a box %d", std::string(name).c_str(), number);
}

void StopOverWrongKind(const BuiltControl& control)
{
    qFatal("%s is of another kind", qPrintable(control.Widget->objectName()));
}

// What can be clicked is asked of the table of clicks; the other boxes have a flag of their own.
bool IsEnabled(const BuiltControl& control, const Board& board)
{
    if (control.Clicked != nullptr)
        return control.Clicked->Enabled(board, static_cast<std::int16_t>(control.Number));
    if (control.Shows != nullptr && std::holds_alternative<LetterRow Board::*>(*control.Shows))
        return (board.*std::get<LetterRow Board::*>(*control.Shows))(control.Number).Enabled;
    return true;
}

bool IsOnView(const BuiltControl& control, const Board& board)
{
    if (control.Shows == nullptr)
        return true;
    if (const auto* frame = std::get_if<Frame Board::*>(control.Shows))
        return (board.**frame).Visible;
    if (const auto* label = std::get_if<Label Board::*>(control.Shows))
        return (board.**label).Visible;
    if (const auto* panel = std::get_if<Panel Board::*>(control.Shows))
        return (board.**panel).Visible;
    return true;
}
