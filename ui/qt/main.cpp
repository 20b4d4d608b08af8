#include "ui/qt/board_style.h"
#include "ui/qt/no_display.h"
#include "ui/qt/program.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication::setStyle(new BoardStyle);
    QGuiApplication::setDesktopFileName(QStringLiteral("quorvel2"));
    ListenForNoDisplay();
    const QApplication application(argc, argv);
    StopListening();
    Program program;
    program.window.show();
    return QApplication::exec();
}
