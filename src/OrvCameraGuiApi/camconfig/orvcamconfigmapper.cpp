#include <OrvCameraGuiApi/camconfig/orvcamconfigmapper.h>

#include <OrvCameraGuiApi/camconfig/errortexts.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaMethod>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStandardItemModel>
#include <QTabWidget>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

using Kind = OrvGui::OrvCamConfigMapData::Kind;

const char *const entryValueProperty = "orvEntryValue";
const char *const groupNameProperty = "accessibleName";

QString nameOf(OrvGenParam::Param *param)
{
    return QString::fromUtf8(param->GetName());
}

QString nameOf(OrvGenParam::EnumEntry *entry)
{
    return QString::fromUtf8(entry->GetValueStr(nullptr));
}

bool isUsable(OrvGenParam::Param *param)
{
    return param->IsAvailable() && param->IsWritable();
}

int toInt(std::int64_t value)
{
    using Limits = std::numeric_limits<int>;
    return int(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

/** The control's own signals; those of QObject and QWidget are nobody's entry. */
void disconnectOwnSignals(QObject *control)
{
    const QMetaObject *const meta = control->metaObject();
    const QMetaObject &base = control->isWidgetType() ? QWidget::staticMetaObject : QObject::staticMetaObject;
    for (int i = base.methodCount(); i < meta->methodCount(); ++i) {
        if (meta->method(i).methodType() == QMetaMethod::Signal)
            QObject::disconnect(control, meta->method(i), nullptr, QMetaMethod());
    }
}

template <typename Control>
void showValue(Control *control, int value)
{
    control->setValue(value);
}

/** What the camera says is shown as it is: only entries are moved to a step. */
void showUnmoved(QtOrvSpinBoxVal *field, int value)
{
    field->QSpinBox::setValue(value);
}

void showUnmoved(QtOrvSpinBoxVal64 *field, int value)
{
    const bool moves = field->validateStepping();
    field->setValidateStepping(false);
    field->setValue(value);
    field->setValidateStepping(moves);
}

/**
 * A composite's own setValue() goes by the positions of its slider, and the camera's value may lie between them: a
 * converted one mostly does. What shows already is left alone, and with it what is being typed.
 */
template <typename Composite>
void showInComposite(Composite *composite, int value)
{
    if (composite->value() != value)
        showUnmoved(composite->spinBox(), value);
}

void showValue(QtOrvSpinBox *spinBox, int value)
{
    showInComposite(spinBox, value);
}

void showValue(QtOrvSliderSpinBox *spinBox, int value)
{
    showInComposite(spinBox, value);
}

QButtonGroup *groupOf(const OrvGui::OrvCamConfigMapData &record)
{
    return record.type == Kind::RadioButtons ? static_cast<QButtonGroup *>(record.extra) : nullptr;
}

/** The value that a button stands for, which its id need not tell: that cannot be -1, nor wider than an int. */
std::int64_t valueOf(QButtonGroup *group, QAbstractButton *button)
{
    const QVariant value = button->property(entryValueProperty);
    return value.isValid() ? value.toLongLong() : group->id(button);
}

/** Whether a button has no entry: its id is one of before. */
bool isLeftOver(QAbstractButton *button)
{
    return button->property(entryValueProperty).userType() == QMetaType::QString;
}

QAbstractButton *buttonOf(QButtonGroup *group, std::int64_t value)
{
    const QList<QAbstractButton *> buttons = group->buttons();
    const auto stands = [&](QAbstractButton *button) { return !isLeftOver(button) && valueOf(group, button) == value; };
    const auto found = std::find_if(buttons.begin(), buttons.end(), stands);
    return found == buttons.end() ? nullptr : *found;
}

void enableButtons(OrvGenParam::Enum *param, QButtonGroup *group, bool enabled)
{
    const QList<QAbstractButton *> buttons = group->buttons();
    for (QAbstractButton *const button : buttons)
        button->setEnabled(enabled);
    const int entries = param && enabled ? param->GetEnumEntriesCount(nullptr) : 0;
    for (int i = 0; i < entries; ++i) {
        OrvGenParam::EnumEntry *const entry = param->GetEnumEntryByIndex(i, nullptr);
        QAbstractButton *const button = entry ? buttonOf(group, entry->GetValue(nullptr)) : nullptr;
        if (button)
            button->setEnabled(entry->IsAvailable());
    }
}

/** A message on the screen. It can be answered whatever becomes of its parent, which a lost camera disables. */
class ErrorBox : public QMessageBox
{
public:
    ErrorBox(const QString &text, QWidget *parent)
        : QMessageBox(QMessageBox::Critical, QString(), text, QMessageBox::Ok, parent)
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setTextFormat(Qt::PlainText);
        setDefaultButton(QMessageBox::Ok);
        setModal(true);
    }

    static bool isShown(const QString &text, const QWidget *parent)
    {
        const auto boxes = parent ? parent->findChildren<QMessageBox *>(QString(), Qt::FindDirectChildrenOnly)
                                  : QList<QMessageBox *>();
        return std::any_of(boxes.begin(), boxes.end(),
                           [&](QMessageBox *box) { return box->isVisible() && box->text() == text; });
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QMessageBox::changeEvent(event);
        if (event->type() == QEvent::EnabledChange && !isEnabled())
            setEnabled(true);
    }
};

void showError(OrvCamErr err, QWidget *parent, const QString &name)
{
    if (err == OrvCamErr_Ok)
        return;
    const QString text = OrvGui::OrvCamConfigMapper::tr("Error while working with '%1' parameter!\r\nDescription: %2")
                             .arg(name, OrvGui::OrvCamConfigMapper::tr(orvCamErrDescription(err)));
    if (ErrorBox::isShown(text, parent))
        return;
    // A pop-up would keep mouse and keys from the box.
    if (QWidget *const popup = QApplication::activePopupWidget())
        popup->close();
    (new ErrorBox(text, parent))->show();
}

/** What is left of a field that is as large as it wants to be when its caption is taken away. */
QSize fieldSize(const QtOrvSpinBox *spinBox)
{
    QSize size = spinBox->sizeHint();
    if (!size.isValid())
        size = spinBox->geometry().size();
    const QLabel *const label = spinBox->leftLabel();
    return label && !label->isHidden() ? size - QSize(label->width(), 0) : size;
}

} // namespace

