// A level to choose, with a focus mark that shows on the panel's colour.
#pragma once

#include <QRadioButton>

class LevelOption : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};
