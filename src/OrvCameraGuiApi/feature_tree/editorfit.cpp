#include <OrvCameraGuiApi/feature_tree/editorfit.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>

#include <algorithm>
#include <cmath>

namespace {

/** Sets what differs, and nothing else: a box shows its value anew with everything that is set. */
template <typename Editor>
class Fit
{
public:
    Fit(Editor &editor, const Editor &fresh)
        : m_editor(editor)
        , m_fresh(fresh)
    {
    }

    template <typename Getter, typename Setter>
    void take(Getter getter, Setter setter)
    {
        const auto wanted = (m_fresh.*getter)();
        if ((m_editor.*getter)() == wanted)
            return;
        (m_editor.*setter)(wanted);
        m_isChanged = true;
    }

    void takeRange()
    {
        const auto minimum = m_fresh.minimum();
        const auto maximum = m_fresh.maximum();
        const bool isSame = !(m_editor.minimum() < minimum) && !(minimum < m_editor.minimum())
            && !(m_editor.maximum() < maximum) && !(maximum < m_editor.maximum());
        if (isSame)
            return;
        m_editor.setRange(minimum, maximum);
        m_isChanged = true;
    }

    EditorFit result() const { return m_isChanged ? EditorFit::Changed : EditorFit::Same; }

private:
    Editor &m_editor;
    const Editor &m_fresh;
    bool m_isChanged = false;
};

EditorFit fit(QtOrvSpinBoxVal64 &box, const QtOrvSpinBoxVal64 &fresh)
{
    Fit<QtOrvSpinBoxVal64> fit(box, fresh);
    fit.take(&QtOrvSpinBoxVal64::displayIntegerBase, &QtOrvSpinBoxVal64::setDisplayIntegerBase);
    fit.take(&QtOrvSpinBoxVal64::singleStep, &QtOrvSpinBoxVal64::setSingleStep);
    fit.take(&QtOrvSpinBoxVal64::validateStepping, &QtOrvSpinBoxVal64::setValidateStepping);
    fit.takeRange();
    return fit.result();
}

EditorFit fit(QDoubleSpinBox &box, const QDoubleSpinBox &fresh)
{
    Fit<QDoubleSpinBox> fit(box, fresh);
    fit.take(&QDoubleSpinBox::decimals, &QDoubleSpinBox::setDecimals); // before the range, which is rounded to them
    fit.take(&QDoubleSpinBox::singleStep, &QDoubleSpinBox::setSingleStep);
    fit.take(&QDoubleSpinBox::suffix, &QDoubleSpinBox::setSuffix);
    fit.takeRange();
    return fit.result();
}

bool hasSameItems(const QComboBox &a, const QComboBox &b)
{
    bool isSame = a.count() == b.count();
    for (int i = 0; isSame && i < a.count(); ++i)
        isSame = a.itemText(i) == b.itemText(i) && a.itemData(i) == b.itemData(i);
    return isSame;
}

EditorFit fit(QComboBox &box, const QComboBox &fresh)
{
    if (hasSameItems(box, fresh))
        return EditorFit::Same;
    box.clear();
    for (int i = 0; i < fresh.count(); ++i)
        box.addItem(fresh.itemText(i), fresh.itemData(i));
    box.setCurrentIndex(-1); // the first entry need not be the feature's
    return EditorFit::Changed;
}

template <typename Editor>
bool fitAs(QWidget *editor, const QWidget *fresh, EditorFit &result)
{
    auto *const known = qobject_cast<Editor *>(editor);
    const auto *const wanted = qobject_cast<const Editor *>(fresh);
    if (known && wanted)
        result = fit(*known, *wanted);
    return known && wanted;
}

/** As many as \a step needs, within what a double can tell apart. */
int decimalsFor(double step, int decimals)
{
    constexpr int most = 15;
    const auto isExact = [step](int count) {
        const double scaled = step * std::pow(10, count);
        return std::abs(scaled - std::round(scaled)) <= 1e-6 * std::max(1., std::abs(scaled));
    };
    for (int count = decimals; count <= most; ++count) {
        if (isExact(count) && step * std::pow(10, count) > 0.5)
            return count;
    }
    return decimals;
}

/** Nothing where so many digits are no help any more. */
void roundInwards(QDoubleSpinBox &box, double minimum, double maximum)
{
    const double unit = std::pow(10, box.decimals());
    const double low = std::ceil(minimum * unit - 1e-6) / unit;
    const double high = std::floor(maximum * unit + 1e-6) / unit;
    constexpr double largest = 1e15; // beyond that every double is a whole number of units
    if (std::isfinite(low) && std::abs(minimum * unit) < largest && low <= box.maximum())
        box.setMinimum(low);
    if (std::isfinite(high) && std::abs(maximum * unit) < largest && high >= box.minimum())
        box.setMaximum(high);
}

void refine(QDoubleSpinBox &box, GenApi::IFloat &number)
{
    if (number.HasInc() && number.GetInc() > 0)
        box.setDecimals(decimalsFor(number.GetInc(), box.decimals()));
    if (number.HasInc() && number.GetInc() > 0)
        box.setSingleStep(number.GetInc());
    roundInwards(box, number.GetMin(), number.GetMax());
}

} // namespace

EditorFit fitEditor(QWidget *editor, const QWidget *fresh)
{
    EditorFit result = EditorFit::Same;
    if (!editor || !fresh || fitAs<QtOrvSpinBoxVal64>(editor, fresh, result)
        || fitAs<QDoubleSpinBox>(editor, fresh, result) || fitAs<QComboBox>(editor, fresh, result))
        return result;
    return editor->metaObject() == fresh->metaObject() ? EditorFit::Same : EditorFit::OtherClass;
}

void refineEditor(QWidget *editor, GenApi::IValue *feature)
{
    auto *const box = qobject_cast<QDoubleSpinBox *>(editor);
    auto *const edit = qobject_cast<QLineEdit *>(editor);
    if (!feature || (!box && !edit))
        return;
    failureOf([&] {
        if (box)
            refine(*box, *GenApi::CFloatPtr(feature));
        else
            edit->setReadOnly(nodeOf(feature)->GetPrincipalInterfaceType() == GenApi::intfIRegister);
    });
}

void includeValue(QWidget *editor, const QVariant &value)
{
    if (auto *const whole = qobject_cast<QtOrvSpinBoxVal64 *>(editor);
        whole && value.userType() == QMetaType::LongLong) {
        const qint64 number = value.toLongLong();
        if (number < whole->minimum() || number > whole->maximum())
            whole->setRange(std::min<qint64>(number, whole->minimum()), std::max<qint64>(number, whole->maximum()));
    }
    if (auto *const box = qobject_cast<QDoubleSpinBox *>(editor); box && value.userType() == QMetaType::Double) {
        const double number = value.toDouble();
        const double half = 0.5 * std::pow(10, -box->decimals()); // what the box rounds away
        if (number < box->minimum() - half)
            box->setMinimum(number);
        else if (number > box->maximum() + half)
            box->setMaximum(number);
    }
}

bool canRead(GenApi::IValue *feature)
{
    bool can = true;
    failureOf([&] { can = !feature || isReadable(feature->GetAccessMode()); });
    return can;
}
