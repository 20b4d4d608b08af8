#include "ui/view.h"

#include "ui/session.h"

void View::ShowMessage(const std::string& text, const std::string& title)
{
    session_->Ask(Statement(text, title));
}

Answer View::AskYesNo(const std::string& text, const std::string& title)
{
    return session_->Ask(AskedQuestion(text, title));
}

void View::RefreshWindow()
{
    session_->Repaint();
}

void View::EndProgram()
{
    session_->End();
}
