// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "painted.h"

#include <QApplication>
#include <QStandardItemModel>
#include <QTreeView>

/** The least that a Qt program with a tree does. */
int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    const QStandardItemModel model(0, 2);
    QTreeView tree;
    tree.setModel(const_cast<QStandardItemModel *>(&model));
    new EndWhenPainted(&tree);
    tree.resize(800, 600);
    tree.show();
    return QApplication::exec();
}
