#include "window_fixture.h"

#include "game/clicks.h"
#include "headless/script.h"
#include "ui/binding.h"
#include "ui/board_style.h"

#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QWindow>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <utility>

void Window::EndProgram()
{
    if (mayEnd)
        QtView::EndProgram();
    std::_Exit(EXIT_FAILURE);
}

Window::Window()
    : HeadlessGame("", HeadlessPlatform(20), this)
{
    UseList("planet\ngarden\nsimple\nplanet\n");
    PlayIn(window);
    FindControls(); // at full scale, which the window is built at
    QObject::connect(&answerer_, &QTimer::timeout, &answerer_, [this] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            AnswerBox(*box);
    });
}

void Window::SetUp()
{
    for (const auto& [name, control] : controls)
        ASSERT_NE(control.widget, nullptr) << name << " is not where window.txt has it";
    answerer_.start(0);
    window.show();
    Activate();
    QCoreApplication::processEvents();
}

std::string TextOf(const QWidget& widget)
{
    const auto* list = qobject_cast<const QListWidget*>(&widget);
    if (list != nullptr && list->count() > 0)
        return list->item(0)->text().toStdString();
    const QVariant title = widget.property("title");
    return (title.isValid() ? title : widget.property("text")).toString().toStdString();
}

namespace {

// The one in the frame that stands there, if it shows the text or, as yet, nothing but zero.
QWidget* FindIn(const QWidget* frame, const QRect& place, const std::string& shows)
{
    if (frame == nullptr)
        return nullptr;
    for (QWidget* widget : frame->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const std::string text = TextOf(*widget);
        const bool fits = text == shows || text.empty() || text == "0";
        const bool there = place.isNull() ? text == shows : widget->geometry() == place;
        if (fits && there && widget->accessibleName() != "")
            return widget;
    }
    return nullptr;
}

} // namespace

void Window::FindControls()
{
    // Name, boxes, frame, left, top, direction, step, width, height, text, looks.
    const std::regex form("(\\w+)([ \\d]*) in (\\w+) (?:at (\\d+),(\\d+)(?: (by|down) (\\d+))? "
                          "(\\d+)x(\\d+)|placed by the board)(?:; says \"([^\"]*)\")?; (.*)");
    std::ifstream text(QUORVEL_WINDOW_TEXT);
    for (std::string line; std::getline(text, line);) {
        std::smatch part;
        if (!std::regex_match(line, part, form)) {
            EXPECT_TRUE(line.starts_with('#')) << line;
            continue;
        }
        const auto pixels
            = [&part](std::size_t k) { return part[k].matched ? std::stoi(part[k]) / 15 : 0; };
        const QWidget* frame = part[3] == "window" ? &window : controls.at(part[3]).widget;
        const QPoint step = part[6] == "down" ? QPoint(0, pixels(7)) : QPoint(pixels(7), 0);
        std::istringstream numbers(part[2].length() > 0 ? part[2].str() : "-1");
        int first = 0;
        std::string letters = part[10]; // of one box after the other
        for (int box = 0; numbers >> box; letters.erase(0, part[6] == "by" ? 1 : 0)) {
            first = first == 0 ? box : first;
            const QRect place(pixels(4), pixels(5), pixels(8), pixels(9));
            const std::string number = std::to_string(box);
            const std::string shows = std::regex_replace(
                part[6] == "by" ? letters.substr(0, 1) : letters, std::regex("#"), number);
            const std::string looks
                = std::regex_replace(std::regex_replace(part[11].str(), std::regex("#"), number),
                    std::regex("@"), shows);
            const QRect there = place.translated(step * (box - first));
            controls[part[1].str() + (box < 0 ? "" : ":" + number)]
                = {FindIn(frame, there, shows), there, shows, looks};
        }
    }
}

std::string Window::Focused() const
{
    for (const auto& [name, control] : controls) {
        if (control.widget == window.focusWidget())
            return name;
    }
    return "no control";
}

