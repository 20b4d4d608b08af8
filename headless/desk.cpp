#include "headless/desk.h"

#include "game/clicks.h"
#include "headless/board_text.h"
#include "lexicon/letters.h"
#include "ui/part.h"
#include "ui/roster.h"

#include <algorithm>

namespace {

constexpr std::pair<std::string_view, Key> keys[] = {{"Left", Key::Left}, {"Right", Key::Right},
    {"Up", Key::Up}, {"Down", Key::Down}, {"Home", Key::Home}, {"End", Key::End}, {"Tab", Key::Tab},
    {"Backtab", Key::BackTab}, {"Backspace", Key::Backspace}, {"Escape", Key::Escape},
    {"Enter", Key::Enter}, {"F1", Key::F1}, {"F2", Key::F2}, {"F4", Key::F4}, {"F8", Key::F8},
    {"F9", Key::F9}, {"F10", Key::F10}};

// The bytes of so many letters.
std::size_t BytesOf(std::string_view text, int letters)
{
    std::string_view rest = text;
    for (int letter = 0; letter < letters && !rest.empty(); ++letter)
        TakeFirstLetter(rest);
    return text.size() - rest.size();
}

std::string InCase(std::string letter, char first, char other)
{
    if (letter.size() == 1 && letter[0] >= first && letter[0] < first + 26)
        letter[0] = static_cast<char>(letter[0] - first + other);
    return letter;
}

} // namespace

Desk::Desk(std::filesystem::path wordList, HeadlessPlatform chance)
    : PlayedGame(std::move(wordList), std::move(chance), &shown_)
{
    StartSession();
}

void Desk::StartProgram()
{
    HeadlessGame::StartProgram();
    StartSession();
}

void Desk::StartSession()
{
    size_.emplace(board);
    looks_.assign(::Parts().size(), {});
    focused_ = nullptr;
    session_ = std::make_unique<Session>(game, *this);
    shown_.PlayIn(*session_);
    session_->Start();
}

void Desk::Focus(const Part& part)
{
    focused_ = &part;
    cursor_ = static_cast<int>(CountLetters(TextInFocus()));
    selected_ = true;
    session_->FocusCame(part);
}

// A screen reader presses while a message is open, and the focus stays.
void Desk::DeliverClick(const ::Click& click, std::int16_t index)
{
    const Part& part = FindPart(click.Control, index);
    if (!session_->MessageIsOpen())
        Focus(part);
    session_->Click(part);
}

void Desk::Type(std::string_view row, int index, const std::string& text)
{
    session_->Wrote(FindPart(row, index), text);
}

void Desk::Tick(bool ticked)
{
    session_->Tick(ticked);
}

void Desk::PressMouse(const Part& part)
{
    if (!session_->PointerDown())
        return;
    Focus(part);
    session_->Click(part);
}

void Desk::PressKey(const Stroke& stroke)
{
    const std::string& key = stroke.Key;
    const auto* known = std::ranges::find(keys, key, &std::pair<std::string_view, Key>::first);
    if (known != std::end(keys)) {
        KeyPress press{known->second, stroke.Held, stroke.Shift};
        if (IsAtText()) {
            press.AtStart = selected_ || cursor_ == 0;
            press.AtEnd = selected_ || cursor_ == static_cast<int>(CountLetters(TextInFocus()));
        } else if (focused_ != nullptr && focused_->Row->Is == Kind::List) {
            press.AtStart = word_ <= 0;
            press.AtEnd = word_ == board.List1.ListCount() - 1;
        }
        if (session_->Press(press))
            return;
    }
    if (focused_ == nullptr)
        return;
    if (IsAtText())
        EditBy(key);
    else if (focused_->Row->Is == Kind::List)
        WalkList(key == "Up" ? -1 : key == "Down" ? 1 : 0);
    else if (key == "Space" && focused_->Row->Is == Kind::Check)
        session_->Tick(board.Check1 == 0);
    else if (key == "Space")
        session_->Click(*focused_);
}

