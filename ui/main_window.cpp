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
#include "ui/places.h"
#include "ui/roster.h"

#include <QAbstractButton>
#include <QApplication>
#include <QIcon>
#include <QLineEdit>

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
    , controls_(BuildControls(*this))
    , size_(*this, game.board)
{
    setWindowIcon(QIcon(u":/quorvel2.png"_s));
    Form_Load(game_);
    ConnectClicks();
    ConnectTyping();
    PlaceControls(controls_, game_.board, size_.PixelsPerTwip());
    ShowBoard();
    Find(controls_, "Option1", 1).setFocus();
    qApp->installEventFilter(&heldEnter_);
}

void MainWindow::ConnectClicks()
{
    for (const BuiltControl& control : controls_) {
        if (control.Clicked == nullptr)
            continue;
        const auto index = static_cast<std::int16_t>(control.Number);
        connect(&As<QAbstractButton>(control), &QAbstractButton::clicked, this,
            [this, click = control.Clicked, index] {
                Deliver(game_, *click, index);
                ShowBoard();
            });
    }
}

void MainWindow::ConnectTyping()
{
    Board& board = game_.board;
    connect(&Find<QAbstractButton>(controls_, "Check1"), &QAbstractButton::clicked, this,
        [&board](bool ticked) { WriteTick(board, ticked); });
    for (const BuiltControl& control : controls_) {
        if (control.Row->Is != Kind::GuessBox || control.Shows == nullptr)
            continue;
        LetterBox& box = (board.*std::get<LetterRow Board::*>(*control.Shows))(control.Number);
        connect(&As<QLineEdit>(control), &QLineEdit::textEdited, this,
            [&box](const QString& typed) { WriteGuess(box, typed); });
    }
}

void MainWindow::ShowBoard()
{
    const QWidget* focused = focusWidget();
    if (const QString caption = QString::fromUtf8(game_.board.Caption); windowTitle() != caption)
        setWindowTitle(caption);
    ShowControls(controls_, game_.board, size_.PixelsPerTwip());
    GiveFonts(controls_, size_.PixelsPerTwip());
    KeepFocusInPlay(controls_, game_.board, focused);
}

void MainWindow::Refresh()
{
    ShowBoard();
    // Painting at once, not when the screen next asks for it: what follows takes time.
    QEvent paint(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(this, &paint);
    QCoreApplication::processEvents();
}

void MainWindow::HoldSize()
{
    if (!size_.Form_Resize())
        return;
    PlaceControls(controls_, game_.board, size_.PixelsPerTwip());
    GiveFonts(controls_, size_.PixelsPerTwip());
}

void MainWindow::showEvent(QShowEvent* /*event*/)
{
    HoldSize();
}

void MainWindow::resizeEvent(QResizeEvent* /*event*/)
{
    HoldSize();
}

// The borders that the window manager adds are known from the first move on; and a move can end on
// another screen.
void MainWindow::moveEvent(QMoveEvent* /*event*/)
{
    HoldSize();
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange)
        HoldSize();
    QWidget::changeEvent(event);
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    if (!PressOnLevelPanel(controls_, *event))
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