void Window::Activate()
{
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

void Window::Press(const std::string& name)
{
    const QWidget& widget = *Named(name);
    // The left edge of the level panel's backing is all that shows of it.
    const QPoint at = name == "Command2" ? QPoint(3, 40) : widget.rect().center();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window, at));
}

void Window::Play(const std::string& words)
{
    std::istringstream stream(words);
    for (std::string word; !HasFailure() && stream >> word;) {
        Activate(); // as it is again after a message
        const QString rest = QString::fromStdString(word.substr(word.find_first_of("=:") + 1));
        if (controls.contains(word)) {
            Press(word);
        } else if (word.starts_with("key:")) {
            QTest::keySequence(window.focusWidget(), QKeySequence(rest));
        } else if (word.starts_with("paste:")) {
            QApplication::clipboard()->setText(rest);
            QTest::keySequence(window.focusWidget(), QKeySequence::Paste);
        } else if (std::islower(word[0]) && word.find_first_of("=:") != std::string::npos) {
            SetBoard(board, word);
            window.ShowBoard();
        } else {
            PlayEvents(*this, word);
        }
        ExpectBoardOnView(word + " of " + words);
    }
}

void Window::Play(const std::vector<Row>& rows)
{
    for (const Row& row : rows) {
        if (HasFailure())
            return;
        view.calls.clear();
        Play(row.steps);
        EXPECT_TRUE(view.answers.empty()) << row.why;
        QCoreApplication::processEvents();
        const QImage seen = window.screen()->grabWindow(window.winId()).toImage();
        const QImage drawn = window.grab().toImage().convertToFormat(seen.format());
        EXPECT_TRUE(window.devicePixelRatioF() > 1 || seen == drawn) << "not painted: " << row.why;
        const auto parts = PartsOf(board);
        std::map<std::string, std::string> now(parts.begin(), parts.end());
        now["focus="] = Focused();
        std::istringstream then(row.then);
        for (std::string part; then >> part;) {
            const std::string key = part.substr(0, part.find_first_of("=:") + 1);
            EXPECT_EQ(key + now[key], part) << row.why;
        }
        if (row.messages.empty())
            continue;
        EXPECT_EQ(view.calls.size(), row.messages.size()) << testing::PrintToString(view.calls);
        for (std::size_t k = 0; k < std::min(view.calls.size(), row.messages.size()); ++k)
            EXPECT_TRUE(view.calls[k].starts_with(row.messages[k])) << view.calls[k];
    }
}

namespace {

// What the control shows of its field, against the field.
struct ExpectField {
    const QWidget& widget;
    const Board& board;
    int box;

    void operator()(LetterRow Board::* row) const
    {
        EXPECT_EQ(TextOf(widget), (board.*row)(box).Text);
        EXPECT_EQ(widget.isEnabled(), (board.*row)(box).Enabled);
    }
    void operator()(NumberBox Board::* number) const
    {
        EXPECT_EQ(TextOf(widget), (board.*number).Text);
    }
    void operator()(WordList Board::* words) const
    {
        const auto& list = dynamic_cast<const QListWidget&>(widget);
        EXPECT_EQ(list.count(), (board.*words).ListCount());
        for (int k = 0; k < list.count(); ++k)
            EXPECT_EQ(list.item(k)->text().toStdString(),
                (board.*words).Words().at(static_cast<std::size_t>(k)));
    }
    void operator()(std::int16_t Board::* number) const
    {
        const bool checked = dynamic_cast<const QAbstractButton&>(widget).isChecked();
        EXPECT_EQ(checked, board.*number == std::max(box, 1));
    }
    template <typename Part> void operator()(Part Board::* part) const
    {
        EXPECT_EQ(!widget.isHidden(), (board.*part).Visible);
    }
};

} // namespace

