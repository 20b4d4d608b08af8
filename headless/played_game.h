// A game that is played through ui/, as a player with keys, a mouse and a screen reader plays it.
// The words of scripts for that, beside those of script.h:
//   key:Left key:held-Enter   a key; also shift-F2
//   type:pla_x                letters typed one after the other; "_" stands for a blank
//   paste:arden               a text pasted
//   focus:Text6:2             the focus set, as a click on a box to type in does
//   mouse:Text1:4             pressed by a pointer, where a click alone is a screen reader's
//   drag:Text1:3 drop:Text1:5 a drag, and its end; "drop" for one that ends elsewhere
//   wait:200                  so many milliseconds go by
//   listen                    from here on it is told what a screen reader says
//   look:Text1                tells what the boxes of a row, or a control, show: "^" raised, "v"
//                             sunken, "#" out of play, "~" faded, "&" but its letter clear, "*"
//                             chosen, "!" off view, "?x" a faint letter, "/x" the letter above a
//                             guess, "." for no text; and the marks: "=" known, "%" foreign, ">"
//                             next, "-" refused, "'" changed
//   name:Text1:3              tells what a screen reader says of it
//   walk:Tab                  tells where the key leads, again and again, until it comes back
//   hand ring answer          tells the letter in the hand; whether the focus is shown; whether
//                             a message takes an answer
//   no-pages                  nothing can show the page that tells how to play
#pragma once

#include "game/game_view.h"
#include "headless/headless_game.h"
#include "headless/script.h"

#include <cstdint>
#include <optional>

class Session;
struct Message;
struct Part;

struct Stroke {
    std::string Key;
    bool Held = false;
    bool Shift = false;
};

class PlayedGame : public HeadlessGame {
public:
    using HeadlessGame::HeadlessGame;

    virtual Session& InSession() = 0;
    virtual const Part* Focused() const = 0;
    virtual void Focus(const Part& part) = 0;
    virtual void PressKey(const Stroke& stroke) = 0;
    virtual void PressMouse(const Part& part) = 0;
    virtual void TypeLetter(const std::string& letter) = 0;
    virtual void Paste(const std::string& text) = 0;
    virtual bool BeginDrag(const Part& part);
    virtual void EndDrag(const Part* part);

    // The focus is told with the parts of the board.
    bool tellsFocus = false;
    bool tellsWhatIsSaid = false;
    bool opensPages = true;

    // What is set so is neither played nor told.
    void Set(const std::string& parts) override;
    void PlayComputersGo() override;
    std::vector<std::pair<std::string, std::string>> Parts() const override;

    // A front end's clock and voice, played by the script.
    void Wait(int milliseconds);
    void WakeAfter(int milliseconds) { wakeAt_ = now_ + milliseconds; }
    std::int64_t Milliseconds() const { return now_; }
    void Say(const std::string& text);
    int DoubleClickMilliseconds() const { return 400; }
    bool OpenHowToPlay();

protected:
    void AfterEvent() override { WakeIfDue(); }
    void WakeIfDue();
    Answer AnswerMessage(
        const Message& message); // as the script has it, once it can have been read

private:
    std::int64_t now_ = 1;
    std::optional<std::int64_t> wakeAt_;
    bool muted_ = false;
};

// "Text1:2" for the part that scripts call so; throws ScriptError for one that there is not.
std::string ScriptName(const Part& part);
const Part& ReadPart(const std::string& name);

EventWords PlayersWords();
