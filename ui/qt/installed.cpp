#include "ui/qt/installed.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace {

// From the folder of the program, so that a prefix can be moved as a whole.
QString DataFolder()
{
#ifdef Q_OS_WIN
    return QCoreApplication::applicationDirPath();
#else
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../share/quorvel2");
#endif
}

} // namespace

std::filesystem::path PlaceOfWordList()
{
#ifdef Q_OS_WIN
    return "C:\\Lexicon.txt";
#else
    return (DataFolder() + QStringLiteral("/Lexicon.txt")).toStdString();
#endif
}

bool OpenHowToPlay()
{
    const QFileInfo page(DataFolder() + QStringLiteral("/how-to-play/index.html"));
    return page.exists()
        && QDesktopServices::openUrl(QUrl::fromLocalFile(page.canonicalFilePath()));
}