namespace OrvGui {

bool OrvCamConfigMapData::operator==(const OrvCamConfigMapData &other) const
{
    return type == other.type && control == other.control && extra == other.extra;
}

/** While one lives, what happens in controls is not written. It may outlive the mapper. */
class OrvCamConfigMapper::RefreshGuard
{
public:
    explicit RefreshGuard(const OrvCamConfigMapper *mapper)
        : m_refreshing(mapper->m_refreshing)
    {
        ++*m_refreshing;
    }
    ~RefreshGuard() { --*m_refreshing; }
    Q_DISABLE_COPY(RefreshGuard)

private:
    const std::shared_ptr<int> m_refreshing;
};

/** An integer feature as a widget shows it. */
struct OrvCamConfigMapper::IntView
{
    int minimum;
    int maximum;
    int step;
    int value;
};

OrvCamConfigMapper::OrvCamConfigMapper(std::int64_t upperClamp)
    : m_upperClamp(upperClamp)
    , m_refreshing(std::make_shared<int>(0))
{
}

OrvCamConfigMapper::~OrvCamConfigMapper() = default;

/*
 * What all bindings begin with. The parameter tells about its changes again when the binding is complete: a
 * notification that comes meanwhile would find half of it.
 */
bool OrvCamConfigMapper::prepare(OrvGenParam::Param *param, const OrvCamConfigMapData &record)
{
    QButtonGroup *const group = groupOf(record);
    if (!group && !record.control)
        return false;
    if (!param) {
        setEnabled(record, nullptr, false);
        return false;
    }
    param->UnregisterEvent(this);
    disconnectOwnSignals(group ? static_cast<QObject *>(group) : record.control.data());
    setEnabled(record, param, isUsable(param));
    const QString name = nameOf(param);
    const Records former = std::exchange(m_bindings[name], Records{record});
    // The same control bound again stays as it has just become.
    if (!former.isEmpty() && !(former.first().control == record.control && groupOf(former.first()) == group))
        unmapControl(former.first());
    return true;
}

void OrvCamConfigMapper::registerAt(OrvGenParam::Param *param)
{
    OrvGenParam::Param *&registered = m_params[nameOf(param)];
    if (registered && registered != param)
        registered->UnregisterEvent(this);
    registered = param;
    param->RegisterEvent(this);
}

/*
 * What the user did. While the camera is told, anything may happen: it may report, and what hangs on that may unbind
 * the parameter or destroy the control and the mapper. A message needs none of them but the control.
 */
template <typename Write>
void OrvCamConfigMapper::write(OrvGenParam::Param *param, QWidget *control, Write write) const
{
    if (isRefreshing() || !param->IsWritable())
        return;
    const QString name = nameOf(param);
    const QPointer<QWidget> parent(control);
    const OrvCamErr err = write();
    if (parent)
        showError(err, parent, name);
}

int OrvCamConfigMapper::mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox)
{
    return mapIntParam(param, spinBox, QVector<QWidget *>());
}

