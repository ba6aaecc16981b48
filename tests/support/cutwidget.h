// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QAbstractButton>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QWidget>

#include <algorithm>

/** Whether the text that an empty field shows in place of a value ends before the buttons in the field. */
inline bool hasRoomForPlaceholder(const QLineEdit &field)
{
    int end = field.width();
    const auto buttons = field.findChildren<QAbstractButton *>();
    for (const QAbstractButton *const button : buttons)
        end = std::min(end, button->x());
    return field.fontMetrics().horizontalAdvance(field.placeholderText()) < end;
}

/** Whether a field without buttons shows the whole of its text. */
inline bool hasRoomForText(const QLineEdit &field)
{
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
    const QRect content = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
    constexpr int margins = 4; // which QLineEdit leaves beside its text
    return field.fontMetrics().horizontalAdvance(field.text()) + margins <= content.width();
}

inline QSize spaceAskedBy(const QWidget &widget)
{
    if (widget.inherits("QGroupBox"))
        return widget.minimumSizeHint();
    return widget.hasHeightForWidth() ? QSize(0, widget.heightForWidth(widget.width())) : widget.sizeHint();
}

/**
 * A label, button, combo box or row of tabs that is seen with less than the size it asks for, a group narrower than its
 * title, or a field that cuts what it says it is for; empty when there is none.
 */
inline QString cutWidget(const QWidget &window)
{
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        const bool hasText = widget->inherits("QLabel") || widget->inherits("QAbstractButton")
            || widget->inherits("QComboBox") || widget->inherits("QTabBar") || widget->inherits("QGroupBox");
        const QSize hint = spaceAskedBy(*widget);
        if (hasText && widget->isVisible() && (widget->width() < hint.width() || widget->height() < hint.height()))
            return widget->objectName();
        const auto *const field = qobject_cast<const QLineEdit *>(widget);
        if (field && field->isVisible() && !hasRoomForPlaceholder(*field))
            return widget->objectName();
    }
    return {};
}
