// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/compositefocus.h>

#include <QApplication>
#include <QFocusEvent>
#include <QWidget>

namespace {

/** A pop-up counts as a part, unlike for QWidget::isAncestorOf(), which stops at windows. */
bool isPart(const QWidget *composite, const QWidget *widget)
{
    while (widget && widget != composite)
        widget = widget->parentWidget();
    return widget;
}

} // namespace

CompositeFocus::CompositeFocus(QWidget *composite)
{
    connect(qApp, &QApplication::focusChanged, this, [composite](QWidget *before, QWidget *now) {
        if (!isPart(composite, before) || isPart(composite, now))
            return;
        QFocusEvent focusOut(QEvent::FocusOut);
        QCoreApplication::sendEvent(composite, &focusOut);
    });
}
