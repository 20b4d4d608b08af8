#include "ui/announcer.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Milliseconds. A screen reader drops what comes while it reads a window again, and while a hundred
// parts of the window tell it that they have come on view.
constexpr int pauseAfterMessage = 200;
constexpr int pauseAfterFrames = 1000;

class Notice : public QWidget {
public:
    explicit Notice(QWidget* window)
        : QWidget(window)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(0, 0, 1, 1); // what has no size is not on view, and is not read
    }
};

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

Announcer::Announcer(QWidget& window, const Board& board)
    : notice_(new Notice(&window))
    , board_(board)
    , told_(Hear(board))
    , seen_(told_)
{
    QAccessible::installFactory(GiveRole);
    // The title is long and is read again after every message; it is told once, when it changes.
    window.setAccessibleName(u"Quorvel2"_s);
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Tell(); });
}

void Announcer::Look()
{
    waiting_ += PlayedSince(seen_, board_);
    const Heard now = Hear(board_);
    goHasPassed_ = goHasPassed_ || !now.YourGo;
    // The end of a game sets the scores back as the level panel comes; the last ones count.
    if (now.LevelPanel && !seen_.LevelPanel && now.GameFrames)
        waiting_ += ScoresOf(seen_);
    if (now.GameFrames != seen_.GameFrames)
        quiet_.setRemainingTime(pauseAfterFrames);
    seen_ = now;
    Wake();
}

void Announcer::Say(const QString& text)
{
    waiting_ += text;
    Wake();
}

void Announcer::BeginHandler()
{
    ++handlers_;
    timer_.stop();
}

void Announcer::EndHandler()
{
    --handlers_;
    Wake();
}

void Announcer::AfterMessage()
{
    quiet_.setRemainingTime(pauseAfterMessage);
}

void Announcer::Wake()
{
    if (handlers_ == 0)
        timer_.start(static_cast<int>(quiet_.remainingTime()));
}

void Announcer::Tell()
{
    const Heard now = Hear(board_);
    const QStringList news
        = std::exchange(waiting_, {}) + NewsSince(told_, now, std::exchange(goHasPassed_, false));
    told_ = now;
    if (!news.isEmpty())
        Speak(news.join(u". "_s));
}

void Announcer::Speak(const QString& text)
{
    notice_->setAccessibleName(text);
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    QAccessibleEvent said(notice_, QAccessible::ObjectShow); // a notice is read as it shows
#else
    QAccessibleAnnouncementEvent said(notice_, text);
#endif
    QAccessible::updateAccessibility(&said);
}
