// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QPointer>
#include <QValidator>

class QAbstractSpinBox;
class QLineEdit;

/** Makes a QSpinBox or QDoubleSpinBox read its text by NumberText, and turns its keyboard tracking off. */
class PlainReading
{
public:
    /** Whether \a box is of a class that needs this: the library's own read by NumberText themselves. */
    static bool isNeededBy(const QAbstractSpinBox *box);

    PlainReading(QAbstractSpinBox *box, QLineEdit *edit);
    /** Gives the box its own way of reading back. Not called when the box itself goes. */
    void handBack();

private:
    QAbstractSpinBox *const m_box;
    const QPointer<QLineEdit> m_edit;
    const QPointer<const QValidator> m_formerValidator;
    const bool m_hadTracking;
    const QPointer<QValidator> m_validator;
};
