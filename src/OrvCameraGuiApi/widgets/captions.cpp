// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/captions.h>

#include <QAbstractSpinBox>
#include <QBoxLayout>
#include <QLabel>

namespace {

constexpr int spacing = 6; // pixels

/** A hidden label has no buddy: it would give the spin box an empty name. */
void show(QLabel *label, const QString &text, QAbstractSpinBox *buddy)
{
    label->setText(text);
    label->setBuddy(text.isEmpty() ? nullptr : buddy);
    label->setVisible(!text.isEmpty());
}

} // namespace

Captions::Captions(QWidget *composite)
    : m_composite(composite)
    , m_column(new QVBoxLayout(composite))
    , m_row(new QHBoxLayout)
{
    m_column->setObjectName(QStringLiteral("layoutV"));
    m_row->setObjectName(QStringLiteral("layoutH"));
    for (QBoxLayout *layout : {static_cast<QBoxLayout *>(m_column), static_cast<QBoxLayout *>(m_row)}) {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(spacing);
    }
    m_column->addLayout(m_row);
}

QLabel *Captions::makeLabel(const QString &name) const
{
    auto *const label = new QLabel(m_composite);
    label->setObjectName(name);
    return label;
}

void Captions::setLeftText(const QString &text)
{
    if (!m_left) {
        m_left = makeLabel(QStringLiteral("labelLeft"));
        m_row->insertWidget(0, m_left);
    }
    show(m_left, text, m_spinBox);
}

void Captions::setTopText(const QString &text)
{
    if (!m_top) {
        m_top = makeLabel(QStringLiteral("labelUpper"));
        m_top->setAlignment(Qt::AlignCenter);
        auto *const line = new QHBoxLayout;
        line->addStretch();
        line->addWidget(m_top);
        line->addStretch();
        m_column->insertLayout(0, line);
    }
    show(m_top, text, m_spinBox);
}

QString Captions::leftText() const
{
    return m_left ? m_left->text() : QString();
}

QString Captions::topText() const
{
    return m_top ? m_top->text() : QString();
}
