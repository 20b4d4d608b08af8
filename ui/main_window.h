// The window: it shows the board, hands clicks to the handlers, and writes what the player types or
// ticks into the board. It knows no rule. Its work stands in the files that it wires together.
#pragma once

#include "ui/announcer.h"
#include "ui/controls.h"
#include "ui/keys.h"
#include "ui/typing.h"
#include "ui/window_size.h"

#include <QWidget>

struct Game;

class MainWindow : public QWidget {
public:
    // Builds the window and loads the level panel into the board. The game outlives the window.
    explicit MainWindow(Game& game);

    // Brings the window up to the board. What has not changed is left alone.
    void ShowBoard();

    // Shows the board, paints, and runs the pending input before it returns.
    void Refresh();

    // A message over the window has been answered.
    void AfterMessage() { announcer_.AfterMessage(); }

    // The part of the board that messages may cover, in pixels of the screen: no letters, scores or
    // hidden words, and not "YOUR GO".
    QRect RoomForMessages() const;

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void ConnectClicks();
    void ConnectTyping();
    void Click(const BuiltControl& control);
    void Rescale();

    Game& game_;
    Announcer announcer_;
    Controls controls_;
    WindowSize size_;
    HeldEnterFilter heldEnter_;
    Typing typing_;
    bool refreshed_ = false; // by the handler under way
};