void Window::ExpectBoardOnView(const std::string& when) const
{
    for (const auto& [name, control] : controls) {
        SCOPED_TRACE(name + " at " + when);
        const std::size_t colon = std::min(name.find(':'), name.size());
        const auto box = static_cast<std::int16_t>(
            colon < name.size() ? std::stoi(name.substr(colon + 1)) : 0);
        if (const ::Click* click = FindClick(name.substr(0, colon))) {
            EXPECT_EQ(control.widget->isVisible(), click->OnView(board, box));
            EXPECT_EQ(control.widget->isEnabled(), click->Enabled(board, box));
        }
        if (const Field* field = FindField(name.substr(0, colon)))
            std::visit(ExpectField{*control.widget, board, box}, *field);
    }
    EXPECT_EQ(window.windowTitle().toStdString(), board.Caption);
}

void Window::Click(std::string_view control, std::int16_t index)
{
    Press(std::string(control) + (index > 0 ? ":" + std::to_string(index) : ""));
}

void Window::Type(std::string_view row, int index, const std::string& text)
{
    Press(std::string(row) + ":" + std::to_string(index));
    for (const uint letter : QString::fromStdString(text).toUcs4())
        TypeLetter(letter);
}

void Window::Tick(bool ticked)
{
    if (Named<QAbstractButton>("Check1")->isChecked() != ticked)
        Press("Check1");
}

void Window::TypeLetter(char32_t letter) const
{
    if (letter < 0x80)
        QTest::keyClick(window.focusWidget(), static_cast<char>(letter));
    else
        Compose(QString::fromUcs4(&letter, 1).normalized(QString::NormalizationForm_D));
}

void Window::Compose(const QString& letters) const
{
    EXPECT_TRUE(window.focusWidget()->testAttribute(Qt::WA_InputMethodEnabled)) << Focused();
    QInputMethodEvent composed;
    composed.setCommitString(letters);
    QCoreApplication::sendEvent(window.focusWidget(), &composed);
}

void Window::AnswerBox(QMessageBox& box)
{
    QAbstractButton* last = box.buttons().last();
    if (&box != std::exchange(met_, &box)) // it takes no input while it opens
        return QTest::mousePress(last, Qt::LeftButton);
    QTest::mouseRelease(last, Qt::LeftButton);
    EXPECT_TRUE(box.isVisible()) << "a press that began before the box";
    const bool asks = box.button(QMessageBox::Ok) == nullptr;
    EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
    const auto* text = box.findChild<QLabel*>("qt_msgbox_label");
    EXPECT_LT(text->x(), 24) << "no room for an icon";
    EXPECT_EQ(text->contentsRect().left(), 0);
    corners_.insert({box.geometry().right(), box.geometry().bottom()});
    EXPECT_EQ(corners_.size(), 1U) << "messages come up at one place, and cover nothing in play";
    const std::regex inPlay("(Text[129]|MyLetters|SwapLetters|Word|YourScore|MyScore|Label5).*");
    for (const auto& [name, control] : controls) {
        const QRect place(control.widget->mapToGlobal(QPoint()), control.widget->size());
        EXPECT_FALSE(std::regex_match(name, inPlay) && place.intersects(box.frameGeometry()))
            << name;
    }
    view.calls.push_back((box.windowTitle() + (asks ? "? " : ": ") + box.text()).toStdString());
    if (whileOpen)
        whileOpen(box);
    auto button = QMessageBox::Ok;
    if (asks) {
        ASSERT_FALSE(view.answers.empty()) << "no answer is prepared for: " << view.calls.back();
        const bool yes = view.answers.front() == Answer::Yes;
        view.answers.pop_front();
        const bool noEnds = box.windowTitle() == "New Game";
        EXPECT_EQ(
            box.standardButton(box.defaultButton()), noEnds ? QMessageBox::Yes : QMessageBox::No);
        if (noEnds || !yes)
            QTest::keyClick(&box, Qt::Key_Escape);
        EXPECT_EQ(box.isVisible(), noEnds || yes) << "Escape is no answer where No is the end";
        EXPECT_FALSE(noEnds && box.close()) << "nor is closing the box";
        if (!box.isVisible())
            return;
        button = yes ? QMessageBox::Yes : QMessageBox::No;
    }
    QTest::mouseClick(box.button(button), Qt::LeftButton);
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
