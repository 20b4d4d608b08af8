// The whole window held against its text, window.txt; and the looks that tell one state from
// another.
#include "window_fixture.h"

#include "headless/board_text.h"
#include "ui/roster.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>

#include <fstream>

namespace {

QImage Drawn(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_RGB32);
    image.fill(widget.palette().color(QPalette::Window));
    // A list has its lines in a widget of their own; the boxes in a frame are not the frame's.
    const bool whole = qobject_cast<QListWidget*>(&widget) != nullptr;
    widget.render(&image, QPoint(), QRegion(),
        whole ? QWidget::DrawWindowBackground | QWidget::DrawChildren
              : QWidget::RenderFlags(QWidget::DrawWindowBackground));
    return image;
}

// Its letters, number or caption; of a list the first line.
QString TextOf(const QWidget& widget)
{
    if (const auto* list = qobject_cast<const QListWidget*>(&widget))
        return list->item(0)->text();
    for (const char* text : {"title", "text"}) {
        if (const QVariant value = widget.property(text); value.isValid())
            return value.toString();
    }
    return {};
}

QString FontOf(const QWidget& widget)
{
    const QFont& font = widget.font();
    if (font.family() == QApplication::font().family() && font.pixelSize() <= 14 && !font.bold())
        return "desktop";
    return QString("%1 %2%3")
        .arg(font.family().contains("Serif") ? "serif" : "sans")
        .arg(font.pixelSize())
        .arg(font.bold() ? " bold" : "");
}

QString ColoursOf(QWidget& widget)
{
    constexpr std::pair<const char*, QRgb> colours[]
        = {{"brick", 0xFFC04000}, {"dark red", 0xFFC00000}, {"orange", 0xFFFF8000},
            {"yellow", 0xFFFFFF00}, {"lilac", 0xFFFFC0FF}, {"pale cyan", 0xFF80FFFF},
            {"pale green", 0xFF80FF80}, {"pale yellow", 0xFFFFFF80}, {"red", 0xFFFF0000},
            {"white", 0xFFFFFFFF}, {"pale orange", 0xFFFFC080}};
    const QImage image = Drawn(widget);
    QStringList found;
    for (const auto& [name, rgb] : colours) {
        bool has = false;
        for (int y = 0; y < image.height() && !has; ++y)
            for (int x = 0; x < image.width() && !has; ++x)
                has = image.pixel(x, y) == rgb;
        if (has)
            found.push_back(name);
    }
    return found.join(", ");
}

QString Described(QWidget& widget, const QWidget& window)
{
    const QWidget* frame = widget.parentWidget();
    QString line
        = widget.objectName() + " in " + (frame == &window ? "window" : frame->objectName());
    const QRect at(widget.pos() * 15, widget.size() * 15);
    line += line.startsWith("Command2 ") || line.startsWith("Frame1 ")
        ? QString(" by the board")
        : QString(" at %1,%2 %3x%4").arg(at.x()).arg(at.y()).arg(at.width()).arg(at.height());
    if (const QString text = TextOf(widget); !text.isEmpty())
        line += "; says \"" + text + '"';
    line += "; in " + FontOf(widget);
    if (const QString colours = ColoursOf(widget); !colours.isEmpty())
        line += "; with " + colours;
    if (!widget.toolTip().isEmpty())
        line += "; tip \"" + widget.toolTip() + '"';
    return line;
}

TEST_F(Window, IsAsItsTextSays)
{
    QPalette desktop(QColor(230, 231, 232), QColor(240, 241, 242)); // no colour of the board's own
    desktop.setColor(QPalette::Base, QColor(250, 251, 252));
    QApplication::setPalette(desktop);
    Play(start);
    Play("you=planet swap=simple me=garnet up=garden used=simple you:120 me:50 panel:yes "
         "shown=marten/lineup/feeder guess=abcdef/ghijkl/mnopqr");
    window.focusWidget()->clearFocus();
    std::set<std::string> expected;
    std::ifstream text(QUORVEL_WINDOW_TEXT);
    for (std::string line; std::getline(text, line);) {
        if (!line.starts_with('#')) {
            EXPECT_TRUE(expected.insert(line).second) << line;
        }
    }
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        if (name.isEmpty() || name.startsWith("qt_"))
            continue;
        const std::string line = Described(*widget, window).toStdString();
        EXPECT_EQ(expected.erase(line), 1U) << line;
    }
    for (const std::string& line : expected)
        ADD_FAILURE() << "not so: " << line;
    QApplication::setPalette(QPalette());
}

