// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/orvcamconfigmapper.h>

#include <OrvCameraGuiApi/camconfig/controlbinding.h>
#include <OrvCameraGuiApi/camconfig/controlwatch.h>
#include <OrvCameraGuiApi/camconfig/errorbox.h>
#include <OrvCameraGuiApi/camconfig/parameters.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <utility>

namespace {

using Kind = OrvGui::OrvCamConfigMapData::Kind;

const char *const groupNameProperty = "accessibleName";

/** The size hint of a field without its caption. */
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

/** Entries are not written while one exists. It may outlive the mapper. */
class OrvCamConfigMapper::RefreshGuard
{
public:
    explicit RefreshGuard(const OrvCamConfigMapper *mapper)
        : m_refreshes(mapper->m_refreshes)
    {
        m_refreshes->append(QThread::currentThread()->loopLevel());
    }
    ~RefreshGuard() { m_refreshes->removeLast(); }
    Q_DISABLE_COPY(RefreshGuard)

private:
    const std::shared_ptr<QVector<int>> m_refreshes;
};

OrvCamConfigMapper::OrvCamConfigMapper(std::int64_t upperClamp)
    : m_upperClamp(upperClamp)
    , m_refreshes(std::make_shared<QVector<int>>())
    , m_reports([this](OrvGenParam::Param *param) {
        if (std::find(m_params.cbegin(), m_params.cend(), param) != m_params.cend()) // else unbound meanwhile
            show(param);
    })
{
}

OrvCamConfigMapper::~OrvCamConfigMapper() = default;

/** The first steps of every binding; null when nothing is bound. */
OrvCamConfigMapper::Binding OrvCamConfigMapper::prepare(OrvGenParam::Param *param, const OrvCamConfigMapData &record)
{
    Binding binding = ControlBinding::make(record);
    if (!binding->control())
        return nullptr;
    if (!param) {
        binding->setEnabled(nullptr, false);
        return nullptr;
    }
    // A report during the binding would find it half made.
    param->UnregisterEvent(this);
    binding->disconnectOwnSignals();
    binding->setEnabled(param, isUsable(param));
    const Bindings former = std::exchange(m_bindings[nameOf(param)], Bindings{binding});
    // A control that is bound again stays connected.
    if (!former.isEmpty() && former.first()->control() != binding->control())
        unmap(former.first());
    endEntries(binding->control());
    return binding;
}

int OrvCamConfigMapper::bind(OrvGenParam::Param *param, const OrvCamConfigMapData &record)
{
    const RefreshGuard guard(this);
    const Binding binding = prepare(param, record);
    if (!binding)
        return 0;
    binding->fill(param);
    const QWidgetList controls = binding->marked();
    for (QWidget *const control : controls)
        watch(param, control);
    binding->refresh(param, m_upperClamp);
    binding->connectEntries(param, [this](const ControlEntry &entry) { enter(entry); });
    registerAt(param);
    return 1;
}

/** Ends the entries of every binding of \a control: another feature may have been bound to it. */
void OrvCamConfigMapper::endEntries(const QObject *control)
{
    for (const Bindings &bindings : std::as_const(m_bindings)) {
        for (const Binding &binding : bindings) {
            if (binding->control() == control)
                binding->endEntries();
        }
    }
}

/** Lets \a control be marked. An entry that the user gives up is replaced by the camera's value. */
void OrvCamConfigMapper::watch(OrvGenParam::Param *param, QWidget *control)
{
    ControlWatch *const watch = ControlWatch::install(control);
    watch->clear();
    QObject::disconnect(watch, &ControlWatch::entryGivenUp, nullptr, nullptr);
    QObject::connect(watch, &ControlWatch::entryGivenUp, &m_context, [this, param, name = nameOf(param)] {
        if (m_params.value(name) == param)
            show(param);
    });
}

void OrvCamConfigMapper::registerAt(OrvGenParam::Param *param)
{
    OrvGenParam::Param *&registered = m_params[nameOf(param)];
    if (registered && registered != param)
        registered->UnregisterEvent(this);
    registered = param;
    param->UnregisterEvent(this);
    param->RegisterEvent(this);
}

/** A slot of a refresh may run an event loop, in which the user can enter values. */
bool OrvCamConfigMapper::isBarred() const
{
    return isRefreshing() && m_refreshes->last() >= QThread::currentThread()->loopLevel();
}

/*
 * Anything may happen during the write: the camera may report, and a slot may then unbind the parameter or destroy the
 * control and the mapper. The message needs only the control.
 */
void OrvCamConfigMapper::enter(const ControlEntry &entry)
{
    if (isBarred())
        return dropWhileRefreshing(entry);
    if (!entry.param->IsWritable() || !entry.isNews())
        return takeBack(entry.param, entry.control);
    const QString name = nameOf(entry.param);
    const unsigned timesShown = m_timesShown.value(name);
    const QPointer<QWidget> control(entry.control);
    const QPointer<QObject> alive(&m_context);
    const OrvCamErr err = entry.write();
    // A report during the write has shown the value that the camera took.
    const bool isUnheard = alive && m_params.value(name) == entry.param && m_timesShown.value(name) == timesShown;
    if (isUnheard && err == OrvCamErr_Ok) {
        if (!show(entry.param) && ControlWatch::of(control))
            ControlWatch::of(control)->clear();
    } else if (isUnheard && control) {
        mark(entry.param, control);
    }
    if (control)
        showError(err, control, name);
}

/**
 * A signal that repeats the camera's value is no entry. Any other is taken back after the refresh. One that comes while
 * entries are taken back is marked instead: otherwise a slot that always sets the same value would never end.
 */
void OrvCamConfigMapper::dropWhileRefreshing(const ControlEntry &entry)
{
    if (!entry.isNews())
        return;
    if (m_isSettling)
        return mark(entry.param, entry.control);
    if (m_dropped.isEmpty())
        QTimer::singleShot(0, &m_context, [this] { settle(); });
    m_dropped.insert(nameOf(entry.param), entry.control);
}

void OrvCamConfigMapper::settle()
{
    const QPointer<QObject> alive(&m_context);
    const auto dropped = std::exchange(m_dropped, {});
    for (auto it = dropped.begin(); it != dropped.end() && alive; ++it) {
        OrvGenParam::Param *const param = m_params.value(it.key());
        if (!param)
            continue;
        m_isSettling = true;
        takeBack(param, it.value());
        if (alive)
            m_isSettling = false;
    }
}

/** Shows the camera's value again; an entry is marked if that value cannot be read. */
void OrvCamConfigMapper::takeBack(OrvGenParam::Param *param, QWidget *control)
{
    const QPointer<QWidget> entered(control);
    const QPointer<QObject> alive(&m_context);
    if (!show(param) && alive && entered)
        mark(param, entered);
}

/** A tab widget goes back at once: the page on show would edit the entry that the camera has selected. */
void OrvCamConfigMapper::mark(OrvGenParam::Param *param, QWidget *control)
{
    if (qobject_cast<QTabWidget *>(control))
        show(param);
    else if (ControlWatch *const watch = ControlWatch::of(control))
        watch->mark(bindingOf(param, {})->cameraText(param, control));
}

int OrvCamConfigMapper::mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox)
{
    return mapIntParam(param, spinBox, QVector<QWidget *>());
}

