#include "ui/main_window.h"

#include "game/board.h"
#include "game/clicks.h"
#include "game/game.h"
#include "game/game_view.h"
#include "game/start_of_game.h"
#include "ui/guess_box.h"
#include "ui/letter_tile.h"
#include "ui/roster.h"

#include <QApplication>
#include <QCheckBox>
#include <QIcon>
#include <QKeyEvent>
#include <QListWidget>
#include <QRadioButton>
#include <QScreen>

#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

namespace {

// In twips: the size that the window is built at, and the outer size that it has on the screen.
constexpr QSize designSize(10875, 7920);
constexpr QSize outerSize(9960, 7484);
constexpr QSize reach(ReachRight, ReachDown);
constexpr double fullScale = 1.0 / 15; // pixels to the twip, at 96 dots to the inch

struct RowField {
    const char* control;
    LetterRow Board::* row;
};
constexpr RowField rowFields[] = {
    {"Text1", &Board::Text1},
    {"Text2", &Board::Text2},
    {"SwapLetters", &Board::SwapLetters},
    {"MyLetters", &Board::MyLetters},
    {"Word1", &Board::Word1},
    {"Word2", &Board::Word2},
    {"Word3", &Board::Word3},
    {"Text6", &Board::Text6},
    {"Text7", &Board::Text7},
    {"Text8", &Board::Text8},
};

struct NumberField {
    const char* control;
    NumberBox Board::* box;
};
constexpr NumberField numberFields[] = {
    {"YourScore", &Board::YourScore},
    {"MyScore", &Board::MyScore},
    {"Text9", &Board::Text9},
};

struct VisibleField {
    const char* control;
    Frame Board::* frame;
};
constexpr VisibleField visibleFields[] = {
    {"Frame2", &Board::Frame2},
    {"Frame3", &Board::Frame3},
    {"Frame4", &Board::Frame4},
    {"Frame5", &Board::Frame5},
    {"Frame7", &Board::Frame7},
    {"Frame9", &Board::Frame9},
    {"Label5", &Board::Label5},
};

struct EnabledField {
    const char* control;
    Button Board::* button;
};
constexpr EnabledField enabledFields[] = {
    {"Command4", &Board::Command4},
    {"Command5", &Board::Command5},
    {"Command6", &Board::Command6},
    {"Command9", &Board::Command9},
    {"Command16", &Board::Command16},
};

QString Shown(const std::string& text)
{
    return QString::fromUtf8(text);
}

// The one place where the player writes on the board: a typed guess and the tick.
void WriteGuess(LetterBox& box, const QString& typed)
{
    box.Text = typed.toStdString();
}
void WriteTick(Board& board, bool ticked)
{
    board.Check1 = ticked ? 1 : 0;
}

bool IsEnter(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

void SetVisible(QWidget& widget, bool visible)
{
    if (widget.isHidden() == visible)
        widget.setVisible(visible);
}

void SetEnabled(QWidget& widget, bool enabled)
{
    if (widget.isEnabledTo(widget.parentWidget()) != enabled)
        widget.setEnabled(enabled);
}

// "Your letter 3: p", "Swap letter 1, red: w, not available".
void Speak(const BuiltControl& control, const QString& letter, const QString& faint, bool enabled)
{
    QString words = QString::fromUtf8(control.Row->Spoken);
    if (words.contains(u"%1"))
        words = words.arg(control.Number);
    words += letter.isEmpty() ? QString::fromUtf8(control.Row->SpokenWhenEmpty) : u": "_s + letter;
    if (!faint.isEmpty())
        words += u", "_s + faint + u" is in your hand"_s;
    if (!enabled)
        words += u", not available"_s;
    control.Widget->setAccessibleName(words);
}

} // namespace

MainWindow::MainWindow(Game& game)
    : game_(game)
    , controls_(BuildControls(*this))
{
    setWindowIcon(QIcon(u":/quorvel2.png"_s));
    resize(designSize * fullScale);
    ReadSize();
    Form_Load(game_);

    ConnectClicks();
    ConnectTyping();
    BindToBoard();
    ShowLevelPanel();
    PlaceControls(controls_, pixelsPerTwip_);
    ShowBoard();
    Find("Option1", 1)->setFocus();
    qApp->installEventFilter(this);
}

QWidget* MainWindow::Find(const char* control, int number) const
{
    const auto found = std::ranges::find_if(controls_, [=](const BuiltControl& built) {
        return std::string_view(control) == built.Row->Name && built.Number == number;
    });
    return found == controls_.end() ? nullptr : found->Widget;
}

void MainWindow::ConnectClicks()
{
    for (const BuiltControl& control : controls_) {
        const Click* click = FindClick(control.Row->Name);
        auto* button = qobject_cast<QAbstractButton*>(control.Widget);
        if (click == nullptr || button == nullptr)
            continue;
        const auto index = static_cast<std::int16_t>(control.Number);
        connect(button, &QAbstractButton::clicked, this, [this, click, index] {
            Deliver(game_, *click, index);
            ShowBoard();
        });
    }
}

void MainWindow::ConnectTyping()
{
    Board& board = game_.board;
    connect(static_cast<QCheckBox*>(Find("Check1")), &QCheckBox::clicked, this,
        [&board](bool ticked) { WriteTick(board, ticked); });
    for (const RowField& field : rowFields) {
        for (int number = 1; number <= 6; ++number) {
            auto* guess = qobject_cast<QLineEdit*>(Find(field.control, number));
            if (guess != nullptr)
                connect(guess, &QLineEdit::textEdited, this,
                    [&box = (board.*field.row)(number)](
                        const QString& typed) { WriteGuess(box, typed); });
        }
    }
}

void MainWindow::BindToBoard()
{
    const Board& board = game_.board;
    for (const BuiltControl& control : controls_) {
        const std::string_view name = control.Row->Name;
        for (const RowField& field : rowFields)
            if (name == field.control)
                boxes_.push_back({control, &(board.*field.row)(control.Number)});
        for (const NumberField& field : numberFields)
            if (name == field.control)
                numbers_.push_back({control, &(board.*field.box).Text});
    }
    for (const VisibleField& field : visibleFields)
        visible_.push_back({Find(field.control), &(board.*field.frame).Visible});
    for (const EnabledField& field : enabledFields)
        enabled_.push_back({Find(field.control), &(board.*field.button).Enabled});
}

void MainWindow::ShowBoard()
{
    const Board& board = game_.board;
    const QWidget* focused = focusWidget();
    if (const QString caption = Shown(board.Caption); windowTitle() != caption)
        setWindowTitle(caption);
    ShowBoxes();
    ShowUsedWords();
    static_cast<QCheckBox*>(Find("Check1"))->setChecked(board.Check1 != 0);
    for (const BoundFlag& flag : enabled_)
        SetEnabled(*flag.widget, *flag.flag);
    for (const BoundFlag& flag : visible_)
        SetVisible(*flag.widget, *flag.flag);
    ShowLevelPanel();
    LetterControls(controls_, pixelsPerTwip_);
    KeepFocusInPlay(focused);
}

void MainWindow::ShowBoxes()
{
    const Board& board = game_.board;
    for (const auto& [control, box] : boxes_) {
        const QString text = Shown(box->Text);
        if (control.Row->Is == Kind::GuessBox) {
            auto* guess = static_cast<GuessBox*>(control.Widget);
            if (guess->text() != text)
                guess->setText(text);
            SetEnabled(*guess, box->Enabled);
            continue;
        }
        // A letter in the hand is in no box; the one that it came from shows it faintly.
        const bool lifted
            = box->Text.empty() && board.HeldFlag && box == &board.Text1(board.HeldIndex);
        const QString faint = lifted ? Shown(board.HeldLetter) : QString();
        if (control.Row->Is == Kind::ShownBox)
            static_cast<ShownBox*>(control.Widget)->setText(text);
        else
            static_cast<LetterTile*>(control.Widget)->SetLetter(text, faint);
        SetEnabled(*control.Widget, box->Enabled);
        Speak(control, text, faint, box->Enabled);
    }
    for (const auto& [control, number] : numbers_) {
        static_cast<ShownBox*>(control.Widget)->setText(Shown(*number));
        Speak(control, Shown(*number).trimmed(), QString(), true);
    }
}

void MainWindow::ShowUsedWords()
{
    auto* list = static_cast<QListWidget*>(Find("List1"));
    const std::vector<std::string>& words = game_.board.List1.Words();
    const auto shown = static_cast<std::size_t>(list->count());
    std::size_t same = 0;
    while (same < std::min(shown, words.size())
        && list->item(static_cast<int>(same))->text() == Shown(words[same]))
        ++same;
    if (same == shown && same == words.size())
        return;
    if (same < shown) {
        list->clear();
        same = 0;
    }
    for (; same < words.size(); ++same)
        list->addItem(Shown(words[same]));
    list->scrollToBottom();
}

void MainWindow::ShowLevelPanel()
{
    const Board& board = game_.board;
    const auto place = [this](const char* name, const Panel& panel) {
        QWidget* widget = Find(name);
        const double scale = pixelsPerTwip_;
        widget->setGeometry(qRound(panel.Left * scale), qRound(panel.Top * scale),
            qRound(panel.Width * scale), qRound(panel.Height * scale));
        SetVisible(*widget, panel.Visible);
    };
    place("Command2", board.Command2);
    place("Frame1", board.Frame1);
    if (board.Level > 0)
        static_cast<QRadioButton*>(Find("Option1", board.Level))->setChecked(true);
}

// When what had the focus has gone from play, the focus goes where the player goes on.
void MainWindow::KeepFocusInPlay(const QWidget* focused)
{
    const Board& board = game_.board;
    if (focused != nullptr && focused->isEnabled() && focused->isVisibleTo(this)
        && (!board.Frame1.Visible || Find("Frame1")->isAncestorOf(focused)))
        return;
    if (board.Frame1.Visible)
        Find("Option1", std::max<int>(board.Level, 1))->setFocus();
    else
        Find(board.Text1(1).Enabled ? "Text1" : "Text2", 1)->setFocus();
}

void MainWindow::Refresh()
{
    ShowBoard();
    // Painting at once, not when the screen next asks for it: what follows takes time.
    QEvent paint(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(this, &paint);
    QCoreApplication::processEvents();
}

// On a screen that the window does not fit on, everything in it becomes smaller by one factor.
void MainWindow::FitScreen()
{
    const QSizeF room = screen()->availableGeometry().size();
    const double scale = std::min(
        {fullScale, room.width() / outerSize.width(), room.height() / outerSize.height()});
    if (scale == pixelsPerTwip_)
        return;
    pixelsPerTwip_ = scale;
    ShowLevelPanel();
    PlaceControls(controls_, scale);
    LetterControls(controls_, scale);
}

// Holds the window at its one outer size, in whole pixels, and never smaller than its contents.
void MainWindow::Form_Resize()
{
    if (windowState() == Qt::WindowNoState) {
        FitScreen();
        const QSize borders = frameGeometry().size() - size();
        const QSize wanted
            = (outerSize * pixelsPerTwip_ - borders).expandedTo(reach * pixelsPerTwip_);
        // Compared with what was last asked for: a window manager that gives another size all the
        // same is not asked again and again.
        if (wanted != minimumSize())
            setFixedSize(wanted);
    }
    ReadSize();
}

void MainWindow::ReadSize()
{
    game_.board.WindowWidth = frameGeometry().width() / pixelsPerTwip_;
    game_.board.WindowHeight = frameGeometry().height() / pixelsPerTwip_;
}

void MainWindow::showEvent(QShowEvent* /*event*/)
{
    Form_Resize();
}

void MainWindow::resizeEvent(QResizeEvent* /*event*/)
{
    Form_Resize();
}

// The borders that the window manager adds are known from the first move on; and a move can end on
// another screen.
void MainWindow::moveEvent(QMoveEvent* /*event*/)
{
    Form_Resize();
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange)
        Form_Resize();
    QWidget::changeEvent(event);
}

// A held Enter would click on and on, and answer the messages unread; here and in the messages it
// counts once. A held Space does of itself.
bool MainWindow::eventFilter(QObject* /*watched*/, QEvent* event)
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

// Enter on the level panel chooses the level that has the focus; on the chosen one it is "OK".
void MainWindow::keyPressEvent(QKeyEvent* event)
{
    auto* option = qobject_cast<QRadioButton*>(focusWidget());
    if (!IsEnter(*event) || option == nullptr)
        QWidget::keyPressEvent(event);
    else if (option->isChecked())
        static_cast<QAbstractButton*>(Find("Command1"))->click();
    else
        option->click();
}

// Tab walks on past what the level panel covers wholly.
bool MainWindow::focusNextPrevChild(bool next)
{
    const QWidget* from = focusWidget();
    bool found = false;
    do {
        found = QWidget::focusNextPrevChild(next);
        if (auto* tile = dynamic_cast<LetterTile*>(focusWidget()))
            tile->StepIntoSight();
    } while (found && focusWidget() != from && focusWidget()->visibleRegion().isEmpty());
    return found;
}

void MainWindow::closeEvent(QCloseEvent* /*event*/)
{
    game_.view.EndProgram();
}
