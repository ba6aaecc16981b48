// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "cameradialog.h"
#include "camerasource.h"
#include "exitcodes.h"
#include "explorerwindow.h"
#include "languages.h"
#include "options.h"
#include "screenshots.h"
#include "script.h"

#include <QApplication>
#include <QIcon>
#include <QSettings>

#include <cstdio>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Explorer)
};

/** What this program keeps between its runs. */
class RememberedSettings : public QSettings
{
public:
    RememberedSettings()
        : QSettings(QStringLiteral("OrvCameraGuiApi"), QCoreApplication::applicationName())
    {
    }
};

int fail(const QString &message, ExitCode code)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()), qPrintable(message));
    return code;
}

int print(const QString &text)
{
    const bool written = std::fputs(qPrintable(text), stdout) >= 0 && std::fflush(stdout) == 0;
    return written ? 0 : fail(Text::tr("Cannot write to standard output."), NoFile);
}

/** Reads the command line, which needs neither a display nor the window system. */
Options readCommandLine(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("orv-camera-explorer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORV_VERSION));
    return parseOptions(QCoreApplication::arguments());
}

/** Whether a window can be opened where this process was started. */
bool hasDisplay()
{
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    return false;
}

/** Where the window is drawn, unless the environment says so: Qt 5 does not look for Wayland by itself. */
void choosePlatform(bool screenshot)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return;
    if (screenshot)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    else if (qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "wayland");
}

int saveScreenshots(ExplorerWindow &window, const QString &directory)
{
    Screenshots screenshots(window, directory);
    if (!screenshots.save())
        return fail(Text::tr("Cannot write '%1'.").arg(screenshots.fault()), NoFile);
    return print(screenshots.files().join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

/** What the command line says; else, for a person, what was chosen in the last run. */
void chooseCameras(const Options &options)
{
    const bool isRestricted = !options.discovery.adapters.empty() || !options.discovery.addresses.empty();
    if (options.cameras && isRestricted)
        OrvTransports::use(*options.cameras, options.discovery);
    else if (options.cameras)
        OrvTransports::use(*options.cameras);
    else if (options.action == Options::Action::ShowWindow)
        ExplorerWindow::restoreCameras(RememberedSettings());
}

/** The source that the command line names; null if the user has to choose one. */
std::unique_ptr<CameraSource> sourceOf(const Options &options)
{
    if (!options.xmlFile.isEmpty())
        return openDescription(options.xmlFile);
    const bool ask = options.cameraId.isEmpty() && options.action == Options::Action::ShowWindow;
    return ask ? nullptr : openCamera(options.cameraId);
}

/** Only here, for a person, are settings read and written. */
int runFor(ExplorerWindow &window)
{
    RememberedSettings settings;
    window.restoreSettings(settings);
    window.show();
    const int status = QApplication::exec();
    window.saveSettings(settings);
    return status;
}

int runWindow(int argc, char **argv, const Options &options, std::unique_ptr<CameraSource> source)
{
    const bool screenshot = options.action == Options::Action::SaveScreenshot;
    choosePlatform(screenshot);
#if QT_VERSION_MAJOR < 6 // they are always on since
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    const QApplication app(argc, argv);
    QGuiApplication::setDesktopFileName(QCoreApplication::applicationName());
    speak(options.language);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/explorer/explorer.png")));

    if (!source)
        source = chooseCamera(nullptr, ExplorerWindow::lastCamera(RememberedSettings()));
    if (!source)
        return 0;
    ExplorerWindow window(std::move(source));
    if (screenshot)
        return saveScreenshots(window, options.screenshotDir);
    return runFor(window);
}

int runScript(int argc, char **argv, const Options &options)
{
    const QCoreApplication app(argc, argv);
    if (!options.language.isEmpty()) // else what others read stays the same everywhere
        speak(options.language);
    Script script;
    return options.action == Options::Action::ListCameras ? script.listCameras() : script.run(options);
}

} // namespace

int main(int argc, char **argv)
{
    const Options options = readCommandLine(argc, argv);
    if (options.action == Options::Action::Fail)
        return fail(options.text, WrongUse);
    if (options.action == Options::Action::PrintText)
        return print(options.text);
    if (options.action == Options::Action::ShowWindow && !hasDisplay())
        return fail(Text::tr("There is no display; '--screenshot DIR' draws the window into a file."), WrongUse);
    chooseCameras(options);
    if (options.action == Options::Action::ListCameras || options.action == Options::Action::RunScript)
        return runScript(argc, argv, options);
    try {
        return runWindow(argc, argv, options, sourceOf(options));
    } catch (const CameraSourceError &e) {
        return fail(e.message, NoCamera);
    }
}
