// The game's window, made as the program makes it, for the timings.
//
//   game_window WORD_LIST clicks   clicks everything that can be clicked, in a few games, and
//   prints
//                                  the longest time to the repaint and the longest to a message
//   game_window WORD_LIST MODE     as window_probe.h tells
#include "bench/window_probe.h"
#include "game/board.h"
#include "game/game.h"
#include "ui/board_style.h"
#include "ui/main_window.h"
#include "ui/qt_view.h"
#include "ui/system_platform.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

namespace {

void Click(const QWidget& window, const char* control)
{
    window.findChild<QAbstractButton*>(QString::fromUtf8(control))->click();
}

void StartGame(const QWidget& window)
{
    Click(window, "Option1(1)");
    Click(window, "Command1"); // "OK"
}

// Answers every message as soon as it has been painted, and keeps the longest time from the click
// or the answer before to that.
class QuickPlayer : public QObject {
public:
    QElapsedTimer sinceInput;
    double longest = 0;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = qobject_cast<QMessageBox*>(watched);
        if (box != nullptr && event->type() == QEvent::Show) {
            AfterFirstFrame(*box, [this, box] {
                longest = std::max(longest, Milliseconds());
                sinceInput.start();
                box->buttons().first()->click(); // "OK" or "Yes"
            });
        }
        return false;
    }

    double Milliseconds() const { return static_cast<double>(sinceInput.nsecsElapsed()) / 1e6; }
};

void ClickEverything(MainWindow& window)
{
    QuickPlayer player;
    qApp->installEventFilter(&player);
    std::vector<double> times;
    double longest = 0;
    QString slowest;
    for (int round = 0; round < 10; ++round) {
        StartGame(window);
        const auto buttons = window.findChildren<QAbstractButton*>();
        for (QAbstractButton* button : buttons) {
            if (!button->isVisible() || !button->isEnabled())
                continue;
            player.sinceInput.start();
            button->click();
            window.Refresh();
            times.push_back(player.Milliseconds());
            if (times.back() > longest) {
                longest = times.back();
                slowest = button->objectName();
            }
        }
    }
    std::printf("%zu clicks, the median repainted after %.2f ms, the slowest (%s) after %.2f ms; "
                "the slowest message came after %.2f ms\n",
        times.size(), Median(times), slowest.toUtf8().constData(), longest, player.longest);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fputs("usage: game_window WORD_LIST MODE\n", stderr);
        return 1;
    }
    const std::string mode = argv[2];
    QApplication::setStyle(new BoardStyle);
    QGuiApplication::setDesktopFileName(QStringLiteral("quorvel2"));
    QApplication application(argc, argv);
    Board board;
    QtView view;
    SystemPlatform platform;
    Game game{board, view, platform, argv[1]};
    MainWindow window(game);
    view.PlayIn(window);
    if (mode == "clicks") {
        window.show();
        AfterFirstFrame(window, [&window] {
            ClickEverything(window);
            std::fflush(stdout);
            std::_Exit(0);
        });
        return QApplication::exec();
    }
    return Probe(window, mode, [&window] { StartGame(window); });
}