int OrvCamConfigMapper::mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox,
                                    const QVector<QWidget *> &companions)
{
    const RefreshGuard guard(this);
    const bool isBound = prepare(param, {Kind::SpinBox, spinBox, nullptr});
    for (QWidget *const companion : companions) {
        const OrvCamConfigMapData record{Kind::Companion, companion, nullptr};
        setEnabled(record, param, param && isUsable(param));
        if (isBound)
            m_bindings[nameOf(param)].append(record);
    }
    if (!isBound)
        return 0;
    spinBox->setValidate(true);
    spinBox->setValidateTyping(false);
    updateSpinBox(param, spinBox);
    QObject::connect(spinBox, QOverload<int>::of(&QtOrvSpinBox::valueChanged), &m_context,
                     [=](int value) { write(param, spinBox, [=] { return param->SetValue(value); }); });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapIntParam(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                                    IOrvCamConfigIntConverter *converter)
{
    const RefreshGuard guard(this);
    if (!prepare(param, {Kind::SliderSpinBox, spinBox, converter}))
        return 0;
    spinBox->setValidate(true);
    spinBox->setValidateTyping(false);
    updateSliderSpinBox(param, spinBox, converter);
    QObject::connect(spinBox, QOverload<int>::of(&QtOrvSliderSpinBox::valueChanged), &m_context, [=](int value) {
        write(param, spinBox, [=] { return param->SetValue(converter ? converter->ToDevice(value, param) : value); });
    });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QComboBox *comboBox)
{
    const RefreshGuard guard(this);
    if (!prepare(param, {Kind::ComboBox, comboBox, nullptr}))
        return 0;
    comboBox->clear();
    const int entries = param->GetEnumEntriesCount(nullptr);
    for (int i = 0; i < entries; ++i) {
        if (OrvGenParam::EnumEntry *const entry = param->GetEnumEntryByIndex(i, nullptr))
            comboBox->addItem(nameOf(entry), i);
    }
    updateComboBox(param, comboBox);
    QObject::connect(comboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), &m_context, [=](int index) {
        if (index >= 0)
            write(param, comboBox, [=] { return param->SetValueStr(comboBox->itemText(index).toUtf8().constData()); });
    });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QButtonGroup *group)
{
    const RefreshGuard guard(this);
    if (!group || group->buttons().isEmpty() || !prepare(param, {Kind::RadioButtons, nullptr, group}))
        return 0;
    nameRadioButtons(param, group);
    updateRadioButtons(param, group);
    const auto toggled = QOverload<QAbstractButton *, bool>::of(&QButtonGroup::buttonToggled);
    QObject::connect(group, toggled, &m_context, [=](QAbstractButton *button, bool checked) {
        if (checked)
            write(param, button, [=] { return param->SetValue(valueOf(group, button)); });
    });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QTabWidget *tabWidget)
{
    const RefreshGuard guard(this);
    if (!prepare(param, {Kind::TabWidget, tabWidget, nullptr}))
        return 0;
    nameTabs(param, tabWidget);
    updateTabWidget(param, tabWidget);
    QObject::connect(tabWidget, &QTabWidget::currentChanged, &m_context, [=](int index) {
        if (index >= 0)
            write(param, tabWidget, [=] { return param->SetValueStr(tabWidget->tabText(index).toUtf8().constData()); });
    });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QCheckBox *checkBox)
{
    return mapButton(param, checkBox, Kind::CheckBox);
}

