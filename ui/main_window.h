// The window: it shows the board, hands clicks to the handlers, and writes what the player types or
// ticks into the board. It knows no rule.
#pragma once

#include "ui/builder.h"

#include <QWidget>

#include <string>
#include <vector>

struct Game;
struct LetterBox;

class MainWindow : public QWidget {
public:
    // Builds the window and loads the level panel into the board. The game outlives the window.
    explicit MainWindow(Game& game);

    // Brings the window up to the board. What has not changed is left alone.
    void ShowBoard();

    // Shows the board, paints, and runs the pending input before it returns.
    void Refresh();

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* Find(const char* control, int number = 0) const;
    void ConnectClicks();
    void ConnectTyping();
    void BindToBoard();
    void ShowBoxes();
    void ShowUsedWords();
    void ShowLevelPanel();
    void KeepFocusInPlay(const QWidget* focused);
    void FitScreen();
    void Form_Resize();
    void ReadSize();

    struct BoundBox {
        BuiltControl control;
        const LetterBox* box;
    };
    struct BoundNumber {
        BuiltControl control;
        const std::string* text;
    };
    struct BoundFlag {
        QWidget* widget;
        const bool* flag;
    };

    Game& game_;
    std::vector<BuiltControl> controls_;
    std::vector<BoundBox> boxes_;
    std::vector<BoundNumber> numbers_;
    std::vector<BoundFlag> visible_;
    std::vector<BoundFlag> enabled_;
    quint64 enterReleased_ = 0;       // the time of the event; 0 for none
    double pixelsPerTwip_ = 1.0 / 15; // less on a screen that the window would not fit on
};
