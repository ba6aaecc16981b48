// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/controlbinding.h>

#include <OrvCameraGuiApi/camconfig/controlwatch.h>
#include <OrvCameraGuiApi/camconfig/parameters.h>
#include <OrvCameraGuiApi/widgets/integers.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QMetaMethod>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QThread>
#include <QTimer>
#include <QVector>

#include <algorithm>
#include <optional>
#include <utility>

namespace {

using namespace OrvGui;
using Kind = OrvCamConfigMapData::Kind;

const int entryIndexRole = Qt::UserRole + 0x4f52; ///< of the items of a combo box: the entry they stand for

/** Tells two signals for one action of the user from two actions: both signals together are one entry. */
class OneEntry
{
public:
    /** The second signal is still to come, if at all, before the event loop runs. */
    void begin(QObject *context) const
    {
        *m_begun = true;
        endSoon(context, m_begun, QThread::currentThread()->loopLevel());
    }
    bool isSecondSignal() const { return std::exchange(*m_begun, false); }

private:
    /** An event loop that a slot runs between the two signals does not end it. */
    static void endSoon(QObject *context, const std::shared_ptr<bool> &begun, int level)
    {
        const bool isNested = QThread::currentThread()->loopLevel() > level;
        QTimer::singleShot(isNested ? 20 : 0, context, [=] {
            if (QThread::currentThread()->loopLevel() > level)
                endSoon(context, begun, level);
            else
                *begun = false;
        });
    }

    const std::shared_ptr<bool> m_begun = std::make_shared<bool>(false);
};

class ComboBoxBinding : public ControlBinding
{
public:
    using ControlBinding::ControlBinding;

    void fill(OrvGenParam::Param *param) override
    {
        auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param);
        box()->clear();
        const int entries = choice->GetEnumEntriesCount(nullptr);
        for (int i = 0; i < entries; ++i) {
            if (OrvGenParam::EnumEntry *const entry = choice->GetEnumEntryByIndex(i, nullptr)) {
                box()->addItem(nameOf(entry));
                box()->setItemData(box()->count() - 1, i, entryIndexRole);
            }
        }
    }

    void refresh(OrvGenParam::Param *param, std::int64_t) override
    {
        auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param);
        QComboBox *const comboBox = box();
        auto *const model = comboBox ? qobject_cast<QStandardItemModel *>(comboBox->model()) : nullptr;
        if (!choice || !model || comboBox->count() == 0)
            return;
        for (int i = 0; i < comboBox->count(); ++i) {
            const QVariant index = comboBox->itemData(i, entryIndexRole);
            OrvGenParam::EnumEntry *const entry =
                choice->GetEnumEntryByIndex(index.isValid() ? index.toInt() : i, nullptr);
            model->item(i, comboBox->modelColumn())->setEnabled(entry && entry->IsAvailable());
        }
        // A value that is not in the list shows as nothing, and in the tool tip.
        const int index = comboBox->findText(QString::fromUtf8(choice->GetValueStr(nullptr)));
        noteValue(comboBox, index < 0 ? valueInWords(choice) : QString());
        comboBox->setCurrentIndex(index);
    }

    void connectEntries(OrvGenParam::Param *param, const Enter &enter) override
    {
        const auto choose = [=, choice = dynamic_cast<OrvGenParam::Enum *>(param), comboBox = box()](int index) {
            const QByteArray text = comboBox->itemText(index).toUtf8();
            enter({choice, comboBox, [=] { return differs(choice, text); },
                   [=] { return choice->SetValueStr(text.constData()); }});
        };
        QObject *const context = newContext();
        const OneEntry oneEntry;
        QObject::connect(box(), QOverload<int>::of(&QComboBox::currentIndexChanged), context, [=](int index) {
            oneEntry.begin(context);
            if (index >= 0)
                choose(index);
        });
        // Comes alone when the item is chosen that the box shows already.
        QObject::connect(box(), QOverload<int>::of(&QComboBox::activated), context, [=](int index) {
            if (!oneEntry.isSecondSignal())
                choose(index);
        });
    }

private:
    QComboBox *box() const { return qobject_cast<QComboBox *>(record().control); }
};

class RadioButtonsBinding : public ControlBinding
{
public:
    using ControlBinding::ControlBinding;

    QObject *control() const override { return group(); }

