#include <OrvCameraGuiApi/windows/callerswindow.h>

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <memory>

bool ensureApplication()
{
    if (!QCoreApplication::instance()) {
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
