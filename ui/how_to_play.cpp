#include "ui/how_to_play.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

void OpenHowToPlay()
{
    const QString program = QCoreApplication::applicationDirPath();
#ifdef Q_OS_WIN
    const QFileInfo page(program + QStringLiteral("/how-to-play/index.html"));
#else
    const QFileInfo page(program + QStringLiteral("/../share/quorvel2/how-to-play/index.html"));
#endif
    if (page.exists())
        QDesktopServices::openUrl(QUrl::fromLocalFile(page.canonicalFilePath()));
}
