#include "ui/qt_view.h"

#include "ui/main_window.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>

#include <cstdlib>

namespace {

// The answer to a question is Yes or No: Escape and closing the box are neither. The toolkit would
// take them for No, which can end the program.
class GameMessage : public QMessageBox {
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (!IsQuestion() || !event->matches(QKeySequence::Cancel))
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override
    {
        if (IsQuestion())
            event->ignore();
        else
            QMessageBox::closeEvent(event);
    }

private:
    bool IsQuestion() const { return buttons().size() > 1; }
};

QMessageBox::StandardButton Ask(MainWindow& window, const std::string& text,
    const std::string& title, QMessageBox::StandardButtons buttons)
{
    // The box opens over the board as it is at this moment.
    window.ShowBoard();
    GameMessage box(
        QMessageBox::NoIcon, QString::fromUtf8(title), QString::fromUtf8(text), buttons, &window);
    box.setTextFormat(Qt::PlainText);
    box.setWindowModality(Qt::ApplicationModal);
    // Some desktops put "No" first, and Enter through the messages would end the program.
    box.setDefaultButton(QMessageBox::Yes);
    for (QAbstractButton* button : box.buttons())
        button->setIcon(QIcon());
    // Wide enough for the title to be read, beside the buttons that window managers add.
    auto* layout = qobject_cast<QGridLayout*>(box.layout());
    const int wide = box.fontMetrics().horizontalAdvance(box.windowTitle()) + 160;
    layout->addItem(new QSpacerItem(wide, 0), layout->rowCount(), 0, 1, layout->columnCount());
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

void QtView::ShowMessage(const std::string& text, const std::string& title)
{
    Ask(*window_, text, title, QMessageBox::Ok);
}

Answer QtView::AskYesNo(const std::string& text, const std::string& title)
{
    const auto answer = Ask(*window_, text, title, QMessageBox::Yes | QMessageBox::No);
    return answer == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

void QtView::RefreshWindow()
{
    window_->Refresh();
}

void QtView::EndProgram()
{
    // Nothing is to be saved, and handlers, messages and the window may all be in the middle of
    // their work: nothing of them may run any more.
    std::_Exit(0);
}
