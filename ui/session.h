// What the player does, and what follows: every event of a front end comes in here. While a message
// is open none of them does anything, whatever way it came.
#pragma once

#include "game/game_view.h"
#include "ui/alarms.h"
#include "ui/announcer.h"
#include "ui/focus.h"
#include "ui/guess_rows.h"
#include "ui/keys.h"
#include "ui/look.h"
#include "ui/message.h"
#include "ui/typing.h"

class FrontEnd;
struct Game;
struct Part;

class Session {
public:
    // Loads the level panel into the board. Both outlive this. The front end is called from Start
    // on.
    Session(Game& game, FrontEnd& front);

    void Start();

    // Brings the front end up to the board.
    void Show();

    // A click on the part, by mouse or finger, by Space, or through a screen reader.
    void Click(const Part& part);

    // A pointer is pressed on the board. False where the press and what it would click do not
    // count: it is the second half of a double click on what has ended a go or begun a game.
    bool PointerDown();

    // Whether a drag can start on the part, at one time or another.
    static bool IsForDragging(const Part& part);

    // A drag has left the part by more than the system's distance: false where none starts there.
    // Then it ends on a part, or on nullptr: elsewhere, by Escape, or as the pointer is taken away.
    bool BeginDrag(const Part& from);
    void EndDrag(const Part* to);

    // The letter that is in the hand or under way, or "": drawn beside the arrow of a mouse.
    // It looks like the part that it came from.
    std::string LetterInHand() const;
    const Part& PlaceOfLetterInHand() const;

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
    void Wake();

    // What the part shows at this moment.
    Look LookOf(const Part& part) const;

    // The ring of the focus is for those who play by keys.
    bool ShowsFocus() const { return showsFocus_; }

    // The message that is asked can be seen from now on. It takes no answer before it can have been
    // read.
    void MessageShows();
    bool TakesAnswer() const;

    // What the rules ask of their view.
    Answer Ask(const Message& message);
    void Repaint();
    [[noreturn]] void End();

    const TabStops& Stops() const { return stops_; }
    bool MessageIsOpen() const { return messageIsOpen_; }

private:
    bool PutsBack();
    const Part* DraggedLilac() const;
    void Deliver(const Part& part);
    void GoTo(const Part* part);
    void LeadTo(const Part* part);
    void KeepFocusInPlay();
    void ShowFocus(bool shows);
    void After(const Part& clicked, const Board& before);
    bool PressInGuess(const Part& at, const KeyPress& key);
    bool PressFunctionKey(const KeyPress& key);
    bool PressEnter(const Part* at);
    bool PressOnOption(const Part& at, Key key);
    void PutBackHeld();
    void Escape();
    void TakeBack();
    void Refuse(const TypedLetter& letter);
    bool Walk(const Part& at, const KeyPress& key);
    bool StepBy(bool onwards);

    Game& game_;
    FrontEnd& front_;
    Alarms alarms_;
    Announcer announcer_;
    GuessRows guess_;
    TabStops stops_;
    Marks marks_;
    const Part* led_ = nullptr;     // the focus was led to it by the game, and its help is not said
    const Part* dragged_ = nullptr; // it is under way
    bool messageIsOpen_ = false;
    std::int64_t openedAt_ = 0;    // by the front end's clock, as the next two
    std::int64_t pressedAt_ = 0;   // by a pointer
    std::int64_t pressesFrom_ = 0; // they count again
    bool goWentOver_ = false;      // by the handler under way
    bool laidOutWhole_ = false;    // the last click has placed a sixth letter
    bool showsFocus_ = false;
};
