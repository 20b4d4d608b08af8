// Draws the pictures of the documents from the real window: the level panel and a game in progress,
// on a light and on a dark desktop. The same word list gives the same pictures.
#include "game/board.h"
#include "game/game.h"
#include "game/game_view.h"
#include "ui/main_window.h"
#include "ui/system_platform.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPixmap>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int scale = 2; // pictures have this many pixels to each of the window's

class SameEveryTime : public SystemPlatform {
public:
    float ClockSeconds() override { return 36000; }
};

// A player who presses OK and Yes without reading.
class QuickView : public GameView {
public:
    void ShowMessage(const std::string& /*text*/, const std::string& /*title*/) override { }
    Answer AskYesNo(const std::string& /*text*/, const std::string& /*title*/) override
    {
        return Answer::Yes;
    }
    void RefreshWindow() override { }
    [[noreturn]] void EndProgram() override { std::exit(EXIT_FAILURE); }
};

void Click(const MainWindow& window, const QString& control)
{
    window.findChild<QAbstractButton*>(control)->click();
}

void ClickBox(const MainWindow& window, const char* row, int number)
{
    Click(window, QStringLiteral("%1(%2)").arg(QLatin1String(row)).arg(number));
}

std::string PlayersLetters(const Board& board)
{
    std::string letters;
    for (const LetterBox& box : board.Text1)
        letters += box.Text;
    return letters;
}

// A word that the player's letters spell in some order, or "".
std::string FindWordToPlay(const Board& board)
{
    const std::string letters = PlayersLetters(board);
    for (int k = 1; k <= board.CandidateCount; ++k)
        if (std::ranges::is_permutation(board.Candidates(k), letters))
            return board.Candidates(k);
    return "";
}

// Deals again until the player has a word, then arranges it box by box.
void ArrangeAWord(const MainWindow& window, const Board& board)
{
    std::string word;
    while ((word = FindWordToPlay(board)).empty())
        Click(window, QStringLiteral("Command14")); // "Jumble"
    for (int box = 1; box <= 6; ++box) {
        const auto place = static_cast<std::size_t>(box - 1);
        const auto from = PlayersLetters(board).find(word[place], place);
        if (from == place)
            continue;
        ClickBox(window, "Text1", static_cast<int>(from) + 1);
        ClickBox(window, "Text1", box);
    }
}

void PlayAWhile(const MainWindow& window, const Board& board)
{
    ClickBox(window, "Option1", 3);
    Click(window, QStringLiteral("Command1")); // "OK"
    for (int word = 1; word <= 4; ++word) {
        ArrangeAWord(window, board);
        Click(window, QStringLiteral("Command3")); // "Submit Word"
    }
    ClickBox(window, "Word2", 3);
    ClickBox(window, "Text1", 2);
    ClickBox(window, "SwapLetters", 4);
    ClickBox(window, "Text1", 5);
}

QPalette DarkDesktop()
{
    const QColor ground(45, 45, 48);
    const QColor ink(235, 235, 235);
    QPalette palette(ground);
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, ink);
        palette.setColor(QPalette::Disabled, role, QColor(130, 130, 130));
    }
    return palette;
}

// False when the picture cannot be written.
bool Draw(MainWindow& window, const QString& file)
{
    QPixmap picture(window.size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(window.palette().color(QPalette::Window));
    window.render(&picture);
    if (picture.save(file))
        return true;
    std::fprintf(stderr, "The picture %s cannot be written.\n", qPrintable(file));
    return false;
}

bool DrawDesktop(
    const char* wordList, const QString& folder, const QPalette& desktop, const char* ending)
{
    QApplication::setPalette(desktop);
    Board board;
    QuickView view;
    SameEveryTime platform;
    Game game{board, view, platform, wordList};
    MainWindow window(game);
    window.show();
    const QString file = folder + QStringLiteral("%1%2.png");
    const bool drawn = Draw(window, file.arg(QLatin1String("level-panel"), QLatin1String(ending)));
    PlayAWhile(window, board);
    return Draw(window, file.arg(QLatin1String("game"), QLatin1String(ending))) && drawn;
}

} // namespace

// Takes the word list and the folder for the pictures.
int main(int argc, char* argv[])
{
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "Usage: pictures WORD-LIST FOLDER\n");
        return EXIT_FAILURE;
    }
    const QString folder = QString::fromLocal8Bit(argv[2]) + u'/';
    const bool drawn = DrawDesktop(argv[1], folder, QApplication::palette(), "")
        && DrawDesktop(argv[1], folder, DarkDesktop(), "-dark");
    return drawn ? EXIT_SUCCESS : EXIT_FAILURE;
}
