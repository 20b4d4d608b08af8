// What is asked of a window or a page: it draws what look.h says of each control and passes on what
// the player does. It decides nothing.
#pragma once

#include "game/game_view.h"

#include <cstdint>
#include <string>

struct Message;
struct Part;

class FrontEnd {
public:
    virtual ~FrontEnd() = default;

    // Brings every control up to the board. What has the focus keeps it: see TakeOutOfPlay.
    virtual void ShowBoard() = 0;

    // Disables and hides what the board has out of play, after the focus has gone elsewhere.
    virtual void TakeOutOfPlay() = 0;

    // The control that has the focus, or nullptr.
    virtual const Part* Focused() const = 0;

    // Gives it the focus, which Session::FocusCame is told. What is in a box to type in is
    // selected.
    virtual void Focus(const Part& part) = 0;

    // Paints what is shown and runs the pending input, then returns.
    virtual void PaintNow() = 0;

    // Shows the message and returns when it has been answered; an answer counts once
    // Session::TakesAnswer says so.
    virtual Answer Ask(const Message& message) = 0;

    // Ends the program at once.
    [[noreturn]] virtual void End() = 0;

    // Has a screen reader say the text.
    virtual void Say(const std::string& text) = 0;

    // Calls Session::Wake once, after so many milliseconds from now. A later call takes the place
    // of one that has not come to pass.
    virtual void WakeAfter(int milliseconds) = 0;

    // Since any moment that stays the same.
    virtual std::int64_t Milliseconds() const = 0;

    // Within so long a second press of a pointer makes a double click of it.
    virtual int DoubleClickMilliseconds() const = 0;

    // Opens the page that tells how to play. False where nothing can show it.
    virtual bool OpenHowToPlay() = 0;
};
