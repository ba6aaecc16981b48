// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/limitsnotice.h>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QTextDocument>
#include <QToolTip>

#include <utility>

namespace {

/** The text holds the unit, which the camera is free to choose: a tool tip would take tags for rich text. */
QString asPlainText(const QString &text)
{
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

} // namespace

void LimitsNotice::show(const QString &text)
{
    if (!m_box->isVisible() || m_box->window()->isMinimized())
        return;
    if (m_shownText.isEmpty())
        m_formerDescription = m_box->accessibleDescription();
    m_shownText = text;
    m_box->setAccessibleDescription(text);
    QAccessibleEvent alert(m_box, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    QToolTip::showText(m_box->mapToGlobal(QPoint(0, m_box->height())), asPlainText(text), m_box);
}

void LimitsNotice::hide()
{
    if (m_shownText.isEmpty())
        return;
    const QString text = std::exchange(m_shownText, QString());
    if (m_box->accessibleDescription() == text)
        m_box->setAccessibleDescription(m_formerDescription);
    if (QToolTip::text() == asPlainText(text))
        QToolTip::hideText();
}
