#include <OrvCameraGuiApi/feature_tree/editorfit.h>

#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QComboBox>
#include <QDoubleSpinBox>

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

} // namespace

EditorFit fitEditor(QWidget *editor, const QWidget *fresh)
{
    EditorFit result = EditorFit::Same;
    if (!editor || !fresh || fitAs<QtOrvSpinBoxVal64>(editor, fresh, result)
        || fitAs<QDoubleSpinBox>(editor, fresh, result) || fitAs<QComboBox>(editor, fresh, result))
        return result;
    return editor->metaObject() == fresh->metaObject() ? EditorFit::Same : EditorFit::OtherClass;
}
