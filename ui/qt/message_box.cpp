#include "ui/qt/message_box.h"

#include "ui/qt/fonts.h"
#include "ui/session.h"

#include <algorithm>

#include <QApplication>
#include <QCursor>
#include <QDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace {

// The text, and below it the buttons, in the letters of the board. In pixels of a full-sized board:
constexpr int margin = 8;
constexpr double points = 11.25;

class MessageBox : public QDialog {
public:
    MessageBox(QWidget& window, const Session& session, const Scale& scale, const Message& message)
        : QDialog(&window,
              Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
                  | Qt::WindowCloseButtonHint)
        , session_(session)
        , message_(message)
    {
        setWindowTitle(QString::fromStdString(message.Title));
        setWindowModality(Qt::ApplicationModal);
        setFont(BoardFont(points, scale.PixelsPerTwip));
        text_ = new QLabel(QString::fromStdString(message.Text), this);
        text_->setObjectName(QStringLiteral("text"));
        text_->setTextFormat(Qt::PlainText);
        text_->setWordWrap(true);
        setAccessibleDescription(text_->text());
        auto* grid = new QGridLayout(this);
        const int room = static_cast<int>(margin * 15 * scale.PixelsPerTwip);
        grid->setContentsMargins(room, room, room, room);
        grid->setSpacing(room);
        if (message.Asks) {
            AddButton(*grid, 1, QStringLiteral("Yes"), Answer::Yes, !message.NoIsHarmless);
            AddButton(*grid, 2, QStringLiteral("No"), Answer::No, message.NoIsHarmless);
        } else {
            AddButton(*grid, 1, QStringLiteral("OK"), Answer::Yes, true);
        }
        grid->setColumnStretch(0, 1);
        grid->addWidget(text_, 0, 0, 1, grid->columnCount());
    }

    // The size with its frame, at most that wide.
    PixelSize SizeIn(int widest, const QSize& frame)
    {
        const QMargins around = layout()->contentsMargins();
        const int room = widest - frame.width() - around.left() - around.right();
        const int line = text_->fontMetrics().horizontalAdvance(text_->text()) + 2;
        text_->setFixedWidth(std::min(line, room));
        text_->setFixedHeight(text_->heightForWidth(text_->width()));
        layout()->invalidate();
        const QSize size = layout()->sizeHint() + frame;
        return {size.width(), size.height()};
    }

    Answer Given() const { return answer_; }

protected:
    // Escape and closing the box are an answer only where the message has one for them.
    void reject() override
    {
        if (message_.EscapeAnswers())
            Give(Answer::No);
    }

private:
    void AddButton(QGridLayout& grid, int column, const QString& caption, Answer answer, bool usual)
    {
        auto* button = new QPushButton(caption, this);
        button->setAutoDefault(true);
        button->setDefault(usual);
        if (usual)
            button->setFocus();
        connect(button, &QPushButton::clicked, this, [this, answer] { Give(answer); });
        grid.addWidget(button, 1, column);
    }

    // What was pressed before the message can have been read is not for it.
    void Give(Answer answer)
    {
        if (!session_.TakesAnswer())
            return;
        answer_ = answer;
        done(Accepted);
    }

    const Session& session_;
    const Message& message_;
    QLabel* text_ = nullptr;
    Answer answer_ = Answer::No;
};

} // namespace

Answer AskPlayer(QWidget& window, const Session& session, const Board& board, const Scale& scale,
    const Message& message)
{
    MessageBox box(window, session, scale, message);
    const QSize frame = window.frameGeometry().size() - window.size();
    const QPoint pointer = window.mapFromGlobal(QCursor::pos());
    const PixelRect place = PlaceOfMessage(
        message, board, scale, [&](int widest) { return box.SizeIn(widest, frame); },
        PixelPoint{pointer.x(), pointer.y()});
    box.resize(place.Width - frame.width(), place.Height - frame.height());
    box.move(window.mapToGlobal(QPoint(place.Left, place.Top)));
    box.exec();
    return box.Given();
}
