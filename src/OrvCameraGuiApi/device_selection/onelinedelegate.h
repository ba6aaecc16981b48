// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/windows/readabledelegate.h>

/** As much of a text as a person reads; laying out more takes time, and a text of a camera may be of any length. */
QString shortened(const QString &text);

/**
 * Shows each text in one line, however many it has, and as much of it as shortened() leaves: rows keep their height,
 * and painting its speed. The model's roles stay as they are.
 */
class OneLineDelegate : public ReadableDelegate
{
    Q_OBJECT

public:
    using ReadableDelegate::ReadableDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
};
