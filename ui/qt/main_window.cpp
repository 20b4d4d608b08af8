#include "ui/qt/main_window.h"

#include "game/board.h"
#include "game/game.h"
#include "ui/message.h"
#include "ui/qt/box_look.h"
#include "ui/qt/builder.h"
#include "ui/qt/drawing.h"
#include "ui/qt/guess_box.h"
#include "ui/qt/installed.h"
#include "ui/qt/message_box.h"
#include "ui/qt/used_words_list.h"
#include "ui/roster.h"

#include <QAbstractButton>
#include <QApplication>
#include <QIcon>
#include <QScreen>

#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

PixelSize SizeOf(const QSize& size)
{
    return {size.width(), size.height()};
}

} // namespace

MainWindow::MainWindow(Game& game)
    : game_(game)
    , notice_(this)
    , controls_(BuildControls(*this))
    , size_(game.board)
    , session_(game, *this)
    , events_(*this, controls_, session_)
    , pointer_(*this, controls_, session_)
{
    setWindowIcon(QIcon(u":/quorvel2.png"_s));
    resize(DesignSize().Width, DesignSize().Height);
    clock_.start();
    wake_.setSingleShot(true);
    connect(&wake_, &QTimer::timeout, this, [this] { session_.Wake(); });
    askAgain_.setSingleShot(true);
    connect(&askAgain_, &QTimer::timeout, this, [this] { Do(size_.AskAgain(LookAtDesktop())); });
    for (const BuiltControl& control : controls_)
        Connect(control);
    qApp->installEventFilter(&events_);
    qApp->installEventFilter(&pointer_);
    session_.Start();
}

void MainWindow::Connect(const BuiltControl& control)
{
    const Part& part = *control.Is;
    const Board& board = game_.board;
    const auto click = [this, &part] { session_.Click(part); };
    switch (part.Row->Is) {
    case Kind::LetterTile:
    case Kind::Button:
        connect(&As<QAbstractButton>(control), &QAbstractButton::clicked, this, click);
        break;
    case Kind::Option: // a screen reader can choose a level without a click
        connect(&As<QAbstractButton>(control), &QAbstractButton::toggled, this,
            [&board, &part, click](bool chosen) {
                if (chosen && board.Level != part.Number)
                    click();
            });
        break;
    case Kind::Check:
        connect(&As<QAbstractButton>(control), &QAbstractButton::toggled, this,
            [this, &board](bool ticked) {
                if (ticked != (board.Check1 != 0))
                    session_.Tick(ticked);
            });
        break;
    case Kind::GuessBox: {
        auto& guess = As<GuessBox>(control);
        connect(&guess, &QLineEdit::textEdited, this, [this, &part, &guess](const QString& text) {
            session_.Edited(
                part, text.normalized(QString::NormalizationForm_C).toStdString(), guess.Kind());
        });
        // Set by whoever plays through a screen reader. What was pasted may have spread by now.
        connect(&guess, &QLineEdit::textChanged, this, [this, &board, &part, &guess] {
            if (guess.text().toStdString() != BoxOf(part, board)->Text)
                session_.Wrote(part, guess.text().toStdString());
        });
        break;
    }
    case Kind::List: {
        auto& words = As<UsedWordsList>(control);
        connect(&words, &UsedWordsList::currentRowChanged, this, [this, &words](int row) {
            if (words.hasFocus() && row >= 0)
                session_.ReachedWord(words.item(row)->text().toStdString());
        });
        break;
    }
    case Kind::Frame:
    case Kind::ShownBox:
    case Kind::Label:
        break;
    }
}

void MainWindow::ShowBoard()
{
    if (const QString caption = QString::fromStdString(game_.board.Caption);
        windowTitle() != caption)
        setWindowTitle(caption);
    const Scale& scale = size_.Present();
    const bool rescaled = scale != std::exchange(shownAt_, scale);
    ShowControls(controls_, session_, game_.board, scale, rescaled);
    LetShow(*this, rings, session_.ShowsFocus());
    pointer_.ShowHand();
}

void MainWindow::TakeOutOfPlay()
{
    ::TakeOutOfPlay(controls_, game_.board);
}

const Part* MainWindow::Focused() const
{
    return PartOf(controls_, focusWidget());
}

// For the reason of a Tab key a box to type in selects its text, so that typing replaces it.
void MainWindow::Focus(const Part& part)
{
    controls_[IndexOf(part)].Widget->setFocus(Qt::TabFocusReason);
}

void MainWindow::PaintNow()
{
    // At once, not when the screen next asks for it: what follows takes time.
    QEvent paint(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(this, &paint);
    QCoreApplication::processEvents();
}

Answer MainWindow::Ask(const Message& message)
{
    return AskPlayer(*this, session_, game_.board, size_.Present(), message);
}

// Nothing is to be saved, and handlers, messages and the window may all be in the middle of their
// work: nothing of them may run any more.
void MainWindow::End()
{
    std::_Exit(0);
}

void MainWindow::Say(const std::string& text)
{
    notice_.Say(QString::fromStdString(text));
}

void MainWindow::WakeAfter(int milliseconds)
{
    wake_.start(milliseconds);
}

std::int64_t MainWindow::Milliseconds() const
{
    return clock_.elapsed();
}

int MainWindow::DoubleClickMilliseconds() const
{
    return QApplication::doubleClickInterval();
}

bool MainWindow::OpenHowToPlay()
{
    return ::OpenHowToPlay();
}

Desktop MainWindow::LookAtDesktop()
{
    // A screen can become another size with the window on it, and not all desktops move the window.
    disconnect(ofScreen_);
    ofScreen_ = connect(screen(), &QScreen::availableGeometryChanged, this, [this] { Resized(); });
    const QRect room = screen()->availableGeometry();
    const QPoint place = frameGeometry().topLeft() - room.topLeft();
    return {.Window = SizeOf(size()),
        .Borders = SizeOf(frameGeometry().size() - size()),
        .Screen = SizeOf(room.size()),
        .Place = {place.x(), place.y()},
        .Fills = isMaximized() || isFullScreen(),
        .Minimised = isMinimized(),
        .SaysSizeAlone = QGuiApplication::platformName().startsWith("wayland"_L1)};
}

void MainWindow::Resized()
{
    Do(size_.Form_Resize(LookAtDesktop()));
}

void MainWindow::Do(const Wish& wish)
{
    if (wish.AskAgainAfter > 0)
        askAgain_.start(wish.AskAgainAfter);
    if (wish.Size)
        resize(wish.Size->Width, wish.Size->Height);
    size_.ReadSize(LookAtDesktop());
    if (size_.Present() != shownAt_)
        ShowBoard();
}

bool MainWindow::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Resize:
    case QEvent::Move: // the borders are known from the first move on; one can end on another
                       // screen
    case QEvent::WindowStateChange:
        Resized();
        break;
    default:
        break;
    }
    return handled;
}

void MainWindow::closeEvent(QCloseEvent* /*event*/)
{
    session_.End();
}
