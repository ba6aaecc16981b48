// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/namedcombobox.h>

#include <OrvCameraGuiApi/widgets/accessiblefactory.h>
#include <OrvCameraGuiApi/widgets/accessibletext.h>

#include <QAbstractItemView>
#include <QAccessibleWidget>

namespace {

class ComboBoxAccessible : public QAccessibleWidget, public ShownText
{
public:
    explicit ComboBoxAccessible(NamedComboBox *box)
        : QAccessibleWidget(box, QAccessible::ComboBox)
        , ShownText(box)
        , m_box(box)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    int childCount() const override { return 1; }
    QAccessibleInterface *child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(m_box->view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *child) const override
    {
        return child && child->object() == m_box->view() ? 0 : -1;
    }

    QString shownText() const override { return m_box->currentText(); }
    using ShownText::text;
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? shownText() : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        return state;
    }

    QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString &action) override
    {
        if (action != showMenuAction() && action != pressAction())
            return;
        if (m_box->view()->isVisible())
            m_box->hidePopup();
        else
            m_box->showPopup();
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    NamedComboBox *const m_box;
};

QAccessibleInterface *makeInterface(const QString &, QObject *object)
{
    auto *const box = qobject_cast<NamedComboBox *>(object);
    return box ? new ComboBoxAccessible(box) : nullptr;
}

} // namespace

NamedComboBox::NamedComboBox(QWidget *parent)
    : QComboBox(parent)
{
    static const AccessibleFactory factory(makeInterface);
    factory.install();
}
