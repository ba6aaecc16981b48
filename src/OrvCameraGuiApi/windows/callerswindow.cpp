#include <OrvCameraGuiApi/windows/callerswindow.h>

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <clocale>
#include <memory>
#include <string>

namespace {

/** What Qt chooses its platform by; without any it would end the process. */
bool isDisplaySet()
{
    const auto isSet = [](const char *variable) { return !qEnvironmentVariableIsEmpty(variable); };
    return isSet("QT_QPA_PLATFORM") || isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
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

} // namespace

bool ensureApplication()
{
    if (!QCoreApplication::instance() && isDisplaySet()) {
        const NumericLocaleKeeper keeper;
        // Both have to last as long as the application object, which is never destroyed.
        static int argumentCount = 0;
        static char *arguments[] = {nullptr};
        QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
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

/*
 * The foreign window is intentionally not put into a container widget to become the parent of ours. That would take it
 * out of its own parent and out of sight, and destroying the container would destroy it. To be its transient window is
 * all that ours needs. This is told to the window system when ours is shown; after that nothing needs the wrapper.
 */
void showInFrontOf(QWidget &window, unsigned long callersWindowId)
{
    const bool isForeign = callersWindowId && !window.parentWidget();
    const std::unique_ptr<QWindow> foreign(isForeign ? QWindow::fromWinId(callersWindowId) : nullptr);
    if (foreign) {
        window.winId(); // makes the native window
        window.windowHandle()->setTransientParent(foreign.get());
    }
    window.show();
}