int OrvCamConfigMapper::mapIntParam(OrvGenParam::Int *param, QtOrvSpinBox *spinBox,
                                    const QVector<QWidget *> &companions)
{
    const RefreshGuard guard(this);
    const bool isBound = bind(param, {Kind::SpinBox, spinBox, nullptr});
    for (QWidget *const companion : companions) {
        const Binding binding = ControlBinding::make({Kind::Companion, companion, nullptr});
        binding->setEnabled(param, isUsable(param));
        if (isBound)
            m_bindings[nameOf(param)].append(binding);
    }
    return isBound;
}

int OrvCamConfigMapper::mapIntParam(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                                    IOrvCamConfigIntConverter *converter)
{
    return bind(param, {Kind::SliderSpinBox, spinBox, converter});
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QComboBox *comboBox)
{
    return bind(param, {Kind::ComboBox, comboBox, nullptr});
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QButtonGroup *group)
{
    return group && !group->buttons().isEmpty() ? bind(param, {Kind::RadioButtons, nullptr, group}) : 0;
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QTabWidget *tabWidget)
{
    return bind(param, {Kind::TabWidget, tabWidget, nullptr});
}

int OrvCamConfigMapper::mapEnumParam(OrvGenParam::Enum *param, QCheckBox *checkBox)
{
    return bind(param, {Kind::CheckBox, checkBox, nullptr});
}

