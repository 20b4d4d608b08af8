// A game that is played through ui/, as a player with keys, a mouse and a screen reader plays it. The
// words of scripts for that, beside those of script.h:
//   key:Left key:held-Enter   a key
//   type:pla_x                letters typed one after the other; "_" stands for a blank
//   paste:arden               a text pasted
//   focus:Text6:2             the focus set, as a click on a box to type in does
//   listen                    from here on it is told what a screen reader says
//   wait:200                  so many milliseconds go by
//   look:Text1                tells what the boxes of a row, or a control, show: "^" raised, "#" out of
//                             play, "~" faded, "*" chosen, "!" off view, "?x" a faint letter, "/x" the
//                             letter above a guess, "." for no text
//   name:Text1:3              tells what a screen reader calls it
#pragma once

#include "headless/headless_game.h"
#include "headless/script.h"

#include <cstdint>
#include <optional>

class Session;
struct Part;

class PlayedGame : public HeadlessGame {
public:
    using HeadlessGame::HeadlessGame;

    virtual Session& InSession() = 0;
    virtual const Part* Focused() const = 0;
    virtual void Focus(const Part& part) = 0;
    virtual void PressKey(const std::string& key, bool held) = 0; // one of keyNames
    virtual void TypeLetter(const std::string& letter) = 0;
    virtual void Paste(const std::string& text) = 0;

    // The focus is told with the parts of the board.
    bool tellsFocus = false;
    bool tellsWhatIsSaid = false;

    // What is set so is neither played nor told.
    void Set(const std::string& parts) override;
    void PlayComputersGo() override;
    std::vector<std::pair<std::string, std::string>> Parts() const override;

    // A front end's clock and voice, played by the script.
    void Wait(int milliseconds);
    void WakeAfter(int milliseconds) { wakeAt_ = now_ + milliseconds; }
    std::int64_t Milliseconds() const { return now_; }
    void Say(const std::string& text);

protected:
    void AfterEvent() override { WakeIfDue(); }
    void WakeIfDue();

private:
    std::int64_t now_ = 1;
    std::optional<std::int64_t> wakeAt_;
    bool muted_ = false;
};

// "Text1:2" for the part that scripts call so; throws ScriptError for one that there is not.
std::string ScriptName(const Part& part);
const Part& ReadPart(const std::string& name);

EventWords PlayersWords();
