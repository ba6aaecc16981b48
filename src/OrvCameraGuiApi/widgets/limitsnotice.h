// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

class QAbstractSpinBox;

/** Tells a person the limits of a spin box: by a tool tip below it, and assistive tools by its description. */
class LimitsNotice
{
public:
    /** \a box outlives this object. */
    explicit LimitsNotice(QAbstractSpinBox *box)
        : m_box(box)
    {
    }

    /** Does nothing while the box cannot be seen. */
    void show(const QString &text);
    /** Takes the text back; a tool tip or description that is another's by now stays. */
    void hide();

private:
    QAbstractSpinBox *const m_box;
    QString m_shownText; ///< empty while nothing is shown
    QString m_formerDescription;
};