    QWidgetList marked() const override
    {
        const QList<QAbstractButton *> buttons = group()->buttons();
        return QWidgetList(buttons.begin(), buttons.end());
    }

    void fill(OrvGenParam::Param *param) override
    {
        auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param);
        const QList<QAbstractButton *> buttons = group()->buttons();
        const int entries = choice->GetEnumEntriesCount(nullptr);
        m_meanings.clear();
        for (int i = 0; i < buttons.size(); ++i)
            setMeaning(buttons.at(i), i < entries ? choice->GetEnumEntryByIndex(i, nullptr) : nullptr);
    }

    void refresh(OrvGenParam::Param *param, std::int64_t) override
    {
        auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param);
        if (!choice || !group())
            return;
        QAbstractButton *const button = buttonOf(choice->GetValue(nullptr));
        const QString unseen = button ? QString() : valueInWords(choice);
        const QWidgetList buttons = marked();
        for (QWidget *const other : buttons)
            noteValue(other, unseen);
        if (button)
            button->setChecked(true);
        else
            uncheckAll();
        setEnabled(choice, isUsable(choice));
    }

    void connectEntries(OrvGenParam::Param *param, const Enter &enter) override
    {
        QHash<const QAbstractButton *, std::int64_t> values;
        const QList<QAbstractButton *> buttons = group()->buttons();
        for (QAbstractButton *const button : buttons)
            values.insert(button, valueOf(button).value_or(group()->id(button)));
        const auto choose = [=, choice = dynamic_cast<OrvGenParam::Enum *>(param)](QAbstractButton *button) {
            const std::int64_t value = values.value(button, button->group() ? button->group()->id(button) : -1);
            enter({choice, button, [=] { return differs(choice, value); }, [=] { return choice->SetValue(value); }});
        };
        QObject *const context = newContext();
        const OneEntry oneEntry;
        const auto toggled = QOverload<QAbstractButton *, bool>::of(&QButtonGroup::buttonToggled);
        QObject::connect(group(), toggled, context, [=](QAbstractButton *button, bool checked) {
            if (!checked)
                return;
            oneEntry.begin(context);
            choose(button);
        });
        // Comes alone when the button is chosen that is checked already.
        QObject::connect(group(), QOverload<QAbstractButton *>::of(&QButtonGroup::buttonClicked), context,
                         [=](QAbstractButton *button) {
                             if (!oneEntry.isSecondSignal() && button->isChecked())
                                 choose(button);
                         });
    }

    /** A button is enabled only while its entry can be chosen. */
    void setEnabled(OrvGenParam::Param *param, bool isEnabled) override
    {
        if (!group())
            return;
        const QWidgetList buttons = marked();
        for (QWidget *const button : buttons)
            button->setEnabled(isEnabled);
        auto *const choice = isEnabled ? dynamic_cast<OrvGenParam::Enum *>(param) : nullptr;
        const int entries = choice ? choice->GetEnumEntriesCount(nullptr) : 0;
        for (int i = 0; i < entries; ++i) {
            OrvGenParam::EnumEntry *const entry = choice->GetEnumEntryByIndex(i, nullptr);
            QAbstractButton *const button = entry ? buttonOf(entry->GetValue(nullptr)) : nullptr;
            if (button)
                button->setEnabled(entry->IsAvailable());
        }
    }

private:
    /** The entry of a button. A button's id cannot tell its value: an id cannot be -1, nor wider than an int. */
    struct Meaning
    {
        const QAbstractButton *button;
        std::optional<std::int64_t> value; ///< none: the button is left over, and hidden
    };

    QButtonGroup *group() const { return static_cast<QButtonGroup *>(record().extra); }

    void setMeaning(QAbstractButton *button, OrvGenParam::EnumEntry *entry)
    {
        button->setVisible(entry != nullptr);
        m_meanings.append({button, std::nullopt});
        if (!entry)
            return;
        const std::int64_t value = entry->GetValue(nullptr);
        m_meanings.last().value = value;
        button->setText(nameOf(entry));
        OrvCamConfigMapper::nameButton(button);
        if (value == Integers::clampedToInt(value))
            group()->setId(button, int(value));
    }

    /** By its id where the buttons have been named by somebody else. */
    std::optional<std::int64_t> valueOf(QAbstractButton *button) const
    {
        const auto found = std::find_if(m_meanings.begin(), m_meanings.end(),
                                        [=](const Meaning &meaning) { return meaning.button == button; });
        return found == m_meanings.end() ? group()->id(button) : found->value;
    }

    QAbstractButton *buttonOf(std::int64_t value) const
    {
        const QList<QAbstractButton *> buttons = group()->buttons();
        const auto found = std::find_if(buttons.begin(), buttons.end(),
                                        [&](QAbstractButton *button) { return valueOf(button) == value; });
        return found == buttons.end() ? nullptr : *found;
    }

    void uncheckAll() const
    {
        const bool isExclusive = group()->exclusive();
        group()->setExclusive(false);
        if (QAbstractButton *const button = group()->checkedButton())
            button->setChecked(false);
        group()->setExclusive(isExclusive);
    }

    QVector<Meaning> m_meanings;
};

