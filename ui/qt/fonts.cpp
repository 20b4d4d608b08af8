#include "ui/qt/fonts.h"

#include "ui/roster.h"

#include <QApplication>
#include <QFontDatabase>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <map>
#include <tuple>
#include <vector>

namespace {

// The first of the faces that the machine has, by its list of families; they are of one kind.
QString FirstOf(const QStringList& families, std::initializer_list<const char*> faces)
{
    for (const char* face : faces)
        if (families.contains(QLatin1String(face)))
            return QString::fromLatin1(face);
    return QApplication::font().family();
}

QString FamilyOf(Face face, const QStringList& families)
{
    switch (face) {
    case Face::Plain:
        break;
    case Face::TimesNewRoman:
        return FirstOf(families, {"Times New Roman", "Liberation Serif", "DejaVu Serif"});
    case Face::HobbitSF:
        return FirstOf(families, {"Hobbit SF", "Liberation Serif", "DejaVu Serif"});
    case Face::BaskervilleOldFace:
        return FirstOf(families, {"Baskerville Old Face", "Liberation Serif", "DejaVu Serif"});
    case Face::ArialBlack:
        return FirstOf(families, {"Arial Black", "Liberation Sans", "DejaVu Sans"});
    case Face::NapaSF:
        return FirstOf(families, {"Napa SF", "Liberation Serif", "DejaVu Serif"});
    case Face::SansSerif:
        return FirstOf(families, {"MS Sans Serif", "Liberation Sans", "DejaVu Sans"});
    }
    return QApplication::font().family();
}

// The room that a control has for its caption.
QSize RoomFor(const Control& row, const QWidget& widget)
{
    const QStyle& style = *widget.style();
    switch (row.Is) {
    case Kind::Frame:
        return widget.size() - QSize(16, 0);
    case Kind::Button:
        return widget.size() - QSize(6, 4);
    case Kind::Option:
        return widget.size()
            - QSize(style.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &widget)
                    + style.pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, &widget),
                2);
    case Kind::Check:
        return widget.size()
            - QSize(style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &widget)
                    + style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &widget),
                2);
    default:
        return widget.size();
    }
}

// Pixels of the font of the table, with no regard to the room.
double FullSize(const Lettering& font, double pixelsPerTwip)
{
    constexpr double twipsPerPoint = 20;
    constexpr double twipsPerPixel = 15; // 96 pixels to the inch
    const double twips = font.Name == Face::Plain
        ? QFontInfo(QApplication::font()).pixelSize() * twipsPerPixel
        : font.Points * twipsPerPoint;
    return twips * pixelsPerTwip;
}

QFont FontOf(const Control& row, const QString& family, int pixels)
{
    QFont font(family);
    // The black face is heavy by itself, and what stands in for it has to be.
    font.setBold(row.Font.Bold || row.Font.Name == Face::ArialBlack);
    font.setPixelSize(pixels);
    return font;
}

// Pixels of the font of the table, or fewer so that the caption fits in.
int FittingSize(
    const Control& row, const QWidget& widget, const QString& family, double pixelsPerTwip)
{
    const QString caption = QString::fromUtf8(row.Caption);
    const QSize room = RoomFor(row, widget);
    int pixels = std::max(1, qRound(FullSize(row.Font, pixelsPerTwip)));
    for (; pixels > 1 && !caption.isEmpty(); --pixels) {
        const QFontMetrics metrics(FontOf(row, family, pixels));
        if (metrics.horizontalAdvance(caption) <= room.width()
            && metrics.tightBoundingRect(caption).height() <= room.height())
            break;
    }
    return pixels;
}

// Controls of one named font keep together: where a caption of one of them needs smaller letters,
// those of the others are at most so many pixels larger. The options are all alike.
constexpr int mostApart = 1;

using Group = std::tuple<Face, double, bool, Kind>;

Group GroupOf(const Control& row)
{
    const bool named = row.Font.Name != Face::Plain;
    return {row.Font.Name, row.Font.Points, row.Font.Bold, named ? Kind::Frame : row.Is};
}

} // namespace

void GiveFonts(Controls& controls, double pixelsPerTwip)
{
    std::vector<BuiltControl*> waiting;
    for (BuiltControl& control : controls) {
        if (!control.HasFont && control.Widget->isVisibleTo(control.Widget->window()))
            waiting.push_back(&control);
    }
    if (waiting.empty())
        return;
    const QStringList installed = QFontDatabase::families(); // made anew at every question
    std::map<Face, QString> families;
    std::map<Group, int> smallest;
    std::vector<int> sizes;
    for (const BuiltControl* control : waiting) {
        const Control& row = *control->Is->Row;
        const auto family = families.try_emplace(row.Font.Name, FamilyOf(row.Font.Name, installed));
        sizes.push_back(FittingSize(row, *control->Widget, family.first->second, pixelsPerTwip));
        int& size = smallest.try_emplace(GroupOf(row), sizes.back()).first->second;
        size = std::min(size, sizes.back());
    }
    for (std::size_t place = 0; place < waiting.size(); ++place) {
        BuiltControl& control = *waiting[place];
        const Control& row = *control.Is->Row;
        const int apart = row.Font.Name == Face::Plain ? 0 : mostApart;
        const int pixels = std::min(sizes[place], smallest[GroupOf(row)] + apart);
        control.Widget->setFont(FontOf(row, families[row.Font.Name], pixels));
        control.HasFont = true;
    }
}

QFont BoardFont(double points, double pixelsPerTwip)
{
    QFont font(FamilyOf(Face::TimesNewRoman, QFontDatabase::families()));
    font.setPixelSize(std::max(1, qRound(FullSize({Face::TimesNewRoman, points}, pixelsPerTwip))));
    return font;
}
