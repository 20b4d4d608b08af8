// The board: all that is true of a game. Every box, list, flag and counter that a rule reads or
// writes stands here and nowhere else; what a box shows is the game's state.
#pragma once

#include "game/numbered.h"
#include "lexicon/limits.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

// How many words the ledger of used words takes, and of how many words that its letters can make a
// game consists.
inline constexpr std::int16_t ledgerSlots = 250;
inline constexpr std::int16_t fewestCandidates = 300;
inline constexpr std::int16_t mostCandidates = 2000;

inline constexpr std::int16_t levels = 6;

// One box of a row: "" or one letter, in UTF-8 as all texts. In the guess rows it is whatever the
// player has typed.
struct LetterBox {
    std::string Text;
    bool Enabled = true; // a disabled box takes no click
};

using LetterRow = Numbered<LetterBox, 1, lettersPerWord>;

// A box that shows a number. Rules read the number back out of the text.
struct NumberBox {
    std::string Text = "0";
};

struct Button {
    bool Enabled = true;
};

struct Frame {
    bool Visible = true;
};

struct Label {
    bool Visible = true;
};

// A part of the level panel. Places and sizes are in twips, 1440 to the inch.
struct Panel {
    double Width;
    double Height;
    bool Visible = true;
    double Left = 0;
    double Top = 0;
};

// The words that both sides have played, in the order of play, as the player sees them.
class WordList {
public:
    void Clear() { words_.clear(); }
    void AddItem(const std::string& word) { words_.push_back(word); }

    // The number of words. The list itself takes every word; its count stays at `largestCount`
    // from there on, and with it the bonus.
    std::int16_t ListCount() const
    {
        return static_cast<std::int16_t>(std::min<std::size_t>(words_.size(), largestCount));
    }
    const std::vector<std::string>& Words() const { return words_; }

private:
    std::vector<std::string> words_;
};

struct Board {
    // The three rows that the 18 letters are dealt to.
    LetterRow MyLetters;   // the computer's
    LetterRow Text1;       // the player's, "Your Letters"
    LetterRow SwapLetters; // the row both exchange with; box 1 is the red letter

    // The row that "Lay Out Word" lifts the player's letters to, and the next box of Text1 that a
    // click on it fills: 1 to 6, 7 after the sixth, 0 before the first laying out.
    LetterRow Text2;
    std::int16_t LayOutNext = 0;

    // A letter lifted out of a box of Text1, and the number of that box; "" and 0 when none is.
    std::string HeldLetter;
    std::int16_t HeldIndex = 0;
    bool HeldFlag = false;

    // The hidden words, what is shown of each, and what the player guesses of each.
    Numbered<std::string, 1, 3> HiddenWords;
    LetterRow Word1, Word2, Word3;
    LetterRow Text6, Text7, Text8;

    // Scores, and the bonus that the next word earns.
    NumberBox YourScore;
    NumberBox MyScore;
    NumberBox Text9;

    // The words played: what the player sees, and the ledger that the tests for used words read.
    // Slot 0 of the ledger is never filled; slots above UsedCount are "".
    WordList List1;
    Numbered<std::string, 0, ledgerSlots> UsedWords;
    std::int16_t UsedCount = 0;
    std::string ProbeWord;  // goes into CheckWordUsed
    bool ProbeUsed = false; // comes out of it

    // The word list as the start of the game found it: its number of records, the last record
    // read, and the words that the 18 letters can make, CandidateCount of them.
    std::int16_t WordCount = 0;
    std::string CurrentWord;
    Numbered<std::string, 1, mostCandidates> Candidates;
    std::int16_t CandidateCount = 0;

    // The computer: 0 while no level is chosen, else 1 (strongest) to 6; and its search.
    std::int16_t Level = 0;
    std::array<char32_t, lettersPerWord> SortBuffer{}; // letters on their way through SortLetters
    bool ComputerScored = false;                       // the swap last tried made a word
    std::int16_t FruitlessSwaps = 0;                   // 0 to 4

    // "Show Responses": 1 when ticked, 0 when clear.
    std::int16_t Check1 = 0;

    // What is on view.
    Panel Frame1{.Width = 2055, .Height = 3615};   // "Choose Level"
    Panel Command2{.Width = 2295, .Height = 3975}; // its red backing
    Frame Frame2;                                  // "The Words (Buy Letters)"
    Frame Frame3;                                  // "Swap Letters"
    Frame Frame4;                                  // "Your Letters + Score"
    Frame Frame5;                                  // "My Letters + Score"
    Frame Frame7;                                  // "Used Words"
    Frame Frame9{.Visible = false};                // "Bonus Score"
    Label Label5;                                  // "YOUR GO", visible while the player may act

    // What can be clicked, beside the boxes' own flags.
    Button Command4;  // "<"
    Button Command5;  // ">"
    Button Command6;  // "Mix Letters"
    Button Command9;  // "Lay Out Word"
    Button Command16; // "+"

    // The window: its title, and its outer size in twips, kept up to date by the view.
    std::string Caption = "Quorvel";
    double WindowWidth = 0;
    double WindowHeight = 0;
};
