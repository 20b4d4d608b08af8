// The script language: what a player does, and what is so beforehand.
//
// Line by line, and "#" begins a comment:
//   == NAME      a script begins; one that is alone needs no name
//   board ...    parts of the board that are set: see board_text.h
//   list ...     the words of the word list: 298*planet, "_" for an empty one; "none" for no file
//   seed N       draws come from this seed, 0 to 16777215, from here on
//   draws ...    the draws to come: 0, .5, <1 for just below 1, 2/6 for the second of six, 18*0
//   check        from here on the game is held to its rules
//   do ...       what the player does: events
//   > ...        what is expected of the line before, and = as well: nothing is done
//
// An event is a word:
//   Text1:4 Command3    a click on box 4 of a row, on a button
//   Text6:2=ab_c        typed into a box of the guess; "_" stands for a blank
//   right               the hidden words, typed into the guess
//   Check1=0            "Show Responses" unticked; ticked with 1
//   word:7              the clicks that spell and submit a word; the number picks the word
//   computer            a go of the computer
//   yes no              an answer laid by for a question; one that finds none gets Yes
//   ~Text1:4            any of these, but waiting for the next repaint
//   !Text1:4            the same, while the next message is open; "!!" the one after it
// A game of another kind brings words of its own: see desk.h.
#pragma once

#include "headless/headless_game.h"
#include "headless/script_error.h"

#include <functional>
#include <istream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

using Run = std::function<void(HeadlessGame& game)>;

// A word with what it does. It is given the rest, "Left" of "key:Left", and "" when there is none.
struct EventWord {
    std::string_view name;
    Run (*read)(const std::string& rest); // throws ScriptError
};
using EventWords = std::span<const EventWord>;

struct ScriptLine {
    std::string text;
    Run run; // none where it tells what is expected
};

struct Script {
    std::string name;
    std::vector<ScriptLine> lines;
};

// Throws ScriptError with file, line and word: "moves.txt:3: Comand4: no such event".
std::vector<Script> ReadScripts(
    std::istream& stream, const std::string& file, EventWords more = {});

// Runs a script that stands alone. Throws ScriptError before anything is run, but for a board that
// cannot be played on when its line is reached.
void RunScript(HeadlessGame& game, const std::string& text, EventWords more = {});

// Throws ScriptError.
Event ReadEvent(const std::string& word, EventWords more = {});

// Plays events, "Text1:4 Command3". Throws ScriptError when one is reached that says nothing.
void PlayEvents(HeadlessGame& game, const std::string& events, EventWords more = {});
