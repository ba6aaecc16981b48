#pragma once

#include <QWidget>

/** A label, button or combo box that is seen with less than the size it asks for; empty when there is none. */
inline QString cutWidget(const QWidget &window)
{
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        const bool hasText =
            widget->inherits("QLabel") || widget->inherits("QAbstractButton") || widget->inherits("QComboBox");
        const bool isWrapped = widget->hasHeightForWidth();
        const QSize hint = isWrapped ? QSize(0, widget->heightForWidth(widget->width())) : widget->sizeHint();
        if (hasText && widget->isVisible() && (widget->width() < hint.width() || widget->height() < hint.height()))
            return widget->objectName();
    }
    return {};
}
