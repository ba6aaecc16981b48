// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/treestate.h>

#include <OrvCameraGuiApi/feature_tree/categorywalk.h>
#include <OrvCameraGuiApi/feature_tree/featuretree.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

#include <QSplitter>
#include <QTreeView>
#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <vector>

namespace {

const char categoryMarker[] = "&lt;";
const char widthMarker[] = "&amp;W";
const char visibilityMarker[] = "&amp;V";
const char splitterMarker[] = "&amp;S";

constexpr int maximumColumnWidth = 1048575; ///< more QHeaderView does not take
constexpr int maximumVisibility = 2;

// QSplitter::saveState() begins with a mark, a version and the number of sizes; then come the sizes.
constexpr int splitterHeaderSize = 3 * int(sizeof(qint32));

/** Calls \a visit with every category and its path, depth first, a category before those in it. */
template <typename Visit>
void forEachCategoryPath(const QAbstractItemModel &model, Visit visit)
{
    QByteArray path;
    std::vector<int> pathSizes; // of the categories that the current one is in
    forEachCategory(model, QModelIndex(), 0, model.rowCount() - 1, [&](const QModelIndex &index, size_t depth) {
        pathSizes.resize(depth);
        path.truncate(depth > 0 ? pathSizes.back() : 0);
        if (depth > 0)
            path += '/';
        path += index.data().toString().toUtf8();
        pathSizes.push_back(int(path.size()));
        visit(index, path);
    });
}

/** The text after the first \a marker. */
QByteArray after(const QByteArray &state, const char *marker)
{
    const auto found = state.indexOf(marker);
    return found < 0 ? QByteArray() : state.mid(found + int(qstrlen(marker)));
}

/** The decimal number behind \a marker; what comes after the number does not matter. */
std::optional<int> numberAfter(const QByteArray &state, const char *marker, int minimum, int maximum)
{
    const QByteArray text = after(state, marker);
    char *end = nullptr;
    errno = 0;
    const long number = std::strtol(text.constData(), &end, 10);
    if (end == text.constData() || errno != 0 || number < minimum || number > maximum)
        return std::nullopt;
    return int(number);
}

/** Whether \a bytes holds nothing but sizes that a widget can have, in the form of QDataStream. */
bool areSizes(const QByteArray &bytes)
{
    for (int i = 0; i < bytes.size(); i += int(sizeof(qint32))) {
        const auto size = qFromBigEndian<qint32>(bytes.constData() + i);
        if (size < 0 || size > QWIDGETSIZE_MAX)
            return false;
    }
    return true;
}

} // namespace

QByteArray TreeState::saveExpansion(const QTreeView &tree)
{
    QByteArray state;
    if (!tree.model())
        return state;
    forEachCategoryPath(*tree.model(), [&](const QModelIndex &index, const QByteArray &path) {
        if (tree.isExpanded(index)) {
            state += path;
            state += categoryMarker;
        }
    });
    return state;
}

QByteArray TreeState::save(const QTreeView &tree, int visibility, const QSplitter &splitter)
{
    if (!tree.model())
        return {};
    const auto *const features = qobject_cast<const FeatureTree *>(&tree);
    const std::optional<QByteArray> kept = features ? features->keptExpansion() : std::nullopt;
    QByteArray state = kept ? *kept : saveExpansion(tree);
    state += widthMarker + QByteArray::number(tree.columnWidth(GenParamTreeModel::NameColumn));
    state += visibilityMarker + QByteArray::number(visibility);
    state += splitterMarker + splitter.saveState().toHex();
    return state;
}

void TreeState::loadExpansion(QTreeView &tree, const QByteArray &state, const QModelIndex &keptInSight)
{
    if (!tree.model())
        return;
    auto *const features = qobject_cast<FeatureTree *>(&tree);
    if (features && features->keptExpansion()) {
        features->keepExpansion(state.mid(0, state.indexOf(widthMarker))); // all of it without a marker
        return;
    }
    std::vector<QModelIndex> open;
    for (QModelIndex above = keptInSight.parent(); above.isValid(); above = above.parent())
        open.push_back(above);
    // Slots of the tree may change its rows or its model meanwhile.
    std::vector<QPersistentModelIndex> toToggle;
    forEachCategoryPath(*tree.model(), [&](const QModelIndex &index, const QByteArray &path) {
        const bool isWanted = state.contains(path) || std::find(open.begin(), open.end(), index) != open.end();
        if (index.model() == tree.model() && tree.isExpanded(index) != isWanted)
            toToggle.emplace_back(index);
    });
    for (const QPersistentModelIndex &index : toToggle) {
        if (index.isValid() && index.model() == tree.model())
            tree.setExpanded(index, !tree.isExpanded(index));
    }
}

std::optional<int> TreeState::columnWidth(const QByteArray &state)
{
    return numberAfter(state, widthMarker, 1, maximumColumnWidth);
}

std::optional<int> TreeState::visibility(const QByteArray &state)
{
    return numberAfter(state, visibilityMarker, 0, maximumVisibility);
}

void TreeState::loadSplitter(QSplitter &splitter, const QByteArray &state)
{
    const QByteArray own = splitter.saveState();
    const QByteArray bytes = QByteArray::fromHex(after(state, splitterMarker));
    const int sizesLength = splitter.count() * int(sizeof(qint32));
    const QByteArray sizes = bytes.mid(splitterHeaderSize, sizesLength);
    if (bytes.size() != own.size() || bytes.left(splitterHeaderSize) != own.left(splitterHeaderSize)
        || !areSizes(sizes)) {
        return;
    }
    // Orientation and the like stay this splitter's: the text may be anybody's.
    splitter.restoreState(own.left(splitterHeaderSize) + sizes + own.mid(splitterHeaderSize + sizesLength));
}
