// The whole window held against its text, window.txt; and the looks that tell one state from
// another.
#include "window_fixture.h"

#include <QListWidget>
#include <QMap>

#include <map>
#include <regex>

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
    std::map<QRgb, int> dots;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++dots[image.pixel(x, y)];
    QMap<int, QString> found; // the ground has the most dots
    for (const auto& [name, rgb] : colours)
        if (dots[rgb] > 0)
            found[-dots[rgb]] = name;
    return QStringList(found.values()).join(", ");
}

// As window.txt tells it after what the control says.
QString LooksOf(QWidget& widget)
{
    QString looks = "in " + FontOf(widget);
    if (const QString name = widget.accessibleName(); name.toStdString() != TextOf(widget))
        looks = "heard \"" + name + "\"; " + looks;
    if (const QString colours = ColoursOf(widget); !colours.isEmpty())
        looks += "; with " + colours;
    if (!widget.toolTip().isEmpty())
        looks += "; tip \"" + widget.toolTip() + '"';
    return looks;
}

TEST_F(Window, IsAsItsTextSays)
{
    QPalette desktop(QColor(230, 231, 232), QColor(240, 241, 242)); // no colour of the board's own
    desktop.setColor(QPalette::Base, QColor(250, 251, 252));
    QApplication::setPalette(desktop);
    Play("Option1:1 Command1 you=planet swap=simple me=garnet up=garden used=simple you:120 me:50 "
         "panel:yes shown=marten/lineup/feeder guess=abcdef/ghijkl/mnopqr");
    DropFocus();
    qsizetype widgets = 0; // of the window and its frames
    for (const auto& [name, control] : controls) {
        EXPECT_EQ(TextOf(*control.widget), control.shows) << name;
        EXPECT_EQ(LooksOf(*control.widget).toStdString(), control.looks) << name;
        if (name.starts_with("Frame"))
            widgets += control.widget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size();
    }
    widgets += window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size();
    EXPECT_EQ(widgets, std::ssize(controls) + 1) << "these, and what speaks to a screen reader";
    QApplication::setPalette(QPalette());
}

// What changes on the board is seen, and so are every caption and the focus.
TEST_F(Window, LooksDifferentInEveryState)
{
    const std::string zs = "zzzzzz/zzzzzz/zzzzzz";
    const std::string none = "....../....../......";
    const std::pair<std::string, const char*> changes[] = {
        {"you=zzzzzz swap=zzzzzz up=zzzzzz me=zzzzzz you:777 me:888 used=linear,female responses:0 "
         "level:2 shown="
                + zs + " guess=" + zs,
            "Text.*|Swap.*|My.*|Your.*|Word.*|List1|Check1|Option1:[12]"},
        {"you=...... swap=...... up=...... me=...... shown=" + none + " guess=" + none,
            "Text[12678].*|Swap.*|MyL.*|Word.*"},
        {"you=PLANET swap=SIMPLE up=GARDEN off=arranging", "Text[12].*|Swap.*|Command(4|5|6|9|16)"},
        {"held=x3 you=pl.net", "Text1:3"},
    };
    Play("Option1:1 Command1");
    for (const auto& [change, names] : changes) {
        Play("you=planet held= swap=simple up=garden me=garnet off= you:120 me:50 used=simple "
             "responses:1 level:1 shown=marten/lineup/feeder guess=abcdef/ghijkl/mnopqr");
        DropFocus();
        std::map<std::string, QImage> before;
        for (const auto& [name, control] : controls)
            before[name] = Drawn(*control.widget);
        Play(change);
        DropFocus();
        for (const auto& [name, image] : before)
            EXPECT_EQ(Drawn(*Named(name)) != image, std::regex_match(name, std::regex(names)))
                << name << " at " << change;
    }
    Play("panel:yes off=");
    DropFocus();
    for (const auto& [name, control] : controls) {
        QWidget& widget = *control.widget;
        const QImage plain = Drawn(widget);
        for (const char* text : {"text", "title"}) {
            if (const QVariant shown = widget.property(text); !shown.toString().isEmpty()) {
                widget.setProperty(text, "");
                EXPECT_NE(Drawn(widget), plain) << name << " without its text";
                widget.setProperty(text, shown);
            }
        }
        if (widget.focusPolicy() == Qt::NoFocus)
            continue;
        widget.setFocus();
        EXPECT_NE(Drawn(widget), plain) << name << " in focus";
        widget.clearFocus();
    }
}

// The line inside the edge tells whether a click does anything: a letter is bought once.
TEST_F(Window, RaisesTheEdgeOfWhatCanBeClicked)
{
    Play("Option1:1 Command1 up=gar... shown=p..n../g...../s.....");
    DropFocus();
    for (const auto& [name, control] : controls) {
        if (!std::regex_match(name, std::regex("(Text[12]|Swap|Word|My|Command1).*")))
            continue;
        const QImage image = Drawn(*control.widget);
        const bool raised = image.pixel(3, image.height() - 2) != image.pixel(3, 3);
        const bool empty = TextOf(*control.widget).empty();
        // Letters that wait above the yellow row hold it.
        const bool works = name[0] == 'W' ? empty
            : name.starts_with("Text2")   ? !empty
                                          : name[0] != 'M' && !name.starts_with("Text1");
        EXPECT_EQ(raised, works) << name;
    }
    const QRgb yellow = Drawn(*Named("Text1:1")).pixel(3, 3);
    Play("you=PLANET");
    EXPECT_NE(Drawn(*Named("Text1:1")).pixel(3, 3), yellow) << "out of play the ground fades";
}

// The swap row and the computer's row have pale grounds alike: without hues their edges tell them.
TEST_F(Window, RowsAreToldApartWithoutTheirHues)
{
    Play("Option1:1 Command1");
    for (const char* rows : {"swap=zzzzzz me=zzzzzz", "swap=ZZZZZZ me=zzzzzz"}) {
        Play(rows);
        const QImage lilac = Drawn(*Named("SwapLetters:2"));
        const QImage cyan = Drawn(*Named("MyLetters:2"));
        int told = 0; // along the outer line and the one inside it
        for (int x = 2; x < lilac.width() - 2; ++x)
            told += std::abs(qGray(lilac.pixel(x, 0)) - qGray(cyan.pixel(x, 0))) > 60
                || std::abs(qGray(lilac.pixel(x, 1)) - qGray(cyan.pixel(x, 1))) > 25;
        EXPECT_GT(told, lilac.width() / 3) << rows;
    }
}

} // namespace
