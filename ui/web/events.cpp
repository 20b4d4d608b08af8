// The events of the page, which page/events.js calls.
#include "ui/part.h"
#include "ui/web/page.h"

#include <emscripten.h>

#include <cstdlib>
#include <string>

namespace {

const Part& PartAt(int place)
{
    return Parts()[static_cast<std::size_t>(place)];
}

int Take(const PlayerEvent& event)
{
    return ThePage().Take(event) ? 1 : 0;
}

} // namespace

extern "C" {

// The library's own would write to a stream that no player reads, and bring all of printf with it.
[[noreturn]] void abort_message(const char* /*format*/, ...)
{
    std::abort();
}

EMSCRIPTEN_KEEPALIVE void Begin()
{
    ThePage().Start();
}

EMSCRIPTEN_KEEPALIVE int Click(int place)
{
    ThePage().Forget(PartAt(place));
    return Take({.Is = PlayerEvent::Kind::Click, .At = &PartAt(place)});
}

EMSCRIPTEN_KEEPALIVE int Press(int key, int held, int shift, int atStart, int atEnd)
{
    const KeyPress press{static_cast<Key>(key), held != 0, shift != 0, atStart != 0, atEnd != 0};
    if ((press.Is == Key::Tab || press.Is == Key::BackTab)
        && ThePage().TabLeaves(press.Is == Key::Tab))
        return 0;
    return Take({.Is = PlayerEvent::Kind::Press, .Pressed = press});
}

// The letter as it was typed, and then in its other cases.
EMSCRIPTEN_KEEPALIVE int Type(const char* typed, const char* lower, const char* upper)
{
    return Take({.Is = PlayerEvent::Kind::Type, .Texts = {typed, lower, upper}});
}

EMSCRIPTEN_KEEPALIVE int Edited(int place, const char* text, int erased)
{
    ThePage().Forget(PartAt(place));
    const auto kind = erased != 0 ? PlayerEvent::Kind::Erase : PlayerEvent::Kind::Edit;
    return Take({.Is = kind, .At = &PartAt(place), .Texts = {text}});
}

EMSCRIPTEN_KEEPALIVE int Wrote(int place, const char* text)
{
    ThePage().Forget(PartAt(place));
    return Take({.Is = PlayerEvent::Kind::Write, .At = &PartAt(place), .Texts = {text}});
}

EMSCRIPTEN_KEEPALIVE int Tick(int place, int ticked)
{
    ThePage().Forget(PartAt(place));
    return Take({.Is = ticked != 0 ? PlayerEvent::Kind::Tick : PlayerEvent::Kind::Untick});
}

EMSCRIPTEN_KEEPALIVE int BeginDrag(int place)
{
    return Take({.Is = PlayerEvent::Kind::BeginDrag, .At = &PartAt(place)});
}

// Without a place it ends elsewhere.
EMSCRIPTEN_KEEPALIVE int EndDrag(int place)
{
    return Take({.Is = PlayerEvent::Kind::EndDrag, .At = place < 0 ? nullptr : &PartAt(place)});
}

// These run at once, also while a repaint waits.
EMSCRIPTEN_KEEPALIVE int PointerDown()
{
    return ThePage().InSession().PointerDown() ? 1 : 0;
}

EMSCRIPTEN_KEEPALIVE void MessageShows()
{
    ThePage().InSession().MessageShows();
}

EMSCRIPTEN_KEEPALIVE int TakesAnswer()
{
    return ThePage().InSession().TakesAnswer() ? 1 : 0;
}

EMSCRIPTEN_KEEPALIVE void PlaceMessage(
    double pixelsPerTwip, int left, int top, int hasPointer, int x, int y)
{
    const auto pointer = hasPointer != 0 ? std::optional(PixelPoint{x, y}) : std::nullopt;
    ThePage().PlaceMessage({pixelsPerTwip, left, top}, pointer);
}

EMSCRIPTEN_KEEPALIVE const char* LetterInHand()
{
    static std::string letter;
    letter = ThePage().InSession().LetterInHand();
    return letter.c_str();
}

EMSCRIPTEN_KEEPALIVE void FocusCame(int place)
{
    ThePage().InSession().FocusCame(PartAt(place));
}

EMSCRIPTEN_KEEPALIVE void Wake()
{
    ThePage().InSession().Wake();
}

} // extern "C"
