// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QModelIndex>
#include <QObject>

class QMouseEvent;
class QTreeView;

/**
 * Lets the user resize the columns of a tree view whose header is hidden, by dragging the right edge of any cell. The
 * last column has none, and only columns whose header section is interactive can be resized. A column can be made as
 * narrow as 10 pixels, also where its header would ask for more.
 */
class TreeViewResizer : public QObject
{
    Q_OBJECT

public:
    /** \a view owns the resizer and is not null. Its viewport reports mouse moves without a button from now on. */
    explicit TreeViewResizer(QTreeView *view);

    /** The cell whose right edge can be dragged at \a pos, in viewport coordinates; invalid when there is none. */
    QModelIndex ifResizable(const QPoint &pos) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /** The view is being shown; comes every time. */
    void showed();

private:
    bool filterMove(const QMouseEvent &event);
    bool filterPress(const QMouseEvent &event);
    bool filterRelease(const QMouseEvent &event);

    QTreeView *const m_view;
    const int m_hitHalfWidth = 5; ///< of the zone in which an edge is hit, in pixels
    const int m_minimumWidth = 2 * m_hitHalfWidth; ///< of a column, in pixels
    bool m_resizing = false;
    int m_column = 0; ///< that is being resized
    int m_lastX = 0; ///< of the mouse while resizing, in screen coordinates
    QWidget *const m_viewport;
};
