// The window: a front end of widgets. Its work stands in the files that it wires together.
#pragma once

#include "ui/front_end.h"
#include "ui/qt/controls.h"
#include "ui/qt/notice.h"
#include "ui/qt/player_events.h"
#include "ui/qt/pointer.h"
#include "ui/session.h"
#include "ui/window_size.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

struct Game;

class MainWindow : public QWidget, public FrontEnd {
public:
    // Builds the window with the level panel in it. The game outlives the window.
    explicit MainWindow(Game& game);

    // The game's view has to play in it.
    Session& InSession() { return session_; }
    const Controls& Parts() const { return controls_; }
    const Scale& Present() const { return size_.Present(); }

    void ShowBoard() override;
    void TakeOutOfPlay() override;
    const Part* Focused() const override;
    void Focus(const Part& part) override;
    void PaintNow() override;
    Answer Ask(const Message& message) override;
    [[noreturn]] void End() override;
    void Say(const std::string& text) override;
    void WakeAfter(int milliseconds) override;
    std::int64_t Milliseconds() const override;
    int DoubleClickMilliseconds() const override;
    bool OpenHowToPlay() override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

    // What the desktop says of the window.
    virtual Desktop LookAtDesktop();

private:
    void Connect(const BuiltControl& control);
    void Resized();
    void Do(const Wish& wish);

    Game& game_;
    Notice notice_; // before anything else stands in the window
    Controls controls_;
    WindowSize size_;
    Session session_;
    PlayerEvents events_;
    Pointer pointer_;
    Scale shownAt_;
    QTimer wake_;
    QTimer askAgain_;
    QElapsedTimer clock_;
    QMetaObject::Connection ofScreen_; // to the one that the window is on
};
