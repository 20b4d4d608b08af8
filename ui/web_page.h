// The page that the window stands in where the program runs in a browser.
#pragma once

class QWidget;

// A browser gives a program no fonts: makes those that the page has put in place known, and takes
// the plainest of them for what names none.
void TakeFontsOfPage();

// The page shows the caption of the window, as it is and whenever it changes.
void CaptionPage(QWidget& window);
