#include "ui/builder.h"

#include "game/clicks.h"
#include "ui/board_button.h"
#include "ui/focus.h"
#include "ui/guess_box.h"
#include "ui/letter_tile.h"
#include "ui/level_option.h"
#include "ui/palette.h"
#include "ui/roster.h"
#include "ui/spoken.h"
#include "ui/titled_frame.h"
#include "ui/used_words_list.h"

#include <map>
#include <string_view>

namespace {

template <typename Labelled> QWidget* Captioned(QWidget* parent, const Control& row)
{
    return new Labelled(QString::fromUtf8(row.Caption), parent);
}

QWidget* MakeButton(QWidget* parent, const Control& row)
{
    auto* button = new BoardButton(QString::fromUtf8(row.Caption), parent);
    button->setAutoDefault(true); // Enter clicks too
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

QString NameOf(const Control& row, int number)
{
    const QString name = QString::fromLatin1(row.Name);
    return row.Boxes ? QStringLiteral("%1(%2)").arg(name).arg(number) : name;
}

} // namespace

Controls BuildControls(QWidget& window)
{
    Controls controls;
    std::map<std::string_view, QWidget*> frames{{"", &window}};
    for (const Control& row : Roster()) {
        const auto [first, last] = row.Boxes.value_or(BoxNumbers());
        for (int number = first; number <= last; ++number) {
            QWidget* widget = MakeWidget(frames.at(row.In), row);
            widget->setObjectName(NameOf(row, number));
            widget->setAttribute(Qt::WA_InputMethodEnabled); // for letters that keys compose
            controls.push_back({&row, number, widget, FindField(row.Name), FindClick(row.Name)});
            GiveColours(controls.back());
            GiveWords(controls.back());
            if (row.Is == Kind::Frame)
                frames[row.Name] = widget;
        }
    }
    JoinRows(controls);
    SetTabOrder(controls);
    return controls;
}
