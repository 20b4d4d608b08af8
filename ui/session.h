// What the player does, and what follows: every event of a front end comes in here. While a message
// is open none of them does anything, whatever way it came.
#pragma once

#include "game/game_view.h"
#include "ui/announcer.h"
#include "ui/focus.h"
#include "ui/guess_rows.h"
#include "ui/keys.h"
#include "ui/message.h"
#include "ui/typing.h"

class FrontEnd;
struct Game;
struct Part;

class Session {
public:
    // Loads the level panel into the board. Both outlive this. The front end is called from Start on.
    Session(Game& game, FrontEnd& front);

    void Start();

    // Brings the front end up to the board.
    void Show();

    // A click on the part, by mouse or finger, by Space, or through a screen reader.
    void Click(const Part& part);

    // False when the key is the toolkit's.
    bool Press(const KeyPress& key);

    // A letter is typed while what has the focus takes no text.
    void Type(const TypedLetter& letter);

    // The box of the guess holds this text now: by the player's hand, composed; or set by a screen
    // reader as it is.
    void Edited(const Part& box, const std::string& text, Edit edit);
    void Wrote(const Part& box, const std::string& text);

    // "Show Responses"
    void Tick(bool ticked);

    // The part has the focus now.
    void FocusCame(const Part& part);

    // The focus has come to a word of "Used Words".
    void ReachedWord(const std::string& word);

    // The front end calls, as it was asked to by WakeAfter.
    void Wake() { announcer_.Tell(); }

    // What the rules ask of their view.
    Answer Ask(const Message& message);
    void Repaint();
    [[noreturn]] void End();

    const TabStops& Stops() const { return stops_; }
    bool MessageIsOpen() const { return messageIsOpen_; }

private:
    bool PutsBack();
    void GoTo(const Part* part);
    void KeepFocusInPlay();
    bool PressEnter(const Part* at);
    bool PressOnOption(const Part& at, Key key);
    bool Walk(const Part& at, const KeyPress& key);
    bool StepBy(bool onwards);

    Game& game_;
    FrontEnd& front_;
    Announcer announcer_;
    GuessRows guess_;
    TabStops stops_;
    bool messageIsOpen_ = false;
    bool goWentOver_ = false; // by the handler under way
};