// What changes on the board is seen: another letter or number, none, out of play, in focus.
TEST_F(Window, LooksDifferentInEveryState)
{
    const std::pair<QString, QString> changes[] = {
        {"you=PLANET", "^Text1"},
        {"you=......", "^Text1"},
        {"swap=SIMPLE", "^SwapLetters"},
        {"swap=zzzzzz", "^SwapLetters"},
        {"up=GARDEN", "^Text2"},
        {"up=......", "^Text2"},
        {"me=zzzzzz", "^MyLetters"},
        {"off=arranging", "^Command(4|5|6|9|16)$"},
        {"you:777 me:888", "^(Your|My)Score$"},
        {"used=linear,female", "^(Text9|List1)$"},
        {"shown=....../lineup/feeder", "^Word1"},
        {"shown=....../....../......", "^Word"},
        {"guess=....../....../......", "^Text[678]"},
        {"responses:0", "^Check1$"},
        {"level:2", "^Option1.[12]"},
    };
    Play(start);
    for (const auto& [change, names] : changes) {
        Play(
            "you=planet swap=simple up=garden me=garnet off= you:120 me:50 used=simple responses:1 "
            "level:1 go:yes shown=marten/lineup/feeder guess=abcdef/ghijkl/mnopqr");
        window.focusWidget()->clearFocus();
        const QList<QWidget*> widgets = window.findChildren<QWidget*>(QRegularExpression(names));
        QList<QImage> before;
        for (QWidget* widget : widgets)
            before.push_back(Drawn(*widget));
        Play(change);
        window.focusWidget()->clearFocus();
        for (qsizetype place = 0; place < widgets.size(); ++place)
            EXPECT_NE(Drawn(*widgets[place]), before[place])
                << widgets[place]->objectName().toStdString() << " at " << change.toStdString();
    }
    for (const std::string_view name : TabOrder()) {
        QWidget* widget = Named(QString::fromUtf8(name.data()));
        widget = widget != nullptr ? widget : Named(QString::fromUtf8(name.data()) + "(1)");
        if (!widget->isVisible() || !widget->isEnabled())
            continue;
        const QImage plain = Drawn(*widget);
        widget->setFocus();
        EXPECT_NE(Drawn(*widget), plain) << name << " in focus";
        widget->clearFocus();
    }
}

// The swap row and the computer's row have pale grounds alike: without hues their edges tell them.
TEST_F(Window, RowsAreToldApartWithoutTheirHues)
{
    Play(start);
    for (const char* rows : {"swap=zzzzzz me=zzzzzz", "swap=ZZZZZZ me=zzzzzz"}) {
        Play(rows);
        const QImage lilac = Drawn(*Named("SwapLetters(2)"));
        const QImage cyan = Drawn(*Named("MyLetters(2)"));
        int told = 0; // along the outer line and the one inside it
        for (int x = 2; x < lilac.width() - 2; ++x)
            told += std::abs(qGray(lilac.pixel(x, 0)) - qGray(cyan.pixel(x, 0))) > 60
                || std::abs(qGray(lilac.pixel(x, 1)) - qGray(cyan.pixel(x, 1))) > 25;
        EXPECT_GT(told, lilac.width() / 3) << rows;
    }
}

TEST(Platform, SeedsThatDifferInAFractionGiveTwoGames)
{
    SystemPlatform one;
    SystemPlatform other;
    one.SeedRandom(43200.5F);
    other.SeedRandom(43200.25F);
    EXPECT_NE(one.DrawRandom(), other.DrawRandom());
    EXPECT_GE(one.ClockSeconds(), 0);
    EXPECT_LT(one.ClockSeconds(), 86400);
}

} // namespace
