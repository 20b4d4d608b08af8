#include "ui/builder.h"

#include "ui/flat_box.h"
#include "ui/guess_box.h"
#include "ui/letter_tile.h"
#include "ui/roster.h"
#include "ui/titled_frame.h"

#include <QApplication>
#include <QCheckBox>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>

#include <algorithm>
#include <map>
#include <string_view>

namespace {

template <typename Labelled> QWidget* Captioned(QWidget* parent, const Control& row)
{
    return new Labelled(QString::fromUtf8(row.Caption), parent);
}

// The style would shade a button of a named colour into others.
class ColouredButton : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        DrawFlatBox(*this,
            {.ground = QPalette::Button,
                .ink = QPalette::ButtonText,
                .text = text(),
                .pressed = isDown()});
    }
};

// The style marks the focus too faintly to be seen on brick.
class LevelOption : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QRadioButton::paintEvent(event);
        if (hasFocus())
            QPainter(this).fillRect(0, height() - 2, width(), 2, palette().color(foregroundRole()));
    }
    void keyPressEvent(QKeyEvent* event) override
    {
        // Some desktops have Enter click an option; here it is for the window, which may start.
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            event->ignore();
        else
            QRadioButton::keyPressEvent(event);
    }
};

// The style marks the focus on a word of the list, and an empty list has none.
class UsedWordsList : public QListWidget {
public:
    using QListWidget::QListWidget;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QListWidget::paintEvent(event);
        QPainter painter(viewport());
        if (hasFocus())
            DrawFocusRing(painter, viewport()->rect());
    }
};

QWidget* MakeButton(QWidget* parent, const Control& row)
{
    const QString caption = QString::fromUtf8(row.Caption);
    QPushButton* button
        = row.Background ? new ColouredButton(caption, parent) : new QPushButton(caption, parent);
    button->setAutoDefault(true); // Enter clicks too
    if (*row.Caption == '\0')
        button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QWidget* MakeLabel(QWidget* parent, const Control& row)
{
    auto* label = new QLabel(QString::fromUtf8(row.Caption), parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    return label;
}

QWidget* MakeWidget(QWidget* parent, const Control& row)
{
    switch (row.Is) {
    case Kind::Frame:
        return Captioned<TitledFrame>(parent, row);
    case Kind::ShownBox:
        return new ShownBox(parent);
    case Kind::LetterTile:
        return new LetterTile(parent);
    case Kind::GuessBox:
        return new GuessBox(parent);
    case Kind::Button:
        return MakeButton(parent, row);
    case Kind::Option:
        return Captioned<LevelOption>(parent, row);
    case Kind::Check:
        return Captioned<QCheckBox>(parent, row);
    case Kind::List:
        return new UsedWordsList(parent);
    case Kind::Label:
        return MakeLabel(parent, row);
    }
    return nullptr;
}

// The palette roles that a kind of control is drawn with.
struct Roles {
    QPalette::ColorRole ground;
    QPalette::ColorRole ink;
};

Roles RolesOf(Kind kind)
{
    switch (kind) {
    case Kind::Frame:
        // What a frame holds inherits its palette, and nothing else is written in this role.
        return {QPalette::Window, QPalette::BrightText};
    case Kind::Button:
        return {QPalette::Button, QPalette::ButtonText};
    case Kind::ShownBox:
    case Kind::LetterTile:
    case Kind::GuessBox:
    case Kind::List:
        return {QPalette::Base, QPalette::Text};
    case Kind::Option:
    case Kind::Check:
    case Kind::Label:
        break;
    }
    return {QPalette::Window, QPalette::WindowText};
}

QColor ColourOf(const Colour& colour)
{
    return QColor(colour.Red, colour.Green, colour.Blue);
}

void Paint(QWidget& widget, const Control& row)
{
    if (row.Is == Kind::Check || row.Is == Kind::List) {
        // The style darkens this role for their edges, and black on a dark desktop would not show.
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::gray);
        widget.setPalette(palette);
    }
    if (!row.Background && !row.Text)
        return;
    const Roles roles = RolesOf(row.Is);
    QPalette palette;
    // A named ground never keeps the desktop's ink: white on pale would be left on a dark desktop.
    palette.setColor(roles.ink, ColourOf(row.Text.value_or(Colour())));
    if (row.Background)
        palette.setColor(roles.ground, ColourOf(*row.Background));
    if (row.Is == Kind::Option) {
        // The round mark, and the ring about the option that has the focus.
        palette.setColor(QPalette::Base, Qt::white);
        palette.setColor(QPalette::Text, Qt::black);
        palette.setColor(QPalette::Highlight, ColourOf(*row.Text));
    }
    widget.setPalette(palette);
    widget.setForegroundRole(roles.ink);
    // For the backing of the level panel too: what it covers then counts as out of sight.
    widget.setAutoFillBackground(row.Background
        && (row.Is == Kind::Frame || row.Is == Kind::Label || row.Is == Kind::Button));
}

void Describe(QWidget& widget, const Control& row, int number)
{
    const QString spoken = QString::fromUtf8(*row.Spoken == '\0' ? row.Caption : row.Spoken);
    widget.setAccessibleName(spoken.contains(u"%1") ? spoken.arg(number) : spoken);
    widget.setAccessibleDescription(QString::fromUtf8(row.SpokenHelp));
    widget.setToolTip(QString::fromUtf8(row.ToolTip));
}

// Neighbours for the arrow keys, by the number of the box, wherever in the roster the boxes stand.
void JoinRows(const std::vector<BuiltControl>& controls)
{
    std::map<std::string_view, std::map<int, LetterTile*>> rows;
    GuessBox* lastGuess = nullptr;
    for (const BuiltControl& control : controls) {
        if (control.Row->Is == Kind::LetterTile) {
            rows[control.Row->Name][control.Number] = static_cast<LetterTile*>(control.Widget);
        } else if (control.Row->Is == Kind::GuessBox) {
            auto* guess = static_cast<GuessBox*>(control.Widget);
            if (lastGuess != nullptr)
                guess->JoinTo(lastGuess);
            lastGuess = guess;
        }
    }
    for (const auto& [name, row] : rows)
        for (auto tile = std::next(row.begin()); tile != row.end(); ++tile)
            tile->second->JoinTo(std::prev(tile)->second);
}

void SetTabOrder(const std::vector<BuiltControl>& controls)
{
    QWidget* before = nullptr;
    for (const std::string_view name : TabOrder()) {
        std::map<int, QWidget*> boxes;
        for (const BuiltControl& control : controls)
            if (control.Row->Name == name)
                boxes[control.Number] = control.Widget;
        for (const auto& [number, widget] : boxes) {
            if (before != nullptr)
                QWidget::setTabOrder(before, widget);
            before = widget;
        }
    }
}

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

QRect PlaceOf(const BuiltControl& control, double pixelsPerTwip)
{
    const Control& row = *control.Row;
    const int steps = control.Number - (*row.Boxes == '\0' ? 0 : row.Boxes[0] - '0');
    const Place at = {row.At.Left + steps * row.Next.Right, row.At.Top + steps * row.Next.Down,
        row.At.Width, row.At.Height};
    const auto pixels = [=](int twips) { return qRound(twips * pixelsPerTwip); };
    // First and last pixels are rounded and not sizes: boxes that share a line, 15 twips wide,
    // share its pixel at every scale.
    return QRect(QPoint(pixels(at.Left), pixels(at.Top)),
        QPoint(pixels(at.Left + at.Width - 15), pixels(at.Top + at.Height - 15)));
}

} // namespace

