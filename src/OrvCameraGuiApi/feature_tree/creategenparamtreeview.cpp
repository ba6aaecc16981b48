// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/creategenparamtreeview.h>

#include <OrvCameraGuiApi/feature_tree/opencalls.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>
#include <OrvCameraGuiApi/windows/callerswindow.h>

#include <memory>

namespace {

/** The caller destroys its view: a parent that goes before may not. */
void keepWithoutParent(QWidget &view)
{
    if (QWidget *const parent = view.parentWidget()) {
        QObject::connect(parent, &QObject::destroyed, &view, [&view] { view.setParent(nullptr, view.windowFlags()); });
    }
}

} // namespace

namespace OrvGui {

template <typename T>
static IOrvGenParamTreeView *CreateGenParamTreeView(T *params, const QString &title, unsigned long parentWindowId)
{
    if (!ensureApplication())
        return nullptr;
    auto view = std::make_unique<OrvGenParamTreeView>(params, widgetOf(parentWindowId));
    keepWithoutParent(*view);
    view->setWindowTitle(title);
    view->setModal(false);
    showInFrontOf(*view, parentWindowId);
    return view.release();
}

} // namespace OrvGui

using OrvGui::CreateGenParamTreeView;
using OrvGui::IOrvGenParamTreeView;

IOrvGenParamTreeView *CreateGenParamTreeViewForNodemapA(GenApi::INodeMap *nodeMap, const char *title,
                                                        unsigned long parentWindowId)
{
    return CreateGenParamTreeView(nodeMap, titleFrom(title), parentWindowId);
}

IOrvGenParamTreeView *CreateGenParamTreeViewForNodemapW(GenApi::INodeMap *nodeMap, const wchar_t *title,
                                                        unsigned long parentWindowId)
{
    return CreateGenParamTreeView(nodeMap, titleFrom(title), parentWindowId);
}

IOrvGenParamTreeView *CreateGenParamTreeViewForArrayA(OrvGenParam::Array *params, const char *title,
                                                      unsigned long parentWindowId)
{
    return CreateGenParamTreeView(params, titleFrom(title), parentWindowId);
}

IOrvGenParamTreeView *CreateGenParamTreeViewForArrayW(OrvGenParam::Array *params, const wchar_t *title,
                                                      unsigned long parentWindowId)
{
    return CreateGenParamTreeView(params, titleFrom(title), parentWindowId);
}

bool IsGenParamTreeViewOpen(IOrvGenParamTreeView *view)
{
    const auto *const window = dynamic_cast<QWidget *>(view);
    return window && window->isVisible();
}

void ShowGenParamTreeView(IOrvGenParamTreeView *view)
{
    if (auto *const window = dynamic_cast<QWidget *>(view)) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->show();
        window->raise();
        window->activateWindow();
    }
}

void DestroyGenParamTreeView(IOrvGenParamTreeView *view)
{
    auto *const own = dynamic_cast<OrvGui::OrvGenParamTreeView *>(view);
    if (!own || !OpenCalls::any()) {
        delete view;
        return;
    }
    // Called back while the view is in use.
    own->clearParams();
    own->hide();
    OpenCalls::retire(own);
}
