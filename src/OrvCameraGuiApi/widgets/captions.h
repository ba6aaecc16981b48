// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

class QAbstractSpinBox;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class QWidget;

/**
 * The layout of a composite: a row of parts, with one caption to the left and one above. A caption gets its label when
 * its text is first set. It names the spin box to assistive tools, and its mnemonic leads there.
 */
class Captions
{
public:
    /** Sets the layouts of \a composite, which owns everything that is made here. */
    explicit Captions(QWidget *composite);

    /** The row for the parts. */
    QHBoxLayout *row() const { return m_row; }

    /** The buddy of the captions. To be set before the first caption. */
    void setSpinBox(QAbstractSpinBox *spinBox) { m_spinBox = spinBox; }

    /** Null until the text is first set; hidden while the text is empty. */
    QLabel *left() const { return m_left; }
    QLabel *top() const { return m_top; }
    void setLeftText(const QString &text);
    void setTopText(const QString &text);
    QString leftText() const;
    QString topText() const;

private:
    QLabel *makeLabel(const QString &name) const;

    QWidget *const m_composite;
    QVBoxLayout *const m_column;
    QHBoxLayout *const m_row;
    QAbstractSpinBox *m_spinBox = nullptr;
    QLabel *m_left = nullptr;
    QLabel *m_top = nullptr;
};
