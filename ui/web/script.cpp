#include "ui/web/script.h"

#include <emscripten.h>

// clang-format off
EM_JS(void, TellText, (int part, const char* field, const char* text), {
    Module["stage"].tell(part, UTF8ToString(field), UTF8ToString(text));
});
EM_JS(void, TellNumber, (int part, const char* field, double number), {
    Module["stage"].tell(part, UTF8ToString(field), number);
});
EM_JS(void, BuildBoard, (void), { Module["stage"].build(); });
EM_JS(void, ShowCaption, (const char* caption), { Module["stage"].showCaption(UTF8ToString(caption)); });
EM_JS(void, ShowInGame, (int inGame), { Module["stage"].showInGame(inGame !== 0); });
EM_JS(void, ShowRing, (int shown), { Module["stage"].showRing(shown !== 0); });
EM_JS(int, MeasureDialog, (int width), { return Module["stage"].measureDialog(width); });
EM_JS(void, PlaceDialog, (int left, int top, int width), { Module["stage"].placeDialog(left, top, width); });
EM_JS(int, FocusedPart, (void), { return Module["stage"].focused(); });
EM_JS(void, FocusPart, (int part), { Module["stage"].focus(part); });
EM_JS(void, SayText, (const char* text), { Module["stage"].say(UTF8ToString(text)); });
EM_JS(void, WakeProgramAfter, (int milliseconds), { Module["stage"].wakeAfter(milliseconds); });
EM_JS(void, OpenHelp, (void), { Module["stage"].openHelp(); });
EM_ASYNC_JS(void, AwaitFrame, (void), { await Module["stage"].frame(); });
EM_ASYNC_JS(int, AwaitAnswer,
    (const char* text, const char* title, int asks, int noIsHarmless, int escapeAnswers), {
    const yes = await Module["stage"].ask({
        text: UTF8ToString(text), title: UTF8ToString(title), asks: asks !== 0,
        noIsHarmless: noIsHarmless !== 0, escapeAnswers: escapeAnswers !== 0,
    });
    return yes ? 1 : 0;
});
EM_ASYNC_JS(void, AwaitForEver, (void), { await Module["stage"].end(); });
// clang-format on

// What waits is known by its name to the file alone that it stands in.
void WaitForFrame()
{
    AwaitFrame();
}

int AskInDialog(const char* text, const char* title, int asks, int noIsHarmless, int escapeAnswers)
{
    return AwaitAnswer(text, title, asks, noIsHarmless, escapeAnswers);
}

void EndOnPage()
{
    AwaitForEver();
}
