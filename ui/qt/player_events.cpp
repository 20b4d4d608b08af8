#include "ui/qt/player_events.h"

#include "ui/roster.h"
#include "ui/session.h"

#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QToolTip>

#include <optional>
#include <utility>

namespace {

constexpr std::pair<Qt::Key, Key> keys[] = {
    {Qt::Key_Left, Key::Left},
    {Qt::Key_Right, Key::Right},
    {Qt::Key_Up, Key::Up},
    {Qt::Key_Down, Key::Down},
    {Qt::Key_Home, Key::Home},
    {Qt::Key_End, Key::End},
    {Qt::Key_Tab, Key::Tab},
    {Qt::Key_Backtab, Key::BackTab},
    {Qt::Key_Backspace, Key::Backspace},
    {Qt::Key_Escape, Key::Escape},
    {Qt::Key_Return, Key::Enter},
    {Qt::Key_Enter, Key::Enter},
    {Qt::Key_F1, Key::F1},
    {Qt::Key_F2, Key::F2},
    {Qt::Key_F4, Key::F4},
    {Qt::Key_F8, Key::F8},
    {Qt::Key_F9, Key::F9},
    {Qt::Key_F10, Key::F10},
};

std::optional<Key> KeyOf(const QKeyEvent& event)
{
    Qt::KeyboardModifiers with = event.modifiers() & ~Qt::KeypadModifier;
    const bool function = event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F12;
    if (event.key() == Qt::Key_Backtab || function)
        with &= ~Qt::ShiftModifier;
    for (const auto& [key, meant] : keys) {
        if (event.key() == key && (with == Qt::NoModifier || meant == Key::Enter))
            return meant;
    }
    return std::nullopt;
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

// Tells where the cursor stands, in a text or in a list.
void TellCursor(const QWidget& widget, KeyPress& press)
{
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        press.AtStart = edit->cursorPosition() == 0 || edit->hasSelectedText();
        press.AtEnd = edit->cursorPosition() == edit->text().size() || edit->hasSelectedText();
    } else if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
        press.AtStart = list->currentRow() <= 0;
        press.AtEnd = list->currentRow() == list->count() - 1;
    }
}

} // namespace

PlayerEvents::PlayerEvents(const QWidget& window, const Controls& controls, Session& session)
    : window_(window)
    , controls_(controls)
    , session_(session)
{
}

bool PlayerEvents::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress || type == QEvent::KeyRelease) {
        if (IsHeldEnter(static_cast<QKeyEvent&>(*event), type == QEvent::KeyPress))
            return true;
    }
    if (type == QEvent::ToolTip)
        return ShowTip(watched, static_cast<QHelpEvent&>(*event));
    // A key that a control leaves goes on to what holds it, and comes by here again.
    const auto* widget = qobject_cast<QWidget*>(watched);
    const QWidget* focused = window_.focusWidget() != nullptr ? window_.focusWidget() : &window_;
    if (widget == nullptr || widget != focused)
        return false;
    switch (type) {
    case QEvent::KeyPress:
        return Press(*widget, static_cast<QKeyEvent&>(*event));
    case QEvent::InputMethod:
        if (qobject_cast<const QLineEdit*>(widget) == nullptr)
            Type(static_cast<QInputMethodEvent*>(event)->commitString());
        return false;
    case QEvent::FocusIn:
    case QEvent::MouseButtonRelease:
        if (const Part* part = PartOf(controls_, widget))
            session_.FocusCame(*part);
        return false;
    default:
        return false;
    }
}

// The toolkit would have a reader say the tip of its own where a control has no help.
bool PlayerEvents::ShowTip(QObject* watched, const QHelpEvent& event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    const Part* part = PartOf(controls_, widget);
    if (part == nullptr || *part->Row->ToolTip == '\0')
        return false;
    QToolTip::showText(event.globalPos(), QString::fromUtf8(part->Row->ToolTip), widget);
    return true;
}

bool PlayerEvents::IsHeldEnter(const QKeyEvent& key, bool press)
{
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter)
        return false;
    if (!press) {
        enterReleased_ = key.timestamp();
        return false;
    }
    // On X11 a key repeats by a release and a press at one moment, and not all are marked.
    const bool sameMoment = key.timestamp() != 0 && key.timestamp() == enterReleased_;
    return key.isAutoRepeat() || sameMoment;
}

bool PlayerEvents::Press(const QWidget& widget, const QKeyEvent& event)
{
    if (const std::optional<Key> key = KeyOf(event)) {
        KeyPress press{.Is = *key,
            .Held = event.isAutoRepeat(),
            .Shift = event.modifiers().testFlag(Qt::ShiftModifier)};
        TellCursor(widget, press);
        return session_.Press(press);
    }
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr || !IsTyped(event))
        return false;
    if (!event.isAutoRepeat())
        Type(event.text());
    return true;
}

// In other cases whatever the locale.
void PlayerEvents::Type(const QString& text)
{
    const auto utf8 = [](char32_t letter) { return QString::fromUcs4(&letter, 1).toStdString(); };
    for (const char32_t letter : text.normalized(QString::NormalizationForm_C).toStdU32String())
        session_.Type({utf8(letter), utf8(QChar::toLower(letter)), utf8(QChar::toUpper(letter))});
}