std::vector<BuiltControl> BuildControls(QWidget& window)
{
    std::vector<BuiltControl> controls;
    std::map<std::string_view, QWidget*> frames{{"", &window}};
    for (const Control& row : Roster()) {
        const std::string_view boxes = *row.Boxes == '\0' ? "-" : row.Boxes;
        for (const char box : boxes) {
            QWidget* widget = MakeWidget(frames.at(row.In), row);
            const QString name = QString::fromLatin1(row.Name);
            widget->setObjectName(box == '-' ? name : name + u'(' + QChar(box) + u')');
            const int number = box == '-' ? 0 : box - '0';
            Paint(*widget, row);
            Describe(*widget, row, number);
            controls.push_back({&row, number, widget});
            if (row.Is == Kind::Frame)
                frames[row.Name] = widget;
        }
    }
    JoinRows(controls);
    SetTabOrder(controls);
    return controls;
}

void PlaceControls(std::vector<BuiltControl>& controls, double pixelsPerTwip)
{
    for (BuiltControl& control : controls) {
        if (control.Row->At.Width > 0)
            control.Widget->setGeometry(PlaceOf(control, pixelsPerTwip));
        control.Lettered = false;
    }
}

void LetterControls(std::vector<BuiltControl>& controls, double pixelsPerTwip)
{
    QStringList installed; // asked for once: the list is made anew at every question
    std::map<Face, QString> families;
    for (BuiltControl& control : controls) {
        if (control.Lettered || !control.Widget->isVisibleTo(control.Widget->window()))
            continue;
        if (installed.isEmpty())
            installed = QFontDatabase::families();
        QString& family = families[control.Row->Font.Name];
        if (family.isEmpty())
            family = FamilyOf(control.Row->Font.Name, installed);
        control.Widget->setFont(FontOf(*control.Row, *control.Widget, family, pixelsPerTwip));
        control.Lettered = true;
    }
}
