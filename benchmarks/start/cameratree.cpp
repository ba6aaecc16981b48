// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "camerasource.h"
#include "explorerwindow.h"
#include "painted.h"

#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <QApplication>
#include <QTreeView>

#include <cstring>

namespace {

int showUntilPainted(QWidget &window)
{
    for (QTreeView *const tree : window.findChildren<QTreeView *>()) {
        if (tree->model() && tree->model()->rowCount() > 0)
            new EndWhenPainted(tree);
    }
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}

} // namespace

/** The tree of a simulated camera: by itself, or with "explorer" the whole application as it starts for a person. */
int main(int argc, char **argv)
{
#if QT_VERSION_MAJOR < 6 // they are always on since
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    const QApplication app(argc, argv);
    auto camera = openCamera(QStringLiteral("ORV-GIGE-0001"));
    if (argc > 1 && std::strcmp(argv[1], "explorer") == 0) {
        ExplorerWindow window(std::move(camera));
        return showUntilPainted(window);
    }
    OrvGui::OrvGenParamTreeView view(camera->nodeMap());
    return showUntilPainted(view);
}
