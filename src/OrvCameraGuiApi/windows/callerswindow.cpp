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

/** Qt finds a display by these variables. Without any of them it would end the process. */
bool isDisplaySet()
{
    return isSet("QT_QPA_PLATFORM") || isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
}

/** Qt itself looks for Wayland only in sessions that say so, and would end the process for want of an X server. */
bool isWaylandAlone()
{
    return !isSet("QT_QPA_PLATFORM") && !isSet("DISPLAY") && isSet("WAYLAND_DISPLAY");
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

} // namespace

bool ensureApplication()
{
    if (!QCoreApplication::instance() && isDisplaySet()) {
        const NumericLocaleKeeper keeper;
        // Both have to last as long as the application object, which is never destroyed.
        static char name[] = "";
        static char option[] = "-platform";
        static char platform[] = "wayland";
        static char *arguments[] = {name, option, platform, nullptr};
        static int argumentCount = isWaylandAlone() ? 3 : 0;
#if QT_VERSION_MAJOR < 6 // it is always on since
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
        new QApplication(argumentCount, arguments);
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
