// Draws the pictures of the documents from the real window: the level panel, the steps of a go, and
// a game in progress on a light and on a dark desktop. The same word list gives the same pictures.
#include "headless/board_text.h"
#include "headless/played_game.h"
#include "headless/script.h"
#include "ui/qt/board_style.h"
#include "ui/qt/main_window.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace {

constexpr int scale = 2; // pictures have this many pixels to each of the window's

// Four words of the player, a letter bought, one exchanged, and one in the hand.
constexpr const char* gameInProgress
    = "Option1:3 Command1 word:1 Command14 word:2 Command14 word:3 "
      "Command14 word:4 Word2:3 Text1:2 SwapLetters:4 Text1:5";

// The letters of a game laid so that one swap makes a word, and a go with them in six steps: the
// letters, one in the hand, the swap, the word begun, the whole word, and the letters after it.
constexpr const char* lettersOfAGo
    = "hidden=marten/lineup/feeder shown=m..t../l..e../f..d.. guess=m..t../l..e../f..d.. "
      "you=pamere me=finere swap=ulnted";
struct Step {
    const char* events;
    const char* clicks; // that its text tells of
};

constexpr Step aGo[] = {
    {"", ""},
    {"Text1:3", "Text1:3"},
    {"SwapLetters:4", "SwapLetters:4"},
    {"Command9 Text2:5 Text2:4", "Command9 Text2:5 Text2:4"},
    {"Text2:1 Text2:6 Text2:2 Text2:3", "Command3"},
    {"Command3", ""},
};

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

// A ring where to click, and the number of the click where there are several.
void MarkClicks(QPainter& painter, const MainWindow& window, const std::string& events)
{
    const QColor ink(150, 0, 190);
    std::istringstream names(events);
    int click = 0;
    for (std::string name; names >> name;) {
        const auto named
            = [&](const BuiltControl& control) { return ScriptName(*control.Is) == name; };
        const auto control = std::ranges::find_if(window.Parts(), named);
        Demand(control != window.Parts().end(), "no control " + name);
        const QRect box(control->Widget->mapTo(&window, QPoint()), control->Widget->size());
        const QRectF ring = QRectF(box).adjusted(-2, -2, 2, 2);
        for (const auto& [colour, width] : {std::pair(QColor(Qt::white), 5.5), {ink, 3.0}}) {
            painter.setPen(QPen(colour, width));
            painter.drawRoundedRect(ring, 7, 7);
        }
        if (events.find(' ') == std::string::npos)
            continue;
        const QRectF badge(ring.right() - 10, ring.top() - 10, 16, 16);
        painter.setPen(QPen(Qt::white, 1.5));
        painter.setBrush(ink);
        painter.drawEllipse(badge);
        painter.setBrush(Qt::NoBrush);
        painter.setFont(QFont(QStringLiteral("sans-serif"), 8, QFont::Bold));
        painter.drawText(badge, Qt::AlignCenter, QString::number(++click));
    }
}

// The window, or a part of it, with rings where these events click.
void Draw(MainWindow& window, const QString& file, QRect part = QRect(), const char* events = "")
{
    if (part.isEmpty())
        part = window.rect();
    QPixmap picture(part.size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(window.palette().color(QPalette::Window));
    window.render(&picture, QPoint(), QRegion(part));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    MarkClicks(painter, window, events);
    painter.end();
    Demand(picture.save(file), "cannot write " + file.toStdString());
}

// The player's letters and the swap row, down to the buttons that end the go.
void DrawGo(const char* wordList, const QString& files)
{
    const QRect letters(0, 0, 505, 313);
    HeadlessGame game(wordList, HeadlessPlatform(36000));
    MainWindow window(game.game);
    window.show();
    Draw(window, files.arg(QStringLiteral("level-panel")));
    PlayEvents(game, "Option1:4 Command1");
    SetBoard(game.board, lettersOfAGo);
    int picture = 0;
    for (const Step& step : aGo) {
        PlayEvents(game, step.events);
        window.InSession().Show();
        Draw(window, files.arg(QStringLiteral("go-%1").arg(++picture)), letters, step.clicks);
    }
}

void DrawDesktop(const char* wordList, const QString& file, const QPalette& desktop)
{
    QApplication::setPalette(desktop);
    HeadlessGame game(wordList, HeadlessPlatform(36000));
    MainWindow window(game.game);
    window.show();
    PlayEvents(game, gameInProgress);
    window.InSession().Show();
    Draw(window, file);
}

} // namespace

// Takes the word list and the folder of the documents.
int main(int argc, char* argv[])
try {
    QApplication::setStyle(new BoardStyle);
    const QApplication application(argc, argv);
    Demand(argc == 3, "usage: draw_pictures WORD_LIST DOCS");
    const QString docs = QString::fromLocal8Bit(argv[2]);
    DrawGo(argv[1], docs + QStringLiteral("/how-to-play/%1.png"));
    DrawDesktop(argv[1], docs + QStringLiteral("/pictures/game.png"), QApplication::palette());
    DrawDesktop(argv[1], docs + QStringLiteral("/pictures/game-dark.png"), DarkDesktop());
    return EXIT_SUCCESS;
} catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return EXIT_FAILURE;
}
