#include "ui/fonts.h"

#include "ui/roster.h"

#include <QApplication>
#include <QFontDatabase>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <map>

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
            - QSize(style.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth)
                    + style.pixelMetric(QStyle::PM_RadioButtonLabelSpacing),
                2);
    case Kind::Check:
        return widget.size()
            - QSize(style.pixelMetric(QStyle::PM_IndicatorWidth)
                    + style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing),
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

// The font of the table, or for this one control a smaller one that its caption fits in with.
QFont FontOf(const Control& row, const QWidget& widget, const QString& family, double pixelsPerTwip)
{
    const QString caption = QString::fromUtf8(row.Caption);
    const QSize room = RoomFor(row, widget);
    QFont font(family);
    // The black face is heavy by itself, and what stands in for it has to be.
    font.setBold(row.Font.Bold || row.Font.Name == Face::ArialBlack);
    for (int pixels = qRound(FullSize(row.Font, pixelsPerTwip));; --pixels) {
        font.setPixelSize(std::max(pixels, 1));
        const QFontMetrics metrics(font);
        if (pixels <= 1 || caption.isEmpty()
            || (metrics.horizontalAdvance(caption) <= room.width()
                && metrics.tightBoundingRect(caption).height() <= room.height()))
            return font;
    }
}

} // namespace

void GiveFonts(Controls& controls, double pixelsPerTwip)
{
    QStringList installed; // asked for once: the list is made anew at every question
    std::map<Face, QString> families;
    for (BuiltControl& control : controls) {
        if (control.HasFont || !control.Widget->isVisibleTo(control.Widget->window()))
            continue;
        if (installed.isEmpty())
            installed = QFontDatabase::families();
        QString& family = families[control.Row->Font.Name];
        if (family.isEmpty())
            family = FamilyOf(control.Row->Font.Name, installed);
        control.Widget->setFont(FontOf(*control.Row, *control.Widget, family, pixelsPerTwip));
        control.HasFont = true;
    }
}
