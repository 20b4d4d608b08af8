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
EM_JS(int, FocusedPart, (void), { return Module["stage"].focused(); });
EM_JS(void, FocusPart, (int part), { Module["stage"].focus(part); });
EM_JS(void, SayText, (const char* text), { Module["stage"].say(UTF8ToString(text)); });
EM_JS(void, WakeProgramAfter, (int milliseconds), { Module["stage"].wakeAfter(milliseconds); });
EM_JS(void, OpenHelp, (void), { Module["stage"].openHelp(); });
EM_ASYNC_JS(void, WaitForFrame, (void), { await Module["stage"].frame(); });
EM_ASYNC_JS(int, AskInDialog,
    (const char* text, const char* title, int asks, int noIsHarmless, int escapeAnswers, int left,
        int top, int width, int height), {
    const yes = await Module["stage"].ask({
        text: UTF8ToString(text), title: UTF8ToString(title), asks: asks !== 0,
        noIsHarmless: noIsHarmless !== 0, escapeAnswers: escapeAnswers !== 0,
        room: { left, top, width, height },
    });
    return yes ? 1 : 0;
});
EM_ASYNC_JS(void, EndOnPage, (void), { await Module["stage"].end(); });
// clang-format on
