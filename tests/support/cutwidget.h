#pragma once

#include <QWidget>

/**
 * A label, button, combo box or row of tabs that is seen with less than the size it asks for, or a group narrower than
 * its title; empty when there is none.
 */
inline QString cutWidget(const QWidget &window)
{
    const auto widgets = window.findChildren<QWidget *>();
    for (const QWidget *const widget : widgets) {
        const bool isGroup = widget->inherits("QGroupBox");
        const bool hasText = isGroup || widget->inherits("QLabel") || widget->inherits("QAbstractButton")
            || widget->inherits("QComboBox") || widget->inherits("QTabBar");
        const QSize hint = isGroup ? widget->minimumSizeHint() : widget->sizeHint();
        if (hasText && widget->isVisible() && (widget->width() < hint.width() || widget->height() < hint.height()))
            return widget->objectName();
    }
    return {};
}
