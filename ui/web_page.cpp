#include "ui/web_page.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QWidget>

#include <emscripten/val.h>

using namespace Qt::StringLiterals;

void TakeFontsOfPage()
{
    for (const QFileInfo& font : QDir(u"/share/fonts"_s).entryInfoList(QDir::Files))
        QFontDatabase::addApplicationFont(font.filePath());
    QApplication::setFont(QFont(u"Liberation Sans"_s, 10));
}

void CaptionPage(QWidget& window)
{
    const auto show = [](const QString& caption) {
        emscripten::val::module_property("showCaption")(caption.toStdString());
    };
    show(window.windowTitle());
    QObject::connect(&window, &QWidget::windowTitleChanged, show);
}
