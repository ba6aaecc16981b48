// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/camconfig/dialogs/featuredialogcamera.h>

#include <OrvCameraGuiApi/widgets/qtorvdoublespinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvgainslider.h>
#include <OrvCameraGuiApi/widgets/qtorvsliderspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinbox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>
#include <OrvCameraGuiApi/windows/fitscreen.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace {

/**
 * Keeps from a dialog the keys that a QDialog acts on. Escape would hide it without a closeEvent(); from a dialog that
 * is a part of another window it goes on to that one. Return and Enter, which have committed a value before they arrive
 * here, would click a default button, even that of a new message.
 */
class DialogKeys : public QObject
{
public:
    explicit DialogKeys(QDialog *dialog)
        : QObject(dialog)
        , m_dialog(dialog)
    {
        dialog->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched != m_dialog || event->type() != QEvent::KeyPress)
            return false;
        auto *const press = static_cast<QKeyEvent *>(event);
        if (press->matches(QKeySequence::Cancel)) {
            if (m_dialog->isWindow())
                m_dialog->close();
            else
                press->ignore();
            return true;
        }
        return press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter;
    }

private:
    QDialog *const m_dialog;
};

/** Enables and disables the caption of a control with the control. */
class CaptionFollows : public QObject
{
public:
    explicit CaptionFollows(QLabel *caption)
        : QObject(caption)
        , m_caption(caption)
    {
        caption->buddy()->installEventFilter(this);
        caption->setEnabled(caption->buddy()->isEnabled());
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::EnabledChange)
            m_caption->setEnabled(static_cast<QWidget *>(watched)->isEnabled());
        return false;
    }

private:
    QLabel *const m_caption;
};

template <typename Composite, typename Action>
void forEach(QDialog *dialog, const Action &action)
{
    const auto composites = dialog->findChildren<Composite *>();
    for (Composite *const composite : composites)
        action(composite);
}

template <typename Action>
void forEachComposite(QDialog *dialog, const Action &action)
{
    forEach<QtOrvSpinBox>(dialog, action);
    forEach<QtOrvSliderSpinBox>(dialog, action);
    forEach<QtOrvGainSlider>(dialog, action);
}

} // namespace

namespace OrvGui {

/** Notices that the dialog is shown or hidden. */
class FeatureDialogCamera::ShownWatch : public QObject
{
public:
    explicit ShownWatch(FeatureDialogCamera *camera)
        : m_camera(camera)
    {
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::Hide)
            m_camera->pollWhileShown(event->type() == QEvent::Show);
        return false;
    }

private:
    FeatureDialogCamera *const m_camera;
};

FeatureDialogCamera::FeatureDialogCamera()
    : m_reports([this](const Listener &listener) {
        if (m_sinks.contains(listener))
            listener.second->OnParameterUpdate(listener.first);
    })
{
}

FeatureDialogCamera::~FeatureDialogCamera()
{
    letGo();
}

bool FeatureDialogCamera::setDevice(OrvCam::Device *device)
{
    letGo();
    m_connections.reset(new QObject);
    OrvCamErr err = OrvCamErr_Ok;
    OrvGenParam::Array *const parameters = device ? device->GetCameraParameters(&err) : nullptr;
    m_device = device;
    m_parameters = err == OrvCamErr_Ok ? parameters : nullptr;
    pollWhileShown(m_isShown);
    return m_parameters != nullptr;
}

bool FeatureDialogCamera::setDevice(OrvCam::Device *device, QDialog *dialog)
{
    letGo();
    clearControls(dialog);
    const bool hasParameters = setDevice(device);
    showNumbers(dialog, hasParameters);
    dialog->setEnabled(hasParameters);
    return hasParameters;
}

void FeatureDialogCamera::pollWhileShown(bool isShown)
{
    m_isShown = isShown;
    m_clock = NodeMapClock::Use(isShown && m_parameters ? m_parameters->GetNodeMap() : nullptr);
}

void FeatureDialogCamera::letGo()
{
    m_clock = {};
    const auto sinks = std::exchange(m_sinks, {});
    for (const auto &[param, sink] : sinks)
        param->UnregisterEvent(sink);
    mapper.unmapAll();
    m_connections.reset();
    m_parameters = nullptr;
    m_device = nullptr;
}

OrvGenParam::Boolean *FeatureDialogCamera::boolean(const char *name) const
{
    return m_parameters ? m_parameters->GetBoolean(name, nullptr) : nullptr;
}

OrvGenParam::Command *FeatureDialogCamera::command(const char *name) const
{
    return m_parameters ? m_parameters->GetCommand(name, nullptr) : nullptr;
}

OrvGenParam::Enum *FeatureDialogCamera::enumeration(const char *name) const
{
    return m_parameters ? m_parameters->GetEnum(name, nullptr) : nullptr;
}

OrvGenParam::Int *FeatureDialogCamera::integer(const char *name) const
{
    return m_parameters ? m_parameters->GetInt(name, nullptr) : nullptr;
}

void FeatureDialogCamera::listen(OrvGenParam::Param *param, OrvGenParam::ParamEventSink *sink)
{
    if (!param)
        return;
    stopListening(param, sink);
    m_sinks.append({param, sink});
    param->RegisterEvent(sink);
}

void FeatureDialogCamera::stopListening(OrvGenParam::Param *param, OrvGenParam::ParamEventSink *sink)
{
    if (!param)
        return;
    param->UnregisterEvent(sink);
    m_sinks.removeAll({param, sink});
}

bool FeatureDialogCamera::isForGuiThread(OrvGenParam::Param *param, OrvGenParam::ParamEventSink *sink)
{
    return m_reports.passOn({param, sink});
}

void FeatureDialogCamera::setUpDialog(QDialog *dialog)
{
    new DialogKeys(dialog);
    scrollWhereTooSmall(*dialog);
    m_shownWatch.reset(new ShownWatch(this));
    dialog->installEventFilter(m_shownWatch.data());
    const auto labels = dialog->findChildren<QLabel *>();
    for (QLabel *const label : labels) {
        if (label->buddy())
            new CaptionFollows(label);
    }
    const auto buttons = dialog->findChildren<QPushButton *>();
    for (QPushButton *const button : buttons) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }
}

void FeatureDialogCamera::clearControls(QDialog *dialog)
{
    const auto comboBoxes = dialog->findChildren<QComboBox *>();
    for (QComboBox *const comboBox : comboBoxes)
        comboBox->clear();
    const auto buttons = dialog->findChildren<QAbstractButton *>();
    for (QAbstractButton *const button : buttons) {
        QButtonGroup *const group = button->group();
        const bool isExclusive = group && group->exclusive();
        if (isExclusive)
            group->setExclusive(false); // else one would stay checked
        button->setChecked(false);
        if (isExclusive)
            group->setExclusive(true);
    }
    forEachComposite(dialog, [](auto *composite) { composite->setValue(composite->minimum()); });
}

/** Without a camera the fields are empty. With one they show their numbers again. */
void FeatureDialogCamera::showNumbers(QDialog *dialog, bool isShown)
{
    forEachComposite(dialog, [isShown](auto *composite) {
        auto *const field = composite->spinBox();
        if (isShown)
            field->setValue(field->value());
        else
            field->clear();
    });
}

} // namespace OrvGui
