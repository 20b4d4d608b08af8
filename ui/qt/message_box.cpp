#include "ui/qt/message_box.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>

#include <algorithm>

namespace {

class GameMessage : public QMessageBox {
public:
    GameMessage(QWidget& window, const PixelRect& room, const Message& message)
        : QMessageBox(NoIcon, QString::fromStdString(message.Title),
              QString::fromStdString(message.Text),
              message.Asks ? StandardButtons(Yes | No) : StandardButtons(Ok), &window)
        , room_(room)
        , escapeAnswers_(message.EscapeAnswers())
    {
        // A box has its one size, and is not for maximising.
        setWindowFlags(
            Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
        setTextFormat(Qt::PlainText);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
        // The readers of its time leave out a text of one or two words; older ones would read the
        // description after the text.
        setAccessibleDescription(text());
#endif
        setWindowModality(Qt::ApplicationModal);
        setDefaultButton(message.NoIsHarmless ? No : Yes);
        Arrange();
    }

protected:
    // The toolkit fixes the size as it shows the box. Under Wayland a box can be maximised all the
    // same, and one that keeps its size then ends the program.
    bool event(QEvent* event) override
    {
        const bool handled = QMessageBox::event(event);
        if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
            setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        return handled;
    }

    // Escape and closing the box are an answer only where the box has one for them. The toolkit
    // would take them for No, which can end the program.
    void keyPressEvent(QKeyEvent* event) override
    {
        if (escapeAnswers_ || !event->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override
    {
        if (escapeAnswers_)
            QMessageBox::closeEvent(event);
        else
            event->ignore();
    }

    // The size is known from here on, and the box is not on the screen yet.
    void showEvent(QShowEvent* event) override
    {
        QMessageBox::showEvent(event);
        const QRect screen = parentWidget()->screen()->availableGeometry();
        const QPoint corner = parentWidget()->mapToGlobal(QPoint(room_.Left, room_.Top));
        const PixelRect place = PlaceOfMessage({corner.x(), corner.y(), room_.Width, room_.Height},
            width(), height(), {screen.x(), screen.y(), screen.width(), screen.height()});
        setGeometry(place.Left, place.Top, place.Width, place.Height);
    }

private:
    // The toolkit keeps room for an icon that is not there, and some desktops centre the buttons.
    void Arrange()
    {
        auto* grid = qobject_cast<QGridLayout*>(layout());
        if (QLayoutItem* indent = grid->itemAtPosition(0, 0); indent && indent->spacerItem())
            indent->spacerItem()->changeSize(0, 0);
        grid->setColumnStretch(1, 1); // that of the text, which begins at the left
        auto* text = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        text->setContentsMargins(0, 0, 0, 0);
        const int widest = room_.Width - 2 * messageMargin - grid->contentsMargins().left()
            - grid->contentsMargins().right();
        if (text->sizeHint().width() > widest) {
            text->setWordWrap(true);
            text->setFixedWidth(widest);
        }
        // Wide enough for the title to be read, beside the buttons that window managers add.
        const int wide = std::min(fontMetrics().horizontalAdvance(windowTitle()) + 160, widest);
        grid->addItem(new QSpacerItem(wide, 0), grid->rowCount(), 0, 1, grid->columnCount());
        findChild<QDialogButtonBox*>()->setCenterButtons(false);
        for (QAbstractButton* button : QMessageBox::buttons())
            button->setIcon(QIcon());
    }

    PixelRect room_;
    bool escapeAnswers_;
};

// Keys and clicks that were under way before the box could be seen are not meant for it.
class DropInput : public QObject {
public:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::ShortcutOverride:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::TouchBegin:
            return true;
        default:
            return false;
        }
    }
};

} // namespace

Answer AskPlayer(QWidget& window, const PixelRect& room, const Message& message)
{
    GameMessage box(window, room, message);
    box.show();
    DropInput dropInput;
    qApp->installEventFilter(&dropInput);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(&dropInput);
    return box.exec() == QMessageBox::No ? Answer::No : Answer::Yes;
}
