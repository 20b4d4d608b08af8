#include "ui/focus.h"

#include "game/board.h"
#include "ui/guess_box.h"
#include "ui/letter_tile.h"
#include "ui/roster.h"

#include <algorithm>
#include <map>

namespace {

// The board's word on every frame around the control, and on the control itself.
bool IsInPlay(const Controls& controls, const Board& board, const QWidget& widget)
{
    for (const QWidget* part = &widget; part != nullptr; part = part->parentWidget()) {
        const auto control = std::find_if(controls.begin(), controls.end(),
            [part](const BuiltControl& built) { return built.Widget == part; });
        if (control != controls.end() && !(IsOnView(*control, board) && IsEnabled(*control, board)))
            return false;
    }
    return true;
}

int FirstFilled(const LetterRow& row)
{
    for (int box = 1; box <= lettersPerWord; ++box) {
        if (!row(box).Text.empty())
            return box;
    }
    return 0;
}

} // namespace

// By the number of the box, wherever in the roster the boxes stand.
void JoinRows(const Controls& controls)
{
    std::map<std::string_view, std::map<int, LetterTile*>> rows;
    for (const BuiltControl& control : controls) {
        if (control.Row->Is == Kind::LetterTile)
            rows[control.Row->Name][control.Number] = &As<LetterTile>(control);
    }
    for (const auto& [name, row] : rows)
        for (auto tile = std::next(row.begin()); tile != row.end(); ++tile)
            tile->second->InRow().JoinTo(std::prev(tile)->second->InRow());

    GuessBox* last = nullptr;
    std::string_view above;
    for (const GuessedWord& word : GuessedWords()) {
        for (int number = 1; number <= lettersPerWord; ++number) {
            auto& box = Find<GuessBox>(controls, word.Control, number);
            if (last != nullptr)
                box.JoinTo(*last, number > 1);
            if (!above.empty())
                box.StandBelow(Find<GuessBox>(controls, above, number));
            last = &box;
        }
        above = word.Control;
    }
}

void SetTabOrder(const Controls& controls)
{
    QWidget* before = nullptr;
    for (const std::string_view name : TabOrder()) {
        std::map<int, QWidget*> boxes;
        for (const BuiltControl& control : controls)
            if (control.Row->Name == name)
                boxes[control.Number] = control.Widget;
        for (const auto& [number, widget] : boxes) {
            if (before != nullptr)
                QWidget::setTabOrder(before, widget);
            before = widget;
        }
    }
}

void FocusOnPlay(const Controls& controls, const Board& board)
{
    if (board.Frame1.Visible)
        Find(controls, "Option1", std::max<int>(board.Level, 1)).setFocus();
    else if (board.Text1(1).Enabled)
        Find(controls, "Text1", 1).setFocus();
    else if (const int laidOut = FirstFilled(board.Text2); laidOut != 0)
        Find(controls, "Text2", laidOut).setFocus();
    else
        Find(controls, "Command13").setFocus(); // "Pass"
}

bool FocusStaysInPlay(const Controls& controls, const Board& board)
{
    const QWidget& panel = Find(controls, "Frame1");
    const QWidget* focused = panel.window()->focusWidget();
    return focused != nullptr && IsInPlay(controls, board, *focused)
        && (!board.Frame1.Visible || panel.isAncestorOf(focused));
}

void FocusOnGap(const Controls& controls, const Board& board)
{
    for (int box = 1; box <= lettersPerWord; ++box) {
        for (const GuessedWord& word : GuessedWords()) {
            if ((board.*word.Guess)(box).Text.empty())
                return Find(controls, word.Control, box).setFocus(Qt::TabFocusReason);
        }
    }
}

bool StepToSight(const QWidget& window, const std::function<bool()>& step)
{
    const QWidget* from = window.focusWidget();
    bool found = false;
    do {
        found = step();
        if (auto* tile = dynamic_cast<LetterTile*>(window.focusWidget()))
            tile->InRow().StepIntoSight();
    } while (
        found && window.focusWidget() != from && window.focusWidget()->visibleRegion().isEmpty());
    return found;
}
