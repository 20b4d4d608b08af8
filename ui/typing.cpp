#include "ui/typing.h"

#include "game/board.h"
#include "game/rows.h"

#include <QAbstractButton>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

// The first box of the row that holds the letter; 0 when none does.
int BoxWith(const LetterRow& row, char32_t letter)
{
    const std::string text = QString::fromUcs4(&letter, 1).toStdString();
    for (int box = 1; box <= lettersPerWord; ++box) {
        if (row(box).Text == text)
            return box;
    }
    return 0;
}

// The letter as the row has it: as it was typed, or else in the other case, whatever the locale;
// 0 when the row has neither.
char32_t LetterIn(const LetterRow& row, char32_t typed)
{
    for (const char32_t letter : {typed, QChar::toLower(typed), QChar::toUpper(typed)}) {
        if (BoxWith(row, letter) != 0)
            return letter;
    }
    return 0;
}

// Ctrl, Alt and Meta make commands of the keys. AltGr types; on Windows it comes as Ctrl and Alt.
bool IsTyped(const QKeyEvent& key)
{
    const auto commands
        = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
#ifdef Q_OS_WIN
    const bool altGr = commands == (Qt::ControlModifier | Qt::AltModifier);
#else
    const bool altGr = false;
#endif
    return (commands == Qt::NoModifier || altGr) && !key.text().isEmpty()
        && key.key() != Qt::Key_Space && QChar::isPrint(key.text().toUcs4().front());
}

} // namespace

Typing::Typing(const Controls& controls, const Board& board)
    : controls_(controls)
    , board_(board)
{
}

bool Typing::Press(const QKeyEvent& key) const
{
    if (key.key() == Qt::Key_Escape && key.modifiers() == Qt::NoModifier) {
        PlaceTheRest();
        return true;
    }
    if (!IsTyped(key))
        return false;
    if (!key.isAutoRepeat())
        Type(key.text());
    return true;
}

bool Typing::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::InputMethod || qobject_cast<QLineEdit*>(watched) != nullptr)
        return false;
    Type(static_cast<QInputMethodEvent*>(event)->commitString());
    return true;
}

// While it is the player's go, with no level to choose.
bool Typing::CanType() const
{
    return board_.Label5.Visible && !board_.Frame1.Visible;
}

void Typing::Type(const QString& text) const
{
    for (const uint letter : text.normalized(QString::NormalizationForm_C).toUcs4())
        TypeLetter(letter);
}

void Typing::TypeLetter(char32_t letter) const
{
    if (!CanType())
        return;
    if (!HoldsLetters(board_.Text2) && LetterIn(board_.Text1, letter) != 0)
        Click("Command9"); // "Lay Out Word"
    const int box = BoxWith(board_.Text2, LetterIn(board_.Text2, letter));
    if (box == 0)
        return;
    Click("Text2", box);
    for (int left = 1; left <= lettersPerWord; ++left) {
        if (!board_.Text2(left).Text.empty())
            return Find(controls_, "Text2", left).setFocus();
    }
    Find(controls_, "Command3").setFocus(); // "Submit Word"
}

void Typing::PlaceTheRest() const
{
    for (int box = 1; box <= lettersPerWord && CanType(); ++box) {
        if (!board_.Text2(box).Text.empty())
            Click("Text2", box);
    }
}

void Typing::Click(const char* control, int box) const
{
    Find<QAbstractButton>(controls_, control, box).click();
}
