// The program: a board, a view, a platform and the window that they meet in.
#include "game/board.h"
#include "game/game.h"
#include "ui/board_style.h"
#include "ui/main_window.h"
#include "ui/qt_view.h"
#include "ui/system_platform.h"

#include <QApplication>

namespace {

std::filesystem::path PlaceOfWordList()
{
#ifdef Q_OS_WIN
    return "C:\\Lexicon.txt";
#else
    // In the prefix that the program stands in: a build tree, an installed one, a package.
    const QString program = QCoreApplication::applicationDirPath();
    return program.toStdString() + "/../share/quorvel2/Lexicon.txt";
#endif
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication::setStyle(new BoardStyle);
    QGuiApplication::setDesktopFileName(QStringLiteral("quorvel2"));
    QApplication application(argc, argv);
    Board board;
    QtView view;
    SystemPlatform platform;
    Game game{board, view, platform, PlaceOfWordList()};
    MainWindow window(game);
    view.PlayIn(window);
    window.show();
    return QApplication::exec();
}
