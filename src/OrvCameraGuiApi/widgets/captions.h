#pragma once

#include <QString>

class QAbstractSpinBox;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;
class QWidget;

/**
 * Lays a composite out: a row of its parts, and around it a caption to the left and one above, which come into being
 * when they are first set. A caption names the spin box, for assistive tools and by its mnemonic.
 */
class Captions
{
public:
    /** Gives \a composite its layouts; all that is made here belongs to it. */
    explicit Captions(QWidget *composite);

    /** Where the parts go. */
    QHBoxLayout *row() const { return m_row; }

    /** What mnemonics give the focus to. To be set before the first caption. */
    void setSpinBox(QAbstractSpinBox *spinBox) { m_spinBox = spinBox; }

    /** Null until it is first set; hidden while its text is empty. */
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
