// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/guardedfield.h>

#include <OrvCameraGuiApi/widgets/numbertext.h>
#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QLocale>

#include <optional>
#include <type_traits>

namespace {

/** Gives access to textFromValue(), which is protected in QSpinBox. */
struct SpinBoxText : QSpinBox
{
    static QString of(const QSpinBox &box, int value) { return (box.*&SpinBoxText::textFromValue)(value); }
};

QString numberText(const QSpinBox &box, int value)
{
    return SpinBoxText::of(box, value);
}

/** Short also for the largest doubles, which stand for "no bound" and have hundreds of digits. */
QString numberText(const QDoubleSpinBox &box, double value)
{
    constexpr int longest = 24; // characters
    const QString text = box.textFromValue(value);
    return text.size() <= longest ? text : box.locale().toString(value, 'g', 6);
}

int baseOf(const QSpinBox &box)
{
    return box.displayIntegerBase();
}

int baseOf(const QDoubleSpinBox &)
{
    return 10;
}

/** \a Base is a class of Qt, \a Own the class derived from it here, whose setValue() snaps. */
template <typename Base, typename Own, typename Number>
class SpinBoxField : public GuardedField
{
public:
    explicit SpinBoxField(Base *box)
        : m_box(box)
        , m_own(qobject_cast<Own *>(box))
    {
    }

    Entry entry() const override
    {
        if (NumberText::numberPart(*m_box, m_box->text()).isEmpty())
            return Entry::Nothing;
        const std::optional<Number> number = NumberText::typedNumber(*m_box);
        const bool isInRange = number && m_box->minimum() <= *number && *number <= m_box->maximum();
        return isInRange ? Entry::Number : Entry::NoNumber;
    }

    bool commit() override
    {
        const std::optional<Number> number = NumberText::typedNumber(*m_box);
        return isAnnouncedBy([&] {
            if (number && m_own)
                m_own->setValue(*number);
            else if (number)
                m_box->setValue(*number);
        });
    }

    void restore() override { m_box->Base::setValue(m_box->value()); }
    bool commitsOnLeaving() const override { return !m_own || m_own->validateTyping(); }
    int numberStart() const override { return int(m_box->prefix().size()); }
    int numberEnd() const override { return int(m_box->text().size() - m_box->suffix().size()); }
    int base() const override { return baseOf(*m_box); }
    bool hasExponent() const override { return std::is_floating_point_v<Number>; }
    QString minimumText() const override { return withAffixes(m_box->minimum()); }
    QString maximumText() const override { return withAffixes(m_box->maximum()); }

    void whenChanged(QObject *context, const std::function<void()> &slot) const override
    {
        QObject::connect(m_box, QOverload<Number>::of(&Base::valueChanged), context, slot);
    }

private:
    QString withAffixes(Number number) const { return m_box->prefix() + numberText(*m_box, number) + m_box->suffix(); }

    Base *const m_box;
    Own *const m_own; ///< null for a box of Qt
};

} // namespace

bool GuardedField::isAnnouncedBy(const std::function<void()> &commit) const
{
    bool isAnnounced = false;
    QObject context;
    whenChanged(&context, [&isAnnounced] { isAnnounced = true; });
    commit();
    return isAnnounced;
}

std::unique_ptr<GuardedField> makeGuardedField(QAbstractSpinBox *box)
{
    if (auto *const integers = qobject_cast<QSpinBox *>(box))
        return std::make_unique<SpinBoxField<QSpinBox, QtOrvSpinBoxVal, int>>(integers);
    if (auto *const doubles = qobject_cast<QDoubleSpinBox *>(box))
        return std::make_unique<SpinBoxField<QDoubleSpinBox, QtOrvDoubleSpinBoxVal, double>>(doubles);
    auto *const wide = qobject_cast<QtOrvSpinBoxVal64 *>(box);
    return wide ? makeGuardedField(wide) : nullptr;
}
