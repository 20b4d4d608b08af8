#include "ui/qt/message_box.h"

#include "ui/qt/board_button.h"
#include "ui/qt/fonts.h"
#include "ui/session.h"

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace {

// In pixels of a full-sized board.
constexpr int margin = 7;
constexpr int narrowest = 170; // of the text, so that the title can be read
constexpr QSize buttonSize(58, 24);
constexpr double points = 11.25; // of the letters

class MessageBox : public QDialog {
public:
    MessageBox(QWidget& window, Session& session, const Board& board, const Scale& scale,
        const Message& message)
        : QDialog(&window,
              Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
                  | Qt::WindowCloseButtonHint)
        , window_(window)
        , session_(session)
        , board_(board)
        , scale_(scale)
        , message_(message)
        , text_(QString::fromStdString(message.Text))
    {
        setWindowTitle(QString::fromStdString(message.Title));
        setWindowModality(Qt::ApplicationModal);
        text_.setObjectName(QStringLiteral("text"));
        text_.setTextFormat(Qt::PlainText);
        text_.setWordWrap(true);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
        // The readers of its time leave out a text of one or two words; older ones would read the
        // description after the text.
        setAccessibleDescription(text_.text());
#endif
        if (message.Asks) {
            AddButton(1, QStringLiteral("Yes"), Answer::Yes, !message.NoIsHarmless);
            AddButton(2, QStringLiteral("No"), Answer::No, message.NoIsHarmless);
        } else {
            AddButton(1, QStringLiteral("OK"), Answer::Yes, true);
        }
        grid_->setColumnStretch(0, 1);
        grid_->addWidget(&text_, 0, 0, 1, grid_->columnCount());
        LetShow(*this, rings, session.ShowsFocus());
        LetShow(*this, hover, true);
        Place();
        window.installEventFilter(this);
    }

    Answer Given() const { return answer_; }

protected:
    // Escape and closing the box are an answer only where the message has one for them.
    void reject() override
    {
        if (message_.EscapeAnswers())
            Give(Answer::No);
    }

    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress)
            LetShow(*this, rings, true);
        return QDialog::event(event);
    }

    // After the window has given the board its size.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool resized
            = event->type() == QEvent::Resize || event->type() == QEvent::WindowStateChange;
        if (watched == &window_ && resized)
            QMetaObject::invokeMethod(this, [this] { Place(); }, Qt::QueuedConnection);
        return QDialog::eventFilter(watched, event);
    }

    // Not every desktop draws a frame, and the board has the same ground.
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QColor ground = palette().color(QPalette::Window);
        DrawOutline(painter, rect(), LineWidth(scale_),
            Blend(palette().color(QPalette::WindowText), ground, 0.65));
        if (!std::exchange(isSeen_, true))
            session_.MessageShows();
    }

private:
    int Pixels(int atFullSize) const
    {
        return static_cast<int>(atFullSize * 15 * scale_.PixelsPerTwip);
    }

    void AddButton(int column, const QString& caption, Answer answer, bool usual)
    {
        auto* button = new BoardButton(caption, this);
        button->SetLook({.text = caption, .edge = Edge::Raised});
        button->setAutoDefault(true);
        button->setDefault(usual);
        if (usual)
            button->setFocus();
        connect(button, &QPushButton::clicked, this, [this, answer] { Give(answer); });
        grid_->addWidget(button, 1, column);
    }

    // What was pressed before the message can have been read is not for it.
    void Give(Answer answer)
    {
        if (!session_.TakesAnswer())
            return;
        answer_ = answer;
        done(Accepted);
    }

    void TakeScale()
    {
        setFont(BoardFont(points, scale_.PixelsPerTwip));
        const int room = Pixels(margin);
        const int line = LineWidth(scale_);
        grid_->setContentsMargins(room, room, room, room);
        grid_->setSpacing(Pixels(5));
        for (auto* button : findChildren<QPushButton*>()) {
            button->setFixedSize(Pixels(buttonSize.width()), Pixels(buttonSize.height()));
            button->setContentsMargins(line, line, line, line);
        }
    }

    // With its frame, at most that wide.
    PixelSize SizeIn(int widest, const QSize& frame)
    {
        const QMargins around = grid_->contentsMargins();
        const int room = widest - frame.width() - around.left() - around.right();
        const int line = text_.fontMetrics().horizontalAdvance(text_.text()) + 2;
        text_.setFixedWidth(std::clamp(line, std::min(Pixels(narrowest), room), room));
        text_.setFixedHeight(text_.heightForWidth(text_.width()));
        grid_->invalidate();
        const QSize size = grid_->sizeHint() + frame;
        return {size.width(), size.height()};
    }

    void Place()
    {
        TakeScale();
        const QSize frame = window_.frameGeometry().size() - window_.size();
        const QPoint pointer = window_.mapFromGlobal(QCursor::pos());
        const PixelRect place = PlaceOfMessage(
            message_, board_, scale_, [&](int widest) { return SizeIn(widest, frame); },
            PixelPoint{pointer.x(), pointer.y()});
        // Under Wayland a box can be maximised, and one that keeps its size then ends the program.
        const QSize size = QSize(place.Width, place.Height) - frame;
        if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
            resize(size);
        else
            setFixedSize(size);
        // The window may lie half off the screen, and would wait for an answer that nobody can
        // give.
        const QRect screen = window_.screen()->availableGeometry();
        const QPoint wanted = window_.mapToGlobal(QPoint(place.Left, place.Top));
        move(std::max(screen.left(), std::min(wanted.x(), screen.right() + 1 - place.Width)),
            std::max(screen.top(), std::min(wanted.y(), screen.bottom() + 1 - place.Height)));
    }

    QWidget& window_;
    Session& session_;
    const Board& board_;
    const Scale& scale_;
    const Message& message_;
    QLabel text_;
    QGridLayout* grid_ = new QGridLayout(this);
    Answer answer_ = Answer::No;
    bool isSeen_ = false;
};

} // namespace

Answer AskPlayer(QWidget& window, Session& session, const Board& board, const Scale& scale,
    const Message& message)
{
    MessageBox box(window, session, board, scale, message);
    box.exec();
    return box.Given();
}