int OrvCamConfigMapper::mapBooleanParam(OrvGenParam::Boolean *param, QAbstractButton *button)
{
    return mapButton(param, button, Kind::BooleanButton);
}

/** An enumeration is written as 1 or 0. */
template <typename Param>
int OrvCamConfigMapper::mapButton(Param *param, QAbstractButton *button, std::int32_t type)
{
    const RefreshGuard guard(this);
    if (!prepare(param, {type, button, nullptr}))
        return 0;
    button->setChecked(param->GetValue(nullptr) != 0);
    QObject::connect(button, &QAbstractButton::clicked, &m_context,
                     [=](bool checked) { write(param, button, [=] { return param->SetValue(checked); }); });
    registerAt(param);
    return 1;
}

int OrvCamConfigMapper::mapCommandParam(OrvGenParam::Command *param, QPushButton *button, QTimer *timer)
{
    const RefreshGuard guard(this);
    if (!prepare(param, {Kind::PushButton, button, nullptr}))
        return 0;
    const auto execute = [param, hasTimer = timer != nullptr, sender = QPointer<QWidget>(button),
                          waiting = QPointer<QTimer>(timer)] {
        const OrvCamErr err = param->Execute();
        if (hasTimer && sender)
            sender->setEnabled(false);
        if (waiting)
            waiting->start();
        return err;
    };
    QObject::connect(button, &QAbstractButton::clicked, &m_context, [=] { write(param, button, execute); });
    registerAt(param);
    return 1;
}

void OrvCamConfigMapper::addRecord(OrvGenParam::Param *param, const OrvCamConfigMapData &record)
{
    if (!param) {
        setEnabled(record, nullptr, false);
        return;
    }
    m_bindings[nameOf(param)].append(record);
    registerAt(param);
    OnParameterUpdate(param);
}

void OrvCamConfigMapper::unmapParam(OrvGenParam::Param *param, QWidget *widget)
{
    if (!param) {
        if (widget)
            widget->setEnabled(false);
        return;
    }
    const QString name = nameOf(param);
    const Records records = m_bindings.take(name);
    if (records.isEmpty())
        return;
    m_tabs.remove(name);
    m_params.remove(name);
    param->UnregisterEvent(this);
    unmapControl(records.first());
}

void OrvCamConfigMapper::unmapControl(const OrvCamConfigMapData &record)
{
    // A spin box may commit what is being typed when it loses the focus.
    const RefreshGuard guard(this);
    if (QButtonGroup *const group = groupOf(record)) {
        disconnectOwnSignals(group);
        enableButtons(nullptr, group, false);
    } else if (record.control) {
        record.control->setEnabled(false);
        if (record.control)
            disconnectOwnSignals(record.control);
    }
}