int OrvCamConfigMapper::mapBooleanParam(OrvGenParam::Boolean *param, QAbstractButton *button)
{
    return bind(param, {Kind::BooleanButton, button, nullptr});
}

int OrvCamConfigMapper::mapCommandParam(OrvGenParam::Command *param, QPushButton *button, QTimer *timer)
{
    const RefreshGuard guard(this);
    const Binding binding = prepare(param, {Kind::PushButton, button, nullptr});
    if (!binding)
        return 0;
    const auto execute = [param, sender = QPointer<QWidget>(button), waiting = QPointer<QTimer>(timer)] {
        const OrvCamErr err = param->Execute();
        if (waiting && sender)
            sender->setEnabled(false);
        if (waiting)
            waiting->start();
        return err;
    };
    QObject *const context = binding->newContext();
    if (timer) // without it nobody would enable the button again
        QObject::connect(timer, &QObject::destroyed, context, [param, waiting = QPointer<QWidget>(button)] {
            if (waiting)
                waiting->setEnabled(isUsable(param));
        });
    QObject::connect(button, &QAbstractButton::clicked, context, [=] {
        if (isBarred() || !param->IsWritable())
            return;
        const QString name = nameOf(param);
        const QPointer<QWidget> parent(button);
        const OrvCamErr err = execute();
        if (parent)
            showError(err, parent, name);
    });
    registerAt(param);
    return 1;
}

void OrvCamConfigMapper::addRecord(OrvGenParam::Param *param, const OrvCamConfigMapData &record)
{
    const Binding binding = ControlBinding::make(record);
    if (!param)
        return binding->setEnabled(nullptr, false);
    m_bindings[nameOf(param)].append(binding);
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
    const Bindings bindings = m_bindings.take(name);
    if (bindings.isEmpty())
        return;
    // Another object of the name may be the one that is bound.
    if (OrvGenParam::Param *const registered = m_params.take(name))
        registered->UnregisterEvent(this);
    param->UnregisterEvent(this);
    unmap(bindings.first());
}

void OrvCamConfigMapper::unmapControl(const OrvCamConfigMapData &record)
{
    unmap(ControlBinding::make(record));
}

/** The caller holds \a binding: a slot of the control may destroy the mapper. */
void OrvCamConfigMapper::unmap(const Binding &binding)
{
    // A spin box may commit what is being typed when it loses the focus.
    const RefreshGuard guard(this);
    binding->endEntries();
    if (binding->control())
        endEntries(binding->control());
    binding->detach();
}

void OrvCamConfigMapper::unmapAll()
{
    const auto all = std::exchange(m_bindings, {});
    const auto params = std::exchange(m_params, {});
    m_dropped.clear();
    for (const Bindings &bindings : all) {
        for (const Binding &binding : bindings)
            binding->endEntries();
    }
    for (OrvGenParam::Param *const param : params)
        param->UnregisterEvent(this);
    // A field that loses the focus emits signals, and a slot may destroy the mapper.
    const QPointer<QObject> alive(&m_context);
    for (const Bindings &bindings : all) {
        for (const Binding &binding : bindings) {
            if (alive)
                unmap(binding);
        }
    }
}

QVector<OrvCamConfigMapData> OrvCamConfigMapper::bindings(const QString &feature) const
{
    QVector<OrvCamConfigMapData> records;
    const Bindings bindings = m_bindings.value(feature);
    for (const Binding &binding : bindings)
        records.append(binding->record());
    return records;
}

