// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QModelIndex>

#include <optional>

class QSplitter;
class QTreeView;

/**
 * The text that describes how a feature tree view is arranged: for every expanded category its path and "&lt;", then
 * "&amp;W" and the width of the name column, "&amp;V" and the level of visibility, "&amp;S" and the splitter's state in
 * hexadecimal. A path is the names that are shown, in UTF-8, joined with "/". These markers are meant literally, and
 * nothing is escaped: a name that looks like a marker is written as it is.
 *
 * Only rows that pass the filter take part. Of a tree without a model there is no text.
 */
namespace TreeState {

/** The part of the text that tells of categories. */
QByteArray saveExpansion(const QTreeView &tree);

QByteArray save(const QTreeView &tree, int visibility, const QSplitter &splitter);

/**
 * Expands the categories whose path occurs in \a state and collapses all others. Intentionally any place will do, be it
 * inside the path of another category. A tree that keeps an expansion for later keeps this one instead. The categories
 * above \a keptInSight are expanded whatever \a state has.
 */
void loadExpansion(QTreeView &tree, const QByteArray &state, const QModelIndex &keptInSight = QModelIndex());

/** In pixels; nothing if \a state has none that is possible for a column. */
std::optional<int> columnWidth(const QByteArray &state);

/** From 0 to 2; nothing if \a state has none of these. */
std::optional<int> visibility(const QByteArray &state);

/** Changes nothing unless \a state has the bytes that this splitter itself would save, except for the sizes. */
void loadSplitter(QSplitter &splitter, const QByteArray &state);

} // namespace TreeState