void OrvCamConfigMapper::unmapAll()
{
    const auto bindings = std::exchange(m_bindings, {});
    const auto params = std::exchange(m_params, {});
    m_tabs.clear();
    for (OrvGenParam::Param *const param : params)
        param->UnregisterEvent(this);
    for (const Records &records : bindings) {
        for (const OrvCamConfigMapData &record : records)
            unmapControl(record);
    }
}

QVector<OrvCamConfigMapData> OrvCamConfigMapper::bindings(const QString &feature) const
{
    return m_bindings.value(feature);
}

/*
 * Walks a copy and looks at each record again: what hangs on the control's signals may bind and unbind, and destroy the
 * mapper.
 */
void OrvCamConfigMapper::OnParameterUpdate(OrvGenParam::Param *param)
{
    if (!param)
        return;
    const QString name = nameOf(param);
    if (QThread::currentThread() != m_context.thread()) {
        const auto update = [=] {
            if (m_params.value(name) == param)
                OnParameterUpdate(param);
        };
        QMetaObject::invokeMethod(&m_context, update, Qt::QueuedConnection);
        return;
    }
    if (m_params.value(name, param) != param)
        return;
    const Records records = m_bindings.value(name);
    const RefreshGuard guard(this);
    const QPointer<QObject> alive(&m_context);
    const auto isBound = [&](const OrvCamConfigMapData &record) {
        return alive && m_bindings.value(name).contains(record);
    };
    const bool isAvailable = param->IsAvailable();
    const bool isShown = isAvailable && param->IsReadable();
    for (const OrvCamConfigMapData &record : records) {
        if (isShown && isBound(record))
            refresh(param, record);
    }
    for (const OrvCamConfigMapData &record : records) {
        if (isBound(record))
            setEnabled(record, param, isAvailable && param->IsWritable());
    }
}

void OrvCamConfigMapper::refresh(OrvGenParam::Param *param, const OrvCamConfigMapData &record)
{
    auto *const number = dynamic_cast<OrvGenParam::Int *>(param);
    auto *const choice = dynamic_cast<OrvGenParam::Enum *>(param);
    const auto converter = [&] { return static_cast<IOrvCamConfigIntConverter *>(record.extra); };
    switch (record.type) {
    case Kind::ComboBox:
        return updateComboBox(choice, qobject_cast<QComboBox *>(record.control));
    case Kind::CheckBox:
        return updateButton(choice, qobject_cast<QCheckBox *>(record.control));
    case Kind::RadioButtons:
        return updateRadioButtons(choice, groupOf(record));
    case Kind::TabWidget:
        return updateTabWidget(choice, qobject_cast<QTabWidget *>(record.control));
    case Kind::BooleanButton:
        return updateButton(dynamic_cast<OrvGenParam::Boolean *>(param),
                            qobject_cast<QAbstractButton *>(record.control));
    case Kind::LineEdit:
        return updateEditBox(number, qobject_cast<QLineEdit *>(record.control));
    case Kind::PlainSpinBox:
        return updateSpinBox(number, qobject_cast<QSpinBox *>(record.control));
    case Kind::SpinBox:
        return updateSpinBox(number, qobject_cast<QtOrvSpinBox *>(record.control));
    case Kind::Slider:
        return updateSlider(number, qobject_cast<QSlider *>(record.control), converter());
    case Kind::SliderSpinBox:
        return updateSliderSpinBox(number, qobject_cast<QtOrvSliderSpinBox *>(record.control), converter());
    default:
        return;
    }
}

/** A radio button is enabled only while its entry can be chosen. */
void OrvCamConfigMapper::setEnabled(const OrvCamConfigMapData &record, OrvGenParam::Param *param, bool enabled)
{
    if (QButtonGroup *const group = groupOf(record))
        enableButtons(dynamic_cast<OrvGenParam::Enum *>(param), group, enabled);
    else if (record.control)
        record.control->setEnabled(enabled);
}

