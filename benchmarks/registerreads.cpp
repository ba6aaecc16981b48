// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "benchmarks.h"

#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTreeView>

namespace {

/** Counts the reads of registers that are features apart from those of registers that others depend on. */
class CountingPort : public OrvGenApi::MemoryPort
{
public:
    void Read(void *buffer, int64_t address, int64_t length) override
    {
        ++(address < int64_t(secondBank) * registerSize ? values : conditions);
        MemoryPort::Read(buffer, address, length);
    }

    int values = 0;
    int conditions = 0;
};

int shownCells(const QTreeView &tree)
{
    int count = 0;
    for (QModelIndex index = tree.indexAt(QPoint(0, 0));
         index.isValid() && tree.visualRect(index).top() < tree.viewport()->height(); index = tree.indexBelow(index))
        count += tree.isFirstColumnSpanned(index.row(), index.parent()) ? 0 : 1;
    return count;
}

void settle()
{
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
}

} // namespace

void countRegisterReads(Table &table)
{
    constexpr int features = 10000;
    CountingPort port;
    const MemoryCamera camera(describeRegisters(features));
    require(camera.map->connect(&port), "the description has no port");
    OrvGui::OrvGenParamTreeView view(camera.map.get());
    QTreeView &tree = *view.treeView();
    const auto count = [&](const char *what, auto &&act) {
        port.values = 0;
        port.conditions = 0;
        act();
        const int beforePaint = port.values;
        settle();
        table.add(QStringLiteral("%1 registers, %2: values read, cells shown").arg(features).arg(QLatin1String(what)),
                  QString(), port.values, shownCells(tree), 2);
        table.add(QStringLiteral("  before the paint; conditions read"), QString(), beforePaint, port.conditions, 0);
    };
    tree.expandAll();
    count("first paint", [&] { view.show(); });
    count("scrolled by a page", [&] { tree.verticalScrollBar()->triggerAction(QScrollBar::SliderPageStepAdd); });
    count("collapse all", [&] { tree.collapseAll(); });
    count("expand all", [&] { tree.expandAll(); });
    QByteArray state;
    count("save the state", [&] { state = view.saveState(); });
    count("load the state", [&] { view.loadState(state.constData()); });
    count("filter \"99\"",
          [&] { view.findChild<QLineEdit *>(QStringLiteral("filterLineEdit"))->setText(QStringLiteral("99")); });
}