class TabWidgetBinding : public ControlBinding
{
public:
    using ControlBinding::ControlBinding;

    void fill(OrvGenParam::Param *param) override
    {
        auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param);
        QTabWidget *const tabWidget = tabs();
        const int count = tabWidget->count();
        const int entries = choice->GetEnumEntriesCount(nullptr);
        // Intentionally passes over the tab that moves up: every other surplus tab goes, the rest stay as they are.
        for (int i = entries; i < count; ++i) {
            if (QWidget *const page = tabWidget->widget(i)) {
                page->hide();
                tabWidget->removeTab(i);
            }
        }
        m_places.clear();
        for (int i = 0; i < std::min(count, entries); ++i) {
            OrvGenParam::EnumEntry *const entry = choice->GetEnumEntryByIndex(i, nullptr);
            tabWidget->setTabVisible(i, entry != nullptr);
            tabWidget->setTabEnabled(i, entry != nullptr);
            if (entry) {
                tabWidget->setTabText(i, nameOf(entry));
                m_places.insert(nameOf(entry), i);
            }
        }
    }

    void refresh(OrvGenParam::Param *param, std::int64_t) override
    {
        auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param);
        const QPointer<QTabWidget> tabWidget(tabs());
        if (!choice || !tabWidget)
            return;
        const int count = std::min(tabWidget->count(), choice->GetEnumEntriesCount(nullptr));
        const QString shown = QString::fromUtf8(choice->GetValueStr(nullptr));
        const int current = m_places.value(shown, 0);
        const QString unseen = m_places.contains(shown) ? QString() : valueInWords(choice);
        tabWidget->setTabToolTip(current, unseen.isEmpty() ? QString() : ControlWatch::valueText(unseen));
        tabWidget->setCurrentIndex(current);
        for (int i = 0; tabWidget && i < count; ++i) {
            OrvGenParam::EnumEntry *const entry = choice->GetEnumEntryByIndex(i, nullptr);
            const int place = entry ? m_places.value(nameOf(entry), -1) : -1;
            if (place >= 0)
                tabWidget->setTabEnabled(place, entry->IsAvailable());
            else if (!entry)
                tabWidget->setTabEnabled(i, false); // a hidden tab would be reached by the cursor keys
        }
    }

    void connectEntries(OrvGenParam::Param *param, const Enter &enter) override
    {
        auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param);
        QObject::connect(tabs(), &QTabWidget::currentChanged, newContext(), [=, tabWidget = tabs()](int index) {
            if (index < 0)
                return;
            const QByteArray text = tabWidget->tabText(index).toUtf8();
            enter({choice, tabWidget, [=] { return differs(choice, text); },
                   [=] { return choice->SetValueStr(text.constData()); }});
        });
    }

private:
    QTabWidget *tabs() const { return qobject_cast<QTabWidget *>(record().control); }

    QHash<QString, int> m_places; ///< from an entry's symbolic name to its tab
};

/** A button that is on or off. An enumeration is written as 1 or 0. */
template <typename Param, typename Button>
class ToggleBinding : public ControlBinding
{
public:
    using ControlBinding::ControlBinding;

    void refresh(OrvGenParam::Param *param, std::int64_t) override
    {
        auto *const truth = dynamic_cast<Param *>(param);
        if (truth && button())
            button()->setChecked(truth->GetValue(nullptr) != 0);
    }

