#include "window_fixture.h"

#include "game/board.h"
#include "game/clicks.h"
#include "ui/look.h"
#include "ui/places.h"
#include "ui/qt/board_style.h"
#include "ui/qt/guess_box.h"
#include "ui/qt/letter_tile.h"
#include "ui/qt/used_words_list.h"
#include "ui/roster.h"

#include <QAccessible>
#include <QClipboard>
#include <QGroupBox>
#include <QWindow>

#include <filesystem>

void PlayedWindow::Say(const std::string& text)
{
    MainWindow::Say(text);
    played_.Say(text);
}

void PlayedWindow::End()
{
    if (mayEnd)
        MainWindow::End();
    std::_Exit(EXIT_FAILURE);
}

Window::Window()
    : PlayedGame("", HeadlessPlatform(20), this)
{
    UseList("planet\ngarden\nsimple\nplanet\n");
    PlayIn(window.InSession());
    QObject::connect(&answerer_, &QTimer::timeout, &answerer_, [this] {
        if (QWidget* box = QApplication::activeModalWidget())
            AnswerBox(*box);
    });
}

void Window::SetUp()
{
    answerer_.start(0);
    window.show();
    Activate();
    QCoreApplication::processEvents();
}

void Window::Activate()
{
    window.activateWindow(); // as it is again after a message
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

namespace {

QString TextOf(const QWidget& widget)
{
    if (const auto* list = dynamic_cast<const QListWidget*>(&widget)) {
        QStringList words;
        for (int row = 0; row < list->count(); ++row)
            words += list->item(row)->text();
        return words.join('\n');
    }
    const auto* frame = dynamic_cast<const QGroupBox*>(&widget);
    return frame != nullptr ? frame->title() : widget.property("text").toString();
}

} // namespace

void Window::ExpectShown(const std::string& when)
{
    EXPECT_EQ(window.windowTitle().toStdString(), board.Caption) << when;
    for (const BuiltControl& control : window.Parts()) {
        const Part& part = *control.Is;
        const QWidget& widget = *control.Widget;
        const Look look = window.InSession().LookOf(part);
        SCOPED_TRACE(ScriptName(part) + " at " + when);
        EXPECT_EQ(TextOf(widget).toStdString(), look.Text);
        EXPECT_EQ(widget.isEnabled(), look.Enabled);
        EXPECT_EQ(widget.isVisible(), look.OnView);
        const auto* button = dynamic_cast<const QAbstractButton*>(&widget);
        EXPECT_EQ(button != nullptr && button->isChecked(), look.Chosen);
        const QRect at = widget.geometry();
        EXPECT_EQ((PixelRect{at.x(), at.y(), at.width(), at.height()}),
            PlaceOf(part, board, window.Present()));
        EXPECT_EQ(widget.accessibleName().toStdString(), look.Name);
        EXPECT_EQ(widget.accessibleDescription().toStdString(), look.Help);
    }
}

void Window::AfterEvent()
{
    PlayedGame::AfterEvent();
    ExpectShown("the end of an event");
}

// What waits runs where the window lets the desktop's input in.
void Window::RefreshWindow()
{
    bool ran = false;
    QTimer::singleShot(0, &window, [this, &ran] {
        ran = true;
        ExpectShown("a repaint");
        view.RefreshWindow();
    });
    View::RefreshWindow();
    EXPECT_TRUE(ran) << "a repaint that runs no input";
}

// As a screen reader does it, which has no mouse.
void Window::DeliverClick(const ::Click& click, std::int16_t index)
{
    const Part& part = FindPart(click.Control, index);
    if (!InSession().MessageIsOpen())
        Focus(part);
    dynamic_cast<QAbstractButton&>(*window.Parts()[IndexOf(part)].Widget).click();
}

void Window::Focus(const Part& part)
{
    Activate();
    window.Focus(part);
}

void Window::PressMouse(const Part& part)
{
    Activate();
    const QWidget& widget = *window.Parts()[IndexOf(part)].Widget;
    QTest::mouseClick(
        window.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window, widget.rect().center()));
}

void Window::PressKey(const Stroke& stroke)
{
    QWidget* at = window.focusWidget() == nullptr ? &window : window.focusWidget();
    const QString name = QString::fromStdString(stroke.Key == "Enter" ? "Return" : stroke.Key);
    const auto key = QKeySequence(name)[0].key();
    const auto with = stroke.Shift || key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier;
    if (!stroke.Held)
        return QTest::keyClick(at, key, with);
    QKeyEvent held(QEvent::KeyPress, key, with, key == Qt::Key_Return ? "\r" : "", true);
    QCoreApplication::sendEvent(at, &held);
}

// By its key or, where it has none, decomposed.
void Window::TypeLetter(const std::string& letter)
{
    if (letter.size() == 1)
        QTest::keyClick(window.focusWidget(), letter[0]);
    else
        Compose(QString::fromStdString(letter).normalized(QString::NormalizationForm_D));
}

void Window::Compose(const QString& letters) const
{
    EXPECT_TRUE(window.focusWidget()->testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent composed;
    composed.setCommitString(letters);
    QCoreApplication::sendEvent(window.focusWidget(), &composed);
}

void Window::Paste(const std::string& text)
{
    QApplication::clipboard()->setText(QString::fromStdString(text));
    QTest::keySequence(window.focusWidget(), QKeySequence::Paste);
}

void Window::Type(std::string_view row, int index, const std::string& text)
{
    QWidget& box = *window.Parts()[IndexOf(FindPart(row, index))].Widget;
    QAccessible::queryAccessibleInterface(&box)->setText(
        QAccessible::Value, QString::fromStdString(text));
}

void Window::Tick(bool ticked)
{
    Named<QAbstractButton>("Check1").setChecked(ticked);
}

void Window::AnswerBox(QWidget& box)
{
    if (met_ != &box) {
        met_ = &box;
        const QString text = box.findChild<QLabel*>("text")->text();
        const bool asks = box.findChildren<QAbstractButton*>().size() > 1;
        ExpectShown("a message");
        if (whileOpen)
            whileOpen(box);
        answer_ = AnswerMessage({text.toStdString(), box.windowTitle().toStdString(), asks});
    }
    for (auto* button : box.findChildren<QAbstractButton*>()) {
        const QString caption = button->text().remove('&');
        if (caption == "OK" || caption == (answer_ == Answer::Yes ? "Yes" : "No"))
            return QTest::mouseClick(button, Qt::LeftButton);
    }
}

int main(int argc, char* argv[])
{
    // Qt reads this variable as Latin-1, and the folder's name may hold any letter: a name alone.
    std::filesystem::current_path(QUORVEL_FOLDER_OF_SCREENS);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) // another one shows the tests on a display
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=screens.json");
    QApplication::setStyle(new BoardStyle);
    const QApplication application(argc, argv);
    QFont desktop;
    desktop.setPixelSize(14);
    QApplication::setFont(desktop);
    QApplication::setCursorFlashTime(0); // what is on the screen does not change by itself
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
