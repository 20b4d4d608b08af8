#include "bench/window_probe.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

namespace {

class FirstPaint : public QObject {
public:
    FirstPaint(QWidget& widget, std::function<void()> then)
        : QObject(&widget)
        , then_(std::move(then))
    {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            QTimer::singleShot(0, this, then_);
        }
        return false;
    }

private:
    std::function<void()> then_;
};

double MicrosecondsOfRedraw(QWidget& window)
{
    std::vector<double> times;
    for (int redraw = 0; redraw < 101; ++redraw) {
        QElapsedTimer timer;
        timer.start();
        window.repaint();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1000);
        QCoreApplication::processEvents();
    }
    return Median(times);
}

} // namespace

int Probe(QWidget& window, const std::string& mode, const std::function<void()>& begin)
{
    AfterFirstFrame(window, [&window, mode, begin] {
        if (mode == "play" || mode == "redraw")
            begin();
        if (mode == "redraw")
            std::printf("%.0f\n", MicrosecondsOfRedraw(window));
        if (mode == "first-frame")
            std::puts("painted");
        if (mode == "stay" || mode == "play")
            return;
        std::fflush(stdout);
        std::_Exit(0);
    });
    window.show();
    return QApplication::exec();
}

void AfterFirstFrame(QWidget& widget, const std::function<void()>& then)
{
    new FirstPaint(widget, then); // goes with the widget
}

double Median(std::vector<double> numbers)
{
    std::ranges::sort(numbers);
    return numbers[numbers.size() / 2];
}
