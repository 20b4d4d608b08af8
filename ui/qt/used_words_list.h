// The list of used words. It follows the newest word, and shows the focus while it is empty too.
#pragma once

#include "ui/look.h"

#include <QListWidget>

class UsedWordsList : public QListWidget {
public:
    explicit UsedWordsList(QWidget* parent);

    void SetLook(const Look& look);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void SetWords(const QStringList& words);

    Mark mark_ = Mark::None;
};
