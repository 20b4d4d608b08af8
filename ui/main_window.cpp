#include "ui/main_window.h"

#include "game/board.h"
#include "game/clicks.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/start_of_game.h"
#include "ui/builder.h"
#include "ui/drawing.h"
#include "ui/focus.h"
#include "ui/fonts.h"
#include "ui/guess_box.h"
#include "ui/installed.h"
#include "ui/places.h"
#include "ui/roster.h"
#include "ui/used_words_list.h"

#include <QAbstractButton>
#include <QApplication>
#include <QIcon>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

// The one place where the player writes on the board: a typed guess and the tick.
void WriteGuess(LetterBox& box, const QString& typed)
{
    box.Text = typed.toStdString();
}
void WriteTick(Board& board, bool ticked)
{
    board.Check1 = ticked ? 1 : 0;
}

} // namespace

MainWindow::MainWindow(Game& game)
    : game_(game)
    , announcer_(*this, game.board)
    , controls_(BuildControls(*this))
    , size_(*this, game.board, [this] { Rescale(); })
    , typing_(controls_, game.board)
{
    setWindowIcon(QIcon(u":/quorvel2.png"_s));
    Form_Load(game_);
    ConnectClicks();
    ConnectTyping();
    PlaceControls(controls_, size_.Present());
    ShowBoard();
    FocusOnPlay(controls_, game_.board);
    qApp->installEventFilter(&heldEnter_);
    qApp->installEventFilter(&typing_);
}

void MainWindow::ConnectClicks()
{
    for (const BuiltControl& control : controls_) {
        if (control.Clicked == nullptr)
            continue;
        auto* button = &As<QAbstractButton>(control);
        if (control.Row->Is != Kind::Option) {
            connect(button, &QAbstractButton::clicked, this, [this, &control] { Click(control); });
            continue;
        }
        // A screen reader can choose a level without a click.
        connect(button, &QAbstractButton::toggled, this, [this, &control](bool chosen) {
            if (chosen && game_.board.Level != control.Number)
                Click(control);
        });
    }
}

void MainWindow::Click(const BuiltControl& control)
{
    refreshed_ = false;
    announcer_.BeginHandler();
    Deliver(game_, *control.Clicked, static_cast<std::int16_t>(control.Number));
    ShowBoard();
    announcer_.EndHandler();
    // A handler that repaints before its end has begun a game or a go, or has made the swap of one:
    // the player goes on at the letters.
    if (refreshed_)
        FocusOnPlay(controls_, game_.board);
    else if (control.Clicked->Control == "Command7" && !game_.board.Frame1.Visible)
        FocusOnGap(controls_, game_.board); // "Make A Guess"
}

void MainWindow::ConnectTyping()
{
    Board& board = game_.board;
    connect(&Find<QAbstractButton>(controls_, "Check1"), &QAbstractButton::toggled, this,
        [&board](bool ticked) { WriteTick(board, ticked); });
    auto& words = Find<UsedWordsList>(controls_, "List1");
    connect(&words, &UsedWordsList::currentRowChanged, this, [this, &words](int row) {
        if (words.hasFocus() && row >= 0)
            announcer_.Say(words.item(row)->text());
    });
    for (const BuiltControl& control : controls_) {
        if (control.Row->Is != Kind::GuessBox || control.Shows == nullptr)
            continue;
        LetterBox& box = (board.*std::get<LetterRow Board::*>(*control.Shows))(control.Number);
        // Typed, pasted, or set by whoever plays through a screen reader. What was pasted may have
        // spread by now.
        auto* guess = &As<GuessBox>(control);
        connect(guess, &QLineEdit::textChanged, this,
            [&box, guess] { WriteGuess(box, guess->text()); });
    }
}

void MainWindow::ShowBoard()
{
    if (const QString caption = QString::fromUtf8(game_.board.Caption); windowTitle() != caption)
        setWindowTitle(caption);
    ShowControls(controls_, game_.board);
    PlacePanels(controls_, game_.board, size_.Present());
    // What is disabled or hidden while it has the focus would hand it to its neighbour.
    if (!FocusStaysInPlay(controls_, game_.board))
        FocusOnPlay(controls_, game_.board);
    TakeOutOfPlay(controls_, game_.board);
    GiveFonts(controls_, size_.Present().PixelsPerTwip);
    announcer_.Look();
}

void MainWindow::Refresh()
{
    ShowBoard();
    // Painting at once, not when the screen next asks for it: what follows takes time.
    QEvent paint(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(this, &paint);
    QCoreApplication::processEvents();
    refreshed_ = true;
}

QRect MainWindow::RoomForMessages() const
{
    const QWidget& words = Find(controls_, "Frame2");
    const QWidget& guess = Find(controls_, "Command7"); // below the hidden words
    const QWidget& used = Find(controls_, "Frame7");
    const QPoint topLeft(words.mapToGlobal(QPoint()).x(), guess.mapToGlobal(QPoint()).y());
    return {topLeft, used.mapToGlobal(used.rect().bottomRight())};
}

void MainWindow::Rescale()
{
    PlaceControls(controls_, size_.Present());
    PlacePanels(controls_, game_.board, size_.Present());
    GiveFonts(controls_, size_.Present().PixelsPerTwip);
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
        size_.Form_Resize();
        break;
    default:
        break;
    }
    return handled;
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F1 && event->modifiers() == Qt::NoModifier) {
        if (!event->isAutoRepeat())
            OpenHowToPlay();
        return;
    }
    if (!PressOnLevelPanel(controls_, *event) && !typing_.Press(*event))
        QWidget::keyPressEvent(event);
}

bool MainWindow::focusNextPrevChild(bool next)
{
    return StepToSight(*this, [this, next] { return QWidget::focusNextPrevChild(next); });
}

void MainWindow::closeEvent(QCloseEvent* /*event*/)
{
    game_.view.EndProgram();
}
