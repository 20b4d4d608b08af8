// What the page's script does for the program. page/stage.js answers each of these.
#pragma once

extern "C" {

// A fact or a look of a control, by the control's place in Parts(): from the roster once, then
// whenever it is another.
void TellText(int part, const char* field, const char* text);
void TellNumber(int part, const char* field, double number);

// All facts have been told.
void BuildBoard();

void ShowCaption(const char* caption);
void ShowInGame(int inGame);

// The control that has the focus, -1 for none; and another gets it.
int FocusedPart();
void FocusPart(int part);

void SayText(const char* text);
void WakeProgramAfter(int milliseconds);
void OpenHelp();

// These wait: until what is shown has been painted; for the answer, 1 for Yes and OK. The room is
// that of RoomForMessages in twips.
void WaitForFrame();
int AskInDialog(const char* text, const char* title, int asks, int noIsHarmless, int escapeAnswers,
    int left, int top, int width, int height);

// Shows that the program has ended, and never returns.
void EndOnPage();

} // extern "C"
