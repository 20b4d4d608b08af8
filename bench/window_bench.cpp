// The window beside a plain one, measured from outside: how soon it is painted, how long a redraw
// takes, what it takes of memory, and whether it rests. Needs a display and Linux.
//
//   window_bench WORD_LIST               starts itself as each of the two and prints the tables
//   window_bench WORD_LIST WINDOW MODE   is one of them: "game" or "plain", and what it does
#include "bench/plain_window.h"
#include "game/board.h"
#include "game/game.h"
#include "ui/qt/board_style.h"
#include "ui/qt/main_window.h"
#include "ui/system_platform.h"
#include "ui/view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>
#include <QProcess>
#include <QStyleFactory>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

namespace {

double Median(std::vector<double> numbers)
{
    std::ranges::sort(numbers);
    return numbers[numbers.size() / 2];
}

double Milliseconds(const QElapsedTimer& since)
{
    return static_cast<double>(since.nsecsElapsed()) / 1e6;
}

// Calls back when the window has been painted for the first time and the picture is on its way.
class FirstFrame : public QObject {
public:
    FirstFrame(QWidget& window, std::function<void()> then)
        : then_(std::move(then))
    {
        window.installEventFilter(this);
    }
    bool eventFilter(QObject* window, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            QTimer::singleShot(0, this, then_);
        }
        return false;
    }

private:
    std::function<void()> then_;
};

void PrintRedraw(QWidget& window)
{
    std::vector<double> times;
    for (int redraw = 0; redraw < 101; ++redraw) {
        QElapsedTimer timer;
        timer.start();
        window.repaint();
        times.push_back(Milliseconds(timer));
        QCoreApplication::processEvents();
    }
    std::printf("%f\n", Median(times));
}

void StartGame(const QWidget& window)
{
    for (const char* control : {"Option1(1)", "Command1"})
        window.findChild<QAbstractButton*>(control)->click();
}

// What the two windows are asked alike: "first-frame" and "redraw" print and end, "start" and
// "play" stay. `begin` puts a game on view.
int Show(QWidget& window, const QString& mode, const std::function<void()>& begin)
{
    const FirstFrame painted(window, [&] {
        if (mode == "play" || mode == "redraw")
            begin();
        if (mode == "redraw")
            PrintRedraw(window);
        if (mode == "first-frame")
            std::puts("painted");
        std::fflush(stdout);
        if (mode != "start" && mode != "play")
            std::_Exit(0);
    });
    window.show();
    return QApplication::exec();
}

int ShowGame(const char* wordList, const QString& mode)
{
    Board board;
    View view;
    SystemPlatform platform;
    Game game{board, view, platform, wordList};
    MainWindow window(game);
    view.PlayIn(window.InSession());
    return Show(window, mode, [&] { StartGame(window); });
}

// One of the two windows, in a process of its own that ends with this.
class Running {
public:
    Running(const QString& wordList, const QString& window, const QString& mode)
    {
        process_.start(QCoreApplication::applicationFilePath(), {wordList, window, mode});
    }
    ~Running()
    {
        process_.kill();
        process_.waitForFinished();
    }

    QByteArray Printed()
    {
        process_.waitForReadyRead(120'000);
        return process_.readAll();
    }

    // The number after a name in one of its files of /proc.
    double Field(const char* file, const QByteArray& name) const
    {
        QFile opened(QString("/proc/%1/%2").arg(process_.processId()).arg(file));
        opened.open(QIODevice::ReadOnly);
        const QByteArray text = '\n' + opened.readAll();
        const auto at = text.indexOf('\n' + name + ':');
        return at < 0 ? 0 : text.mid(at + name.size() + 2).simplified().split(' ')[0].toDouble();
    }
    // How often it has waited for something and gone on.
    double WakeUps() const { return Field("status", "voluntary_ctxt_switches"); }

private:
    QProcess process_;
};

// The windows come up by turns, so that what else the machine does falls on both alike.
void PrintTimes(const QString& wordList)
{
    std::puts("| What | The game | Plain window | Ratio |\n|:--|--:|--:|--:|");
    for (const char* mode : {"first-frame", "redraw"}) {
        std::vector<double> times[2];
        for (int round = 0; round < 31; ++round) {
            for (const bool plain : {false, true}) {
                QElapsedTimer timer;
                timer.start();
                Running window(wordList, plain ? "plain" : "game", mode);
                const double printed = window.Printed().toDouble();
                times[plain].push_back(printed != 0 ? printed : Milliseconds(timer));
            }
        }
        const double game = Median(times[0]);
        const double plain = Median(times[1]);
        std::printf("| %s | %.1f ms | %.1f ms | %.2f |\n", mode, game, plain, game / plain);
    }
}

// The windows stand beside each other, so that what they share is shared alike.
void PrintMemoryAndRest(const QString& wordList)
{
    std::puts("\n| Window | Resident | Proportional (PSS) | Wake-ups in ten idle seconds |\n"
              "|:--|--:|--:|--:|");
    for (const char* mode : {"start", "play"}) {
        const Running windows[]{{wordList, "game", mode}, {wordList, "plain", mode}};
        QThread::sleep(5);
        const double before[]{windows[0].WakeUps(), windows[1].WakeUps()};
        QThread::sleep(10);
        for (const int k : {0, 1})
            std::printf("| %s, %s | %.1f MiB | %.1f MiB | %.0f |\n", k == 0 ? "The game" : "Plain",
                mode, windows[k].Field("smaps_rollup", "Rss") / 1024,
                windows[k].Field("smaps_rollup", "Pss") / 1024, windows[k].WakeUps() - before[k]);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2 && argc != 4) {
        std::fputs("usage: window_bench WORD_LIST\n", stderr);
        return 1;
    }
    if (argc == 2) {
        const QCoreApplication driver(argc, argv);
        PrintTimes(argv[1]);
        PrintMemoryAndRest(argv[1]);
        return 0;
    }
    const bool ofGame = QString(argv[2]) == "game";
    QApplication::setStyle(ofGame ? new BoardStyle : QStyleFactory::create("fusion"));
    const QApplication application(argc, argv);
    if (ofGame)
        return ShowGame(argv[1], argv[3]);
    const std::unique_ptr<QWidget> window = MakePlainWindow();
    return Show(*window, argv[3], [&] { ShowPlainGame(*window, true); });
}
