#include "ui/qt_view.h"

#include "ui/main_window.h"
#include "ui/message_box.h"

#include <cstdlib>

namespace {

QMessageBox::StandardButton Ask(MainWindow& window, const std::string& text,
    const std::string& title, QMessageBox::StandardButtons buttons)
{
    // The box opens over the board as it is at this moment.
    window.ShowBoard();
    const auto answer = AskPlayer(window, window.RoomForMessages(), QString::fromUtf8(text),
        QString::fromUtf8(title), buttons);
    window.AfterMessage();
    return answer;
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