void Desk::TypeLetter(const std::string& letter)
{
    if (IsAtText())
        Insert(letter);
    else
        session_->Type({letter, InCase(letter, 'A', 'a'), InCase(letter, 'a', 'A')});
}

void Desk::Paste(const std::string& text)
{
    if (IsAtText())
        Insert(text);
}

void Desk::ShowBoard()
{
    for (const Part& part : ::Parts()) {
        Look& look = looks_[IndexOf(part)];
        const bool enabled = look.Enabled;
        const bool onView = look.OnView;
        look = session_->LookOf(part);
        look.Enabled = look.Enabled || enabled;
        look.OnView = look.OnView || onView;
    }
}

// What has the focus as it goes loses it.
void Desk::TakeOutOfPlay()
{
    for (const Part& part : ::Parts()) {
        Look& look = looks_[IndexOf(part)];
        const bool goes
            = (look.Enabled && !IsEnabled(part, board)) || (look.OnView && !IsOnView(part, board));
        if (goes && &part == focused_)
            focused_ = nullptr;
        look.Enabled = IsEnabled(part, board);
        look.OnView = IsOnView(part, board);
    }
}

void Desk::PaintNow()
{
    CheckShown();
    WakeIfDue();
    view.RefreshWindow();
}

Answer Desk::Ask(const Message& message)
{
    CheckShown();
    WakeIfDue();
    session_->MessageShows();
    return AnswerMessage(message);
}

void Desk::AfterEvent()
{
    PlayedGame::AfterEvent();
    CheckShown();
}

void Desk::CheckShown() const
{
    for (const Part& part : ::Parts()) {
        if (looks_[IndexOf(part)] != session_->LookOf(part))
            throw Fault{ScriptName(part) + " does not show the board: " + Line(board)};
    }
}

bool Desk::IsAtText() const
{
    return focused_ != nullptr && focused_->Row->Is == Kind::GuessBox;
}

std::string Desk::TextInFocus() const
{
    return IsAtText() ? BoxOf(*focused_, board)->Text : "";
}

// In the box that has the focus, which may go on to another one.
void Desk::Write(const std::string& text, int cursor, Edit edit)
{
    selected_ = false;
    cursor_ = cursor;
    session_->Edited(*focused_, text, edit);
}

void Desk::Insert(const std::string& text)
{
    const std::string old = selected_ ? "" : TextInFocus();
    const int before = selected_ ? 0 : cursor_;
    std::string whole = old;
    Write(whole.insert(BytesOf(old, before), text), before + static_cast<int>(CountLetters(text)),
        Edit::Typed);
}

// Within the box, as toolkits do.
void Desk::EditBy(const std::string& key)
{
    const std::string text = TextInFocus();
    const int count = static_cast<int>(CountLetters(text));
    if (key == "Space")
        return Insert(" ");
    if (key == "Backspace" || key == "Delete") {
        const int from = cursor_ - (key == "Backspace" ? 1 : 0);
        if (selected_)
            Write("", 0, Edit::Erased);
        else if (from >= 0 && from < count)
            Write(text.substr(0, BytesOf(text, from)) + text.substr(BytesOf(text, from + 1)), from,
                Edit::Erased);
        return;
    }
    if (key == "Left" || key == "Home")
        cursor_ = key == "Home" || selected_ ? 0 : cursor_ - 1;
    else if (key == "Right" || key == "End")
        cursor_ = key == "End" || selected_ ? count : cursor_ + 1;
    else
        return;
    selected_ = false;
}

void Desk::WalkList(int step)
{
    const int to = word_ + step;
    if (step == 0 || to < 0 || to >= board.List1.ListCount())
        return;
    word_ = to;
    session_->ReachedWord(board.List1.Words()[static_cast<std::size_t>(to)]);
}