/** The feature's binding of \a record, or its main one for an empty record; another one if there is none. */
OrvCamConfigMapper::Binding OrvCamConfigMapper::bindingOf(OrvGenParam::Param *param,
                                                          const OrvCamConfigMapData &record) const
{
    const Bindings bindings = m_bindings.value(nameOf(param));
    const auto found = std::find_if(bindings.begin(), bindings.end(), [&](const Binding &binding) {
        return binding->record() == record || record == OrvCamConfigMapData();
    });
    return found == bindings.end() ? ControlBinding::make(record) : *found;
}

void OrvCamConfigMapper::OnParameterUpdate(OrvGenParam::Param *param)
{
    if (param && !m_reports.passOn(param))
        show(param);
}

/*
 * Walks a copy and checks each binding again: slots of the control's signals may bind, unbind and destroy the mapper.
 * False when there is no value to show.
 */
bool OrvCamConfigMapper::show(OrvGenParam::Param *param)
{
    const QString name = nameOf(param);
    const Bindings bindings = m_bindings.value(name);
    if (bindings.isEmpty())
        return false;
    const RefreshGuard guard(this);
    const QPointer<QObject> alive(&m_context);
    const std::int64_t upperClamp = m_upperClamp;
    const auto isBound = [&](const Binding &binding) { return alive && m_bindings.value(name).contains(binding); };
    const bool isAvailable = param->IsAvailable();
    const bool isShown = isAvailable && param->IsReadable();
    const bool isUsable = isAvailable && param->IsWritable();
    if (isShown)
        ++m_timesShown[name];
    for (const Binding &binding : bindings) {
        if (!isShown || !isBound(binding))
            continue;
        binding->clearMarks();
        binding->refresh(param, upperClamp);
    }
    for (const Binding &binding : bindings) {
        if (isBound(binding))
            binding->setEnabled(param, isUsable);
    }
    if (const auto rule = alive ? m_afterShow : nullptr)
        rule(param);
    return isShown;
}

void OrvCamConfigMapper::nameButton(QAbstractButton *button)
{
    const QString group = button->group() ? button->group()->property(groupNameProperty).toString() : QString();
    if (!group.isEmpty())
        button->setAccessibleName(OrvGui::OrvCamConfigMapper::tr("%1: %2").arg(group, button->text()));
}

void OrvCamConfigMapper::refresh(OrvGenParam::Param *param, const OrvCamConfigMapData &record)
{
    if (!param)
        return;
    const RefreshGuard guard(this);
    const Binding binding = bindingOf(param, record);
    if (binding->control())
        binding->refresh(param, m_upperClamp);
}

void OrvCamConfigMapper::updateComboBox(OrvGenParam::Enum *param, QComboBox *comboBox)
{
    refresh(param, {Kind::ComboBox, comboBox, nullptr});
}

void OrvCamConfigMapper::updateRadioButtons(OrvGenParam::Enum *param, QButtonGroup *group)
{
    refresh(param, {Kind::RadioButtons, nullptr, group});
}

void OrvCamConfigMapper::updateTabWidget(OrvGenParam::Enum *param, QTabWidget *tabWidget)
{
    refresh(param, {Kind::TabWidget, tabWidget, nullptr});
}

void OrvCamConfigMapper::updateEditBox(OrvGenParam::Int *param, QLineEdit *lineEdit)
{
    refresh(param, {Kind::LineEdit, lineEdit, nullptr});
}

void OrvCamConfigMapper::updateSpinBox(OrvGenParam::Int *param, QtOrvSpinBox *spinBox)
{
    refresh(param, {Kind::SpinBox, spinBox, nullptr});
}

void OrvCamConfigMapper::updateSpinBox(OrvGenParam::Int *param, QSpinBox *spinBox)
{
    refresh(param, {Kind::PlainSpinBox, spinBox, nullptr});
}

void OrvCamConfigMapper::updateSlider(OrvGenParam::Int *param, QSlider *slider, IOrvCamConfigIntConverter *converter)
{
    refresh(param, {Kind::Slider, slider, converter});
}

void OrvCamConfigMapper::updateSliderSpinBox(OrvGenParam::Int *param, QtOrvSliderSpinBox *spinBox,
                                             IOrvCamConfigIntConverter *converter)
{
    refresh(param, {Kind::SliderSpinBox, spinBox, converter});
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
