// What a screen reader hears beside the names of the controls.
#pragma once

#include <QWidget>

// Bears what was said last as its name.
class Notice : public QWidget {
public:
    // To come before anything else stands in the window, which gets the game's name as its own.
    explicit Notice(QWidget* window);

    void Say(const QString& text);
};
