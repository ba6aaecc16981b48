// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/widgets/guardedfield.h>
#include <OrvCameraGuiApi/widgets/int64validator.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>
#include <OrvCameraGuiApi/widgets/stepgrid.h>

#include <QSize>

#include <optional>

class QKeyEvent;
class QLineEdit;

/**
 * The state of a QtOrvSpinBoxVal64: the committed value, and what its line edit shows instead while a person types or
 * holds a step button.
 */
class QtOrvSpinBoxVal64Private
{
public:
    /** Follows the box's own events for the beginning and the end of typing and stepping; consumes none of them. */
    class EventAnalyzer : public QObject
    {
    public:
        explicit EventAnalyzer(QtOrvSpinBoxVal64Private *d)
            : m_d(d)
        {
        }

        bool eventFilter(QObject *watched, QEvent *event) override;

    private:
        void keyPressed(const QKeyEvent &event);
        void keyReleased(const QKeyEvent &event);

        QtOrvSpinBoxVal64Private *const m_d;
    };

    /** The line edit's validator: refuses edits that would damage prefix or suffix and leaves the rest to the box. */
    class AffixGuard : public QValidator
    {
    public:
        explicit AffixGuard(const QtOrvSpinBoxVal64Private *d)
            : m_d(d)
        {
        }

        State validate(QString &text, int &pos) const override;

    private:
        const QtOrvSpinBoxVal64Private *const m_d;
        mutable bool m_wasOutside = false; ///< the last accepted text is a number outside the range
    };

    /** The box as its EntryGuard sees it. */
    class Field : public GuardedField
    {
    public:
        explicit Field(QtOrvSpinBoxVal64 *box)
            : m_d(box->d.data())
        {
        }

        Entry entry() const override;
        bool commit() override;
        void restore() override { m_d->show(m_d->value); }
        bool commitsOnLeaving() const override { return m_d->q->keyboardTracking() || !m_d->ignoreFocusOut; }
        int numberStart() const override { return m_d->numberStart(); }
        int numberEnd() const override { return m_d->numberEnd(); }
        int base() const override { return m_d->displayIntegerBase; }
        bool hasExponent() const override { return false; }
        QString minimumText() const override { return m_d->displayText(m_d->minimum); }
        QString maximumText() const override { return m_d->displayText(m_d->maximum); }
        void whenChanged(QObject *context, const std::function<void()> &slot) const override;

    private:
        QtOrvSpinBoxVal64Private *const m_d;
    };

    explicit QtOrvSpinBoxVal64Private(QtOrvSpinBoxVal64 *owner);
    void init();

    /** \name The text @{ */
    QLineEdit *edit() const { return q->lineEdit(); }
    QString displayText(long long number) const;
    QString numberPart(const QString &text) const;
    QString ungrouped(QString number) const;
    bool hasAffixes(const QString &text) const;
    int numberStart() const { return int(prefix.size()); }
    int numberEnd() const;
    const Int64Validator &localizedValidator();
    std::optional<long long> shownNumber();
    void show(long long number);
    void refresh();
    void onTextEdited();
    void keepCursorInNumber(int oldPosition, int newPosition);
    void keepSelectionInNumber();
    /** @} */

    /** \name The value @{ */
    bool isInRange(long long number) const { return minimum <= number && number <= maximum; }
    void applyRange(long long bottom, long long top);
    void commit(long long number);
    void accept(long long number);
    void announce();
    void recommit();
    void commitText(bool discard);
    void endTyping();
    /** @} */

    /** \name Steps @{ */
    void stepBy(int steps);
    void startHolding();
    void stopHolding();
    void focusLost();
    /** @} */

    /** \name The size @{ */
    void invalidateSizeHints();
    const QSize &sizeHint(QSize &cached) const;
    QSize measuredSize() const;
    int widestText() const;
    /** @} */

    QString prefix;
    QString suffix;
    long long minimum = 0;
    long long maximum = 99;
    long long singleStep = 1;
    long long value = 0;
    long long pendingValue = 0; ///< on show: the value, or a number that held steps led to and is not committed yet
    int displayIntegerBase = 10;
    bool selectWhenStepping = true;
    bool validateStepping = false;
    bool ignoreFocusOut = true;
    bool buttonHeld = false; ///< a step button or step key is down
    bool edited = false; ///< text was typed and not yet committed
    bool buttonTracking = true;
    Int64Validator validator;
    QSize cachedSizeHint;
    QSize cachedMinimumSizeHint;
    QtOrvSpinBoxVal64 *const q;

    QString shownText; ///< the text for pendingValue that the box wrote last
    EventAnalyzer eventAnalyzer;
    AffixGuard affixGuard;
};
