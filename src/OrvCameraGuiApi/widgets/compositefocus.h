// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QObject>

class QWidget;

/**
 * Sends a composite a QEvent::FocusOut when the focus leaves its parts, after the parts have seen theirs. A delegate
 * and a QDataWidgetMapper watch the composite only, and take that event for the end of editing.
 */
class CompositeFocus : public QObject
{
public:
    /** Not a child of \a composite: it has to be destroyed before the parts are. */
    explicit CompositeFocus(QWidget *composite);
};
