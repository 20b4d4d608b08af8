// The page: a front end of the browser's own controls. It hands the script what has changed, and
// holds back what the player does while a repaint waits for its frame.
#pragma once

#include "ui/front_end.h"
#include "ui/look.h"
#include "ui/session.h"
#include "ui/web/player_event.h"
#include "ui/window_size.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

struct Game;

class Page : public FrontEnd {
public:
    // The game outlives the page.
    explicit Page(Game& game);

    // The game's view has to play in it.
    Session& InSession() { return session_; }

    // Hands over the roster, and shows the level panel.
    void Start();

    // What the player does runs at once, or inside the repaint that is waiting. False when the
    // browser is to do what it does with such an event.
    bool Take(const PlayerEvent& event);

    // Puts the message that is open in its place on a board of that scale.
    void PlaceMessage(const Scale& scale, std::optional<PixelPoint> pointer);

    // The Tab key would go round and begin again: it is for what the page has beside the board.
    bool TabLeaves(bool onwards) const;

    // The browser's own control shows something else by now than it was told.
    void Forget(const Part& part);

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

private:
    bool Run(const PlayerEvent& event);

    struct Shown {
        std::optional<Look> Is; // none: not known
        bool Enabled = true;
        bool OnView = true;
        TwipRect Place; // of the level panel
    };

    Game& game_;
    WindowSize size_;
    Session session_;
    std::vector<Shown> shown_; // by part
    std::string caption_;
    std::optional<bool> inGame_;
    bool showsFocus_ = false;
    const Message* asked_ = nullptr; // while it is open
    bool painting_ = false;          // waits for a frame
    bool ended_ = false;
    std::vector<PlayerEvent> waiting_; // for the frame
};

// The one that there is.
Page& ThePage();
