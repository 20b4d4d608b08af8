#include "ui/qt/builder.h"

#include "ui/qt/board_button.h"
#include "ui/qt/guess_box.h"
#include "ui/qt/letter_tile.h"
#include "ui/qt/level_option.h"
#include "ui/qt/palette.h"
#include "ui/qt/titled_frame.h"
#include "ui/qt/used_words_list.h"
#include "ui/roster.h"

namespace {

template <typename Labelled> QWidget* Captioned(QWidget* parent, const Control& row)
{
    return new Labelled(QString::fromUtf8(row.Caption), parent);
}

QWidget* MakeButton(QWidget* parent, const Control& row)
{
    auto* button = new BoardButton(QString::fromUtf8(row.Caption), parent);
    if (row.Heavy)
        button->MakeHeavy();
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
        return Captioned<BoardCheck>(parent, row);
    case Kind::List:
        return new UsedWordsList(parent);
    case Kind::Label:
        return MakeLabel(parent, row);
    }
    return nullptr;
}

} // namespace

Controls BuildControls(QWidget& window)
{
    Controls controls;
    controls.reserve(Parts().size());
    for (const Part& part : Parts()) {
        QWidget* parent = part.Frame == nullptr ? &window : controls[IndexOf(*part.Frame)].Widget;
        QWidget* widget = MakeWidget(parent, *part.Row);
        widget->setObjectName(QString::fromStdString(NameOf(part)));
        widget->setAttribute(Qt::WA_InputMethodEnabled); // for letters that keys compose
        controls.push_back({&part, widget});
        GiveColours(controls.back());
    }
    return controls;
}
