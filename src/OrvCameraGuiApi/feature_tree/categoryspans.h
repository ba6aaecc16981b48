// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

class QModelIndex;
class QTreeView;

/**
 * Lets the categories among the rows \a first to \a last of \a parent, and all in them, span both columns. The rows are
 * those of a GenParamTreeModel, directly or behind proxies; the tree has that model and knows these rows already.
 */
void setSpanForChildren(QTreeView &tree, const QModelIndex &parent, int first, int last);

/** The same for all rows of \a parent; all there are for an invalid one. */
void setSpanForChildren(QTreeView &tree, const QModelIndex &parent);
