// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QStyledItemDelegate>

/**
 * \a color, brought towards \a text as far as it needs for a contrast of 4.5 to 1 on \a background; \a text where that
 * itself has less.
 */
QColor readableColor(const QColor &color, const QColor &text, const QColor &background);

/**
 * Paints texts that the model gives a color of their own so that they can be read, in light and dark palettes. The
 * model's roles stay as they are: a grayed value, a red name.
 */
class ReadableDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /** Tool tips show what a camera says as it stands, never as rich text. */
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
