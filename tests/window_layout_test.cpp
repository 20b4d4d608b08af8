// Where everything stands in the window, on screens of several sizes (screens.json), and the lines
// that are drawn around it.
#include "window_fixture.h"

#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace {

// All controls stand where window.txt has them, so many times as large, with room for their texts.
class Layout : public Window {
protected:
    void ExpectPlaces(double factor) const
    {
        const QSizeF spare = QSizeF(window.size()) - QSizeF(649, 465) * factor;
        const bool fills = window.windowState() != Qt::WindowNoState;
        const QPointF centred = fills ? QPointF(spare.width(), spare.height()) / 2 : QPointF();
        for (const auto& [name, control] : controls) {
            const QWidget& widget = *control.widget;
            const QPointF origin = widget.parentWidget() == &window ? centred : QPointF();
            const QRectF place(
                origin + control.place.topLeft() * factor, QSizeF(control.place.size()) * factor);
            const QPointF off = QPointF(widget.pos()) - place.topLeft();
            const QSizeF more = QSizeF(widget.size()) - place.size();
            EXPECT_LE(std::max({std::abs(off.x()), std::abs(off.y()), std::abs(more.width()),
                          std::abs(more.height())}),
                control.place.isNull() ? 9999 : 2)
                << name;
            EXPECT_TRUE(widget.parentWidget()->rect().contains(widget.geometry())) << name;
            const QString caption = widget.property("text").toString();
            if (caption.size() < 2 || !widget.isVisible())
                continue;
            EXPECT_LE(QFontMetrics(widget.font()).horizontalAdvance(caption), widget.width())
                << name;
            EXPECT_GE(widget.font().pixelSize(), 9 * factor - 1.5) << name;
        }
        EXPECT_EQ(Named("Text1:6")->geometry().right(),
            Named("SwapLetters:1")->geometry().left() + std::max(1, static_cast<int>(factor)) - 1);
    }
};

TEST_F(Layout, FitsEveryScreen)
{
    Play("Option1:1 Command1 used=simple");
    for (QScreen* screen : QApplication::screens()) {
        const QSizeF room = screen->size();
        for (const auto state : {Qt::WindowMaximized, Qt::WindowNoState, Qt::WindowFullScreen}) {
            SCOPED_TRACE(screen->name().toStdString() + " " + std::to_string(state));
            window.windowHandle()->setScreen(screen);
            window.setWindowState(state);
            QCoreApplication::processEvents();
            const bool fills = state != Qt::WindowNoState;
            const QSizeF inner = window.size();
            const double factor = fills ? std::min(inner.width() / 649, inner.height() / 465)
                                        : std::min({1.0, room.width() / 664, room.height() / 499});
            const QSizeF outer = fills ? room : QSizeF(664, 499) * factor;
            EXPECT_EQ(window.frameSize(), outer.toSize());
            ExpectPlaces(factor);
            EXPECT_NEAR(board.WindowWidth, 9960, fills ? 0 : 15 / factor);
            EXPECT_NEAR(board.WindowHeight, 7484, fills ? 0 : 15 / factor);
            Play("Text1:2");
            EXPECT_EQ(board.HeldIndex, 2) << "what is seen is what is clicked";
            Play("Text1:2");
        }
    }
}

TEST_F(Layout, HoldsItsSize)
{
    // The panel stands where it was centred on the window as first built.
    const QPoint panel(294, 144);
    for (const QSize size : {QSize(900, 700), QSize(300, 200)}) {
        window.resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(window.frameSize(), QSize(664, 499));
        EXPECT_EQ(Named("Frame1")->geometry(), QRect(panel, QSize(137, 241)));
        EXPECT_EQ(Named("Command2")->geometry(), QRect(286, 132, 153, 265));
    }
    // A window manager that gives another size all the same is not fought.
    window.showMinimized();
    window.showNormal();
    window.windowHandle()->resize(900, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(board.WindowWidth, window.frameSize().width() * 15);
    EXPECT_EQ(Named("Frame1")->pos(), panel);
}

TEST_F(Window, DrawsEdgesThatCanBeSeen)
{
    // At a scale that puts pixels between the dots of the screen a line is one dot all the same.
    QImage box(Named("Word1:2")->size() * 1.5, QImage::Format_RGB32);
    box.setDevicePixelRatio(1.5);
    Named("Word1:2")->render(&box);
    for (const int y : {0, box.height() - 1})
        EXPECT_NE(box.pixel(20, y), box.pixel(20, std::abs(y - 1))) << y;

    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    QApplication::setPalette(dark);
    Play("Option1:1 Command1");
    for (const char* name : {"Text6:2", "Check1", "List1"}) {
        QWidget* widget = Named(name);
        QImage drawn(widget->size(), QImage::Format_RGB32);
        drawn.fill(dark.color(QPalette::Window));
        widget->render(&drawn, QPoint(), QRegion(), QWidget::DrawChildren);
        EXPECT_GT(qGray(drawn.pixel(0, drawn.height() / 2)), 100) << name;
    }
    QApplication::setPalette(QPalette());
}

} // namespace
