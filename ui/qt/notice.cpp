#include "ui/qt/notice.h"

#include <QAccessible>
#include <QAccessibleWidget>

using namespace Qt::StringLiterals;

namespace {

// To the toolkit a plain widget is a filler, and that is what a window and a notice would be
// called.
QAccessibleInterface* GiveRole(const QString& className, QObject* object)
{
    if (className != "QWidget"_L1)
        return nullptr;
    auto* widget = static_cast<QWidget*>(object);
    if (dynamic_cast<Notice*>(widget) != nullptr)
        return new QAccessibleWidget(widget, QAccessible::Notification);
    return widget->isWindow() ? new QAccessibleWidget(widget, QAccessible::Window) : nullptr;
}

} // namespace

Notice::Notice(QWidget* window)
    : QWidget(window)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 1, 1); // what has no size is not on view, and is not read
    QAccessible::installFactory(GiveRole);
    // The title is long and is read again after every message; it is told once, when it changes.
    window->setAccessibleName(u"Quorvel2"_s);
}

void Notice::Say(const QString& text)
{
    setAccessibleName(text);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    QAccessibleEvent said(this, QAccessible::ObjectShow); // a notice is read as it shows
#else
    QAccessibleAnnouncementEvent said(this, text);
#endif
    QAccessible::updateAccessibility(&said);
}
