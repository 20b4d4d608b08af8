// Where everything stands in the window, and what it looks like.
#include "window_fixture.h"

#include <QWindow>

namespace {

TEST_F(Window, NothingIsClipped)
{
    Play(start);
    ASSERT_EQ(window.frameSize(), QSize(664, 499));
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const std::string name = widget->objectName().toStdString();
        if (name.empty() || name.starts_with("qt_") || name == "Command2")
            continue;
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << name;
        if (const QString caption = widget->property("text").toString(); caption.size() > 1) {
            const QFontMetrics metrics(widget->font());
            EXPECT_LE(metrics.horizontalAdvance(caption), widget->width()) << name;
            EXPECT_GE(widget->font().pixelSize(), 9) << name;
        }
    }
}

TEST_F(Window, HoldsItsSize)
{
    // The panel stands where it was centred on the window as first built.
    EXPECT_EQ(Named("Frame1")->pos(), QPoint(294, 144));
    const QPoint panel = Named("Frame1")->pos();
    for (const QSize size : {QSize(900, 700), QSize(300, 200)}) {
        window.resize(size);
        QCoreApplication::processEvents();
        EXPECT_EQ(window.frameSize(), QSize(664, 499));
        EXPECT_EQ(board.WindowWidth, 664 * 15);
        EXPECT_EQ(board.WindowHeight, 499 * 15);
    }
    // A window manager that gives another size all the same is not fought.
    window.showMinimized();
    window.showMaximized();
    window.showNormal();
    window.windowHandle()->resize(900, 700);
    QCoreApplication::processEvents();
    EXPECT_EQ(board.WindowWidth, window.frameSize().width() * 15);
    EXPECT_EQ(Named("Frame1")->pos(), panel);
}

TEST_F(Window, FillsTheRoomThatItIsGiven)
{
    Play(start);
    const QRect atFirst = Named("Frame2")->geometry();
    struct Row {
        QSize room;
        double factor; // of the size of full scale
    };
    for (const Row& row : {Row{{1920, 1040}, 1040 / 465.0}, Row{{3840, 2160}, 2160 / 465.0},
             Row{{1000, 2000}, 1000 / 649.0}}) {
        window.overrideWindowState(Qt::WindowMaximized); // a screen here is too small to do it
        window.windowHandle()->resize(row.room);
        QCoreApplication::processEvents();
        const QRect frame = Named("Frame2")->geometry();
        EXPECT_NEAR(frame.width(), atFirst.width() * row.factor, 2) << row.factor;
        const QRect columns
            = QRect(Named("Frame4")->geometry()).united(Named("Frame7")->geometry());
        EXPECT_NEAR(columns.left(), window.width() - 1 - columns.right(), 2);
        EXPECT_TRUE(window.rect().contains(columns.united(Named("Frame5")->geometry())));
        EXPECT_GT(Named("Text1(3)")->font().pixelSize(), 24 * row.factor - 1);
        EXPECT_EQ(Named("Text1(6)")->geometry().right(),
            Named("SwapLetters(1)")->geometry().left() + static_cast<int>(row.factor) - 1);
        EXPECT_EQ(board.WindowWidth, 9960);
        EXPECT_EQ(board.WindowHeight, 7484);
        Click("Text1(2)");
        EXPECT_EQ(board.HeldIndex, 2) << "what is seen is what is clicked";
        Click("Text1(2)");
    }
    window.overrideWindowState(Qt::WindowNoState);
    window.windowHandle()->resize(800, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(window.frameSize(), QSize(664, 499));
    EXPECT_EQ(Named("Frame2")->geometry(), atFirst);
}

TEST_F(Window, DrawsEdgesThatCanBeSeen)
{
    // At a scale that puts pixels between the dots of the screen a line is one dot all the same.
    QImage box(Named("Word1(2)")->size() * 1.5, QImage::Format_RGB32);
    box.setDevicePixelRatio(1.5);
    Named("Word1(2)")->render(&box);
    for (const int y : {0, box.height() - 1})
        EXPECT_NE(box.pixel(20, y), box.pixel(20, std::abs(y - 1))) << y;

    QPalette dark(QColor(45, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    QApplication::setPalette(dark);
    const MainWindow onDark(game);
    for (const char* name : {"Text6(2)", "Check1", "List1"}) {
        auto* widget = onDark.findChild<QWidget*>(name);
        QImage drawn(widget->size(), QImage::Format_RGB32);
        drawn.fill(dark.color(QPalette::Window));
        widget->render(&drawn, QPoint(), QRegion(), QWidget::DrawChildren);
        EXPECT_GT(qGray(drawn.pixel(0, drawn.height() / 2)), 100) << name;
    }
    QApplication::setPalette(QPalette());
}

} // namespace
