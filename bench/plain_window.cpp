#include "bench/plain_window.h"

#include "ui/roster.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <map>
#include <string_view>

namespace {

QWidget* MakeWidget(QWidget* parent, const Control& row)
{
    const QString caption = QString::fromUtf8(row.Caption);
    switch (row.Is) {
    case Kind::Frame:
        return new QGroupBox(caption, parent);
    case Kind::ShownBox:
    case Kind::Label:
        return new QLabel(caption, parent);
    case Kind::LetterTile:
    case Kind::Button:
        return new QPushButton(caption, parent);
    case Kind::GuessBox:
        return new QLineEdit(parent);
    case Kind::Option:
        return new QRadioButton(caption, parent);
    case Kind::Check:
        return new QCheckBox(caption, parent);
    case Kind::List:
        return new QListWidget(parent);
    }
    return nullptr;
}

// The level panel has no place of its own: the board puts it in the middle.
QRect PlaceOf(const Control& row, int box)
{
    constexpr int twipsPerPixel = 15;
    if (row.At.Width == 0)
        return {262, 129, 137, 241};
    return {(row.At.Left + box * row.Next.Right) / twipsPerPixel,
        (row.At.Top + box * row.Next.Down) / twipsPerPixel, row.At.Width / twipsPerPixel,
        row.At.Height / twipsPerPixel};
}

void MakeControls(QWidget& window)
{
    std::map<std::string_view, QWidget*> frames{{"", &window}};
    for (const Control& row : Roster()) {
        const auto [first, last] = row.Boxes.value_or(BoxNumbers());
        for (int box = 0; box <= last - first; ++box) {
            QWidget* widget = MakeWidget(frames.at(row.In), row);
            widget->setObjectName(QString::fromUtf8(row.Name));
            widget->setGeometry(PlaceOf(row, box));
            if (row.Is == Kind::Frame)
                frames[row.Name] = widget;
        }
    }
}

} // namespace

std::unique_ptr<QWidget> MakePlainWindow()
{
    auto window = std::make_unique<QWidget>();
    window->setFixedSize(664, 499); // the game's
    MakeControls(*window);
    ShowPlainGame(*window, false);
    return window;
}

void ShowPlainGame(const QWidget& window, bool game)
{
    const auto children = window.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* child : children) {
        const bool ofPanel = child->objectName() == "Frame1" || child->objectName() == "Command2";
        child->setVisible(ofPanel != game);
    }
}
