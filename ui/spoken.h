// The words for the ear: what a screen reader says of each control, and the tool tips.
#pragma once

#include <QAccessible>

class QString;
struct BuiltControl;

// Gives the control its words as they are at the start: name, help and tool tip.
void GiveWords(const BuiltControl& control);

// While one of these lives, no screen reader is told what changes.
class Silence {
public:
    Silence();
    ~Silence();
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

private:
    QAccessible::UpdateHandler usual_;
};

// Names a box with what it shows: "Your letter 3 of 6: p". Faint is a letter that the box shows
// although it is in the player's hand, or "". That a box is disabled is for its state to say.
void NameBox(const BuiltControl& control, const QString& text, const QString& faint);
