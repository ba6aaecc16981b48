#include "cameradialog.h"
#include "camerasource.h"
#include "configuremenu.h"
#include "explorerwindow.h"
#include "languages.h"
#include "options.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int usageError = 2;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Explorer)
};

int fail(const QString &message)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(QCoreApplication::applicationName()), qPrintable(message));
    return usageError;
}

int print(const QString &text)
{
    const bool written = std::fputs(qPrintable(text), stdout) >= 0 && std::fflush(stdout) == 0;
    return written ? 0 : fail(Text::tr("Cannot write to standard output."));
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

int saveScreenshot(QWidget &window, const QString &path)
{
    window.grab(); // drawing reads the values, and reading finds the errors that turn red then
    QCoreApplication::processEvents();
    if (!window.grab().save(path))
        return fail(Text::tr("Cannot write '%1'.").arg(path));
    return print(path + QLatin1Char('\n'));
}

/**
 * The dialogs into files with their names: the one for a camera's IP address, and then the one that asks for a camera,
 * in which that camera is current.
 */
int saveDialogs(const QDir &directory)
{
    const std::shared_ptr<OrvCam::System> system = cameraSystem();
    CameraDialog dialog(system.get());
    dialog.show(); // the panes divide the width that they have
    QCoreApplication::processEvents();
    int status = 0;
    QTimer::singleShot(0, &dialog, [&] {
        if (QWidget *const opened = QApplication::activeModalWidget()) {
            status = saveScreenshot(*opened, directory.filePath(QStringLiteral("setip.png")));
            opened->close();
        }
    });
    dialog.setFirstAddress();
    return status ? status : saveScreenshot(dialog, directory.filePath(QStringLiteral("selectcamera.png")));
}

/** Every page and dialog into a file with its name. */
int saveScreenshots(ExplorerWindow &window, const QString &directory)
{
    const QStringList pages = window.pageNames();
    int status = 0;
    QDir().mkpath(directory);
    for (auto page = pages.begin(); status == 0 && page != pages.end(); ++page) {
        window.showPage(*page);
        status = saveScreenshot(window, QDir(directory).filePath(*page + QStringLiteral(".png")));
    }
    const QStringList dialogs = window.configureMenu().dialogNames();
    for (auto name = dialogs.begin(); status == 0 && name != dialogs.end(); ++name) {
        QDialog &dialog = *window.configureMenu().dialog(*name);
        dialog.show(); // fits its size to what is in it
        QCoreApplication::processEvents();
        status = saveScreenshot(dialog, QDir(directory).filePath(*name + QStringLiteral(".png")));
        dialog.close();
    }
    return status == 0 ? saveDialogs(QDir(directory)) : status;
}

/** What the command line asks for; null when people are to be asked. */
std::unique_ptr<CameraSource> sourceOf(const Options &options)
{
    if (!options.xmlFile.isEmpty())
        return openDescription(options.xmlFile);
    const bool ask = options.cameraId.isEmpty() && options.action == Options::Action::ShowWindow;
    return ask ? nullptr : openCamera(options.cameraId);
}

int runWindow(int argc, char **argv, const Options &options, std::unique_ptr<CameraSource> source)
{
    const bool screenshot = options.action == Options::Action::SaveScreenshot;
    if (screenshot && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    const QApplication app(argc, argv);
    speak(options.language);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/explorer/explorer.png")));

    if (!source)
        source = chooseCamera();
    if (!source)
        return 0;
    ExplorerWindow window(std::move(source));
    if (screenshot)
        return saveScreenshots(window, options.screenshotDir);
    window.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    const Options options = readCommandLine(argc, argv);
    if (options.action == Options::Action::Fail)
        return fail(options.text);
    if (options.action == Options::Action::PrintText)
        return print(options.text);
    if (options.action == Options::Action::ShowWindow && !hasDisplay())
        return fail(Text::tr("There is no display; '--screenshot DIR' draws the window into a file."));
    try {
        return runWindow(argc, argv, options, sourceOf(options));
    } catch (const CameraSourceError &e) {
        return fail(e.message);
    }
}
