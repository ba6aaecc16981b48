// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

#include <functional>
#include <memory>

class QAbstractSpinBox;
class QObject;
class QtOrvSpinBoxVal64;

/** A spin box for numbers as its EntryGuard sees it, whatever its class. The box outlives this object. */
class GuardedField
{
public:
    enum class Entry { Nothing, NoNumber, Number }; ///< a Number lies in the range

    GuardedField() = default;
    virtual ~GuardedField() = default;
    Q_DISABLE_COPY(GuardedField)

    /** The kind of text that the box shows. */
    virtual Entry entry() const = 0;
    /** Commits the Number that the box shows. Returns whether valueChanged() was emitted. */
    virtual bool commit() = 0;
    /** Shows the value. */
    virtual void restore() = 0;
    /** Whether a typed number is committed when the box is left. */
    virtual bool commitsOnLeaving() const = 0;
    /** Cursor positions before and behind the number. @{ */
    virtual int numberStart() const = 0;
    virtual int numberEnd() const = 0;
    /** @} */
    virtual int base() const = 0;
    /** Whether numbers may have exponents. */
    virtual bool hasExponent() const = 0;
    /** The bounds as the box shows them, with the unit. @{ */
    virtual QString minimumText() const = 0;
    virtual QString maximumText() const = 0;
    /** @} */
    /** Calls \a slot whenever the value changes, as long as \a context lives. */
    virtual void whenChanged(QObject *context, const std::function<void()> &slot) const = 0;

protected:
    /** Whether the value changes during \a commit. */
    bool isAnnouncedBy(const std::function<void()> &commit) const;
};

/** The field for \a box; null if the class of the box has no number. */
std::unique_ptr<GuardedField> makeGuardedField(QAbstractSpinBox *box);

/** For the class whose private part shows and reads the text. */
std::unique_ptr<GuardedField> makeGuardedField(QtOrvSpinBoxVal64 *box);
