#include "window_fixture.h"

#include "game/board.h"
#include "game/clicks.h"
#include "ui/look.h"
#include "ui/places.h"
#include "ui/qt/board_button.h"
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
#include <set>

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

WindowGame::WindowGame()
    : PlayedGame("", HeadlessPlatform(20), this)
{
    UseList("planet\ngarden\nsimple\nplanet\n");
    PlayIn(window.InSession());
    QObject::connect(&answerer_, &QTimer::timeout, &answerer_, [this] {
        if (QWidget* box = QApplication::activeModalWidget())
            AnswerBox(*box);
    });
    answerer_.start(0);
    window.show();
    Activate();
    QCoreApplication::processEvents();
}

void WindowGame::Activate()
{
    window.activateWindow(); // as it is again after a message
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

namespace {

// One broken control would fail in every case.
struct Comparison {
    std::string control;
    std::string when;

    template <typename Value>
    void operator()(const char* what, const Value& shown, const Value& said) const
    {
        static std::set<std::string> told;
        if (shown == said || !told.insert(control + what).second)
            return;
        EXPECT_EQ(shown, said) << control << what << when;
    }
};

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

void WindowGame::ExpectShown(const std::string& when)
{
    EXPECT_EQ(window.windowTitle().toStdString(), board.Caption) << when;
    for (const BuiltControl& control : window.Parts()) {
        const Part& part = *control.Is;
        const QWidget& widget = *control.Widget;
        const Look look = InSession().LookOf(part);
        const auto* button = dynamic_cast<const QAbstractButton*>(&widget);
        const QRect at = widget.geometry();
        const Comparison expect{ScriptName(part) + " ", " at " + when};
        const auto* box = dynamic_cast<const TakesLook*>(&widget);
        if (box != nullptr)
            expect("looks otherwise", box->LookNow() == BoxLookOf(look), true);
        const bool isHollow = box != nullptr && box->LookNow().hollow;
        expect("text", TextOf(widget).toStdString(), isHollow ? "" : look.Text);
        expect("enabled", widget.isEnabled(), look.Enabled);
        expect("on view", widget.isVisible(), look.OnView);
        expect("chosen", button != nullptr && button->isChecked(), look.Chosen);
        expect("place", PixelRect{at.x(), at.y(), at.width(), at.height()},
            PlaceOf(part, board, window.Present()));
        expect("name", widget.accessibleName().toStdString(), look.Name);
        expect("help", widget.accessibleDescription().toStdString(), look.Help);
    }
}

void WindowGame::AfterEvent()
{
    PlayedGame::AfterEvent();
    ExpectShown("the end of an event");
}

// What waits runs where the window lets the desktop's input in.
void WindowGame::RefreshWindow()
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
void WindowGame::DeliverClick(const ::Click& click, std::int16_t index)
{
    const Part& part = FindPart(click.Control, index);
    if (!InSession().MessageIsOpen())
        Focus(part);
    dynamic_cast<QAbstractButton&>(*window.Parts()[IndexOf(part)].Widget).click();
}

void WindowGame::Focus(const Part& part)
{
    Activate();
    window.Focus(part);
}

void WindowGame::PressMouse(const Part& part)
{
    Activate();
    const QWidget& widget = *window.Parts()[IndexOf(part)].Widget;
    QTest::mouseClick(
        window.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window, widget.rect().center()));
}

void WindowGame::PressKey(const Stroke& stroke)
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
void WindowGame::TypeLetter(const std::string& letter)
{
    if (letter.size() == 1)
        QTest::keyClick(window.focusWidget(), letter[0]);
    else
        Compose(QString::fromStdString(letter).normalized(QString::NormalizationForm_D));
}

void WindowGame::Compose(const QString& letters) const
{
    EXPECT_TRUE(window.focusWidget()->testAttribute(Qt::WA_InputMethodEnabled));
    QInputMethodEvent composed;
    composed.setCommitString(letters);
    QCoreApplication::sendEvent(window.focusWidget(), &composed);
}

void WindowGame::Paste(const std::string& text)
{
    QApplication::clipboard()->setText(QString::fromStdString(text));
    QTest::keySequence(window.focusWidget(), QKeySequence::Paste);
}

void WindowGame::Type(std::string_view row, int index, const std::string& text)
{
    QWidget& box = *window.Parts()[IndexOf(FindPart(row, index))].Widget;
    QAccessible::queryAccessibleInterface(&box)->setText(
        QAccessible::Value, QString::fromStdString(text));
}

void WindowGame::Tick(bool ticked)
{
    Named<QAbstractButton>("Check1").setChecked(ticked);
}

void WindowGame::AnswerBox(QWidget& box)
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
    Wait(1000); // until it can have been read
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
