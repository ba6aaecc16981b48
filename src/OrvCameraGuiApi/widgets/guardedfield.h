#pragma once

#include <QString>

#include <functional>
#include <memory>

class QAbstractSpinBox;
class QObject;
class QtOrvSpinBoxVal64;

/** A spin box for numbers as its EntryGuard sees it, whatever its class; it outlives this object. */
class GuardedField
{
public:
    enum class Entry { Nothing, NoNumber, Number }; ///< a number is one in the range

    GuardedField() = default;
    virtual ~GuardedField() = default;
    Q_DISABLE_COPY(GuardedField)

    /** What stands in the box. */
    virtual Entry entry() const = 0;
    /** Commits what stands in the box, which is a number. Whether valueChanged() told of it. */
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
    /** Calls \a slot, as long as \a context lives, when the value changes. */
    virtual void whenChanged(QObject *context, const std::function<void()> &slot) const = 0;
};

/** The field for \a box by its class; null for one that has no number. */
std::unique_ptr<GuardedField> makeGuardedField(QAbstractSpinBox *box);

/** For the class that alone can put its text right. */
std::unique_ptr<GuardedField> makeGuardedField(QtOrvSpinBoxVal64 *box);
