// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/plainreading.h>

#include <OrvCameraGuiApi/widgets/numbertext.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>

#include <QLineEdit>

namespace {

class PlainBoxValidator : public QValidator
{
public:
    explicit PlainBoxValidator(QAbstractSpinBox *box)
        : QValidator(box)
        , m_box(box)
    {
    }

    State validate(QString &text, int &pos) const override
    {
        if (const auto *const doubles = qobject_cast<const QDoubleSpinBox *>(m_box))
            return NumberText::judge(*doubles, text, pos);
        const auto *const integers = qobject_cast<const QSpinBox *>(m_box);
        return integers ? NumberText::judge(*integers, text, pos) : Acceptable;
    }

private:
    const QAbstractSpinBox *const m_box;
};

} // namespace

bool PlainReading::isNeededBy(const QAbstractSpinBox *box)
{
    if (qobject_cast<const QtOrvSpinBoxVal *>(box) || qobject_cast<const QtOrvDoubleSpinBoxVal *>(box))
        return false;
    return qobject_cast<const QSpinBox *>(box) || qobject_cast<const QDoubleSpinBox *>(box);
}

PlainReading::PlainReading(QAbstractSpinBox *box, QLineEdit *edit)
    : m_box(box)
    , m_edit(edit)
    , m_formerValidator(edit->validator())
    , m_hadTracking(box->keyboardTracking())
    , m_validator(new PlainBoxValidator(box))
{
    m_edit->setValidator(m_validator);
    m_box->setKeyboardTracking(false);
}

void PlainReading::handBack()
{
    if (m_edit && m_edit->validator() == m_validator)
        m_edit->setValidator(m_formerValidator);
    delete m_validator;
    m_box->setKeyboardTracking(m_hadTracking);
}
