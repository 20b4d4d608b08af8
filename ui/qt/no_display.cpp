#include "ui/qt/no_display.h"

#include <QString>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

QtMessageHandler usual = nullptr;
QString told; // by the toolkit so far

std::string ReasonOf(const QString& lastWords)
{
    const std::string wayland = qgetenv("WAYLAND_DISPLAY").toStdString();
    const std::string x11 = qgetenv("DISPLAY").toStdString();
    const bool triedX11 = told.contains(QLatin1String("connect to display"));
    const bool wantsX11 = qgetenv("QT_QPA_PLATFORM") == "xcb";
    // The last words list what the toolkit has to open a window with.
    if (!wayland.empty() && !wantsX11 && !lastWords.contains(QLatin1String("wayland")))
        return "To open a window on a Wayland desktop, please install the package qt6-wayland.";
    if (!triedX11 && !told.contains(QLatin1String("create wl_display")))
        return (told + lastWords.trimmed()).toStdString();
    const std::string& display = triedX11 && !x11.empty() ? x11 : wayland;
    return display.empty() ? "There is no display here to open the game on."
                           : "The display " + display + " does not answer.";
}

void Listen(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) {
        std::fputs((ReasonOf(text) + '\n').c_str(), stderr);
        std::_Exit(EXIT_FAILURE);
    }
    told += qFormatLogMessage(type, context, text) + u'\n';
}

} // namespace

void ListenForNoDisplay()
{
    usual = qInstallMessageHandler(Listen);
}

void StopListening()
{
    qInstallMessageHandler(usual);
    std::fputs(qPrintable(told), stderr);
}
