#include "ui/board_style.h"
#include "ui/no_display.h"
#include "ui/program.h"
#ifdef Q_OS_WASM
#include "ui/web_page.h"
#endif

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication::setStyle(new BoardStyle);
    QGuiApplication::setDesktopFileName(QStringLiteral("quorvel2"));
    ListenForNoDisplay();
    const QApplication application(argc, argv);
    StopListening();
#ifdef Q_OS_WASM
    TakeFontsOfPage();
#endif
    Program program;
#ifdef Q_OS_WASM
    CaptionPage(program.window);
#endif
    program.window.show();
    return QApplication::exec();
}
