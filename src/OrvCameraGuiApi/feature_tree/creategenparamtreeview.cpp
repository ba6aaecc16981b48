#include <OrvCameraGuiApi/feature_tree/creategenparamtreeview.h>

#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <QApplication>
#include <QWindow>

#include <memory>

namespace {

/** Whether widgets can be made; makes the application object that they need if there is none at all. */
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

/** The caller destroys its view: a parent that goes before may not. */
void keepWithoutParent(QWidget &view)
{
    if (QWidget *const parent = view.parentWidget()) {
        QObject::connect(parent, &QObject::destroyed, &view, [&view] { view.setParent(nullptr, view.windowFlags()); });
    }
}

/**
 * Shows the view, in front of the foreign window with that id, if there is one.
 *
 * The window is intentionally not put into a container widget to become the view's parent. That would take it out of
 * its own parent and out of sight, and destroying the container would destroy it. To be its transient window is all
 * that the view needs. This is told to the window system when the view is shown; after that nothing needs the wrapper,
 * and the window may go whenever its owner likes.
 */
void showInFrontOf(QWidget &view, unsigned long foreignWindowId)
{
    const std::unique_ptr<QWindow> window(foreignWindowId ? QWindow::fromWinId(foreignWindowId) : nullptr);
    if (window) {
        view.winId(); // makes the view's own window
        view.windowHandle()->setTransientParent(window.get());
    }
    view.show();
}

} // namespace

namespace OrvGui {

template <typename T>
static IOrvGenParamTreeView *CreateGenParamTreeView(T *params, const QString &title, unsigned long parentWindowId)
{
    if (!ensureApplication())
        return nullptr;
    QWidget *const parent = parentWindowId ? QWidget::find(parentWindowId) : nullptr;
    auto view = std::make_unique<OrvGenParamTreeView>(params, parent);
    keepWithoutParent(*view);
    view->setWindowTitle(title);
    view->setModal(false);
    showInFrontOf(*view, parent ? 0 : parentWindowId);
    return view.release();
}

} // namespace OrvGui

using OrvGui::CreateGenParamTreeView;
using OrvGui::IOrvGenParamTreeView;

IOrvGenParamTreeView *CreateGenParamTreeViewForNodemapA(GenApi::INodeMap *nodeMap, const char *title,
                                                        unsigned long parentWindowId)
{
    return CreateGenParamTreeView(nodeMap, QString::fromUtf8(title), parentWindowId);
}

IOrvGenParamTreeView *CreateGenParamTreeViewForNodemapW(GenApi::INodeMap *nodeMap, const wchar_t *title,
                                                        unsigned long parentWindowId)
{
    return CreateGenParamTreeView(nodeMap, title ? QString::fromWCharArray(title) : QString(), parentWindowId);
}

IOrvGenParamTreeView *CreateGenParamTreeViewForArrayA(OrvGenParam::Array *params, const char *title,
                                                      unsigned long parentWindowId)
{
    return CreateGenParamTreeView(params, QString::fromUtf8(title), parentWindowId);
}

IOrvGenParamTreeView *CreateGenParamTreeViewForArrayW(OrvGenParam::Array *params, const wchar_t *title,
                                                      unsigned long parentWindowId)
{
    return CreateGenParamTreeView(params, title ? QString::fromWCharArray(title) : QString(), parentWindowId);
}

void DestroyGenParamTreeView(IOrvGenParamTreeView *view)
{
    delete view;
}