void OrvCamConfigMapper::nameRadioButtons(OrvGenParam::Enum *param, QButtonGroup *group)
{
    const QList<QAbstractButton *> buttons = group->buttons();
    const int entries = param->GetEnumEntriesCount(nullptr);
    for (int i = 0; i < buttons.size(); ++i) {
        QAbstractButton *const button = buttons.at(i);
        OrvGenParam::EnumEntry *const entry = i < entries ? param->GetEnumEntryByIndex(i, nullptr) : nullptr;
        button->setVisible(entry != nullptr);
        button->setProperty(entryValueProperty, QString()); // no value
        if (!entry)
            continue;
        const std::int64_t value = entry->GetValue(nullptr);
        button->setText(nameOf(entry));
        nameButton(button);
        button->setProperty(entryValueProperty, qlonglong(value));
        if (value == toInt(value))
            group->setId(button, int(value));
    }
}

void OrvCamConfigMapper::nameButton(QAbstractButton *button)
{
    const QString group = button->group() ? button->group()->property(groupNameProperty).toString() : QString();
    if (!group.isEmpty())
        button->setAccessibleName(OrvGui::OrvCamConfigMapper::tr("%1: %2").arg(group, button->text()));
}

void OrvCamConfigMapper::nameTabs(OrvGenParam::Enum *param, QTabWidget *tabWidget)
{
    const int tabs = tabWidget->count();
    const int entries = param->GetEnumEntriesCount(nullptr);
    // Intentionally passes over the tab that moves up: every other surplus tab goes, the rest stay as they are.
    for (int i = entries; i < tabs; ++i) {
        if (QWidget *const page = tabWidget->widget(i)) {
            page->hide();
            tabWidget->removeTab(i);
        }
    }
    QHash<QString, int> places;
    for (int i = 0; i < std::min(tabs, entries); ++i) {
        OrvGenParam::EnumEntry *const entry = param->GetEnumEntryByIndex(i, nullptr);
        tabWidget->setTabVisible(i, entry != nullptr);
        if (entry) {
            tabWidget->setTabText(i, nameOf(entry));
            places.insert(nameOf(entry), i);
        }
    }
    m_tabs[nameOf(param)] = places;
}

void OrvCamConfigMapper::updateComboBox(OrvGenParam::Enum *param, QComboBox *comboBox)
{
    auto *const model = comboBox ? qobject_cast<QStandardItemModel *>(comboBox->model()) : nullptr;
    if (!param || !model || comboBox->count() == 0)
        return;
    const RefreshGuard guard(this);
    for (int i = 0; i < comboBox->count(); ++i) {
        const QVariant index = comboBox->itemData(i);
        OrvGenParam::EnumEntry *const entry = param->GetEnumEntryByIndex(index.isValid() ? index.toInt() : i, nullptr);
        model->item(i, comboBox->modelColumn())->setEnabled(entry && entry->IsAvailable());
    }
    // A value that is not in the list shows as nothing.
    comboBox->setCurrentIndex(comboBox->findText(QString::fromUtf8(param->GetValueStr(nullptr))));
}

void OrvCamConfigMapper::updateRadioButtons(OrvGenParam::Enum *param, QButtonGroup *group)
{
    if (!param || !group)
        return;
    const RefreshGuard guard(this);
    if (QAbstractButton *const button = buttonOf(group, param->GetValue(nullptr)))
        button->setChecked(true);
    enableButtons(param, group, isUsable(param));
}

void OrvCamConfigMapper::updateTabWidget(OrvGenParam::Enum *param, QTabWidget *tabWidget)
{
    if (!param || !tabWidget)
        return;
    const RefreshGuard guard(this);
    const QPointer<QTabWidget> alive(tabWidget);
    const QHash<QString, int> places = m_tabs[nameOf(param)];
    const int tabs = std::min(tabWidget->count(), param->GetEnumEntriesCount(nullptr));
    tabWidget->setCurrentIndex(places.value(QString::fromUtf8(param->GetValueStr(nullptr)), 0));
    for (int i = 0; alive && i < tabs; ++i) {
        OrvGenParam::EnumEntry *const entry = param->GetEnumEntryByIndex(i, nullptr);
        const int place = entry ? places.value(nameOf(entry), -1) : -1;
        if (place >= 0)
            tabWidget->setTabEnabled(place, entry->IsAvailable());
    }
}

