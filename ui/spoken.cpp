#include "ui/spoken.h"

#include "ui/controls.h"
#include "ui/roster.h"

#include <QWidget>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

QString WithNumber(const char* words, int number)
{
    const QString text = QString::fromUtf8(words);
    return text.contains(u"%1") ? text.arg(number) : text;
}

} // namespace

Silence::Silence()
    : usual_(QAccessible::installUpdateHandler([](QAccessibleEvent* /*event*/) { }))
{
}

Silence::~Silence()
{
    QAccessible::installUpdateHandler(usual_);
}

void GiveWords(const BuiltControl& control)
{
    const Control& row = *control.Row;
    const char* name = *row.Spoken == '\0' ? row.Caption : row.Spoken;
    control.Widget->setAccessibleName(WithNumber(name, control.Number));
    // Help is said once for all boxes. A blank keeps the others from saying their tool tip instead.
    const char* help = control.Number <= 1 ? row.SpokenHelp : " ";
    control.Widget->setAccessibleDescription(QString::fromUtf8(help));
    control.Widget->setToolTip(QString::fromUtf8(row.ToolTip));
}

void NameBox(const BuiltControl& control, const QString& text, const QString& faint)
{
    QString words = WithNumber(control.Row->Spoken, control.Number);
    words += text.isEmpty() ? QString::fromUtf8(control.Row->SpokenWhenEmpty)
                            : u": "_s + text + QString::fromUtf8(control.Row->SpokenWhenFilled);
    if (!faint.isEmpty())
        words += u", "_s + faint + u" is in your hand"_s;
    if (control.Widget->accessibleName() == words)
        return; // a name that is given is told, even the same
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    // Where the focus is, a reader would read the whole name again; the news has what is new in it.
    // Older ones do not, and a client that keeps names has to be told of the new one.
    std::optional<Silence> silence;
    if (control.Widget->hasFocus())
        silence.emplace();
#endif
    control.Widget->setAccessibleName(words);
}
