// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/windows/callerswindow.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <clocale>
#include <memory>
#include <string>

namespace {

bool isSet(const char *variable)
{
    return !qEnvironmentVariableIsEmpty(variable);
}

/**
 * The plug-ins of Qt that can reach the displays of the environment, separated by semicolons, the one that Qt itself
 * would take first; empty without a display. Qt tries no other one, and not always one whose display is set.
 */
QByteArray displayPlugins()
{
    if (isSet("QT_QPA_PLATFORM"))
        return qgetenv("QT_QPA_PLATFORM");
    const QByteArray x11 = isSet("DISPLAY") ? "xcb" : "";
    const QByteArray wayland = isSet("WAYLAND_DISPLAY") ? "wayland" : "";
    if (x11.isEmpty() || wayland.isEmpty())
        return x11 + wayland;
    const bool isWaylandFirst = QT_VERSION_MAJOR > 5 || qgetenv("XDG_SESSION_TYPE") == "wayland";
    return isWaylandFirst ? wayland + ';' + x11 : x11 + ';' + wayland;
}

/** On Wayland no window can be named by somebody else. */
bool areForeignWindowsKnown()
{
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

/** Puts the locale of numbers back. */
class NumericLocaleKeeper
{
public:
    NumericLocaleKeeper() = default;
    ~NumericLocaleKeeper() { std::setlocale(LC_NUMERIC, m_former.c_str()); }
    Q_DISABLE_COPY(NumericLocaleKeeper)

private:
    const std::string m_former = std::setlocale(LC_NUMERIC, nullptr);
};

/**
 * Makes a window transient for a foreign one before each of its shows, since Qt tells the window system then, and only
 * then. Belongs to the window.
 *
 * The foreign window is intentionally not put into a container widget to become the parent of ours. That would take it
 * out of its own parent and out of sight, and destroying the container would destroy it.
 */
class TransientKeeper : public QObject
{
public:
    TransientKeeper(QWidget &window, WId foreignId)
        : QObject(&window)
        , m_foreignId(foreignId)
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && !event->spontaneous())
            follow(*static_cast<QWidget *>(watched));
        return false;
    }

private:
    /** Asks for the foreign window each time: it may have gone, and its wrapper does not notice. */
    void follow(QWidget &window)
    {
        if (window.parentWidget() || !areForeignWindowsKnown())
            return;
        m_foreign.reset(QWindow::fromWinId(m_foreignId));
        if (!m_foreign)
            return;
        window.winId(); // makes the native window
        window.windowHandle()->setTransientParent(m_foreign.get());
        QMetaObject::invokeMethod(
            this, [this] { m_foreign.reset(); }, Qt::QueuedConnection);
    }

    const WId m_foreignId;
    std::unique_ptr<QWindow> m_foreign; ///< Qt needs it until the window is shown
};

/**
 * Makes the application object, unless no plug-in reaches its display. Qt would end the process then: the last plug-in
 * it is given needs no display, and an application object with that one goes again.
 */
void makeApplication(const QByteArray &plugins)
{
    const NumericLocaleKeeper keeper;
    static const char withoutDisplay[] = "offscreen";
    static char name[] = "";
    static char option[] = "-platform";
    QByteArray value = plugins + ';' + withoutDisplay;
    // Both have to last as long as the application object, which takes the option out.
    static char *arguments[4];
    static int argumentCount;
    arguments[0] = name;
    arguments[1] = option;
    arguments[2] = value.data();
    argumentCount = 3;
#if QT_VERSION_MAJOR < 6 // it is always on since
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    auto *const application = new QApplication(argumentCount, arguments);
    if (QGuiApplication::platformName() == QLatin1String(withoutDisplay) && !plugins.contains(withoutDisplay))
        delete application;
}

} // namespace

bool ensureApplication()
{
    if (!QCoreApplication::instance()) {
        const QByteArray plugins = displayPlugins();
        if (!plugins.isEmpty())
            makeApplication(plugins);
    }
    return qobject_cast<QApplication *>(QCoreApplication::instance()) != nullptr;
}

QString titleFrom(const char *title)
{
    return QString::fromUtf8(title);
}

QString titleFrom(const wchar_t *title)
{
    return title ? QString::fromWCharArray(title) : QString();
}

QWidget *widgetOf(unsigned long windowId)
{
    return windowId ? QWidget::find(windowId) : nullptr;
}

void showInFrontOf(QWidget &window, unsigned long callersWindowId)
{
    if (callersWindowId && !window.parentWidget())
        new TransientKeeper(window, callersWindowId);
    window.show();
}
