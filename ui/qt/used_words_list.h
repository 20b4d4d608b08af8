// The list of used words. It follows the newest word, and shows the focus while it is empty too.
#pragma once

#include <QListWidget>

class UsedWordsList : public QListWidget {
public:
    explicit UsedWordsList(QWidget* parent);

    void SetWords(const QStringList& words);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
