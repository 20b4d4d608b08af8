// The whole window held against its text, window.txt; and the looks that tell one state from
// another.
#include "window_fixture.h"

#include <QListWidget>

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

// As window.txt tells it after what the control says.
QString LooksOf(QWidget& widget)
{
    QString looks = "in " + FontOf(widget);
    if (const QString name = widget.accessibleName(); name != TextOf(widget))
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
    window.focusWidget()->clearFocus();
    std::size_t widgets = 0; // of the window and its frames
    for (const auto& [name, control] : controls) {
        EXPECT_EQ(TextOf(*control.widget).toStdString(), control.shows) << name;
        EXPECT_EQ(LooksOf(*control.widget).toStdString(), control.looks) << name;
        if (name.starts_with("Frame"))
            widgets += control.widget->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size();
    }
    widgets += window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size();
    EXPECT_EQ(widgets, controls.size() + 1) << "these, and what speaks to a screen reader";
    QApplication::setPalette(QPalette());
}

// What changes on the board is seen: another letter or number, none, out of play, in focus.
TEST_F(Window, LooksDifferentInEveryState)
{
    const std::pair<const char*, const char*> changes[] = {
        {"you=PLANET", "Text1.*"},
        {"you=......", "Text1.*"},
        {"held=x3 you=pl.net", "Text1:3"},
        {"swap=SIMPLE", "SwapLetters.*"},
        {"swap=zzzzzz", "SwapLetters.*"},
        {"up=GARDEN", "Text2.*"},
        {"up=......", "Text2.*"},
        {"me=zzzzzz", "MyLetters.*"},
        {"off=arranging", "Command(4|5|6|9|16)"},
        {"you:777 me:888", "(Your|My)Score"},
        {"used=linear,female", "Text9|List1"},
        {"shown=....../....../......", "Word.*"},
        {"guess=....../....../......", "Text[678].*"},
        {"responses:0", "Check1"},
        {"level:2", "Option1:[12]"},
    };
    Play("Option1:1 Command1");
    for (const auto& [change, names] : changes) {
        Play("you=planet held= swap=simple up=garden me=garnet off= you:120 me:50 used=simple "
             "responses:1 level:1 go:yes shown=marten/lineup/feeder guess=abcdef/ghijkl/mnopqr");
        window.focusWidget()->clearFocus();
        std::map<std::string, QImage> before;
        for (const auto& [name, control] : controls) {
            if (std::regex_match(name, std::regex(names)))
                before[name] = Drawn(*control.widget);
        }
        EXPECT_FALSE(before.empty()) << names;
        Play(change);
        window.focusWidget()->clearFocus();
        for (const auto& [name, image] : before)
            EXPECT_NE(Drawn(*Named(name)), image) << name << " at " << change;
    }
    for (const auto& [name, control] : controls) {
        QWidget& widget = *control.widget;
        if (widget.focusPolicy() == Qt::NoFocus || !widget.isVisible() || !widget.isEnabled())
            continue;
        const QImage plain = Drawn(widget);
        widget.setFocus();
        EXPECT_NE(Drawn(widget), plain) << name << " in focus";
        widget.clearFocus();
    }
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
