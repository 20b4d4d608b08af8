#include "ui/keys.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QRadioButton>

bool IsEnter(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool PressOnLevelPanel(const Controls& controls, const QKeyEvent& key)
{
    const QWidget& ok = Find(controls, "Command1");
    auto* option = qobject_cast<QRadioButton*>(ok.window()->focusWidget());
    if (!IsEnter(key) || option == nullptr)
        return false;
    if (option->isChecked())
        Find<QAbstractButton>(controls, "Command1").click();
    else
        option->click();
    return true;
}

bool HeldEnterFilter::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (!IsEnter(key))
        return false;
    if (event->type() == QEvent::KeyRelease) {
        enterReleased_ = key.timestamp();
        return false;
    }
    // On X11 a key repeats by a release and a press at one moment, and not all are marked.
    const bool sameMoment = key.timestamp() != 0 && key.timestamp() == enterReleased_;
    return key.isAutoRepeat() || sameMoment;
}
