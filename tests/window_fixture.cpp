#include "window_fixture.h"

#include "ui/board_style.h"

#include <QPushButton>
#include <QRegularExpression>
#include <QWindow>

#include <set>
#include <utility>

Window::Window()
{
    view.PlayIn(window);
    QObject::connect(&answerer, &QTimer::timeout, &answerer, [this] { AnswerMessage(); });
    answerer.start(0);
    window.show();
    Activate();
    QCoreApplication::processEvents();
}

void Window::Activate()
{
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

void Window::Click(const QString& name)
{
    QWidget* widget = Named(name);
    ASSERT_NE(widget, nullptr) << name.toStdString();
    // The left edge of the level panel's backing is all that shows of it.
    const QPoint at = name == "Command2" ? QPoint(3, 40) : widget->rect().center();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget->mapTo(&window, at));
}

void Window::Play(const QString& steps)
{
    for (const QString& step : steps.split("; ")) {
        Activate(); // as it is again after a message
        if (step.startsWith("key "))
            QTest::keySequence(window.focusWidget(), QKeySequence(step.mid(4)));
        else if (step.startsWith("Text") && step.contains('='))
            Type(step.section('=', 0, 0), step.section('=', 1));
        else if (step.contains('=') || step.contains(':'))
            SetBoard(board, step.toStdString()), window.ShowBoard();
        else
            Click(step);
    }
}

std::string Window::State() const
{
    const auto all = [this](const char* names, bool (QWidget::*test)() const) {
        std::set<bool> found;
        for (const QWidget* widget : window.findChildren<QWidget*>(QRegularExpression(names)))
            found.insert((widget->*test)());
        return found.size() != 1 ? "?" : *found.begin() ? "1" : "0";
    };
    const auto shown = &QWidget::isVisible;
    const auto enabled = &QWidget::isEnabled;
    return std::string(all("^(Frame1|Command2)$", shown)) + all("^Frame[234579]$", shown)
        + (Named("Label5")->isHidden() ? "0 " : "1 ") + all("^SwapLetters", enabled)
        + all("^Command16$", enabled) + all("^(Text1|Command[4569]$)", enabled);
}

void Window::Type(const QString& row, const QString& text)
{
    Named(row + "(1)")->setFocus(Qt::TabFocusReason);
    const std::string& word = board.HiddenWords(text.mid(1).toInt());
    for (const uint letter : QString::fromStdString(word).toUcs4())
        TypeLetter(letter);
}

void Window::TypeLetter(char32_t letter)
{
    if (letter < 0x80)
        QTest::keyClick(window.focusWidget(), static_cast<char>(letter));
    else
        Compose(QString::fromUcs4(&letter, 1).normalized(QString::NormalizationForm_D));
}

void Window::Compose(const QString& letters) const
{
    QInputMethodEvent composed;
    composed.setCommitString(letters);
    QCoreApplication::sendEvent(window.focusWidget(), &composed);
}

void Window::AnswerMessage()
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr || box != std::exchange(met_, box)) // it takes no input while it opens
        return;
    EXPECT_EQ(box->icon(), QMessageBox::NoIcon);
    messages.push_back((box->windowTitle() + ": " + box->text()).toStdString());
    if (whileOpen)
        whileOpen();
    auto button = QMessageBox::Ok;
    if (box->button(button) == nullptr) {
        ASSERT_FALSE(answers.empty()) << "no answer is prepared for: " << messages.back();
        const bool yes = answers.front() == 'y';
        const bool noEnds = box->windowTitle() == "New Game";
        EXPECT_EQ(
            box->standardButton(box->defaultButton()), noEnds ? QMessageBox::Yes : QMessageBox::No);
        if (noEnds || !yes)
            QTest::keyClick(box, Qt::Key_Escape);
        EXPECT_EQ(box->isVisible(), noEnds || yes) << "Escape is no answer where No is the end";
        EXPECT_FALSE(noEnds && box->close()) << "nor is closing the box";
        answers.erase(0, 1);
        if (!box->isVisible())
            return;
        button = yes ? QMessageBox::Yes : QMessageBox::No;
    }
    QTest::mouseClick(box->button(button), Qt::LeftButton);
}

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) // another one shows the tests on a display
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle(new BoardStyle);
    const QApplication application(argc, argv);
    QFont desktop;
    desktop.setPixelSize(14);
    QApplication::setFont(desktop);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
