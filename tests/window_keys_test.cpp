// Typing, keys and the focus.
#include "window_fixture.h"

#include "game/rows.h"
#include "ui/roster.h"

#include <QDesktopServices>
#include <QTextBrowser>

namespace {

TEST_F(Window, TakesGuesses)
{
    // The words are planet, garden and simple, of which letters 1 and 4 are shown.
    Play("Option1:1 Command1 shown=p..n../g...../s..... guess=p..n../g...../s.....");
    const std::string line = Line(board);
    Play({
        {"a letter moves on", "Text6:2 key:l key:a", "guess=plan../g...../s..... focus=Text6:4"},
        {"and Backspace goes back to it", "key:Backspace",
            "guess=pl.n../g...../s..... focus=Text6:3"},
        {"past a letter that is known", "key:a key:n key:e key:Backspace key:Backspace",
            "guess=pl.n../g...../s..... focus=Text6:3"},
        {"and on", "key:Backspace key:Backspace", "guess=p..n../g...../s..... focus=Text6:2"},
        {"what is in a box is typed over, and taken back", "Text6:1 key:q key:Backspace key:q",
            "guess=q..n../g...../s..... focus=Text6:2"},
        {"and on the second click", "Text6:1 Text6:1 key:p key:End key:x",
            "guess=p..n.x/g...../s..... focus=Text7:1"},
        {"a word is pasted", "key:Right paste:arden", "guess=p..n.x/garden/s..... focus=Text8:1"},
        {"what is left stays in the last box", "key:End key:Left paste:lest",
            "guess=p..n.x/garden/s...l(est) focus=Text8:6"},
        {"a box that a key goes to is typed over", "key:Home key:t",
            "guess=p..n.x/garden/t...l(est) focus=Text8:2"},
        {"rows and columns", "key:Home key:Up key:Up key:Right", "focus=Text6:2"},
        {"from row to row, both ways", "key:End key:Right key:Down key:Left key:Up",
            "focus=Text6:6"},
        {"a letter is deleted where it stands", "Text6:6 key:Delete",
            "guess=p..n../garden/t...l(est) focus=Text6:6"},
    });
    Compose("e\u0301"); // one letter that two keys compose
    EXPECT_EQ(board.Text6(6).Text, "\u00e9");
    EXPECT_EQ(Line(board), line);
    EXPECT_TRUE(view.calls.empty());
}

TEST_F(Window, TakesATypedWord)
{
    Play("Option1:1 Command1 Check1=0");
    view.calls.clear();
    const Row rows[] = {
        {"a letter lifts the others", "key:p", "you=P----- up=.lanet focus=Text2:2"},
        {"the first of two", "you=planen key:n", "you=N----- up=pla.en focus=Text2:1"},
        {"a letter that is not there lifts nothing", "key:x", "you=planet focus=Text1:1"},
        {"nor does it place one", "key:p key:p key:x", "you=P----- up=.lanet focus=Text2:2"},
        {"a whole word", "key:T key:e key:n key:a key:l key:p",
            "you=tenalp up=...... focus=Command3"},
        {"a slip is mended", "key:t key:e key:n key:a key:l key:p key:p",
            "you=P----- up=tenal. focus=Text2:1"},
        {"what is left goes back in order", "key:t key:Escape", "you=tplane focus=Text2:1"},
        {"from a button and from the list", "Command14 you=planet key:p List1 key:t",
            "you=PT---- up=.lane. focus=Text2:2"},
        {"not with a letter in the hand", "Text1:3 key:p", "you=pl.net up=...... focus=Text1:3"},
        {"not with Lay Out Word disabled", "off=Command9 key:p", "you=planet focus=Text1:1"},
        {"not while the computer plays", "go:no key:p key:Escape", "you=planet focus=Text1:1"},
        {"not on the level panel", "panel:yes key:p", "you=planet focus=Option1:1"},
        {"not by a command", "key:Ctrl+P key:Alt+P key:Meta+P", "you=planet focus=Text1:1"},
        {"Escape alone does nothing", "Command13 you=planet key:Escape",
            "you=planet focus=Text1:1"},
    };
    const char* const anew
        = "panel:no go:yes off= held= up=...... you=planet swap=simple Text1:1 Text1:1";
    for (const Row& row : rows) {
        Play(anew);
        Play(std::vector{row});
    }
    EXPECT_TRUE(view.calls.empty());

    // Letters that keys compose, held keys, and AltGr.
    Play(anew + std::string(" you=pl(\u00e9)net"));
    Compose("E\u0301");
    QKeyEvent held(QEvent::KeyPress, Qt::Key_N, Qt::NoModifier, "n", true);
    QCoreApplication::sendEvent(window.focusWidget(), &held);
    QTest::keyClick(window.focusWidget(), Qt::Key_P, Qt::GroupSwitchModifier);
    EXPECT_EQ(Spell(board.Text1), "\u00e9p");
}

TEST_F(Window, FocusGoesWherePlayGoesOn)
{
    Play({
        {"at the program's start", "", "focus=Option1:1"},
        {"after a start", "Option1:3 Command1", "focus=Text1:1"},
        {"after a swap", "Text1:2 SwapLetters:3", "focus=Text1:1"},
        {"after a word", "you=planet Command3", "focus=Text1:1"},
        {"after a refused one", "up=...... Text1:2 Command3", "focus=Command3"},
        {"after a pass", "Command13", "focus=Text1:1"},
        {"after a guess with a gap, down the columns", "guess=pl.net/g.rden/simple Command7",
            "focus=Text7:2"},
        {"while all yellow boxes are disabled",
            "held= you=------ up=.lanet Command14 Text1:4 Command9 key:Tab Text2:3",
            "focus=Text2:3"},
        {"and none is laid out", "up=...... you=------ Command13", "focus=Text1:1"},
        {"when it is taken away", "you=planet Command9", "focus=Text2:1"},
        {"in a game that begins with them disabled", "yes yes Command10", "focus=Command13"},
        {"after a right guess", "yes right Command7", "focus=Option1:3"},
    });
}

TEST_F(Window, IsWalkedByKeys)
{
    // The controls that a key comes to, from the one that has the focus until it is there again.
    const auto walk = [this](const char* key) {
        std::vector<std::string> stops;
        do {
            stops.push_back(Focused());
            Play(key);
        } while (Focused() != stops.front() && stops.size() < 99);
        return stops;
    };
    Play("Option1:1 Command1 shown=....../....../......");
    std::vector<std::string> stops; // of a row only the first box
    for (const std::string name : TabOrder()) {
        const std::string stop = controls.contains(name) ? name : name + ":1";
        if (Named(stop)->isVisible())
            stops.push_back(stop);
    }
    EXPECT_EQ(walk("key:Tab"), stops);
    // No arrow key ends anywhere for good: each of them leads back from every stop.
    for (const char* key : {"key:Up", "key:Down"})
        EXPECT_LT(walk(key).size(), 99U) << key << " stays at " << Focused();
    // Along a row every box is a stop, and Tab comes back to the one that was left.
    const auto goTo = [this](const std::string& keys) { return Play(keys), Focused(); };
    for (const std::string row : {"Text1", "SwapLetters", "Text2", "Word2", "Text7"}) {
        Named(row + ":1")->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(goTo("key:End"), row + ":6");
        EXPECT_EQ(goTo("key:Left key:Left key:Home key:Right"), row + ":2");
        EXPECT_EQ(goTo("key:Tab key:Backtab"), row + ":2");
    }

    // Tab leaves out what the level panel covers wholly, on a board that is still in play.
    Play("me=slanet swap=pgarde you=nimple me:1250 yes Command13");
    const auto order = walk("key:Tab");
    for (const char* name : {"Word1:4", "Command7", "Word1:1", "Text6:3"})
        EXPECT_EQ(std::ranges::count(order, name), name[6] == '4' || name[0] == 'C') << name;
    Named("Word1:4")->setFocus();
    Play({{"nothing in sight to the left", "key:Left", "focus=Word1:4"}});
}

TEST_F(Window, IsPlayedByKeyboard)
{
    Play({
        {"the level in focus comes first", "key:Down", "level:1"},
        {"then the others", "key:Down key:Down", "level:3"},
        {"Enter on the chosen one", "key:Return", "panel:no frames:yes focus=Text1:1"},
        {"the tick", "key:Backtab key:Backtab key:Enter key:Tab key:Tab",
            "responses:0 focus=Text1:1"},
        {"a letter in the hand", "you=apartm key:Right key:Enter", "held=p2"},
    });
    EXPECT_EQ(Spoken("Text1:2"), "Your letter 2 of 6, empty, p is in your hand");
    // Of a key that is held, by its mark or by coming again at once, nothing more comes.
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier, "\r", true);
    QKeyEvent released(QEvent::KeyRelease, Qt::Key_Enter, Qt::KeypadModifier, "\r");
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Enter, Qt::KeypadModifier, "\r");
    for (QKeyEvent* event : {&held, &released, &again}) {
        event->setTimestamp(7);
        QCoreApplication::sendEvent(window.focusWidget(), event);
        EXPECT_EQ(board.HeldIndex, 2);
    }
    Play({
        {"put down elsewhere", "key:Right key:Left key:Left key:Left key:Space",
            "held= you=paartm"},
    });
    EXPECT_EQ(Spoken("Text1:1"), "Your letter 1 of 6: p");
    Play({{"the next level", "yes right Command7 key:Up key:Return", "level:2 panel:no"}});
}

TEST_F(Window, OpensThePageThatTellsHowToPlay)
{
    QTextBrowser browser; // in place of the desktop's
    QDesktopServices::setUrlHandler("file", &browser, "setSource");
    Play("key:F1");
    EXPECT_EQ(browser.documentTitle(), "How to play Quorvel2");
    browser.setSource(QUrl());
    Play("Option1:1 Command1 Text6:2 key:F1");
    EXPECT_TRUE(browser.toPlainText().contains("Submit Word"));
    QDesktopServices::unsetUrlHandler("file");
}

} // namespace
