#include "ui/focus.h"

#include "game/board.h"
#include "ui/guess_box.h"
#include "ui/letter_tile.h"
#include "ui/roster.h"

#include <algorithm>
#include <map>

// By the number of the box, wherever in the roster the boxes stand.
void JoinRows(const Controls& controls)
{
    std::map<std::string_view, std::map<int, LetterTile*>> rows;
    GuessBox* lastGuess = nullptr;
    for (const BuiltControl& control : controls) {
        if (control.Row->Is == Kind::LetterTile) {
            rows[control.Row->Name][control.Number] = &As<LetterTile>(control);
        } else if (control.Row->Is == Kind::GuessBox) {
            auto* guess = &As<GuessBox>(control);
            if (lastGuess != nullptr)
                guess->JoinTo(lastGuess);
            lastGuess = guess;
        }
    }
    for (const auto& [name, row] : rows)
        for (auto tile = std::next(row.begin()); tile != row.end(); ++tile)
            tile->second->JoinTo(std::prev(tile)->second);
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

void KeepFocusInPlay(const Controls& controls, const Board& board, const QWidget* focused)
{
    const QWidget& panel = Find(controls, "Frame1");
    if (focused != nullptr && focused->isEnabled() && focused->isVisibleTo(focused->window())
        && (!board.Frame1.Visible || panel.isAncestorOf(focused)))
        return;
    if (board.Frame1.Visible)
        Find(controls, "Option1", std::max<int>(board.Level, 1)).setFocus();
    else
        Find(controls, board.Text1(1).Enabled ? "Text1" : "Text2", 1).setFocus();
}

bool StepToSight(const QWidget& window, const std::function<bool()>& step)
{
    const QWidget* from = window.focusWidget();
    bool found = false;
    do {
        found = step();
        if (auto* tile = dynamic_cast<LetterTile*>(window.focusWidget()))
            tile->StepIntoSight();
    } while (
        found && window.focusWidget() != from && window.focusWidget()->visibleRegion().isEmpty());
    return found;
}
