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
void ShowRing(int shown); // of the focus

// The control that has the focus, -1 for none; and another gets it.
int FocusedPart();
void FocusPart(int part);

void SayText(const char* text);
void WakeProgramAfter(int milliseconds);
void OpenHelp();

// These wait: until what is shown has been painted; for the answer, 1 for Yes and OK.
void WaitForFrame();
int AskInDialog(const char* text, const char* title, int asks, int noIsHarmless, int escapeAnswers);

// How high the dialog is at a width, and its place, in pixels of the page.
int MeasureDialog(int width);
void PlaceDialog(int left, int top, int width);

// Shows that the program has ended, and never returns.
void EndOnPage();

} // extern "C"