    void connectEntries(OrvGenParam::Param *param, const Enter &enter) override
    {
        const auto set = [=, truth = dynamic_cast<Param *>(param), toggle = button()](bool checked) {
            enter({truth, toggle, [=] { return differs(truth, checked); }, [=] { return truth->SetValue(checked); }});
        };
        QObject *const context = newContext();
        const OneEntry oneEntry;
        // The program's setChecked() makes no click.
        QObject::connect(button(), &QAbstractButton::toggled, context, [=](bool checked) {
            oneEntry.begin(context);
            set(checked);
        });
        QObject::connect(button(), &QAbstractButton::clicked, context, [=](bool checked) {
            if (!oneEntry.isSecondSignal())
                set(checked);
        });
    }

private:
    Button *button() const { return qobject_cast<Button *>(record().control); }
};

} // namespace

namespace OrvGui {

std::shared_ptr<ControlBinding> ControlBinding::make(const OrvCamConfigMapData &record)
{
    switch (record.type) {
    case Kind::ComboBox:
        return std::make_shared<ComboBoxBinding>(record);
    case Kind::CheckBox:
        return std::make_shared<ToggleBinding<OrvGenParam::Enum, QCheckBox>>(record);
    case Kind::RadioButtons:
        return std::make_shared<RadioButtonsBinding>(record);
    case Kind::TabWidget:
        return std::make_shared<TabWidgetBinding>(record);
    case Kind::BooleanButton:
        return std::make_shared<ToggleBinding<OrvGenParam::Boolean, QAbstractButton>>(record);
    default:
        break;
    }
    const auto ofInteger = makeIntBinding(record);
    return ofInteger ? ofInteger : std::make_shared<ControlBinding>(record);
}

ControlBinding::ControlBinding(const OrvCamConfigMapData &record)
    : m_record(record)
{
}

ControlBinding::~ControlBinding() = default;

QObject *ControlBinding::control() const
{
    return m_record.control;
}

QWidgetList ControlBinding::marked() const
{
    return {m_record.control};
}

void ControlBinding::setEnabled(OrvGenParam::Param *, bool isEnabled)
{
    if (m_record.control)
        m_record.control->setEnabled(isEnabled);
}

QString ControlBinding::cameraText(OrvGenParam::Param *param, const QWidget *control) const
{
    OrvCamErr err = OrvCamErr_Ok;
    QString text;
    if (!param->IsReadable())
        return text;
    if (auto *const number = dynamic_cast<OrvGenParam::Int *>(param))
        text = ControlWatch::numberText(toControl(number->GetValue(&err), number), control);
    else if (auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param))
        text = QString::fromUtf8(choice->GetValueStr(&err));
    else if (auto *const truth = dynamic_cast<OrvGenParam::Boolean *>(param))
        text = truth->GetValue(&err) ? OrvGui::OrvCamConfigMapper::tr("on") : OrvGui::OrvCamConfigMapper::tr("off");
    return err == OrvCamErr_Ok ? text : QString();
}

QObject *ControlBinding::newContext()
{
    m_context.reset(new QObject);
    return m_context.data();
}

void ControlBinding::clearMarks() const
{
    if (!control())
        return;
    const QWidgetList widgets = marked();
    for (QWidget *const widget : widgets) {
        if (ControlWatch *const watch = ControlWatch::of(widget))
            watch->clear();
    }
}

/** A group is disconnected before its buttons are disabled, any other control after that. */
void ControlBinding::detach()
{
    clearMarks();
    const bool isGroup = m_record.type == Kind::RadioButtons;
    if (isGroup)
        disconnectOwnSignals();
    setEnabled(nullptr, false);
    if (!isGroup)
        disconnectOwnSignals();
}

/** Only the control's own signals are entries; those of QObject and QWidget stay connected. */
void ControlBinding::disconnectOwnSignals() const
{
    QObject *const sender = control();
    if (!sender)
        return;
    const QMetaObject *const meta = sender->metaObject();
    const QMetaObject &base = sender->isWidgetType() ? QWidget::staticMetaObject : QObject::staticMetaObject;
    for (int i = base.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            QObject::disconnect(sender, meta->method(i), nullptr, QMetaMethod());
    }
}

void noteValue(const QWidget *control, const QString &value)
{
    ControlWatch *const watch = ControlWatch::of(control);
    if (!watch)
        return;
    watch->clear();
    if (!value.isEmpty())
        watch->note(ControlWatch::valueText(value));
}

} // namespace OrvGui