template <typename Param>
void OrvCamConfigMapper::updateButton(Param *param, QAbstractButton *button)
{
    if (!param || !button)
        return;
    const RefreshGuard guard(this);
    button->setChecked(param->GetValue(nullptr) != 0);
}

void OrvCamConfigMapper::updateEditBox(OrvGenParam::Int *param, QLineEdit *lineEdit)
{
    if (!param || !lineEdit)
        return;
    const RefreshGuard guard(this);
    auto *const validator = qobject_cast<QIntValidator *>(const_cast<QValidator *>(lineEdit->validator()));
    if (validator) {
        const std::int64_t maximum = std::min(param->GetMax(nullptr), m_upperClamp);
        validator->setRange(toInt(param->GetMin(nullptr)), toInt(maximum));
    }
    lineEdit->setText(QString::number(std::min(param->GetValue(nullptr), m_upperClamp)));
}

OrvCamConfigMapper::IntView OrvCamConfigMapper::viewOf(OrvGenParam::Int *param,
                                                       IOrvCamConfigIntConverter *converter) const
{
    const auto shown = [=](std::int64_t value) { return converter ? converter->ToControl(value, param) : value; };
    const auto clamped = [=](std::int64_t value) { return toInt(std::min(shown(value), m_upperClamp)); };
    return {toInt(shown(param->GetMin(nullptr))), clamped(param->GetMax(nullptr)),
            std::max(1, toInt(shown(param->GetIncrement(nullptr)))), clamped(param->GetValue(nullptr))};
}

template <typename Control>
void OrvCamConfigMapper::showInt(OrvGenParam::Int *param, Control *control, IOrvCamConfigIntConverter *converter)
{
    if (!param || !control)
        return;
    const RefreshGuard guard(this);
    const QPointer<Control> alive(control);
    const IntView view = viewOf(param, converter);
    control->setRange(view.minimum, view.maximum);
    if (alive)
        control->setSingleStep(view.step);
    if (alive)
        showValue(control, std::clamp(view.value, view.minimum, std::max(view.minimum, view.maximum)));
}

void OrvCamConfigMapper::updateSpinBox(OrvGenParam::Int *param, QtOrvSpinBox *spinBox)
{
    showInt(param, spinBox, nullptr);
}

void OrvCamConfigMapper::updateSpinBox(OrvGenParam::Int *param, QSpinBox *spinBox)
{
    showInt(param, spinBox, nullptr);
}

void OrvCamConfigMapper::updateSlider(OrvGenParam::Int *param, QSlider *slider, IOrvCamConfigIntConverter *converter)
{
    showInt(param, slider, converter);
}

void OrvCamConfigMapper::updateSliderSpinBox(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                                             IOrvCamConfigIntConverter *converter)
{
    showInt(param, spinBox, converter);
}

void OrvCamConfigMapper::showErrorMessage(OrvCamErr err, QWidget *parent, OrvGenParam::Param *param)
{
    showError(err, parent, param ? nameOf(param) : QString());
}

void OrvCamConfigMapper::resizeVerticalSlider(QtOrvSpinBox *spinBox)
{
    const QSize field = fieldSize(spinBox);
    spinBox->resizeSlider(field.height(), field.width());
}

void OrvCamConfigMapper::resizeHorizontalSlider(QtOrvSpinBox *spinBox)
{
    const QSize field = fieldSize(spinBox);
    spinBox->resizeSlider(field.width(), field.height());
}

} // namespace OrvGui
